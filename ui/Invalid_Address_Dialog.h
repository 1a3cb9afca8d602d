#pragma once

#include "db/Address_Use_Model.h"
#include "ui/Result_Dialog.h"

/// Lists the bindings of blocks and elements to group addresses that the project does not have (any more).
class Invalid_Address_Dialog : public Result_Dialog {
  Q_OBJECT

public:
  /// Session and settings outlive the window.
  Invalid_Address_Dialog(Project_Session& session, App_Settings& settings, QWidget* parent = nullptr);

protected:
  void refresh() override;
  void applyFilter() override;
  [[nodiscard]] Result_List& mainList() override { return *mList; }

private:
  void updateTexts();

  Address_Use_Model mBindings;
  Result_List* mList;
};
