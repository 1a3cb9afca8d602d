#pragma once

#include "base/Setting_Table.h"

#include <QWidget>

#include <optional>

class App_Settings;
class Empty_Hint;
class FB_Catalogue_Search;
class FB_Catalogue_Tree;
class QLineEdit;
class QStackedWidget;
class QToolButton;
class QTreeWidgetItem;
struct FB_Type;

/// The block catalogue: the categories of block types with a search field above, from which a type is dragged onto a
/// logic page, or inserted by double click or Enter.
class FB_Dev_New_Control : public QWidget {
  Q_OBJECT

public:
  /// The settings, which tell whether HS blocks are shown, outlive the panel.
  explicit FB_Dev_New_Control(const App_Settings& settings, QWidget* parent = nullptr);

  /// Takes the keyboard focus into the search field.
  void enter();
  /// The entry that the keyboard is on; nothing for a category.
  [[nodiscard]] std::optional<int> currentType() const;

public slots:
  /// Applies the text of the search field to the tree.
  void onSearchStart();

signals:
  /// A block of that type shall be put onto the page that is shown.
  void insertRequested(int type);

protected:
  bool eventFilter(QObject* object, QEvent* event) override;

private:
  [[nodiscard]] QWidget* makeSearchRow();
  void fill();
  void addEntry(QTreeWidgetItem& category, const FB_Type& type);
  void onSettingChanged(Setting setting);
  void onTyped(const QString& typed);
  void enterTree();

  const App_Settings& mSettings;
  QLineEdit* mField;
  QToolButton* mSearch;
  QStackedWidget* mTreeOrHint;
  FB_Catalogue_Tree* mTree;
  Empty_Hint* mHint;
};
