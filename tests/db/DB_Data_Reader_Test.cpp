#include "db/DB_Data_Reader.h"
#include "db/DB_FB_Control.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QtTest>

namespace {

/// The rules of the search, told in the plainest way.
struct Plain_Reader {
  QByteArray mText;
  qsizetype mCursor = 0;

  std::optional<QByteArray> find(const QByteArray& key) {
    const QByteArray marked = key + DB_Data_Reader::cKeyEnd;
    qsizetype at = mText.indexOf(marked, mCursor);
    if (at < 0) {
      at = mText.indexOf(marked);
    }
    const qsizetype start = at + marked.size();
    const qsizetype end = at < 0 ? -1 : mText.indexOf(DB_Data_Reader::cValueEnd, start);
    mCursor = end < 0 ? 0 : start;
    return end < 0 ? std::nullopt : std::optional(mText.mid(start, end - start));
  }
};

QByteArray randomText(QRandomGenerator& random, const char* alphabet, int size) {
  const auto letters = static_cast<quint32>(qstrlen(alphabet));
  QByteArray text;
  for (int i = 0; i < size; ++i) {
    text += alphabet[random.bounded(letters)];
  }
  return text;
}

/// "a=1;b=2;" stands for the items a and b.
QByteArray marked(const char* text) {
  return QByteArray(text).replace('=', DB_Data_Reader::cKeyEnd).replace(';', DB_Data_Reader::cValueEnd);
}

qint64 decodeTime(int elements) {
  QByteArray data;
  for (int i = 0; i < elements; ++i) {
    data += "mInput.mLongName_" + QByteArray::number(i) + marked("=E;");
  }
  qint64 best = std::numeric_limits<qint64>::max();
  for (int run = 0; run < 3; ++run) {
    DB_FB_Control block;
    QElapsedTimer timer;
    timer.start();
    block.setData(data);
    best = qMin(best, timer.nsecsElapsed());
    if (block.mInputs.size() != static_cast<size_t>(elements)) {
      return -1;
    }
  }
  return best;
}

} // namespace

class DB_Data_Reader_Test : public QObject {
  Q_OBJECT

private slots:
  void find_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArrayList>("keys");
    QTest::addColumn<QByteArrayList>("values"); // "-" for none
    QTest::addColumn<int>("cursor");
    const auto row = [](const char* name, const char* text, const QByteArrayList& keys, const QByteArrayList& values,
                        int cursor) { QTest::newRow(name) << marked(text) << keys << values << cursor; };
    row("in order", "a=1;b=2;", {"a", "b"}, {"1", "2"}, 6);
    row("from the cursor the later one of two", "a=1;b=2;a=3;", {"b", "a"}, {"2", "3"}, 10);
    row("behind the last one again from the start", "a=1;b=2;", {"b", "a"}, {"2", "1"}, 2);
    row("the cursor stands behind the marker", "a=1;", {"a", "a"}, {"1", "1"}, 2);
    row("a miss leaves the cursor at the start", "a=1;b=2;a=3;", {"b", "x", "a"}, {"2", "-", "1"}, 2);
    row("miss in an empty text", "", {"a"}, {"-"}, 0);
    row("key that ends a longer key", "long_a=1;a=2;", {"a"}, {"1"}, 7);
    row("behind the longer key the own one", "long_a=1;a=2;", {"long_a", "a"}, {"1", "2"}, 11);
    row("key that begins a longer key", "a_1=1;", {"a"}, {"-"}, 0);
    row("the cursor inside of the key", "ab=cab=2;", {"ab", "ab"},
        {"cab\x02"
         "2",
         "2"},
        7);
    row("empty value", "a=;b=2;", {"a", "b"}, {"", "2"}, 5);
    row("not terminated", "a=1", {"a"}, {"-"}, 0);
    row("not terminated, then from the start", "a=1;b=2", {"a", "b", "a"}, {"1", "-", "1"}, 2);
    row("no marker at all", "abc", {"abc"}, {"-"}, 0);
    row("marker first", "=1;", {"a"}, {"-"}, 0);
  }

  void find() {
    QFETCH(QByteArray, text);
    QFETCH(QByteArrayList, keys);
    QFETCH(QByteArrayList, values);
    QFETCH(int, cursor);
    DB_Data_Reader reader(text);
    QByteArrayList found;
    for (const QByteArray& key : keys) {
      const std::optional<QByteArrayView> value = reader.find(key);
      found.append(value ? value->toByteArray() : QByteArray("-"));
    }
    QCOMPARE(found, values);
    QCOMPARE(reader.cursor(), qsizetype(cursor));
  }

  void unusedItems_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArrayList>("unused");
    QTest::newRow("not asked for") << marked("a=1;b=2;c=;") << QByteArrayList{marked("b=2;"), marked("c=;")};
    QTest::newRow("found inside a longer key only") << marked("xa=1;") << QByteArrayList{marked("xa=1;")};
    QTest::newRow("not terminated") << marked("a=1;b=2") << QByteArrayList{};
    QTest::newRow("marker inside a value") << marked("b=c=2;") << QByteArrayList{marked("b=c=2;")};
    QTest::newRow("without a key") << marked("=1;b=2;") << QByteArrayList{marked("b=2;")};
    QTest::newRow("second one of a key") << marked("a=1;a=2;") << QByteArrayList{marked("a=2;")};
  }

  void unusedItems() {
    QFETCH(QByteArray, text);
    QFETCH(QByteArrayList, unused);
    DB_Data_Reader reader(text);
    static_cast<void>(reader.find("a"));
    QByteArrayList found;
    for (const DB_Data_Reader::Item& item : reader.unusedItems()) {
      found.append(item.mWhole.toByteArray());
    }
    QCOMPARE(found, unused);
  }

  void likePlainSearch_data() {
    QTest::addColumn<int>("texts");
    QTest::addColumn<int>("longest");
    QTest::addColumn<int>("searches");
    QTest::newRow("short texts") << 6000 << 40 << 12;
    QTest::newRow("long texts, by the index") << 20 << 30'000 << 300;
  }

  void likePlainSearch() {
    QFETCH(int, texts);
    QFETCH(int, longest);
    QFETCH(int, searches);
    QRandomGenerator random(20'240'607);
    for (int i = 0; i < texts; ++i) {
      const int size = longest > 1000 ? longest : random.bounded(longest);
      const QByteArray text = randomText(random, "ab_0\x02\x03", size);
      DB_Data_Reader reader(text);
      Plain_Reader plain{text};
      for (int j = 0; j < searches; ++j) {
        // Long keys are rare in the text, so that some searches miss.
        const QByteArray key = randomText(random, "ab_0", 1 + random.bounded(longest > 1000 ? 12 : 3));
        const std::optional<QByteArray> expected = plain.find(key);
        const std::optional<QByteArrayView> found = reader.find(key);
        const bool isSame = found.has_value() == expected.has_value() && (!found || *found == *expected) &&
                            reader.cursor() == plain.mCursor;
        QVERIFY2(isSame,
                 "text " + text.left(60).toPercentEncoding() + " key " + key + " search " + QByteArray::number(j));
      }
    }
  }

  void linearTime() {
    const qint64 small = decodeTime(1000);
    const qint64 large = decodeTime(10'000);
    QVERIFY(small > 0 && large > 0);
    // Ten times the elements; a search from the start for each missing field would take a hundred times as long.
    QVERIFY2(large < 40 * small, qPrintable(QStringLiteral("%1 ns, %2 ns").arg(small).arg(large)));
  }

  /// Broken texts whose markers do not pair: every byte may be looked at a few times, not once per marker.
  void brokenTextsInLinearTime_data() {
    QTest::addColumn<QByteArray>("piece");
    QTest::newRow("no value ends") << marked("mParam_0=");
    QTest::newRow("only key ends") << marked("=");
    QTest::newRow("only value ends") << marked(";");
    QTest::newRow("the same item") << marked("mParam_7=;");
  }

  void brokenTextsInLinearTime() {
    QFETCH(QByteArray, piece);
    const QByteArray text = piece.repeated(static_cast<int>(4'000'000 / piece.size()));
    QElapsedTimer timer;
    timer.start();
    DB_FB_Control block;
    block.setData(text);
    QVERIFY2(timer.elapsed() < 20'000, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(block.mParams.isEmpty());
  }

  /// Each value reaches to the only value end, so together they are far longer than the text.
  void valuesInsideValues() {
    QByteArray text;
    for (int i = 0; i < 60'000; ++i) {
      text += "mParam_" + QByteArray::number(i) + DB_Data_Reader::cKeyEnd;
    }
    text += DB_Data_Reader::cValueEnd;
    DB_FB_Control block;
    block.setData(text);
    qsizetype size = 0;
    for (const QString& param : block.mParams) {
      size += param.size();
    }
    QVERIFY2(size < 40'000'000, qPrintable(QString::number(size)));
  }
};

QTEST_APPLESS_MAIN(DB_Data_Reader_Test)
#include "DB_Data_Reader_Test.moc"
