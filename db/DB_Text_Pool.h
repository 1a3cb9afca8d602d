#pragma once

#include <QByteArrayView>
#include <QString>

#include <array>

/// Lets records that are read one after the other share their texts: the names of pins and datapoint types, colours and
/// numbers repeat in thousands of them.
///
/// It remembers the texts met last, so that it needs neither memory nor time that grows with the project.
class DB_Text_Pool {
public:
  /// The text of these UTF-8 bytes, a shared one if it was met before. A leading byte order mark stays.
  [[nodiscard]] QString text(QByteArrayView utf8);

  /// The same without sharing.
  [[nodiscard]] static QString fromUtf8(QByteArrayView utf8);

private:
  static constexpr qsizetype cLongest = 24; ///< longer ones seldom repeat
  static constexpr size_t cSize = 1024;

  std::array<QString, cSize> mTexts; ///< each at the place that its bytes yield; pure ASCII
};
