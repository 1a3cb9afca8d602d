#pragma once

#include "db/Project_Replace.h"
#include "db/Project_Search_Model.h"
#include "ui/Result_Dialog.h"

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;

/// Searches a text in the whole project while it is typed, and replaces it in names, descriptions, titles and comments.
/// Enter in the list and F3 lead to where a hit stands.
class Project_Search_Dialog : public Result_Dialog {
  Q_OBJECT

public:
  /// Session and settings outlive the window.
  Project_Search_Dialog(Project_Session& session, App_Settings& settings, QWidget* parent = nullptr);

  /// Whether the window also replaces. The search field gets the focus.
  void setReplaceMode(bool isOn);

protected:
  void refresh() override;
  void applyFilter() override;
  [[nodiscard]] Result_List& mainList() override { return *mList; }

private:
  /// Goes on to the next or previous hit of the list and chooses it.
  void onNext();
  void onPrevious();
  void makeReplaceRow();
  void makeOptions();
  void makeList();
  void makeKeys();
  [[nodiscard]] Project_Search::Query query() const;
  void choose(int row);
  void replaceAll();
  void replaceSelected();
  void replace(const std::vector<Project_Search::Hit>& hits);
  void tell(const QString& note);
  void updateTexts();
  void updateButtons();
  [[nodiscard]] QString emptyText() const;
  /// Why nothing can be replaced now; empty when something can.
  [[nodiscard]] QString whyNoReplacing() const;

  Project_Search_Model mModel;
  QWidget* mReplaceRow;
  QLineEdit* mBy;
  QPushButton* mReplace;
  QPushButton* mReplaceAll;
  QComboBox* mScope;
  QCheckBox* mMatchCase;
  QCheckBox* mWholeWords;
  Result_List* mList;
  QLabel* mNote; ///< what the last replacing did
};
