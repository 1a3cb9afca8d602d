#pragma once

#include "db/Address_Edits.h"

#include <QDialog>

class Checked_Line_Edit;

/// Asks for the value of one text field, which is then set for all selected addresses.
class Address_Field_Dialog : public QDialog {
  Q_OBJECT

public:
  /// Of a field that is a text.
  explicit Address_Field_Dialog(Address_Edits::Field field, QWidget* parent = nullptr);

  void setText(const QString& text);
  /// As `Address_Edits::set` takes it.
  [[nodiscard]] QString text() const;

private:
  Checked_Line_Edit* mEdit;
};
