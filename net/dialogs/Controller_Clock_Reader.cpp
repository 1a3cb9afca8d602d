#include "net/dialogs/Controller_Clock_Reader.h"

#include "net/Controller_Command.h"
#include "net/Controller_Link.h"
#include "net/dialogs/Request_Queue.h"

#include <QDateTime>

namespace {

constexpr int cTickMs = 200;                    // so that no second is seen twice as long as another
constexpr qint64 cMostMs = 253'402'300'799'999; // the end of the year 9999

} // namespace

Controller_Clock_Reader::Controller_Clock_Reader(const Controller_Access& access, Request_Queue& queue, QObject* parent)
    : QObject(parent),
      mAccess(access),
      mQueue(queue) {
  mTimer.setInterval(cTickMs);
  connect(&mTimer, &QTimer::timeout, this, &Controller_Clock_Reader::ticked);
  mTimer.start();
}

void Controller_Clock_Reader::read() {
  mQueue.add({{}, Controller_Command::Clock_Get, {}, Controller_Command::Clock_Reply},
             [this](Controller_Request& request) {
               bool isNumber = false;
               const qint64 told = request.replyText().toLongLong(&isNumber);
               mClock = {};
               if (isNumber && told >= 0 && told <= cMostMs) {
                 mClock.set(told, mQueue.askedMs(), now());
               }
               emit ticked();
             });
}

void Controller_Clock_Reader::set(Exchange_Runner& runner, const std::function<qint64()>& time,
                                  const std::function<void()>& done) {
  const auto make = [access = mAccess, time] {
    auto request = std::make_unique<Controller_Request>(
        access.mLink.client(), Controller_Command::Clock_Set, Controller_Request::textPayload(QString::number(time())),
        Controller_Command::Clock_Reply, tr("Die Uhrzeit wird gestellt…"));
    request->setTimeout(access.mTimeoutMs);
    return request;
  };
  runner.run<Controller_Request>(tr("Uhrzeit stellen"), make, [done](Controller_Request&) { done(); });
}

QString Controller_Clock_Reader::text(const QDateTime& time) {
  return time.toString(QStringLiteral("dd.MM.yyyy HH:mm:ss"));
}

QString Controller_Clock_Reader::text(qint64 ms) {
  return text(QDateTime::fromMSecsSinceEpoch(ms));
}

qint64 Controller_Clock_Reader::now() {
  return QDateTime::currentMSecsSinceEpoch();
}
