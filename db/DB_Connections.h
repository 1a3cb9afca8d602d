#pragma once

#include "db/DB_Data_Base.h"

#include <QString>

#include <vector>

/// The project's list of controller connections.
class DB_Connections : public DB_Record<DB_Connections> {
public:
  /// One controller connection: two numbers and ten texts, in this order.
  struct ITEM {
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
  };

  void fields(DB_Fields& fields) override;

  int mSelected = -1; ///< index of the connection that "connect" uses; -1 for none
  std::vector<ITEM> mItems;
};
