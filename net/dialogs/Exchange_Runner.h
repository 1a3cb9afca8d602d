#pragma once

#include "net/Controller_Request.h"
#include "net/Stream_Load.h"
#include "net/dialogs/Controller_Access.h"
#include "net/dialogs/Exchange_Dialog.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>

/// Runs exchanges with the controller for a window, one at a time, each in a dialog of its own over it. Deleting the
/// runner cancels.
class Exchange_Runner : public QObject {
  Q_OBJECT

public:
  /// The window owns the runner.
  Exchange_Runner(const Controller_Access& access, QWidget& window);
  ~Exchange_Runner() override;

  /// Without a link it says so, and answers false as it does while an exchange runs.
  bool isReady();
  [[nodiscard]] bool isBusy() const { return mDialog; }
  void cancel();

  /// Calls `done` after success, from the event loop; the exchange is there until it returns or opens a box.
  template <class Exchange>
  void run(const QString& title, const std::function<std::unique_ptr<Exchange>()>& make,
           const std::function<void(Exchange&)>& done) {
    runDialog(new Exchange_Dialog(
                  title, [make]() -> std::unique_ptr<Controller_Exchange> { return make(); }, &mWindow),
              [done](Controller_Exchange& exchange) { done(static_cast<Exchange&>(exchange)); });
  }
  struct Request {
    QString mLabel; ///< tells what is waited for
    quint32 mCommand = 0;
    QByteArray mPayload;
    quint32 mReply = 0;
  };
  void request(const QString& title, const Request& request, const std::function<void(Controller_Request&)>& done);
  void load(const QString& title, const Stream_Load::What& what, const std::function<void(const QByteArray&)>& done);
  /// Takes the dialog over and starts it.
  void runDialog(Exchange_Dialog* dialog, const std::function<void(Controller_Exchange&)>& done);

private:
  Controller_Access mAccess;
  QWidget& mWindow;
  QPointer<Exchange_Dialog> mDialog;
};
