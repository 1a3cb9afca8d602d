#include "app/Logic_Page_Tab.h"
#include "base/App_Settings.h"
#include "base/Session_State.h"
#include "bench/Bench_Table.h"
#include "bench/Big_Project.h"
#include "db/Project_Session.h"
#include "fb/FB_Page.h"
#include "fb/model/FB_Normaliser.h"
#include "net/Controller_Link.h"
#include "net/Controller_Values.h"
#include "ui/Address_Tree_View.h"
#include "ui/Address_View.h"
#include "ui/Theme.h"

#include <QApplication>
#include <QSplitter>
#include <QTemporaryDir>
#include <QTimer>

// How late the event loop is while telegrams come in: 65,536 addresses, all seen to be expanded, beside a logic page
// that shows its values.

namespace {

constexpr int cTickMs = 10;
constexpr int cTelegramsOfTick = 50; // 5,000 a second
constexpr int cRunMs = 4'000;
constexpr double cLateLimit = 50; // ms
constexpr double cOneLimit = 20;  // us, a telegram
constexpr double cTellLimit = 50; // ms

using Telegram = DB_Address_Network_Telegram;

Telegram telegramOf(int number) {
  const auto address = Group_Address::fromNumber(static_cast<quint16>(number));
  const bool isFloat = number % 8 == 5 || number % 8 == 6;
  Telegram telegram = Telegram::to(
      address, Telegram::Write, isFloat ? QByteArray("\x0c\x33", 2) : QByteArray(1, static_cast<char>(number / 7 % 2)));
  telegram.mSourceArea = 1;
  telegram.mSourceDevice = 20;
  return telegram;
}

} // namespace

/// --report: a missed limit is only told, the program's result stays 0.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  Theme::apply(application);
  const QTemporaryDir folder;
  qputenv("TMPDIR", folder.path().toLocal8Bit());
  Session_State state;
  Project_Session session(state);
  if (!session.create(folder.filePath(QStringLiteral("big.zpro")), {})) {
    Bench_Table::stop(QStringLiteral("no project"));
  }
  Big_Project(session.database(), Big_Project::cBusAddresses).fill();
  FB_Normaliser::normalise(session.database().mFbPages);
  emit session.opened();
  App_Settings settings(folder.filePath(QStringLiteral("studio.ini")));
  Controller_Link link(session);
  const Controller_Values values(session, link);
  QSplitter window;
  auto* const view = new Address_View(session, &window);
  auto* const tab = new Logic_Page_Tab(session, settings, session.database().mFbPages.pages().at(0).mGuid, &window);
  tab->canvas().showValues(true);
  window.resize(1600, 900);
  window.show();
  view->findChild<Address_Tree_View*>()->expandAll();
  QCoreApplication::processEvents();

  Bench_Table table;
  int next = 1;
  const auto receive = [&](int count) {
    for (int i = 0; i < count; ++i, next = next % (Big_Project::cBusAddresses - 1) + 1) {
      emit link.client().onProcessNetworkRead(telegramOf(next));
    }
  };
  constexpr int cMany = 65'535;
  table.add("a telegram taken in", Bench_Table::milliseconds([&] { receive(cMany); }) * 1000 / cMany, cOneLimit, "us");
  QElapsedTimer tell;
  tell.start();
  QEventLoop told;
  QObject::connect(&session.values(), &Address_Values::changed, &told, [&] {
    tell.restart();
    QTimer::singleShot(0, &told, &QEventLoop::quit);
  });
  told.exec();
  QCoreApplication::processEvents();
  table.add("all 65,535 told and painted", double(tell.nsecsElapsed()) / 1e6, cTellLimit, "ms");

  double worst = 0;
  double sum = 0;
  int ticks = 0;
  QElapsedTimer clock;
  QTimer ticker;
  ticker.setTimerType(Qt::PreciseTimer);
  ticker.setInterval(cTickMs);
  QEventLoop loop;
  QElapsedTimer whole;
  QObject::connect(&ticker, &QTimer::timeout, &loop, [&] {
    const double late = std::max(0.0, double(clock.nsecsElapsed()) / 1e6 - cTickMs);
    clock.restart();
    worst = std::max(worst, late);
    sum += late;
    ++ticks;
    receive(cTelegramsOfTick);
    if (whole.elapsed() > cRunMs) {
      loop.quit();
    }
  });
  whole.start();
  clock.start();
  ticker.start();
  loop.exec();
  table.add("5,000 telegrams a second: latest tick", worst, cLateLimit, "ms");
  Bench_Table::note("the same, on average", sum / ticks, "ms");
  return table.missed() > 0 && !QCoreApplication::arguments().contains(QStringLiteral("--report")) ? 1 : 0;
}
