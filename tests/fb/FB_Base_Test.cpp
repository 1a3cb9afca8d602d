#include "db/Address_Clipboard.h"
#include "fb/FB_Block_Host.h"
#include "fb/FB_Comment.h"
#include "fb/FB_Property_Editors.h"
#include "fb/model/FB_Geometry.h"
#include "fb/model/FB_Types.h"
#include "fb/properties/FB_Dev_Properties_Checkbox.h"
#include "fb/properties/FB_Dev_Properties_ComboBox.h"
#include "fb/properties/FB_Dev_Properties_LineEdit.h"
#include "fb/properties/FB_Dev_Properties_SpinBox.h"
#include "tests/db/Session_Rig.h"

#include <QMimeData>
#include <QPainter>
#include <QtTest>

namespace {

constexpr double g = FB_Geometry::cGrid;
constexpr QRgb cBody = 0xff232323;

/// Remembers what the block tells.
class Host : public FB_Block_Host {
public:
  Host() : Host(empty()) {}
  explicit Host(const ProjectDatabase& database) : mDatabase(database) {}
  [[nodiscard]] const ProjectDatabase& database() const override { return mDatabase; }
  [[nodiscard]] bool isOperatingMode() const override { return false; }
  [[nodiscard]] double zoom() const override { return mZoom; }
  [[nodiscard]] bool isDebugToolTip() const override { return mIsDebug; }
  [[nodiscard]] bool isShowingValues() const override { return false; }
  [[nodiscard]] FB_Live_Value valueOf(const DB_Address_Binding&) const override { return {}; }
  [[nodiscard]] QString linkedPages(const FB_Pin_Ref& pin) const override {
    return pin == mLinked ? QStringLiteral("Außen") : QString();
  }
  void blockPressed(FB_Base&, const FB_Pin_Ref* pin, QMouseEvent&) override { mPressed = pin ? *pin : FB_Pin_Ref(); }
  void blockMoved(FB_Base&, QMouseEvent&) override {}
  void blockReleased(FB_Base&, QMouseEvent&) override {}
  void blockDoubleClicked(FB_Base&, const FB_Pin_Ref*, QMouseEvent&) override {}
  void pinHovered(FB_Base&, const FB_Pin_Ref*) override {}
  void addressDropped(const FB_Pin_Ref& pin, const QUuid& address) override { mDropped = {pin, address}; }
  void blockSelected(FB_Base&) override { ++mSelected; }
  void openBlockEditor(FB_Base& /*block*/) override {}

  static const ProjectDatabase& empty() {
    static const ProjectDatabase database;
    return database;
  }

  const ProjectDatabase& mDatabase;
  double mZoom = 1;
  bool mIsDebug = false;
  FB_Pin_Ref mLinked;
  FB_Pin_Ref mPressed;
  std::pair<FB_Pin_Ref, QUuid> mDropped;
  int mSelected = 0;
};

DB_FB_Control makeBlock(int type, int inputs = 0, int outputs = 0, const QString& title = {}) {
  DB_FB_Control block;
  block.mGuid = QUuid::createUuid();
  block.mType = type;
  block.mTitle = title;
  for (int i = 1; i <= inputs; ++i) {
    block.mInputs.push_back({QStringLiteral("Eingang %1").arg(i), QStringLiteral("E%1").arg(i), {}});
  }
  for (int i = 1; i <= outputs; ++i) {
    block.mOutputs.push_back({QStringLiteral("Ausgang %1").arg(i), QStringLiteral("A%1").arg(i), {}});
  }
  return block;
}

DB_Address_Binding addressBinding(const QString& name) {
  DB_Address_Binding binding;
  binding.mKind = DB_Address_Binding::Kind::GroupAddress;
  binding.mKey = QUuid::createUuid();
  binding.mMain = 1;
  binding.mMiddle = 2;
  binding.mSub = 3;
  binding.mName = name;
  binding.mDpt = {1, 1};
  return binding;
}

} // namespace

/// Makes the editors and keeps them.
struct Editors : FB_Property_Editors {
  template <class Editor>
  Editor* add(int index, const QString& value) {
    auto* const editor = new Editor(index, &mPanel);
    editor->showValue({value, false});
    mRows.append(editor);
    return editor;
  }
  FB_Dev_Properties_SpinBox* addNumber(int i, const FB_Parameter&, const QString& value) override {
    return add<FB_Dev_Properties_SpinBox>(i, value);
  }
  FB_Dev_Properties_Checkbox* addCheck(int i, const FB_Parameter&, const QString& value) override {
    return add<FB_Dev_Properties_Checkbox>(i, value);
  }
  FB_Dev_Properties_ComboBox* addChoice(int i, const FB_Parameter&, const QString& value) override {
    return add<FB_Dev_Properties_ComboBox>(i, value);
  }
  FB_Dev_Properties_LineEdit* addText(int i, const FB_Parameter&, const QString& value) override {
    return add<FB_Dev_Properties_LineEdit>(i, value);
  }
  void setEnabled(int, bool) override {}
  QWidget mPanel;
  QList<FB_Dev_Properties_Editor*> mRows;
};

class FB_Base_Test : public QObject {
  Q_OBJECT

private slots:
  void size_data() {
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("inputs");
    QTest::addColumn<int>("outputs");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("shortName");
    QTest::addColumn<QSizeF>("size"); // in grid units
    const auto row = [](const char* name, int type, int inputs, int outputs, const QString& title,
                        const QString& shortName, double width, double height) {
      QTest::newRow(name) << type << inputs << outputs << title << shortName << QSizeF(width, height);
    };
    row("least", 50, 2, 1, {}, {}, 8, 4);
    row("more outputs than inputs", 50, 0, 3, {}, {}, 8, 5);
    row("64 pins", 50, 64, 1, {}, {}, 8, 66);
    row("long title", 50, 2, 1, QString(21, u'T'), {}, 10.5, 4);
    row("long display name", 1409, 0, 0, {}, {}, 8, 2); // "Wärmeerzeuger *"
    row("long short name", 50, 1, 0, {}, QString(12, u'S'), 9, 3);
    row("title of 5,000 characters", 50, 0, 0, QString(5000, u'T'), {}, 60, 2);
    row("only the first line of a title", 50, 0, 0, QStringLiteral("Eins\n") + QString(90, u'T'), {}, 8, 2);
    row("constant", 11, 0, 1, QString(99, u'T'), {}, 8, 1);
    row("display", 12, 1, 0, {}, QString(99, u'S'), 8, 1);
    row("short comment", 10, 0, 0, QStringLiteral("Kurz"), {}, 8, 2);
    row("comment of two lines", 10, 0, 0, QStringLiteral("Eins\n") + QString(40, u'T'), {}, 20, 3);
    row("wrapped comment", 10, 0, 0, QString(30, u'a') + u' ' + QString(40, u'b'), {}, 20, 3);
    row("short name of 100,000 characters", 50, 1, 0, {}, QString(100000, u'S'), 30, 3);
    row("5,000 pins", 900, 5000, 0, {}, {}, 10, 5002);
    row("comment of 5,000 characters", 10, 0, 0, QString(5000, u'T'), {}, 30, 42);
  }
  void size() {
    QFETCH(int, type);
    QFETCH(int, inputs);
    QFETCH(int, outputs);
    QFETCH(QString, title);
    QFETCH(QString, shortName);
    QFETCH(QSizeF, size);
    DB_FB_Control block = makeBlock(type, inputs, outputs, title);
    if (!shortName.isEmpty()) {
      block.mInputs.front().mShortName = shortName;
    }
    QCOMPARE(FB_Geometry::size(block), size * g);
    QCOMPARE(FB_Geometry::size(block, 40), size * 40);
  }

  void titleIsCommentOrOwnOrDisplayName() {
    DB_FB_Control block = makeBlock(50);
    QCOMPARE(FB_Geometry::title(block), QStringLiteral("Und"));
    block.mTitle = QStringLiteral("Eigener");
    block.mComment = QStringLiteral("Bemerkung");
    QCOMPARE(FB_Geometry::title(block), QStringLiteral("Eigener"));
    block.mCommentAsCaption = true;
    QCOMPARE(FB_Geometry::title(block), QStringLiteral("Bemerkung"));
    block = makeBlock(FB_Types::cComment);
    block.mOriginalType = 4711;
    QCOMPARE(FB_Geometry::title(block), QStringLiteral("Unbekannter Funktionsbaustein"));
  }

  void zoomDoesNotDrift() {
    Host host;
    DB_FB_Control record = makeBlock(50, 2, 1);
    record.mX = 101.5;
    record.mY = 33;
    FB_Base block(nullptr, host, record);
    const QRect before = block.geometry();
    for (int i = 0; i < 60; ++i) {
      host.mZoom = 0.5 + 0.1 * (i % 36);
      block.applyZoom();
      QCOMPARE(block.size(), (FB_Geometry::size(record) * host.mZoom).toSize());
      QCOMPARE(block.pinPoint(FB_Side::Output, 0),
               QPointF(101.5 + 8 * g, 33 + 2 * g) * host.mZoom); // from the record, not from whole pixels
    }
    host.mZoom = 1;
    block.applyZoom();
    QCOMPARE(block.geometry(), before);
  }

  void toolTip_data() {
    QTest::addColumn<int>("input");
    QTest::addColumn<int>("output");
    QTest::addColumn<bool>("isDebug");
    QTest::addColumn<QString>("text");
    const QString head = QStringLiteral("<b>[50] Und (a &lt;b&gt; &amp; c)</b><br>");
    const QString input = QStringLiteral("Eingang 1<br>1.2.3 Licht &lt;Küche&gt;<br>DPT 1.001<br><br>");
    QTest::newRow("no pin") << -1 << -1 << false << head;
    QTest::newRow("input") << 0 << -1 << false << head + input;
    QTest::newRow("output") << -1 << 0 << false << head + QStringLiteral("Ausgang 1<br>Variable:V1<br><br>");
    QTest::newRow("both: the input speaks") << 0 << 0 << false << head + input;
    QTest::newRow("debug") << -1 << -1 << true
                           << head + QStringLiteral("<br>Call#: 0<br>GUID: 12345678-0000-0000-0000-000000000000<br>");
  }
  void toolTip() {
    QFETCH(int, input);
    QFETCH(int, output);
    Host host;
    QFETCH(bool, isDebug);
    host.mIsDebug = isDebug;
    DB_FB_Control record = makeBlock(50, 2, 1, QStringLiteral("a <b> & c"));
    record.mGuid = QUuid(QStringLiteral("12345678-0000-0000-0000-000000000000"));
    record.mInputs[0].mBinding = addressBinding(QStringLiteral("Licht <Küche>"));
    record.mOutputs[0].mBinding.mKind = DB_Address_Binding::Kind::Internal;
    record.mOutputs[0].mBinding.mName = QStringLiteral("V1");
    FB_Base block(nullptr, host, record);
    block.setHoveredPins(input, output);
    QTEST(block.toolTipText(), "text");
  }

  void theToolTipKeepsTheBlanksOfAName() {
    Host host;
    const FB_Base block(nullptr, host, makeBlock(202, 0, 0, QStringLiteral("a\nb")));
    QCOMPARE(block.toolTipText(), QStringLiteral("<b>[202] &gt;&nbsp;&nbsp;Größer (2xE) (a<br>b)</b><br>"));
  }

  void theToolTipOfAStandInNamesTheOriginalType() {
    Host host;
    DB_FB_Control record = makeBlock(FB_Types::cComment);
    record.mOriginalType = 4711;
    const FB_Comment block(nullptr, host, record);
    QVERIFY(block.isStandIn());
    QVERIFY(block.toolTipText().startsWith(QStringLiteral("<b>[4711] Unbekannter Funktionsbaustein (")));
  }

  void pixel_data() {
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("isSelected");
    QTest::addColumn<QPoint>("at");
    QTest::addColumn<QRgb>("colour");
    const QPoint edge(g / 2, 28);
    QTest::newRow("frame") << 50 << false << edge << qRgb(255, 255, 255);
    QTest::newRow("selected frame") << 50 << true << edge + QPoint(1, 0) << qRgb(202, 192, 0);
    QTest::newRow("body") << 50 << false << edge + QPoint(2, 0) << cBody;
    QTest::newRow("margin") << 50 << false << edge - QPoint(2, 0) << qRgba(0, 0, 0, 0);
    QTest::newRow("unframed, selected") << 1330 << true << QPoint(2, 28) << qRgb(202, 192, 0);
    QTest::newRow("body up to the top") << 50 << false << QPoint(64, 0) << qRgb(255, 255, 255);
  }
  void pixel() {
    QFETCH(int, type);
    QFETCH(bool, isSelected);
    QFETCH(QPoint, at);
    QFETCH(QRgb, colour);
    Host host;
    FB_Base block(nullptr, host, makeBlock(type, 0, 3));
    block.setSelected(isSelected);
    QCOMPARE(QColor::fromRgba(picture(block).pixel(at)), QColor::fromRgba(colour));
  }

  void unframed_data() {
    QTest::addColumn<int>("type");
    for (const int type : {11, 12, 1330}) {
      QTest::addRow("%d", type) << type;
    }
  }
  void unframed() {
    QFETCH(int, type);
    Host host;
    const FB_Base block(nullptr, host, makeBlock(type));
    const QImage image = picture(block);
    for (int x = 0; x < image.width(); ++x) {
      const QRgb colour = image.pixel(x, image.height() / 2);
      QVERIFY2(colour != cBody && colour != qRgb(255, 255, 255) && colour != qRgb(0x34, 0x34, 0x34),
               qPrintable(QString::number(x)));
    }
  }

  void pinHit_data() {
    QTest::addColumn<double>("zoom");
    QTest::addColumn<QPointF>("at"); // pixels
    QTest::addColumn<int>("side");   // -1 for none
    QTest::addColumn<int>("index");
    QTest::newRow("input") << 1.0 << QPointF(3, 2 * g) << 0 << 0;
    QTest::newRow("last input") << 1.0 << QPointF(0, 65 * g + 7) << 0 << 63;
    QTest::newRow("output") << 1.0 << QPointF(8 * g - 5, 3 * g) << 1 << 1;
    QTest::newRow("no such output") << 1.0 << QPointF(8 * g - 5, 5 * g) << -1 << -1;
    QTest::newRow("body") << 1.0 << QPointF(4 * g, 2 * g) << -1 << -1;
    QTest::newRow("title") << 1.0 << QPointF(2, g) << -1 << -1;
    QTest::newRow("6 pixels when small") << 0.5 << QPointF(5.5, g) << 0 << 0;
    QTest::newRow("grows with the zoom") << 4.0 << QPointF(30, 8 * g) << 0 << 0;
  }
  void pinHit() {
    QFETCH(QPointF, at);
    QFETCH(int, side);
    Host host;
    QFETCH(double, zoom);
    host.mZoom = zoom;
    const FB_Base block(nullptr, host, makeBlock(50, 64, 2));
    const std::optional<FB_Pin_Ref> pin = block.pinAt(at);
    QCOMPARE(pin ? static_cast<int>(pin->mSide) : -1, side);
    QTEST(pin ? pin->mIndex : -1, "index");
  }

  void hoveredPinsGoWithThePinsAndTheSelection() {
    Host host;
    FB_Base block(nullptr, host, makeBlock(50, 4, 1));
    block.setHoveredPins(3, 0);
    block.setRecord(makeBlock(50, 2, 1));
    QCOMPARE(block.hoveredInput(), -1);
    QCOMPARE(block.hoveredOutput(), 0);
    block.setSelected(true);
    QCOMPARE(host.mSelected, 1);
    block.setSelected(false);
    QCOMPARE(block.hoveredOutput(), -1);
    QCOMPARE(host.mSelected, 1);
  }

  void linkStandsBesideItsPinInsideOfTheLabels() {
    Host host;
    DB_FB_Control record = makeBlock(50, 1, 1);
    record.mX = 900;
    record.mOutputs[0].mBinding = addressBinding(QString(300, u'Ä'));
    host.mLinked = {record.mGuid, FB_Side::Output, 0};
    const FB_Base block(nullptr, host, record);
    const QPointF pin = block.pinPoint(FB_Side::Output, 0);
    const QPointF link = pin + QPointF(10 * g + 20, -g / 2);
    QCOMPARE(block.linkAt(link), std::optional(host.mLinked));
    QVERIFY(block.labelRect().contains(link));
    QVERIFY(!block.linkAt(pin + QPointF(3 * g, -g / 2)));
    QVERIFY(!block.linkAt(block.pinPoint(FB_Side::Input, 0) - QPointF(3 * g, g / 2)));
  }

  void anAddressDropsOnAPinOnly() {
    Session_Rig rig;
    QVERIFY(rig.create());
    const QUuid key = rig.addAddress({1, 2, 3}, QStringLiteral("Licht"))->mKey;
    Host host(rig.mSession.database());
    FB_Base block(nullptr, host, makeBlock(50, 2, 1));
    QMimeData data;
    Address_Clipboard::fill(data, rig.mSession, {key}, Address_Clipboard::Use::Move);
    const auto send = [&](QDropEvent&& event) {
      QCoreApplication::sendEvent(&block, &event);
      return event.isAccepted();
    };
    const auto actions = Qt::MoveAction | Qt::LinkAction;
    const QPoint body(4 * g, 2 * g);
    const QPoint pin(2, 3 * g);
    QVERIFY(send(QDragEnterEvent(body, actions, &data, Qt::LeftButton, Qt::NoModifier)));
    QVERIFY(!send(QDragMoveEvent(body, actions, &data, Qt::LeftButton, Qt::NoModifier)));
    QVERIFY(send(QDragMoveEvent(pin, actions, &data, Qt::LeftButton, Qt::NoModifier)));
    QCOMPARE(block.hoveredInput(), 1);
    QVERIFY(send(QDropEvent(pin, actions, &data, Qt::LeftButton, Qt::NoModifier)));
    QCOMPARE(host.mDropped, std::pair(FB_Pin_Ref{block.guid(), FB_Side::Input, 1}, key));
    QCOMPARE(block.hoveredInput(), -1);
    data.setData(Address_Clipboard::mimeType(), "{}");
    QVERIFY(!send(QDragEnterEvent(pin, actions, &data, Qt::LeftButton, Qt::NoModifier)));
  }

  void parametersAreEditedAsTheTypeDeclaresThem() {
    Editors editors;
    Host host;
    DB_FB_Control record = makeBlock(50, 2, 1);
    record.mParams = {QStringLiteral("5"), {}, {}};
    FB_Base block(nullptr, host, record);
    block.setupProperties(editors);
    QCOMPARE(editors.mRows.size(), 3);
    const auto* const count = dynamic_cast<FB_Dev_Properties_SpinBox*>(editors.mRows.constFirst());
    QVERIFY(count && count->decimals() == 0 && count->minimum() == 2 && count->maximum() == 64);
    QCOMPARE(count->storedText(), QStringLiteral("5"));
    block.applyProperties();
    QCOMPARE(block.record().mInputs.size(), size_t(5));
    QCOMPARE(block.height(), static_cast<int>(7 * g));
    QCOMPARE(block.helpFileName(), QStringLiteral("fb_and.html"));
  }

  void refreshingKeepsWhatIsNotFound() {
    Session_Rig rig;
    QVERIFY(rig.create());
    Host host(rig.mSession.database());
    DB_FB_Control record = makeBlock(50, 1, 1);
    record.mInputs[0].mBinding = addressBinding(QStringLiteral("Früher"));
    record.mInputs[0].mBinding.mKey = rig.addAddress({4, 5, 6}, QStringLiteral("Jetzt"))->mKey;
    record.mOutputs[0].mBinding = addressBinding(QStringLiteral("Fort"));
    FB_Base block(nullptr, host, record);
    block.refreshBindings();
    QCOMPARE(block.record().mInputs[0].mBinding.mName, QStringLiteral("Jetzt"));
    QCOMPARE(block.record().mInputs[0].mBinding.mMiddle, 5);
    QCOMPARE(block.record().mOutputs[0].mBinding.mName, QStringLiteral("Fort"));
  }

private:
  static QImage picture(const FB_Base& block) {
    QImage image(block.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    block.paintBlock(painter);
    return image;
  }
};

QTEST_MAIN(FB_Base_Test)
#include "FB_Base_Test.moc"
