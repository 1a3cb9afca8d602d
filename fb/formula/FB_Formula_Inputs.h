#pragma once

#include <QWidget>

#include <vector>

class DB_FB_Control;
class Checked_Line_Edit;
class Elided_Label;

/// The inputs of a formula's block: what each is bound to, and the value with which the formula is tried out.
class FB_Formula_Inputs : public QWidget {
  Q_OBJECT

public:
  explicit FB_Formula_Inputs(QWidget* parent = nullptr);

  /// The values stay.
  void show(const DB_FB_Control& block, int inputs);
  /// Of the inputs that are shown; what is no number counts as 0.
  [[nodiscard]] std::vector<double> values() const;

signals:
  void valuesChanged();

private:
  struct Row {
    QWidget* mLabel = nullptr;
    Elided_Label* mBinding = nullptr;
    Checked_Line_Edit* mValue = nullptr;
  };
  std::vector<Row> mRows;
  int mShown = 0;
};
