#pragma once

#include "db/DB_Address_Binding.h"
#include "fb/properties/FB_Dev_Properties_LineEdit.h"

#include <QUuid>

class Address_Tree;
class QStringListModel;

/// A field for a group address: its number or its name is typed, with proposals for both, or it is dropped here. The
/// tree outlives it.
class FB_Address_Edit : public FB_Dev_Properties_LineEdit {
  Q_OBJECT

public:
  /// Proposals at most.
  static constexpr int cMostMatches = 20;

  explicit FB_Address_Edit(const Address_Tree& addresses, QWidget* parent = nullptr);

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
  [[nodiscard]] QUuid keyOf(const QString& text) const;

  const Address_Tree& mAddresses;
  QStringListModel* mProposals;
};
