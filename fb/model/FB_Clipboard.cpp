#include "fb/model/FB_Clipboard.h"

#include "fb/model/FB_Copied_Bindings.h"
#include "fb/model/FB_Edit.h"
#include "fb/model/FB_Packed_Blocks.h"
#include "fb/model/FB_Positions.h"
#include "fb/model/FB_Types.h"

#include <QCoreApplication>
#include <QLocale>
#include <QSet>

#include <algorithm>

namespace {

using Result = FB_Page_Edits::Result;
using Blocks = FB_Packed_Blocks::Blocks;

QString tr(const char* text) {
  return QCoreApplication::translate("FB_Clipboard", text);
}

Result refused(const QString& error) {
  return {Edit_Result::refused(error), {}, {}};
}

template <class Block_Pointers>
QPointF cornerOf(const Block_Pointers& blocks) {
  QPointF corner(blocks.front()->mX, blocks.front()->mY);
  for (const auto& block : blocks) {
    corner = {std::min(corner.x(), block->mX), std::min(corner.y(), block->mY)};
  }
  return corner;
}

/// Why these may not be inserted; empty when they may.
QString whyNot(const Project_Session& session, const Blocks& blocks) {
  QSet<int> once;
  for (const auto& block : blocks) {
    const FB_Type* const type = FB_Types::find(block->mType);
    if (!type || !type->mIsOnce) {
      continue;
    }
    if (once.contains(block->mType)) {
      return FB_Page_Edits::onceRefusal();
    }
    once.insert(block->mType);
    if (QString reason = FB_Page_Edits::whyNot(session, block->mType); !reason.isEmpty()) {
      return reason;
    }
  }
  return {};
}

Result insert(Project_Session& session, FB_Edit& edit, const QUuid& page, Blocks blocks, const QPointF& position,
              bool keepOutputs) {
  if (!edit.database().mFbPages.page(page)) {
    return refused(tr("Die Seite gibt es nicht mehr."));
  }
  if (const Edit_Result check = FB_Positions::check(position); !check) {
    return refused(check.mError);
  }
  if (const QString reason = whyNot(session, blocks); !reason.isEmpty()) {
    return refused(reason);
  }
  const QPointF corner(std::max(0.0, position.x()), std::max(0.0, position.y()));
  const QPointF way = corner - cornerOf(blocks);
  FB_Copied_Bindings bindings(edit.database(), blocks, keepOutputs);
  Result result;
  for (std::unique_ptr<DB_FB_Control>& block : blocks) {
    const QPointF to = FB_Positions::clamped(QPointF(block->mX, block->mY) + way);
    block->mGuid = QUuid::createUuid();
    block->mPageGuid = page;
    block->mX = to.x();
    block->mY = to.y();
    block->mExecutionNumber = 0;
    bindings.adapt(*block);
    result.mBlocks.append(edit.append(std::move(block)));
  }
  if (bindings.missing() == 1) {
    result.mNote = tr("Eine Gruppenadresse gibt es in diesem Projekt nicht, ihre Anschlüsse sind nicht verknüpft.");
  } else if (bindings.missing() > 1) {
    result.mNote = tr("%1 Gruppenadressen gibt es in diesem Projekt nicht, ihre Anschlüsse sind nicht verknüpft.")
                       .arg(bindings.missing());
  }
  return result;
}

} // namespace

QString FB_Clipboard::mimeType() {
  return QStringLiteral("application/x-quarna-studio-blocks");
}

QByteArray FB_Clipboard::pack(const Project_Session& session, const QList<QUuid>& blocks) {
  std::vector<const DB_FB_Control*> found;
  Edit_Result missing;
  if (!FB_Edit::find(session.database(), blocks, found, missing) || found.empty() || found.size() > cBlockLimit) {
    return {};
  }
  const QByteArray packed = FB_Packed_Blocks::pack(found);
  return packed.size() > cSizeLimit ? QByteArray() : packed;
}

QString FB_Clipboard::limitRefusal() {
  const QLocale locale;
  return tr("So viel lässt sich nicht auf einmal kopieren: höchstens %1 Bausteine, die zusammen %2 belegen.")
      .arg(locale.toString(cBlockLimit), locale.formattedDataSize(cSizeLimit, 0));
}

bool FB_Clipboard::isPacked(const QByteArray& packed) {
  return FB_Packed_Blocks::isPacked(packed);
}

Result FB_Clipboard::paste(Project_Session& session, const QUuid& page, const QByteArray& packed,
                           const QPointF& position, bool keepOutputs) {
  FB_Edit edit(session, tr("Bausteine einfügen"));
  if (!edit) {
    return refused(edit.refusal().mError);
  }
  std::optional<Blocks> blocks = FB_Packed_Blocks::unpack(packed);
  return blocks ? insert(session, edit, page, std::move(*blocks), position, keepOutputs)
                : refused(tr("In der Zwischenablage stehen keine Bausteine, die sich einfügen lassen."));
}

Result FB_Clipboard::duplicate(Project_Session& session, const QList<QUuid>& blocks, const QPointF& offset,
                               bool keepOutputs) {
  FB_Edit edit(session, tr("Bausteine duplizieren"));
  if (!edit) {
    return refused(edit.refusal().mError);
  }
  std::vector<const DB_FB_Control*> found;
  Edit_Result result;
  if (!FB_Edit::find(edit.database(), blocks, found, result) || found.empty()) {
    return {result, {}, {}};
  }
  const QUuid page = found.front()->mPageGuid;
  std::erase_if(found, [&page](const DB_FB_Control* block) { return block->mPageGuid != page; });
  Blocks copies;
  for (const DB_FB_Control* const block : found) {
    copies.push_back(std::make_unique<DB_FB_Control>(*block));
  }
  return insert(session, edit, page, std::move(copies), cornerOf(found) + offset, keepOutputs);
}
