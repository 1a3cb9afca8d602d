#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// The languages that the studio's own texts can be shown in: German, in which they are written, and one for each
/// catalogue file "quarna-studio_CODE.qm" that is found, CODE such as "en" or "pt_BR".
namespace Language_Catalogues {

struct Language {
  QString mCode;
  QString mName; ///< in that language itself
};

/// Where catalogues are looked for: beside the program, and where they are installed.
[[nodiscard]] QStringList folders();
/// German first, the others by name.
[[nodiscard]] QList<Language> available(const QStringList& folders);
/// Path of the catalogue; empty for German and for a language that has none.
[[nodiscard]] QString fileOf(const QString& code, const QStringList& folders);

} // namespace Language_Catalogues
