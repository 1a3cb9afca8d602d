#include "app/Command_Palette.h"

#include "db/Project_Session.h"
#include "ui/Theme.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {
constexpr int cWidth = 820;
constexpr int cHeight = 400;
constexpr int cGap = 8;
constexpr int cTitleWidth = 280;
constexpr int cBelowTop = 72;
} // namespace

Command_Palette::Command_Palette(Project_Session& session, std::function<Action_State()> state, QWidget* window)
    : QFrame(window, Qt::Popup),
      mSession(session),
      mStateNow(std::move(state)),
      mField(new QLineEdit),
      mList(new QTreeWidget) {
  setObjectName(QStringLiteral("Command_Palette"));
  setWindowTitle(tr("Befehl suchen"));
  setFrameShape(QFrame::StyledPanel);
  mField->setPlaceholderText(tr("Befehl, Seite oder Adresse"));
  mField->setAccessibleName(tr("Befehl, Seite oder Adresse suchen"));
  mField->setClearButtonEnabled(true);
  mField->installEventFilter(this);
  mList->setAccessibleName(tr("Gefunden"));
  mList->setColumnCount(2);
  mList->setHeaderHidden(true);
  mList->setRootIsDecorated(false);
  mList->setUniformRowHeights(true);
  mList->setAllColumnsShowFocus(true);
  mList->setFocusPolicy(Qt::NoFocus); // the field keeps the keys
  mList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  mList->header()->resizeSection(0, cTitleWidth);

  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(cGap, cGap, cGap, cGap);
  layout->setSpacing(cGap);
  layout->addWidget(mField);
  layout->addWidget(mList, 1);
  resize(cWidth, cHeight);

  connect(mField, &QLineEdit::textChanged, this, &Command_Palette::search);
  connect(mList, &QTreeWidget::itemClicked, this,
          [this](QTreeWidgetItem* item) { take(mList->indexOfTopLevelItem(item)); });
}

void Command_Palette::bringUp() {
  const QWidget& window = *parentWidget();
  const QPoint top = window.mapToGlobal(QPoint((window.width() - width()) / 2, cBelowTop));
  mState = mStateNow();
  mField->clear();
  search();
  move(top);
  show();
  mField->setFocus(Qt::PopupFocusReason);
}

void Command_Palette::search() {
  mEntries = Palette_Search::find(mField->text(), mState, mSession.database());
  mList->clear();
  QList<QTreeWidgetItem*> items;
  QTreeWidgetItem* first = nullptr;
  for (const Palette_Entry& entry : mEntries) {
    auto* const item = new QTreeWidgetItem({entry.mTitle, entry.mDetail});
    item->setIcon(0, Theme::icon(entry.mIcon));
    item->setForeground(1, Theme::color(entry.mIsEnabled ? Theme::Role::SecondaryText : Theme::Role::DisabledText));
    item->setToolTip(1, QStringLiteral("<span>%1</span>").arg(entry.mDetail.toHtmlEscaped()));
    if (!entry.mIsEnabled) {
      item->setFlags(Qt::NoItemFlags);
    } else if (!first) {
      first = item;
    }
    items.append(item);
  }
  if (items.isEmpty()) {
    auto* const nothing = new QTreeWidgetItem({tr("Nichts gefunden.")});
    nothing->setFlags(Qt::NoItemFlags);
    items.append(nothing);
  }
  mList->addTopLevelItems(items);
  mList->setCurrentItem(first);
}

bool Command_Palette::eventFilter(QObject* object, QEvent* event) {
  if (object == mField && event->type() == QEvent::KeyPress) {
    switch (static_cast<const QKeyEvent*>(event)->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      QApplication::sendEvent(mList, event);
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      take(mList->indexOfTopLevelItem(mList->currentItem()));
      return true;
    default:
      break;
    }
  }
  return QFrame::eventFilter(object, event);
}

void Command_Palette::take(int row) {
  if (row < 0 || row >= static_cast<int>(mEntries.size()) || !mEntries[static_cast<size_t>(row)].mIsEnabled) {
    return;
  }
  const Palette_Entry entry = mEntries[static_cast<size_t>(row)];
  close();
  // The command may open a box, and works on what had the focus before.
  QTimer::singleShot(0, this, [this, entry] { choose(entry); });
}

void Command_Palette::choose(const Palette_Entry& entry) {
  switch (entry.mKind) {
  case Palette_Entry::Kind::Action:
    emit actionChosen(entry.mSlot);
    break;
  case Palette_Entry::Kind::Page:
    emit pageChosen(entry.mGuid);
    break;
  case Palette_Entry::Kind::Address:
    emit addressChosen(entry.mGuid);
    break;
  }
}
