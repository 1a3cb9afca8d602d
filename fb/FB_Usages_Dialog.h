#pragma once

#include "db/Address_Use_Model.h"
#include "ui/Result_Dialog.h"

/// Lists where a group address, an internal variable or a type of blocks is used, and leads there.
class FB_Usages_Dialog : public Result_Dialog {
  Q_OBJECT

public:
  /// Session and settings outlive the window.
  FB_Usages_Dialog(Project_Session& session, App_Settings& settings, QWidget* parent = nullptr);

  /// Of a group address or an internal variable.
  void showUses(const QUuid& key);
  void showType(int type);

protected:
  void refresh() override;
  void applyFilter() override;
  [[nodiscard]] Result_List& mainList() override { return *mList; }

private:
  [[nodiscard]] QString subject();
  void updateTexts();

  QUuid mKey;
  int mType = 0;        ///< asked for while `mKey` is null
  QString mLastSubject; ///< of a variable that is used no more
  Address_Use_Model mUses;
  Result_List* mList;
};
