#pragma once

#include "base/Datapoint_Id.h"
#include "db/Address_Usage.h"
#include "db/DB_Address_Binding.h"

#include <QString>
#include <QUuid>

#include <vector>

class ProjectDatabase;

/// What a text that is typed for a pin can mean: the group addresses by number and name, the internal variables by
/// name. One walk over all addresses, quick enough for every key.
class FB_Binding_Search {
public:
  struct Hit {
    DB_Address_Binding::Kind mKind = DB_Address_Binding::Kind::None;
    QUuid mKey;
    QString mText; ///< "1/2/3 Licht", or the variable's name
    friend bool operator==(const Hit&, const Hit&) = default;
  };

  /// Both outlive the search. `usage` tells the variables.
  FB_Binding_Search(const ProjectDatabase& database, const Address_Usage& usage);

  /// At most that many: first those whose number or name is the text, then those that begin with it, then those in
  /// which every word of it stands. Of an empty text the first of all.
  [[nodiscard]] std::vector<Hit> find(const QString& text, size_t limit) const;

  /// What the text means when it is entered.
  struct Meaning {
    enum class Kind { Nothing, Address, Variable, New_Variable, Refused };
    Kind mKind = Kind::Nothing;
    QUuid mKey;    ///< of the address or variable
    QString mText; ///< the new variable's name, or why the text is refused (German)
  };
  /// An empty text means no binding; a number ("1/2/3", "1.2.3", with or without a name behind it) that address, and
  /// without one in the project nothing; else the name of a variable or of an address; any other text a new variable of
  /// that name.
  [[nodiscard]] Meaning meaning(const QString& text) const;

private:
  [[nodiscard]] Meaning named(const QString& name) const;

  const ProjectDatabase& mDatabase;
  const Address_Usage& mUsage;
};
