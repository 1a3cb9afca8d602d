#include "ui/Address_Value_Menu.h"

#include "base/Decimal_Text.h"
#include "db/Project_Session.h"
#include "ui/Address_Value_Dialog.h"
#include "ui/Theme.h"

#include <utility>

namespace {

constexpr qsizetype cToldEvery = 10; ///< reads: five times a second

} // namespace

Address_Value_Menu::Address_Value_Menu(Project_Session& session, Keys keys, QWidget* parent)
    : QMenu(tr("&Wert senden/lesen"), parent),
      mSession(session),
      mKeysOf(std::move(keys)),
      mRead(addAction(tr("Wert &lesen"), this, [this] { onRead(); })),
      mSend(addAction(tr("Wert &senden…"), this, [this] { onSend(); })),
      mCancel(addAction(tr("Lesen &abbrechen"), this, [this] {
        if (Value_Service* const service = mSession.valueService()) {
          service->cancelReading();
        }
      })) {
  setIcon(Theme::icon(QStringLiteral("number_white")));
  setToolTipsVisible(true);
  connect(this, &QMenu::aboutToShow, this, &Address_Value_Menu::updateEntries);
  connect(&session, &Project_Session::valueServiceChanged, this, &Address_Value_Menu::onServiceChanged);
  onServiceChanged();
}

void Address_Value_Menu::onServiceChanged() {
  if (const Value_Service* const service = mSession.valueService()) {
    connect(service, &Value_Service::readProgress, this, &Address_Value_Menu::onProgress, Qt::UniqueConnection);
  }
}

void Address_Value_Menu::updateEntries() {
  mKeys = mKeysOf();
  const Value_Service* const service = mSession.valueService();
  const bool isOnline = service && service->isOnline();
  const QString offline = tr("Werte lassen sich erst mit einer Verbindung zur Steuerung lesen und senden (F11).");
  const QString nothing = tr("Es ist keine Gruppenadresse ausgewählt.");
  const auto enable = [](QAction& action, const QString& whyNot, const QString& tip) {
    action.setEnabled(whyNot.isEmpty());
    action.setToolTip(whyNot.isEmpty() ? tip : whyNot);
    action.setStatusTip(action.toolTip());
  };
  enable(*mRead,
         mKeys.isEmpty() ? nothing
         : isOnline      ? QString()
                         : offline,
         tr("Fragt den Wert am Bus ab; mehrere nacheinander, 50 in der Sekunde."));
  enable(*mSend,
         mKeys.isEmpty()     ? nothing
         : mKeys.size() != 1 ? tr("Senden lässt sich der Wert einer einzelnen Adresse.")
         : isOnline          ? QString()
                             : offline,
         tr("Sendet einen Wert an die Adresse."));
  enable(*mCancel, service && service->isReading() ? QString() : tr("Es werden keine Werte gelesen."),
         tr("Fragt die übrigen Werte nicht mehr ab."));
}

void Address_Value_Menu::onRead() {
  Value_Service* const service = mSession.valueService();
  if (!service || !service->isOnline()) {
    emit refused(tr("Keine Verbindung zur Steuerung"));
    return;
  }
  mIsReading = true;
  mTold = 0;
  service->read(mKeys);
}

/// Without a nested event loop: the click may come while the link delivers.
void Address_Value_Menu::onSend() {
  if (mKeys.size() == 1) {
    auto* const dialog = new Address_Value_Dialog(mSession, mKeys.constFirst(), parentWidget());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
  }
}

void Address_Value_Menu::onProgress(qsizetype done, qsizetype all) {
  if (!mIsReading) {
    return;
  }
  if (all == 0) {
    mIsReading = false;
    emit info(tr("Werte abgefragt: %1.").arg(Decimal_Text::count(mTold)));
    return;
  }
  const bool isDue = done % cToldEvery == 0 && done != mTold;
  mTold = done;
  if (isDue) {
    emit info(tr("Werte werden abgefragt: %1 von %2.").arg(Decimal_Text::count(done), Decimal_Text::count(all)));
  }
}
