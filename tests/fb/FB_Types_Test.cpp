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

  void families_data() {
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("count");
    QTest::addColumn<QString>("further");
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("help");
    const auto row = [](int id, const char* type, const char* count, const char* further, const char* words,
                        const char* help = "") {
      const QString page =
          *help ? QString::fromLatin1(help) : QString::fromLatin1(type).toLower() + QStringLiteral(".html");
      QTest::newRow(type) << id << count << further << QString::fromUtf8(words) << page;
    };
    row(50, "FB_AND", "2..64", "", "Eingang");
    row(51, "FB_OR", "2..64", "", "Eingang");
    row(52, "FB_XOR", "2..32", "", "Eingang");
    row(53, "FB_INV", "1..64", "", "Eingang, Ausgang");
    row(1373, "FB_INV_1N", "1..32", "", "A %1");
    row(60, "FB_Input_Switch", "2..32", "", "Eingang %1");
    row(63, "FB_Output_Switch", "2..64", "1d", "Ausgang");
    row(61, "FB_Manual_Automatic", "1..128", "", "Ausgang");
    row(71, "FB_Step", "2..64", "1d", "Stufe %1");
    row(1397, "FB_Shift_Register", "2..16", "1d", "Wert");
    row(1395, "FB_Binary_Encoder", "1..16", "", "");
    row(1396, "FB_Binary_Decoder", "1..16", "", "");
    row(1352, "FB_Mathematics_Addition_1", "1..128", "", "Eingang, Ergebnis");
    row(300, "FB_Mathematics_Addition_2", "2..32", "", "Eingang");
    row(1353, "FB_Mathematics_Subtraction_1", "1..128", "", "Wert, Ergebnis");
    row(1348, "FB_Mathematics_Multiplication_1", "1..128", "", "Multiplikator %1, Ergebnis %1");
    row(1347, "FB_Mathematics_Division_1", "1..128", "", "Dividend %1, Ergebnis %1");
    row(306, "FB_Mathematics_Minimum", "2..32", "", "Eingang");
    row(307, "FB_Mathematics_Maximum", "2..32", "", "Eingang");
    row(312, "FB_Mathematics_Interpolate", "1..128", "", "X-Achse, Y-Achse");
    row(1338, "FB_Random", "1..128", "0..4294967295", "Zufallszahl %1");
    row(1375, "FB_Trend", "1..64", "2d 4d 9d", "E %1, T %1");
    row(1349, "FB_ConvertTemperature", "1..128", "", "Wert %1");
    row(64, "FB_Multiplex", "", "", "Wert %1");
    row(65, "FB_Demultiplex", "", "", "Wert %1");
    row(54, "FB_Assign_To_1_1_Digital", "1..64", "6d", "E %1, A %1");
    row(74, "FB_Assign_To_1_1_KNX", "1..64", "6d", "E %1, A %1");
    row(55, "FB_Assign_To_1_N_Digital", "1..32", "", "A %1");
    row(75, "FB_Assign_To_1_N_KNX", "1..32", "", "A %1");
    row(76, "FB_Assign_To_1_N_KNX_Value", "1..32", "", "A %1");
    row(1393, "FB_Formula", "1..8", "1..86400 -1..6", "Trigger, Eingang %1, Ergebnis, Ergebnis als Bit, Fehler");
    row(1407, "FB_Step_Chain", "0..8", "1..32",
        "Start, Stopp, Pause, Weiterschalten, Zu Schritt springen, Freigabe, Bedingung %1, Aktuelle Schrittnummer");
    row(1402, "FB_State_Evaluation", "1..8", "",
        "Eingang %1, Statustext, Nummer der Zeile, Statuswert, Symbolnummer, Farbe, Aktiv");
    row(1937, "FB_Compare_Limit_Time", "1..64", "", "Istwert %1, Grenzwert %1, Zeit %1",
        "fb_compare_change_per_time.html");
    row(1331, "FB_Clock_Week", "1..128", "1..32640 0..23 0..59 0..23 0..59", "Ausgang", "fb_time_clock_week.html");
    row(1940, "FB_Clock_Holiday", "1..126", "", "Ausgang, Feiertag morgen", "fb_time_clock_holiday.html");
    row(1330, "FB_Debug_SetValue", "1..32", "1d", "Ausgang");
    row(900, "FB_Lua_Script", "1..64", "1..64", "Eingang, Ausgang");
  }
  /// What counts a member's pins, then its further numbers by range or decimals, the words of its pins, its help page.
  void families() {
    QFETCH(int, id);
    QFETCH(QString, further);
    QFETCH(QString, words);
    const FB_Type& type = *FB_Types::find(id);
    QCOMPARE(type.mClass, QTest::currentDataTag());
    QTEST(FB_Types::helpFileName(id), "help");
    const auto rangeOf = [](const FB_Parameter& parameter) {
      return QStringLiteral("%1..%2").arg(parameter.mMinimum, 0, 'f', 0).arg(parameter.mMaximum, 0, 'f', 0);
    };
    const auto counter = std::ranges::max_element(type.mPins, {}, &FB_Pin_Group::mParameter)->mParameter;
    std::vector<FB_Parameter> numbers;
    std::ranges::copy_if(type.mParameters, std::back_inserter(numbers),
                         [](const FB_Parameter& parameter) { return parameter.mEditor == FB_Editor::Number; });
    QTEST(counter < 0 ? QString() : rangeOf(numbers.at(0)), "count");
    QVERIFY(counter < 0 || numbers.at(0).mDecimals == 0);
    size_t next = 1;
    for (const QString& meant : further.split(u' ', Qt::SkipEmptyParts)) {
      const FB_Parameter& number = numbers.at(next++);
      QCOMPARE(meant.endsWith(u'd') ? QStringLiteral("%1d").arg(number.mDecimals) : rangeOf(number), meant);
    }
    for (const QString& word : words.split(QStringLiteral(", "), Qt::SkipEmptyParts)) {
      const auto isCalled = [&word](const FB_Pin_Group& pins) {
        const QString name = QString::fromUtf8(pins.mLongName);
        return name == word || name == word + QStringLiteral(" %1");
      };
      QVERIFY2(std::ranges::any_of(type.mPins, isCalled), qPrintable(word));
    }
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
    QTest::newRow("too many") << FB_Parameter{"Anzahl", "D", FB_Editor::Number, "2", 2, 1025}
                              << FB_Pin_Group{FB_Side::Output, "A%1", "A%1", 2, 0} << "more pins";
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
          const int made = FB_Pins::mostPins(*type, group.mParameter);
          QVERIFY2(std::ranges::count_if(pins, isOfGroup) == std::min(kept, made), type->mClass);
          QVERIFY2(pins.size() <= size_t(FB_Pins::cMostPins), type->mClass);
          QVERIFY2(std::ranges::all_of(pins,
                                       [](const DB_FB_Pin& pin) {
                                         return pin.mBinding.mName.isEmpty() || pin.mBinding.mName == pin.mLongName;
                                       }),
                   type->mClass);
          QCOMPARE(FB_Pins::missingPins(*block).isEmpty(), kept <= made);
        }
      }
    }
  }
};

QTEST_GUILESS_MAIN(FB_Types_Test)
#include "FB_Types_Test.moc"
