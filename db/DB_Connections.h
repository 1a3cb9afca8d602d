#pragma once

#include "db/DB_Data_Base.h"

#include <QString>

#include <vector>

/// The project's list of controller connections.
class DB_Connections : public DB_Record<DB_Connections> {
public:
  /// One controller connection: two numbers and ten texts, in this order.
  struct ITEM {
    static constexpr int cRelay = 1;

    int mKind = 0;    ///< 1: through the relay service (port 10003); any other: direct (port 10001)
    int mOptions = 0; ///< carried with the record, not interpreted by the link
    QString mName;
    QString mUser;
    QString mPassword;
    QString mAddress; ///< IP address or host name, optionally followed by ":" and a port
    QString mDescription;
    QString mRelayMail;
    QString mRelayPassword;
    QString mRelayDns;
    QString mRelayHost; ///< empty: the built-in relay host
    QString mSerialNumber;

    void fields(DB_Fields& fields);
    [[nodiscard]] bool isRelay() const { return mKind == cRelay; }
  };

  void fields(DB_Fields& fields) override;

  /// The index of the connection that a text designates: "#1" for the first, or what identifies one (name, address,
  /// serial number, relay account or DNS name), whatever the case. -1 with a German `error` when there is none or more
  /// than one; without a word for an empty text. Double quotes and blanks around do not count.
  [[nodiscard]] int findConnection(const QString& query, QString* error = nullptr) const;

  int mSelected = -1; ///< index of the connection that "connect" uses; -1 for none
  std::vector<ITEM> mItems;
};
