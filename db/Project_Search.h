#pragma once

#include "base/Text_Search.h"
#include "db/Address_Usage.h"
#include "db/Project_Texts.h"

#include <QString>
#include <QUuid>

#include <vector>

class ProjectDatabase;

/// Finds a text in all that the user has named and written in a project: addresses and groups, internal variables,
/// pages, blocks, elements.
namespace Project_Search {

using Field = Project_Texts::Field;

enum class Kind : quint8 { MainGroup, MiddleGroup, Address, Variable, LogicPage, Block, VisuPage, Element };

/// Where to look. Variables are among the addresses.
enum class Scope { Everything, Addresses, Pages, Blocks, Elements };

struct Query {
  /// As `Text_Search` takes it. Written like an address ("1/2/3", "1/2/*", "1/*") it also finds that and what is in it.
  QString mText;
  Text_Search::Options mOptions;
  Scope mScope = Scope::Everything;
};

/// A text of the project in which something was found. The text itself stays where it is.
struct Hit {
  QUuid mId; ///< key of an address, group or variable; GUID of a page, block or element
  Kind mKind = Kind::Address;
  Field mField = Field::Name;
  int mIndex = 0;     ///< of a parameter; of a variable its place among those of the result
  int mCount = 0;     ///< matches in the text
  quint32 mState = 0; ///< differs when the text does

  friend bool operator==(const Hit&, const Hit&) = default;
};

struct Variable {
  QString mName;
  Address_Use mFirst; ///< a variable lives where it is used
  friend bool operator==(const Variable&, const Variable&) = default;
};

/// A picture of the moment of the search, in the order of the project.
struct Result {
  std::vector<Hit> mHits;
  std::vector<Variable> mVariables;
  qsizetype mMatches = 0;
  qsizetype mPlaces = 0; ///< records with hits

  friend bool operator==(const Result&, const Result&) = default;
};

/// `usage` tells the variables, `typeName` what types of blocks are called.
[[nodiscard]] Result find(const ProjectDatabase& database, const Address_Usage& usage, const Query& query,
                          const Address_Usage::Type_Name& typeName);

/// The whole text that a hit is about, as it is now; empty for what is gone.
[[nodiscard]] QString text(const ProjectDatabase& database, const Result& result, const Hit& hit,
                           const Address_Usage::Type_Name& typeName);

/// Of an address or group; empty for what is gone.
[[nodiscard]] QString addressText(const ProjectDatabase& database, const QUuid& key);

/// The page that a block or element stands on; null for what is gone.
[[nodiscard]] QUuid pageOf(const ProjectDatabase& database, const Hit& hit);

} // namespace Project_Search
