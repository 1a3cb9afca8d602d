#pragma once

#include "base/Datapoint_Id.h"
#include "db/Address_Usage.h"
#include "fb/model/FB_Address_Places.h"
#include "fb/model/FB_Pin_Ref.h"
#include "fb/model/FB_Variable_Generation.h"

#include <QHash>
#include <QMultiHash>
#include <QSet>

#include <optional>
#include <vector>

class DB_Address_Sub_Group;
class DB_FB_Control;
class ProjectDatabase;
struct DB_FB_Pin;

/// What the generation of variables would make and bind, worked out before the first change. The database outlives the
/// plan and stays as it is.
class FB_Generation_Plan {
public:
  using Conflict = FB_Variable_Generation::Conflict;

  explicit FB_Generation_Plan(const ProjectDatabase& database);

  /// A group address that is bound: one that there is, or a new one.
  struct Target {
    QUuid mKey; ///< null for a new one
    Group_Address mAddress;
    QString mName;
    Datapoint_Id mDpt;
  };

  /// What is in the way of new variables: "Eingang 1: 1/2/3 Licht", inputs first. A group that is free goes to the
  /// first block that is asked for.
  [[nodiscard]] QStringList existing(const DB_FB_Control& block);
  /// True when pins of the block got an address, or had the one they would get. False with a refusal (German) when the
  /// block may not be done.
  bool add(const DB_FB_Control& block, Conflict conflict, QString& refusal);

  [[nodiscard]] const std::vector<FB_Address_Places::Group>& groups() const { return mPlaces.made(); }
  [[nodiscard]] const std::vector<Target>& targets() const { return mTargets; }
  /// Indices of the targets: by pin, and by internal variable, which the address stands in for everywhere.
  [[nodiscard]] const QHash<FB_Pin_Ref, size_t>& pins() const { return mPins; }
  [[nodiscard]] const QHash<QUuid, size_t>& variables() const { return mVariables; }

private:
  /// A pin of the block and what its address is called.
  struct Pin {
    FB_Pin_Ref mRef;
    const DB_FB_Pin* mPin = nullptr;
    QString mName;
  };
  /// The middle groups of a block, and the addresses there by name.
  struct Home {
    QString mMain;
    QString mName;
    std::vector<FB_Address_Places::Place> mPlaces;
    QHash<QString, const DB_Address_Sub_Group*> mAddresses;
  };

  [[nodiscard]] static std::vector<Pin> pinsOf(const DB_FB_Control& block);
  /// Keeps the groups for the block.
  [[nodiscard]] Home homeOf(const DB_FB_Control& block);
  [[nodiscard]] QStringList existingIn(const Home& home, const DB_FB_Control& block) const;
  [[nodiscard]] bool isDone(const Pin& pin) const;
  /// An input keeps the address by which an output of another block leads to it.
  [[nodiscard]] bool isLedByAddress(const Pin& pin) const;
  [[nodiscard]] Datapoint_Id typeFor(const Pin& pin) const;
  /// Empty when the tree is full.
  [[nodiscard]] std::optional<size_t> targetFor(const Pin& pin, Home& home);
  void bind(const Pin& pin, size_t target);

  const ProjectDatabase& mDatabase;
  Address_Usage mUsage;
  FB_Address_Places mPlaces;
  QMultiHash<QUuid, QUuid> mOwners; ///< blocks by the middle group that was made for them
  QSet<int> mReserved;              ///< middle groups that a block of the plan has, by their number on the bus
  std::vector<Target> mTargets;
  QHash<FB_Pin_Ref, size_t> mPins;
  QHash<QUuid, size_t> mVariables;
};
