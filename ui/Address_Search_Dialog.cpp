#include "ui/Address_Search_Dialog.h"

#include "base/Decimal_Text.h"
#include "db/Project_Session.h"
#include "fb/model/FB_Types.h"
#include "ui/Filter_Edit.h"
#include "ui/Result_List.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>

namespace {
constexpr int cAddressShare = 3;
constexpr int cUseShare = 2;
constexpr int cAddressWidth = 100;
constexpr int cNameWidth = 300;
constexpr int cTypeWidth = 120;
constexpr int cPageWidth = 160;
constexpr int cOwnerWidth = 170;
constexpr int cPlaceWidth = 100;
constexpr QSize cDefaultSize(740, 520);
} // namespace

Address_Search_Dialog::Address_Search_Dialog(Project_Session& session, App_Settings& settings, QWidget* parent)
    : Result_Dialog(session, settings, QStringLiteral("ui:Address_Search_Dialog"), cDefaultSize, parent),
      mChoice(new QComboBox),
      mAddressList(new Result_List(mAddresses, Address_Usage_Model::cAddress, session.state())),
      mUseList(new Result_List(mUses, Address_Use_Model::cAddress, session.state())) {
  setWindowTitle(tr("Adressen nach Verwendung suchen"));
  makeChoice();
  makeLists();
  onSearchChanged();
}

void Address_Search_Dialog::makeChoice() {
  mChoice->addItem(tr("Nicht verwendete Adressen"));
  mChoice->addItem(tr("Verwendete Adressen"));
  mChoice->addItem(tr("Verwendungen einer Adresse"));
  auto* const label = new QLabel(tr("&Anzeigen:"));
  label->setBuddy(mChoice);
  top().insertWidget(0, label);
  top().insertWidget(1, mChoice);
  setTabOrder(mChoice, &filter());
  connect(mChoice, &QComboBox::currentIndexChanged, this, &Address_Search_Dialog::onSearchChanged);
}

void Address_Search_Dialog::makeLists() {
  mAddressList->setNames(tr("Adressen"), QStringLiteral("ui:mSearchAddressHeader"));
  mAddressList->header().resizeSection(Address_Usage_Model::cAddress, cAddressWidth);
  mAddressList->header().resizeSection(Address_Usage_Model::cName, cNameWidth);
  mAddressList->header().resizeSection(Address_Usage_Model::cDatapointType, cTypeWidth);
  const auto showAddress = [this](int row) { emit addressChosen(mAddresses.row(row).mKey); };
  mAddressList->addCommand(tr("Adresse &zeigen"), showAddress);
  connect(mAddressList, &Result_List::chosen, this, showAddress);
  connect(mAddressList, &Result_List::selectionChanged, this, &Address_Search_Dialog::showUsesOfSelected);

  mUseList->setNames(tr("Verwendungen"), QStringLiteral("ui:mSearchUseHeader"));
  mUseList->header().resizeSection(Address_Use_Model::cPage, cPageWidth);
  mUseList->header().resizeSection(Address_Use_Model::cOwner, cOwnerWidth);
  mUseList->header().resizeSection(Address_Use_Model::cPlace, cPlaceWidth);
  mUseList->header().resizeSection(Address_Use_Model::cAddress, cAddressWidth);
  const auto showPage = [this](int row) { emit pageChosen(mUses.row(row).mUse.mPageGuid); };
  mUseList->addCommand(tr("Adresse &zeigen"), [this](int row) { emit addressChosen(mUses.row(row).mKey); });
  mUseList->addCommand(tr("&Seite zeigen"), showPage);
  connect(mUseList, &Result_List::chosen, this, showPage);

  addList(*mAddressList, cAddressShare);
  addList(*mUseList, cUseShare);
  mUseList->header().setSectionHidden(Address_Use_Model::cReason, true);
}

Address_Search_Dialog::Search Address_Search_Dialog::search() const {
  return static_cast<Search>(mChoice->currentIndex());
}

Result_List& Address_Search_Dialog::mainList() {
  return search() == Search::Uses ? *mUseList : *mAddressList;
}

void Address_Search_Dialog::onSearchChanged() {
  showLists({search() != Search::Uses, search() != Search::Unused});
  mAddressList->header().setSectionHidden(Address_Usage_Model::cCount, search() == Search::Unused);
  applyFilter();
  refresh();
}

void Address_Search_Dialog::applyFilter() {
  const bool isUses = search() == Search::Uses;
  mAddressList->setFilter(isUses ? QString() : filter().text());
  mUseList->setFilter(isUses ? filter().text() : QString());
  if (search() == Search::Used) {
    showUsesOfSelected(); // what is filtered out is no longer selected
  }
  updateTexts();
}

void Address_Search_Dialog::refresh() {
  if (search() == Search::Uses) {
    mUses.setRows(Address_Use_Model::allRows(database(), usage(), FB_Types::name));
  } else {
    mAddresses.setRows(Address_Usage_Model::rowsOf(database(), usage(), search() == Search::Used));
    showUsesOfSelected();
  }
  updateTexts();
}

void Address_Search_Dialog::showUsesOfSelected() {
  if (search() == Search::Uses) {
    return;
  }
  Address_Use_Model::Rows rows;
  for (const int row : mAddressList->selectedRows()) {
    Address_Use_Model::append(rows, database(), usage(), mAddresses.row(row).mKey, FB_Types::name);
  }
  mUses.setRows(std::move(rows));
}

void Address_Search_Dialog::updateTexts() {
  const Result_List& list = mainList();
  const bool isSome = list.isFiltered() && list.shownCount() > 0;
  const QString shown = isSome ? tr(", %1 gezeigt").arg(Decimal_Text::count(list.shownCount())) : QString();
  setCountText(countText() + shown);
  mainList().setHint(emptyText());
  if (search() == Search::Used) {
    const bool isChoice = mAddressList->shownCount() > 0;
    mUseList->setHint(isChoice ? tr("Eine Adresse wählen; hier stehen ihre Verwendungen.") : QString());
  }
}

QString Address_Search_Dialog::countText() const {
  const qsizetype all = database().mAddresses.subGroupCount();
  const QString ofAll = all == 1 ? tr("1 Adresse") : tr("%1 Adressen").arg(Decimal_Text::count(all));
  switch (search()) {
  case Search::Unused:
    return tr("%1 von %2 nicht verwendet").arg(Decimal_Text::count(mAddresses.rowCount()), ofAll);
  case Search::Used:
    return tr("%1 von %2 verwendet").arg(Decimal_Text::count(mAddresses.rowCount()), ofAll);
  case Search::Uses:
    break;
  }
  const int uses = mUses.rowCount();
  return uses == 1 ? tr("1 Verwendung") : tr("%1 Verwendungen").arg(Decimal_Text::count(uses));
}

QString Address_Search_Dialog::emptyText() const {
  const Address_Tree& tree = database().mAddresses;
  if (tree.subGroupCount() == 0) {
    return tr("Das Projekt hat keine Adressen.");
  }
  const QString typed = filter().text().simplified();
  const bool isFound = search() == Search::Uses ? mUses.rowCount() > 0 : mAddresses.rowCount() > 0;
  if (!isFound) {
    return search() == Search::Unused ? tr("Alle Adressen sind verwendet.") : tr("Keine Adresse ist verwendet.");
  }
  const auto address = typed.count(QLatin1Char('/')) == 2 ? Group_Address::parse(typed) : std::nullopt;
  if (!address) {
    return tr("Keine Zeile enthält \"%1\".").arg(typed);
  }
  const DB_Address_Sub_Group* const group = tree.subGroup(*address);
  if (!group) {
    return tr("Das Projekt hat keine Adresse %1.").arg(address->toString());
  }
  const QString which = QStringLiteral("%1 \"%2\"").arg(address->toString(), group->mName.simplified());
  return search() == Search::Unused ? tr("Adresse %1 ist verwendet.").arg(which)
                                    : tr("Adresse %1 ist nicht verwendet.").arg(which);
}
