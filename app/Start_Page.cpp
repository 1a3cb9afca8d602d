#include "app/Start_Page.h"

#include "app/Page_Parts.h"
#include "ui/Theme.h"

#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

constexpr int cMarkSize = 48;
constexpr int cContentWidth = 640;
constexpr int cNameWidth = 200;
/// Above and below a row's text together.
constexpr int cRowSpace = 12;

QTreeWidget* makeList() {
  auto* const list = new QTreeWidget;
  list->setColumnCount(2);
  list->setHeaderHidden(true);
  list->setRootIsDecorated(false);
  list->setUniformRowHeights(true);
  list->setAlternatingRowColors(true);
  list->setTextElideMode(Qt::ElideMiddle);
  list->header()->resizeSection(0, cNameWidth);
  return list;
}

} // namespace

Start_Page::Start_Page(const QList<QAction*>& actions, QWidget* parent)
    : QWidget(parent),
      mBack(new QPushButton),
      mRecentHint(new QLabel(tr("Noch kein Projekt geöffnet. Den ersten Blick gibt das Demo-Projekt."))),
      mRecent(makeList()) {
  mRecent->setAccessibleName(tr("Zuletzt geöffnet"));
  mRecentHint->setWordWrap(true);

  mBack->setAutoDefault(true);
  auto* const content = new QWidget;
  content->setMaximumWidth(cContentWidth);
  auto* const column = new QVBoxLayout(content);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(12);
  auto* const title = new QHBoxLayout;
  auto* const mark = new QLabel;
  mark->setPixmap(QIcon(QStringLiteral(":/icons/quarna-studio-256.png")).pixmap(cMarkSize));
  title->addWidget(mark);
  title->addWidget(Page_Parts::makeHeading(QStringLiteral("Quarna-Studio")), 1);
  column->addLayout(title);
  column->addWidget(mBack, 0, Qt::AlignLeft);
  column->addLayout(Page_Parts::makeButtons(actions));
  column->addWidget(Page_Parts::makeHeading(tr("Zuletzt geöffnet")));
  column->addWidget(mRecentHint);
  column->addWidget(mRecent, 100);
  column->addStretch();
  column->addWidget(
      new QLabel(tr("Eine Projektdatei (.zpro) öffnet sich auch, wenn sie auf das Fenster gezogen wird.")));

  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(Page_Parts::cMargin, Page_Parts::cMargin, Page_Parts::cMargin, Page_Parts::cMargin);
  row->addStretch(1);
  row->addWidget(content, 100);
  row->addStretch(1);

  connect(mBack, &QPushButton::clicked, this, &Start_Page::backRequested);
  // Which of the two a click causes is a matter of the style.
  connect(mRecent, &QTreeWidget::itemClicked, this, &Start_Page::onItemChosen);
  connect(mRecent, &QTreeWidget::itemActivated, this, &Start_Page::onItemChosen);
  setRecentProjects({});
  setOpenProject({});
}

void Start_Page::setRecentProjects(const QStringList& paths) {
  mRecent->clear();
  for (const QString& path : paths) {
    const QFileInfo info(path);
    const QString folder = QDir::toNativeSeparators(info.absolutePath());
    auto* const item = new QTreeWidgetItem(mRecent, {info.completeBaseName(), folder});
    item->setData(0, Qt::UserRole, path);
    item->setSizeHint(0, {0, fontMetrics().height() + cRowSpace});
    item->setForeground(1, Theme::color(Theme::Role::SecondaryText));
    QString tip = QDir::toNativeSeparators(path);
    if (!info.exists()) {
      tip += u'\n' + tr("Die Datei wurde nicht gefunden.");
      item->setText(0, tr("%1 (fehlt)").arg(item->text(0)));
      item->setForeground(0, Theme::color(Theme::Role::DisabledText));
      item->setForeground(1, Theme::color(Theme::Role::DisabledText));
    }
    item->setToolTip(0, tip);
    item->setToolTip(1, tip);
  }
  mRecent->setVisible(!paths.isEmpty());
  mRecentHint->setVisible(paths.isEmpty());
}

void Start_Page::setOpenProject(const QString& name) {
  const QString shown = fontMetrics().elidedText(name, Qt::ElideMiddle, cNameWidth).replace(u'&', QStringLiteral("&&"));
  mBack->setText(tr("&Zurück zu \"%1\"").arg(shown));
  mBack->setToolTip(name);
  mBack->setVisible(!name.isEmpty());
}

void Start_Page::onItemChosen(QTreeWidgetItem* item) {
  if (mIsChosen) {
    return;
  }
  mIsChosen = true;
  // Opening changes this list, so the list's own signal must be over.
  QTimer::singleShot(0, this, [this, path = item->data(0, Qt::UserRole).toString()] {
    mIsChosen = false;
    emit recentChosen(path);
  });
}
