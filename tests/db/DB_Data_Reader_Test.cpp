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

} // namespace

class DB_Data_Reader_Test : public QObject {
  Q_OBJECT

private slots:
  void find_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArrayList>("keys");
    QTest::addColumn<QByteArrayList>("values"); // "-" for none
    const auto row = [](const char* name, const char* text, const QByteArrayList& keys, const QByteArrayList& values) {
      QTest::newRow(name) << marked(text) << keys << values;
    };
    row("from the cursor the later one of two", "a=1;b=2;a=3;", {"b", "a"}, {"2", "3"});
    row("behind the last one again from the start", "a=1;b=2;", {"b", "a"}, {"2", "1"});
    row("the cursor stands behind the marker", "a=1;", {"a", "a"}, {"1", "1"});
    row("a miss leaves the cursor at the start", "a=1;b=2;a=3;", {"b", "x", "a"}, {"2", "-", "1"});
    row("miss in an empty text", "", {"a"}, {"-"});
    row("key that ends a longer key", "long_a=1;a=2;", {"a"}, {"1"});
    row("behind the longer key the own one", "long_a=1;a=2;", {"long_a", "a"}, {"1", "2"});
    row("key that begins a longer key", "a_1=1;", {"a"}, {"-"});
    row("the cursor inside of the key", "ab=cab=2;", {"ab", "ab"}, {marked("cab=2"), "2"});
    row("empty value", "a=;b=2;", {"a", "b"}, {"", "2"});
    row("not terminated, then from the start", "a=1;b=2", {"a", "b", "a"}, {"1", "-", "1"});
    row("marker first", "=1;", {"a"}, {"-"});
  }

  void find() {
    QFETCH(QByteArray, text);
    QFETCH(QByteArrayList, keys);
    DB_Data_Reader reader(text);
    QByteArrayList found;
    for (const QByteArray& key : keys) {
      const std::optional<QByteArrayView> value = reader.find(key);
      found.append(value ? value->toByteArray() : QByteArray("-"));
    }
    QTEST(found, "values");
  }

  void unusedItems() {
    const std::pair<const char*, QByteArrayList> cases[] = {{"a=1;b=2;c=;", {"b=2;", "c=;"}},
                                                            {"xa=1;", {"xa=1;"}}, // found inside a longer key only
                                                            {"a=1;b=2", {}},      // not terminated
                                                            {"b=c=2;", {"b=c=2;"}},
                                                            {"=1;b=2;", {"b=2;"}},
                                                            {"a=1;a=2;", {"a=2;"}}};
    for (const auto& [text, unused] : cases) {
      const QByteArray data = marked(text);
      DB_Data_Reader reader(data);
      static_cast<void>(reader.find("a"));
      QByteArray found;
      for (const DB_Data_Reader::Item& item : reader.unusedItems()) {
        found += item.mWhole.toByteArray();
      }
      QCOMPARE(found, marked(unused.join()));
    }
  }

  void likePlainSearch() {
    QRandomGenerator random(20'240'607);
    constexpr int cShortTexts = 6000;
    for (int i = 0; i < cShortTexts + 20; ++i) {
      const bool isLong = i >= cShortTexts; // long texts are searched by an index
      const QByteArray text = randomText(random, "ab_0\x02\x03", isLong ? 30'000 : random.bounded(40));
      DB_Data_Reader reader(text);
      Plain_Reader plain{text};
      for (int j = 0; j < (isLong ? 300 : 12); ++j) {
        // Long keys are rare in the text, so that some searches miss.
        const QByteArray key = randomText(random, "ab_0", 1 + random.bounded(isLong ? 12 : 3));
        const std::optional<QByteArray> expected = plain.find(key);
        const std::optional<QByteArrayView> found = reader.find(key);
        const bool isSame = found.has_value() == expected.has_value() && (!found || *found == *expected) &&
                            reader.cursor() == plain.mCursor;
        QVERIFY2(isSame,
                 "text " + text.left(60).toPercentEncoding() + " key " + key + " search " + QByteArray::number(j));
      }
    }
  }

  /// Broken texts whose markers do not pair: every byte may be looked at a few times, not once per marker.
  void brokenTextsInLinearTime() {
    for (const char* const piece : {"mParam_0=", "=", ";", "mParam_7=;"}) {
      const QByteArray text = marked(piece).repeated(400'000);
      QElapsedTimer timer;
      timer.start();
      DB_FB_Control block;
      block.setData(text);
      QVERIFY2(timer.elapsed() < 20'000, piece);
      QVERIFY(block.mParams.isEmpty());
    }
  }
};

QTEST_APPLESS_MAIN(DB_Data_Reader_Test)
#include "DB_Data_Reader_Test.moc"
