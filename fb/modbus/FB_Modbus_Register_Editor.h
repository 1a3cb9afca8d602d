#pragma once

#include "fb/FB_Block_Editor.h"

#include <QList>

class Empty_Hint;
class FB_Modbus_Model;
class Filter_Edit;
class QAction;
class QLabel;
class QSortFilterProxyModel;
class QStackedWidget;
class QTableView;
class QToolBar;
struct Edit_Result;

/// The registers of a Modbus master block in a table. Every edit goes to the project at once, as an undo step.
class FB_Modbus_Register_Editor : public FB_Block_Editor {
  Q_OBJECT

public:
  FB_Modbus_Register_Editor(Project_Session& session, App_Settings& settings, const QUuid& block, QWidget* parent);
  ~FB_Modbus_Register_Editor() override;

  [[nodiscard]] bool finish() override;
  void follow() override;

private:
  QAction* addCommand(QToolBar* bar, const QString& text, const QString& icon, const QKeySequence& key,
                      void (FB_Modbus_Register_Editor::*onCommand)());
  void makeCommands();
  void makeTable();
  void makeBody();
  /// Of the model, in order.
  [[nodiscard]] QList<int> selected() const;
  void select(const QList<int>& rows);
  /// Tells the refusal, else shows the records anew and selects these rows.
  void show(const Edit_Result& result, const QList<int>& rows);
  void update();
  void tell(const QString& text, bool isError);

  void onAdd();
  void onDuplicate();
  void onRemove();
  void onUp();
  void onDown();
  void onCopy();
  void onPaste();
  void onUndo();
  void onRedo();

  FB_Modbus_Model* mModel;
  QSortFilterProxyModel* mFilterModel;
  Filter_Edit* mFilter;
  QTableView* mTable;
  Empty_Hint* mHint;
  QStackedWidget* mPages;
  QLabel* mMessage;
  QLabel* mCount;
  QAction* mAdd = nullptr;
  QAction* mPaste = nullptr;
  QAction* mCopy = nullptr;
  QList<QAction*> mOfSelection; ///< commands that change the selected registers
  QList<QAction*> mMoves;
};
