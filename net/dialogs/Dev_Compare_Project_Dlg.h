#pragma once

#include "net/Project_Comparison.h"

#include <QDialog>

class Session_State;

/// Tells whether the controller's project is the open one, with what both say of it in columns beside each other.
/// Accepted when the user wants the controller's project.
class Dev_Compare_Project_Dlg : public QDialog {
  Q_OBJECT

public:
  /// The state outlives the dialog.
  Dev_Compare_Project_Dlg(const Project_Comparison& comparison, const Session_State& state, QWidget* parent);
};
