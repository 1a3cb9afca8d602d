#include "net/dialogs/Request_Queue.h"

#include "net/Controller_Link.h"

#include <QDateTime>

Request_Queue::Request_Queue(const Controller_Access& access, QObject* parent) : QObject(parent), mAccess(access) {}

void Request_Queue::add(const Exchange_Runner::Request& request, const Done& done) {
  mEntries.push_back({request, done});
  if (!mRunning) {
    next();
  }
}

void Request_Queue::clear() {
  mEntries.clear();
  if (mRunning) {
    mRunning->disconnect(this);
    mRunning->deleteLater();
    mRunning = nullptr;
  }
}

void Request_Queue::next() {
  const Exchange_Runner::Request& request = mEntries.front().mRequest;
  mRunning = new Controller_Request(mAccess.mLink.client(), request.mCommand, request.mPayload, request.mReply,
                                    request.mLabel, this);
  mRunning->setTimeout(mAccess.mTimeoutMs);
  connect(mRunning, &Controller_Exchange::finished, this, &Request_Queue::onFinished);
  mAskedMs = QDateTime::currentMSecsSinceEpoch();
  mRunning->start();
}

void Request_Queue::onFinished(Controller_Exchange::End end) {
  Controller_Request* const request = mRunning;
  mRunning = nullptr;
  request->deleteLater();
  if (end != Controller_Exchange::End::Done) {
    mEntries.clear();
    emit failed(request->errorText());
    return;
  }
  const Done done = mEntries.front().mDone;
  mEntries.erase(mEntries.begin());
  done(*request);
  if (mRunning) {
    return; // begun by what was done
  }
  if (mEntries.empty()) {
    emit finished();
  } else {
    next();
  }
}
