#include "db/Table_Titles.h"

#include <algorithm>
#include <iterator>

namespace {

using Table_Titles::Column;

struct Title {
  const char* mText; ///< in small letters, without blanks and hyphens
  Column mColumn;
};

constexpr Title cTitles[] = {
    {"name", Column::Name},
    {"groupname", Column::Name},
    {"gruppenname", Column::Name},
    {"bezeichnung", Column::Name},
    {"main", Column::Main},
    {"maingroup", Column::Main},
    {"haupt", Column::Main},
    {"hauptgruppe", Column::Main},
    {"middle", Column::Middle},
    {"middlegroup", Column::Middle},
    {"mittel", Column::Middle},
    {"mittelgruppe", Column::Middle},
    {"sub", Column::Sub},
    {"subgroup", Column::Sub},
    {"unter", Column::Sub},
    {"untergruppe", Column::Sub},
    {"address", Column::Address},
    {"groupaddress", Column::Address},
    {"adresse", Column::Address},
    {"gruppenadresse", Column::Address},
    {"description", Column::Description},
    {"beschreibung", Column::Description},
    {"kommentar", Column::Description},
    {"datapointtype", Column::Type},
    {"datenpunkttyp", Column::Type},
    {"dpt", Column::Type},
    {"typ", Column::Type},
    {"central", Column::Central},
    {"zentral", Column::Central},
    {"unfiltered", Column::Unfiltered},
    {"ungefiltert", Column::Unfiltered},
    {"security", Column::Security},
    {"sicherheit", Column::Security},
    {"lesenstart", Column::ReadAtStart},
    {"lesenzyklisch", Column::ReadCyclic},
    {"schreiben", Column::Write},
    {"aktiv", Column::Active},
};

} // namespace

std::optional<Table_Titles::Column> Table_Titles::columnOf(const QString& title) {
  QString key = title.toLower();
  key.removeIf([](QChar c) { return c.isSpace() || c == u'-' || c == u'_'; });
  const auto* const found = std::find_if(std::begin(cTitles), std::end(cTitles),
                                         [&key](const Title& known) { return key == QLatin1String(known.mText); });
  return found == std::end(cTitles) ? std::nullopt : std::optional(found->mColumn);
}
