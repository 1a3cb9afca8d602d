#pragma once

#include "db/DB_FB_Control.h"
#include "fb/model/FB_Variables.h"

#include <QHash>
#include <QSet>

#include <memory>
#include <vector>

class Address_Tree;
class ProjectDatabase;

/// What copied blocks are bound to in the project into which they are pasted.
class FB_Copied_Bindings {
public:
  using Blocks = std::vector<std::unique_ptr<DB_FB_Control>>;

  /// `keepOutputs`: outputs keep their group address, and a variable that more than the copied blocks use.
  FB_Copied_Bindings(const ProjectDatabase& database, const Blocks& blocks, bool keepOutputs);

  void adapt(DB_FB_Control& block);
  /// Group addresses that the project does not have.
  [[nodiscard]] qsizetype missing() const { return mMissing.size(); }

private:
  void makeVariables(const Blocks& blocks);
  [[nodiscard]] DB_Address_Binding target(const DB_Address_Binding& binding, bool isOutput);

  const Address_Tree& mTree;
  bool mKeepOutputs;
  QSet<QUuid> mRead;                           ///< what copied blocks read
  QHash<QUuid, DB_Address_Binding> mFresh;     ///< wires between copied blocks: the new variable by the old key
  QHash<QUuid, DB_Address_Binding> mVariables; ///< that the blocks use and the project has
  QSet<QUuid> mMissing;
  FB_Variables::Names mNames;
};
