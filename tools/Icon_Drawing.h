#pragma once

#include <QImage>
#include <QString>
#include <QSvgRenderer>

/// One drawing of the icon set, made into square pictures. The drawings are made in a box of 24 units with lines 2
/// units wide; lines at whole units are sharp at 24 and 48 pixels, those at multiples of 3 at 16 and 32 pixels too.
class Icon_Drawing {
public:
  explicit Icon_Drawing(const QString& file);

  [[nodiscard]] bool isValid() const { return mDrawing.isValid(); }

  /// File name without path and ending.
  [[nodiscard]] const QString& name() const { return mName; }

  /// On transparent ground, `size` x `size` pixels.
  [[nodiscard]] QImage picture(int size);

private:
  QSvgRenderer mDrawing;
  QString mName;
};
