#pragma once

#include <QDialog>

class Dev_Statistic_Dlg_Model;
class Project_Session;
class QLabel;
class QPushButton;
class QTreeView;
class QVBoxLayout;

/// Edits the project's recordings ("Aufzeichnung"). It works on a copy that it writes back as one undo step when it is
/// accepted. What may not be is marked in its cell, its reason stands below the table, and the list cannot be taken
/// over; neither in the operating mode, which may begin while it is open. It closes with the project.
class Dev_Statistic_Dlg : public QDialog {
  Q_OBJECT

public:
  /// The session outlives the dialog.
  explicit Dev_Statistic_Dlg(Project_Session& session, QWidget* parent = nullptr);

  void accept() override;

private:
  void makeTable();
  [[nodiscard]] QVBoxLayout* makeCommands();
  QPushButton* makeCommand(const QString& text, const QString& icon, QVBoxLayout& layout,
                           void (Dev_Statistic_Dlg::*slot)());
  void follow();
  void onAdd();
  void onDuplicate();
  void onRemove();
  void onUp();
  void onDown();
  void select(int row);
  void updateState();

  Project_Session& mSession;
  Dev_Statistic_Dlg_Model* mModel;
  QTreeView* mTable;
  QLabel* mNote;
  QLabel* mReason;
  QPushButton* mDuplicate = nullptr;
  QPushButton* mRemove = nullptr;
  QPushButton* mUp = nullptr;
  QPushButton* mDown = nullptr;
  QPushButton* mAccept = nullptr;
};
