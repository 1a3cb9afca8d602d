#include "base/Datapoint_Codec.h"
#include "base/Datapoint_Types.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

struct Row {
  const char* mType;
  const char* mHex;
  const char* mText; ///< canonical
};

// clang-format off
// One row and more per format; they hold in both directions.
constexpr Row cBoth[] = {
    {"1.001", "01", "1"}, {"2.008", "02", "control=1 value=0"}, {"3.007", "0B", "direction=1 step=3"},
    {"4.001", "20", " "}, {"4.002", "FF", "ÿ"}, {"5.001", "FF", "100"}, {"5.003", "01", "1.4118"},
    {"5.010", "FE", "254"}, {"6.010", "80", "-128"}, {"6.020", "A9", "A=1 B=0 C=1 D=0 E=1 mode=0"},
    {"7.004", "0003", "300"}, {"8.003", "8000", "-327680"}, {"8.010", "0007", "0.07"}, {"9.001", "0C1A", "21"},
    {"9.020", "87FF", "-0.01"}, {"9.020", "07FF", "20.47"}, {"9.020", "0C01", "20.5"},
    {"10.001", "373B00", "day=1 time=23:59:00"}, {"11.001", "1D0218", "2024-02-29"},
    {"12.001", "FFFFFFFF", "4294967295"}, {"13.002", "80000000", "-214748.3648"}, {"14.056", "C2C80000", "-100"},
    {"14.056", "7F7FFFFF", "3.4028235e+38"}, {"14.056", "3DCCCCCD", "0.1"},
    {"15.000", "9999990F", "code=999999 E=0 P=0 D=0 C=0 index=15"}, {"16.000", "4100000000000000000000000000", "A"},
    {"16.001", "0000000000000000000000000000", ""}, {"17.001", "3F", "63"}, {"18.001", "BF", "learn=1 scene=63"},
    {"19.001", "FF0C1FF73B3BC0C0", "2155-12-31 23:59:59 day=7 flags=F,WD,CLQ,SRC"},
    {"19.001", "0000003F3F3F0A00", "1900-00-00 31:63:63 day=1 flags=ND,NT"},
    {"19.001", "01021D0000001000", "1901-02-29 00:00:00 day=0 flags=NY"}, {"20.1000", "FF", "255"},
    {"21.001", "1F", "31"}, {"23.002", "02", "2"}, {"24.001", "00", ""}, {"24.001", "E4206200", "ä b"},
    {"26.001", "7F", "inactive=1 scene=63"}, {"27.001", "FFFF8001", "mask=FFFF state=8001"},
    {"28.001", "E69785F09F8C9E00", "旅\U0001F31E"}, {"29.010", "7FFFFFFFFFFFFFFF", "9223372036854775807"},
    {"29.012", "8000000000000001", "-9223372036854775807"}, {"217.001", "FFFF", "magic=31 version=31 revision=63"},
    {"221.001", "00FA01234567", "00FA01234567"}, {"225.001", "000F33", "time_ms=1500 percent=20"},
    {"225.002", "000F01", "time_ms=15 percent=0.3922"}, {"225.003", "003CFE", "time_min=60 tariff=254"},
    {"229.001", "00BC5EA828FF", "value=12345 unit=W status=FF"},
    {"229.001", "7FFFFFFF9100", "value=2147483647000 unit=m³ status=00"}, {"231.001", "66724348", "fr-CH"},
    {"232.600", "0180FF", "r=1 g=128 b=255"}, {"234.002", "4445", "DE"},
    {"235.001", "80000000FE00", "energy=-2147483648 tariff=254"}, {"235.001", "000000070001", "energy=7 tariff=-"},
    {"238.001", "C5", "inactive=1 no_storage=1 scene=5"},
    {"238.600", "7F", "ballast_failure=0 lamp_failure=1 address=63"}, {"239.001", "3301", "percent=20"},
    {"239.001", "0000", "percent=-"}, {"240.800", "330001", "height=20 slats=-"},
    {"240.800", "33FF03", "height=20 slats=100"},
    {"241.800", "FF00C402",
     "height=100 slats=0 upper_end=0 lower_end=1 lower_preset=0 driving=0 height_limited=0 slats_limited=0 alarm=0 "
     "forced=0 locked=0 overridden=0 failure=1"},
    {"242.600", "00010002FF03", "x=1 y=2 brightness=255"},
    {"243.600", "000A00010002FF03", "time_ms=1000 x=1 y=2 brightness=255"},
    {"249.600", "000A0BB88007", "time_ms=1000 kelvin=3000 brightness=128"},
    {"250.600", "0D0703", "ct_direction=1 ct_step=5 b_direction=0 b_step=7"},
    {"251.600", "01020304000F", "r=1 g=2 b=3 w=4"},
    {"252.600", "0900000F09",
     "r_direction=1 r_step=1 g_direction=- g_step=- b_direction=- b_step=- w_direction=1 w_step=7"},
    {"253.600", "090A0307", "x_direction=1 x_step=1 y_direction=1 y_step=2 b_direction=0 b_step=3"},
    {"254.600", "0F0008", "r_direction=1 r_step=7 g_direction=0 g_step=0 b_direction=1 b_step=0"},
};

// Other payloads of the same value: what is read of them.
constexpr Row cDecoded[] = {
    {"9.001", "1869", "8.4"}, {"9.001", "F800", ""}, {"14.056", "80000000", "0"},
    {"16.000", "41004280FF000000000000000000", "A"}, {"229.001", "FFFFFFFF5700", "value=-10000 unit=kg/h status=00"},
    {"229.001", "00000001BA00", "value=1 unit=1 status=00"}, {"242.600", "1234567890FF", ""},
    {"242.600", "123456789002", "x=4660 y=22136 brightness=-"}, {"235.001", "123456780902", "energy=- tariff=9"},
};

// Other texts of a value: the payload they give.
constexpr Row cEncoded[] = {
    {"1.001", "01", " 1 "}, {"1.001", "01", "ein"}, {"20.102", "01", "Komfort"}, {"5.001", "01", "0.2"},
    {"5.001", "00", "0.19"}, {"5.004", "03", "2.5"}, {"7.003", "0001", "5"}, {"8.010", "FFFF", "-0.0149"},
    {"9.020", "0C00", "20.475"}, {"9.020", "87FF", "-1e-2"}, {"9.020", "8000", "-20.48"}, {"9.020", "8BFF", "-20.5"},
    {"12.001", "FFFFFFFF", "4.294967295E9"}, {"14.056", "7F7FFFFF", "3.40282347e+38"},
    {"14.056", "00000000", "1e-60"}, {"29.010", "4000000000000000", "4611686018427387904"},
    {"221.001", "00FA01234567", "00fa:01234567"}, {"231.001", "66724348", " frCH "},
    {"11.001", "020318", "2024-3-2"}, {"10.001", "080500", "time=8:5:0 day=0"},
    {"240.800", "008002", "slats=50 height=-"}, {"232.600", "010203", " b=3  r=1 g=2"},
    {"240.800", "800001", "slats=- height=50"}, {"225.001", "000200", "time_ms=151 percent=0.1"},
    {"229.001", "11E1A3005100", "value=3000000 unit=kg/h status=00"},
};

// The text is a part of the reason.
constexpr Row cRefusedPayloads[] = {
    {"1.001", "", ""}, {"1.001", "02", "2"}, {"2.001", "04", ""}, {"3.007", "10", ""}, {"4.001", "80", ""},
    {"17.001", "40", "63"}, {"18.001", "40", ""}, {"26.001", "80", ""}, {"20.006", "02", "10"},
    {"20.007", "00", "1=Ei"}, {"21.001", "20", "31"}, {"23.002", "03", ""}, {"6.020", "00", ""}, {"6.020", "03", ""},
    {"9.001", "8000FF", "2"}, {"9.004", "87FF", "0 lx"}, {"10.001", "180000", ""}, {"10.001", "003C00", ""},
    {"11.001", "1E0218", "2024-02-30"}, {"11.001", "010D18", ""}, {"11.001", "210118", ""},
    {"14.056", "7F800000", ""}, {"14.056", "FFC00000", ""}, {"15.000", "A0000000", "A0"},
    {"225.003", "0000FF", "254"}, {"221.001", "00FA", "6"}, {"231.001", "64650045", ""}, {"234.001", "3031", ""},
    {"235.001", "0000000000FC", ""}, {"235.001", "00000000FF00", "254"}, {"239.001", "0002", ""},
    {"241.800", "00000800", ""}, {"251.600", "00000000010F", ""}, {"254.600", "100000", ""}, {"24.001", "", "NUL"},
    {"24.001", "41", "NUL"}, {"24.001", "410000", "NUL"}, {"28.001", "E69700", "UTF-8"}, {"28.001", "C08000", ""},
    {"16.001", "41", "14"}, {"19.001", "7C01011801000000", ""}, {"19.001", "7C01011700000020", ""},
    {"19.001", "7C10010000000800", "2024-16-01"}, {"19.001", "7C0101000000000000", "8"},
    {"229.001", "000000002000", "20"},
};

// In the place of the payload stands a part of the reason.
constexpr Row cRefusedTexts[] = {
    {"1.001", "", "2"}, {"1.001", "", "0.5"}, {"1.001", "", ""}, {"1.001", "", "Kein"}, {"5.001", "100 %", "100.1"},
    {"5.001", "0 %", "-0.1"}, {"5.006", "254", "255"}, {"5.001", "", "1,5"}, {"5.001", "", "nan"},
    {"14.056", "", "inf"}, {"14.056", "", "1e39"}, {"14.056", "", "-1e999"}, {"9.001", "-273 °C", "-274"},
    {"9.001", "670433.28", "670433.3"}, {"13.002", "", "214748.36475"}, {"12.001", "4294967295", "-1"},
    {"29.010", "9223372036854775807", "9223372036854775808"}, {"29.010", "", "-9223372036854775809"},
    {"29.010", "", "1e300"}, {"20.102", "4=Geb", "5"}, {"20.102", "", "3.5"}, {"20.105", "bis 20", "18"},
    {"21.002", "", "8"}, {"17.001", "63", "64"}, {"4.001", "ASCII", "ä"}, {"4.002", "8859", "€"},
    {"4.002", "", "ab"}, {"4.002", "", ""}, {"16.000", "14", "123456789012345"}, {"16.000", "ASCII", "ü"},
    {"11.001", "1990", "1989-12-31"}, {"11.001", "2089", "2090-01-01"}, {"11.001", "", "2023-02-29"},
    {"11.001", "", "20-11"}, {"11.001", "", "+2023-02-2"}, {"10.001", "23:59:59", "day=1 time=24:00:00"},
    {"10.001", "Wochentag", "day=8 time=00:00:00"}, {"10.001", "", "day=1"},
    {"19.001", "24:00:00", "2026-11-20 24:00:01 day=0 flags=-"},
    {"19.001", "Merker", "2026-11-20 10:00:00 day=0 flags=XX"}, {"19.001", "", "2156-01-01 10:00:00 day=0 flags=ND"},
    {"232.600", "255", "r=256 g=0 b=0"}, {"232.600", "b fehlt", "r=1 g=0"},
    {"232.600", "r, g, b", "r=1 r=2 g=0 b=0"}, {"232.600", "", "r=1 g=0 b=0 w=0"},
    {"232.600", "ungültig", "r=- g=0 b=0"}, {"242.600", "zusammen", "x=- y=1 brightness=0"},
    {"6.020", "", "A=1 B=0 C=1 D=0 E=1 mode=3"}, {"15.000", "", "code=12345 E=0 P=0 D=0 C=0 index=0"},
    {"15.000", "", "code=00000A E=0 P=0 D=0 C=0 index=0"}, {"27.001", "hexa", "mask=+001 state=0001"},
    {"235.001", "2147483647", "energy=2147483648 tariff=0"}, {"225.001", "6553500", "time_ms=6553501 percent=0"},
    {"221.001", "", "00FA0123456"}, {"221.001", "", "00FA0123456X"}, {"231.001", "", "d-DEE"}, {"234.001", "", "ü1"},
    {"229.001", "zu groß", "value=1e20 unit=Wh status=00"}, {"229.001", "Einheit", "value=1 unit=kWh status=00"},
    {"229.001", "", "value=1 unit=Wh status=+1"},
};

// In German.
constexpr Row cDisplayed[] = {
    {"1.001", "01", "Ein"}, {"2.001", "03", "Zwang: Ein"}, {"3.007", "0B", "Heller 25 %"}, {"5.001", "80", "50,2 %"},
    {"6.020", "A9", "A: 1, B: 0, C: 1, D: 0, E: 1, Modus: 0"}, {"26.001", "45", "Szene inaktiv, Szene: 6"},
    {"5.003", "FF", "360°"}, {"5.006", "00", "Kein Tarif verfügbar"}, {"7.001", "FFFF", "65.535 Impulse"},
    {"9.001", "0C33", "21,5 °C"}, {"10.001", "28051E", "Montag, 08:05:30"}, {"11.001", "140B1A", "20.11.2026"},
    {"13.002", "FFFFFFFF", "-0,0001 m³/h"}, {"14.056", "3DCCCCCD", "0,1 W"},
    {"14.056", "7F7FFFFF", "3,4028235e+38 W"}, {"17.001", "3F", "Szene 64"},
    {"18.001", "9E", "Speichern, Szene: 31"}, {"19.001", "7E0B14A80A1E01C0", "Freitag, 20.11.2026, 08:10:30"},
    {"19.001", "7E0B14A80A1E9600", "20.11., Uhr gestört"}, {"20.102", "03", "Nacht/Absenkung"},
    {"21.002", "05", "Anwendung gestoppt, Prüfmodus ein"}, {"21.002", "00", "Nichts gesetzt"},
    {"27.001", "00078002", "Ein: 2; Aus: 1, 3"}, {"29.010", "0000001234567890", "78.187.493.520 Wh"},
    {"221.001", "00FA01234567", "00FA:01234567"}, {"229.001", "010000001700", "167.772.160 m³, Status: 00"},
    {"232.600", "0180FF", "Rot: 1, Grün: 128, Blau: 255"}, {"240.800", "33FF01", "Höhe: 20 %, Lamelle: ungültig"},
    {"249.600", "000A0BB88003", "Zeit: ungültig, Farbtemperatur: 3.000 K, Helligkeit: 128"},
    {"250.600", "0D0002", "Farbtemperatur: Erhöhen 6,25 %, Helligkeit: ungültig"},
};
// clang-format on

const Datapoint_Type& typeOf(const QString& number) {
  const Datapoint_Type* const type = Datapoint_Types::find(Datapoint_Id::parse(number).value_or(Datapoint_Id()));
  if (!type) {
    qFatal("no type %s", qPrintable(number));
  }
  return *type;
}

template <std::size_t Size>
void addRows(const Row (&rows)[Size]) {
  QTest::addColumn<QString>("number");
  QTest::addColumn<QByteArray>("hex");
  QTest::addColumn<QString>("text");
  for (const Row& row : rows) {
    QTest::addRow("%s %s %s", row.mType, row.mHex, row.mText)
        << row.mType << QByteArray(row.mHex) << QString::fromUtf8(row.mText);
  }
}

/// The text that a payload is read as; empty when it is refused.
QString read(const Datapoint_Type& type, const QByteArray& hex, QString* error = nullptr) {
  const auto value = Datapoint_Codec::decode(type, QByteArray::fromHex(hex), error);
  return value ? Datapoint_Codec::toText(type, *value) : QString();
}

/// The payload that a text gives, as hexadecimal digits; "refused" when it is.
QByteArray written(const Datapoint_Type& type, const QString& text, QString* error = nullptr) {
  const auto value = Datapoint_Codec::fromText(type, text, error);
  const auto payload = value ? Datapoint_Codec::encode(type, *value, error) : std::nullopt;
  return payload ? payload->toHex().toUpper() : QByteArray("refused");
}

Datapoint_Value ofNumber(double number) {
  return {number, {}};
}

} // namespace

class Datapoint_Codec_Test : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }

  void both_data() { addRows(cBoth); }
  void both() {
    QFETCH(QString, number);
    QFETCH(QByteArray, hex);
    QFETCH(QString, text);
    QString error;
    QCOMPARE(read(typeOf(number), hex, &error), text);
    QCOMPARE(written(typeOf(number), text, &error), hex);
    QCOMPARE(error, QString());
  }

  void everyFormatHasARow() {
    QSet<Datapoint_Format> formats;
    for (const Datapoint_Type& type : Datapoint_Types::all()) {
      formats.insert(type.mFormat);
    }
    for (const Row& row : cBoth) {
      formats.remove(typeOf(QString::fromLatin1(row.mType)).mFormat);
    }
    QVERIFY2(formats.isEmpty(), qPrintable(QString::number(formats.isEmpty() ? 0 : int(*formats.begin()))));
  }

  void decoded_data() { addRows(cDecoded); }
  void decoded() {
    QFETCH(QString, number);
    QFETCH(QByteArray, hex);
    QTEST(read(typeOf(number), hex), "text");
  }

  void encoded_data() { addRows(cEncoded); }
  void encoded() {
    QFETCH(QString, number);
    QFETCH(QString, text);
    QTEST(written(typeOf(number), text), "hex");
  }

  void refusedPayloads_data() { addRows(cRefusedPayloads); }
  void refusedPayloads() {
    QFETCH(QString, number);
    QFETCH(QByteArray, hex);
    QFETCH(QString, text);
    QString error;
    QVERIFY(!Datapoint_Codec::decode(typeOf(number), QByteArray::fromHex(hex), &error));
    QVERIFY2(error.endsWith(u'.') && error.contains(text), qPrintable(error));
  }

  void refusedTexts_data() { addRows(cRefusedTexts); }
  void refusedTexts() {
    QFETCH(QString, number);
    QFETCH(QByteArray, hex);
    QFETCH(QString, text);
    QString error;
    QCOMPARE(written(typeOf(number), text, &error), "refused");
    QVERIFY2(error.endsWith(u'.') && error.contains(QString::fromUtf8(hex)), qPrintable(error));
  }

  /// Numbers that no text can say, and values of the wrong kind.
  void refusedValues() {
    for (const char* const number : {"5.001", "9.001", "14.056", "29.010", "1.001", "20.102"}) {
      for (const double value : {std::nan(""), HUGE_VAL, -HUGE_VAL}) {
        QVERIFY2(!Datapoint_Codec::encode(typeOf(number), ofNumber(value)), number);
      }
      QVERIFY2(!Datapoint_Codec::encode(typeOf(number), Datapoint_Value::ofText("1")), number);
      QVERIFY2(!Datapoint_Codec::encode(typeOf(number), {}), number);
    }
    QVERIFY(!Datapoint_Codec::encode(typeOf("29.010"), ofNumber(9223372036854775808.0)));
    for (const Datapoint_Type& type : Datapoint_Types::all()) {
      QVERIFY2(!Datapoint_Codec::encode(type, {}), qPrintable(type.mId.toString()));
    }
    // A mark of byte order is a character like any other.
    QCOMPARE(read(typeOf("28.001"), "EFBBBF4100"), QString(QChar(0xfeff)) + u'A');
    QVERIFY(!Datapoint_Codec::encode(typeOf("16.001"), Datapoint_Value::ofText(QString("a") + QChar::Null)));
    QVERIFY(!Datapoint_Codec::encode(typeOf("28.001"), Datapoint_Value::ofText(QString(QChar(0xd800)))));
  }

  void displayed_data() { addRows(cDisplayed); }
  void displayed() {
    QFETCH(QString, number);
    QFETCH(QByteArray, hex);
    const auto value = Datapoint_Codec::decode(typeOf(number), QByteArray::fromHex(hex));
    QVERIFY(value);
    QTEST(Datapoint_Codec::display(typeOf(number), *value), "text");
  }

  /// Every number type carries its limits and what lies between them as exactly as its step allows.
  void everyNumber() {
    for (const Datapoint_Type& type : Datapoint_Types::all()) {
      const bool isListed = !Datapoint_Types::valueTexts(type).isEmpty() && type.mFormat != Datapoint_Format::Bitset8;
      const auto start = Datapoint_Codec::encode(type, ofNumber(std::clamp(0.0, type.mMin, type.mMax)));
      if (type.mMin == type.mMax || isListed || !start) {
        continue;
      }
      for (const double share : {0.0, 0.123, 0.25, 0.4999, 0.5, 0.75, 0.999, 1.0}) {
        // Weighted, because max - min would lose the last digits of the widest types.
        double number = type.mMin * (1 - share) + type.mMax * share;
        number = type.mBits == 64 ? std::min(number, 9223372036854774784.0) : number;
        const auto payload = Datapoint_Codec::encode(type, ofNumber(number));
        QVERIFY2(payload && payload->size() == type.bytes(), qPrintable(type.mId.toString()));
        const auto value = Datapoint_Codec::decode(type, *payload);
        QVERIFY2(value, qPrintable(type.mId.toString()));
        const bool isFloat = type.mFormat == Datapoint_Format::Float16 || type.mFormat == Datapoint_Format::Float32;
        const double most = (isFloat ? std::abs(number) / 1024 : type.mStep / 2) * 1.000001 + 1e-30;
        const double difference = std::abs(*value->number() - number);
        QVERIFY2(difference <= std::max(most, std::abs(number) * 1e-15), qPrintable(type.mId.toString()));
        QCOMPARE(QByteArray::fromHex(written(type, Datapoint_Codec::toText(type, *value))), *payload);
      }
    }
  }

  /// Whatever bytes are read, of any type, are the same value again through bytes and through text.
  void everyPayload() {
    QRandomGenerator random(20261120);
    for (const Datapoint_Type& type : Datapoint_Types::all()) {
      int readable = 0;
      for (int round = 0; round < 500; ++round) {
        QByteArray payload(type.bytes() > 0 ? type.bytes() : 5, '\0');
        for (char& byte : payload) {
          // Small numbers and bytes of one bit get through the checks of compounds.
          const auto bits = random.generate();
          byte = static_cast<char>(bits & 1   ? bits >> 8
                                   : bits & 2 ? bits >> 8 & 15
                                   : bits & 4 ? 65 + (bits >> 8 & 31)
                                              : 0);
        }
        const auto value = Datapoint_Codec::decode(type, payload);
        if (!value) {
          continue;
        }
        ++readable;
        const auto again = Datapoint_Codec::encode(type, *value);
        QVERIFY2(again, qPrintable(type.mId.toString() + payload.toHex()));
        QCOMPARE(Datapoint_Codec::decode(type, *again), value);
        QCOMPARE(written(type, Datapoint_Codec::toText(type, *value)), again->toHex().toUpper());
        QVERIFY(!Datapoint_Codec::display(type, *value).isNull() || type.bytes() != 1);
      }
      QVERIFY2(readable > 0, qPrintable(type.mId.toString()));
    }
  }

  /// The cross-checked vectors beside the sources, where they are at hand.
  void vectors() {
    const QDir here = QFileInfo(QFINDTESTDATA("Datapoint_Codec_Test.cpp")).dir();
    QFile file(here.filePath("../../../shared/data/dpt-vectors.csv"));
    if (!file.open(QIODevice::ReadOnly)) {
      QSKIP("the vectors are not here");
    }
    QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    lines.removeFirst();
    for (const QString& line : lines) {
      const QStringList cells = line.split(u';');
      const Datapoint_Type& type = typeOf(cells[0]);
      const QByteArray hex = cells[1].toLatin1();
      const QString kind = cells[3].section(u',', 0, 0);
      QString error;
      if (kind == u"refuse") {
        QVERIFY2(!Datapoint_Codec::decode(type, QByteArray::fromHex(hex), &error) && !error.isEmpty(),
                 qPrintable(line));
        continue;
      }
      QVERIFY2(kind == u"both" || kind == u"decode" || kind == u"encode", qPrintable(line));
      if (kind != u"encode") {
        const QString text = read(type, hex, &error);
        QVERIFY2(isSame(type, text, cells[2]), qPrintable(line + u' ' + text + error));
      }
      if (kind != u"decode") {
        const QByteArray payload = written(type, cells[2], &error);
        QVERIFY2(payload == hex, qPrintable(line + u' ' + payload + error));
      }
    }
    QCOMPARE(lines.size(), 198);
  }

private:
  /// Fractions of a byte may differ by less than a step, floats in how many digits they are written with.
  static bool isSame(const Datapoint_Type& type, const QString& a, const QString& b) {
    if (type.mFormat == Datapoint_Format::Float32) {
      return a.toFloat() == b.toFloat();
    }
    const bool isFraction = type.mFormat == Datapoint_Format::Unsigned && type.mStep != 1 && type.mBits == 8;
    return isFraction ? std::abs(a.toDouble() - b.toDouble()) < type.mStep : a == b;
  }
};

QTEST_APPLESS_MAIN(Datapoint_Codec_Test)
#include "Datapoint_Codec_Test.moc"
