#pragma once

#include "net/dialogs/Backup_Dialog.h"

class QLineEdit;

/// The controller's backups ("Backup Steuerung"): make one, store one in a file, delete one.
class Dev_BackupController_Dlg : public Backup_Dialog {
  Q_OBJECT

public:
  Dev_BackupController_Dlg(const Controller_Access& access, QWidget* parent);

protected:
  void updateState() override;

private:
  void onMake();
  void onFetch(const Backup& backup);
  void onDelete(const Backup& backup);

  QLineEdit* mDescription;
  QPushButton* mMake;
};
