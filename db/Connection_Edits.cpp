#include "db/Connection_Edits.h"

#include "db/Connection_Defaults.h"
#include "db/Controller_Edits.h"
#include "db/DB_Text.h"
#include "db/Edit_Scope.h"
#include "db/Project_Session.h"

#include <QCoreApplication>

#include <algorithm>
#include <functional>

namespace {

using Item = DB_Connections::ITEM;
using Field = Connection_Edits::Field;

QString tr(const char* text) {
  return QCoreApplication::translate("Connection_Edits", text);
}

QString lengthFault(const QString& label, const QString& text) {
  return text.size() <= Connection_Edits::cTextLimit ? QString()
                                                     : tr("%1 hat %2 Zeichen, erlaubt sind höchstens %3.")
                                                           .arg(label)
                                                           .arg(text.size())
                                                           .arg(Connection_Edits::cTextLimit);
}

QString nameFault(const QString& name) {
  const QString line = DB_Text::singleLine(name);
  return line.isEmpty() ? tr("Eine Verbindung braucht einen Namen.") : lengthFault(tr("Der Name"), line);
}

QString addressFault(const QString& address) {
  if (address.trimmed().isEmpty()) {
    return tr("Eine direkte Verbindung braucht eine Adresse: IP-Adresse oder Rechnername, bei Bedarf mit \":\" und "
              "Port.");
  }
  return Controller_Edits::isAddress(address.trimmed()) ? QString()
                                                        : tr("\"%1\" ist keine Adresse. Erlaubt sind IP-Adresse oder "
                                                             "Rechnername, bei Bedarf mit \":\" und einem Port von 1 "
                                                             "bis 65535.")
                                                              .arg(address);
}

/// The port of the relay service is fixed.
QString hostFault(const QString& host, const QString& label) {
  return Controller_Edits::isAddress(host) && !host.contains(u':')
             ? QString()
             : tr("\"%1\" ist kein %2. Erlaubt sind IP-Adresse oder Rechnername ohne Port.").arg(host, label);
}

QString mailFault(const QString& mail) {
  const qsizetype at = mail.indexOf(u'@');
  const bool isMail = mail.isEmpty() || (at > 0 && at < mail.size() - 1 && !mail.contains(u' '));
  return isMail ? lengthFault(tr("Das Konto"), mail)
                : tr("\"%1\" ist keine E-Mail-Adresse; das Konto heißt wie NAME@ANBIETER.").arg(mail);
}

void tidy(Item& item) {
  for (QString* const text : {&item.mName, &item.mUser, &item.mAddress, &item.mRelayMail, &item.mRelayDns,
                              &item.mRelayHost, &item.mSerialNumber}) {
    *text = DB_Text::singleLine(*text);
  }
  item.mDescription = DB_Text::clean(item.mDescription);
  item.mPassword = DB_Text::clean(item.mPassword);
  item.mRelayPassword = DB_Text::clean(item.mRelayPassword);
}

QString freeName(const DB_Connections& connections, const QString& base) {
  const auto isTaken = [&connections](const QString& name) {
    return std::any_of(connections.mItems.begin(), connections.mItems.end(), [&name](const Item& item) {
      return item.mName.trimmed().compare(name, Qt::CaseInsensitive) == 0;
    });
  };
  QString name = base;
  for (int number = 2; isTaken(name); ++number) {
    name = QStringLiteral("%1 %2").arg(base).arg(number);
  }
  return name;
}

/// The list changes in one step of its own.
Edit_Result edit(Project_Session& session, const QString& text, const std::function<void(DB_Connections&)>& change) {
  Edit_Scope scope(session.history(), text, Edit_Scope::Grouping::Own);
  if (!scope) {
    return Edit_Result::refused(scope.refusal());
  }
  scope.modified(session.connectionsUndo(), Single_Record_Undo::id());
  change(session.database().mConnections);
  emit session.database().recordChanged(DB_Table::Connections);
  return Edit_Result::done();
}

bool has(const Project_Session& session, int index) {
  return index >= 0 && index < static_cast<int>(session.database().mConnections.mItems.size());
}

Edit_Result noSuch(int index) {
  return Edit_Result::refused(tr("Verbindung #%1 gibt es nicht.").arg(index + 1));
}

Edit_Result faulty(const Item& item) {
  const auto faults = Connection_Edits::faultsOf(item);
  return faults.empty() ? Edit_Result::done() : Edit_Result::refused(faults.front().mText);
}

} // namespace

QString Connection_Edits::faultOf(const Item& item, Field field) {
  const bool isRelay = item.isRelay();
  switch (field) {
  case Field::Name:
    return nameFault(item.mName);
  case Field::Address:
    return isRelay ? QString() : addressFault(item.mAddress);
  case Field::RelayMail:
    return isRelay ? mailFault(item.mRelayMail.trimmed()) : QString();
  case Field::RelayDns:
    if (isRelay && item.mRelayDns.trimmed().isEmpty()) {
      return item.mRelayMail.trimmed().isEmpty()
                 ? tr("Eine Verbindung über den Vermittlungsdienst braucht den DNS-Namen der Steuerung oder das Konto.")
                 : QString();
    }
    return isRelay ? hostFault(item.mRelayDns.trimmed(), tr("DNS-Name")) : QString();
  case Field::RelayHost:
    return isRelay && !item.mRelayHost.trimmed().isEmpty() ? hostFault(item.mRelayHost.trimmed(), tr("Rechnername"))
                                                           : QString();
  }
  return {};
}

std::vector<Connection_Edits::Fault> Connection_Edits::faultsOf(const Item& item) {
  std::vector<Fault> faults;
  for (const Field field : {Field::Name, Field::Address, Field::RelayMail, Field::RelayDns, Field::RelayHost}) {
    if (const QString text = faultOf(item, field); !text.isEmpty()) {
      faults.push_back({field, text});
    }
  }
  return faults;
}

Item Connection_Edits::proposal(const DB_Connections& connections) {
  Item item;
  item.mName = freeName(connections, tr("Steuerung"));
  item.mUser = Connection_Defaults::user();
  item.mPassword = Connection_Defaults::password();
  return item;
}

Edit_Result Connection_Edits::add(Project_Session& session, Item item, bool isSelected) {
  if (Edit_Result fault = faulty(item); !fault) {
    return fault;
  }
  tidy(item);
  return edit(session, tr("Verbindung hinzufügen"), [&item, isSelected](DB_Connections& connections) {
    connections.mItems.push_back(std::move(item));
    if (isSelected || connections.mItems.size() == 1) {
      connections.mSelected = static_cast<int>(connections.mItems.size()) - 1;
    }
  });
}

Edit_Result Connection_Edits::change(Project_Session& session, int index, Item item) {
  if (!has(session, index)) {
    return noSuch(index);
  }
  if (Edit_Result fault = faulty(item); !fault) {
    return fault;
  }
  tidy(item);
  return edit(session, tr("Verbindung ändern"), [&item, index](DB_Connections& connections) {
    connections.mItems[static_cast<size_t>(index)] = std::move(item);
  });
}

Edit_Result Connection_Edits::duplicate(Project_Session& session, int index) {
  if (!has(session, index)) {
    return noSuch(index);
  }
  return edit(session, tr("Verbindung duplizieren"), [index](DB_Connections& connections) {
    Item copy = connections.mItems[static_cast<size_t>(index)];
    copy.mName = freeName(connections, copy.mName);
    connections.mItems.insert(connections.mItems.begin() + index + 1, std::move(copy));
    connections.mSelected += connections.mSelected > index ? 1 : 0;
  });
}

Edit_Result Connection_Edits::remove(Project_Session& session, const QList<int>& indexes) {
  QList<int> rows = indexes;
  std::sort(rows.begin(), rows.end(), std::greater<>());
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
  for (const int row : std::as_const(rows)) {
    if (!has(session, row)) {
      return noSuch(row);
    }
  }
  const QString text = rows.size() == 1 ? tr("Verbindung löschen") : tr("Verbindungen löschen");
  return edit(session, text, [&rows](DB_Connections& connections) {
    for (const int row : std::as_const(rows)) {
      connections.mItems.erase(connections.mItems.begin() + row);
      connections.mSelected -= connections.mSelected > row ? 1 : 0;
    }
    connections.mSelected = std::min(connections.mSelected, static_cast<int>(connections.mItems.size()) - 1);
  });
}

Edit_Result Connection_Edits::move(Project_Session& session, int from, int to) {
  if (!has(session, from) || !has(session, to)) {
    return noSuch(has(session, from) ? to : from);
  }
  return edit(session, tr("Verbindung verschieben"), [from, to](DB_Connections& connections) {
    Item item = std::move(connections.mItems[static_cast<size_t>(from)]);
    connections.mItems.erase(connections.mItems.begin() + from);
    connections.mItems.insert(connections.mItems.begin() + to, std::move(item));
    int& selected = connections.mSelected;
    if (selected == from) {
      selected = to;
    } else {
      selected += from < selected && selected <= to ? -1 : 0;
      selected += to <= selected && selected < from ? 1 : 0;
    }
  });
}

Edit_Result Connection_Edits::select(Project_Session& session, int index) {
  if (!has(session, index)) {
    return noSuch(index);
  }
  return edit(session, tr("Verbindung auswählen"),
              [index](DB_Connections& connections) { connections.mSelected = index; });
}
