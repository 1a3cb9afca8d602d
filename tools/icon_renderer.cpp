// Renders icons while building: icon_renderer FOLDER DRAWING.svg...
// writes NAME.png (24 px) and NAME@2x.png (48 px) for each drawing, and for the program's own mark NAME-128.png and
// NAME-256.png.
// Needs no display. Ends with 1 and a message when a drawing cannot be read or a picture not be written.
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QStringList>
#include <QSvgRenderer>

#include <cstdio>
#include <utility>

namespace {

constexpr int iconSize = 24;
constexpr int denseIconSize = 48;
constexpr int markSizes[] = {128, 256};

bool render(QSvgRenderer& drawing, int size, const QString& file) {
  QImage picture(size, size, QImage::Format_ARGB32_Premultiplied);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  drawing.render(&painter, QRectF(0, 0, size, size));
  painter.end();
  if (!picture.save(file, "PNG")) {
    std::fprintf(stderr, "%s: cannot be written\n", qPrintable(file));
    return false;
  }
  return true;
}

bool renderAll(const QString& source, const QDir& folder) {
  QSvgRenderer drawing(source);
  if (!drawing.isValid()) {
    std::fprintf(stderr, "%s: is no drawing\n", qPrintable(source));
    return false;
  }
  const QString name = QFileInfo(source).completeBaseName();
  bool written = render(drawing, iconSize, folder.filePath(name + ".png")) &&
                 render(drawing, denseIconSize, folder.filePath(name + "@2x.png"));
  if (name == QLatin1String("quarna-studio")) {
    for (const int size : markSizes) {
      written = written && render(drawing, size, folder.filePath(QStringLiteral("%1-%2.png").arg(name).arg(size)));
    }
  }
  return written;
}

} // namespace

int main(int argc, char* argv[]) {
  const QCoreApplication app(argc, argv);
  QStringList drawings = QCoreApplication::arguments().mid(1);
  if (drawings.isEmpty()) {
    std::fprintf(stderr, "usage: icon_renderer FOLDER DRAWING.svg...\n");
    return 1;
  }
  const QDir folder(drawings.takeFirst());
  if (!folder.mkpath(".")) {
    std::fprintf(stderr, "%s: cannot be made\n", qPrintable(folder.path()));
    return 1;
  }
  bool good = true;
  for (const QString& drawing : std::as_const(drawings)) {
    good = renderAll(drawing, folder) && good;
  }
  return good ? 0 : 1;
}
