#pragma once

#include "db/Address_Usage.h"
#include "db/DB_Address_Binding.h"
#include "fb/properties/FB_Dev_Properties_LineEdit.h"

#include <QUuid>

class ProjectDatabase;
class QStringListModel;

/// A field for a group address: its number or its name is typed, with proposals for both, or it is dropped here. The
/// database outlives it.
class FB_Address_Edit : public FB_Dev_Properties_LineEdit {
  Q_OBJECT

public:
  explicit FB_Address_Edit(const ProjectDatabase& database, QWidget* parent = nullptr);

  /// "1/2/3 Licht"; the name of a variable; empty when nothing is bound.
  [[nodiscard]] static QString textOf(const DB_Address_Binding& binding);

public slots:
  /// Chooses none, if there is one.
  void takeOff();

signals:
  /// Null for none.
  void addressChosen(const QUuid& key);
  /// What was typed is no group address of the project; the German text says so.
  void refused(const QString& text);

protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

private:
  void propose(const QString& text);
  void choose();

  const ProjectDatabase& mDatabase;
  const Address_Usage mNoVariables; ///< so that only group addresses are found
  QStringListModel* mProposals;
};
