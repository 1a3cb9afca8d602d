#pragma once

#include "db/Address_Usage_Model.h"
#include "db/Address_Use_Model.h"
#include "ui/Result_Dialog.h"

class QComboBox;

/// Searches group addresses by their use: those that are used nowhere, those that are used with the places where, or
/// the places of certain addresses.
class Address_Search_Dialog : public Result_Dialog {
  Q_OBJECT

public:
  /// Session and settings outlive the window.
  Address_Search_Dialog(Project_Session& session, App_Settings& settings, QWidget* parent = nullptr);

protected:
  void refresh() override;
  void applyFilter() override;
  [[nodiscard]] Result_List& mainList() override;

private:
  enum class Search { Unused, Used, Uses };

  [[nodiscard]] Search search() const;
  void makeChoice();
  void makeLists();
  void onSearchChanged();
  void showUsesOfSelected();
  void updateTexts();
  [[nodiscard]] QString countText() const;
  [[nodiscard]] QString emptyText() const;

  Address_Usage_Model mAddresses;
  Address_Use_Model mUses;
  QComboBox* mChoice;
  Result_List* mAddressList;
  Result_List* mUseList;
};
