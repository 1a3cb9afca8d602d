#pragma once

#include "db/DB_Address_Binding.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <functional>
#include <optional>

class FB_Edit;
class ProjectDatabase;
struct DB_FB_Pin;
class DB_FB_Control;

/// The internal variables of a project, as the edits of blocks make and drop them.
namespace FB_Variables {

/// Gives names that no variable of the project has, and each of them once.
class Names {
public:
  explicit Names(const ProjectDatabase& database);
  /// "Und Ausgang", "Und Ausgang 2" and so on.
  [[nodiscard]] QString take(const QString& wish);

private:
  QSet<QString> mTaken;
  QHash<QString, int> mLast; ///< number by name without one
};

/// A binding to the first internal variable of which that is true.
[[nodiscard]] std::optional<DB_Address_Binding>
find(const ProjectDatabase& database, const std::function<bool(const DB_Address_Binding& variable)>& isMeant);

/// "Und": the block's own title, else its name, else that of its type.
[[nodiscard]] QString ownerName(const DB_FB_Control& block);
/// "Und Ausgang": what a variable made for that pin of the block would be called.
[[nodiscard]] QString nameFor(const DB_FB_Control& block, const DB_FB_Pin& pin);
/// A variable of its own; what type of data it takes is not known yet.
[[nodiscard]] DB_Address_Binding make(const QString& name);

/// Takes those of the variables that nothing reads any more off the outputs.
void release(FB_Edit& edit, const QSet<QUuid>& keys);
/// The same after blocks are gone that had them; also takes those that nothing writes any more off the inputs, when a
/// block that wrote them is gone (`written`) or only one input is left.
void releaseAfterRemoval(FB_Edit& edit, const QSet<QUuid>& keys, const QSet<QUuid>& written);

} // namespace FB_Variables
