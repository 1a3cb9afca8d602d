#pragma once

#include "net/Controller_Records.h"
#include "net/dialogs/Controller_Dialog.h"
#include "net/dialogs/Controller_File.h"

#include <functional>

class Backup_List_View;

/// A dialog about the backups that the controller keeps: the list, and beside it what can be done with the selected
/// one.
class Backup_Dialog : public Controller_Dialog {
  Q_OBJECT

protected:
  using Backup = DB_Backup_List::Backup;

  Backup_Dialog(const Controller_Access& access, const QString& title, const QString& name, QWidget* parent);

  void addCommand(const QString& text, const QString& icon, const std::function<void(const Backup&)>& run);
  /// Loads bytes of a backup and hands them over with the path that the user chose before.
  void loadToFile(const Backup& backup, const Stream_Load::What& what, const Controller_File::Kind& kind,
                  const std::function<void(const QString& path, const QByteArray& bytes)>& store);
  void storeBytes(const QString& path, const QByteArray& bytes);
  /// True when the user agrees.
  [[nodiscard]] bool ask(const QString& text);

  void read() override;
  void updateState() override;
  [[nodiscard]] Backup_List_View& list() { return *mList; }

private:
  Backup_List_View* mList;
  QVBoxLayout* mCommands;
  std::vector<QPushButton*> mButtons; ///< those for the selected one
};
