#include "mcp/MCP_Data_Type.h"

#include "base/Datapoint_Types.h"

namespace {

constexpr qint64 cMainFactor = 1000;
constexpr qint64 cMainFactorOfLong = 10'000;

} // namespace

qint64 MCP_Data_Type::number(const Datapoint_Id& id) {
  if (id.isNone()) {
    return 0;
  }
  if (!id.hasSub()) {
    return id.mMain;
  }
  return id.mMain * (id.mSub < cMainFactor ? cMainFactor : cMainFactorOfLong) + id.mSub;
}

std::optional<Datapoint_Id> MCP_Data_Type::parse(int number) {
  if (number == 0) {
    return Datapoint_Id();
  }
  if (number > 0 && number < cMainFactor && !Datapoint_Types::ofMain(number).empty()) {
    return Datapoint_Id{number, Datapoint_Id::cAnySub};
  }
  for (const qint64 factor : {cMainFactor, cMainFactorOfLong}) {
    const Datapoint_Id id{int(number / factor), int(number % factor)};
    if (number >= cMainFactor && MCP_Data_Type::number(id) == number && Datapoint_Types::find(id)) {
      return id;
    }
  }
  return std::nullopt;
}

QString MCP_Data_Type::refusal(const char* argument, int number) {
  return QStringLiteral("Unbekannter Datenpunkttyp in %1: %2. Erwartet wird Haupt*1000+Unter wie 1001 (1.001) oder "
                        "9001 (9.001), eine Hauptnummer wie 14, oder 0 fuer keinen.")
      .arg(QLatin1String(argument))
      .arg(number);
}

void MCP_Data_Type::add(QJsonObject& object, const Datapoint_Id& id) {
  object.insert(QStringLiteral("data_type"), number(id));
  if (!id.isNone()) {
    object.insert(QStringLiteral("data_type_text"), Datapoint_Types::describe(id));
  }
}
