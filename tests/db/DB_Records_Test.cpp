#include "tests/db/Record_Kinds.h"

#include <QSet>
#include <QtTest>

using Record_Kinds::Item;
using Record_Kinds::Kind;

namespace {

const Kind& kindOf(const char* tag) {
  const auto& kinds = Record_Kinds::all();
  return *std::find_if(kinds.cbegin(), kinds.cend(), [tag](const Kind& kind) { return qstrcmp(kind.mName, tag) == 0; });
}

const Kind& currentKind() {
  return kindOf(QTest::currentDataTag());
}

void everyKind() {
  QTest::addColumn<bool>("isThere");
  for (const Kind& kind : Record_Kinds::all()) {
    QTest::newRow(kind.mName) << true;
  }
}

/// The DATA text of a record with one added element in a list, as the program makes it.
template <class Record, class Element>
QByteArray withElement(std::vector<Element> Record::*list) {
  Record record;
  (record.*list).emplace_back();
  return record.toData();
}

QByteArray item(const char* key, const char* value) {
  return Record_Kinds::text({{key, value}});
}

} // namespace

class DB_Records_Test : public QObject {
  Q_OBJECT

private slots:
  void defaults_data() { everyKind(); }

  /// A new record, one read from nothing and one that was emptied are alike.
  void defaults() {
    const std::unique_ptr<DB_Data_Base> fresh = currentKind().mMake();
    const QByteArray data = fresh->toData();
    QVERIFY(!data.isEmpty());
    const std::unique_ptr<DB_Data_Base> read = currentKind().mMake();
    read->setData({});
    QCOMPARE(read->toData(), data);
    read->setData(Record_Kinds::filled(currentKind()) + item("mFuture", "1"));
    read->clearData();
    QCOMPARE(read->toData(), data);
    QVERIFY(read->data().isEmpty());
    QVERIFY(read->isEqual(*fresh));
  }

  void elementDefaults_data() {
    QTest::addColumn<QByteArray>("made");
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QString>("kind");
    const auto row = [](const char* name, const QByteArray& made, const char* first, const char* kind) {
      QTest::newRow(name) << made << QByteArray(first) << QString::fromLatin1(kind);
    };
    row("register", withElement(&DB_FB_Control::mModbusRegisters), "mModbusRegister.mName", "block");
    row("input", withElement(&DB_FB_Control::mInputs), "mInput.mLongName", "block");
    row("output", withElement(&DB_FB_Control::mOutputs), "mOutput.mLongName", "block");
    row("binding", withElement(&DB_Widget::mAddresses), "mAddressList.mKind", "element");
    row("module", withElement(&DB_M8800::mModules), "mModule.mType", "module bus");
    row("recording", withElement(&DB_Statistic::mRecordings), "mRecording.mName", "statistic");
    row("rule", withElement(&DB_Project_Generator::mRules), "mRule.mPattern", "project generator");
    row("connection", withElement(&DB_Connections::mItems), "mItem.mKind", "connections");
    row("controller", withElement(&DB_Project::mControllers), "mControllerList.mNumber", "project");
  }

  /// An element of which only the first item stands in the text has the defaults of a new one.
  void elementDefaults() {
    QFETCH(QByteArray, made);
    QFETCH(QByteArray, first);
    QFETCH(QString, kind);
    QByteArray value;
    for (const Item& item : Record_Kinds::items(made)) {
      if (item.mKey == first + "_0") {
        value = item.mValue;
      }
    }
    const std::unique_ptr<DB_Data_Base> record = kindOf(kind.toLatin1()).mMake();
    record->setData(item(first + "_0", value));
    QCOMPARE(record->toData(), made);
  }

  void roundTrip_data() { everyKind(); }

  void roundTrip() {
    const QByteArray data = Record_Kinds::filled(currentKind());
    QVERIFY(!data.isEmpty());
    const std::unique_ptr<DB_Data_Base> record = currentKind().mMake();
    record->setData(data);
    QCOMPARE(record->toData(), data);
    QCOMPARE(record->data(), data);
    record->fromData();
    QCOMPARE(record->toData(), data);
  }

  void keysDoNoHarm_data() { everyKind(); }

  /// No key of a record ends another key of it, or reading the one would find the other.
  void keysDoNoHarm() {
    const QByteArray data = Record_Kinds::withLists(currentKind(), 12);
    QSet<QByteArray> keys;
    qsizetype count = 0;
    bool hasList = false;
    for (const Item& item : Record_Kinds::items(data)) {
      keys.insert(item.mKey);
      hasList = hasList || item.mKey.endsWith("_11");
      ++count;
    }
    QCOMPARE(keys.size(), count);
    QCOMPARE(hasList, !DB_Fields::keys(*currentKind().mMake()).mLists.isEmpty());
    for (const QByteArray& key : std::as_const(keys)) {
      for (qsizetype i = 1; i < key.size(); ++i) {
        QVERIFY2(!keys.contains(key.mid(i)), key + " holds " + key.mid(i));
      }
    }
  }

  void unknownItems_data() { everyKind(); }

  void unknownItems() {
    const QByteArrayList unknown = {item("mFuture", "1"), item("mFutureList_0", ""), item("mFutureList_12", "ä"),
                                    item("mFutureThing.mPart.mX_1_2", "3"), item("mCaption.mFuture", "4")};
    const QByteArray own = Record_Kinds::filled(currentKind());
    const qsizetype middle = own.indexOf(DB_Data_Reader::cValueEnd) + 1;
    const std::unique_ptr<DB_Data_Base> record = currentKind().mMake();
    record->setData(unknown[0] + unknown[1] + own.first(middle) + unknown[2] + unknown[3] + own.mid(middle) +
                    unknown[4]);
    QCOMPARE(record->toData(), own + unknown.join());
    const std::unique_ptr<DB_Data_Base> copy = record->clone();
    record->setData(record->toData());
    QCOMPARE(record->toData(), own + unknown.join());
    record->setData(own);
    QCOMPARE(record->toData(), own);
    QVERIFY(copy->toData().endsWith(unknown.join()));
  }

  void shrunkLists_data() {
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QByteArrayList>("params"); // of module 0 and of module 1
    const auto module = [](const char* index) { return item(QByteArray("mModule.mType_") + index, "4"); };
    const auto param = [](const char* index, const char* value) {
      return item(QByteArray("mModule.mParam_") + index, value);
    };
    const QByteArray both = module("0") + param("0_0", "a") + param("0_1", "b") + module("1") + param("1_0", "c");
    QTest::newRow("all there") << both << QByteArrayList{"a,b", "c"};
    QTest::newRow("first of a nested list missing") << both + param("1_2", "x") << QByteArrayList{"a,b", "c"};
    QTest::newRow("first module missing") << module("1") + param("1_0", "c") << QByteArrayList{};
    QTest::newRow("first item of an element missing")
        << module("0") + item("mModule.mName_1", "n") + param("1_0", "c") << QByteArrayList{""};
    QTest::newRow("in any order") << param("1_0", "c") + module("1") + param("0_0", "a") + module("0")
                                  << QByteArrayList{"a", "c"};
    QTest::newRow("negative index") << module("0") + param("0_-1", "x") << QByteArrayList{""};
  }

  void shrunkLists() {
    QFETCH(QByteArray, data);
    DB_M8800 bus;
    bus.setData(data);
    QByteArrayList params;
    for (const DB_M8800::Module& module : bus.mModules) {
      params.append(module.mParams.join(',').toUtf8());
    }
    QTEST(params, "params");
    // What lay behind the end of a list is gone and cannot come back when the list grows again.
    bus.mModules.resize(2);
    bus.mModules[1].mParams = QStringList{"1", "2", "3"};
    bus.setData(bus.toData());
    bus.mModules.resize(1);
    QVERIFY(!bus.toData().contains("_1_"));
    QVERIFY(!bus.toData().contains("mModule.mName_1"));
  }

  void texts_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("stored");
    QTest::newRow("markers are left out") << QStringLiteral("a\x02\x62\x03\x63") << QStringLiteral("abc");
    QTest::newRow("markers only") << QStringLiteral("\x03\x02\x03") << QString();
    QTest::newRow("lines and tabs") << QStringLiteral("a\r\n\tb") << QStringLiteral("a\r\n\tb");
    QTest::newRow("zero byte") << QStringLiteral("a") + QChar(0) + QStringLiteral("b")
                               << QStringLiteral("a") + QChar(0) + QStringLiteral("b");
    QTest::newRow("byte order mark") << QStringLiteral("\uFEFF\uFEFFa") << QStringLiteral("\uFEFF\uFEFFa");
    QTest::newRow("beyond the basic plane") << QStringLiteral("\U0001F3E0 äß€") << QStringLiteral("\U0001F3E0 äß€");
  }

  void texts() {
    QFETCH(QString, text);
    DB_Widget widget;
    widget.mName = text;
    widget.mX = 7;
    widget.mComment = QStringLiteral("dahinter");
    DB_Widget read;
    read.setData(widget.toData());
    QTEST(read.mName, "stored");
    QCOMPARE(read.mX, 7);
    QCOMPARE(read.mComment, widget.mComment);
  }

  void numbers_data() {
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QByteArray>("stored");
    const auto row = [](const char* name, const char* key, const char* value, const char* stored) {
      QTest::newRow(name) << QByteArray(key) << QByteArray(value) << QByteArray(stored);
    };
    row("lowest", "mStartDelay", "-2147483648", "-2147483648");
    row("above the range", "mStartDelay", "2147483648", "0");
    row("above 64 bits", "mStartDelay", "99999999999999999999", "0");
    row("trailing text", "mStartDelay", "12s", "0");
    row("blank", "mStartDelay", " 12", "0");
    row("plus sign", "mStartDelay", "+12", "0");
    row("empty", "mStartDelay", "", "0");
    row("flag above 1", "mDisplay", "2", "1");
    row("smallest difference", "mX", "0.30000000000000004", "0.30000000000000004");
    row("comma", "mX", "0,5", "0");
    row("not a number", "mX", "nan", "0");
    row("infinite", "mX", "inf", "0");
    row("above every number", "mX", "1e999", "0");
    row("unknown kind of binding", "mDisableAddress.mKind", "3", "0");
    row("broken UUID", "mGuid", "01234567-89ab", "");
  }

  void numbers() {
    QFETCH(QByteArray, key);
    QFETCH(QByteArray, value);
    QFETCH(QByteArray, stored);
    DB_FB_Control block;
    block.setData(item(key, value));
    QVERIFY(Record_Kinds::items(block.toData()).contains(Item{key, stored}));
  }

  void copies_data() { everyKind(); }

  void copies() {
    const QByteArray data = Record_Kinds::filled(currentKind());
    const std::unique_ptr<DB_Data_Base> record = currentKind().mMake();
    record->setData(data);
    const std::unique_ptr<DB_Data_Base> copy = record->clone();
    QVERIFY(copy->isEqual(*record));
    const std::unique_ptr<DB_Data_Base> assigned = currentKind().mMake();
    QVERIFY(!assigned->isEqual(*record));
    QVERIFY(assigned->assign(*record));
    QVERIFY(assigned->isEqual(*record));
    record->clearData();
    QCOMPARE(copy->toData(), data);
    QCOMPARE(assigned->toData(), data);
    for (const Kind& other : Record_Kinds::all()) {
      if (other.mMake != currentKind().mMake) {
        QVERIFY(!assigned->assign(*other.mMake()));
        QVERIFY(!assigned->isEqual(*other.mMake()));
      }
    }
    QCOMPARE(assigned->toData(), data);
  }

  void childrenAreNotCopied() {
    DB_FB_Page page;
    page.mChildren.append(std::make_unique<DB_FB_Control>());
    const std::unique_ptr<DB_Data_Base> copy = page.clone();
    QVERIFY(static_cast<DB_FB_Page&>(*copy).mChildren.isEmpty());
    DB_FB_Page other;
    other.mCaption = QStringLiteral("Neu");
    QVERIFY(page.assign(other));
    QCOMPARE(page.mCaption, other.mCaption);
    QCOMPARE(page.mChildren.size(), 1);
  }

  void styleHasTwentySlots_data() {
    QTest::addColumn<int>("stored");
    for (const int stored : {0, 1, 20, 25}) {
      QTest::addRow("%d", stored) << stored;
    }
  }

  void styleHasTwentySlots() {
    QFETCH(int, stored);
    QByteArray data;
    for (int i = 0; i < stored; ++i) {
      data += item("mSlot.mName_" + QByteArray::number(i), "Stil");
    }
    DB_Style style;
    style.setData(data);
    QCOMPARE(style.mSlots.size(), DB_Style::cSlotCount);
    QCOMPARE(std::count_if(style.mSlots.cbegin(), style.mSlots.cend(),
                           [](const DB_Style_Slot& slot) { return slot.mName == u"Stil"; }),
             qMin(stored, 20));
    QVERIFY(!style.toData().contains("_20"));
    style.clearData();
    QCOMPARE(style.mSlots.size(), DB_Style::cSlotCount);
  }
};

QTEST_APPLESS_MAIN(DB_Records_Test)
#include "DB_Records_Test.moc"
