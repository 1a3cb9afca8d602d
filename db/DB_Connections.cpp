#include "db/DB_Connections.h"

void DB_Connections::ITEM::fields(DB_Fields& fields) {
  fields.number("mKind", mKind);
  fields.number("mOptions", mOptions);
  fields.text("mName", mName);
  fields.text("mUser", mUser);
  fields.text("mPassword", mPassword);
  fields.text("mAddress", mAddress);
  fields.text("mDescription", mDescription);
  fields.text("mRelayMail", mRelayMail);
  fields.text("mRelayPassword", mRelayPassword);
  fields.text("mRelayDns", mRelayDns);
  fields.text("mRelayHost", mRelayHost);
  fields.text("mSerialNumber", mSerialNumber);
}

void DB_Connections::fields(DB_Fields& fields) {
  fields.number("mSelected", mSelected, -1);
  fields.list("mItem", mItems);
}
