// A stand-in controller as a program of its own: start-up and end.
#include "simulator/Simulator_Command_Line.h"
#include "simulator/Simulator_Server.h"
#include "simulator/Simulator_Signals.h"

#include <QCoreApplication>

#include <cstdio>

namespace {

constexpr int cWrongArguments = 2;
constexpr int cNotListening = 1;

void print(std::FILE* file, const QString& text) {
  std::fputs(text.toUtf8().constData(), file);
  std::fflush(file);
}

} // namespace

int main(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("rz8800-simulator"));
  const Simulator_Command_Line line = Simulator_Command_Line::parse(QCoreApplication::arguments().mid(1));
  if (!line.mError.isEmpty()) {
    print(stderr, line.mError + u'\n');
    return cWrongArguments;
  }
  if (line.mHelp || line.mVersion) {
    print(stdout, line.mHelp ? Simulator_Command_Line::helpText() : Simulator_Command_Line::versionText());
    return 0;
  }
  const Simulator_Signals signalled;
  Simulator_Server server(line.mOptions);
  QObject::connect(&server, &Simulator_Server::logged, &server,
                   [](const QString& text) { print(stderr, text + u'\n'); });
  QString error;
  if (!server.listen(&error)) {
    print(stderr, error + u'\n');
    return cNotListening;
  }
  // Whoever starts it on any free port reads here which.
  print(stdout, QCoreApplication::translate("Simulator_Command_Line", "Bereit an %1, Port %2\n")
                    .arg(line.mOptions.mListen.toString())
                    .arg(server.port()));
  const int status = QCoreApplication::exec();
  server.controller().storeValues();
  return status;
}
