#pragma once

#include "tests/db/Session_Rig.h"

/// Puts blocks and an element into an open new project: 1/2/3 "Licht" is used four times, 4/0/0 "Wind" once, 1/2/4
/// "Reserve" nowhere, a variable twice.
class Usage_Sample {
public:
  explicit Usage_Sample(Session_Rig& rig) : mStore(rig.mSession.database()) {
    mLight = rig.addAddress({1, 2, 3}, QStringLiteral("Licht"))->mKey;
    mUnused = rig.addAddress({1, 2, 4}, QStringLiteral("Reserve"))->mKey;
    mWind = rig.addAddress({4, 0, 0}, QStringLiteral("Wind"))->mKey;
    const QUuid page = mStore.mFbPages.pages().at(0).mGuid;
    addBlock(page, {}, {bound(mLight), bound(mLight)}, {variable()}, {});
    addBlock(page, QStringLiteral("Flur"), {variable(), {}}, {bound(mWind)}, bound(mLight));

    auto visu = std::make_unique<DB_Widget_Page>();
    visu->mCaption = QStringLiteral("Visu");
    auto element = std::make_unique<DB_Widget>();
    element->mPageGuid = mStore.mWidgetPages.appendPage(std::move(visu)).mGuid;
    element->mName = QStringLiteral("Knopf");
    element->mAddresses = {{}, bound(mLight)};
    mElement = mStore.mWidgetPages.appendChild(std::move(element))->mGuid;
  }

  DB_Widget& element() { return *mStore.mWidgetPages.child(mElement); }

  QUuid mLight;
  QUuid mUnused;
  QUuid mWind;
  QUuid mVariable = QUuid::createUuid();

private:
  using Bindings = std::vector<DB_Address_Binding>;

  [[nodiscard]] DB_Address_Binding bound(const QUuid& key) const {
    const DB_Address_Sub_Group& group = *mStore.mAddresses.subGroup(key);
    DB_Address_Binding binding;
    binding.bindTo(group, mStore.mAddresses.addressOf(group));
    return binding;
  }

  [[nodiscard]] DB_Address_Binding variable() const {
    DB_Address_Binding binding;
    binding.mKind = DB_Address_Binding::Kind::Internal;
    binding.mKey = mVariable;
    binding.mName = QStringLiteral("Merker");
    binding.mDpt = {1, 1};
    return binding;
  }

  static std::vector<DB_FB_Pin> pins(const QString& name, const Bindings& bindings) {
    std::vector<DB_FB_Pin> pins;
    for (const DB_Address_Binding& binding : bindings) {
      pins.push_back({QStringLiteral("%1 %2").arg(name).arg(pins.size() + 1), {}, binding});
    }
    return pins;
  }

  void addBlock(const QUuid& page, const QString& title, const Bindings& inputs, const Bindings& outputs,
                const DB_Address_Binding& disable) {
    auto block = std::make_unique<DB_FB_Control>();
    block->mPageGuid = page;
    block->mType = 50;
    block->mTitle = title;
    block->mInputs = pins(QStringLiteral("Eingang"), inputs);
    block->mOutputs = pins(QStringLiteral("Ausgang"), outputs);
    block->mDisableAddress = disable;
    mStore.mFbPages.appendChild(std::move(block));
  }

  ProjectDatabase& mStore;
  QUuid mElement;
};
