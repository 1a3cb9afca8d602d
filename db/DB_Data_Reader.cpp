#include "db/DB_Data_Reader.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>

namespace {

/// Above so many looked-at marks a search index is made, so that long lists decode in linear time.
constexpr qsizetype cWorkBeforeIndex = 20'000;

constexpr qsizetype cTailSize = 4;

/// The last four bytes, the very last one highest; zeros stand for what a shorter text lacks.
quint32 tailOf(const char* begin, const char* end) {
  if (end - begin >= cTailSize) {
    return qFromLittleEndian<quint32>(end - cTailSize);
  }
  quint32 tail = 0;
  for (; begin != end; ++begin) {
    tail = tail >> 8 | quint32(static_cast<quint8>(*begin)) << 24;
  }
  return tail;
}

} // namespace

/// Null when the byte is not there.
const char* DB_Data_Reader::findByte(char byte, qsizetype from) const {
  if (from >= mText.size()) {
    return nullptr;
  }
  return static_cast<const char*>(std::memchr(mText.data() + from, byte, static_cast<size_t>(mText.size() - from)));
}

/// The usual case, that the next item is the wanted one: nothing before it can be a hit, because the value found last
/// holds no mark. The result is where the value ends; a negative one leaves the key to the search.
qsizetype DB_Data_Reader::findNext(QByteArrayView key) {
  const qsizetype mark = mInOrder + key.size();
  if (mark >= mText.size() || mText[mark] != cKeyEnd ||
      std::memcmp(mText.data() + mInOrder, key.data(), static_cast<size_t>(key.size())) != 0) {
    return -1;
  }
  const qsizetype end = findPlainEnd(mark + 1);
  if (end >= 0) {
    mCursor = mark + 1;
    mInOrder = end + 1;
  }
  return end;
}

/// The end of the value that starts there; negative when it holds a mark or does not end.
qsizetype DB_Data_Reader::findPlainEnd(qsizetype from) const {
  constexpr qsizetype cUsualSize = 8; // a loop over so few is faster than the calls
  const qsizetype near = std::min(from + cUsualSize, mText.size());
  for (qsizetype at = from; at < near; ++at) {
    if (mText[at] == cValueEnd) {
      return at;
    }
    if (mText[at] == cKeyEnd) {
      return -1;
    }
  }
  const char* const end = findByte(cValueEnd, near);
  const bool isPlain =
      end && !std::memchr(mText.data() + near, cKeyEnd, static_cast<size_t>(end - mText.data() - near));
  return isPlain ? end - mText.data() : -1;
}

void DB_Data_Reader::findMarks() {
  qsizetype from = 0;
  while (const char* const at = findByte(cKeyEnd, from)) {
    from = at - mText.data();
    mNextMark += from < mInOrder ? 1 : 0;
    mMarks.append(static_cast<quint32>(from++));
  }
  mUsedCount = mNextMark;
  mUsed.resize(mMarks.size());
  std::fill(mUsed.begin(), mUsed.begin() + mUsedCount, true);
  std::fill(mUsed.begin() + mUsedCount, mUsed.end(), false);
  mTails.resize(mMarks.size());
  std::transform(mMarks.cbegin(), mMarks.cend(), mTails.begin(),
                 [this](quint32 mark) { return tailOf(mText.data(), mText.data() + mark); });
  mHasMarks = true;
}

bool DB_Data_Reader::endsAt(QByteArrayView key, qsizetype mark, qsizetype from) const {
  const qsizetype start = mark - key.size();
  return start >= from && std::memcmp(mText.data() + start, key.data(), static_cast<size_t>(key.size())) == 0;
}

/// Among the marks from `fromMark` to before `toMark`; a negative result is a miss.
qsizetype DB_Data_Reader::scan(QByteArrayView key, qsizetype fromMark, qsizetype toMark) {
  const qsizetype from = fromMark == 0 ? 0 : mCursor;
  const quint32 mask = key.size() < cTailSize ? ~quint32(0) << 8 * (cTailSize - key.size()) : ~quint32(0);
  const quint32 tail = tailOf(key.data(), key.data() + key.size());
  const quint32* const tails = mTails.constData();
  for (qsizetype i = fromMark; i < toMark; ++i) {
    if ((tails[i] & mask) == tail && endsAt(key, mMarks[i], from)) {
      mWork += i - fromMark;
      return i;
    }
  }
  mWork += toMark - fromMark;
  return -1;
}

QByteArrayView DB_Data_Reader::keyBefore(quint32 mark) const {
  qsizetype start = mark;
  while (start > 0 && mText[start - 1] != cKeyEnd && mText[start - 1] != cValueEnd) {
    --start;
  }
  return mText.sliced(start, mark - start);
}

void DB_Data_Reader::buildIndex() {
  std::vector<QByteArrayView> keys;
  keys.reserve(static_cast<size_t>(mMarks.size()));
  mByReversedKey.reserve(static_cast<size_t>(mMarks.size()));
  for (const quint32 mark : mMarks) {
    mByReversedKey.push_back(static_cast<quint32>(keys.size()));
    keys.push_back(keyBefore(mark));
  }
  std::sort(mByReversedKey.begin(), mByReversedKey.end(), [&keys](quint32 a, quint32 b) {
    const QByteArrayView x = keys[a];
    const QByteArrayView y = keys[b];
    const auto [i, j] = std::mismatch(x.rbegin(), x.rend(), y.rbegin(), y.rend());
    if (i == x.rend() || j == y.rend()) {
      return x.size() != y.size() ? x.size() < y.size() : a < b;
    }
    return *i < *j;
  });
}

/// The same answer as `scan`, by the index: the items whose keys end with `key` stand together in it.
qsizetype DB_Data_Reader::lookUp(QByteArrayView key, qsizetype fromMark) {
  if (mByReversedKey.empty()) {
    buildIndex();
  }
  const auto compareEnd = [this, key](quint32 index) {
    qsizetype i = mMarks[index];
    for (qsizetype k = key.size() - 1; k >= 0; --k) {
      // Walked only as far as `key` reaches: a foreign key may be as long as the whole text.
      const bool isOver = i == 0 || mText[i - 1] == cKeyEnd || mText[i - 1] == cValueEnd;
      if (isOver || mText[i - 1] < key[k]) {
        return -1;
      }
      if (mText[--i] > key[k]) {
        return 1;
      }
    }
    return 0;
  };
  const auto begin = std::partition_point(mByReversedKey.cbegin(), mByReversedKey.cend(),
                                          [&](quint32 index) { return compareEnd(index) < 0; });
  const qsizetype from = fromMark == 0 ? 0 : mCursor;
  qsizetype best = -1;
  for (auto at = begin; at != mByReversedKey.cend() && compareEnd(*at) == 0; ++at) {
    const bool behind = *at >= fromMark && endsAt(key, mMarks[*at], from);
    if (behind && (best < 0 || *at < best)) {
      best = *at;
    }
  }
  return best;
}

/// From the cursor, then from the beginning; a negative result is a miss.
qsizetype DB_Data_Reader::search(QByteArrayView key) {
  if (mWork > cWorkBeforeIndex) {
    const qsizetype at = lookUp(key, mNextMark);
    return at < 0 && mNextMark > 0 ? lookUp(key, 0) : at;
  }
  // A key before the cursor cannot reach beyond it, so the second search need not pass the rest again.
  const qsizetype at = scan(key, mNextMark, mMarks.size());
  return at < 0 ? scan(key, 0, mNextMark) : at;
}

std::optional<QByteArrayView> DB_Data_Reader::find(QByteArrayView key) {
  if (!mHasMarks) {
    if (const qsizetype end = findNext(key); end >= 0) {
      return mText.sliced(mCursor, end - mCursor);
    }
    findMarks();
  }
  // In order is the usual case, so the very next item is tried before anything is searched.
  const bool isNext = mNextMark < mMarks.size() && endsAt(key, mMarks[mNextMark], mCursor);
  const qsizetype at = isNext ? mNextMark : search(key);
  if (at >= 0) {
    const qsizetype valueStart = qsizetype(mMarks[at]) + 1;
    if (const char* const end = findByte(cValueEnd, valueStart)) {
      const qsizetype valueEnd = end - mText.data();
      const qsizetype start = qsizetype(mMarks[at]) - key.size();
      const bool isWholeKey = start == 0 || mText[start - 1] == cValueEnd;
      if (isWholeKey && !mUsed[at]) {
        mUsed[at] = true;
        ++mUsedCount;
      }
      mCursor = valueStart;
      mNextMark = at + 1;
      return mText.sliced(valueStart, valueEnd - valueStart);
    }
  }
  mCursor = 0;
  mNextMark = 0;
  return std::nullopt;
}

bool DB_Data_Reader::hasUnusedItems() const {
  return mHasMarks ? mUsedCount < mMarks.size() : findByte(cKeyEnd, mInOrder) != nullptr;
}

std::vector<DB_Data_Reader::Item> DB_Data_Reader::unusedItems() const {
  if (!mHasMarks) {
    DB_Data_Reader other(*this);
    other.findMarks();
    return other.unusedItems();
  }
  std::vector<Item> items;
  for (qsizetype i = 0; i < mMarks.size(); ++i) {
    if (mUsed[i]) {
      continue;
    }
    const QByteArrayView key = keyBefore(mMarks[i]);
    const qsizetype start = qsizetype(mMarks[i]) - key.size();
    const bool isInsideValue = start > 0 && mText[start - 1] == cKeyEnd;
    if (key.isEmpty() || isInsideValue) {
      continue;
    }
    // Only asked for items of their own, so that every byte is passed once even when no value ends.
    const qsizetype valueEnd = mText.indexOf(cValueEnd, mMarks[i]);
    if (valueEnd < 0) {
      break;
    }
    items.push_back({key, mText.sliced(start, valueEnd + 1 - start)});
  }
  return items;
}
