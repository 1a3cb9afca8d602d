#pragma once

#include "db/ProjectDatabase.h"

#include <array>
#include <random>

/// Fills a store with a project of the largest size that the studio is made for: 100,000 group addresses (more than a
/// bus can carry, so the last ones stand in main groups above 31), 10,000 function blocks on 200 pages and 20,000
/// elements on 500 pages. Every run makes the same project.
class Big_Project {
public:
  static constexpr int cAddresses = 100'000;
  static constexpr int cBusAddresses = 65'536; ///< as many as a bus can carry
  static constexpr int cLogicPages = 200;
  static constexpr int cBlocksOnPage = 50;
  static constexpr int cVisuPages = 500;
  static constexpr int cElementsOnPage = 40;

  explicit Big_Project(ProjectDatabase& store, int addresses = cAddresses) : mStore(store), mAddresses(addresses) {}

  void fill() {
    mStore.mProject.mName = QStringLiteral("Großes Haus");
    mStore.mProject.mProjectId = nextGuid();
    fillAddresses();
    fillLogic();
    fillVisualisation();
  }

private:
  static constexpr int cSubsOfMiddle = Group_Address::cSubMax + 1;
  static constexpr int cMiddlesOfMain = Group_Address::cMiddleMax + 1;

  struct Datapoint {
    const char* mPurpose;
    int mMain;
    int mSub;
  };
  static constexpr std::array<Datapoint, 8> cDatapoints = {{
      {"Licht Decke schalten", 1, 1},
      {"Licht Decke Status", 1, 11},
      {"Licht Wand dimmen", 3, 7},
      {"Helligkeit Wert", 5, 1},
      {"Jalousie Auf/Ab", 1, 8},
      {"Temperatur Istwert", 9, 1},
      {"Sollwert Verschiebung", 9, 2},
      {"Betriebsart Heizung", 20, 102},
  }};
  static constexpr std::array<const char*, 5> cFloors = {"KG", "EG", "1. OG", "2. OG", "DG"};
  static constexpr std::array<const char*, 9> cRooms = {"Wohnzimmer", "Küche", "Schlafzimmer", "Bad",   "Flur",
                                                        "Büro",       "Lager", "Besprechung",  "Garage"};

  [[nodiscard]] QUuid nextGuid() {
    QUuid guid(static_cast<uint>(mRandom()), 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
    for (uchar& byte : guid.data4) {
      byte = static_cast<uchar>(mRandom());
    }
    guid.data2 = static_cast<ushort>(mRandom());
    guid.data3 = static_cast<ushort>(0x4000 | (mRandom() & 0x0fff));
    return guid;
  }

  [[nodiscard]] static QString place(int number) {
    const auto index = static_cast<size_t>(number);
    return QString::fromUtf8(cFloors[index / 500 % cFloors.size()]) + ' ' +
           QString::fromUtf8(cRooms[index / 8 % cRooms.size()]);
  }

  void fillAddresses() {
    mStore.mAddresses.beginChange();
    QUuid mainKey;
    QUuid middleKey;
    for (int i = 0; i < mAddresses; ++i) {
      const int middleIndex = i / cSubsOfMiddle;
      if (i % (cSubsOfMiddle * cMiddlesOfMain) == 0) {
        auto group = std::make_unique<DB_Address_MainGroup>();
        group->mKey = mainKey = nextGuid();
        group->mNumber = middleIndex / cMiddlesOfMain;
        group->mName = QStringLiteral("Hauptgruppe %1").arg(group->mNumber);
        mStore.mAddresses.add(std::move(group));
      }
      if (i % cSubsOfMiddle == 0) {
        auto group = std::make_unique<DB_Address_Middle_Group>();
        group->mKey = middleKey = nextGuid();
        group->mMainKey = mainKey;
        group->mNumber = middleIndex % cMiddlesOfMain;
        group->mName = QStringLiteral("Mittelgruppe %1").arg(middleIndex);
        mStore.mAddresses.add(std::move(group));
      }
      addAddress(i, middleKey);
    }
    mStore.mAddresses.endChange();
  }

  void addAddress(int i, const QUuid& middleKey) {
    const Datapoint& datapoint = cDatapoints[static_cast<size_t>(i) % cDatapoints.size()];
    auto group = std::make_unique<DB_Address_Sub_Group>();
    group->mKey = nextGuid();
    group->mMiddleKey = middleKey;
    group->mNumber = i % cSubsOfMiddle;
    group->mName = place(i) + ' ' + QString::fromUtf8(datapoint.mPurpose) + ' ' + QString::number(i);
    if (i % 2 == 0) {
      group->mDescription = QStringLiteral("Verteiler UV%1, Kanal %2, geprüft").arg(i / 64).arg(i % 64);
    }
    group->mDpt = {datapoint.mMain, datapoint.mSub};
    group->mDptRaw = QStringLiteral("DPST-%1-%2").arg(datapoint.mMain).arg(datapoint.mSub);
    group->mReadAtStart = i % 3 == 0;
    group->mSecurity = QStringLiteral("Auto");
    mStore.mAddresses.add(std::move(group));
  }

  /// Bound to some group address, with everything that is cached of it.
  void bindToAny(DB_Address_Binding& binding) {
    const int i = static_cast<int>(mRandom() % static_cast<unsigned>(mAddresses));
    const int middle = i / cSubsOfMiddle;
    const Group_Address address(middle / cMiddlesOfMain, middle % cMiddlesOfMain, i % cSubsOfMiddle);
    binding.bindTo(*mStore.mAddresses.subGroup(address), address);
  }

  [[nodiscard]] static DB_FB_Pin pin(const QString& name, int number) {
    return {name + ' ' + QString::number(number), name.left(1) + QString::number(number), {}};
  }

  void fillLogic() {
    for (int i = 0; i < cLogicPages; ++i) {
      auto page = std::make_unique<DB_FB_Page>();
      page->mGuid = nextGuid();
      page->mCaption = place(i) + QStringLiteral(" Logik %1").arg(i);
      const QUuid pageGuid = mStore.mFbPages.appendPage(std::move(page)).mGuid;
      for (int j = 0; j < cBlocksOnPage; ++j) {
        addBlock(i * cBlocksOnPage + j, pageGuid);
      }
    }
  }

  void addBlock(int i, const QUuid& pageGuid) {
    auto block = std::make_unique<DB_FB_Control>();
    block->mGuid = nextGuid();
    block->mPageGuid = pageGuid;
    block->mType = 50 + i % 40;
    block->mX = i % 10 * 180;
    block->mY = i / 10 % 5 * 240;
    block->mExecutionNumber = i % cBlocksOnPage + 1;
    if (i % 4 == 0) {
      block->mComment = QStringLiteral("Schaltet %1 bei Abwesenheit").arg(place(i));
    }
    block->mParams = {QStringLiteral("2"), QStringLiteral("1"), QString::number(i % 100)};
    for (int pinNumber = 1; pinNumber <= 2; ++pinNumber) {
      block->mInputs.push_back(pin(QStringLiteral("Eingang"), pinNumber));
      bindToAny(block->mInputs.back().mBinding);
      block->mOutputs.push_back(pin(QStringLiteral("Ausgang"), pinNumber));
    }
    DB_Address_Binding& variable = block->mOutputs.front().mBinding;
    variable.mKind = DB_Address_Binding::Kind::Internal;
    variable.mKey = nextGuid();
    variable.mName = QStringLiteral("Merker %1").arg(i);
    variable.mDpt.mMain = 1;
    mStore.mFbPages.appendChild(std::move(block));
  }

  void fillVisualisation() {
    for (int i = 0; i < cVisuPages; ++i) {
      auto page = std::make_unique<DB_Widget_Page>();
      page->mGuid = nextGuid();
      page->mCaption = place(i) + QStringLiteral(" Seite %1").arg(i);
      const QUuid pageGuid = mStore.mWidgetPages.appendPage(std::move(page)).mGuid;
      for (int j = 0; j < cElementsOnPage; ++j) {
        addElement(i * cElementsOnPage + j, pageGuid);
      }
    }
  }

  void addElement(int i, const QUuid& pageGuid) {
    auto element = std::make_unique<DB_Widget>();
    element->mGuid = nextGuid();
    element->mPageGuid = pageGuid;
    element->mType = 10 + i % 30;
    element->mName = QStringLiteral("Element_%1").arg(i);
    element->mX = i % 8 * 150;
    element->mY = i / 8 % 5 * 150;
    element->mWidth = 140;
    element->mHeight = 140;
    element->mTabOrder = i % cElementsOnPage;
    element->mParams = {place(i), QStringLiteral("licht_an.svg"), QStringLiteral("licht_aus.svg"),
                        QStringLiteral("#1e88e5"), QString::number(i % 100)};
    for (int j = 0; j <= i % 2; ++j) {
      bindToAny(element->mAddresses.emplace_back());
    }
    mStore.mWidgetPages.appendChild(std::move(element));
  }

  ProjectDatabase& mStore;
  int mAddresses;
  std::mt19937 mRandom{8800}; // NOLINT(cert-msc32-c,cert-msc51-cpp): every run makes the same project
};
