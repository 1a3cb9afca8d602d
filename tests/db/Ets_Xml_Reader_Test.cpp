#include "db/Ets_Reader.h"
#include "tests/db/Ets_Rig.h"
#include "tests/db/Session_Rig.h"

#include <QBuffer>
#include <QDir>
#include <QRegularExpression>

using Style = Ets_Groups::Style;

namespace {

const QByteArray cHead = "\xef\xbb\xbf<?xml version=\"1.0\" encoding=\"utf-8\" standalone=\"yes\"?>\r\n";
const QByteArray cOpen = "<GroupAddress-Export xmlns=\"http://knx.org/xml/ga-export/01\">";
const QByteArray cClose = "</GroupAddress-Export>";

bool readBytes(const QByteArray& bytes, Ets_Groups& groups, QString& error) {
  QBuffer buffer;
  buffer.setData(bytes);
  buffer.open(QIODevice::ReadOnly);
  return Ets_Reader::read(buffer, {}, groups, error);
}

/// The names of one kind of element, found over the raw tags.
QStringList namesInTags(const QString& text, const QString& element) {
  const QRegularExpression tags(QStringLiteral("<!--.*?-->|<%1\\s[^>]*?\\bName=\"([^\"]*)\"").arg(element),
                                QRegularExpression::DotMatchesEverythingOption);
  QStringList names;
  for (auto at = tags.globalMatch(text); at.hasNext();) {
    const QRegularExpressionMatch match = at.next();
    if (!match.captured(0).startsWith(u"<!--")) {
      QString name = match.captured(1);
      for (const auto& [escaped, plain] : {std::pair("&lt;", "<"), std::pair("&gt;", ">"), std::pair("&quot;", "\""),
                                           std::pair("&apos;", "'"), std::pair("&amp;", "&")}) {
        name.replace(QLatin1String(escaped), QLatin1String(plain));
      }
      names.append(name.trimmed());
    }
  }
  return names;
}

} // namespace

class Ets_Xml_Reader_Test : public QObject {
  Q_OBJECT

private slots:
  void addressesAreReadInEveryStyle() {
    struct Case {
      const char* mAttributes;
      const char* mAddress;
      Style mStyle;
      const char* mType;
    };
    for (const Case& row : {Case{"Address='1/2/3' DPTs='DPST-9-1'", "1/2/3", Style::ThreeLevel, "9.001"},
                            {"Address='1/258' DPTs='DPT-9'", "1/1/2", Style::TwoLevel, "9"},
                            {"Address='2305'", "1/1/1", Style::Free, ""},
                            {"Address='0x1fa3'", "3/7/163", Style::Free, ""},
                            {"Address='1/0/0' DPTs='DPST-1-1,DPST-1-6'", "1/0/0", Style::ThreeLevel, "1.006"},
                            {"Address='1/0/0' DPTs='DPST-1-1 DPT-5'", "1/0/0", Style::ThreeLevel, "5"},
                            {"Address='1/0/0' DPTs='EIS 5'", "1/0/0", Style::ThreeLevel, ""}}) {
      Ets_Groups groups;
      QString error;
      const QByteArray element =
          QByteArray("<GroupAddress Name='  Licht \n &amp; mehr' Central='true' ") + row.mAttributes + "/>";
      QVERIFY2(readBytes(cHead + cOpen + element + cClose, groups, error), qPrintable(error));
      QCOMPARE(groups.mAddresses.size(), size_t(1));
      const Ets_Groups::Address& read = groups.mAddresses[0];
      QCOMPARE(read.mAddress.toString(), row.mAddress);
      QCOMPARE(read.mStyle, row.mStyle);
      QCOMPARE(read.mDpt.toString(), row.mType);
      QCOMPARE(read.mName, QStringLiteral("Licht   & mehr"));
      QVERIFY(read.mCentral && !read.mUnfiltered);
    }
  }

  void aFaultyElementIsToldAndTheRestRead() {
    Ets_Groups groups;
    QString error;
    const QByteArray body =
        "\n<GroupRange Name='A' RangeStart='x' RangeEnd='2047'>\n<GroupAddress Name='gut' Address='0/0/1'/>\n"
        "<GroupAddress Name='schlecht' Address='32/0/1'/>\n<Fremd/>\n<GroupAddress Name='ohne'/>\n</GroupRange>";
    QVERIFY2(readBytes(cOpen + body + cClose, groups, error), qPrintable(error));
    QCOMPARE(groups.mAddresses.size(), size_t(1));
    QCOMPARE(groups.mFaults.size(), 4);
    for (int i = 0; i < 4; ++i) {
      constexpr int cLines[] = {2, 4, 5, 6};
      QVERIFY2(Ets_Rig::isFaultOfLine(groups.mFaults[i], cLines[i]), qPrintable(groups.mFaults[i]));
    }
    const QByteArray faulty = QByteArray("<GroupAddress Name='x' Address='y'/>\n").repeated(900);
    QVERIFY(!readBytes(cOpen + faulty + cClose, groups, error) && error.contains(u"Zeile 1"));
    const QByteArray many = faulty + "<GroupAddress Name='gut' Address='0/0/1'/>";
    QVERIFY2(readBytes(cOpen + many + cClose, groups, error), qPrintable(error));
    QCOMPARE(groups.mFaults.size(), Ets_Reader::cFaultLimit);
    QCOMPARE(groups.mFaultCount, 900);
  }

  void whatIsNoExportIsRefused() {
    const QByteArray range = "<GroupRange Name='A' RangeStart='1' RangeEnd='2047'>";
    QByteArray bomb = "<!DOCTYPE r [<!ENTITY a \"aaaaaaaaaa\">";
    for (char c = 'b'; c <= 'k'; ++c) {
      bomb += QByteArray("<!ENTITY ") + c + " \"" + ('&' + QByteArray(1, char(c - 1)) + ';').repeated(10) + "\">";
    }
    for (const QByteArray& bytes :
         {QByteArray(), QByteArray("Haupt;Mittel;Unter\n1;2;3\n"), QByteArray("<Projekt/>"), QByteArray(4000, '\0'),
          QByteArray("<GroupAddress-Export xmlns='http://example.org'/>"), cOpen + range + "<GroupAddr",
          cOpen + "<GroupAddress Name='A' Address='0/0/1'/>", cOpen + range.repeated(100'000),
          cHead + cOpen + "<GroupAddress Name='\xff\xfe\xe4' Address='0/0/1'/>" + cClose,
          bomb + "]>" + cOpen + "<GroupAddress Name='&k;' Address='0/0/1'/>" + cClose}) {
      Ets_Groups groups;
      QString error;
      QVERIFY2(!readBytes(bytes, groups, error), bytes.first(qMin(bytes.size(), 100)));
      QVERIFY(!error.isEmpty());
      QVERIFY(groups.mAddresses.empty() && groups.mRanges.empty());
    }
  }

  /// Real exports lie beside the project on a developer's machine; they are never copied into it.
  void realExportsArriveWhole() {
    const QString source = QFINDTESTDATA("Ets_Xml_Reader_Test.cpp");
    const QDir folder(QFileInfo(source).path() + QStringLiteral("/../../../shared/data/ets"));
    const QStringList files = folder.entryList({QStringLiteral("*.xml")}, QDir::Files);
    if (files.isEmpty()) {
      QSKIP("no real exports on this machine");
    }
    for (const QString& name : files) {
      const QString text = QString::fromUtf8(Session_Rig::bytesOf(folder.filePath(name)));
      const QStringList addressNames = namesInTags(text, QStringLiteral("GroupAddress"));
      const QStringList rangeNames = namesInTags(text, QStringLiteral("GroupRange"));
      QFile file(folder.filePath(name));
      QVERIFY(file.open(QIODevice::ReadOnly));
      Ets_Groups groups;
      QString error;
      QVERIFY2(Ets_Reader::read(file, {}, groups, error), qPrintable(name + QStringLiteral(": ") + error));
      QVERIFY2(groups.mFaults.isEmpty(), qPrintable(groups.mFaults.join(u'\n')));
      const auto namesOf = [](const auto& read) {
        QStringList names;
        std::transform(read.begin(), read.end(), std::back_inserter(names),
                       [](const auto& item) { return item.mName; });
        return names;
      };
      QCOMPARE(namesOf(groups.mAddresses), addressNames);
      QCOMPARE(namesOf(groups.mRanges), rangeNames);
      qInfo("%s: %lld addresses, %lld ranges", qPrintable(name), addressNames.size(), rangeNames.size());
    }
  }
};

QTEST_GUILESS_MAIN(Ets_Xml_Reader_Test)
#include "Ets_Xml_Reader_Test.moc"
