// What the commands of the tree do; they call the edits of the data layer and tell what came of it.
#include "base/Decimal_Text.h"
#include "db/Address_Edits.h"
#include "db/Address_Table_Paste.h"
#include "db/Address_Tree_Model.h"
#include "db/Project_Session.h"
#include "ui/Address_Field_Dialog.h"
#include "ui/Address_Tree_View.h"
#include "ui/Message_Box.h"
#include "ui/Wait_Cursor.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include <algorithm>
#include <optional>

namespace {

using Kind = Address_Rows::Kind;
constexpr qsizetype cMostFaults = 10;

} // namespace

bool Address_Tree_View::tell(const Edit_Result& result) {
  if (!result) {
    emit refused(result.mError);
  }
  return static_cast<bool>(result);
}

void Address_Tree_View::tellAdded(const Edit_Result& result, const QUuid& key) {
  if (!tell(result)) {
    return;
  }
  emit added(key);
  showKey(key);
  rename(mModel.indexOf(key));
}

void Address_Tree_View::onAddMainGroup() {
  QUuid key;
  const int main = Address_Edits::freeMain(mSession, std::max(0, currentAddress().main() + 1));
  tellAdded(main < 0 ? Edit_Result::refused(tr("Alle Hauptgruppen (0..31) sind vergeben."))
                     : Address_Edits::addMainGroup(mSession, main, {}, &key),
            key);
}

void Address_Tree_View::onAddMiddleGroup() {
  QUuid key;
  const Group_Address at = placeForNew();
  const int middle = Address_Edits::freeMiddle(mSession, at.main(), std::max(0, at.middle() + 1));
  tellAdded(middle < 0 ? Edit_Result::refused(tr("In der Hauptgruppe %1 sind alle Mittelgruppen (0..7) vergeben.")
                                                  .arg(Group_Address::mainGroupText(at.main())))
                       : Address_Edits::addMiddleGroup(mSession, at.main(), middle, {}, &key),
            key);
}

void Address_Tree_View::onAddAddress() {
  QUuid key;
  Group_Address at = placeForNew();
  if (at.middle() < 0) {
    at = {at.main(), std::max(0, Address_Edits::freeMiddle(mSession, at.main())), -1}; // made with its first address
  }
  const int sub = Address_Edits::freeSub(mSession, at.main(), at.middle(), std::max(0, at.sub() + 1));
  tellAdded(sub < 0 ? Edit_Result::refused(tr("In der Mittelgruppe %1 sind alle Adressen (0..255) vergeben.")
                                               .arg(Group_Address::middleGroupText(at.main(), at.middle())))
                    : Address_Edits::add(mSession, {at.main(), at.middle(), sub}, {}, &key),
            key);
}

void Address_Tree_View::toClipboard(Address_Clipboard::Use use) {
  const Wait_Cursor wait;
  auto* const data = new QMimeData;
  // With titles a spreadsheet knows the columns, and so does a paste that gets them back.
  data->setText(titleText() + u'\n' + selectedText());
  Address_Clipboard::fill(*data, mSession, editedKeys(), use);
  QGuiApplication::clipboard()->setMimeData(data);
}

void Address_Tree_View::onCopy() {
  toClipboard(Address_Clipboard::Use::Copy);
}

void Address_Tree_View::onCut() {
  const std::vector<QItemSelectionRange> ranges = selectedRanges();
  if (std::any_of(ranges.begin(), ranges.end(),
                  [this](const auto& range) { return mModel.kindOf(range.topLeft()) == Kind::Main; })) {
    emit refused(tr("Eine Hauptgruppe steht für sich; eine andere Nummer bekommt sie in der Spalte \"Adresse\"."));
    return;
  }
  toClipboard(Address_Clipboard::Use::Move);
  emit info(tr("Ausgeschnitten: beim Einfügen werden die Adressen verschoben, Verknüpfungen folgen."));
}

void Address_Tree_View::onPaste() {
  const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
  const QUuid target = mModel.keyOf(currentIndex());
  Address_Clipboard::Result result;
  std::optional<Wait_Cursor> wait(std::in_place);
  const bool isPacked = data && data->hasFormat(Address_Clipboard::mimeType());
  const Edit_Result edit =
      isPacked ? Address_Clipboard::paste(mSession, data->data(Address_Clipboard::mimeType()), target, result)
               : Address_Table_Paste::paste(mSession, data ? data->text() : QString(), target, result);
  wait.reset();
  if (!tell(edit)) {
    return;
  }
  if (!result.mKeys.isEmpty()) {
    emit added(result.mKeys.constFirst());
    showKey(result.mKeys.constFirst());
  }
  emit info(tr("Eingefügt: %1 neu, %2 geändert, %3 verschoben.")
                .arg(Decimal_Text::count(result.mAdded), Decimal_Text::count(result.mChanged),
                     Decimal_Text::count(result.mMoved)));
  if (!result.mFaults.isEmpty()) {
    QStringList lines = result.mFaults.first(qMin(result.mFaults.size(), cMostFaults));
    if (result.mFaults.size() > cMostFaults) {
      lines.append(tr("… und %1 weitere.").arg(Decimal_Text::count(result.mFaults.size() - cMostFaults)));
    }
    Message_Box::showMessage(this, tr("Nicht eingefügt: %1.").arg(Decimal_Text::count(result.mFaults.size())) +
                                       QStringLiteral("\n\n") + lines.join(u'\n'));
  }
}

/// Addresses that are selected, or stand in a selected group and are not filtered out.
qsizetype Address_Tree_View::shownInSelection() const {
  const auto isInSelected = [this](QModelIndex index) {
    while (index.isValid() && !selectionModel()->isRowSelected(index.row(), index.parent())) {
      index = index.parent();
    }
    return index.isValid();
  };
  qsizetype count = 0;
  for (const QItemSelectionRange& range : selectedRanges()) {
    const int end = isInSelected(range.parent()) ? range.top() : range.bottom() + 1; // counted there
    for (int row = range.top(); row < end; ++row) {
      count += mModel.shownSubGroupCount(mModel.index(row, 0, range.parent()));
    }
  }
  return count;
}

/// What stands beside the selected rows and is there when they are gone.
QModelIndex Address_Tree_View::besideSelection() const {
  const std::vector<QItemSelectionRange> ranges = selectedRanges();
  if (ranges.empty()) {
    return {};
  }
  const QItemSelectionRange& first = ranges.front();
  const QModelIndex below = mModel.index(first.bottom() + 1, 0, first.parent());
  const QModelIndex above = mModel.index(first.top() - 1, 0, first.parent());
  return below.isValid() ? below : above.isValid() ? above : first.parent();
}

void Address_Tree_View::onDelete() {
  const QList<QUuid> keys = editedKeys();
  const Address_Edits::Deletion deletion =
      Address_Edits::whatRemoves(mSession, keys, Address_Usage(mSession.database()));
  const qsizetype hidden = deletion.mAddresses - shownInSelection();
  QString question = tr("Zu löschende Adressen: %1.").arg(Decimal_Text::count(deletion.mAddresses));
  if (hidden > 0) {
    question += u' ' + tr("Davon zeigt die Suche nicht: %1.").arg(Decimal_Text::count(hidden));
  }
  if (deletion.mUses > 0) {
    question += u' ' + tr("Auf sie zeigen Verknüpfungen: %1. Diese bleiben und zeigen dann auf keine Adresse mehr.")
                           .arg(Decimal_Text::count(deletion.mUses));
  }
  if (deletion.mRecordings > 0) {
    question +=
        u' ' + tr("Sie werden aufgezeichnet, Aufzeichnungen: %1. Diese bleiben und haben dann keine Adresse mehr.")
                   .arg(Decimal_Text::count(deletion.mRecordings));
  }
  if ((hidden > 0 || deletion.mUses > 0 || deletion.mRecordings > 0) &&
      !Message_Box::askYesNo(this, question + QStringLiteral("\n\n") + tr("Trotzdem löschen?"))) {
    return;
  }
  const QUuid beside = mModel.keyOf(besideSelection());
  const Wait_Cursor wait;
  if (tell(Address_Edits::remove(mSession, keys))) {
    showKey(beside);
    emit info(deletion.mAddresses > 0 ? tr("Gelöschte Adressen: %1.").arg(Decimal_Text::count(deletion.mAddresses))
                                      : tr("Gelöscht."));
  }
}

void Address_Tree_View::onSetText(int column) {
  Address_Field_Dialog dialog(*Address_Tree_Model::fieldOf(column), this);
  const QString present = currentIndex().siblingAtColumn(column).data(Qt::EditRole).toString();
  dialog.setText(present);
  if (dialog.exec() == QDialog::Accepted && mSession.isOpen()) {
    setForSelected(column, dialog.text());
  }
}

void Address_Tree_View::onSetFlag(int column, bool isOn) {
  setForSelected(column, isOn);
}

void Address_Tree_View::setForSelected(int column, const QVariant& value) {
  const Wait_Cursor wait;
  const QList<QUuid> keys = editedKeys();
  if (tell(Address_Edits::set(mSession, keys, *Address_Tree_Model::fieldOf(column), value))) {
    emit info(tr("Gesetzt für die Auswahl, Zeilen: %1.").arg(Decimal_Text::count(keys.size())));
  }
}
