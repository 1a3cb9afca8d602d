#pragma once

#include "db/Edit_Result.h"

#include <QString>
#include <QUuid>

class Project_Session;

/// The edits of the list of logic pages, each one undo step. All of them refuse in the operating mode. A page is
/// renamed by `Project_Edits::renamePage`.
namespace FB_Page_List_Edits {

/// What became of an edit that makes a page.
struct Result : Edit_Result {
  QUuid mPage;
};

/// What a user may change of a page. Sizes in pixels of the unzoomed page.
struct Properties {
  QString mCaption; ///< 1 to 255 characters in one line
  QString mComment;
  bool mIsActive = true;
  int mController = 0; ///< number of the executing controller, 0 for the main one
  int mWidth = 0;      ///< cSizeMinimum..cSizeMaximum, as the height
  int mHeight = 0;
  friend bool operator==(const Properties&, const Properties&) = default;
};
inline constexpr int cSizeMinimum = 200;
inline constexpr int cSizeMaximum = 100000;

/// "Programm 6": a caption that no logic page has.
[[nodiscard]] QString freeCaption(const Project_Session& session);
/// Behind the page `after`, at the end when that is null. An empty caption gets a free one.
[[nodiscard]] Result create(Project_Session& session, const QString& caption, const QUuid& after = {});
/// With its blocks, behind the page; the wires between them stay, through variables of their own. Refuses when the page
/// holds a block that may be in a project only once.
[[nodiscard]] Result duplicate(Project_Session& session, const QUuid& page, bool keepOutputs);
/// With its blocks. The last logic page of a project may go too.
Edit_Result remove(Project_Session& session, const QUuid& page);
/// To that place among the logic pages, 0 for the first.
Edit_Result move(Project_Session& session, const QUuid& page, qsizetype place);
[[nodiscard]] Properties properties(const Project_Session& session, const QUuid& page);
Edit_Result setProperties(Project_Session& session, const QUuid& page, const Properties& properties);
/// What a user made of the properties that were shown, on top of what somebody else has made of them meanwhile.
[[nodiscard]] Properties merged(const Properties& shown, const Properties& edited, const Properties& now);

} // namespace FB_Page_List_Edits
