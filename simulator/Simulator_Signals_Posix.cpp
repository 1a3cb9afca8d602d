#include "simulator/Simulator_Signals.h"

#include <QtGlobal>

#ifdef Q_OS_UNIX

#include <QCoreApplication>
#include <QSocketNotifier>

#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <csignal>

namespace {

/// A handler may do next to nothing; it writes a byte here, and the event loop reads it there.
std::array<int, 2> sockets = {-1, -1};

void onSignal(int) {
  const char byte = 1;
  [[maybe_unused]] const ssize_t written = write(sockets[0], &byte, sizeof byte);
}

} // namespace

Simulator_Signals::Simulator_Signals(QObject* parent) : QObject(parent) {
  if (socketpair(AF_UNIX, SOCK_STREAM, 0, sockets.data()) != 0) {
    return;
  }
  mNotifier = new QSocketNotifier(sockets[1], QSocketNotifier::Read, this);
  connect(mNotifier, &QSocketNotifier::activated, this, [this] {
    mNotifier->setEnabled(false);
    QCoreApplication::quit();
  });
  struct sigaction action = {};
  action.sa_handler = onSignal;
  sigemptyset(&action.sa_mask);
  action.sa_flags = SA_RESTART;
  sigaction(SIGTERM, &action, nullptr);
  sigaction(SIGINT, &action, nullptr);
}

#else

Simulator_Signals::Simulator_Signals(QObject* parent) : QObject(parent) {}

#endif
