#pragma once

#include "fb/FB_Block_Editor.h"

class FB_Formula_Edit;
class FB_Formula_Inputs;
class FB_Formula_List;
class QLabel;
class QPushButton;

/// Edits the formula of a block: checked while it is typed, tried out with values for its inputs. What is typed goes to
/// the project with "OK" or "Übernehmen", as one undo step. While nothing is typed it follows the project.
class FB_Formula_Editor : public FB_Block_Editor {
  Q_OBJECT

public:
  FB_Formula_Editor(Project_Session& session, App_Settings& settings, const QUuid& block, QWidget* parent);
  ~FB_Formula_Editor() override;

  [[nodiscard]] bool isUnsaved() const override;
  [[nodiscard]] bool finish() override;
  void follow() override;

private:
  [[nodiscard]] QWidget* makeLeft();
  [[nodiscard]] QWidget* makeButtons();
  /// The text is checked and computed anew.
  void update();
  void updateMode();
  /// False when the project refuses it or the user wants to mend it.
  bool apply();
  [[nodiscard]] QString stored() const;
  [[nodiscard]] int inputs() const;
  [[nodiscard]] int decimals() const;

  FB_Formula_Edit* mEdit;
  FB_Formula_Inputs* mInputs;
  FB_Formula_List* mList;
  QLabel* mFaultIcon;
  QLabel* mFault;
  QLabel* mResult;
  QLabel* mBit;
  QLabel* mError;
  QPushButton* mApply = nullptr;
  QString mStored; ///< what was shown last of the project
};
