#include "db/Controller_Edits.h"

#include "db/DB_Text.h"
#include "db/Edit_Scope.h"
#include "db/Project_Session.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>

namespace {

using Field = Controller_Edits::Field;

constexpr int cLargestPort = 65535;

QString tr(const char* text) {
  return QCoreApplication::translate("Controller_Edits", text);
}

bool isPort(const QString& text) {
  bool isNumber = false;
  const int port = text.toInt(&isNumber);
  return isNumber && port >= 1 && port <= cLargestPort;
}

bool isHost(const QString& text) {
  static const QRegularExpression numbers(QStringLiteral("^[0-9.]+$"));
  static const QRegularExpression ipv4(
      QStringLiteral(R"(^((25[0-5]|2[0-4][0-9]|1[0-9]{2}|[1-9]?[0-9])(\.(?=[0-9])|$)){4}$)"));
  static const QRegularExpression ipv6(QStringLiteral(R"(^\[(?=.*:.*:)[0-9A-Fa-f:.]{2,45}\]$)"));
  static const QRegularExpression name(QStringLiteral(
      R"(^[A-Za-z0-9]([A-Za-z0-9-]{0,61}[A-Za-z0-9])?(\.[A-Za-z0-9]([A-Za-z0-9-]{0,61}[A-Za-z0-9])?)*$)"));
  if (numbers.match(text).hasMatch()) {
    return ipv4.match(text).hasMatch();
  }
  return ipv6.match(text).hasMatch() || (text.size() <= Controller_Edits::cHostLimit && name.match(text).hasMatch());
}

QString numberFault(const std::vector<DB_Controller>& controllers, int number) {
  if (number < 1) {
    return tr("Die Nummer %1 ist nicht möglich, erlaubt sind ganze Zahlen ab 1.").arg(number);
  }
  const auto count = std::count_if(controllers.begin(), controllers.end(),
                                   [number](const DB_Controller& other) { return other.mNumber == number; });
  return count > 1 ? tr("Die Nummer %1 kommt mehrmals vor; jede Steuerung braucht eine eigene.").arg(number)
                   : QString();
}

QString nameFault(const QString& name) {
  const qsizetype length = DB_Text::singleLine(name).size();
  if (length == 0) {
    return tr("Eine Steuerung braucht einen Namen.");
  }
  return length > Controller_Edits::cNameLimit
             ? tr("Der Name hat %1 Zeichen, erlaubt sind höchstens %2.").arg(length).arg(Controller_Edits::cNameLimit)
             : QString();
}

QString addressFault(const QString& address) {
  if (address.trimmed().isEmpty()) {
    return tr("Eine Steuerung braucht eine Adresse: IP-Adresse oder Rechnername, bei Bedarf mit \":\" und Port.");
  }
  return Controller_Edits::isAddress(address.trimmed()) ? QString()
                                                        : tr("\"%1\" ist keine Adresse. Erlaubt sind IP-Adresse oder "
                                                             "Rechnername, bei Bedarf mit \":\" und einem Port "
                                                             "von 1 bis 65535.")
                                                              .arg(address);
}

QString mainFault(qsizetype count, const DB_Controller& controller, bool isFirst) {
  if (count == 0 && isFirst) {
    return tr("Eine der Steuerungen muss die Hauptsteuerung sein.");
  }
  return count > 1 && controller.mIsMain ? tr("Nur eine Steuerung kann die Hauptsteuerung sein.") : QString();
}

} // namespace

bool Controller_Edits::isAddress(const QString& address) {
  const qsizetype colon = address.lastIndexOf(u':');
  const bool hasPort = colon >= 0 && address.indexOf(u']', colon) < 0;
  return hasPort ? isHost(address.left(colon)) && isPort(address.mid(colon + 1)) : isHost(address);
}

std::vector<Controller_Edits::Fault> Controller_Edits::faultsOf(const std::vector<DB_Controller>& controllers) {
  const auto mains = std::count_if(controllers.begin(), controllers.end(), [](const auto& one) { return one.mIsMain; });
  std::vector<Fault> faults;
  for (size_t i = 0; i < controllers.size(); ++i) {
    const DB_Controller& controller = controllers[i];
    const auto add = [&faults, i](Field field, const QString& text) {
      if (!text.isEmpty()) {
        faults.push_back({static_cast<int>(i), field, text});
      }
    };
    add(Field::Number, numberFault(controllers, controller.mNumber));
    add(Field::Name, nameFault(controller.mName));
    add(Field::Address, addressFault(controller.mAddress));
    add(Field::Main, mainFault(mains, controller, i == 0));
  }
  return faults;
}

Edit_Result Controller_Edits::setControllers(Project_Session& session, std::vector<DB_Controller> controllers) {
  if (const std::vector<Fault> faults = faultsOf(controllers); !faults.empty()) {
    return Edit_Result::refused(faults.front().mText);
  }
  for (DB_Controller& controller : controllers) {
    controller.mName = DB_Text::singleLine(controller.mName);
    controller.mAddress = controller.mAddress.trimmed();
  }
  Edit_Scope scope(session.history(), tr("Steuerungen ändern"), Edit_Scope::Grouping::Own);
  if (!scope) {
    return Edit_Result::refused(scope.refusal());
  }
  scope.modified(session.projectUndo(), Single_Record_Undo::id());
  session.database().mProject.mControllers = std::move(controllers);
  emit session.database().recordChanged(DB_Table::Project);
  return Edit_Result::done();
}
