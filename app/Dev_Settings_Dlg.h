#pragma once

#include "base/Setting_Table.h"

#include <QDialog>

#include <functional>
#include <vector>

class App_Settings;
class QFormLayout;

/// The settings of the studio, made from the setting table: shown in groups, taken over with "Übernehmen". What nothing
/// reads yet is disabled and says why.
class Dev_Settings_Dlg : public QDialog {
  Q_OBJECT

public:
  /// The settings outlive the dialog.
  Dev_Settings_Dlg(App_Settings& settings, QWidget* parent);

  void accept() override;

private:
  [[nodiscard]] QWidget* makeGroup(Setting_Group group);
  void addField(QFormLayout& form, const Setting_Row& row);
  [[nodiscard]] QWidget* makeEditor(const Setting_Row& row);

  App_Settings& mSettings;
  std::vector<std::function<void()>> mStores; ///< of each field
};
