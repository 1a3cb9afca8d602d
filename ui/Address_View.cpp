#include "ui/Address_View.h"

#include "base/App_Settings.h"
#include "base/Decimal_Text.h"
#include "base/Session_State.h"
#include "db/Address_Tree_Model.h"
#include "db/Project_Session.h"
#include "fb/model/FB_Types.h"
#include "ui/Address_Tree_View.h"
#include "ui/Empty_Hint.h"
#include "ui/Filter_Edit.h"
#include "ui/Theme.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QShortcut>
#include <QStackedLayout>
#include <QStackedWidget>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int cGap = 4;
constexpr int cFilterDelayMs = 0;
constexpr int cNameWidth = 200;
constexpr int cDescriptionWidth = 110;

QString counted(qsizetype count, const QString& one, const QString& many) {
  return count == 1 ? one : many.arg(Decimal_Text::count(count));
}

} // namespace

Address_View::Address_View(Project_Session& session, QWidget* parent)
    : QWidget(parent),
      mSession(session),
      mModel(new Address_Tree_Model(session, this)),
      mPages(new QStackedLayout(this)),
      mEmpty(new Empty_Hint),
      mFilter(new Filter_Edit(cFilterDelayMs)),
      mTreeOrHint(new QStackedWidget),
      mTree(new Address_Tree_View(session, *mModel)),
      mNoHit(new Empty_Hint),
      mNoAddress(new Empty_Hint),
      mCount(new QLabel) {
  mPages->setContentsMargins(0, 0, 0, 0);
  mPages->addWidget(mEmpty);
  mPages->addWidget(makeListPage());

  connect(mFilter, &Filter_Edit::filterChanged, mModel, &Address_Tree_Model::setFilter);
  connect(mFilter, &Filter_Edit::listWanted, this, &Address_View::enterTree);
  connect(mNoAddress, &Empty_Hint::stepRequested, this, &Address_View::importRequested);
  connect(mModel, &QAbstractItemModel::modelReset, this, &Address_View::updateState);
  // A box in the middle of committing an editor would take its focus and commit it again.
  connect(mModel, &Address_Tree_Model::refused, this, &Address_View::refused, Qt::QueuedConnection);
  connect(mTree, &Address_Tree_View::added, this, &Address_View::showAddress);
  connect(mTree, &Address_Tree_View::info, this, &Address_View::info);
  connect(mTree, &Address_Tree_View::refused, this, &Address_View::refused, Qt::QueuedConnection);
  connect(mTree, &Address_Tree_View::pageChosen, this, &Address_View::pageChosen);
  mModel->setBlockTypeName(FB_Types::name);
  connect(&session, &Project_Session::opened, this, &Address_View::updateState);
  connect(&session, &Project_Session::closed, this, &Address_View::clearFilter);
  connect(&session, &Project_Session::closed, this, &Address_View::updateState);
  connect(&mSession.state(), &Session_State::operatingModeChanged, this, &Address_View::updateState);
  updateState();
}

Address_View::~Address_View() {
  // An open editor hands its text over when it goes: as long as there is a view to tell of it.
  delete mTree;
}

QWidget* Address_View::makeListPage() {
  auto* const page = new QWidget;
  mFilter->setObjectName(QStringLiteral("ui:mAddressFilter"));
  mFilter->setAccessibleName(tr("Adressen suchen"));
  mFilter->setToolTip(tr("Zeigt die Zeilen, in denen jedes Wort vorkommt: in Adresse, Name, Beschreibung, "
                         "Datenpunkttyp oder Herkunft. Escape leert das Feld."));
  // Escape belongs to whoever stands around this view while there is nothing to clear.
  auto* const escape = new QShortcut(QKeySequence(Qt::Key_Escape), page);
  escape->setContext(Qt::WidgetWithChildrenShortcut);
  escape->setEnabled(false);
  connect(escape, &QShortcut::activated, this, &Address_View::clearFilter);
  connect(mFilter, &QLineEdit::textChanged, escape,
          [escape](const QString& text) { escape->setEnabled(!text.isEmpty()); });

  setUpColumns();
  mEmpty->setText(tr("Es ist kein Projekt geöffnet. Hier stehen die Gruppenadressen des Projekts."));
  mNoAddress->setText(tr("Hier stehen die Gruppenadressen des Projekts. Sie kommen aus dem Export der ETS, aus einer "
                         "Tabelle (mit + einfügen) oder werden mit + einzeln angelegt."));
  mNoAddress->setStep(tr("Adressen &importieren…"));
  mTreeOrHint->addWidget(mTree);
  mTreeOrHint->addWidget(mNoHit);
  mTreeOrHint->addWidget(mNoAddress);

  Theme::setTextRole(*mCount, Theme::Role::SecondaryText);
  mCount->setTextFormat(Qt::PlainText);
  mCount->setIndent(cGap);
  mCount->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // its text must not widen the window

  auto* const layout = new QVBoxLayout(page);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(cGap);
  auto* const bar = new QHBoxLayout;
  bar->setSpacing(cGap);
  bar->addWidget(mFilter, 1);
  bar->addWidget(makeAddButton());
  // Without addresses there is no tree that could have the focus.
  QAction* const paste = mTree->newCommands().constLast();
  paste->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  page->addAction(paste);
  layout->addLayout(bar);
  layout->addWidget(mTreeOrHint, 1);
  layout->addWidget(mCount);
  return page;
}

/// What can be made is in the tree's context menu, too; this shows that it can.
QWidget* Address_View::makeAddButton() {
  auto* const button = new QToolButton;
  button->setIcon(Theme::icon(QStringLiteral("plus_white")));
  button->setToolTip(tr("Neue Adresse oder Gruppe anlegen"));
  button->setAccessibleName(button->toolTip());
  button->setPopupMode(QToolButton::InstantPopup);
  auto* const menu = new QMenu(button);
  menu->addActions(mTree->newCommands());
  button->setMenu(menu);
  return button;
}

void Address_View::setUpColumns() {
  QHeaderView* const header = mTree->header();
  header->setObjectName(QStringLiteral("ui:mAddressColumns"));
  header->setSectionsMovable(true);
  header->setFirstSectionMovable(false);
  // The longest address, at the third level behind its icon.
  const int icon = mTree->style()->pixelMetric(QStyle::PM_SmallIconSize);
  const int longest = mTree->fontMetrics().horizontalAdvance(QStringLiteral("31/7/255"));
  header->resizeSection(Address_Rows::cAddress, 3 * mTree->indentation() + icon + longest + 4 * cGap);
  header->resizeSection(Address_Rows::cName, cNameWidth);
  header->resizeSection(Address_Rows::cDescription, cDescriptionWidth);
  for (int column = Address_Rows::cType; column < Address_Rows::cColumnCount; ++column) {
    const QString title = mModel->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    // Room for the arrow of sorting, too.
    header->resizeSection(column, header->fontMetrics().horizontalAdvance(title) + icon + 4 * cGap);
  }
  header->hideSection(Address_Rows::cOrigin);
  // What is live stands beside the names.
  const int sample = header->fontMetrics().horizontalAdvance(QStringLiteral("00:00:00")) + 4 * cGap;
  for (const int column : {Address_Rows::cValue, Address_Rows::cTime, Address_Rows::cSource}) {
    header->resizeSection(column, qMax(sample, header->sectionSize(column)));
    header->moveSection(header->visualIndex(column), column - Address_Rows::cValue + Address_Rows::cDescription);
  }
}

void Address_View::showAddress(const QUuid& key) {
  if (mModel->isFiltered() && !mModel->indexOf(key).isValid()) {
    clearFilter();
  }
  mTree->showKey(key);
}

void Address_View::enterTree() {
  if (!mTree->currentIndex().isValid()) {
    mTree->setCurrentIndex(mModel->index(0, 0));
  }
  mTree->setFocus(Qt::ShortcutFocusReason);
}

void Address_View::enter() {
  if (mTreeOrHint->currentWidget() == mTree) {
    enterTree();
  } else {
    mFilter->setFocus(Qt::ShortcutFocusReason);
  }
}

void Address_View::clearFilter() {
  mFilter->clear();
  mFilter->apply();
}

void Address_View::updateState() {
  const Address_Tree& tree = mSession.database().mAddresses;
  const qsizetype mains = tree.mainGroups().size();
  const qsizetype subs = tree.subGroupCount();
  mPages->setCurrentIndex(mSession.isOpen() ? 1 : 0);
  if (mModel->rowCount() > 0) {
    mTreeOrHint->setCurrentWidget(mTree);
  } else if (mModel->isFiltered()) {
    mNoHit->setText(tr("Keine Zeile enthält \"%1\".").arg(mFilter->text().simplified()));
    mTreeOrHint->setCurrentWidget(mNoHit);
  } else {
    const bool isLocked = mSession.state().operatingMode();
    mNoAddress->setStepEnabled(!isLocked, isLocked ? Session_State::operatingModeRefusal() : QString());
    mTreeOrHint->setCurrentWidget(mNoAddress);
  }

  if (mModel->isFiltered()) {
    mCount->setText(
        tr("%1 von %2")
            .arg(Decimal_Text::count(mModel->shownSubGroupCount()), counted(subs, tr("1 Adresse"), tr("%1 Adressen"))));
  } else {
    QStringList counts{counted(mains, tr("1 Hauptgruppe"), tr("%1 Hauptgruppen")),
                       counted(tree.middleGroupCount(), tr("1 Mittelgruppe"), tr("%1 Mittelgruppen")),
                       counted(subs, tr("1 Adresse"), tr("%1 Adressen"))};
    if (mModel->variableCount() > 0) {
      counts.append(counted(mModel->variableCount(), tr("1 interne Variable"), tr("%1 interne Variablen")));
    }
    mCount->setText(counts.join(QStringLiteral(", ")));
  }
  mCount->setToolTip(mCount->text());
}

void Address_View::saveState(App_Settings& settings) const {
  const QHeaderView* const header = mTree->header();
  settings.setViewState(header->objectName(), header->saveState());
}

void Address_View::restoreState(const App_Settings& settings) {
  QHeaderView* const header = mTree->header();
  header->restoreState(settings.viewState(header->objectName()));
}
