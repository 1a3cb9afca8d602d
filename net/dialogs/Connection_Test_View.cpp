#include "net/dialogs/Connection_Test_View.h"

#include "net/Controller_Link.h"
#include "ui/Message_Box.h"
#include "ui/Theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr int cGap = 8;
const QString cOkIcon = QStringLiteral("control_online");
const QString cErrorIcon = QStringLiteral("error_white");
} // namespace

Connection_Test_View::Connection_Test_View(Controller_Link& link, QWidget* parent)
    : QWidget(parent),
      mLink(link),
      mTitle(new QLabel),
      mSteps(new QListWidget),
      mProgress(new QProgressBar),
      mStart(new QPushButton) {
  mTitle->setTextFormat(Qt::PlainText);
  mTitle->setWordWrap(true);
  mSteps->setAccessibleName(tr("Schritte des Tests"));
  mSteps->setWordWrap(true);
  mSteps->setFocusPolicy(Qt::NoFocus);
  mSteps->setSelectionMode(QAbstractItemView::NoSelection);
  mProgress->setRange(0, 0);
  mProgress->setTextVisible(false);
  mStart->setAutoDefault(false);
  connect(mStart, &QPushButton::clicked, this, [this] { isRunning() ? cancel() : start(); });

  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(cGap);
  layout->addWidget(mTitle);
  layout->addWidget(mSteps, 1);
  auto* const row = new QHBoxLayout;
  row->setSpacing(cGap);
  row->addWidget(mProgress, 1);
  row->addStretch();
  row->addWidget(mStart);
  layout->addLayout(row);
  updateState();
}

Connection_Test_View::~Connection_Test_View() {
  delete mTest; // a running one lets go of the link, and nobody is told
}

void Connection_Test_View::setConnection(const DB_Connections::ITEM& connection) {
  delete std::exchange(mTest, nullptr);
  mConnection = connection;
  mIsRight = false;
  mSteps->clear();
  updateState();
}

/// A test takes the one link.
bool Connection_Test_View::mayTakeLink() {
  if (mLink.state() == Controller_Link::State::Offline) {
    return true;
  }
  const QString question =
      tr("Für den Test wird die Verbindung zu %1 getrennt. Trotzdem testen?").arg(mLink.connectionText());
  return Message_Box::askYesNo(this, question);
}

void Connection_Test_View::start() {
  if (isRunning() || !mayTakeLink()) {
    return;
  }
  delete mTest;
  mTest = new Connection_Test(mLink, mConnection, mOptions, this);
  connect(mTest, &Connection_Test::step, this, [this](const QString& text) { addLine(text, {}); });
  connect(mTest, &Connection_Test::result, this,
          [this](const QString& text, bool isOk) { addLine(text, isOk ? cOkIcon : cErrorIcon); });
  connect(mTest, &Connection_Test::interrupted, this, [this] {
    addLine(tr("Test beendet: Das Studio verbindet sich mit einer Steuerung."), cErrorIcon);
    updateState();
  });
  connect(mTest, &Connection_Test::finished, this, &Connection_Test_View::onFinished);
  mSteps->clear();
  mIsRight = false;
  mTest->start();
  updateState();
}

void Connection_Test_View::cancel() {
  if (isRunning()) {
    mTest->cancel();
    addLine(tr("Test abgebrochen"), cErrorIcon);
    updateState();
  }
}

void Connection_Test_View::onFinished(bool isOk) {
  mIsRight = isOk;
  updateState();
}

void Connection_Test_View::addLine(const QString& text, const QString& iconName) {
  auto* const line = new QListWidgetItem(text, mSteps);
  if (!iconName.isEmpty()) {
    line->setIcon(Theme::icon(iconName));
    line->setForeground(Theme::color(iconName == cErrorIcon ? Theme::Role::ErrorText : Theme::Role::Ok));
  }
  mSteps->scrollToItem(line);
}

void Connection_Test_View::updateState() {
  const QString where = mConnection.isRelay() ? mConnection.mRelayDns : mConnection.mAddress;
  mTitle->setText(isRunning() ? tr("Teste Verbindung") : tr("Geprüft wird, ob %1 antwortet.").arg(where));
  mProgress->setVisible(isRunning());
  mStart->setText(isRunning() ? tr("Test &beenden") : mSteps->count() > 0 ? tr("Erneut &testen") : tr("&Testen"));
  emit stateChanged();
}

void Connection_Test_View::onNetworkRead(Network_Message* message, uchar* data) {
  if (mTest) {
    mTest->onNetworkRead(message, data);
  }
}

void Connection_Test_View::onNetworkConnect(bool isConnected, const DB_Connections::ITEM& connection) {
  if (mTest) {
    mTest->onNetworkConnect(isConnected, connection);
  }
}
