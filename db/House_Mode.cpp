#include "db/House_Mode.h"

#include "db/Address_Tree.h"

#include <QStringList>

namespace {

const QStringList& names() {
  static const QStringList names = {QStringLiteral("present"), QStringLiteral("absent"), QStringLiteral("vacation")};
  return names;
}

} // namespace

QString House_Mode::name(int value) {
  return names().value(value);
}

std::optional<int> House_Mode::value(const QString& name) {
  const qsizetype index = names().indexOf(name);
  return index < 0 ? std::nullopt : std::optional(static_cast<int>(index));
}

std::optional<Group_Address> House_Mode::address(const Address_Tree& tree) {
  for (const auto& main : tree.mainGroups()) {
    for (const auto& middle : main->mMiddleGroups) {
      for (const auto& sub : middle->mSubGroups) {
        if (sub->mName == cVariable) {
          return Group_Address(main->mNumber, middle->mNumber, sub->mNumber);
        }
      }
    }
  }
  return std::nullopt;
}
