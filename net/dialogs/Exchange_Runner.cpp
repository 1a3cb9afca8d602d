#include "net/dialogs/Exchange_Runner.h"

#include "net/Controller_Link.h"
#include "net/dialogs/Controller_Questions.h"

Exchange_Runner::Exchange_Runner(const Controller_Access& access, QWidget& window)
    : QObject(&window),
      mAccess(access),
      mWindow(window) {}

Exchange_Runner::~Exchange_Runner() {
  delete mDialog;
}

bool Exchange_Runner::isReady() {
  if (isBusy()) {
    return false;
  }
  if (!mAccess.mLink.isOnline()) {
    mAccess.mQuestions.showMessage(&mWindow, tr("Keine Verbindung zur Steuerung"));
    return false;
  }
  return true;
}

void Exchange_Runner::cancel() {
  if (mDialog) {
    mDialog->reject();
  }
}

void Exchange_Runner::request(const QString& title, const Request& request,
                              const std::function<void(Controller_Request&)>& done) {
  const auto make = [access = mAccess, request] {
    auto exchange = std::make_unique<Controller_Request>(access.mLink.client(), request.mCommand, request.mPayload,
                                                         request.mReply, request.mLabel);
    exchange->setTimeout(access.mTimeoutMs);
    return exchange;
  };
  run<Controller_Request>(title, make, done);
}

void Exchange_Runner::load(const QString& title, const Stream_Load::What& what,
                           const std::function<void(const QByteArray&)>& done) {
  const auto make = [access = mAccess, what] {
    auto exchange = std::make_unique<Stream_Load>(access.mLink.client(), what);
    exchange->setTimeout(access.mTimeoutMs);
    return exchange;
  };
  // A copy: what is done with the bytes may ask, and the exchange be gone meanwhile.
  run<Stream_Load>(title, make, [done](Stream_Load& load) { done(QByteArray(load.bytes())); });
}

void Exchange_Runner::runDialog(Exchange_Dialog* dialog, const std::function<void(Controller_Exchange&)>& done) {
  if (!isReady()) {
    delete dialog;
    return;
  }
  mDialog = dialog;
  connect(dialog, &QDialog::finished, this, [this, dialog, done](int result) {
    mDialog.clear();
    // Not inside the dialog's own signal: what is done may open a box, and the window go meanwhile.
    QMetaObject::invokeMethod(
        this,
        [dialog = QPointer<Exchange_Dialog>(dialog), done, result] {
          if (dialog && result == QDialog::Accepted) {
            done(*dialog->exchange());
          }
          if (dialog) {
            dialog->deleteLater();
          }
        },
        Qt::QueuedConnection);
  });
  dialog->start();
}
