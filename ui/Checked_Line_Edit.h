#pragma once

#include <QLineEdit>
#include <QPointer>

#include <functional>

class QLabel;

/// A line of text that is checked while it is typed: what may not be is framed and its reason stands below the field as
/// long as the field has the focus.
class Checked_Line_Edit : public QLineEdit {
  Q_OBJECT

public:
  /// Why the text may not be (German); empty when it may.
  using Check = std::function<QString(const QString& text)>;

  explicit Checked_Line_Edit(Check check, QWidget* parent = nullptr);
  ~Checked_Line_Edit() override;

  [[nodiscard]] bool isValid() const { return mReason.isEmpty(); }
  [[nodiscard]] QString reason() const { return mReason; }

  /// Checks again, when something other than the text decides.
  void recheck();

signals:
  void validityChanged();

protected:
  bool event(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

  /// Shows or hides the reason, as it is now.
  void showReason();
  [[nodiscard]] virtual bool mayShowReason() const;

private:
  Check mCheck;
  QString mReason;
  QPointer<QLabel> mLabel; ///< of the window, so that it may stand outside of a narrow parent
};
