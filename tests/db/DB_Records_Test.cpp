#include "tests/db/Record_Kinds.h"

#include <QSet>
#include <QtTest>

using Record_Kinds::Item;
using Record_Kinds::Kind;

namespace {

const Kind& currentKind() {
  const auto& kinds = Record_Kinds::all();
  return *std::find_if(kinds.cbegin(), kinds.cend(),
                       [](const Kind& kind) { return qstrcmp(kind.mName, QTest::currentDataTag()) == 0; });
}

void everyKind() {
  QTest::addColumn<bool>("isThere");
  for (const Kind& kind : Record_Kinds::all()) {
    QTest::newRow(kind.mName) << true;
  }
}

QByteArray item(const char* key, const char* value) {
  return Record_Kinds::text({{key, value}});
}

} // namespace

class DB_Records_Test : public QObject {
  Q_OBJECT

private slots:
  void everyItemComesBackAndEmptiesToItsDefault_data() { everyKind(); }

  void everyItemComesBackAndEmptiesToItsDefault() {
    const std::unique_ptr<DB_Data_Base> fresh = currentKind().mMake();
    const QByteArray defaults = fresh->toData();
    const QByteArray data = Record_Kinds::filled(currentKind());
    QVERIFY(!defaults.isEmpty() && !data.isEmpty());
    const std::unique_ptr<DB_Data_Base> record = currentKind().mMake();
    record->setData(data);
    QCOMPARE(record->toData(), data);
    const std::unique_ptr<DB_Data_Base> copy = record->clone();
    const std::unique_ptr<DB_Data_Base> assigned = currentKind().mMake();
    QVERIFY(!assigned->isEqual(*record));
    QVERIFY(assigned->assign(*record));
    QVERIFY(assigned->isEqual(*record) && copy->isEqual(*record));
    record->clearData();
    QCOMPARE(record->toData(), defaults);
    QVERIFY(record->isEqual(*fresh));
    for (const Kind& other : Record_Kinds::all()) {
      QCOMPARE(assigned->assign(*other.mMake()), other.mMake == currentKind().mMake);
      assigned->assign(*copy);
    }
    QCOMPARE(copy->toData(), data);
    QCOMPARE(assigned->toData(), data);
    assigned->setData({});
    QCOMPARE(assigned->toData(), defaults);
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

  void shrunkLists() {
    const auto module = [](const char* index) { return item(QByteArray("mModule.mType_") + index, "4"); };
    const auto param = [](const char* index, const char* value) {
      return item(QByteArray("mModule.mParam_") + index, value);
    };
    const QByteArray both = module("0") + param("0_0", "a") + param("0_1", "b") + module("1") + param("1_0", "c");
    const std::pair<QByteArray, QByteArrayList> cases[] = {
        {both, {"a,b", "c"}},
        {both + param("1_2", "x"), {"a,b", "c"}},
        {module("1") + param("1_0", "c"), {}},
        {module("0") + item("mModule.mName_1", "n") + param("1_0", "c"), {""}},
        {param("1_0", "c") + module("1") + param("0_0", "a") + module("0"), {"a", "c"}},
        {module("0") + param("0_-1", "x"), {""}}};
    for (const auto& [data, params] : cases) {
      DB_M8800 bus;
      bus.setData(data);
      QByteArrayList found;
      for (const DB_M8800::Module& read : bus.mModules) {
        found.append(read.mParams.join(',').toUtf8());
      }
      QCOMPARE(found, params);
      // What lay behind the end of a list is gone and cannot come back when the list grows again.
      bus.mModules.resize(2);
      bus.mModules[1].mParams = QStringList{"1", "2", "3"};
      bus.setData(bus.toData());
      bus.mModules.resize(1);
      QVERIFY(!bus.toData().contains("_1_") && !bus.toData().contains("mModule.mName_1"));
    }
  }

  void numbers() {
    const auto check = [](const char* key, const char* value, const char* stored) {
      DB_FB_Control block;
      block.setData(item(key, value));
      QVERIFY2(Record_Kinds::items(block.toData()).contains(Item{key, stored}), value);
    };
    check("mStartDelay", "-2147483648", "-2147483648");
    for (const char* const refused : {"2147483648", "99999999999999999999", "12s", " 12", "+12", ""}) {
      check("mStartDelay", refused, "0");
    }
    check("mDisplay", "2", "1");
    check("mX", "0.30000000000000004", "0.30000000000000004");
    for (const char* const refused : {"0,5", "nan", "inf", "1e999"}) {
      check("mX", refused, "0");
    }
    check("mDisableAddress.mKind", "3", "0");
    check("mGuid", "01234567-89ab", "");
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
};

QTEST_APPLESS_MAIN(DB_Records_Test)
#include "DB_Records_Test.moc"
