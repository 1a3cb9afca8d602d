// What is done with the pins of the property panel: bound, unbound, followed to their other ends.
#include "db/Address_Usage_Watch.h"
#include "db/Project_Session.h"
#include "fb/FB_Page.h"
#include "fb/model/FB_Binding_Search.h"
#include "fb/model/FB_Pins.h"
#include "fb/model/FB_Types.h"
#include "fb/model/FB_Variables.h"
#include "fb/properties/FB_Address_Picker.h"
#include "fb/properties/FB_Dev_Properties_Address.h"
#include "fb/properties/FB_Dev_Properties_Address_Tree.h"
#include "ui/Address_Value_Menu.h"
#include "ui/Theme.h"

#include <QMenu>

#include <algorithm>
#include <span>

namespace {

constexpr int cFewEnds = 4;   ///< that have room in the menu itself
constexpr int cMostEnds = 30; ///< that a menu shows

/// A sign of the menu's access keys in a name is none.
QString plain(QString name) {
  return name.replace('&', QLatin1String("&&"));
}

} // namespace

const DB_Address_Binding* FB_Dev_Properties_Address::bindingOf(const FB_Pin_Ref& pin) const {
  const DB_FB_Control* const block = std::as_const(mSession).database().mFbPages.child(pin.mBlock);
  if (!block || static_cast<size_t>(pin.mIndex) >= FB_Pins::pins(*block, pin.mSide).size()) {
    return nullptr;
  }
  return &FB_Pins::pins(*block, pin.mSide)[static_cast<size_t>(pin.mIndex)].mBinding;
}

QList<FB_Pin_Ref> FB_Dev_Properties_Address::selectedPins() const {
  QList<FB_Pin_Ref> pins;
  for (const QTreeWidgetItem* const item : mTree->selectedItems()) {
    if (const std::optional<FB_Pin_Ref> pin = TreeWidgetIO::pinOf(item)) {
      pins.append(*pin);
    }
  }
  return pins;
}

QList<QUuid> FB_Dev_Properties_Address::addressesOf(const QList<FB_Pin_Ref>& pins) const {
  QList<QUuid> keys;
  for (const FB_Pin_Ref& pin : pins) {
    const DB_Address_Binding* const binding = bindingOf(pin);
    if (binding && binding->mKind == DB_Address_Binding::Kind::GroupAddress && !keys.contains(binding->mKey)) {
      keys.append(binding->mKey);
    }
  }
  return keys;
}

/// A refusal is told in the status bar; the cells show what is true in either case.
void FB_Dev_Properties_Address::finish(const Edit_Result& result) {
  if (!result) {
    emit statusText(result.mError);
  } else if (mPage) {
    mPage->finish(result);
  }
  refresh();
}

void FB_Dev_Properties_Address::onTree_itemClicked(QTreeWidgetItem* item, int column) {
  const std::optional<FB_Pin_Ref> pin = TreeWidgetIO::pinOf(item);
  const DB_Address_Binding* const binding = pin ? bindingOf(*pin) : nullptr;
  if (column == TreeWidgetIO::cDelete && mayEdit() && binding && binding->mKind != DB_Address_Binding::Kind::None) {
    unbind({*pin});
  }
}

void FB_Dev_Properties_Address::onTree_itemDoubleClicked(QTreeWidgetItem* item, int column) {
  const std::optional<FB_Pin_Ref> pin = TreeWidgetIO::pinOf(item);
  if (!pin || column == TreeWidgetIO::cDelete) {
    return;
  }
  if (!mayEdit()) {
    emit statusText(Session_State::operatingModeRefusal());
  } else if (column == TreeWidgetIO::cBinding) {
    mTree->editBinding(*item);
  } else {
    pick(*pin);
  }
}

void FB_Dev_Properties_Address::onTree_itemChanged(QTreeWidgetItem* item, int column) {
  const std::optional<FB_Pin_Ref> pin = TreeWidgetIO::pinOf(item);
  if (!mIsFilling && pin && column == TreeWidgetIO::cBinding) {
    bindTyped(*pin, item->text(column));
  }
}

void FB_Dev_Properties_Address::bindTyped(const FB_Pin_Ref& pin, const QString& text) {
  using Kind = FB_Binding_Search::Meaning::Kind;
  const FB_Binding_Search search(std::as_const(mSession).database(), mWatch->usage());
  const FB_Binding_Search::Meaning meaning = search.meaning(text);
  switch (meaning.mKind) {
  case Kind::Nothing:
    finish(FB_Page_Edits::unbind(mSession, pin));
    break;
  case Kind::Address:
    finish(FB_Page_Edits::bind(mSession, pin, meaning.mKey));
    break;
  case Kind::Variable:
    finish(FB_Page_Edits::bindVariable(mSession, pin, meaning.mKey));
    break;
  case Kind::New_Variable:
    finish(FB_Page_Edits::bindNewVariable(mSession, pin, meaning.mText));
    break;
  case Kind::Refused:
    finish(Edit_Result::refused(meaning.mText));
    break;
  }
}

void FB_Dev_Properties_Address::unbind(const QList<FB_Pin_Ref>& pins) {
  for (const FB_Pin_Ref& pin : pins) { // one step: all in one turn
    finish(FB_Page_Edits::unbind(mSession, pin));
  }
}

void FB_Dev_Properties_Address::pick(const FB_Pin_Ref& pin) {
  const DB_Address_Binding* const binding = bindingOf(pin);
  if (!binding) {
    return;
  }
  const DB_FB_Control& block = *std::as_const(mSession).database().mFbPages.child(pin.mBlock);
  const QString name = FB_Pins::pins(block, pin.mSide)[static_cast<size_t>(pin.mIndex)].mLongName;
  FB_Address_Picker dialog(mSession, tr("%1, %2").arg(FB_Variables::ownerName(block), name), binding->mKey, window());
  const QPointer<FB_Dev_Properties_Address> self = this;
  const bool isChosen = dialog.exec() == QDialog::Accepted && !dialog.key().isNull();
  if (self && isChosen) { // the pin may be gone meanwhile, then the edit refuses
    finish(dialog.isVariable() ? FB_Page_Edits::bindVariable(mSession, pin, dialog.key())
                               : FB_Page_Edits::bind(mSession, pin, dialog.key()));
  }
}

/// The other pins that are bound to the same, those of the other side first.
void FB_Dev_Properties_Address::addOtherEnds(QMenu& menu, const FB_Pin_Ref& pin) {
  const DB_Address_Binding* const binding = bindingOf(pin);
  if (!binding || binding->mKind == DB_Address_Binding::Kind::None) {
    return;
  }
  const auto own = pin.mSide == FB_Side::Input ? Address_Use::Place::Input : Address_Use::Place::Output;
  std::vector<Address_Use> ends;
  for (const bool isOwnSide : {false, true}) {
    for (const Address_Use& use : mWatch->usage().uses(binding->mKey)) {
      const bool isItself = use.mOwnerGuid == pin.mBlock && use.mPlace == own && use.mIndex == pin.mIndex;
      if (!isItself && (use.mPlace == own) == isOwnSide && use.mPlace != Address_Use::Place::Element) {
        ends.push_back(use);
      }
    }
  }
  if (ends.empty()) {
    return;
  }
  menu.addSeparator();
  const bool areFew = ends.size() <= cFewEnds;
  QMenu& target = areFew ? menu : *menu.addMenu(tr("Zum anderen &Ende"));
  const size_t shown = std::min<size_t>(ends.size(), cMostEnds);
  for (const Address_Use& use : std::span(ends).first(shown)) {
    const QString text = plain(Address_Usage::text(std::as_const(mSession).database(), use, FB_Types::name).toString());
    target.addAction(areFew ? tr("Zum anderen Ende: %1").arg(text) : text, this,
                     [this, use] { emit blockChosen(use.mPageGuid, use.mOwnerGuid); });
  }
  if (shown < ends.size()) {
    target.addAction(tr("%1 weitere").arg(ends.size() - shown))->setEnabled(false);
  }
}

void FB_Dev_Properties_Address::onTree_customContextMenuRequested(const QPoint& at) {
  QTreeWidgetItem* const item = mTree->itemAt(at);
  const std::optional<FB_Pin_Ref> pin = TreeWidgetIO::pinOf(item);
  if (!pin) {
    return;
  }
  const QList<FB_Pin_Ref> pins = selectedPins();
  const bool isBound = std::ranges::any_of(pins, [this](const FB_Pin_Ref& selected) {
    const DB_Address_Binding* const binding = bindingOf(selected);
    return binding && binding->mKind != DB_Address_Binding::Kind::None;
  });
  auto* const menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->setToolTipsVisible(true);
  mValueKeys = addressesOf(pins);
  menu->addMenu(mValueMenu);
  menu->addSeparator();
  menu->addAction(Theme::icon(QStringLiteral("search-white")), tr("Adresse auswählen…"), this,
                  [this, pin] { pick(*pin); })
      ->setEnabled(mayEdit());
  menu->addAction(Theme::icon(QStringLiteral("trash-white")), tr("Verknüpfung löschen"), this,
                  [this, pins] { unbind(pins); })
      ->setEnabled(mayEdit() && isBound);
  addOtherEnds(*menu, *pin);
  menu->popup(mTree->viewport()->mapToGlobal(at));
}
