#pragma once

#include "db/DB_Project.h"

#include <QDialog>

#include <vector>

class Controller_List_Model;
class QLabel;
class QPushButton;
class QTreeView;

/// Asks for the controllers that run a project together ("Verteiltes Projekt"). What may not be is marked in its cell,
/// its reason stands below the table, and the list cannot be taken over.
class Controller_List_Dlg : public QDialog {
  Q_OBJECT

public:
  Controller_List_Dlg(std::vector<DB_Controller> controllers, QWidget* parent);

  [[nodiscard]] std::vector<DB_Controller> controllers() const;

private:
  [[nodiscard]] QWidget* makeTable();
  void onAdd();
  void onRemove();
  void updateState();

  Controller_List_Model* mModel;
  QTreeView* mTable;
  QLabel* mReason;
  QPushButton* mRemove = nullptr;
  QPushButton* mAccept = nullptr;
};
