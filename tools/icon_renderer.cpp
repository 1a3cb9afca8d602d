// Renders icons while building: icon_renderer FOLDER DRAWING.svg...
// writes NAME.png (24 px), NAME@2x.png (48 px), NAME_16.png, NAME_20.png and NAME_32.png for each drawing, and for the
// program's own mark NAME-128.png and NAME-256.png. icon_renderer --sheet FILE.png DRAWING.svg... writes one picture
// that shows all drawings, to look at. Needs no display. Ends with 1 and a message when a drawing cannot be read or a
// picture not be written.
#include "tools/Icon_Drawing.h"
#include "tools/Icon_Sheet.h"

#include <QDir>
#include <QGuiApplication>
#include <QStringList>

#include <cstdio>
#include <cstring>
#include <memory>
#include <utility>

namespace {

constexpr std::pair<int, const char*> pictures[]{
    {16, "_16"}, {20, "_20"}, {24, ""}, {32, "_32"}, {48, "@2x"},
};
constexpr int markSizes[] = {128, 256};

bool save(const QImage& picture, const QString& file) {
  if (!picture.save(file, "PNG")) {
    std::fprintf(stderr, "%s: cannot be written\n", qPrintable(file));
    return false;
  }
  return true;
}

bool renderAll(const QString& source, const QDir& folder) {
  Icon_Drawing drawing(source);
  if (!drawing.isValid()) {
    std::fprintf(stderr, "%s: is no drawing\n", qPrintable(source));
    return false;
  }
  bool written = true;
  for (const auto& [size, suffix] : pictures) {
    written = written && save(drawing.picture(size), folder.filePath(drawing.name() + suffix + ".png"));
  }
  if (drawing.name() == QLatin1String("quarna-studio")) {
    for (const int size : markSizes) {
      const QString file = QStringLiteral("%1-%2.png").arg(drawing.name()).arg(size);
      written = written && save(drawing.picture(size), folder.filePath(file));
    }
  }
  return written;
}

int renderSheet(const QStringList& arguments) {
  const QImage sheet = Icon_Sheet::make({arguments.begin() + 1, arguments.end()});
  return save(sheet, arguments.first()) ? 0 : 1;
}

int renderPictures(QStringList drawings) {
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

} // namespace

int main(int argc, char* argv[]) {
  // Only names need fonts, and only fonts need more than the core.
  const bool isSheet = argc > 1 && std::strcmp(argv[1], "--sheet") == 0;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const std::unique_ptr<QCoreApplication> app(isSheet ? new QGuiApplication(argc, argv)
                                                      : new QCoreApplication(argc, argv));
  const QStringList arguments = QCoreApplication::arguments().mid(isSheet ? 2 : 1);
  if (arguments.size() < 2) {
    std::fprintf(stderr, "usage: icon_renderer FOLDER DRAWING.svg...\n"
                         "       icon_renderer --sheet FILE.png DRAWING.svg...\n");
    return 1;
  }
  return isSheet ? renderSheet(arguments) : renderPictures(arguments);
}
