#include "db/DB_Data_Reader.h"

#include <algorithm>
#include <cstring>

namespace {

/// Above so many looked-at marks a search index is made, so that long lists decode in linear time.
constexpr qsizetype cWorkBeforeIndex = 20'000;

} // namespace

DB_Data_Reader::DB_Data_Reader(QByteArrayView text) : mText(text) {
  const char* const begin = text.data();
  const char* const end = begin + text.size();
  for (const char* at = begin; at < end; ++at) {
    at = static_cast<const char*>(std::memchr(at, cKeyEnd, static_cast<size_t>(end - at)));
    if (!at) {
      break;
    }
    mMarks.append(static_cast<quint32>(at - begin));
  }
  mUsed.resize(mMarks.size());
  std::fill(mUsed.begin(), mUsed.end(), false);
}

bool DB_Data_Reader::endsAt(QByteArrayView key, quint32 mark, qsizetype from) const {
  const qsizetype start = qsizetype(mark) - key.size();
  return start >= from && mText[mark - 1] == key.back() &&
         std::memcmp(mText.data() + start, key.data(), static_cast<size_t>(key.size())) == 0;
}

/// From the mark at `fromMark` on; a negative result is a miss.
qsizetype DB_Data_Reader::scan(QByteArrayView key, qsizetype fromMark) {
  const qsizetype from = fromMark == 0 ? 0 : mCursor;
  for (qsizetype i = fromMark; i < mMarks.size(); ++i) {
    if (endsAt(key, mMarks[i], from)) {
      mWork += i - fromMark;
      return i;
    }
  }
  mWork += mMarks.size() - fromMark;
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
    for (auto k = key.rbegin(); k != key.rend(); ++k) {
      // Walked only as far as `key` reaches: a foreign key may be as long as the whole text.
      const bool isOver = i == 0 || mText[i - 1] == cKeyEnd || mText[i - 1] == cValueEnd;
      if (isOver || mText[i - 1] < *k) {
        return -1;
      }
      if (mText[--i] > *k) {
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

std::optional<QByteArrayView> DB_Data_Reader::find(QByteArrayView key) {
  const bool indexed = mWork > cWorkBeforeIndex;
  // Only the very next item is tried before the index is asked: in order is the usual case.
  const bool isNext = indexed && mNextMark < mMarks.size() && endsAt(key, mMarks[mNextMark], mCursor);
  const auto search = [&](qsizetype fromMark) {
    if (isNext && fromMark == mNextMark) {
      return mNextMark;
    }
    return indexed ? lookUp(key, fromMark) : scan(key, fromMark);
  };
  qsizetype at = search(mNextMark);
  if (at < 0 && mNextMark > 0) {
    at = search(0);
  }
  if (at >= 0) {
    const qsizetype valueStart = qsizetype(mMarks[at]) + 1;
    const qsizetype valueEnd = mText.indexOf(cValueEnd, valueStart);
    if (valueEnd >= 0) {
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

std::vector<DB_Data_Reader::Item> DB_Data_Reader::unusedItems() const {
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
