#include "fb/model/FB_Pins.h"
#include "fb/model/FB_Type_Check.h"

#include <QFile>
#include <QtTest>

/// The registry against the published list, which stands beside this test: "# category", then "id[!]<tab>name" in the
/// order of the catalogue, "!" for what may be in a project only once; the last category has no title.
class FB_Types_Test : public QObject {
  Q_OBJECT

private slots:
  void theCatalogueIsAsPublished() {
    QFile file(QFINDTESTDATA("data/block_types.txt"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString published = QString::fromUtf8(file.readAll());
    QString declared;
    for (const auto& category : FB_Types::categories()) {
      declared += QStringLiteral("# ").append(QString::fromUtf8(category.mTitle)).trimmed() + u'\n';
      for (const FB_Type& type : category.mTypes) {
        declared += QString::number(type.mId) + (type.mIsOnce ? QStringLiteral("!") : QString()) + u'\t' +
                    FB_Types::name(type.mId) + u'\n';
      }
    }
    const QStringList expected = published.split(u'\n');
    const QStringList lines = declared.split(u'\n');
    for (qsizetype i = 0; i < std::min(expected.size(), lines.size()); ++i) {
      QCOMPARE(lines.at(i), expected.at(i));
    }
    QCOMPARE(lines.size(), expected.size());
    QVERIFY(FB_Types::categories()[17].mIsHs && !FB_Types::categories()[16].mIsHs);
  }

  void idsAreFoundInTheirOrder() {
    int last = 0;
    for (const FB_Type* type : FB_Types::all()) {
      QVERIFY(type->mId > last);
      QCOMPARE(FB_Types::find(type->mId), type);
      last = type->mId;
    }
    QVERIFY(!FB_Types::find(0) && !FB_Types::find(49) && !FB_Types::find(99999));
    QCOMPARE(FB_Types::name(49), QStringLiteral("Unknown"));
    QCOMPARE(FB_Types::helpFileName(49), QString());
  }

  void helpPages_data() {
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("page");
    QTest::newRow("of the class") << 50 << "fb_and.html";
    QTest::newRow("of a long class") << 1373 << "fb_inv_1n.html";
    QTest::newRow("change per time") << 1937 << "fb_compare_change_per_time.html";
    QTest::newRow("week") << 1331 << "fb_time_clock_week.html";
    QTest::newRow("holidays") << 1940 << "fb_time_clock_holiday.html";
  }
  void helpPages() {
    QFETCH(int, id);
    QTEST(FB_Types::helpFileName(id), "page");
  }

  void theRegistryHasNoProblem() {
    QCOMPARE(FB_Type_Check::problems(FB_Types::categories()), QStringList());
    QCOMPARE(FB_Types::find(50)->mParameters.size(), size_t(3));
  }

  void faultsOfADeclarationAreFound_data() {
    QTest::addColumn<FB_Parameter>("parameter");
    QTest::addColumn<FB_Pin_Group>("pins");
    QTest::addColumn<QString>("problem");
    const FB_Pin_Group pin{FB_Side::Output, "Ausgang", "A"};
    const FB_Parameter count{"Anzahl", "D", FB_Editor::Number, "2", 2, 64};
    static constexpr FB_Choice cChoices[] = {{0, "a"}, {1, "b"}};
    static constexpr FB_Choice cTwice[] = {{0, "a"}, {0, "b"}};
    static constexpr FB_Choice cTextless[] = {{0, ""}};
    QTest::newRow("below") << FB_Parameter{"P", "D", FB_Editor::Number, "1", 2, 64} << pin << "out of range";
    QTest::newRow("decimals") << FB_Parameter{"P", "D", FB_Editor::Number, "1.5", 0, 64} << pin << "many decimals";
    QTest::newRow("no number") << FB_Parameter{"P", "D", FB_Editor::Number, "", 0, 64} << pin << "out of range";
    QTest::newRow("check") << FB_Parameter{"P", "D", FB_Editor::Check, "ja"} << pin << "neither 0 nor 1";
    QTest::newRow("choice") << FB_Parameter{"P", "D", FB_Editor::Choice, "2", 0, 0, 0, cChoices} << pin << "no choice";
    QTest::newRow("nameless") << FB_Parameter{"", "D", FB_Editor::Text} << pin << "without a name";
    QTest::newRow("blank") << FB_Parameter{"P ", "D", FB_Editor::Text} << pin << "without a name";
    QTest::newRow("undescribed") << FB_Parameter{"P", "", FB_Editor::Text} << pin << "without a description";
    QTest::newRow("full stop") << FB_Parameter{"P", "D.", FB_Editor::Text} << pin << "without a description";
    QTest::newRow("range") << FB_Parameter{"P", "D", FB_Editor::Number, "1", 2, 1} << pin << "impossible range";
    QTest::newRow("twice") << FB_Parameter{"P", "D", FB_Editor::Choice, "0", 0, 0, 0, cTwice} << pin << "made twice";
    QTest::newRow("textless") << FB_Parameter{"P", "D", FB_Editor::Choice, "0", 0, 0, 0, cTextless} << pin
                              << "without a text";
    QTest::newRow("unit") << FB_Parameter{"P", "D", FB_Editor::Text, "", 0, 0, 0, {}, "s"} << pin << "unit of no";
    QTest::newRow("itself") << FB_Parameter{"P", "D", FB_Editor::Check, "0", 0, 0, 0, {}, "", 0} << pin << "needs what";
    QTest::newRow("pin") << count << FB_Pin_Group{FB_Side::Output, "Ausgang", ""} << "pin without";
    QTest::newRow("nothing counts") << count << FB_Pin_Group{FB_Side::Output, "A%1", "A%1", 2, 1} << "not there";
    QTest::newRow("other minimum") << count << FB_Pin_Group{FB_Side::Output, "A%1", "A%1", 1, 0} << "no count";
    QTest::newRow("numberless") << count << FB_Pin_Group{FB_Side::Output, "A", "A%1", 2, 0} << "without a number";
    QTest::newRow("type of a pin") << count << FB_Pin_Group{FB_Side::Output, "A", "A", 1, -1, "1-1"} << "no datapoint";
    QTest::newRow("unknown type") << count << FB_Pin_Group{FB_Side::Output, "A", "A", 1, -1, "1.999"} << "no datapoint";
    QTest::newRow("only an input") << count << FB_Pin_Group{FB_Side::Input, "E", "E"} << "neither an output";
  }
  void faultsOfADeclarationAreFound() {
    QFETCH(FB_Parameter, parameter);
    QFETCH(FB_Pin_Group, pins);
    QFETCH(QString, problem);
    const FB_Type type{.mId = 1,
                       .mName = "A",
                       .mClass = "FB_A",
                       .mHasPins = true,
                       .mParameters = {&parameter, 1},
                       .mPins = {&pins, 1}};
    const FB_Types::Category category{"K", {&type, 1}};
    const QStringList found = FB_Type_Check::problems({&category, 1});
    QVERIFY2(found.size() == 1 && found.at(0).contains(problem), qPrintable(found.join(u'\n')));
    const FB_Types::Category twice[] = {category, category};
    QCOMPARE(FB_Type_Check::problems(twice).filter(QStringLiteral("used twice")).size(), 2);
  }

  void everyTypeComesBackFromItsText() {
    for (const FB_Type* type : FB_Types::all()) {
      const auto block = FB_Pins::makeBlock(type->mId, {16, 32});
      DB_FB_Control again;
      again.setData(block->toData());
      again.fromData();
      QVERIFY2(again.isEqual(*block) && FB_Pins::isBuilt(again), type->mClass);
      QCOMPARE(again.mParams, block->mParams);
    }
  }

  void everyTypeHasItsHelp() {
    QStringList missing;
    for (const FB_Type* type : FB_Types::all()) {
      const QString page = FB_Types::helpFileName(type->mId);
      QFile file(QFINDTESTDATA("../../resources/help") + u'/' + page);
      if (type->mHasPins && !(file.open(QIODevice::ReadOnly) && file.readAll().startsWith("<p>"))) {
        missing.append(page);
      }
    }
    QCOMPARE(missing, QStringList());
  }

  void everyCountKeepsToItsEnds() {
    for (const FB_Type* type : FB_Types::all()) {
      for (const FB_Pin_Group& group : type->mPins) {
        if (group.mParameter < 0) {
          continue;
        }
        const FB_Parameter& count = type->mParameters[size_t(group.mParameter)];
        const int fewest = int(count.mMinimum);
        const int most = int(count.mMaximum);
        for (const int wanted : {fewest - 1, fewest, most, most + 1, 1'000'000}) {
          const auto block = FB_Pins::makeBlock(type->mId, {});
          std::vector<DB_FB_Pin>& pins = FB_Pins::pins(*block, group.mSide);
          // Whatever is added or taken away, what is bound and stays is found at the same pin.
          for (DB_FB_Pin& pin : pins) {
            pin.mBinding.mName = pin.mLongName;
          }
          block->mParams[group.mParameter] = QString::number(wanted);
          FB_Pins::rebuild(*block);
          const int kept = std::max(wanted, fewest);
          QCOMPARE(block->mParams.at(group.mParameter), QString::number(kept));
          const auto isOfGroup = [&](const DB_FB_Pin& pin) {
            const QString word = FB_Types::text(group.mLongName).section(QStringLiteral("%1"), 0, 0);
            return pin.mLongName.startsWith(word) && pin.mLongName.mid(word.size()).toInt() > 0;
          };
          QVERIFY2(std::ranges::count_if(pins, isOfGroup) == std::min(kept, FB_Pins::cMostPins), type->mClass);
          QVERIFY2(std::ranges::all_of(pins,
                                       [](const DB_FB_Pin& pin) {
                                         return pin.mBinding.mName.isEmpty() || pin.mBinding.mName == pin.mLongName;
                                       }),
                   type->mClass);
          QCOMPARE(FB_Pins::missingPins(*block).isEmpty(), kept <= FB_Pins::cMostPins);
        }
      }
    }
  }
};

QTEST_GUILESS_MAIN(FB_Types_Test)
#include "FB_Types_Test.moc"
