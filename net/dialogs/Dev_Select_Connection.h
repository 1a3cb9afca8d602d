#pragma once

#include "net/dialogs/Connection_List_Model.h"

#include <QDialog>
#include <QList>

class App_Settings;
class Controller_Link;
class Empty_Hint;
class Filter_Edit;
class Project_Session;
class QLabel;
class QPushButton;
class QStackedWidget;
class Result_List;
struct Edit_Result;

/// The window "Verbindungen": the connections of the project, and which of them "connect" uses. Stays open beside the
/// work, follows every edit and closes with the project. "Verbinden" selects a connection, dials it and shows how that
/// goes. In the operating mode nothing can be edited, but any connection can be dialled.
class Dev_Select_Connection : public QDialog {
  Q_OBJECT

public:
  /// All three outlive the window.
  Dev_Select_Connection(Project_Session& session, App_Settings& settings, Controller_Link& link, QWidget* parent);
  ~Dev_Select_Connection() override;

  /// Shows the window, or brings it to the front.
  void bringUp();

private:
  [[nodiscard]] QWidget* makeList();
  [[nodiscard]] QWidget* makeCommands();
  [[nodiscard]] QPushButton* makeCommand(const QString& text, const QString& toolTip,
                                         void (Dev_Select_Connection::*slot)());
  void refresh();
  void updateState();
  void updateCount();
  [[nodiscard]] QString connectRefusal(const QList<int>& rows) const;
  [[nodiscard]] int current() const;
  [[nodiscard]] QList<int> selected() const;
  void report(const Edit_Result& edit);
  void showRow(int row);
  void onNew();
  void onEdit();
  void onDuplicate();
  void onDelete();
  void onUp();
  void onDown();
  void move(int by);
  void onSelect();
  void onSearch();
  void onConnect();

  Project_Session& mSession;
  App_Settings& mSettings;
  Controller_Link& mLink;
  Connection_List_Model mModel;
  Filter_Edit* mFilter;
  QStackedWidget* mStack;
  Result_List* mList;
  Empty_Hint* mHint;
  QLabel* mCount;
  QList<QPushButton*> mEdits; ///< what changes the project
  QPushButton* mNew = nullptr;
  QPushButton* mEdit = nullptr;
  QPushButton* mDuplicate = nullptr;
  QPushButton* mDelete = nullptr;
  QPushButton* mUp = nullptr;
  QPushButton* mDown = nullptr;
  QPushButton* mSelect = nullptr;
  QPushButton* mSearch = nullptr;
  QPushButton* mConnect = nullptr;
};
