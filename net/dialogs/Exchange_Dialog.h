#pragma once

#include "net/Controller_Exchange.h"

#include <QDialog>
#include <QTimer>

#include <functional>
#include <memory>

class QLabel;
class QProgressBar;
class QPushButton;

/// Runs an exchange with the controller and shows how far it is. Shorter ones end before it appears. A failure stands
/// in the dialog and can be tried again; success ends the dialog with `accept`, cancelling (button, Escape, closing)
/// with `reject`. A dialog that is deleted cancels.
class Exchange_Dialog : public QDialog {
  Q_OBJECT

public:
  /// Makes the exchange, and another one each time it is tried again.
  using Make = std::function<std::unique_ptr<Controller_Exchange>()>;
  static constexpr int cDelayMs = 500;

  Exchange_Dialog(const QString& title, Make make, QWidget* parent);
  ~Exchange_Dialog() override;

  /// Milliseconds before it appears.
  void setDelay(int ms) { mDelay.setInterval(ms); }
  void start();
  /// The one that runs or ran last; null before `start`.
  [[nodiscard]] Controller_Exchange* exchange() const { return mExchange.get(); }
  /// Cancels while the exchange runs; the dialog ends when that has ended.
  void reject() override;

protected:
  /// The exchange has ended with success.
  virtual void onSucceeded() { accept(); }
  /// It has ended because the user wanted it so.
  virtual void onCancelled() { QDialog::reject(); }

private:
  void onProgress(const QString& label, int value, int maximum);
  void onFinished(Controller_Exchange::End end);
  void showFailure(bool isFailed);

  Make mMake;
  std::unique_ptr<Controller_Exchange> mExchange;
  bool mIsEnded = false; ///< the exchange, and it was heard of
  QTimer mDelay;
  QLabel* mSign;
  QLabel* mText;
  QProgressBar* mBar;
  QPushButton* mCancel;
  QPushButton* mRetry;
  QPushButton* mClose;
};
