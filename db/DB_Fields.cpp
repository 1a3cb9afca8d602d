#include "db/DB_Fields.h"

#include <QtEndian>

#include <charconv>
#include <limits>

namespace {

/// How many bytes the values of one record may yield beyond the size of its text.
constexpr qsizetype cRepeatedValuesLimit = qsizetype(16) * 1024 * 1024;

/// Makes room for so many characters and answers where they go.
template <class Buffer>
char* grow(Buffer& buffer, qsizetype size) {
  const qsizetype at = buffer.size();
  buffer.resize(at + size);
  return buffer.data() + at;
}

template <class Buffer, class Number>
void appendNumber(Buffer& buffer, Number number) {
  std::array<char, 32> digits{};
  const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), number);
  buffer.append(digits.data(), result.ptr - digits.data());
}

constexpr std::array<std::array<char, 2>, 256> makeHexPairs() {
  std::array<std::array<char, 2>, 256> pairs{};
  for (size_t i = 0; i < pairs.size(); ++i) {
    pairs[i] = {"0123456789abcdef"[i >> 4], "0123456789abcdef"[i & 15]};
  }
  return pairs;
}
constexpr std::array<std::array<char, 2>, 256> cHexPairs = makeHexPairs();

/// As many as there are read, and written without Qt's general way for the same reason.
char* writeHex(char* out, quint64 number, int bytes) {
  for (int shift = 8 * (bytes - 1); shift >= 0; shift -= 8) {
    const std::array<char, 2> pair = cHexPairs[number >> shift & 0xff];
    *out++ = pair[0];
    *out++ = pair[1];
  }
  return out;
}

void writeUuid(char* out, const QUuid& uuid) {
  const auto last = qFromBigEndian<quint64>(uuid.data4);
  out = writeHex(out, uuid.data1, 4);
  *out++ = '-';
  out = writeHex(out, uuid.data2, 2);
  *out++ = '-';
  out = writeHex(out, uuid.data3, 2);
  *out++ = '-';
  out = writeHex(out, last >> 48, 2);
  *out++ = '-';
  writeHex(out, last & 0xffff'ffff'ffff, 6);
}

constexpr qsizetype cUuidSize = 36;
constexpr quint8 cNoDigit = 0xff;

constexpr std::array<quint8, 256> makeHexValues() {
  std::array<quint8, 256> values{};
  values.fill(cNoDigit);
  for (quint8 i = 0; i < 16; ++i) {
    values[static_cast<quint8>("0123456789abcdef"[i])] = i;
    values[static_cast<quint8>("0123456789ABCDEF"[i])] = i;
  }
  return values;
}
constexpr std::array<quint8, 256> cHexValues = makeHexValues();

/// A large project holds half a million of them: the form in which we write them is read without Qt's general parser.
void readUuid(QByteArrayView text, QUuid& uuid) {
  quint8 digits = 0;
  const auto hex = [&](qsizetype from, qsizetype size) {
    quint64 number = 0;
    for (qsizetype i = from; i < from + size; ++i) {
      const quint8 digit = cHexValues[static_cast<quint8>(text[i])];
      digits |= digit;
      number = number << 4 | digit;
    }
    return number;
  };
  if (text.size() == cUuidSize && text[8] == '-' && text[13] == '-' && text[18] == '-' && text[23] == '-') {
    uuid.data1 = static_cast<uint>(hex(0, 8));
    uuid.data2 = static_cast<ushort>(hex(9, 4));
    uuid.data3 = static_cast<ushort>(hex(14, 4));
    qToBigEndian(hex(19, 4) << 48 | hex(24, 12), uuid.data4);
    if (digits < 16) {
      return;
    }
  }
  uuid = QUuid::fromString(QLatin1StringView(text));
}

/// The key without the index suffixes at its end.
QByteArrayView listStem(QByteArrayView key) {
  for (;;) {
    qsizetype size = key.size();
    while (size > 0 && key[size - 1] >= '0' && key[size - 1] <= '9') {
      --size;
    }
    if (size == key.size() || size < 2 || key[size - 1] != '_') {
      return key;
    }
    key = key.first(size - 1);
  }
}

} // namespace

QByteArray DB_Fields::undeclared(const DB_Data_Reader& reader, const Keys& keys) {
  QByteArray items;
  for (const DB_Data_Reader::Item& item : reader.unusedItems()) {
    const QByteArrayView stem = listStem(item.mKey);
    const bool isDeclared = stem.size() == item.mKey.size() ? keys.mPlain.contains(item.mKey.toByteArray())
                                                            : keys.mLists.contains(stem.toByteArray());
    // What is no text is told as damage and would be told again at every opening.
    if (!isDeclared && QUtf8StringView(item.mWhole.data(), item.mWhole.size()).isValidUtf8()) {
      items.append(item.mWhole);
    }
  }
  return items;
}

qsizetype DB_Fields::pushPrefix(Key key) {
  const qsizetype size = mPrefix.size();
  mPrefix.append(key.data(), static_cast<qsizetype>(key.size()));
  mPrefix.append('.');
  return size;
}

void DB_Fields::pushIndex(qsizetype index) {
  std::array<char, 24> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), index);
  mSuffix.append('_');
  mSuffix.append(buffer.data(), result.ptr - buffer.data());
}

QByteArrayView DB_Fields::composedKey(Key key) {
  const qsizetype size = mPrefix.size() + static_cast<qsizetype>(key.size()) + mSuffix.size();
  if (mFullKey.size() < size) {
    mFullKey.resize(size);
  }
  char* out = std::copy(mPrefix.cbegin(), mPrefix.cend(), mFullKey.data());
  out = std::copy(key.begin(), key.end(), out);
  std::copy(mSuffix.cbegin(), mSuffix.cend(), out);
  return {mFullKey.data(), size};
}

std::optional<QByteArrayView> DB_Fields::find(Key key) {
  // Behind the end of a list nothing of the element is asked for any more. One variable and one return, since copies of
  // it cost a tenth of the time in which a project is read.
  std::optional<QByteArrayView> value =
      mProbe == Probe::Missing ? std::optional<QByteArrayView>() : mReader->find(fullKey(key));
  if (value) {
    // In a broken text every value may hold all that follow, which would decode to many times its size.
    mTaken += value->size();
    if (mTaken > mReader->size() + cRepeatedValuesLimit) {
      value.reset();
    }
  }
  if (mProbe == Probe::Pending) {
    mProbe = value ? Probe::None : Probe::Missing;
  }
  return value;
}

void DB_Fields::collect(Key key) {
  QSet<QByteArray>& keys = mListDepth > 0 ? mKeys->mLists : mKeys->mPlain;
  keys.insert(fullKey(key).toByteArray());
}

void DB_Fields::beginItem(Key key) {
  char* out = grow(*mWriter, mPrefix.size() + static_cast<qsizetype>(key.size()) + mSuffix.size() + 1);
  out = std::copy(mPrefix.cbegin(), mPrefix.cend(), out);
  out = std::copy(key.begin(), key.end(), out);
  out = std::copy(mSuffix.cbegin(), mSuffix.cend(), out);
  *out = DB_Data_Reader::cKeyEnd;
}

/// Texts from outside may carry the marker bytes, which would end an item early: they are left out.
void DB_Fields::appendText(const QString& text) {
  const auto isMarker = [](auto c) { return c == DB_Data_Reader::cKeyEnd || c == DB_Data_Reader::cValueEnd; };
  const qsizetype size = mWriter->size();
  char* out = grow(*mWriter, text.size());
  for (const QChar character : text) {
    const char16_t unicode = character.unicode();
    if (unicode >= 0x80 || isMarker(unicode)) {
      mWriter->resize(size);
      QByteArray bytes = text.toUtf8();
      bytes.removeIf(isMarker);
      mWriter->append(bytes.constData(), bytes.size());
      return;
    }
    *out++ = static_cast<char>(unicode);
  }
}

void DB_Fields::text(Key key, QString& value, const QString& defaultValue) {
  if (mReader) {
    const std::optional<QByteArrayView> found = find(key);
    if (!found) {
      value = defaultValue;
    } else if (found->isEmpty()) {
      value.clear();
    } else {
      value = mTexts ? mTexts->text(*found) : DB_Text_Pool::fromUtf8(*found);
    }
  } else if (mWriter) {
    beginItem(key);
    appendText(value);
    endItem();
  } else {
    collect(key);
  }
}

void DB_Fields::writeNumber(Key key, qint64 value) {
  if (mWriter) {
    beginItem(key);
    appendNumber(*mWriter, value);
    endItem();
  } else {
    collect(key);
  }
}

qint64 DB_Fields::readNumber(Key key, qint64 defaultValue, qint64 lowest, qint64 highest) {
  const std::optional<QByteArrayView> found = find(key);
  qint64 value = 0;
  if (!found) {
    return defaultValue;
  }
  if (found->size() == 1 && found->front() >= '0' && found->front() <= '9') {
    value = found->front() - '0'; // most are
    return value >= lowest && value <= highest ? value : defaultValue;
  }
  const auto [end, error] = std::from_chars(found->begin(), found->end(), value);
  const bool isNumber = error == std::errc() && end == found->end() && value >= lowest && value <= highest;
  return isNumber ? value : defaultValue;
}

void DB_Fields::number(Key key, int& value, int defaultValue) {
  if (mReader) {
    value = static_cast<int>(
        readNumber(key, defaultValue, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
  } else {
    writeNumber(key, value);
  }
}

void DB_Fields::number(Key key, qint64& value, qint64 defaultValue) {
  if (mReader) {
    value = readNumber(key, defaultValue, std::numeric_limits<qint64>::min(), std::numeric_limits<qint64>::max());
  } else {
    writeNumber(key, value);
  }
}

void DB_Fields::flag(Key key, bool& value, bool defaultValue) {
  if (mReader) {
    value = readNumber(key, defaultValue ? 1 : 0, 0, 1) == 1;
  } else {
    writeNumber(key, value ? 1 : 0);
  }
}

void DB_Fields::real(Key key, double& value, double defaultValue) {
  if (mReader) {
    const std::optional<QByteArrayView> found = find(key);
    value = defaultValue;
    double number = 0.0;
    if (found) {
      const auto [end, error] = std::from_chars(found->begin(), found->end(), number);
      const bool isFinite = number - number == 0.0;
      if (error == std::errc() && end == found->end() && isFinite) {
        value = number;
      }
    }
  } else if (mWriter) {
    beginItem(key);
    appendNumber(*mWriter, value);
    endItem();
  } else {
    collect(key);
  }
}

void DB_Fields::uuid(Key key, QUuid& value) {
  if (mReader) {
    const std::optional<QByteArrayView> found = find(key);
    if (found && !found->isEmpty()) {
      readUuid(*found, value);
    } else {
      value = QUuid();
    }
  } else if (mWriter) {
    beginItem(key);
    if (!value.isNull()) {
      writeUuid(grow(*mWriter, cUuidSize), value);
    }
    endItem();
  } else {
    collect(key);
  }
}

void DB_Fields::list(Key key, QStringList& values) {
  walkList(values, [this, key](QString& value) { text(key, value); });
}

void DB_Fields::list(Key key, std::vector<int>& values) {
  walkList(values, [this, key](int& value) { number(key, value); });
}
