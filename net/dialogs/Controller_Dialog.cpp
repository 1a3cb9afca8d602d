#include "net/dialogs/Controller_Dialog.h"

#include "base/App_Settings.h"
#include "net/Controller_Link.h"
#include "ui/Theme.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QShowEvent>
#include <QVBoxLayout>

namespace {

constexpr int cGap = 8;
constexpr int cGroupGap = 12;

} // namespace

Controller_Dialog::Controller_Dialog(const Controller_Access& access, const QString& title, const QString& name,
                                     const QSize& size, QWidget* parent)
    : QDialog(parent),
      mAccess(access),
      mRunner(new Exchange_Runner(access, *this)),
      mQueue(new Request_Queue(access, this)),
      mRows(new QVBoxLayout),
      mNote(new QLabel),
      mRefresh(new QPushButton(tr("&Aktualisieren"))),
      mClose(new QPushButton(tr("S&chließen"))) {
  setWindowTitle(title);
  setObjectName(name);
  setWindowModality(Qt::WindowModal);
  mNote->setTextFormat(Qt::PlainText);
  mNote->setWordWrap(true);
  mRefresh->setShortcut(QKeySequence::Refresh);
  mRefresh->setAutoDefault(false);
  mClose->setDefault(true);

  auto* const buttons = new QHBoxLayout;
  buttons->setSpacing(cGap);
  buttons->addWidget(mNote, 1);
  buttons->addWidget(mRefresh);
  buttons->addWidget(mClose);
  auto* const layout = new QVBoxLayout(this);
  layout->setSpacing(cGroupGap);
  mRows->setSpacing(cGroupGap);
  layout->addLayout(mRows, 1);
  layout->addLayout(buttons);
  resize(size.boundedTo(screen()->availableSize()));
  restoreGeometry(mAccess.mSettings.viewState(name));

  connect(mClose, &QPushButton::clicked, this, &QDialog::reject);
  connect(mRefresh, &QPushButton::clicked, this, &Controller_Dialog::readAgain);
  connect(mQueue, &Request_Queue::finished, this, &Controller_Dialog::updateAll);
  connect(mQueue, &Request_Queue::failed, this, [this](const QString& text) {
    setFailure(text);
    updateAll();
  });
  connect(&mAccess.mLink, &Controller_Link::stateChanged, this, &Controller_Dialog::onLinkChanged);
}

void Controller_Dialog::giveEnter(QLineEdit& field, QPushButton& button) {
  mEnterButton = &button;
  field.installEventFilter(this);
}

bool Controller_Dialog::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::FocusIn) {
    mEnterButton->setDefault(true);
  } else if (event->type() == QEvent::FocusOut) {
    mClose->setDefault(true);
  }
  return QDialog::eventFilter(object, event);
}

Controller_Dialog::~Controller_Dialog() {
  mAccess.mSettings.setViewState(objectName(), saveGeometry());
}

bool Controller_Dialog::isUsable() const {
  return mAccess.mLink.isOnline() && !mQueue->isRunning();
}

void Controller_Dialog::readAgain() {
  setNote({});
  mQueue->clear();
  read();
  updateAll();
}

void Controller_Dialog::setNote(const QString& text) {
  Theme::setTextRole(*mNote, Theme::Role::SecondaryText);
  mNote->setText(text);
}

void Controller_Dialog::setFailure(const QString& text) {
  Theme::setTextRole(*mNote, Theme::Role::ErrorText);
  mNote->setText(text);
}

void Controller_Dialog::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (!event->spontaneous()) {
    readAgain();
  }
}

void Controller_Dialog::onLinkChanged() {
  if (mAccess.mLink.isOnline()) {
    readAgain();
    return;
  }
  setFailure(tr("Steuerung nicht verbunden"));
  updateAll();
}

void Controller_Dialog::updateAll() {
  mRefresh->setEnabled(isUsable());
  updateState();
}
