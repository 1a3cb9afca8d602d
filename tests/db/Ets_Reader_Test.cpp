#include "tests/db/Ets_Rig.h"
#include "tests/db/Session_Rig.h"

#include <QRegularExpression>

using Format = Ets_Groups::Format;
using Ets_Rig::read;

namespace {

const QByteArray cEsf = "Haus\r\nLicht.EG.1/2/3\tDecke\tEIS 1 'Switching' (1 Bit)\tLow\t\r\n";
const QByteArray cXml =
    "<?xml version=\"1.0\"?>\n<!-- x -->\n<GroupAddress-Export xmlns=\"http://knx.org/xml/ga-export/01\">"
    "<GroupAddress Name='Decke' Address='1/2/3'/></GroupAddress-Export>";
const QByteArray cCsv = "\"Decke\";\"1/2/3\"\n";

QByteArray utf16(const QByteArray& text, bool isBigEndian) {
  QStringEncoder encoder(isBigEndian ? QStringEncoder::Utf16BE : QStringEncoder::Utf16LE,
                         QStringEncoder::Flag::WriteBom);
  return encoder.encode(QString::fromUtf8(text));
}

/// A large file without the file: a head, a middle that repeats, a tail.
class Large_Device : public QIODevice {
public:
  Large_Device(const QByteArray& head, const QByteArray& middle, const QByteArray& tail, qint64 size,
               qint64 claimed = 0)
      : mHead(head),
        mMiddle(middle),
        mTail(tail),
        mMiddles((size - head.size() - tail.size()) / middle.size()),
        mClaimed(claimed) {
    open(ReadOnly);
  }
  [[nodiscard]] qint64 size() const override { return mClaimed > 0 ? mClaimed : end(); }
  [[nodiscard]] qint64 given() const { return mAt; }

protected:
  qint64 readData(char* data, qint64 wanted) override {
    const qint64 middleEnd = mHead.size() + mMiddles * mMiddle.size();
    QByteArrayView part;
    if (mAt < mHead.size()) {
      part = QByteArrayView(mHead).sliced(mAt);
    } else if (mAt < middleEnd) {
      part = QByteArrayView(mMiddle).sliced((mAt - mHead.size()) % mMiddle.size());
    } else {
      part = QByteArrayView(mTail).sliced(mAt - middleEnd);
    }
    const qint64 count = qMin(wanted, qint64(part.size()));
    std::copy_n(part.data(), count, data);
    mAt += count;
    return count;
  }
  qint64 writeData(const char* /*data*/, qint64 /*size*/) override { return -1; }

private:
  [[nodiscard]] qint64 end() const { return mHead.size() + mMiddles * mMiddle.size() + mTail.size(); }

  QByteArray mHead;
  QByteArray mMiddle;
  QByteArray mTail;
  qint64 mMiddles;
  qint64 mClaimed;
  qint64 mAt = 0;
};

constexpr qint64 cMegabyte = qint64(1024) * 1024;

/// Fails behind its beginning.
class Failing_Device : public Large_Device {
public:
  explicit Failing_Device(const QByteArray& head) : Large_Device(head, "x", {}, cMegabyte) {}

protected:
  qint64 readData(char* data, qint64 wanted) override {
    if (given() > 0) {
      setErrorString(QStringLiteral("Datenträger entfernt"));
      return -1;
    }
    return Large_Device::readData(data, wanted);
  }
};

/// "1/2/3", "1/515" or "2563" as three levels.
QString threeLevels(const QString& address) {
  constexpr int cMiddle = 256;
  constexpr int cMain = 2048;
  const QStringList levels = address.split(u'/');
  const int number = levels.last().toInt();
  const int main = levels.size() > 1 ? levels[0].toInt() : number / cMain;
  const int middle = levels.size() > 2 ? levels[1].toInt() : number % cMain / cMiddle;
  return QStringLiteral("%1/%2/%3").arg(main).arg(middle).arg(number % cMiddle);
}

/// Addresses with their names, and in an ESF "Main.Middle", found over the raw lines or tags.
QStringList rawAddresses(const QString& path) {
  QString text = QString::fromUtf8(Session_Rig::bytesOf(path));
  QStringList found;
  const auto add = [&found](QString name, const QString& address, const QString& groups = {}) {
    for (const auto& [escaped, plain] : {std::pair("&lt;", "<"), std::pair("&gt;", ">"), std::pair("&quot;", "\""),
                                         std::pair("&apos;", "'"), std::pair("&amp;", "&")}) {
      name.replace(QLatin1String(escaped), QLatin1String(plain));
    }
    found.append(threeLevels(address) + u' ' + name.trimmed() + groups);
  };
  const auto matches = [&text](const char* pattern) {
    return QRegularExpression(QString::fromLatin1(pattern), QRegularExpression::MultilineOption).globalMatch(text);
  };
  if (path.endsWith(u".xml")) {
    text.remove(QRegularExpression(QStringLiteral("<!--.*?-->"), QRegularExpression::DotMatchesEverythingOption));
    for (auto at = matches("<GroupAddress\\s[^>]*>"); at.hasNext();) {
      const QString tag = at.next().captured();
      const auto value = [&tag](const char* name) {
        return QRegularExpression(QStringLiteral("\\s%1=\"([^\"]*)\"").arg(QLatin1String(name))).match(tag).captured(1);
      };
      add(value("Name"), value("Address"));
    }
  } else if (path.endsWith(u".esf")) {
    for (auto at = matches("^([^\\t\\n]*)\\.(\\d+/\\d+/\\d+)\\t([^\\t\\n]*)\\t"); at.hasNext();) {
      const QRegularExpressionMatch match = at.next();
      add(match.captured(3), match.captured(2), u'.' + match.captured(1));
    }
  } else {
    for (auto at = matches("\"([^\"\\n]*)\"[,;\\t]\"(\\d+/\\d+/\\d+)\""); at.hasNext();) {
      const QRegularExpressionMatch match = at.next();
      add(match.captured(1), match.captured(2));
    }
  }
  return found;
}

} // namespace

class Ets_Reader_Test : public QObject {
  Q_OBJECT

private slots:
  void formatIsToldByContent_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<Format>("format");
    QTest::newRow("ESF") << cEsf << Format::Esf;
    QTest::newRow("ESF, two levels") << QByteArray("Licht.1/258\ta\t\tLow\t") << Format::Esf;
    QTest::newRow("ESF of a project with brackets") << "<" + cEsf << Format::Esf;
    QTest::newRow("ESF of a project called like a picture") << "GIF8" + cEsf << Format::Esf;
    QTest::newRow("ESF in UTF-16") << utf16(cEsf, false) << Format::Esf;
    QTest::newRow("XML") << cXml << Format::Xml;
    QTest::newRow("XML with mark and blank lines") << "\xef\xbb\xbf" + cXml.mid(cXml.indexOf('\n')) << Format::Xml;
    QTest::newRow("XML in UTF-16") << utf16(cXml, true) << Format::Xml;
    QTest::newRow("CSV") << cCsv << Format::Csv;
    QTest::newRow("CSV with tabs and points") << QByteArray("Licht.EG\t1/2/3\n") << Format::Csv;
    QTest::newRow("CSV in UTF-16") << utf16(cCsv, true) << Format::Csv;
  }

  void formatIsToldByContent() {
    QFETCH(QByteArray, bytes);
    const Ets_Rig::Outcome outcome = read(bytes);
    QVERIFY2(outcome.mIsRead, qPrintable(outcome.mError));
    QTEST(outcome.mGroups.mFormat, "format");
    QCOMPARE(outcome.mGroups.mAddresses.size(), size_t(1));
  }

  void foreignFilesAreRefused_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("told"); // a part of the message
    const auto row = [](const char* name, const QByteArray& bytes, const char* told) {
      QTest::newRow(name) << bytes << QString::fromUtf8(told);
    };
    row("empty", "", "leer");
    row("mark alone", "\xef\xbb\xbf", "keine Ausgabe");
    row("CSV without addresses", "Group name;Address\n", "weder Gruppenadressen noch Gruppen");
    row("XML without addresses", "<GroupAddress-Export xmlns='http://knx.org/xml/ga-export/01'/>",
        "weder Gruppenadressen noch Gruppen");
    row("ETS project", QByteArray("PK\x03\x04\x14\0\0\0", 8) + "P-0123/project.xml", "ETS-Projektdatei");
    row("spreadsheet", "PK\x03\x04 [Content_Types].xml", "Tabellenkalkulation");
    row("picture", "\x89PNG\r\n\x1a\n" + QByteArray(100, '\0'), "Bild");
    row("PDF", "%PDF-1.7\n", "keine Ausgabe");
    row("binary", QByteArray("SQLite format 3\0", 16), "keine Textdatei");
    row("ESF without addresses", "Leeres Haus\r\n", "keine Ausgabe");
    row("prose", "Guten Tag.\nDie Adressen kommen morgen.\n", "keine Ausgabe");
    row("table without addresses", "Name;Preis\nLampe;3\n", "keine Ausgabe");
    row("control character",
        cEsf + "Licht.EG.1/2/4\ta\x01"
               "b\t\tLow\t",
        "Zeile 3 enthält das Steuerzeichen 0x01");
    row("binary behind", cCsv.repeated(20000) + '\0', "Steuerzeichen 0x00");
    row("neither UTF-8 nor 1252",
        "Licht.EG.1/2/3\ta\x81"
        "b\t\tLow\t",
        "0x81 in Zeile 1");
    row("marked but no UTF-8", "\xef\xbb\xbf" + cEsf + "\xe4", "als UTF-8 gekennzeichnet");
    row("half a UTF-16", utf16(cEsf, true).chopped(1), "UTF-16");
    row("half a character in UTF-16", utf16(cEsf, false) + "\x2f\xd9", "UTF-16");
    row("cut UTF-8", QByteArray("Größe.EG.1/2/3\tKüche\t\tLow\t\nGrö").chopped(1), "mitten in einem Zeichen");
    row("cut XML", cXml.chopped(10), "nicht vollständig");
    row("XML in Windows-1252",
        QByteArray(cXml).replace("Decke", "K\xfc"
                                          "che"),
        "falsch kodiert");
    row("foreign XML", "<html><body/></html>", "kein ETS-Export");
    row("a tag without end", "<GroupAddress-Export a=\"" + QByteArray(1'000'000, 'x'), "länger als");
    row(
        "too many attributes",
        [] {
          QByteArray tag = "<GroupAddress-Export><GroupAddress";
          for (int i = 0; i < 2000; ++i) {
            tag += " a" + QByteArray::number(i) + "=''";
          }
          return tag + "/></GroupAddress-Export>";
        }(),
        "Attribute");
  }

  void foreignFilesAreRefused() {
    QFETCH(QByteArray, bytes);
    QFETCH(QString, told);
    const Ets_Rig::Outcome outcome = read(bytes);
    QVERIFY(!outcome.mIsRead);
    QVERIFY2(outcome.mError.contains(told), qPrintable(outcome.mError));
    QVERIFY(outcome.mGroups.mAddresses.empty() && outcome.mGroups.mRanges.empty() && outcome.mGroups.mFaults.isEmpty());
  }

  void aFormatCanBeChosen() {
    Ets_Reader::Options options;
    for (const auto& [format, other] :
         {std::pair(Format::Esf, cXml), {Format::Esf, cCsv + cCsv}, {Format::Csv, cXml}, {Format::Xml, cEsf}}) {
      options.mFormat = format;
      const Ets_Rig::Outcome outcome = read(other, options);
      QVERIFY(!outcome.mIsRead && !outcome.mError.isEmpty());
    }
  }

  /// Not even by whoever chose the format.
  void anEsfWithoutAddressesIsRefused_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("told");
    QTest::newRow("name of the project alone")
        << QByteArray("Leeres Haus\r\n") << QStringLiteral("weder Gruppenadressen");
    QTest::newRow("no name either") << QByteArray("\r\n") << QStringLiteral("weder Gruppenadressen");
    QTest::newRow("comments") << QByteArray("# a\n# b") << QStringLiteral("weder Gruppenadressen");
    QTest::newRow("XML in one line") << QByteArray("<?xml version='1.0'?><GroupAddress-Export/>")
                                     << QStringLiteral("XML");
  }

  void anEsfWithoutAddressesIsRefused() {
    QFETCH(QByteArray, bytes);
    QFETCH(QString, told);
    Ets_Reader::Options options;
    options.mFormat = Format::Esf;
    const Ets_Rig::Outcome outcome = read(bytes, options);
    QVERIFY(!outcome.mIsRead);
    QVERIFY2(outcome.mError.contains(told), qPrintable(outcome.mError));
  }

  void largeFilesAreReadOrRefusedInTime_data() {
    QTest::addColumn<QByteArray>("head");
    QTest::addColumn<QByteArray>("middle");
    QTest::addColumn<QByteArray>("tail");
    QTest::addColumn<int>("megabytes"); // fewer where all of it is read and the sanitizers would make it slow
    QTest::addColumn<QString>("told");
    const auto row = [](const char* name, const QByteArray& head, const QByteArray& middle, const QByteArray& tail,
                        int megabytes, const char* told) {
      QTest::newRow(name) << head << middle << tail << megabytes << QString::fromUtf8(told);
    };
    const QByteArray open = "<GroupAddress-Export xmlns='http://knx.org/xml/ga-export/01'>\n";
    const QByteArray address = "<GroupAddress Name='a' Address='1/2/3'/>";
    const QByteArray text(60'000, 'x');
    row("XML with comments", open, "<!--" + text + "-->\n", address + "</GroupAddress-Export>", 200, "");
    row("XML, one comment", open + "<!--", text, "-->", 200, "länger als");
    row("XML, nested", open, "<GroupRange Name='a' RangeStart='1' RangeEnd='2'>", {}, 200, "verschachtelt");
    row("XML, cut", open, "<!--" + text + "-->\n", address, 20, "nicht vollständig");
    row("ESF with an endless line", cEsf, text, {}, 20, "");
    row("ESF, too large", cEsf, text, {}, 300, "zu groß");
    row("CSV with an endless quote", cCsv + '"', text, {}, 20, "");
    row("ESF with a line of tabs", cEsf, QByteArray(60'000, '\t'), {}, 100, "");
    row("CSV with a line of cells", cCsv, QByteArray("a;").repeated(30'000), {}, 50, "");
    row("zeros", QByteArray(1, '\0'), QByteArray(60'000, '\0'), {}, 200, "keine Textdatei");
  }

  void largeFilesAreReadOrRefusedInTime() {
    QFETCH(QByteArray, head);
    QFETCH(QByteArray, middle);
    QFETCH(QByteArray, tail);
    QFETCH(int, megabytes);
    QFETCH(QString, told);
    Large_Device device(head, middle, tail, megabytes * cMegabyte);
    Ets_Groups groups;
    QString error;
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(Ets_Reader::read(device, {}, groups, error), told.isEmpty());
    QVERIFY2(error.contains(told), qPrintable(error));
    QCOMPARE(groups.mAddresses.size(), told.isEmpty() ? size_t(1) : size_t(0));
    constexpr qint64 cSlowest = 30'000; // ms, with sanitizers and beside other tests
    QVERIFY2(timer.elapsed() < cSlowest, qPrintable(QString::number(timer.elapsed())));
  }

  void aFileAboveTheLimitIsNotEvenRead() {
    Large_Device device(cEsf, cEsf, {}, 200 * cMegabyte, Ets_Reader::cSizeLimit + 1);
    Ets_Groups groups;
    QString error;
    QVERIFY(!Ets_Reader::read(device, {}, groups, error));
    QVERIFY2(error.contains(QStringLiteral("größer als")), qPrintable(error));
    QCOMPARE(device.given(), 0);
  }

  void aFailureOfTheDeviceIsTold() {
    for (const QByteArray& head : {cEsf, cXml, cCsv}) {
      Failing_Device device(head);
      Ets_Groups groups;
      QString error;
      QVERIFY(!Ets_Reader::read(device, {}, groups, error));
      QVERIFY2(error.contains(QStringLiteral("Datenträger entfernt")), qPrintable(error));
      QVERIFY(groups.mAddresses.empty());
    }
  }

  void entriesWithoutEndAreRefused() {
    const QByteArray open = "<GroupAddress-Export xmlns='http://knx.org/xml/ga-export/01'>";
    // Faulty ones count as well: they take time, if no memory.
    Large_Device device(open, QByteArray("<x/>").repeated(1000), {}, 200 * cMegabyte);
    Ets_Groups groups;
    QString error;
    QVERIFY(!Ets_Reader::read(device, {}, groups, error));
    QVERIFY2(error.contains(QStringLiteral("Einträge")), qPrintable(error));
    // Long names of ranges add up in the paths of what is inside.
    const QByteArray range = "<GroupRange Name='" + QByteArray(200'000, 'n') + "' RangeStart='1' RangeEnd='2'>";
    const Ets_Rig::Outcome nested = read(open + range.repeated(60));
    QVERIFY2(nested.mError.contains(QStringLiteral("Zeichen")), qPrintable(nested.mError));
  }

  void readingTellsItsProgressAndStops_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("ESF") << cEsf.repeated(5000);
    QTest::newRow("CSV") << cCsv.repeated(5000);
    QTest::newRow("XML") << QByteArray(cXml).replace(
        "<GroupAddress ", QByteArray("<GroupAddress Name='a' Address='1/1/1'/>").repeated(5000) + "<GroupAddress ");
  }

  void readingTellsItsProgressAndStops() {
    QFETCH(QByteArray, bytes);
    QList<int> told;
    Ets_Reader::Options options;
    options.mProgress = [&told](int percent) {
      told.append(percent);
      return true;
    };
    QVERIFY(read(bytes, options).mIsRead);
    QVERIFY(told.size() > 5);
    QVERIFY(std::is_sorted(told.begin(), told.end()));
    QCOMPARE(told.last(), 100);
    for (const qsizetype last : {qsizetype(0), told.size() / 2, told.size() - 1}) {
      qsizetype calls = 0;
      options.mProgress = [&calls, last](int /*percent*/) { return calls++ < last; };
      const Ets_Rig::Outcome stopped = read(bytes, options);
      QVERIFY(!stopped.mIsRead && stopped.mError.contains(QStringLiteral("abgebrochen")));
      QVERIFY(stopped.mGroups.mAddresses.empty());
      QVERIFY(calls <= last + 2);
    }
  }

  /// Real exports lie beside the project on a developer's machine; they are never copied into it.
  void realExportsArriveWhole_data() {
    static const QHash<QString, int> counts = {
        {QStringLiteral("hap-nodejs-ets4-opc-export.esf"), 14},
        {QStringLiteral("knx-ultimate-readme-sample.esf"), 23},
        {QStringLiteral("knx-ultimate-issue36-excerpt.esf"), 3},
        {QStringLiteral("monitor-knx-group_address_complete.xml"), 39},
        {QStringLiteral("knx-doku-export.xml"), 144},
        {QStringLiteral("knx-exporter-ga-export.xml"), 4},
        {QStringLiteral("bluewire-groups.test.xml"), 4},
        {QStringLiteral("made-two-level.xml"), 4},
        {QStringLiteral("made-free-level.xml"), 3},
        {QStringLiteral("blueknx2mqtt-etsexport.csv"), 333},
        {QStringLiteral("knxmonitor-groupaddresses-crlf.csv"), 156},
        {QStringLiteral("knx-doku-gruppenadressen-ETS6-4-1.csv"), 145},
        {QStringLiteral("waldbaer-KNX-planning-example_format_1_1.csv"), 16},
    };
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("count");
    const QDir folder(QFileInfo(QFINDTESTDATA("Ets_Reader_Test.cpp")).path() +
                      QStringLiteral("/../../../shared/data/ets"));
    const QStringList patterns{QStringLiteral("*.esf"), QStringLiteral("*.xml"), QStringLiteral("*.csv")};
    const QStringList names = folder.entryList(patterns, QDir::Files);
    for (const QString& name : names) {
      QTest::newRow(name.toUtf8().constData()) << folder.filePath(name) << counts.value(name, -1);
    }
    if (names.isEmpty()) {
      QSKIP("no real exports on this machine");
    }
  }

  void realExportsArriveWhole() {
    QFETCH(QString, path);
    QFETCH(int, count);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    Ets_Groups groups;
    QString error;
    QVERIFY2(Ets_Reader::read(file, {}, groups, error), qPrintable(error));
    QVERIFY2(groups.mFaults.isEmpty(), qPrintable(groups.mFaults.join(u'\n')));
    QStringList read;
    for (const Ets_Groups::Address& address : groups.mAddresses) {
      const QString inRanges = u'.' + QString(address.mRangePath).replace(QStringLiteral(" / "), QStringLiteral("."));
      const bool isEsf = groups.mFormat == Ets_Groups::Format::Esf;
      read.append(address.mAddress.toString() + u' ' + address.mName + (isEsf ? inRanges : QString()));
      QVERIFY(!address.mRangePath.isEmpty());
    }
    QCOMPARE(read, rawAddresses(path));
    QVERIFY2(count < 0 || read.size() == count, qPrintable(QString::number(read.size())));
  }
};

QTEST_GUILESS_MAIN(Ets_Reader_Test)
#include "Ets_Reader_Test.moc"
