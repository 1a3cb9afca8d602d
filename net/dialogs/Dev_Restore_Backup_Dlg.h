#pragma once

#include "net/dialogs/Backup_Dialog.h"

class QRadioButton;

/// Brings a backup back to the controller ("Sicherung wiederherstellen"), all of it or a part, or loads a part of it
/// into a file.
class Dev_Restore_Backup_Dlg : public Backup_Dialog {
  Q_OBJECT

public:
  Dev_Restore_Backup_Dlg(const Controller_Access& access, QWidget* parent);

signals:
  /// The bytes of a backup's project; the user wants them in that file.
  void projectLoaded(const QString& path, const QByteArray& bytes);

private:
  void onRestore(const Backup& backup);
  void onLoadProject(const Backup& backup);
  void onLoadValues(const Backup& backup);

  QRadioButton* mAll;
  QRadioButton* mProject;
  QRadioButton* mValues;
};
