#pragma once

#include <QDialog>

class Checked_Line_Edit;

/// Asks for another name of an internal variable, which it then has at every pin.
class FB_Variable_Name_Dialog : public QDialog {
  Q_OBJECT

public:
  explicit FB_Variable_Name_Dialog(const QString& name, QWidget* parent = nullptr);

  /// As `Variable_Edits::rename` takes it.
  [[nodiscard]] QString name() const;

private:
  Checked_Line_Edit* mName;
};
