#pragma once

#include <QStringList>
#include <QTreeWidget>

class QAction;

/// Projects by their files: a star that makes one a favourite, name and folder. One whose file is gone is greyed and
/// says so.
class Project_List : public QTreeWidget {
  Q_OBJECT

public:
  explicit Project_List(const QString& accessibleName, QWidget* parent = nullptr);

  /// Paths in their order. The current row stays current where its project is still there.
  void setProjects(const QStringList& paths, const QStringList& favorites);
  /// All rows are seen, without scrolling, up to the limit.
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

signals:
  /// By click, Enter or the context menu. Comes from the event loop, so the list may be changed.
  void chosen(const QString& path);
  void favoriteWanted(const QString& path, bool isFavorite);
  void removeWanted(const QString& path);

protected:
  void keyPressEvent(QKeyEvent* event) override;

private:
  [[nodiscard]] QString currentPath() const;
  [[nodiscard]] bool isFavorite(const QString& path) const { return mFavorites.contains(path); }
  void fill(QTreeWidgetItem& item, const QString& path) const;
  void onClicked(QTreeWidgetItem* item, int column);
  void choose(const QString& path);
  void updateCommands();

  QStringList mFavorites;
  QAction* mOpen;
  QAction* mFavorite;
  QAction* mRemove;
  bool mIsChosen = false; ///< a click may come as two signals
};
