#include "net/dialogs/Assistant_Search_Page.h"

#include "db/Connection_Defaults.h"
#include "db/Connection_Edits.h"
#include "ui/Checked_Line_Edit.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

constexpr int cGap = 8;
constexpr int cAddress = 1;
constexpr int cHintLines = 3;
constexpr int cNameWidth = 180;
constexpr int cAddressWidth = 150;
constexpr int cSerialWidth = 120;
constexpr int cProgressWidth = 120;

QString addressFault(const QString& text) {
  DB_Connections::ITEM item;
  item.mAddress = text;
  return text.trimmed().isEmpty() ? QString() : Connection_Edits::faultOf(item, Connection_Edits::Field::Address);
}

} // namespace

Assistant_Search_Page::Assistant_Search_Page(const QString& addresses, quint16 port, int tickMs, QWidget* parent)
    : QWizardPage(parent),
      mDiscovery(new Controller_Discovery(addresses, port, tickMs, this)),
      mList(new QTreeWidget),
      mHint(new QLabel),
      mProgress(new QProgressBar),
      mSearch(new QPushButton),
      mAddress(new Checked_Line_Edit(addressFault)) {
  setTitle(tr("Steuerung suchen"));
  setSubTitle(tr("Eine gefundene Steuerung wählen oder ihre Adresse eingeben."));
  mList->setHeaderLabels({tr("Name"), tr("Adresse"), tr("Seriennummer"), tr("Version")});
  mList->setAccessibleName(tr("Gefundene Steuerungen"));
  mList->setRootIsDecorated(false);
  mList->setAlternatingRowColors(true);
  mList->setUniformRowHeights(true);
  mList->setAllColumnsShowFocus(true);
  mList->header()->resizeSection(0, cNameWidth);
  mList->header()->resizeSection(cAddress, cAddressWidth);
  mList->header()->resizeSection(cAddress + 1, cSerialWidth);
  mHint->setWordWrap(true);
  mHint->setTextFormat(Qt::PlainText);
  mHint->setMinimumHeight(cHintLines * fontMetrics().lineSpacing());
  mHint->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  mProgress->setRange(0, 0);
  mProgress->setTextVisible(false);
  mProgress->setFixedWidth(cProgressWidth);
  mSearch->setAutoDefault(false);
  mAddress->setToolTip(tr("IP-Adresse oder Rechnername, bei Bedarf mit \":\" und Port 1 bis 65535; ohne Port 10001"));
  mAddress->setPlaceholderText(tr("IP-Adresse oder Rechnername"));
  auto* const label = new QLabel(tr("A&dresse:"));
  label->setBuddy(mAddress);

  auto* const layout = new QVBoxLayout(this);
  layout->setSpacing(cGap);
  layout->addWidget(mList, 1);
  auto* const state = new QHBoxLayout;
  state->setSpacing(cGap);
  state->addWidget(mHint, 1);
  state->addWidget(mProgress, 0, Qt::AlignTop);
  state->addWidget(mSearch, 0, Qt::AlignTop);
  layout->addLayout(state);
  auto* const typed = new QHBoxLayout;
  typed->setSpacing(cGap);
  typed->addWidget(label);
  typed->addWidget(mAddress, 1);
  layout->addLayout(typed);

  mPatience.setSingleShot(true);
  mPatience.setInterval(cPatienceTicks * tickMs);
  connect(&mPatience, &QTimer::timeout, this, &Assistant_Search_Page::updateState);
  connect(mDiscovery, &Controller_Discovery::controllerFound, this, &Assistant_Search_Page::onFound);
  connect(mSearch, &QPushButton::clicked, this, [this] { mDiscovery->isSearching() ? stopSearch() : startSearch(); });
  connect(mList, &QTreeWidget::itemSelectionChanged, this, &Assistant_Search_Page::onChosen);
  connect(mAddress, &QLineEdit::textChanged, this, &QWizardPage::completeChanged);
  startSearch();
}

void Assistant_Search_Page::startSearch() {
  mFault.clear();
  static_cast<void>(mDiscovery->start(&mFault));
  mPatience.start();
  updateState();
}

void Assistant_Search_Page::stopSearch() {
  mDiscovery->stop();
  mPatience.stop();
  updateState();
}

void Assistant_Search_Page::onFound() {
  const Controller_Discovery::Found& found = mDiscovery->found().back();
  const DB_Connections::ITEM& connection = found.mConnection;
  auto* const row = new QTreeWidgetItem(
      mList, {connection.mName, connection.mAddress, connection.mSerialNumber, found.mRuntimeVersion});
  // The first one is what most look for; what was typed stays.
  if (mList->topLevelItemCount() == 1 && mAddress->text().isEmpty()) {
    mList->setCurrentItem(row);
  }
  updateState();
}

void Assistant_Search_Page::onChosen() {
  if (const auto chosen = mList->selectedItems(); !chosen.isEmpty()) {
    mAddress->setText(chosen.first()->text(cAddress));
  }
}

void Assistant_Search_Page::updateState() {
  const bool isSearching = mDiscovery->isSearching();
  const qsizetype count = mList->topLevelItemCount();
  const QString search = isSearching ? tr("Die Suche läuft; Steuerungen melden sich meist in wenigen Sekunden.")
                                     : tr("Die Suche ist beendet.");
  const QString nothing = tr("Keine Steuerung gefunden. Ist sie eingeschaltet und im selben Netz? Ihre Adresse kann "
                             "auch eingegeben werden.");
  const QString found = count == 1 ? tr("1 Steuerung gefunden.") : tr("%1 Steuerungen gefunden.").arg(count);
  const bool isPatient = isSearching && mPatience.isActive();
  mHint->setText(!mFault.isEmpty() ? mFault : count > 0 ? found + u' ' + search : isPatient ? search : nothing);
  mProgress->setVisible(isSearching);
  mSearch->setText(isSearching ? tr("&Suche beenden") : tr("Erneut &suchen"));
}

DB_Connections::ITEM Assistant_Search_Page::connection() const {
  const QString address = mAddress->text().trimmed();
  for (const Controller_Discovery::Found& found : mDiscovery->found()) {
    const auto chosen = mList->selectedItems();
    const bool isChosen = chosen.isEmpty() || chosen.first()->text(0) == found.mConnection.mName;
    if (found.mConnection.mAddress == address && isChosen) {
      return found.mConnection;
    }
  }
  DB_Connections::ITEM typed;
  typed.mAddress = address;
  typed.mUser = Connection_Defaults::user();
  typed.mPassword = Connection_Defaults::password();
  return typed;
}

bool Assistant_Search_Page::isComplete() const {
  return !mAddress->text().trimmed().isEmpty() && mAddress->isValid();
}
