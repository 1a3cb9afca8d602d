#include "fb/model/FB_Page_Notices.h"

#include "db/DB_FB_Page.h"
#include "db/DB_Project.h"
#include "fb/model/FB_Pins.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>

namespace {

QString text(const char* german) {
  return QCoreApplication::translate("FB_Page_Notices", german);
}

QString nameOf(const DB_Controller& controller) {
  return controller.mName.isEmpty() ? QString::number(controller.mNumber) : controller.mName;
}

template <class Test>
const DB_Controller* find(const DB_Project& project, Test test) {
  const auto& all = project.mControllers;
  const auto found = std::find_if(all.begin(), all.end(), test);
  return found == all.end() ? nullptr : &*found;
}

} // namespace

QStringList FB_Page_Notices::of(const DB_FB_Page& page, const DB_Project& project, std::optional<int> connected) {
  QStringList notices;
  if (!page.mActive) {
    notices.append(text(QT_TRANSLATE_NOOP(
        "FB_Page_Notices", "Diese Seite ist deaktiviert - kein Baustein dieser Seite wird ausgeführt.")));
  }
  const DB_Controller* const main = find(project, [](const DB_Controller& one) { return one.mIsMain; });
  const DB_Controller* const assigned =
      page.mControllerIndex == 0
          ? main
          : find(project, [&](const DB_Controller& one) { return one.mNumber == page.mControllerIndex; });
  if (page.mControllerIndex != 0 && !assigned && main) {
    notices.append(text(QT_TRANSLATE_NOOP("FB_Page_Notices",
                                          "Die zugeordnete Steuerung steht nicht mehr in der Liste - diese Seite läuft "
                                          "deshalb auf der Hauptsteuerung %1."))
                       .arg(nameOf(*main)));
  }
  const DB_Controller* const executing = assigned ? assigned : main;
  if (connected && executing && executing->mNumber != *connected) {
    notices.append(text(QT_TRANSLATE_NOOP("FB_Page_Notices",
                                          "Diese Seite läuft auf Steuerung %1 - die verbundene Steuerung führt sie "
                                          "nicht aus."))
                       .arg(nameOf(*executing)));
  }
  const auto few =
      std::ranges::count_if(page.mChildren, [](const auto& block) { return !FB_Pins::missingPins(*block).isEmpty(); });
  if (few > 0) {
    const QLocale locale;
    notices.append(text(QT_TRANSLATE_NOOP("FB_Page_Notices",
                                          "Bausteine dieser Seite mit einer zu großen Anzahl: %1. Mehr als %2 Ein- und "
                                          "Ausgänge sind nicht möglich."))
                       .arg(locale.toString(qlonglong(few)), locale.toString(FB_Pins::cMostPins)));
  }
  return notices;
}
