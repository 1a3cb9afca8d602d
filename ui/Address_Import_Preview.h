#pragma once

#include "db/Address_Import_Plan.h"

#include <QWidget>

#include <array>

class Address_Import_Model;
class Address_Import_View;
class App_Settings;
class Empty_Hint;
class Filter_Edit;
class QLabel;
class QPushButton;
class QStackedWidget;
class Session_State;

/// The comparison of an export with the project: how many rows there are of each kind, a filter, the table, and buttons
/// for the ticks of all rows that are seen. Before there is one, a text says what belongs here.
class Address_Import_Preview : public QWidget {
  Q_OBJECT

public:
  /// The state outlives the widget.
  explicit Address_Import_Preview(const Session_State& state, QWidget* parent = nullptr);

  void setPlan(Address_Import_Plan plan);
  /// There is nothing to show; a text for why, a first step where there is one.
  void setEmpty(const QString& text, const QString& step = {});
  [[nodiscard]] const Address_Import_Plan& plan() const;
  /// Leads the keyboard into the table.
  void enterRows();

  /// Width and order of the columns.
  void saveState(App_Settings& settings) const;
  void restoreState(const App_Settings& settings);

signals:
  void ticksChanged();
  /// The button of the empty place.
  void stepRequested();

private:
  using Kind = Address_Import_Row::Kind;

  void fillHead();
  void fillFoot();
  void updateTexts();

  Address_Import_Model* mModel;
  Address_Import_View* mView;
  QWidget* mHead;
  QWidget* mFoot;
  QStackedWidget* mTableOrHint;
  Empty_Hint* mHint;
  std::array<QPushButton*, 4> mKinds{};
  QLabel* mUnchanged;
  Filter_Edit* mFilter;
  QPushButton* mAll = nullptr;
  QPushButton* mNone = nullptr;
  QLabel* mCount;
  QString mEmptyText; ///< while there is no comparison
  QString mEmptyStep;
};
