#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QVarLengthArray>

#include <optional>
#include <vector>

/// Finds the items of one DATA text by their keys.
///
/// A DATA text is a row of items: key, byte 0x02, value, byte 0x03. A key is found as a plain substring together with
/// its 0x02, so a key that ends another key is found inside the longer one. The search starts at a cursor, the position
/// just behind the 0x02 of the last item found (0 at first); a miss from there is retried once from the beginning, and
/// a miss from the beginning leaves the cursor at 0.
///
/// The text must outlive the reader; values are views into it.
class DB_Data_Reader {
public:
  static constexpr char cKeyEnd = '\x02';
  static constexpr char cValueEnd = '\x03';

  explicit DB_Data_Reader(QByteArrayView text) : mText(text) {}

  /// The value of the item with that key; empty when the key is missing or its value is not terminated. An empty value
  /// is a found one. `key` holds neither marker byte and is not empty.
  [[nodiscard]] std::optional<QByteArrayView> find(QByteArrayView key);

  [[nodiscard]] qsizetype cursor() const { return mCursor; }
  [[nodiscard]] qsizetype size() const { return mText.size(); }

  /// True while some terminated item has not yet been found under its whole key.
  [[nodiscard]] bool hasUnusedItems() const;

  struct Item {
    QByteArrayView mKey;
    QByteArrayView mWhole; ///< key, marker, value, marker
  };
  /// The terminated items not found under their whole key so far, in order.
  [[nodiscard]] std::vector<Item> unusedItems() const;

private:
  [[nodiscard]] qsizetype findNext(QByteArrayView key);
  [[nodiscard]] qsizetype findPlainEnd(qsizetype from) const;
  [[nodiscard]] const char* findByte(char byte, qsizetype from) const;
  void findMarks();
  [[nodiscard]] qsizetype scan(QByteArrayView key, qsizetype fromMark, qsizetype toMark);
  [[nodiscard]] qsizetype lookUp(QByteArrayView key, qsizetype fromMark);
  [[nodiscard]] qsizetype search(QByteArrayView key);
  [[nodiscard]] bool endsAt(QByteArrayView key, qsizetype mark, qsizetype from) const;
  [[nodiscard]] QByteArrayView keyBefore(quint32 mark) const;
  void buildIndex();

  QByteArrayView mText;
  qsizetype mInOrder = 0; ///< end of the items found one after the other, as they stand, from the beginning on
  bool mHasMarks = false; ///< the members below are valid; they are not needed while items are found in order
  QVarLengthArray<quint32, 256> mMarks; ///< positions of all 0x02, ascending
  QVarLengthArray<quint32, 256> mTails; ///< of each mark the four bytes before it
  QVarLengthArray<bool, 256> mUsed;
  std::vector<quint32> mByReversedKey; ///< indices into mMarks; filled only when misses get costly
  qsizetype mUsedCount = 0;
  qsizetype mCursor = 0;
  qsizetype mNextMark = 0; ///< first mark at or behind the cursor
  qsizetype mWork = 0;     ///< marks looked at so far
};
