#include "fb/FB_Base.h"
#include "fb/FB_Block_Host.h"
#include "fb/FB_Factory.h"
#include "fb/model/FB_Pins.h"
#include "fb/model/FB_Types.h"
#include "tests/db/Session_Rig.h"

#include <memory>
#include <typeinfo>

namespace {

class Host : public FB_Block_Host {
public:
  [[nodiscard]] const ProjectDatabase& database() const override { return mRig.mSession.database(); }
  [[nodiscard]] bool isOperatingMode() const override { return false; }
  [[nodiscard]] double zoom() const override { return 1; }
  [[nodiscard]] bool isDebugToolTip() const override { return false; }
  [[nodiscard]] bool isShowingValues() const override { return false; }
  [[nodiscard]] FB_Live_Value valueOf(const DB_Address_Binding&) const override { return {}; }
  [[nodiscard]] QString linkedPages(const FB_Pin_Ref&) const override { return {}; }
  void blockPressed(FB_Base&, const FB_Pin_Ref*, QMouseEvent&) override {}
  void blockMoved(FB_Base&, QMouseEvent&) override {}
  void blockReleased(FB_Base&, QMouseEvent&) override {}
  void blockDoubleClicked(FB_Base&, const FB_Pin_Ref*, QMouseEvent&) override {}
  void pinHovered(FB_Base&, const FB_Pin_Ref*) override {}
  void addressDropped(const FB_Pin_Ref&, const QUuid&) override {}
  void blockSelected(FB_Base&) override {}
  void openBlockEditor(FB_Base& /*block*/) override {}

  Session_Rig mRig;
};

} // namespace

class FB_Factory_Test : public QObject {
  Q_OBJECT

private slots:
  void everyTypeIsMadeByItsOwnClass() {
    Host host;
    QWidget canvas;
    for (const FB_Type* type : FB_Types::all()) {
      const auto record = FB_Pins::makeBlock(type->mId, {16, 32});
      const std::unique_ptr<FB_Base> block(FB_Factory::create(*record, host, &canvas));
      QVERIFY2(QByteArray(typeid(*block).name()).endsWith(type->mClass), type->mClass);
      QVERIFY(block->parent() == &canvas && block->guid() == record->mGuid);
    }
    auto served = FB_Factory::types();
    std::ranges::sort(served);
    QCOMPARE(size_t(served.size()), FB_Types::all().size());
    QVERIFY(std::ranges::equal(served, FB_Types::all(), {}, {}, &FB_Type::mId));
  }

  void anUnknownTypeGetsAStandIn() {
    Host host;
    QWidget canvas;
    DB_FB_Control record;
    record.mType = 54321;
    record.mTitle = QStringLiteral("Neuheit");
    const FB_Base* const block = FB_Factory::create(record, host, &canvas);
    QVERIFY(block->isStandIn());
    QCOMPARE(block->type(), FB_Types::cComment);
    QCOMPARE(block->title(), QStringLiteral("Unbekannter Funktionsbaustein"));
    QCOMPARE(block->record().mOriginalTitle, record.mTitle);
  }

  void cachedAddressesAreUpToDate() {
    Host host;
    QVERIFY(host.mRig.create());
    QWidget canvas;
    const Group_Address address = *Group_Address::parse(u"1/2/3");
    DB_Address_Sub_Group* const group = host.mRig.addAddress(address, QStringLiteral("Licht"));
    const auto record = FB_Pins::makeBlock(50, {});
    record->mInputs[0].mBinding.bindTo(*group, address);
    record->mInputs[0].mBinding.mName = QStringLiteral("veraltet");
    const FB_Base* const block = FB_Factory::create(*record, host, &canvas);
    QCOMPARE(block->record().mInputs[0].mBinding.mName, QStringLiteral("Licht"));
  }
};

QTEST_MAIN(FB_Factory_Test)
#include "FB_Factory_Test.moc"
