#pragma once

#include <QUuid>

#include <vector>

class DB_FB_Page;
class ProjectDatabase;

/// As the how-many-th a controller executes a block: its pages in their order, on each the blocks in theirs.
///
/// A number that the record holds goes first. Comments are never executed, and nothing is on a page that is switched
/// off: that is number 0. A page whose controller is gone runs on the main one.
namespace FB_Execution_Order {

/// The numbers of a page's blocks, in their order.
[[nodiscard]] std::vector<int> ofPage(const ProjectDatabase& database, const DB_FB_Page& page);
/// The number of one block; 0 when there is no such block, too.
[[nodiscard]] int ofBlock(const ProjectDatabase& database, const QUuid& block);

} // namespace FB_Execution_Order
