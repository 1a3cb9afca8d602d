#pragma once

#include "net/dialogs/Exchange_Runner.h"
#include "net/dialogs/Request_Queue.h"

#include <QDialog>

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QVBoxLayout;

/// A dialog that shows something of the controller, which it asks for when it opens and when "Aktualisieren" is
/// pressed. Its size is remembered. While the link is down it stays open, says so and does nothing.
class Controller_Dialog : public QDialog {
  Q_OBJECT

public:
  ~Controller_Dialog() override;

protected:
  /// `name` is the one under which the size is remembered.
  Controller_Dialog(const Controller_Access& access, const QString& title, const QString& name, const QSize& size,
                    QWidget* parent);

  /// Adds to `queue` what the dialog shows.
  virtual void read() = 0;
  /// Whether its buttons can be used now, see `isUsable`.
  virtual void updateState() = 0;

  /// The link is there and nothing is being read.
  [[nodiscard]] bool isUsable() const;
  void readAgain();
  /// A line at the bottom: what was done.
  void setNote(const QString& text);
  void setFailure(const QString& text);

  [[nodiscard]] const Controller_Access& access() const { return mAccess; }
  [[nodiscard]] Exchange_Runner& runner() { return *mRunner; }
  [[nodiscard]] Request_Queue& queue() { return *mQueue; }
  /// Above the line and the buttons.
  [[nodiscard]] QVBoxLayout& rows() { return *mRows; }

  void showEvent(QShowEvent* event) override;
  /// While that field has the keyboard, Enter presses the button instead of closing the dialog.
  void giveEnter(QLineEdit& field, QPushButton& button);
  bool eventFilter(QObject* object, QEvent* event) override;

private:
  void onLinkChanged();
  void updateAll();

  Controller_Access mAccess;
  Exchange_Runner* mRunner;
  Request_Queue* mQueue;
  QVBoxLayout* mRows;
  QLabel* mNote;
  QPushButton* mRefresh;
  QPushButton* mClose;
  QPushButton* mEnterButton = nullptr;
};
