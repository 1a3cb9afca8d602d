#include "db/DB_TgmMon.h"

void DB_TgmMon::fields(DB_Fields& fields) {
  fields.flag("mActive", mActive);
  fields.number("mLimit", mLimit, cDefaultLimit);
  fields.list("mChannel", mChannels);
}
