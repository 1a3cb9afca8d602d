#pragma once

#include <QString>
#include <QWidget>

class QLabel;
class QPushButton;

/// What stands in an empty place: a text that says what belongs there and, where there is a first step, its button.
class Empty_Hint : public QWidget {
  Q_OBJECT

public:
  explicit Empty_Hint(QWidget* parent = nullptr);

  void setText(const QString& text);
  /// An empty text hides the button.
  void setStep(const QString& text);
  void setStepEnabled(bool isEnabled, const QString& toolTip = {});

signals:
  void stepRequested();

private:
  QLabel* mLabel;
  QPushButton* mStep;
};
