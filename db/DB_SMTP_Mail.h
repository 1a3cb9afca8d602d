#pragma once

#include "db/DB_Data_Base.h"

#include <QString>

/// The mail server through which the controller sends mails.
class DB_SMTP_Mail : public DB_Record<DB_SMTP_Mail> {
public:
  static constexpr int cDefaultPort = 587; ///< message submission, RFC 6409

  void fields(DB_Fields& fields) override;

  QString mServer;
  int mPort = cDefaultPort;
  int mEncryption = 0; ///< 0 none, 1 STARTTLS, 2 TLS from the start
  QString mUser;
  QString mPassword;
  QString mSender; ///< address of the sender
  QString mSenderName;
};
