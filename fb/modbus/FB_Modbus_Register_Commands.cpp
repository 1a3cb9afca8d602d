// The commands of the table of registers.
#include "base/Decimal_Text.h"
#include "db/Project_Session.h"
#include "fb/modbus/FB_Modbus_Model.h"
#include "fb/modbus/FB_Modbus_Register_Editor.h"
#include "fb/model/FB_Modbus_Edits.h"
#include "fb/model/FB_Modbus_Table.h"
#include "fb/model/FB_Types.h"
#include "ui/Filter_Edit.h"
#include "ui/Theme.h"
#include "ui/Undo_Step.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QShortcut>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QToolBar>

#include <algorithm>
#include <numeric>

namespace {

constexpr int cShownFaults = 3;
constexpr int cFilterWidth = 240;

QList<int> range(int first, qsizetype count) {
  QList<int> rows(count);
  std::iota(rows.begin(), rows.end(), first);
  return rows;
}

} // namespace

QAction* FB_Modbus_Register_Editor::addCommand(QToolBar* bar, const QString& text, const QString& icon,
                                               const QKeySequence& key,
                                               void (FB_Modbus_Register_Editor::*onCommand)()) {
  auto* const action = new QAction(icon.isEmpty() ? QIcon() : Theme::icon(icon), text, this);
  action->setShortcut(key);
  const QString keyText = key.toString(QKeySequence::NativeText);
  action->setToolTip(QStringLiteral("%1 (%2)").arg(QString(text).remove(u'&'), keyText));
  connect(action, &QAction::triggered, this, onCommand);
  addAction(action);
  if (bar) {
    bar->addAction(action);
    mTable->addAction(action);
  }
  return action;
}

void FB_Modbus_Register_Editor::makeCommands() {
  using Self = FB_Modbus_Register_Editor;
  QToolBar* const bar = addToolBar(tr("Register"));
  bar->setObjectName(QStringLiteral("toolbar"));
  bar->setMovable(false);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  mAdd = addCommand(bar, tr("&Hinzufügen"), QStringLiteral("plus_white"), Qt::Key_Insert, &Self::onAdd);
  QAction* const duplicate =
      addCommand(bar, tr("&Duplizieren"), QStringLiteral("duplicate_white"), Qt::CTRL | Qt::Key_D, &Self::onDuplicate);
  QAction* const remove =
      addCommand(bar, tr("&Löschen"), QStringLiteral("trash-white"), Qt::Key_Delete, &Self::onRemove);
  mMoves = {addCommand(bar, tr("Nach &oben"), {}, Qt::ALT | Qt::Key_Up, &Self::onUp),
            addCommand(bar, tr("Nach &unten"), {}, Qt::ALT | Qt::Key_Down, &Self::onDown)};
  bar->addSeparator();
  mCopy = addCommand(bar, tr("&Kopieren"), QStringLiteral("copy-white"), QKeySequence::Copy, &Self::onCopy);
  mPaste = addCommand(bar, tr("&Einfügen"), QStringLiteral("paste_white"), QKeySequence::Paste, &Self::onPaste);
  mOfSelection = {duplicate, remove};
  addCommand(nullptr, tr("Rückgängig"), {}, QKeySequence::Undo, &Self::onUndo);
  addCommand(nullptr, tr("Wiederholen"), {}, QKeySequence::Redo, &Self::onRedo);

  auto* const space = new QWidget;
  space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  bar->addWidget(space);
  mFilter->setMaximumWidth(cFilterWidth);
  mFilter->setAccessibleName(tr("Register suchen"));
  bar->addWidget(mFilter);
  connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, mFilter, qOverload<>(&QWidget::setFocus));
  connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this,
          [this] { emit helpRequested(FB_Types::helpFileName(FB_Modbus_Words::cMaster)); });
}

/// Like the register before it, at the address that follows.
void FB_Modbus_Register_Editor::onAdd() {
  mFilter->clear();
  mFilter->apply();
  const QList<int> rows = selected();
  const int before = rows.isEmpty() ? mModel->rowCount() : rows.last() + 1;
  DB_Modbus_Register item;
  item.mName = tr("Register %1").arg(mModel->rowCount() + 1);
  if (before > 0) {
    const DB_Modbus_Register& last = mModel->registers()[static_cast<size_t>(before) - 1];
    const qint64 next = qint64(last.mAddress) + qint64(last.mWordCount) * last.mCount;
    item.mFunctionCode = FB_Modbus_Words::function(last.mFunctionCode) ? last.mFunctionCode : item.mFunctionCode;
    item.mDataType = last.mDataType;
    item.mWordCount = last.mWordCount;
    item.mSigned = last.mSigned;
    item.mAddress = static_cast<int>(std::clamp<qint64>(next, 0, 65535));
  }
  show(FB_Modbus_Edits::insertRegisters(session(), block(), before, {item}), {before});
  mTable->setFocus();
  mTable->setCurrentIndex(
      mFilterModel->mapFromSource(mModel->index(before, static_cast<int>(FB_Modbus_Fields::Field::Name))));
}

void FB_Modbus_Register_Editor::onDuplicate() {
  const QList<int> rows = selected();
  show(FB_Modbus_Edits::duplicate(session(), block(), rows), range(rows.isEmpty() ? 0 : rows.last() + 1, rows.size()));
}

void FB_Modbus_Register_Editor::onRemove() {
  const QList<int> rows = selected();
  const int next = rows.isEmpty() ? 0 : rows.first();
  const Edit_Result result = FB_Modbus_Edits::removeRegisters(session(), block(), rows);
  show(result, {std::max(0, std::min(next, mModel->rowCount() - 1 - static_cast<int>(rows.size())))});
}

void FB_Modbus_Register_Editor::onUp() {
  QList<int> rows = selected();
  const Edit_Result result = FB_Modbus_Edits::move(session(), block(), rows, -1);
  for (qsizetype i = 0; i < rows.size(); ++i) {
    rows[i] -= rows[i] > i ? 1 : 0;
  }
  show(result, rows);
}

void FB_Modbus_Register_Editor::onDown() {
  QList<int> rows = selected();
  const Edit_Result result = FB_Modbus_Edits::move(session(), block(), rows, 1);
  for (qsizetype i = 0; i < rows.size(); ++i) {
    rows[i] += rows[i] < mModel->rowCount() - (rows.size() - i) ? 1 : 0;
  }
  show(result, rows);
}

void FB_Modbus_Register_Editor::onCopy() {
  std::vector<DB_Modbus_Register> registers;
  for (const int row : selected()) {
    registers.push_back(mModel->registers()[static_cast<size_t>(row)]);
  }
  if (!registers.empty()) {
    QGuiApplication::clipboard()->setText(FB_Modbus_Table::write(registers));
  }
}

void FB_Modbus_Register_Editor::onPaste() {
  const FB_Modbus_Table::Result read = FB_Modbus_Table::read(QGuiApplication::clipboard()->text());
  QStringList faults = read.mFaults;
  if (faults.size() > cShownFaults) {
    const qsizetype more = faults.size() - cShownFaults + 1;
    faults = faults.mid(0, cShownFaults - 1);
    faults.append(tr("… und %1 weitere.").arg(Decimal_Text::count(more)));
  }
  if (read.mRegisters.empty()) {
    tell(faults.isEmpty() ? tr("Die Zwischenablage enthält keine Registertabelle.") : faults.join(u'\n'), true);
    return;
  }
  const QList<int> rows = selected();
  const int before = rows.isEmpty() ? mModel->rowCount() : rows.last() + 1;
  const Edit_Result result = FB_Modbus_Edits::insertRegisters(session(), block(), before, read.mRegisters);
  show(result, range(before, static_cast<qsizetype>(read.mRegisters.size())));
  if (result) {
    const auto count = static_cast<qsizetype>(read.mRegisters.size());
    const QString done =
        count == 1 ? tr("1 Register eingefügt.") : tr("%1 Register eingefügt.").arg(Decimal_Text::count(count));
    tell((QStringList(done) + faults).join(u'\n'), !faults.isEmpty());
  }
}

void FB_Modbus_Register_Editor::onUndo() {
  emit statusText(Undo_Step::undo(session().history()));
}

void FB_Modbus_Register_Editor::onRedo() {
  emit statusText(Undo_Step::redo(session().history()));
}
