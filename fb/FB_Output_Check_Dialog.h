#pragma once

#include "db/Address_Use_Model.h"
#include "ui/Result_Dialog.h"

/// Lists the group addresses and internal variables that more than one output of the logic pages writes, with these
/// outputs, and leads there.
class FB_Output_Check_Dialog : public Result_Dialog {
  Q_OBJECT

public:
  /// Session and settings outlive the window.
  FB_Output_Check_Dialog(Project_Session& session, App_Settings& settings, QWidget* parent = nullptr);

protected:
  void refresh() override;
  void applyFilter() override;
  [[nodiscard]] Result_List& mainList() override { return *mList; }

private:
  void makeList();
  void updateTexts();

  Address_Use_Model mOutputs;
  int mSubjects = 0;
  Result_List* mList;
};
