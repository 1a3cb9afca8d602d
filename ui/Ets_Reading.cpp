#include "ui/Ets_Reading.h"

#include <QFile>
#include <QFileInfo>
#include <QThread>

#include <atomic>

/// What the two threads share; the results belong to the other thread until it is finished.
struct Ets_Reading::Work {
  QString mPath;
  Ets_Reader::Options mOptions;
  std::atomic_bool mIsStopped = false;
  std::atomic_int mPercent = 0;
  Ets_Groups mGroups;
  QString mError;

  void run() {
    QFile file(mPath);
    const QFileInfo info(mPath);
    if (!info.exists()) {
      mError = tr("Die Datei gibt es nicht. Den Pfad prüfen oder die Datei neu wählen.");
    } else if (!info.isFile()) {
      mError =
          info.isDir() ? tr("Das ist ein Ordner. Eine Datei daraus wählen.") : tr("Das ist keine gewöhnliche Datei.");
    } else if (!file.open(QIODevice::ReadOnly)) {
      mError = tr("Die Datei lässt sich nicht öffnen: %1").arg(file.errorString());
    } else {
      mOptions.mProgress = [this](int percent) {
        mPercent = percent;
        return !mIsStopped;
      };
      if (!Ets_Reader::read(file, mOptions, mGroups, mError) && mError.isEmpty()) {
        mError = tr("Die Datei lässt sich nicht lesen.");
      }
    }
  }
};

Ets_Reading::Ets_Reading(QObject* parent) : QObject(parent) {}

Ets_Reading::~Ets_Reading() {
  stop();
}

void Ets_Reading::start(const QString& path, const Ets_Reader::Options& options) {
  stop();
  mWork = std::make_shared<Work>();
  mWork->mPath = path;
  mWork->mOptions = options;
  mThread.reset(QThread::create([work = mWork] { work->run(); }));
  connect(mThread.get(), &QThread::finished, this, [this, work = mWork] { onThreadFinished(work); });
  mThread->start();
}

void Ets_Reading::stop() {
  if (mThread) {
    mWork->mIsStopped = true;
    mThread->wait();
    mThread.reset();
    mWork.reset();
  }
}

int Ets_Reading::percent() const {
  return mWork ? mWork->mPercent.load() : 0;
}

void Ets_Reading::onThreadFinished(const std::shared_ptr<Work>& work) {
  if (work != mWork) {
    return; // of a reading that was given up, on its way already
  }
  mThread->wait();
  mThread.reset();
  mWork.reset();
  emit finished({work, &work->mGroups}, work->mError);
}
