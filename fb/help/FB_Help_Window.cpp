#include "fb/help/FB_Help_Window.h"

#include "base/App_Settings.h"
#include "base/Decimal_Text.h"
#include "fb/help/FB_Help_Browser.h"
#include "fb/help/FB_Help_Contents.h"
#include "fb/help/FB_Help_Find_Bar.h"
#include "fb/help/FB_Help_Hits.h"
#include "fb/model/FB_Help.h"
#include "ui/Empty_Hint.h"
#include "ui/Filter_Edit.h"
#include "ui/Theme.h"

#include <QHideEvent>
#include <QLabel>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int cMargin = 8;
constexpr int cGap = 4;
constexpr int cFilterDelayMs = 80;
constexpr QSize cDefaultSize(960, 700);
constexpr int cLeftWidth = 280;
constexpr int cLeastLeftWidth = 160;

QToolButton* makeButton(const QString& icon, const QString& text) {
  auto* const button = new QToolButton;
  button->setIcon(Theme::icon(icon));
  button->setAccessibleName(text);
  button->setToolTip(text);
  return button;
}

} // namespace

FB_Help_Window::FB_Help_Window(App_Settings& settings, QWidget* parent)
    : QWidget(parent, Qt::Window),
      mSettings(settings),
      mSplitter(new QSplitter(Qt::Horizontal)),
      mFilter(new Filter_Edit(cFilterDelayMs)),
      mLists(new QStackedWidget),
      mContents(new FB_Help_Contents),
      mHits(new FB_Help_Hits),
      mNone(new Empty_Hint),
      mCount(new QLabel),
      mBrowser(new FB_Help_Browser),
      mFind(new FB_Help_Find_Bar(*mBrowser)) {
  setObjectName(QStringLiteral("fb:FB_Help_Window"));
  mSplitter->setObjectName(QStringLiteral("fb:mHelpSplitter"));
  mSplitter->setChildrenCollapsible(false);
  mSplitter->addWidget(makeLeft());
  mSplitter->addWidget(makeRight());
  mSplitter->setStretchFactor(1, 1);
  mSplitter->setSizes({cLeftWidth, cDefaultSize.width() - cLeftWidth});
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(cMargin, cMargin, cMargin, cMargin);
  layout->addWidget(mSplitter);
  makeKeys();

  connect(mFilter, &Filter_Edit::filterChanged, this, &FB_Help_Window::onSearch);
  connect(mFilter, &Filter_Edit::listWanted, this, [this] {
    if (mLists->currentWidget() == mHits) {
      mHits->enter();
    } else {
      mContents->setFocus();
    }
  });
  connect(mNone, &Empty_Hint::stepRequested, this, [this] {
    mFilter->clear();
    mFilter->setFocus();
  });
  connect(mContents, &FB_Help_Contents::pageChosen, mBrowser, &FB_Help_Browser::showPage);
  connect(mHits, &FB_Help_Hits::pageChosen, this, &FB_Help_Window::showHit);
  connect(mBrowser, &FB_Help_Browser::pageChanged, this, &FB_Help_Window::onPageChanged);

  resize(cDefaultSize);
  if (!restoreGeometry(mSettings.viewState(objectName()))) {
    placeBesideParent();
  }
  mSplitter->restoreState(mSettings.viewState(mSplitter->objectName()));
  mSplitter->setOrientation(Qt::Horizontal); // a broken setting may turn it
  mBrowser->showPage(QString::fromLatin1(FB_Help::cOverview));
}

FB_Help_Window::~FB_Help_Window() {
  if (isVisible()) {
    remember();
  }
}

QWidget* FB_Help_Window::makeLeft() {
  mFilter->setObjectName(QStringLiteral("fb:mHelpSearch"));
  mFilter->setPlaceholderText(tr("Hilfe durchsuchen"));
  mFilter->setAccessibleName(tr("Hilfe durchsuchen"));
  mFilter->setToolTip(tr("Zeigt die Seiten, in denen jedes Wort vorkommt, auch die Nummer eines Bausteintyps. "
                         "Escape leert das Feld."));
  mNone->setStep(tr("Suche &leeren"));
  Theme::setTextRole(*mCount, Theme::Role::SecondaryText);
  for (QWidget* const list : std::initializer_list<QWidget*>{mContents, mHits, mNone}) {
    mLists->addWidget(list);
  }
  auto* const left = new QWidget;
  left->setMinimumWidth(cLeastLeftWidth);
  auto* const layout = new QVBoxLayout(left);
  layout->setContentsMargins(0, 0, cGap, 0);
  layout->setSpacing(cGap);
  layout->addWidget(mFilter);
  layout->addWidget(mLists, 1);
  layout->addWidget(mCount);
  mCount->hide();
  return left;
}

QWidget* FB_Help_Window::makeRight() {
  QToolButton* const back = makeButton(QStringLiteral("arrow_single_left_white"), tr("Zurück (Alt+Links)"));
  QToolButton* const forward = makeButton(QStringLiteral("arrow_single_right_white"), tr("Vorwärts (Alt+Rechts)"));
  QToolButton* const home = makeButton(QStringLiteral("home_menu_white"), tr("Überblick (Alt+Pos1)"));
  QToolButton* const find = makeButton(QStringLiteral("search-white"), tr("Auf dieser Seite suchen (Strg+F)"));
  back->setEnabled(false);
  forward->setEnabled(false);
  connect(mBrowser, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
  connect(mBrowser, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
  connect(back, &QAbstractButton::clicked, mBrowser, &QTextBrowser::backward);
  connect(forward, &QAbstractButton::clicked, mBrowser, &QTextBrowser::forward);
  connect(home, &QAbstractButton::clicked, this,
          [this] { mBrowser->showPage(QString::fromLatin1(FB_Help::cOverview)); });
  connect(find, &QAbstractButton::clicked, mFind, &FB_Help_Find_Bar::open);

  auto* const bar = new QHBoxLayout;
  bar->setSpacing(cGap);
  for (QToolButton* const button : {back, forward, home}) {
    bar->addWidget(button);
  }
  bar->addStretch();
  bar->addWidget(find);
  auto* const right = new QWidget;
  auto* const layout = new QVBoxLayout(right);
  layout->setContentsMargins(cGap, 0, 0, 0);
  layout->setSpacing(cGap);
  layout->addLayout(bar);
  layout->addWidget(mBrowser, 1);
  layout->addWidget(mFind);
  return right;
}

void FB_Help_Window::makeKeys() {
  const auto add = [this](const QKeySequence& keys, const auto& then) {
    connect(new QShortcut(keys, this), &QShortcut::activated, this, then);
  };
  add(QKeySequence::Find, [this] { mFind->open(); });
  add(Qt::Key_F3, [this] { mFind->findNext(); });
  add(Qt::SHIFT | Qt::Key_F3, [this] { mFind->findPrevious(); });
  add(Qt::Key_Escape, [this] { onEscape(); });
  add(Qt::ALT | Qt::Key_Left, [this] { mBrowser->backward(); });
  add(Qt::ALT | Qt::Key_Right, [this] { mBrowser->forward(); });
  add(Qt::ALT | Qt::Key_Home, [this] { mBrowser->showPage(QString::fromLatin1(FB_Help::cOverview)); });
  add(QKeySequence::ZoomIn, [this] { mBrowser->zoomIn(); });
  add(QKeySequence::ZoomOut, [this] { mBrowser->zoomOut(); });
}

QString FB_Help_Window::page() const {
  return mBrowser->page();
}

void FB_Help_Window::showPage(const QString& page) {
  mBrowser->showPage(page);
  bringUp();
  mBrowser->setFocus();
}

void FB_Help_Window::showContents() {
  mFilter->clear();
  mFilter->apply();
  bringUp();
  mContents->setFocus();
}

void FB_Help_Window::showSearch() {
  bringUp();
  mFilter->setFocus();
  mFilter->selectAll();
}

void FB_Help_Window::bringUp() {
  show();
  raise();
  activateWindow();
}

/// At the right edge of the parent, where it hides the least of a page.
void FB_Help_Window::placeBesideParent() {
  if (const QWidget* const window = parentWidget()) {
    const QRect around = window->geometry();
    move(std::max(around.left(), around.right() - width()), around.top() + 2 * cMargin);
  }
}

void FB_Help_Window::onPageChanged(const QString& page) {
  setWindowTitle(tr("%1 - Hilfe").arg(FB_Help::title(page)));
  mContents->showPage(page);
}

void FB_Help_Window::onSearch(const QString& text) {
  const QString searched = text.simplified();
  const QList<FB_Help_Search::Hit> hits = mSearch.find(searched);
  mHits->setHits(hits);
  mNone->setText(tr("Keine Seite der Hilfe enthält \"%1\".").arg(searched));
  if (searched.isEmpty()) {
    mLists->setCurrentWidget(mContents);
  } else if (hits.isEmpty()) {
    mLists->setCurrentWidget(mNone);
  } else {
    mLists->setCurrentWidget(mHits);
  }
  mCount->setVisible(!hits.isEmpty());
  mCount->setText(hits.size() == 1 ? tr("1 Seite") : tr("%1 Seiten").arg(Decimal_Text::count(hits.size())));
}

/// With what was searched for marked.
void FB_Help_Window::showHit(const QString& page) {
  mBrowser->showPage(page);
  mBrowser->mark(mFilter->text().split(u' ', Qt::SkipEmptyParts));
}

void FB_Help_Window::onEscape() {
  if (mFind->isVisible()) {
    mFind->hide();
  } else {
    close();
  }
}

void FB_Help_Window::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  if (!event->spontaneous()) {
    remember();
  }
}

void FB_Help_Window::remember() {
  mSettings.setViewState(objectName(), saveGeometry());
  mSettings.setViewState(mSplitter->objectName(), mSplitter->saveState());
}
