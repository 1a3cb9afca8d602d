#pragma once

#include <QDialog>
#include <QUuid>

class Address_Tree_Model;
class Filter_Edit;
class Project_Session;
class QModelIndex;
class QPushButton;
class QTreeView;

/// Chooses a group address or an internal variable from all of the project, with a filter over number, name and type.
/// The session outlives it.
class FB_Address_Picker : public QDialog {
  Q_OBJECT

public:
  /// `pin` is what it is called. `current` is selected first; null for none.
  FB_Address_Picker(Project_Session& session, const QString& pin, const QUuid& current, QWidget* parent = nullptr);

  /// Of the chosen address or variable; null when the current row is none.
  [[nodiscard]] QUuid key() const;
  [[nodiscard]] bool isVariable() const;

private:
  void setUpTree();
  void onFilter(const QString& text);
  void onActivated(const QModelIndex& index);
  [[nodiscard]] QModelIndex current() const;
  [[nodiscard]] bool canBeChosen(const QModelIndex& index) const;
  /// The first row below that can be chosen.
  [[nodiscard]] QModelIndex firstBelow(const QModelIndex& parent) const;

  Address_Tree_Model* mModel;
  QTreeView* mTree;
  Filter_Edit* mFilter;
  QPushButton* mAccept;
};
