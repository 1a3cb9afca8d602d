#pragma once

#include <QString>
#include <QStringList>

#include <span>

struct FB_Type;

/// The help: a page for each block type, and topics beside them. A page goes by its file name ("fb_and.html") and is
/// German HTML of few tags. The resource ":/help/NAME" holds a fragment without <html> and <body>; of a block type what
/// its declaration cannot say: what the block is for, then, from the first <h2> on, the rest. The title and the tables
/// of pins and parameters are made from the declaration and come between. Pages link to each other by file name.
namespace FB_Help {

inline constexpr const char* cOverview = "overview.html";
inline constexpr const char* cLogicPages = "logic_pages.html";
inline constexpr const char* cGroupAddresses = "group_addresses.html";
inline constexpr const char* cProperties = "properties.html";

/// A page that belongs to no block type.
struct Topic {
  const char* mPage = "";
  const char* mTitle = "";      ///< German
  QString (*mMake)() = nullptr; ///< makes the fragment; null: it is a resource
};
/// In the order of the contents, the overview first. A further page gets its row here.
[[nodiscard]] std::span<const Topic> topics();

/// Every page: the topics, then the block types in the order of the catalogue.
[[nodiscard]] const QStringList& pages();
/// Null for a page that belongs to no block type.
[[nodiscard]] const FB_Type* typeOf(const QString& page);
/// "Und"; empty when there is no such page.
[[nodiscard]] QString title(const QString& page);
/// The whole page, from its title on; empty when there is no such page.
[[nodiscard]] QString html(const QString& page);
/// The same as plain text: a line for each paragraph, item and row of a table, cells with " | " between.
[[nodiscard]] QString text(const QString& page);

/// What stands in the page's resource, or was made for its topic.
[[nodiscard]] QString fragment(const QString& page);
/// Plain text of a piece of HTML as the pages hold it.
[[nodiscard]] QString plain(const QString& html);

} // namespace FB_Help
