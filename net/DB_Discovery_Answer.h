#pragma once

#include "db/DB_Data_Base.h"

#include <QByteArrayView>
#include <QString>

#include <optional>

/// What a controller tells of itself when it is searched for: one UDP datagram with the text of this record (UTF-8)
/// from its port 10011, to the sender of the search. Pure, no socket.
class DB_Discovery_Answer : public DB_Record<DB_Discovery_Answer> {
public:
  static constexpr quint16 cPort = 10011; ///< UDP, of searches and answers
  /// The whole datagram that searches, without a zero byte.
  static constexpr QByteArrayView cSearch = "RZ8800_AUTO_SEARCH";
  /// Longest text, in characters; what is longer is cut.
  static constexpr qsizetype cTextLimit = 255;

  /// From a datagram; none when it names neither a name nor a serial number. Texts are one line each. A port that is
  /// none is that of controllers.
  [[nodiscard]] static std::optional<DB_Discovery_Answer> parse(QByteArrayView datagram);

  void fields(DB_Fields& fields) override;
  QString mName;
  QString mSerialNumber;
  QString mRuntimeVersion;
  int mPort = 10001; ///< TCP, where the controller waits for the studio
};
