#pragma once

#include "db/Project_Search.h"

#include <span>

class Project_Session;

/// Replaces what a search found: names, descriptions, titles and comments, all of them as one undo step. Addresses,
/// types and parameters stay as they are. Refuses in the operating mode.
namespace Project_Replace {

/// Longest name, and longest other text, in characters.
inline constexpr qsizetype cNameLimit = 255;
inline constexpr qsizetype cTextLimit = 4000;

struct Outcome {
  QString mError;          ///< why nothing was replaced at all (German); empty else
  qsizetype mReplaced = 0; ///< matches
  qsizetype mRefused = 0;  ///< matches whose text may not become what it would
  QString mFirstRefused;   ///< the first of these: place, field and reason (German)

  /// For the user, in sentences.
  [[nodiscard]] QString toString() const;
};

/// Replaces every match in the texts of these hits by `by`. Each text keeps the rules of its field: a name has 1 to 255
/// characters in one line, another text up to 4000, none has marker bytes. Which texts may be changed is decided before
/// the first is.
Outcome replace(Project_Session& session, const Project_Search::Query& query, const Project_Search::Result& result,
                std::span<const Project_Search::Hit> hits, const QString& by, const Address_Usage::Type_Name& typeName);

/// Whether texts of this kind can be replaced.
[[nodiscard]] bool isReplaceable(const Project_Search::Hit& hit);

} // namespace Project_Replace
