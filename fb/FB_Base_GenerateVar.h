#pragma once

#include "fb/model/FB_Variable_Generation.h"

#include <QDialog>

class QCheckBox;

/// Asks what becomes of the variables that the pins of a block have already, before new ones are made. Rejected by
/// "Abbrechen", Escape and closing.
class FB_Base_GenerateVar : public QDialog {
  Q_OBJECT

public:
  /// `block` is what it is called; it is the block of that number, from 1, of so many that are asked for.
  FB_Base_GenerateVar(const QString& block, const QStringList& variables, int number, int count,
                      QWidget* parent = nullptr);

  /// What was chosen; only when the dialog was accepted.
  [[nodiscard]] FB_Variable_Generation::Conflict choice() const { return mChoice; }
  /// Whether the choice is that for all further blocks.
  [[nodiscard]] bool isForAll() const;

private slots:
  void onOverWriteClicked();
  void onAppendClicked();
  void onCancelClicked();

private:
  FB_Variable_Generation::Conflict mChoice = FB_Variable_Generation::Conflict::Append;
  QCheckBox* mForAll;
};
