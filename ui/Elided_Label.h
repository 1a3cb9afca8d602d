#pragma once

#include <QLabel>

/// A label of one line that never asks for more width than there is: what does not fit gives way in the middle, and the
/// tool tip shows it. The context menu copies the text.
class Elided_Label : public QLabel {
  Q_OBJECT

public:
  explicit Elided_Label(QWidget* parent = nullptr);

  [[nodiscard]] QSize minimumSizeHint() const override;

protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

private:
  [[nodiscard]] QString shownText() const;
};
