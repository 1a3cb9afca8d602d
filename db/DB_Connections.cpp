#include "db/DB_Connections.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("DB_Connections", text);
}

bool isCalled(const DB_Connections::ITEM& item, const QString& wanted) {
  const QString* const texts[] = {&item.mName, &item.mAddress, &item.mSerialNumber, &item.mRelayMail, &item.mRelayDns};
  return std::any_of(std::begin(texts), std::end(texts),
                     [&wanted](const QString* text) { return text->trimmed().toLower() == wanted; });
}

int notFound(const QString& text, QString* error) {
  if (error) {
    *error = text;
  }
  return -1;
}

} // namespace

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

int DB_Connections::findConnection(const QString& query, QString* error) const {
  const QString wanted = query.trimmed().remove(u'"').toLower();
  if (wanted.isEmpty()) {
    return notFound({}, error);
  }
  const int count = static_cast<int>(mItems.size());
  if (wanted.startsWith(u'#')) {
    bool isNumber = false;
    const int number = QStringView(wanted).mid(1).toInt(&isNumber);
    return isNumber && number >= 1 && number <= count ? number - 1
                                                      : notFound(tr("Verbindung %1 gibt es nicht.").arg(query), error);
  }
  int found = -1;
  for (int i = 0; i < count; ++i) {
    if (!isCalled(mItems[static_cast<size_t>(i)], wanted)) {
      continue;
    }
    if (found >= 0) {
      return notFound(tr("Verbindung \"%1\" ist nicht eindeutig, bitte IP-Adresse angeben.").arg(query), error);
    }
    found = i;
  }
  return found >= 0 ? found : notFound(tr("Verbindung \"%1\" ist nicht eingerichtet.").arg(query), error);
}
