#include "fb/model/FB_Page_List_Edits.h"

#include "db/DB_Text.h"
#include "db/Edit_Scope.h"
#include "db/Project_Edits.h"
#include "db/Project_Session.h"
#include "fb/model/FB_Clipboard.h"
#include "fb/model/FB_Page_Edits.h"
#include "fb/model/FB_Types.h"

#include <QCoreApplication>

#include <algorithm>
#include <functional>
#include <limits>

namespace {

using Grouping = Edit_Scope::Grouping;

QString tr(const char* text) {
  return QCoreApplication::translate("FB_Page_List_Edits", text);
}

Edit_Result gone() {
  return Edit_Result::refused(tr("Die Seite gibt es nicht mehr."));
}

bool isTaken(const ProjectDatabase& database, const QString& caption) {
  const auto& pages = database.mFbPages.pages();
  return std::any_of(pages.begin(), pages.end(), [&caption](const auto& page) {
    return page->mCaption.compare(caption, Qt::CaseInsensitive) == 0;
  });
}

/// The first caption that no page has.
QString firstFree(const ProjectDatabase& database, qsizetype from, const std::function<QString(qsizetype)>& caption) {
  while (isTaken(database, caption(from))) {
    ++from;
  }
  return caption(from);
}

/// "Keller (Kopie)", "Keller (Kopie 2)".
QString copyCaption(const ProjectDatabase& database, const QString& caption) {
  return firstFree(database, 1, [&caption](qsizetype number) {
    const QString end = number == 1 ? tr(" (Kopie)") : tr(" (Kopie %1)").arg(number);
    return caption.left(Project_Edits::cNameLimit - end.size()) + end;
  });
}

QList<QUuid> blocksOf(const DB_FB_Page& page) {
  QList<QUuid> blocks;
  for (const auto& block : page.mChildren) {
    blocks.append(block->mGuid);
  }
  return blocks;
}

QPointF upperLeft(const DB_FB_Page& page) {
  double x = std::numeric_limits<double>::max();
  double y = x;
  for (const auto& block : page.mChildren) {
    x = std::min(x, block->mX);
    y = std::min(y, block->mY);
  }
  return {x, y};
}

/// Why the blocks of the page may not be there twice; empty when they may.
QString whyNotTwice(const Project_Session& session, const DB_FB_Page& page) {
  for (const auto& block : page.mChildren) {
    if (QString reason = FB_Page_Edits::whyNot(session, block->mType); !reason.isEmpty()) {
      return reason;
    }
  }
  return {};
}

QUuid insert(Project_Session& session, Edit_Scope& scope, std::unique_ptr<DB_FB_Page> page, const QUuid& after) {
  auto& list = session.database().mFbPages;
  const DB_FB_Page* const before = list.page(after);
  const qsizetype place = before ? list.pages().indexOf(before) + 1 : list.pages().size();
  const QUuid guid = list.insertPage(place, std::move(page)).mGuid;
  scope.created(session.fbPageUndo(), guid);
  return guid;
}

Edit_Result checkSize(const QString& what, int before, int now) {
  using namespace FB_Page_List_Edits;
  if (now == before || (now >= cSizeMinimum && now <= cSizeMaximum)) {
    return Edit_Result::done();
  }
  return Edit_Result::refused(tr("%1: %2 Pixel sind nicht möglich, erlaubt sind %3 bis %4.")
                                  .arg(what)
                                  .arg(now)
                                  .arg(cSizeMinimum)
                                  .arg(cSizeMaximum));
}

Edit_Result checkController(const ProjectDatabase& database, int before, int now) {
  const auto& controllers = database.mProject.mControllers;
  const bool isThere = std::any_of(controllers.begin(), controllers.end(),
                                   [now](const DB_Controller& controller) { return controller.mNumber == now; });
  if (now == 0 || now == before || isThere) {
    return Edit_Result::done();
  }
  return Edit_Result::refused(tr("Die Steuerung %1 steht nicht in der Liste der Steuerungen.").arg(now));
}

} // namespace

QString FB_Page_List_Edits::freeCaption(const Project_Session& session) {
  const ProjectDatabase& database = session.database();
  return firstFree(database, database.mFbPages.pages().size() + 1,
                   [](qsizetype number) { return tr("Programm %1").arg(number); });
}

FB_Page_List_Edits::Result FB_Page_List_Edits::create(Project_Session& session, const QString& caption,
                                                      const QUuid& after) {
  const QString clean = DB_Text::singleLine(caption);
  auto page = std::make_unique<DB_FB_Page>();
  page->mCaption = clean.isEmpty() ? freeCaption(session) : clean;
  if (Edit_Result check = Project_Edits::checkPageName(page->mCaption); !check) {
    return {check, {}};
  }
  if (!after.isNull() && !session.database().mFbPages.page(after)) {
    return {gone(), {}};
  }
  Edit_Scope scope(session.history(), tr("Neue Programm Seite"), Grouping::Own);
  if (!scope) {
    return {Edit_Result::refused(scope.refusal()), {}};
  }
  return {Edit_Result::done(), insert(session, scope, std::move(page), after)};
}

FB_Page_List_Edits::Result FB_Page_List_Edits::duplicate(Project_Session& session, const QUuid& page,
                                                         bool keepOutputs) {
  auto& list = session.database().mFbPages;
  const DB_FB_Page* const original = list.page(page);
  if (!original) {
    return {gone(), {}};
  }
  Edit_Scope scope(session.history(), tr("Seite duplizieren"), Grouping::Own);
  if (!scope) {
    return {Edit_Result::refused(scope.refusal()), {}};
  }
  if (const QString reason = whyNotTwice(session, *original); !reason.isEmpty()) {
    return {Edit_Result::refused(reason), {}};
  }
  const QByteArray packed = FB_Clipboard::pack(session, blocksOf(*original));
  if (packed.isEmpty() && !original->mChildren.isEmpty()) {
    return {Edit_Result::refused(FB_Clipboard::limitRefusal()), {}};
  }
  auto copy = std::make_unique<DB_FB_Page>(*original);
  copy->mGuid = QUuid::createUuid();
  copy->mCaption = copyCaption(session.database(), original->mCaption);
  const QUuid guid = insert(session, scope, std::move(copy), page);
  if (!original->mChildren.isEmpty()) {
    const FB_Page_Edits::Result pasted = FB_Clipboard::paste(session, guid, packed, upperLeft(*original), keepOutputs);
    if (!pasted) {
      scope.deleted(session.fbPageUndo(), guid);
      [[maybe_unused]] const auto taken = list.takePage(guid);
      return {Edit_Result::refused(pasted.mError), {}};
    }
  }
  return {Edit_Result::done(), guid};
}

Edit_Result FB_Page_List_Edits::remove(Project_Session& session, const QUuid& page) {
  auto& list = session.database().mFbPages;
  const DB_FB_Page* const found = list.page(page);
  if (!found) {
    return gone();
  }
  Edit_Scope scope(session.history(), tr("Seite löschen"), Grouping::Own);
  if (!scope) {
    return Edit_Result::refused(scope.refusal());
  }
  // First the blocks, so that taking it back finds the page when they return.
  if (!found->mChildren.isEmpty()) {
    if (Edit_Result result = FB_Page_Edits::remove(session, blocksOf(*found)); !result) {
      return result;
    }
  }
  scope.deleted(session.fbPageUndo(), page);
  [[maybe_unused]] const auto taken = list.takePage(page);
  return Edit_Result::done();
}

Edit_Result FB_Page_List_Edits::move(Project_Session& session, const QUuid& page, qsizetype place) {
  auto& list = session.database().mFbPages;
  const DB_FB_Page* const found = list.page(page);
  if (!found) {
    return gone();
  }
  const qsizetype count = list.pages().size();
  if (place < 0 || place >= count) {
    return Edit_Result::refused(
        tr("Die Stelle %1 gibt es nicht; das Projekt hat %2 Programmseiten.").arg(place + 1).arg(count));
  }
  Edit_Scope scope(session.history(), tr("Seite verschieben"), Grouping::Own);
  if (!scope) {
    return Edit_Result::refused(scope.refusal());
  }
  if (const qsizetype from = list.pages().indexOf(found); from != place) {
    scope.moved(session.fbPageUndo(), page);
    list.movePage(from, place);
  }
  return Edit_Result::done();
}

FB_Page_List_Edits::Properties FB_Page_List_Edits::properties(const Project_Session& session, const QUuid& page) {
  const DB_FB_Page* const found = session.database().mFbPages.page(page);
  return found ? Properties{found->mCaption,         found->mComment, found->mActive,
                            found->mControllerIndex, found->mWidth,   found->mHeight}
               : Properties();
}

Edit_Result FB_Page_List_Edits::setProperties(Project_Session& session, const QUuid& page,
                                              const Properties& properties) {
  auto& list = session.database().mFbPages;
  const DB_FB_Page* const found = list.page(page);
  if (!found) {
    return gone();
  }
  for (const Edit_Result& check : {Project_Edits::checkPageName(properties.mCaption),
                                   checkController(session.database(), found->mControllerIndex, properties.mController),
                                   checkSize(tr("Breite"), found->mWidth, properties.mWidth),
                                   checkSize(tr("Höhe"), found->mHeight, properties.mHeight)}) {
    if (!check) {
      return check;
    }
  }
  Edit_Scope scope(session.history(), tr("Seite ändern"), Grouping::Own);
  if (!scope) {
    return Edit_Result::refused(scope.refusal());
  }
  scope.modified(session.fbPageUndo(), page);
  list.changePage(page, [&properties](DB_FB_Page& record) {
    record.mCaption = DB_Text::singleLine(properties.mCaption);
    record.mComment = DB_Text::clean(properties.mComment);
    record.mActive = properties.mIsActive;
    record.mControllerIndex = properties.mController;
    record.mWidth = properties.mWidth;
    record.mHeight = properties.mHeight;
  });
  return Edit_Result::done();
}

FB_Page_List_Edits::Properties FB_Page_List_Edits::merged(const Properties& shown, const Properties& edited,
                                                          const Properties& now) {
  const auto take = [&](auto member) { return edited.*member == shown.*member ? now.*member : edited.*member; };
  return {take(&Properties::mCaption),    take(&Properties::mComment), take(&Properties::mIsActive),
          take(&Properties::mController), take(&Properties::mWidth),   take(&Properties::mHeight)};
}
