#pragma once

#include "base/Group_Address.h"
#include "db/Value_Service.h"
#include "net/DB_Address_Network_Telegram.h"

#include <QHash>
#include <QTimer>

class Controller_Link;
class Project_Session;
struct Address_Value;

/// Keeps the session's live values as the controller tells them, and reads and sends values for the views. Telegrams
/// of addresses that the project lacks are left alone. A lost link makes every value stale.
class Controller_Values : public Value_Service {
  Q_OBJECT

public:
  /// Reads are sent one at a time: 50 a second, half of what a bus line carries.
  static constexpr int cReadMs = 20;
  /// A value that the studio sent comes back from the controller; for so long it is taken for the studio's.
  static constexpr int cEchoMs = 3'000;

  /// Session and link outlive it. It is the session's service from now on.
  Controller_Values(Project_Session& session, Controller_Link& link, QObject* parent = nullptr);
  ~Controller_Values() override;

  [[nodiscard]] bool isOnline() const override { return mIsOnline; }
  void read(const QList<QUuid>& keys) override;
  void cancelReading() override;
  [[nodiscard]] bool isReading() const override { return mReadTimer.isActive(); }
  Edit_Result send(const QUuid& key, const QByteArray& payload) override;

private:
  void onStateChanged();
  void onConnect(bool isConnected);
  void onTelegram(const DB_Address_Network_Telegram& telegram);
  void onRecordChanged(const QUuid& key);
  void onStructureChanged();
  void askForValues();
  void readNext();
  [[nodiscard]] QString sourceOf(const DB_Address_Network_Telegram& telegram, const Address_Value* present) const;

  Project_Session& mSession;
  Controller_Link& mLink;
  bool mIsOnline = false;
  QHash<QUuid, Group_Address> mPlaces; ///< of the addresses whose values are known: by what number they came
  QTimer mCheckTimer;                  ///< groups changes of the addresses
  QTimer mReadTimer;
  QList<QUuid> mToRead;
  qsizetype mRead = 0; ///< of them
};
