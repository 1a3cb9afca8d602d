#pragma once

#include "db/DB_Data_Reader.h"
#include "db/DB_Text_Pool.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QUuid>
#include <QVarLengthArray>

#include <string_view>
#include <vector>

/// The list of a record's fields as it is walked: a record names every field once, in its `fields`, and reading,
/// writing and listing the keys of its DATA text follow from that one list.
///
/// Keys: the member's name; a member of a nested structure is "outer.inner"; an element of a list has the suffix "_%d"
/// with its index (an element of a list inside a list has both, outer first). A structure in a list must name as its
/// first field one that always is written: the list ends at the first index for which that item is missing.
class DB_Fields {
public:
  /// Name of a field, a literal.
  using Key = std::string_view;

  void text(Key key, QString& value, const QString& defaultValue = {});
  void number(Key key, int& value, int defaultValue = 0);
  void number(Key key, qint64& value, qint64 defaultValue = 0);
  /// Decimal point, as many digits as needed to read the same number again.
  void real(Key key, double& value, double defaultValue = 0.0);
  /// "0" or "1".
  void flag(Key key, bool& value, bool defaultValue = false);
  /// 36 characters without braces; a null UUID is an empty value.
  void uuid(Key key, QUuid& value);

  void list(Key key, QStringList& values);
  void list(Key key, std::vector<int>& values);

  template <class T>
  void nested(Key key, T& value) {
    const qsizetype prefixSize = pushPrefix(key);
    value.fields(*this);
    mPrefix.resize(prefixSize);
  }

  template <class T>
  void list(Key key, std::vector<T>& values) {
    const qsizetype prefixSize = pushPrefix(key);
    walkList(values, [this](T& value) { value.fields(*this); });
    mPrefix.resize(prefixSize);
  }

  /// The keys that a record declares: of plain fields as they stand, of lists without the index.
  struct Keys {
    QSet<QByteArray> mPlain;
    QSet<QByteArray> mLists;
  };

  template <class Record>
  [[nodiscard]] static Keys keys(Record& record) {
    Keys keys;
    DB_Fields collector(nullptr, nullptr, &keys);
    record.fields(collector);
    return keys;
  }

  /// Walks `record`. `unknownItems` takes the items that the record does not declare; records that are read with the
  /// same `texts` share their texts.
  template <class Record>
  static void read(Record& record, QByteArrayView data, QByteArray& unknownItems, DB_Text_Pool* texts = nullptr) {
    DB_Data_Reader reader(data);
    DB_Fields fields(&reader, nullptr, nullptr);
    fields.mTexts = texts;
    record.fields(fields);
    unknownItems.clear();
    if (reader.hasUnusedItems()) {
      unknownItems = undeclared(reader, keys(record));
    }
  }

  template <class Record>
  [[nodiscard]] static QByteArray write(Record& record, const QByteArray& unknownItems) {
    Buffer buffer;
    DB_Fields fields(nullptr, &buffer, nullptr);
    record.fields(fields);
    buffer.append(unknownItems.constData(), unknownItems.size());
    return {buffer.constData(), buffer.size()};
  }

private:
  /// Few records are larger.
  using Buffer = QVarLengthArray<char, 4096>;

  DB_Fields(DB_Data_Reader* reader, Buffer* writer, Keys* keys) : mReader(reader), mWriter(writer), mKeys(keys) {}

  [[nodiscard]] static QByteArray undeclared(const DB_Data_Reader& reader, const Keys& keys);

  qsizetype pushPrefix(Key key);
  void pushIndex(qsizetype index);
  [[nodiscard]] QByteArrayView fullKey(Key key) {
    const bool isPlain = mPrefix.isEmpty() && mSuffix.isEmpty();
    return isPlain ? QByteArrayView(key.data(), static_cast<qsizetype>(key.size())) : composedKey(key);
  }
  [[nodiscard]] QByteArrayView composedKey(Key key);
  [[nodiscard]] std::optional<QByteArrayView> find(Key key);
  void collect(Key key);
  void beginItem(Key key);
  void appendText(const QString& text);
  void endItem() { mWriter->append(DB_Data_Reader::cValueEnd); }
  void writeNumber(Key key, qint64 value);
  [[nodiscard]] qint64 readNumber(Key key, qint64 defaultValue, qint64 lowest, qint64 highest);

  /// `visit` handles one element; reading stops at the first element of which nothing was found first.
  template <class List, class Visit>
  void walkList(List& values, Visit&& visit) {
    const qsizetype suffixSize = mSuffix.size();
    ++mListDepth;
    if (mReader) {
      values.clear();
      for (qsizetype i = 0; mProbe != Probe::Missing; ++i) {
        pushIndex(i);
        mProbe = Probe::Pending;
        typename List::value_type value{};
        visit(value);
        mSuffix.resize(suffixSize);
        const bool isEnd = mProbe == Probe::Missing;
        mProbe = Probe::None;
        if (isEnd) {
          break;
        }
        values.push_back(std::move(value));
      }
    } else if (mWriter) {
      for (qsizetype i = 0; i < qsizetype(values.size()); ++i) {
        pushIndex(i);
        visit(values[i]);
        mSuffix.resize(suffixSize);
      }
    } else {
      typename List::value_type value{};
      visit(value);
    }
    --mListDepth;
  }

  /// While a list is read: whether the element's first item is still to be asked for, or was missing.
  enum class Probe { None, Pending, Missing };

  DB_Data_Reader* mReader;
  Buffer* mWriter;
  Keys* mKeys;
  DB_Text_Pool* mTexts = nullptr;
  QVarLengthArray<char, 64> mPrefix;
  QVarLengthArray<char, 24> mSuffix;
  QVarLengthArray<char, 128> mFullKey;
  Probe mProbe = Probe::None;
  qsizetype mTaken = 0; ///< bytes of all values found so far
  int mListDepth = 0;
};
