// Start-up of the studio and its end.
#include "app/Main_Window_Dev.h"
#include "app/Project_Lifecycle.h"
#include "base/App_Settings.h"
#include "base/Command_Line.h"
#include "base/Language_Catalogues.h"
#include "base/Session_State.h"
#include "db/Project_Session.h"

#include <QApplication>
#include <QFileInfo>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QTimer>
#include <QTranslator>

#include <cstdio>
#include <memory>
#include <optional>

namespace {

constexpr int cWrongArguments = 2;

Command_Line parse(const QStringList& arguments) {
  return Command_Line::parse(arguments.mid(1), [](const QString& path) { return QFileInfo(path).isFile(); });
}

/// What needs no window is answered without a window system: the result is the process's exit status.
std::optional<int> answerWithoutWindow(int argc, char* argv[]) {
  QStringList arguments;
  for (int i = 0; i < argc; ++i) {
    arguments.append(QString::fromLocal8Bit(argv[i]));
  }
  const Command_Line line = parse(arguments);
  if (!line.mError.isEmpty()) {
    std::fprintf(stderr, "%s\n", qPrintable(line.mError));
    return cWrongArguments;
  }
  if (line.mHelp || line.mVersion) {
    std::fputs(qPrintable(line.mHelp ? Command_Line::helpText() : Command_Line::versionText()), stdout);
    return 0;
  }
  return std::nullopt;
}

/// The toolkit's own texts follow the system's locale.
void installTranslators(QTranslator& first, QTranslator& second) {
  const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
  if (first.load(QLocale::system(), QStringLiteral("qt"), QStringLiteral("_"), folder)) {
    QCoreApplication::installTranslator(&first);
  }
  if (second.load(QStringLiteral("qtbase_") + QLocale::system().name(), folder)) {
    QCoreApplication::installTranslator(&second);
  }
}

/// The studio's own texts follow the chosen language, and numbers and dates with them, never the process's locale.
/// German needs no catalogue, and stands in for a language that has none.
void installLanguage(QTranslator& catalogue, const QString& language) {
  const QString file = Language_Catalogues::fileOf(language, Language_Catalogues::folders());
  const bool isLoaded = !file.isEmpty() && catalogue.load(file);
  if (isLoaded) {
    QCoreApplication::installTranslator(&catalogue);
  }
  QLocale::setDefault(QLocale(isLoaded ? language : QStringLiteral("de")));
}

void openAsAsked(Main_Window_Dev& window, const Command_Line& line) {
  if (!line.mProjectPath.isEmpty()) {
    window.lifecycle().open(QFileInfo(line.mProjectPath).absoluteFilePath());
  } else if (line.mDemo) {
    window.onMenuFileDemo();
  }
}

} // namespace

int main(int argc, char* argv[]) {
  QCoreApplication::setOrganizationName(QStringLiteral("Quarna"));
  QCoreApplication::setApplicationName(QStringLiteral("Quarna-Studio"));
  // Wayland finds menu entry and icon by it.
  QGuiApplication::setDesktopFileName(QStringLiteral("quarna-studio"));
  if (const std::optional<int> status = answerWithoutWindow(argc, argv)) {
    return *status;
  }

  const QApplication application(argc, argv);
  QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/quarna-studio-256.png")));
  QTranslator first;
  QTranslator second;
  QTranslator catalogue;
  installTranslators(first, second);
  const Command_Line line = parse(QCoreApplication::arguments());

  const auto settings = std::make_unique<App_Settings>(line.mSettingsFile);
  if (!settings->error().isEmpty()) {
    std::fprintf(stderr, "%s\n", qPrintable(settings->error()));
    return cWrongArguments;
  }
  installLanguage(catalogue, settings->languageDev());

  // Declared so that the end destroys the window first, then the project, then the settings.
  Project_Session session(Session_State::process());
  Main_Window_Dev window(session, *settings, Session_State::process(), line.mKiosk, line.mMcpPort);
  window.showAsRemembered();
  if (!settings->warning().isEmpty()) {
    window.showInfo(settings->warning());
  }
  QTimer::singleShot(0, &window, [&] { openAsAsked(window, line); });
  return QApplication::exec();
}
