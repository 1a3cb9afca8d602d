#include "fb/model/FB_Types.h"

#include "fb/model/FB_Type_Check.h"
#include "fb/model/families/FB_Families.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <vector>

namespace {

std::array<FB_Types::Category, 19> makeCategories() {
  return {{
      {QT_TRANSLATE_NOOP("FB_Types", "Hardware Schnittstellen"), FB_Families::hardware()},
      {QT_TRANSLATE_NOOP("FB_Types", "Allgemeines"), FB_Families::general()},
      {QT_TRANSLATE_NOOP("FB_Types", "Logische Verknüpfungen"), FB_Families::logic()},
      {QT_TRANSLATE_NOOP("FB_Types", "Zeitfunktionen"), FB_Families::time()},
      {QT_TRANSLATE_NOOP("FB_Types", "Vergleicher"), FB_Families::compare()},
      {QT_TRANSLATE_NOOP("FB_Types", "Berechnungen"), FB_Families::mathematics()},
      {QT_TRANSLATE_NOOP("FB_Types", "Telegramme / KNX"), FB_Families::telegram()},
      {QT_TRANSLATE_NOOP("FB_Types", "Regelung / HKL"), FB_Families::control()},
      {QT_TRANSLATE_NOOP("FB_Types", "Zähler, CSV"), FB_Families::counter()},
      {QT_TRANSLATE_NOOP("FB_Types", "Energiemanagement"), FB_Families::energy()},
      {QT_TRANSLATE_NOOP("FB_Types", "Funktionen, Befehle"), FB_Families::function()},
      {QT_TRANSLATE_NOOP("FB_Types", "Alarmanlage"), FB_Families::alarm()},
      {QT_TRANSLATE_NOOP("FB_Types", "Netzwerk"), FB_Families::network()},
      {QT_TRANSLATE_NOOP("FB_Types", "Geräte"), FB_Families::device()},
      {QT_TRANSLATE_NOOP("FB_Types", "MQTT allgemein"), FB_Families::mqtt()},
      {QT_TRANSLATE_NOOP("FB_Types", "MQTT Shelly"), FB_Families::shelly()},
      {QT_TRANSLATE_NOOP("FB_Types", "Gebäudeautomation Block"), FB_Families::buildingBlock()},
      {QT_TRANSLATE_NOOP("FB_Types", "Gebäudeautomation HS"), FB_Families::buildingHs(), true},
      {"", FB_Families::older()},
  }};
}

std::vector<const FB_Type*> sortedById() {
  Q_ASSERT_X(FB_Type_Check::problems(FB_Types::categories()).isEmpty(), "FB_Types",
             qPrintable(FB_Type_Check::problems(FB_Types::categories()).join(u'\n')));
  std::vector<const FB_Type*> types;
  for (const auto& category : FB_Types::categories()) {
    for (const auto& type : category.mTypes) {
      types.push_back(&type);
    }
  }
  std::ranges::sort(types, {}, &FB_Type::mId);
  return types;
}

} // namespace

std::span<const FB_Types::Category> FB_Types::categories() {
  static const auto cCategories = makeCategories();
  return cCategories;
}

std::span<const FB_Type* const> FB_Types::all() {
  static const auto cTypes = sortedById();
  return cTypes;
}

const FB_Type* FB_Types::find(int id) {
  const auto types = all();
  const auto at = std::ranges::lower_bound(types, id, {}, &FB_Type::mId);
  return at != types.end() && (*at)->mId == id ? *at : nullptr;
}

QString FB_Types::name(int id) {
  const FB_Type* const type = find(id);
  return type ? text(type->mName) : QStringLiteral("Unknown");
}

QString FB_Types::helpFileName(int id) {
  const FB_Type* const type = find(id);
  if (!type) {
    return {};
  }
  return *type->mHelp ? QString::fromLatin1(type->mHelp)
                      : QString::fromLatin1(type->mClass).toLower() + QStringLiteral(".html");
}

QString FB_Types::text(const char* germanText) {
  return QCoreApplication::translate("FB_Types", germanText);
}
