#include "fb/FB_Output_Check_Dialog.h"

#include "base/Decimal_Text.h"
#include "db/Project_Session.h"
#include "fb/model/FB_Output_Check.h"
#include "ui/Filter_Edit.h"
#include "ui/Result_List.h"

#include <QHeaderView>

#include <array>
#include <utility>

namespace {
/// What is written stands before who writes it. The reason, the last one, takes what is left.
constexpr std::array cColumns{std::pair(Address_Use_Model::cAddress, 90), std::pair(Address_Use_Model::cName, 180),
                              std::pair(Address_Use_Model::cPage, 140), std::pair(Address_Use_Model::cOwner, 160),
                              std::pair(Address_Use_Model::cPlace, 100)};
constexpr QSize cDefaultSize(960, 420);
} // namespace

FB_Output_Check_Dialog::FB_Output_Check_Dialog(Project_Session& session, App_Settings& settings, QWidget* parent)
    : Result_Dialog(session, settings, QStringLiteral("fb:FB_Output_Check_Dialog"), cDefaultSize, parent),
      mList(new Result_List(mOutputs, Address_Use_Model::cAddress, session.state())) {
  setWindowTitle(tr("Ausgänge auf doppelte Verwendung prüfen"));
  makeList();
}

void FB_Output_Check_Dialog::makeList() {
  mList->setNames(tr("Doppelt verwendete Ausgänge"), QStringLiteral("fb:mOutputCheckHeader"));
  for (size_t i = 0; i < cColumns.size(); ++i) {
    const auto& [column, width] = cColumns[i];
    mList->header().resizeSection(column, width);
    mList->header().moveSection(mList->header().visualIndex(column), static_cast<int>(i));
  }
  const auto showOutput = [this](int row) {
    const Address_Use& use = mOutputs.row(row).mUse;
    emit childChosen(use.mPageGuid, use.mOwnerGuid);
  };
  mList->addCommand(tr("&Zeigen"), showOutput);
  connect(mList, &Result_List::chosen, this, showOutput);
  addList(*mList, 1);
}

void FB_Output_Check_Dialog::refresh() {
  Address_Use_Model::Rows rows = FB_Output_Check::rows(database());
  mSubjects = FB_Output_Check::subjects(rows);
  mOutputs.setRows(std::move(rows));
  updateTexts();
}

void FB_Output_Check_Dialog::applyFilter() {
  mList->setFilter(filter().text());
  updateTexts();
}

void FB_Output_Check_Dialog::updateTexts() {
  const QString subjects = mSubjects == 1 ? tr("1 Adresse oder Variable")
                                          : tr("%1 Adressen und Variablen").arg(Decimal_Text::count(mSubjects));
  const QString text = mOutputs.rowCount() == 0
                           ? QString()
                           : tr("%1, %2 Ausgänge").arg(subjects, Decimal_Text::count(mOutputs.rowCount()));
  const bool isSome = mList->isFiltered() && mList->shownCount() > 0;
  setCountText(isSome ? tr("%1, %2 gezeigt").arg(text, Decimal_Text::count(mList->shownCount())) : text);
  mList->setHint(mOutputs.rowCount() == 0 ? tr("Auf jede Adresse und jede Variable schreibt höchstens ein Ausgang.")
                                          : tr("Keine Zeile enthält \"%1\".").arg(filter().text().simplified()));
}
