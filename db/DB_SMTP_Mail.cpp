#include "db/DB_SMTP_Mail.h"

void DB_SMTP_Mail::fields(DB_Fields& fields) {
  fields.text("mServer", mServer);
  fields.number("mPort", mPort, cDefaultPort);
  fields.number("mEncryption", mEncryption);
  fields.text("mUser", mUser);
  fields.text("mPassword", mPassword);
  fields.text("mSender", mSender);
  fields.text("mSenderName", mSenderName);
}
