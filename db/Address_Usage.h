#pragma once

#include "base/Datapoint_Id.h"
#include "base/Group_Address.h"
#include "db/Address_Use.h"

#include <QHash>
#include <QString>
#include <QUuid>

#include <functional>
#include <span>
#include <vector>

class ProjectDatabase;
struct DB_Address_Binding;

/// Where the group addresses and internal variables of a project are used: a picture of the moment in which it was
/// made, by one walk over all bindings of the logic pages and then of the visualisation pages, in their order.
class Address_Usage {
public:
  /// An internal variable, as the first binding that carries its key tells it.
  struct Variable {
    QUuid mKey;
    QString mName;
    Datapoint_Id mDpt;
    friend bool operator==(const Variable&, const Variable&) = default;
  };

  /// A binding to a group address that the project does not have (any more), with what is cached in it.
  struct Invalid {
    Address_Use mUse;
    QUuid mKey; ///< may be null
    Group_Address mAddress;
    QString mName;
    friend bool operator==(const Invalid&, const Invalid&) = default;
  };

  /// What a use is called, in the words of the user.
  struct Use_Text {
    QString mPage;  ///< "Programm 1"
    QString mOwner; ///< "Und", or the name of the element
    QString mPlace; ///< "Eingang 1"
    /// "Programm 1 / Und: Eingang 1"
    [[nodiscard]] QString toString() const;

    friend bool operator==(const Use_Text&, const Use_Text&) = default;
  };

  /// What a type of blocks is called; may answer an empty text.
  using Type_Name = std::function<QString(int type)>;

  Address_Usage() = default;
  explicit Address_Usage(const ProjectDatabase& database);

  /// True when the same is used at the same places, and the variables have the same names and types.
  friend bool operator==(const Address_Usage&, const Address_Usage&) = default;

  /// In the order of pages, blocks and pins; empty for what is nowhere used. Valid as long as this object.
  [[nodiscard]] std::span<const Address_Use> uses(const QUuid& key) const;
  [[nodiscard]] qsizetype count(const QUuid& key) const { return static_cast<qsizetype>(uses(key).size()); }

  /// In the order in which they were first met.
  [[nodiscard]] const std::vector<Variable>& variables() const { return mVariables; }
  /// Null when no variable of that key is used.
  [[nodiscard]] const Variable* variable(const QUuid& key) const;
  /// In the order of pages.
  [[nodiscard]] const std::vector<Invalid>& invalid() const { return mInvalid; }

  /// Of a use that is (still) in the project; what is gone has empty texts. A block without a title and a name of its
  /// own is called like its type.
  [[nodiscard]] static Use_Text text(const ProjectDatabase& database, const Address_Use& use,
                                     const Type_Name& blockType = {});

private:
  /// The uses of one key: a part of `mUses`.
  struct Range {
    size_t mFirst = 0;
    size_t mCount = 0;
    friend bool operator==(const Range&, const Range&) = default;
  };
  struct Found {
    size_t mRange = 0;
    Address_Use mUse;
  };

  void add(const ProjectDatabase& database, const DB_Address_Binding& binding, const Address_Use& use,
           std::vector<Found>& found);
  void sort(const std::vector<Found>& found);

  QHash<QUuid, size_t> mRangeByKey;
  std::vector<Range> mRanges;
  std::vector<Address_Use> mUses; ///< those of one key beside each other
  std::vector<Variable> mVariables;
  std::vector<Invalid> mInvalid;
};
