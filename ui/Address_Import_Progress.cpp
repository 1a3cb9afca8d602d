#include "ui/Address_Import_Progress.h"

#include "ui/Ets_Reading.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int cGap = 8;
constexpr int cWidth = 320;
constexpr int cDelayMs = 500;
constexpr int cTickMs = 100;

} // namespace

Address_Import_Progress::Address_Import_Progress(const Ets_Reading& reading, QWidget* parent)
    : QWidget(parent),
      mReading(reading),
      mText(new QLabel),
      mBar(new QProgressBar),
      mCancel(new QPushButton(tr("&Lesen abbrechen"))) {
  auto* const layout = new QVBoxLayout(this);
  layout->setSpacing(cGap);
  mBar->setFixedWidth(cWidth);
  layout->addStretch(1);
  layout->addWidget(mText, 0, Qt::AlignHCenter);
  layout->addWidget(mBar, 0, Qt::AlignHCenter);
  layout->addWidget(mCancel, 0, Qt::AlignHCenter);
  layout->addStretch(2);
  connect(mCancel, &QPushButton::clicked, this, &Address_Import_Progress::cancelRequested);
  mDelay.setSingleShot(true);
  mDelay.setInterval(cDelayMs);
  connect(&mDelay, &QTimer::timeout, this, [this] {
    emit worthShowing();
    mCancel->setFocus();
  });
  mTick.setInterval(cTickMs);
  connect(&mTick, &QTimer::timeout, this, [this] { mBar->setValue(mReading.percent()); });
}

void Address_Import_Progress::start(const QString& fileName) {
  mText->setText(tr("\"%1\" wird gelesen …").arg(fileName));
  mBar->setValue(0);
  mDelay.start();
  mTick.start();
}

bool Address_Import_Progress::stop() {
  mDelay.stop();
  mTick.stop();
  return mCancel->hasFocus();
}
