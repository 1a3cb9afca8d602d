#include "base/Datapoint_Codec.h"
#include "base/Datapoint_Types.h"

#include <QFile>
#include <QFileInfo>
#include <QtTest>

#include <cmath>

class Datapoint_Types_Test : public QObject {
  Q_OBJECT

private slots:
  /// What every row of the table must keep, whatever it says.
  void registry() {
    const std::span<const Datapoint_Type> types = Datapoint_Types::all();
    QCOMPARE(types.size(), std::size_t(324));
    for (const Datapoint_Type& type : types) {
      const QByteArray name = type.mId.toString().toUtf8();
      QVERIFY2(Datapoint_Types::find(type.mId) == &type, name);
      QVERIFY2(Datapoint_Types::find({type.mId.mMain, Datapoint_Id::cAnySub}) == nullptr, name);
      QVERIFY2(!type.name().isEmpty() && type.name() == type.name().trimmed(), name);
      QVERIFY2(type.mBits >= 0 && (type.mBits <= 8 || type.mBits % 8 == 0), name);
      QVERIFY2(type.mMin <= type.mMax, name);
      const auto bits = [&type]() -> int {
        switch (type.mFormat) {
        case Datapoint_Format::Bool:
          return 1;
        case Datapoint_Format::Enum2:
          return 2;
        case Datapoint_Format::Enum8:
        case Datapoint_Format::Bitset8:
        case Datapoint_Format::Scene:
          return 8;
        case Datapoint_Format::Float16:
          return 16;
        case Datapoint_Format::Float32:
          return 32;
        default:
          return type.mBits;
        }
      };
      QVERIFY2(type.mBits == bits(), name);
      const bool isScaled = type.mFormat == Datapoint_Format::Unsigned || type.mFormat == Datapoint_Format::Signed;
      if (isScaled) {
        // As many steps as the bits can count; 5.006 leaves one out.
        const double steps = (type.mMax - type.mMin) / type.mStep;
        QVERIFY2(std::abs(steps - std::ldexp(1, type.mBits) + 1) <= 1 + steps * 1e-15, name);
      }
      int last = -1;
      const bool isBitset = type.mFormat == Datapoint_Format::Bitset8;
      for (const auto& [value, text] : Datapoint_Types::valueTexts(type)) {
        QVERIFY2(value > last && !text.isEmpty() && text == text.trimmed(), name);
        const int number = isBitset ? 1 << value : value;
        QVERIFY2(type.mMin == type.mMax || (number >= type.mMin && number <= type.mMax), name);
        QCOMPARE(Datapoint_Types::valueText(type, value), text);
        last = value;
      }
      const bool isList = type.mFormat == Datapoint_Format::Bool || type.mFormat == Datapoint_Format::Enum2 ||
                          type.mFormat == Datapoint_Format::Enum8;
      QVERIFY2(!isList || (last == type.mMax && !Datapoint_Types::valueText(type, qint64(type.mMin)).isEmpty()), name);
    }
  }

  void describe_data() {
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("bits");
    for (const auto& [id, text, bits] : {
             std::tuple("9.001", "9.001 Temperatur (°C)", 16),
             {"1.001", "1.001 Schalten", 1},
             {"7.001", "7.001 Impulse", 16},
             {"29.010", "29.010 Wirkenergie 64 Bit (Wh)", 64},
             {"14.003", "14.003 Aktivität (radioaktiv), 1/s", 32},
             {"9", "9 (2-Byte-Gleitkommazahl)", 16},
             {"14.999", "14.999 (4-Byte-Gleitkommazahl)", 32},
             {"5", "5 (1 Byte ohne Vorzeichen)", 8},
             {"6", "6 (1 Byte)", 8},
             {"1", "1 (1 Bit)", 1},
             {"20.777", "20.777 (1 Byte, Aufzählung)", 8},
             {"24", "24 (Text variabler Länge)", 0},
             {"10", "10 (3 Byte, Uhrzeit mit Wochentag)", 24},
             {"225", "225 (3 Byte)", 24},
             {"300.001", "300.001", 0},
             {"", "", 0},
         }) {
      QTest::newRow(id) << QString::fromUtf8(id) << QString::fromUtf8(text) << bits;
    }
  }
  void describe() {
    QFETCH(QString, id);
    const Datapoint_Id parsed = Datapoint_Id::parse(id).value_or(Datapoint_Id());
    QTEST(Datapoint_Types::describe(parsed), "text");
    QTEST(Datapoint_Types::bitsOf(parsed), "bits");
  }

  void search_data() {
    QTest::addColumn<QString>("found");
    QTest::newRow("temp") << QStringLiteral("9.001 9.002 9.003 9.027 14.068 14.070 14.069 7.600 249.600 250.600");
    QTest::newRow("9.1") << QStringLiteral("9.001");
    QTest::newRow(" DIFF temp ") << QStringLiteral("9.002 14.070");
    QTest::newRow("9.01") << QStringLiteral("9.001 9.010 9.011 29.010 29.011 29.012");
    QTest::newRow("nichts davon") << QString();
  }

  void search() {
    QStringList found;
    for (const Datapoint_Id& id : Datapoint_Types::search(QString::fromUtf8(QTest::currentDataTag()))) {
      found.append(id.toString());
    }
    QTEST(found.join(u' '), "found");
    QCOMPARE(Datapoint_Types::search({}).size(), Datapoint_Types::all().size());
  }

  void valueTexts() {
    const Datapoint_Type& hvac = *Datapoint_Types::find({20, 105});
    QCOMPARE(Datapoint_Types::valueText(hvac, 20), "Keine Anforderung");
    QCOMPARE(Datapoint_Types::valueText(hvac, 18), "");
    QCOMPARE(Datapoint_Types::valueText(hvac, -1), "");
    QCOMPARE(Datapoint_Types::valueOfText(hvac, u"eis"), std::optional(11));
    QCOMPARE(Datapoint_Types::valueOfText(hvac, u""), std::nullopt);
  }

  /// The list of the standard's facts beside the sources, where it is at hand.
  void agreesWithTheFacts() {
    QFile file(QFileInfo(QFINDTESTDATA("Datapoint_Types_Test.cpp")).dir().filePath("../../../shared/data/dpt.csv"));
    if (!file.open(QIODevice::ReadOnly)) {
      QSKIP("the list of facts is not here");
    }
    QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    lines.removeFirst();
    QCOMPARE(lines.size(), qsizetype(Datapoint_Types::all().size()));
    QHash<QString, Datapoint_Format> formats;
    for (qsizetype i = 0; i < lines.size(); ++i) {
      const QStringList cells = lines[i].split(u';');
      const Datapoint_Type& type = Datapoint_Types::all()[std::size_t(i)];
      QCOMPARE(cells.size(), 10);
      QCOMPARE(type.mId.toString(), cells[0]);
      QCOMPARE(type.name(), cells[2]);
      QCOMPARE(type.mBits, cells[3].toInt());
      if (!formats.contains(cells[4])) {
        QVERIFY2(!formats.values().contains(type.mFormat), qPrintable(lines[i]));
        formats.insert(cells[4], type.mFormat);
      }
      QCOMPARE(type.mFormat, formats[cells[4]]);
      QCOMPARE(type.unit(), cells[5]);
      // Ranges of dates and times are no numbers; the codec keeps them.
      const bool hasDates = cells[6].contains(u':') || cells[6].count(u'-') > 1;
      QVERIFY2(!hasDates || keeps(type, cells[6], cells[7]), qPrintable(lines[i]));
      QCOMPARE(type.mMin, hasDates ? 0 : cells[6].toDouble());
      QCOMPARE(type.mMax, hasDates ? 0 : cells[7].toDouble());
      QCOMPARE(type.mStep, cells[8].toDouble());
      QStringList texts;
      for (const auto& [value, text] : Datapoint_Types::valueTexts(type)) {
        texts.append(QStringLiteral("%1=%2").arg(value).arg(text));
      }
      QCOMPARE(texts.join(u'|'), cells[9]);
    }
    QCOMPARE(formats.size(), 45);
  }

private:
  static bool keeps(const Datapoint_Type& type, const QString& min, const QString& max) {
    const auto reads = [&type](const QString& text) {
      const QString before = type.mFormat == Datapoint_Format::Time ? QStringLiteral("day=0 time=") : QString();
      const QString behind = type.mFormat == Datapoint_Format::Date_Time ? QStringLiteral(" day=0 flags=-") : QString();
      return Datapoint_Codec::fromText(type, before + text + behind).has_value();
    };
    return reads(min) && reads(max);
  }
};

QTEST_APPLESS_MAIN(Datapoint_Types_Test)
#include "Datapoint_Types_Test.moc"
