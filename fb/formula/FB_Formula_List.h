#pragma once

#include <QWidget>

class Filter_Edit;
class QLabel;
class QTreeWidget;
class QTreeWidgetItem;

/// The words of the formula language with a filter field; below the list the example of the chosen one.
class FB_Formula_List : public QWidget {
  Q_OBJECT

public:
  explicit FB_Formula_List(QWidget* parent = nullptr);

signals:
  /// By Enter or double click.
  void chosen(const QString& word, bool isFunction);

private:
  void fill();
  void filter(const QString& text);
  void showExample();
  void choose(const QTreeWidgetItem* item);

  Filter_Edit* mFilter;
  QTreeWidget* mTree;
  QLabel* mExample;
};
