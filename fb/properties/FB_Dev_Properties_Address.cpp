#include "fb/properties/FB_Dev_Properties_Address.h"

#include "base/App_Settings.h"
#include "db/Address_Usage_Watch.h"
#include "db/Project_Session.h"
#include "fb/FB_Page.h"
#include "fb/model/FB_Pin_Types.h"
#include "fb/model/FB_Pins.h"
#include "fb/model/FB_Types.h"
#include "fb/model/FB_Variables.h"
#include "fb/properties/FB_Binding_Delegate.h"
#include "fb/properties/FB_Dev_Properties_Address_Tree.h"
#include "ui/Address_Value_Menu.h"
#include "ui/Empty_Hint.h"
#include "ui/Filter_Edit.h"
#include "ui/Theme.h"

#include <QApplication>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QStackedWidget>
#include <QStyle>
#include <QVBoxLayout>

namespace {

using Kind = DB_Address_Binding::Kind;
using Tree = FB_Dev_Properties_Address::TreeWidgetIO;

constexpr int cGap = 4;
constexpr int cIndentation = 12;
constexpr int cPinRoom = 28;       ///< beside icon and name
constexpr double cPinShare = 0.55; ///< of the width, at most
constexpr int cDeleteWidth = 28;

QString textOf(const DB_Address_Binding& binding) {
  switch (binding.mKind) {
  case Kind::GroupAddress:
    return (Group_Address(binding.mMain, binding.mMiddle, binding.mSub).toString() + u' ' + binding.mName).simplified();
  case Kind::Internal:
    return binding.mName;
  case Kind::None:
    break;
  }
  return {};
}

/// Read only once: they stand in every row.
const QIcon& icon(const QString& name) {
  static QHash<QString, QIcon> icons;
  auto known = icons.find(name);
  if (known == icons.end()) {
    known = icons.insert(name, Theme::icon(name));
  }
  return *known;
}

} // namespace

FB_Dev_Properties_Address::FB_Dev_Properties_Address(Project_Session& session, App_Settings& settings, QWidget* parent)
    : QWidget(parent),
      mSession(session),
      mWatch(new Address_Usage_Watch(session, this)),
      mStack(new QStackedWidget),
      mHint(new Empty_Hint),
      mFilter(new Filter_Edit(0)),
      mTree(new TreeWidgetIO(session)),
      mDelegate(new FB_Binding_Delegate(
          [this] { return FB_Binding_Search(std::as_const(mSession).database(), mWatch->usage()); }, mTree)),
      mValueMenu(new Address_Value_Menu(
          session, [this] { return mValueKeys; }, this)) {
  connect(mValueMenu, &Address_Value_Menu::info, this, &FB_Dev_Properties_Address::statusText);
  connect(mValueMenu, &Address_Value_Menu::refused, this, &FB_Dev_Properties_Address::statusText);
  mFilter->setAccessibleName(tr("Suchen"));
  mFilter->setToolTip(tr("Zeigt die Ein- und Ausgänge, in deren Zeile jedes Wort vorkommt. Escape leert das Feld."));
  setUpTree(settings);
  auto* const list = new QWidget;
  auto* const column = new QVBoxLayout(list);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(cGap);
  column->addWidget(mFilter);
  column->addWidget(mTree);
  mStack->addWidget(list);
  mStack->addWidget(mHint);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(mStack);

  connect(mFilter, &Filter_Edit::filterChanged, this, &FB_Dev_Properties_Address::applyFilter);
  connect(mFilter, &Filter_Edit::listWanted, mTree, qOverload<>(&QWidget::setFocus));
  // Told once for all changes of a turn: edits, undo, and addresses that are renamed.
  connect(mWatch, &Address_Usage_Watch::changed, this, &FB_Dev_Properties_Address::refresh);
  connect(&session.state(), &Session_State::operatingModeChanged, this, &FB_Dev_Properties_Address::refresh);
  clear();
}

FB_Dev_Properties_Address::~FB_Dev_Properties_Address() = default;

void FB_Dev_Properties_Address::setUpTree(App_Settings& settings) {
  mTree->setHeaderLabels({tr("Ein-/Ausgang"), tr("Adresse/Variable"), QString()});
  mTree->setAccessibleName(tr("Ein- und Ausgänge"));
  mTree->setIndentation(cIndentation);
  mTree->setItemDelegateForColumn(TreeWidgetIO::cBinding, mDelegate);
  QHeaderView* const header = mTree->header();
  header->setObjectName(QStringLiteral("fb:mPropertiesAddressHeader"));
  header->setMinimumSectionSize(cDeleteWidth);
  header->resizeSection(TreeWidgetIO::cDelete, cDeleteWidth);
  mIsWidthChosen = header->restoreState(settings.viewState(header->objectName()));
  header->setSectionResizeMode(TreeWidgetIO::cPin, QHeaderView::Interactive);
  header->setSectionResizeMode(TreeWidgetIO::cBinding, QHeaderView::Stretch);
  header->setSectionResizeMode(TreeWidgetIO::cDelete, QHeaderView::Fixed);
  connect(header, &QHeaderView::sectionResized, this, [this, header, &settings](int section) {
    if (section == TreeWidgetIO::cPin && QApplication::mouseButtons().testFlag(Qt::LeftButton) &&
        header->underMouse()) {
      mIsWidthChosen = true;
      settings.setViewState(header->objectName(), header->saveState());
    }
  });
  connect(mTree, &QTreeWidget::itemClicked, this, &FB_Dev_Properties_Address::onTree_itemClicked);
  connect(mTree, &QTreeWidget::itemDoubleClicked, this, &FB_Dev_Properties_Address::onTree_itemDoubleClicked);
  connect(mTree, &QTreeWidget::itemChanged, this, &FB_Dev_Properties_Address::onTree_itemChanged);
  connect(mTree, &QWidget::customContextMenuRequested, this,
          &FB_Dev_Properties_Address::onTree_customContextMenuRequested);
  connect(mTree, &TreeWidgetIO::removeRequested, this, [this] { unbind(selectedPins()); });
  connect(mTree, &TreeWidgetIO::addressDropped, this,
          [this](const FB_Pin_Ref& pin, const QUuid& address) { finish(FB_Page_Edits::bind(mSession, pin, address)); });
  connect(mDelegate, &FB_Binding_Delegate::pickerRequested, this, [this](const QModelIndex& index) {
    if (const auto pin = TreeWidgetIO::pinOf(mTree->itemFromIndex(index))) {
      pick(*pin);
    }
  });
}

bool FB_Dev_Properties_Address::mayEdit() const {
  return !mSession.state().operatingMode();
}

void FB_Dev_Properties_Address::showBlocks(FB_Page& page) {
  const QList<QUuid> blocks = page.selectedBlocks();
  if (&page != mPage || blocks != mBlocks) {
    mPage = &page;
    mBlocks = blocks;
    const QScopedValueRollback filling(mIsFilling, true);
    mRows.clear();
    mBranches.clear();
    mTree->clear();
  }
  refresh();
}

void FB_Dev_Properties_Address::clear() {
  mPage = nullptr;
  mBlocks.clear();
  refresh();
}

void FB_Dev_Properties_Address::refresh() {
  QList<const DB_FB_Control*> blocks;
  if (mBlocks.size() <= cMostBlocks) {
    for (const QUuid& guid : std::as_const(mBlocks)) {
      if (const DB_FB_Control* const block = std::as_const(mSession).database().mFbPages.child(guid)) {
        blocks.append(block);
      }
    }
  }
  const bool arePins = std::ranges::any_of(
      blocks, [](const DB_FB_Control* block) { return !block->mInputs.empty() || !block->mOutputs.empty(); });
  mStack->setCurrentIndex(arePins ? 0 : 1);
  if (mBlocks.size() > cMostBlocks) {
    mHint->setText(tr("%1 Bausteine sind ausgewählt. Ein- und Ausgänge stehen hier für höchstens %2.")
                       .arg(mBlocks.size())
                       .arg(cMostBlocks));
  } else {
    mHint->setText(blocks.isEmpty()     ? tr("Hier stehen die Ein- und Ausgänge des ausgewählten Bausteins.")
                   : blocks.size() == 1 ? tr("Der Baustein hat keine Ein- und Ausgänge.")
                                        : tr("Die Bausteine haben keine Ein- und Ausgänge."));
  }
  showRows(arePins ? blocks : QList<const DB_FB_Control*>());
}

/// Rows that stay are changed in place, so that selection and an open cell outlive it.
void FB_Dev_Properties_Address::showRows(const QList<const DB_FB_Control*>& blocks) {
  const QScopedValueRollback filling(mIsFilling, true);
  const bool areBranches = mBlocks.size() > 1;
  QSet<FB_Pin_Ref> present;
  QSet<QUuid> presentBranches;
  for (const DB_FB_Control* const block : blocks) {
    if (block->mInputs.empty() && block->mOutputs.empty()) {
      continue;
    }
    QTreeWidgetItem* parent = mTree->invisibleRootItem();
    if (areBranches) {
      QTreeWidgetItem*& branch = mBranches[block->mGuid];
      if (!branch) {
        branch = new QTreeWidgetItem(mTree);
        branch->setFirstColumnSpanned(true);
        branch->setFlags(Qt::ItemIsEnabled);
        QFont font = mTree->font();
        font.setBold(true);
        branch->setFont(TreeWidgetIO::cPin, font);
        branch->setExpanded(true);
      }
      branch->setText(TreeWidgetIO::cPin, FB_Variables::ownerName(*block));
      presentBranches.insert(block->mGuid);
      parent = branch;
    }
    syncPins(*parent, *block, present);
  }
  for (auto row = mRows.begin(); row != mRows.end();) {
    if (present.contains(row.key())) {
      ++row;
    } else {
      delete *row;
      row = mRows.erase(row);
    }
  }
  for (auto branch = mBranches.begin(); branch != mBranches.end();) {
    if (presentBranches.contains(branch.key())) {
      ++branch;
    } else {
      delete *branch;
      branch = mBranches.erase(branch);
    }
  }
  applyFilter();
  fitPins();
}

void FB_Dev_Properties_Address::fitPins() {
  if (mIsWidthChosen) {
    return;
  }
  int width = 0;
  for (const QTreeWidgetItem* const item : std::as_const(mRows)) {
    const int depth = item->parent() ? 1 : 0;
    width = std::max(width, mTree->fontMetrics().horizontalAdvance(item->text(Tree::cPin)) + depth * cIndentation);
  }
  const int most = static_cast<int>(mTree->viewport()->width() * cPinShare);
  const int icon = style()->pixelMetric(QStyle::PM_SmallIconSize);
  mTree->header()->resizeSection(Tree::cPin, std::min(most, width + icon + cPinRoom));
}

void FB_Dev_Properties_Address::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  fitPins();
}

void FB_Dev_Properties_Address::syncPins(QTreeWidgetItem& parent, const DB_FB_Control& block,
                                         QSet<FB_Pin_Ref>& present) {
  const auto inputs = static_cast<int>(block.mInputs.size());
  const int count = inputs + static_cast<int>(block.mOutputs.size());
  // Stale ones first: those that stay are in order then, and new ones come to their places.
  for (int row = parent.childCount() - 1; row >= 0; --row) {
    const std::optional<FB_Pin_Ref> pin = TreeWidgetIO::pinOf(parent.child(row));
    if (!pin || static_cast<size_t>(pin->mIndex) >= FB_Pins::pins(block, pin->mSide).size()) {
      mRows.remove(pin.value_or(FB_Pin_Ref()));
      delete parent.child(row);
    }
  }
  for (int row = 0; row < count; ++row) {
    const bool isInput = row < inputs;
    const FB_Pin_Ref pin{block.mGuid, isInput ? FB_Side::Input : FB_Side::Output, isInput ? row : row - inputs};
    QTreeWidgetItem*& item = mRows[pin];
    if (!item) {
      item = new QTreeWidgetItem;
      TreeWidgetIO::setPin(*item, pin);
      parent.insertChild(row, item);
      item->setExpanded(true);
    }
    fill(*item, block, pin);
    present.insert(pin);
  }
}

void FB_Dev_Properties_Address::fill(QTreeWidgetItem& item, const DB_FB_Control& block, const FB_Pin_Ref& pin) {
  const DB_FB_Pin& record = FB_Pins::pins(block, pin.mSide)[static_cast<size_t>(pin.mIndex)];
  const DB_Address_Binding& binding = record.mBinding;
  const bool isInput = pin.mSide == FB_Side::Input;
  const QString name = QStringLiteral("[%1] %2").arg(pin.mIndex + 1).arg(record.mLongName);
  item.setText(Tree::cPin, name);
  item.setIcon(Tree::cPin, icon(isInput ? QStringLiteral("io_input_white") : QStringLiteral("io_output_white")));
  const FB_Pin_Group* const group = FB_Pin_Types::group(block, pin.mSide, pin.mIndex);
  const QString description = group && *group->mDescription ? FB_Types::text(group->mDescription) : QString();
  item.setToolTip(Tree::cPin, (description.isEmpty() ? name : name + u'\n' + description).toHtmlEscaped());
  item.setText(Tree::cBinding, textOf(binding));
  item.setIcon(Tree::cBinding,
               binding.mKind == Kind::Internal ? icon(QStringLiteral("io_internal_connection")) : QIcon());
  const bool isBound = binding.mKind != Kind::None;
  item.setIcon(Tree::cDelete, isBound && mayEdit() ? icon(QStringLiteral("trash-white")) : QIcon());
  item.setToolTip(Tree::cDelete, isBound && mayEdit() ? tr("Verknüpfung löschen") : QString());
  item.setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | (mayEdit() ? Qt::ItemIsEditable : Qt::NoItemFlags));

  const bool isGone =
      binding.mKind == Kind::GroupAddress && !std::as_const(mSession).database().mAddresses.subGroup(binding.mKey);
  const QString reason = isGone
                             ? tr("Diese Gruppenadresse gibt es nicht mehr")
                             : FB_Pin_Types::mismatch(FB_Pin_Types::usual(block, pin.mSide, pin.mIndex), binding.mDpt);
  showReason(item, isBound ? reason : QString());
  const QString kind = binding.mKind == Kind::Internal ? tr("Interne Variable: %1") : QStringLiteral("%1");
  const QString what = isBound ? kind.arg(textOf(binding)) : tr("Nicht verknüpft");
  item.setToolTip(Tree::cBinding, (isBound && !reason.isEmpty() ? what + u'\n' + reason : what).toHtmlEscaped());
}

/// Why the binding does not fit stands in a row of its own below it; empty for none.
void FB_Dev_Properties_Address::showReason(QTreeWidgetItem& item, const QString& reason) {
  if (reason.isEmpty()) {
    qDeleteAll(item.takeChildren());
    return;
  }
  if (item.childCount() == 0) {
    auto* const row = new QTreeWidgetItem(&item);
    row->setFlags(Qt::ItemIsEnabled);
    row->setFirstColumnSpanned(true);
    row->setIcon(Tree::cPin, icon(QStringLiteral("warning_white")));
    row->setForeground(Tree::cPin, Theme::color(Theme::Role::Warning));
    item.setExpanded(true);
  }
  item.child(0)->setText(Tree::cPin, reason);
  item.child(0)->setToolTip(Tree::cPin, reason.toHtmlEscaped());
}

void FB_Dev_Properties_Address::applyFilter() {
  const QStringList words = mFilter->text().split(u' ', Qt::SkipEmptyParts);
  QHash<QTreeWidgetItem*, bool> isShown; // branches
  for (QTreeWidgetItem* const item : std::as_const(mRows)) {
    QString text = item->text(Tree::cPin) + u' ' + item->text(Tree::cBinding);
    text += item->childCount() > 0 ? u' ' + item->child(0)->text(Tree::cPin) : QString();
    const bool isHit =
        std::ranges::all_of(words, [&text](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
    item->setHidden(!isHit);
    isShown[item->parent()] |= isHit;
  }
  for (QTreeWidgetItem* const branch : std::as_const(mBranches)) {
    branch->setHidden(!words.isEmpty() && !isShown.value(branch));
  }
}
