#include "fb/FB_Usages_Dialog.h"

#include "base/Decimal_Text.h"
#include "db/Page_Tree_Model.h"
#include "db/Project_Session.h"
#include "fb/model/FB_Types.h"
#include "ui/Filter_Edit.h"
#include "ui/Result_List.h"

#include <QHeaderView>

namespace {

constexpr int cPageWidth = 180;
constexpr int cOwnerWidth = 220;
constexpr QSize cDefaultSize(640, 360);

Address_Use_Model::Rows blocksOfType(const ProjectDatabase& database, int type) {
  Address_Use_Model::Rows rows;
  for (const auto& page : database.mFbPages.pages()) {
    const QString icon = Page_Tree_Model::pageIcon(database, page->mGuid);
    for (const auto& block : page->mChildren) {
      if (block->mType == type) {
        const Address_Use use{Address_Use::Place::Input, 0, page->mGuid, block->mGuid};
        Address_Usage::Use_Text text = Address_Usage::text(database, use, FB_Types::name);
        text.mPlace.clear();
        rows.push_back({use, {}, text, icon, {}, {}, {}});
      }
    }
  }
  return rows;
}

} // namespace

FB_Usages_Dialog::FB_Usages_Dialog(Project_Session& session, App_Settings& settings, QWidget* parent)
    : Result_Dialog(session, settings, QStringLiteral("fb:FB_Usages_Dialog"), cDefaultSize, parent),
      mList(new Result_List(mUses, Address_Use_Model::cAddress, session.state())) {
  setFilterTexts(tr("&Suchen:"), tr("Wörter"),
                 tr("Zeigt die Zeilen, in denen jedes Wort vorkommt. Escape leert das Feld."));
  mList->setNames(tr("Verwendungen"), QStringLiteral("fb:mUsagesHeader"));
  mList->header().resizeSection(Address_Use_Model::cPage, cPageWidth);
  mList->header().resizeSection(Address_Use_Model::cOwner, cOwnerWidth);
  const auto showOwner = [this](int row) {
    const Address_Use& use = mUses.row(row).mUse;
    emit childChosen(use.mPageGuid, use.mOwnerGuid);
  };
  mList->addCommand(tr("&Zeigen"), showOwner);
  connect(mList, &Result_List::chosen, this, showOwner);
  addList(*mList, 1);
  for (const int column : {Address_Use_Model::cAddress, Address_Use_Model::cName, Address_Use_Model::cReason}) {
    mList->header().setSectionHidden(column, true);
  }
}

void FB_Usages_Dialog::showUses(const QUuid& key) {
  mKey = key;
  mLastSubject.clear();
  refresh();
  bringUp();
}

void FB_Usages_Dialog::showType(int type) {
  mKey = {};
  mType = type;
  refresh();
  bringUp();
}

void FB_Usages_Dialog::refresh() {
  if (mKey.isNull()) {
    mUses.setRows(blocksOfType(database(), mType));
  } else {
    Address_Use_Model::Rows rows;
    Address_Use_Model::append(rows, database(), usage(), mKey, FB_Types::name);
    mUses.setRows(std::move(rows));
  }
  mList->header().setSectionHidden(Address_Use_Model::cPlace, mKey.isNull());
  updateTexts();
}

void FB_Usages_Dialog::applyFilter() {
  mList->setFilter(filter().text());
  updateTexts();
}

QString FB_Usages_Dialog::subject() {
  if (mKey.isNull()) {
    return tr("Baustein \"%1\"").arg(FB_Types::name(mType).simplified());
  }
  if (const DB_Address_Sub_Group* const group = database().mAddresses.subGroup(mKey)) {
    return QStringLiteral("%1 \"%2\"")
        .arg(database().mAddresses.addressOf(*group).toString(), group->mName.simplified());
  }
  if (const Address_Usage::Variable* const variable = usage().variable(mKey)) {
    mLastSubject = tr("Variable \"%1\"").arg(variable->mName.simplified());
  }
  return mLastSubject;
}

void FB_Usages_Dialog::updateTexts() {
  const QString what = subject();
  const int count = mUses.rowCount();
  setWindowTitle(tr("Verwendungen: %1").arg(what));
  const QString text = count == 1 ? tr("1 Verwendung") : tr("%1 Verwendungen").arg(Decimal_Text::count(count));
  const bool isSome = mList->isFiltered() && mList->shownCount() > 0;
  setCountText(isSome ? tr("%1, %2 gezeigt").arg(text, Decimal_Text::count(mList->shownCount())) : text);
  mList->setHint(count == 0 ? tr("%1 wird nirgends verwendet.").arg(what)
                            : tr("Keine Zeile enthält \"%1\".").arg(filter().text().simplified()));
}
