#include "ui/Invalid_Address_Dialog.h"

#include "base/Decimal_Text.h"
#include "db/Project_Session.h"
#include "fb/model/FB_Types.h"
#include "ui/Filter_Edit.h"
#include "ui/Result_List.h"

#include <QHeaderView>

#include <array>
#include <utility>

namespace {
/// The reason, the last one, takes what is left.
constexpr std::array cWidths{std::pair(Address_Use_Model::cPage, 140), std::pair(Address_Use_Model::cOwner, 140),
                             std::pair(Address_Use_Model::cPlace, 90), std::pair(Address_Use_Model::cAddress, 80),
                             std::pair(Address_Use_Model::cName, 170)};
constexpr QSize cDefaultSize(1000, 420);
} // namespace

Invalid_Address_Dialog::Invalid_Address_Dialog(Project_Session& session, App_Settings& settings, QWidget* parent)
    : Result_Dialog(session, settings, QStringLiteral("ui:Invalid_Address_Dialog"), cDefaultSize, parent),
      mList(new Result_List(mBindings, Address_Use_Model::cAddress, session.state())) {
  setWindowTitle(tr("Verknüpfungen auf ungültige Adressen"));
  mList->setNames(tr("Ungültige Verknüpfungen"), QStringLiteral("ui:mInvalidAddressHeader"));
  for (const auto& [column, width] : cWidths) {
    mList->header().resizeSection(column, width);
  }
  const auto showPage = [this](int row) { emit pageChosen(mBindings.row(row).mUse.mPageGuid); };
  mList->addCommand(tr("&Seite zeigen"), showPage);
  connect(mList, &Result_List::chosen, this, showPage);
  addList(*mList, 1);
}

void Invalid_Address_Dialog::refresh() {
  mBindings.setRows(Address_Use_Model::invalidRows(database(), usage(), FB_Types::name));
  updateTexts();
}

void Invalid_Address_Dialog::applyFilter() {
  mList->setFilter(filter().text());
  updateTexts();
}

void Invalid_Address_Dialog::updateTexts() {
  const int count = mBindings.rowCount();
  const QString text =
      count == 1 ? tr("1 ungültige Verknüpfung") : tr("%1 ungültige Verknüpfungen").arg(Decimal_Text::count(count));
  const bool isSome = mList->isFiltered() && mList->shownCount() > 0;
  setCountText(isSome ? tr("%1, %2 gezeigt").arg(text, Decimal_Text::count(mList->shownCount())) : text);
  mList->setHint(count == 0 ? tr("Alle Verknüpfungen zeigen auf vorhandene Adressen.")
                            : tr("Keine Zeile enthält \"%1\".").arg(filter().text().simplified()));
}
