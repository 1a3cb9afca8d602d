#include "app/Start_Page.h"

#include "app/Page_Parts.h"
#include "app/Project_List.h"
#include "db/Model_Roles.h"
#include "ui/Theme.h"

#include <QAction>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int cMarkSize = 48;
constexpr int cGap = 12;
constexpr int cContentWidth = 1080;
constexpr int cStepsWidth = 320;
constexpr int cNameWidth = 200;

} // namespace

Start_Page::Start_Page(const QList<QAction*>& actions, const QList<Step>& steps, QWidget* parent)
    : QWidget(parent),
      mBack(new QPushButton),
      mButtons(Page_Parts::makeButtons(actions)),
      mFavoriteTitle(Page_Parts::makeHeading(tr("Favoriten"))),
      mFavorites(new Project_List(tr("Favoriten"))),
      mRecentHint(new QLabel(actions.isEmpty()
                                 ? tr("Es ist kein Projekt geöffnet.")
                                 : tr("Noch kein Projekt geöffnet. Den ersten Blick gibt das Demo-Projekt."))),
      mRecent(new Project_List(tr("Zuletzt geöffnet"))) {
  mRecentHint->setWordWrap(true);
  mBack->setAutoDefault(true);

  auto* const content = new QWidget;
  content->setMaximumWidth(cContentWidth);
  auto* const column = new QVBoxLayout(content);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(cGap);
  auto* const title = new QHBoxLayout;
  auto* const mark = new QLabel;
  mark->setPixmap(QIcon(QStringLiteral(":/icons/quarna-studio-256.png")).pixmap(cMarkSize));
  title->addWidget(mark);
  title->addWidget(Page_Parts::makeHeading(QStringLiteral("Quarna-Studio")), 1);
  column->addLayout(title);
  column->addWidget(mBack, 0, Qt::AlignLeft);
  column->addLayout(mButtons);
  column->addSpacing(cGap);
  auto* const body = new QHBoxLayout;
  body->setSpacing(2 * Page_Parts::cMargin);
  body->addWidget(makeLists(), 1);
  if (!steps.isEmpty()) {
    body->addWidget(makeSteps(steps), 0, Qt::AlignTop);
  }
  column->addLayout(body, 1);

  auto* const page = new QWidget;
  auto* const row = new QHBoxLayout(page);
  row->setContentsMargins(0, 0, 0, 0);
  page->setContentsMargins(Page_Parts::cMargin, Page_Parts::cMargin, Page_Parts::cMargin, Page_Parts::cMargin);
  row->addStretch(1);
  row->addWidget(content, 100);
  row->addStretch(1);
  Page_Parts::setContent(*this, page);

  connect(mBack, &QPushButton::clicked, this, &Start_Page::backRequested);
  connectList(*mFavorites);
  connectList(*mRecent);
  connect(mFavorites, &Project_List::removeWanted, this, &Start_Page::removeFavoriteWanted);
  connect(mRecent, &Project_List::removeWanted, this, &Start_Page::removeRecentWanted);
  setProjects({}, {});
  setOpenProject({});
}

void Start_Page::connectList(Project_List& list) {
  connect(&list, &Project_List::chosen, this, &Start_Page::projectChosen);
  connect(&list, &Project_List::favoriteWanted, this, &Start_Page::favoriteWanted);
}

QWidget* Start_Page::makeLists() {
  auto* const lists = new QWidget;
  auto* const column = new QVBoxLayout(lists);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(cGap);
  column->addWidget(mFavoriteTitle);
  column->addWidget(mFavorites);
  column->addWidget(Page_Parts::makeHeading(tr("Zuletzt geöffnet")));
  column->addWidget(mRecentHint);
  column->addWidget(mRecent);
  auto* const note =
      new QLabel(tr("Eine Projektdatei (.zpro) öffnet sich auch, wenn sie auf das Fenster gezogen wird."));
  note->setWordWrap(true);
  Theme::setTextRole(*note, Theme::Role::SecondaryText);
  column->addWidget(note);
  note->setHidden(!mButtons->itemAt(0)->widget()); // where nothing can be begun, nothing can be dropped
  column->addStretch(1);
  return lists;
}

QWidget* Start_Page::makeSteps(const QList<Step>& steps) {
  auto* const box = new QWidget;
  box->setFixedWidth(cStepsWidth);
  auto* const column = new QVBoxLayout(box);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(cGap);
  column->addWidget(Page_Parts::makeHeading(tr("Erste Schritte")));
  for (qsizetype i = 0; i < steps.size(); ++i) {
    auto* const text = new QLabel(QStringLiteral("%1. %2").arg(i + 1).arg(steps[i].mText));
    text->setWordWrap(true);
    column->addWidget(text);
    column->addLayout(Page_Parts::makeButtons({steps[i].mAction}));
  }
  return box;
}

void Start_Page::setProjects(const QStringList& recent, const QStringList& favorites) {
  mFavorites->setProjects(favorites, favorites);
  mFavorites->setVisible(!favorites.isEmpty());
  mFavoriteTitle->setVisible(!favorites.isEmpty());
  mRecent->setProjects(recent, favorites);
  mRecent->setVisible(!recent.isEmpty());
  mRecentHint->setVisible(recent.isEmpty());
}

void Start_Page::setOpenProject(const QString& name) {
  const QString shown = fontMetrics().elidedText(name, Qt::ElideMiddle, cNameWidth).replace(u'&', QStringLiteral("&&"));
  mBack->setText(tr("Zurück zu \"%1\"").arg(shown));
  mBack->setToolTip(Model_Roles::toolTip(name).toString());
  mBack->setVisible(!name.isEmpty());
}

void Start_Page::enter() {
  QWidget* const first = mBack->isHidden() ? mButtons->itemAt(0)->widget() : mBack;
  if (first) {
    first->setFocus(Qt::ShortcutFocusReason);
  }
}
