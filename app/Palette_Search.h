#pragma once

#include "app/Action_Table.h"

#include <QString>
#include <QUuid>

#include <vector>

class ProjectDatabase;

/// Something that the palette offers: a command, a page or a group address.
struct Palette_Entry {
  enum class Kind { Action, Page, Address };

  Kind mKind = Kind::Action;
  QString mTitle;
  QString mDetail; ///< menu and keys of a command, why it cannot be used, kind of a page, name of an address
  QString mIcon;   ///< name of the icon
  QString mSlot;   ///< of a command
  QUuid mGuid;     ///< of a page, key of an address
  bool mIsEnabled = true;
};

/// Finds commands, pages and addresses by words that are typed: every word must stand somewhere in the entry, in
/// whatever order and case. Those that begin with what is typed come first, then those with words that do.
namespace Palette_Search {

/// Most of each kind that are offered.
inline constexpr size_t cActionLimit = 14;
inline constexpr size_t cDisabledLimit = 8;
inline constexpr size_t cPageLimit = 20;
inline constexpr size_t cAddressLimit = 30;

/// Commands first, then pages, then addresses, at last the commands that cannot be used now; each in the order of rank
/// and then of menus or project. For an empty text the commands that can be used now and the pages.
[[nodiscard]] std::vector<Palette_Entry> find(const QString& text, const Action_State& state,
                                              const ProjectDatabase& database);

} // namespace Palette_Search
