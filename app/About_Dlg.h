#pragma once

#include <QDialog>

/// What this program is and which version of it runs.
class About_Dlg : public QDialog {
  Q_OBJECT

public:
  explicit About_Dlg(QWidget* parent);
};
