#include "fb/model/FB_Edit.h"

#include "fb/model/FB_Geometry.h"
#include "fb/model/FB_Pins.h"

#include <QCoreApplication>
#include <QSet>

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("FB_Page_Edits", text);
}

Edit_Result noBlock() {
  return Edit_Result::refused(tr("Den Baustein gibt es nicht mehr."));
}

} // namespace

const DB_FB_Pin* FB_Edit::pin(const FB_Pin_Ref& pin) const {
  const DB_FB_Control* const found = block(pin.mBlock);
  if (!found) {
    return nullptr;
  }
  const std::vector<DB_FB_Pin>& pins = FB_Pins::pins(*found, pin.mSide);
  return pin.mIndex >= 0 && pin.mIndex < static_cast<int>(pins.size()) ? &pins[static_cast<size_t>(pin.mIndex)]
                                                                       : nullptr;
}

bool FB_Edit::find(const ProjectDatabase& database, const QList<QUuid>& guids,
                   std::vector<const DB_FB_Control*>& blocks, Edit_Result& missing) {
  QSet<QUuid> pages;
  QSet<QUuid> wanted;
  for (const QUuid& guid : guids) {
    const DB_FB_Control* const found = database.mFbPages.child(guid);
    if (!found) {
      missing = noBlock();
      return false;
    }
    pages.insert(found->mPageGuid);
    wanted.insert(guid);
  }
  blocks.reserve(static_cast<size_t>(wanted.size()));
  for (const auto& page : database.mFbPages.pages()) {
    if (pages.contains(page->mGuid)) {
      for (const auto& child : page->mChildren) {
        if (wanted.contains(child->mGuid)) {
          blocks.push_back(child.get());
        }
      }
    }
  }
  return true;
}

Edit_Result FB_Edit::check(const QUuid& block) const {
  return this->block(block) ? Edit_Result::done() : noBlock();
}

Edit_Result FB_Edit::check(const FB_Pin_Ref& pin) const {
  if (this->pin(pin)) {
    return Edit_Result::done();
  }
  const DB_FB_Control* const found = block(pin.mBlock);
  if (!found) {
    return noBlock();
  }
  const qsizetype count = static_cast<qsizetype>(FB_Pins::pins(*found, pin.mSide).size());
  const QString text = pin.mSide == FB_Side::Input
                           ? tr("Der Baustein \"%1\" hat %2 Eingänge, den Eingang %3 hat er nicht.")
                           : tr("Der Baustein \"%1\" hat %2 Ausgänge, den Ausgang %3 hat er nicht.");
  return Edit_Result::refused(
      text.arg(FB_Geometry::title(*found), QString::number(count), QString::number(qint64(pin.mIndex) + 1)));
}

void FB_Edit::setBinding(const FB_Pin_Ref& pin, const DB_Address_Binding& binding) {
  change(pin.mBlock, [&](DB_FB_Control& block) {
    FB_Pins::pins(block, pin.mSide)[static_cast<size_t>(pin.mIndex)].mBinding = binding;
  });
}

QUuid FB_Edit::append(std::unique_ptr<DB_FB_Control> block) {
  const DB_FB_Control* const added = mSession.database().mFbPages.appendChild(std::move(block));
  mScope.created(mSession.blockUndo(), added->mGuid);
  return added->mGuid;
}

void FB_Edit::remove(const QUuid& block) {
  mScope.deleted(mSession.blockUndo(), block);
  mSession.database().mFbPages.takeChild(block);
}
