#pragma once

#include <QTreeWidget>

/// The contents of the help: the topics, then the block types below their categories.
class FB_Help_Contents : public QTreeWidget {
  Q_OBJECT

public:
  explicit FB_Help_Contents(QWidget* parent = nullptr);

  /// Makes the page the current entry, without telling that it was chosen.
  void showPage(const QString& page);

signals:
  void pageChosen(const QString& page);

private:
  void addPage(QTreeWidgetItem& parent, const QString& page);

  QHash<QString, QTreeWidgetItem*> mItems; ///< by page
};
