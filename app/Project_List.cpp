#include "app/Project_List.h"

#include "db/Model_Roles.h"
#include "ui/Theme.h"

#include <QAction>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLocale>
#include <QTimer>

#include <algorithm>

namespace {

enum Column { cStar, cName, cFolder, cColumnCount };

constexpr int cStarWidth = 32;
constexpr int cMostRows = 12;
/// Above and below a row's text together.
constexpr int cRowSpace = 12;

} // namespace

Project_List::Project_List(const QString& accessibleName, QWidget* parent)
    : QTreeWidget(parent),
      mOpen(new QAction(tr("Ö&ffnen"), this)),
      mFavorite(new QAction(this)),
      mRemove(new QAction(tr("Aus der Liste &entfernen"), this)) {
  setAccessibleName(accessibleName);
  setColumnCount(cColumnCount);
  setHeaderHidden(true);
  setRootIsDecorated(false);
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setTextElideMode(Qt::ElideMiddle);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
  header()->setStretchLastSection(false);
  header()->setMinimumSectionSize(cStarWidth);
  header()->resizeSection(cStar, cStarWidth);
  // The names share the width with the folders, so that both are seen in the smallest window.
  header()->setSectionResizeMode(cName, QHeaderView::Stretch);
  header()->setSectionResizeMode(cFolder, QHeaderView::Stretch);

  mRemove->setShortcut(QKeySequence::Delete);
  mFavorite->setShortcut(QKeySequence(Qt::Key_Space));
  for (QAction* const action : {mOpen, mFavorite, mRemove}) {
    action->setShortcutContext(Qt::WidgetShortcut);
    addAction(action);
  }
  setContextMenuPolicy(Qt::ActionsContextMenu);
  connect(mOpen, &QAction::triggered, this, [this] { choose(currentPath()); });
  connect(mFavorite, &QAction::triggered, this,
          [this] { emit favoriteWanted(currentPath(), !isFavorite(currentPath())); });
  connect(mRemove, &QAction::triggered, this, [this] { emit removeWanted(currentPath()); });

  // Which of the two a click causes is a matter of the style.
  connect(this, &QTreeWidget::itemClicked, this, &Project_List::onClicked);
  connect(this, &QTreeWidget::itemActivated, this, &Project_List::onClicked);
  connect(this, &QTreeWidget::currentItemChanged, this, &Project_List::updateCommands);
  updateCommands();
}

void Project_List::setProjects(const QStringList& paths, const QStringList& favorites) {
  const QString current = currentPath();
  mFavorites = favorites;
  clear();
  for (const QString& path : paths) {
    auto* const item = new QTreeWidgetItem(this);
    fill(*item, path);
    if (path == current) {
      setCurrentItem(item);
    }
  }
  updateGeometry();
}

void Project_List::fill(QTreeWidgetItem& item, const QString& path) const {
  const QFileInfo info(path);
  const QString native = QDir::toNativeSeparators(path);
  const bool isPinned = isFavorite(path);
  item.setData(cName, Qt::UserRole, path);
  item.setText(cName, info.exists() ? info.completeBaseName() : tr("%1 (fehlt)").arg(info.completeBaseName()));
  item.setText(cFolder, QDir::toNativeSeparators(info.absolutePath()));
  item.setIcon(cStar, Theme::icon(isPinned ? QStringLiteral("star_filled_white") : QStringLiteral("star_white")));
  item.setToolTip(cStar, isPinned ? tr("Aus den Favoriten nehmen") : tr("Zu den Favoriten nehmen"));
  const QString note = info.exists()
                           ? tr("Geändert: %1").arg(QLocale().toString(info.lastModified(), QLocale::ShortFormat))
                           : tr("Die Datei wurde nicht gefunden.");
  const QString tip = Model_Roles::toolTip(native).toString() + QStringLiteral("<br>") + note;
  for (int column = cName; column < cColumnCount; ++column) {
    const bool isSecond = column != cName;
    item.setToolTip(column, tip);
    item.setForeground(column, Theme::color(!info.exists() ? Theme::Role::DisabledText
                                            : isSecond     ? Theme::Role::SecondaryText
                                                           : Theme::Role::Text));
  }
  item.setData(cStar, Qt::AccessibleTextRole, isPinned ? tr("Favorit") : QString());
  item.setSizeHint(cName, {0, fontMetrics().height() + cRowSpace});
}

QString Project_List::currentPath() const {
  return currentItem() ? currentItem()->data(cName, Qt::UserRole).toString() : QString();
}

void Project_List::updateCommands() {
  const QString path = currentPath();
  for (QAction* const action : {mOpen, mFavorite, mRemove}) {
    action->setEnabled(!path.isEmpty());
  }
  mFavorite->setText(isFavorite(path) ? tr("Aus den Fa&voriten nehmen") : tr("Zu den Fa&voriten nehmen"));
}

void Project_List::onClicked(QTreeWidgetItem* item, int column) {
  const QString path = item->data(cName, Qt::UserRole).toString();
  if (column != cStar) {
    choose(path);
  } else if (!mIsChosen) {
    mIsChosen = true;
    QTimer::singleShot(0, this, [this, path] {
      mIsChosen = false;
      emit favoriteWanted(path, !isFavorite(path));
    });
  }
}

void Project_List::choose(const QString& path) {
  if (mIsChosen || path.isEmpty()) {
    return;
  }
  mIsChosen = true;
  // Opening changes this list, so the list's own signal must be over.
  QTimer::singleShot(0, this, [this, path] {
    mIsChosen = false;
    emit chosen(path);
  });
}

/// Enter opens, in whatever column one is.
void Project_List::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    choose(currentPath());
  } else {
    QTreeWidget::keyPressEvent(event);
  }
}

QSize Project_List::sizeHint() const {
  const int rows = std::clamp(topLevelItemCount(), 1, cMostRows);
  return {QTreeWidget::sizeHint().width(), rows * (fontMetrics().height() + cRowSpace) + 2 * frameWidth()};
}

QSize Project_List::minimumSizeHint() const {
  return {QTreeWidget::minimumSizeHint().width(), fontMetrics().height() + cRowSpace + 2 * frameWidth()};
}
