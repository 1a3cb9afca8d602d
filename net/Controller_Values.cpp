#include "net/Controller_Values.h"

#include "db/Address_Value_Text.h"
#include "db/Project_Session.h"
#include "net/Controller_Command.h"
#include "net/Controller_Link.h"

#include <QDateTime>

#include <utility>

namespace {

using Telegram = DB_Address_Network_Telegram;

constexpr qint64 cMsOfSecond = 1000;

bool isOwn(const Telegram& telegram) {
  return telegram.mSourceArea == Telegram::cOwnSource && telegram.mSourceLine == Telegram::cOwnSource &&
         telegram.mSourceDevice == Telegram::cOwnSource;
}

} // namespace

Controller_Values::Controller_Values(Project_Session& session, Controller_Link& link, QObject* parent)
    : Value_Service(parent),
      mSession(session),
      mLink(link) {
  connect(&link, &Controller_Link::stateChanged, this, &Controller_Values::onStateChanged);
  connect(&link.client(), &Main_Network_Client::onProcessNetworkConnect, this, &Controller_Values::onConnect);
  connect(&link.client(), qOverload<Telegram>(&Main_Network_Client::onProcessNetworkRead), this,
          &Controller_Values::onTelegram);
  const Address_Tree& tree = std::as_const(session).database().mAddresses;
  connect(&tree, &Address_Tree::recordChanged, this, &Controller_Values::onRecordChanged);
  mCheckTimer.setSingleShot(true);
  mCheckTimer.setInterval(0);
  connect(&mCheckTimer, &QTimer::timeout, this, &Controller_Values::onStructureChanged);
  connect(&tree, &Address_Tree::structureChanged, this, [this] { mCheckTimer.start(); });
  connect(&session, &Project_Session::opened, this, &Controller_Values::askForValues);
  connect(&session, &Project_Session::closed, this, [this] {
    cancelReading();
    mPlaces.clear();
  });
  mReadTimer.setInterval(cReadMs);
  connect(&mReadTimer, &QTimer::timeout, this, &Controller_Values::readNext);
  session.setValueService(this);
  onStateChanged();
}

Controller_Values::~Controller_Values() {
  mSession.setValueService(nullptr);
}

void Controller_Values::onStateChanged() {
  if (mIsOnline == mLink.isOnline()) {
    return;
  }
  mIsOnline = mLink.isOnline();
  if (!mIsOnline) {
    cancelReading();
  }
  emit onlineChanged(mIsOnline);
}

/// Telegrams may come before the log-on is answered, so the socket decides, not the log-on.
void Controller_Values::onConnect(bool isConnected) {
  if (!isConnected) {
    mSession.values().setAllStale();
  }
}

/// After a log-on the controller tells all values by itself; another project needs them once more.
void Controller_Values::askForValues() {
  if (mIsOnline) {
    mLink.client().sendCommand(Controller_Command::Values_Get);
  }
}

QString Controller_Values::sourceOf(const Telegram& telegram, const Address_Value* present) const {
  if (!isOwn(telegram)) {
    return QStringLiteral("%1.%2.%3").arg(telegram.mSourceArea).arg(telegram.mSourceLine).arg(telegram.mSourceDevice);
  }
  const bool isEcho = present && present->mSource == tr("Studio") && present->mPayload == telegram.mData &&
                      QDateTime::currentMSecsSinceEpoch() - present->mTime < cEchoMs;
  return isEcho ? present->mSource : tr("Steuerung");
}

void Controller_Values::onTelegram(const Telegram& telegram) {
  if (telegram.mService == Telegram::Read || telegram.mIsValid == 0) {
    return;
  }
  const Group_Address address = telegram.address();
  const DB_Address_Sub_Group* const group = std::as_const(mSession).database().mAddresses.subGroup(address);
  if (!group) {
    return;
  }
  Address_Values& values = mSession.values();
  Address_Value value;
  value.mSource = sourceOf(telegram, values.find(group->mKey));
  value.mPayload = telegram.mData;
  value.mValue = Address_Value_Text::decode(group->mDpt, value.mPayload);
  value.mTime = telegram.mTime > 0 ? telegram.mTime * cMsOfSecond : QDateTime::currentMSecsSinceEpoch();
  mPlaces.insert(group->mKey, address);
  values.set(group->mKey, std::move(value));
}

/// The type may be another one, which reads other values from the same payloads.
void Controller_Values::onRecordChanged(const QUuid& key) {
  const DB_Address_Sub_Group* const group = std::as_const(mSession).database().mAddresses.subGroup(key);
  const Address_Value* const present = group ? mSession.values().find(key) : nullptr;
  if (!present) {
    return;
  }
  Address_Value value = *present;
  value.mValue = Address_Value_Text::decode(group->mDpt, value.mPayload);
  if (value.mValue != present->mValue) {
    mSession.values().set(key, std::move(value));
  }
}

/// What is known belongs to the number that was on the bus.
void Controller_Values::onStructureChanged() {
  const Address_Tree& tree = std::as_const(mSession).database().mAddresses;
  for (const QUuid& key : mSession.values().keys()) {
    const DB_Address_Sub_Group* const group = tree.subGroup(key);
    const auto place = mPlaces.constFind(key);
    if (!group || (place != mPlaces.cend() && tree.addressOf(*group) != *place)) {
      mSession.values().remove(key);
      mPlaces.remove(key);
    }
  }
}

void Controller_Values::read(const QList<QUuid>& keys) {
  const Address_Tree& tree = std::as_const(mSession).database().mAddresses;
  const qsizetype before = mToRead.size();
  for (const QUuid& key : keys) {
    if (mIsOnline && tree.subGroup(key)) {
      mToRead.append(key);
    }
  }
  if (mToRead.size() > before && !mReadTimer.isActive()) {
    mReadTimer.start();
    readNext();
  }
}

void Controller_Values::cancelReading() {
  mReadTimer.stop();
  mToRead.clear();
  if (std::exchange(mRead, 0) > 0) {
    emit readProgress(0, 0);
  }
}

void Controller_Values::readNext() {
  const Address_Tree& tree = std::as_const(mSession).database().mAddresses;
  if (mRead >= mToRead.size()) {
    cancelReading();
    return;
  }
  if (const DB_Address_Sub_Group* const group = tree.subGroup(mToRead.at(mRead))) { // it may be gone meanwhile
    mLink.client().sendTelegram(Telegram::to(tree.addressOf(*group), Telegram::Read, {}));
  }
  ++mRead;
  emit readProgress(mRead, mToRead.size());
}

Edit_Result Controller_Values::send(const QUuid& key, const QByteArray& payload) {
  const Address_Tree& tree = std::as_const(mSession).database().mAddresses;
  const DB_Address_Sub_Group* const group = tree.subGroup(key);
  if (!group) {
    return Edit_Result::refused(tr("Die Adresse ist nicht mehr im Projekt."));
  }
  const Group_Address address = tree.addressOf(*group);
  if (!mIsOnline || !mLink.client().sendTelegram(Telegram::to(address, Telegram::Write, payload))) {
    return Edit_Result::refused(tr("Keine Verbindung zur Steuerung"));
  }
  mPlaces.insert(key, address);
  mSession.values().set(key, {payload, Address_Value_Text::decode(group->mDpt, payload),
                              QDateTime::currentMSecsSinceEpoch(), tr("Studio"), false});
  return Edit_Result::done();
}
