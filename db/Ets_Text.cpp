#include "db/Ets_Text.h"

#include "db/Ets_Collector.h"

#include <QCoreApplication>
#include <QIODevice>
#include <QLocale>
#include <QStringDecoder>

#include <algorithm>
#include <array>

namespace {

constexpr QByteArrayView cUtf8Mark = "\xef\xbb\xbf";
constexpr QByteArrayView cUtf16LittleMark = "\xff\xfe";
constexpr QByteArrayView cUtf16BigMark = "\xfe\xff";
constexpr qint64 cChunk = qint64(256) * 1024;

/// What Windows-1252 has at 0x80..0x9f, where Latin 1 has control characters; 0 where it has nothing.
constexpr std::array<char16_t, 32> cWindows1252 = {
    u'€', 0,    u'‚', u'ƒ', u'„', u'…', u'†', u'‡', u'ˆ', u'‰', u'Š', u'‹', u'Œ', 0, u'Ž', 0, //
    0,    u'‘', u'’', u'“', u'”', u'•', u'–', u'—', u'˜', u'™', u'š', u'›', u'œ', 0, u'ž', u'Ÿ'};
constexpr char16_t cFirst1252 = 0x80;
constexpr char16_t cFirstLatin = 0xa0;
constexpr char16_t cLastLatin = 0xff;

QString tr(const char* text) {
  return QCoreApplication::translate("Ets_Reader", text);
}

qsizetype lineOf(QStringView text, qsizetype at) {
  return text.first(at).count(u'\n') + 1;
}

bool isForbidden(QChar c) {
  return (c < u' ' && c != u'\t' && c != u'\n' && c != u'\r') || c == QChar(0xfffe) || c == QChar(0xffff);
}

std::optional<QString> decodeUtf16(QByteArrayView bytes, QStringDecoder::Encoding encoding, QString& error) {
  QStringDecoder decoder(encoding, QStringDecoder::Flag::Stateless);
  QString text = decoder.decode(bytes);
  if (decoder.hasError() || bytes.size() % 2 != 0 || !text.isValidUtf16()) {
    error = tr("Die Datei ist als UTF-16 gekennzeichnet, ihre Zeichen sind es nicht.");
    return std::nullopt;
  }
  return text;
}

std::optional<QString> decodeWindows1252(QByteArrayView bytes, QString& error) {
  QString text = QString::fromLatin1(bytes);
  for (QChar& c : text) {
    if (c < QChar(cFirst1252) || c >= QChar(cFirstLatin)) {
      continue;
    }
    const char16_t known = cWindows1252[c.unicode() - cFirst1252];
    if (known == 0) {
      error = tr("Die Zeichen der Datei sind weder UTF-8 noch Windows-1252 (Byte 0x%1 in Zeile %2).")
                  .arg(c.unicode(), 2, 16)
                  .arg(lineOf(text, &c - text.constData()));
      return std::nullopt;
    }
    c = QChar(known);
  }
  return text;
}

bool isAscii(QByteArrayView bytes) {
  return std::all_of(bytes.begin(), bytes.end(), [](char c) { return (c & 0x80) == 0; });
}

/// Whether the bytes are UTF-8, and not just ASCII, but for a last character that is not whole.
bool isCut(QByteArrayView bytes) {
  constexpr qsizetype cLongest = 3;
  for (qsizetype missing = 1; missing <= qMin(cLongest, bytes.size()); ++missing) {
    const QByteArrayView whole = bytes.chopped(missing);
    const bool isBegun = (static_cast<quint8>(bytes[whole.size()]) & 0xc0U) == 0xc0U;
    if (isBegun && whole.isValidUtf8()) {
      return !isAscii(whole);
    }
  }
  return false;
}

std::optional<QString> decodeMarked(QByteArrayView bytes, QString& error) {
  if (bytes.startsWith(cUtf16LittleMark)) {
    return decodeUtf16(bytes.sliced(cUtf16LittleMark.size()), QStringDecoder::Utf16LE, error);
  }
  if (bytes.startsWith(cUtf16BigMark)) {
    return decodeUtf16(bytes.sliced(cUtf16BigMark.size()), QStringDecoder::Utf16BE, error);
  }
  const bool isMarked = bytes.startsWith(cUtf8Mark);
  const QByteArrayView plain = isMarked ? bytes.sliced(cUtf8Mark.size()) : bytes;
  if (plain.isValidUtf8()) {
    return QString::fromUtf8(plain);
  }
  if (isMarked) {
    error = tr("Die Datei ist als UTF-8 gekennzeichnet, ihre Zeichen sind es nicht.");
    return std::nullopt;
  }
  if (isCut(plain)) {
    error = tr("Die Datei ist nicht vollständig: sie endet mitten in einem Zeichen.");
    return std::nullopt;
  }
  return decodeWindows1252(plain, error);
}

std::optional<QByteArray> toWindows1252(QStringView text) {
  QByteArray bytes;
  bytes.reserve(text.size());
  for (const QChar c : text) {
    if (c < QChar(cFirst1252) || (c >= QChar(cFirstLatin) && c <= QChar(cLastLatin))) {
      bytes.append(static_cast<char>(c.unicode()));
      continue;
    }
    const auto* const at = std::find(cWindows1252.begin(), cWindows1252.end(), c.unicode());
    if (at == cWindows1252.end()) {
      return std::nullopt;
    }
    bytes.append(static_cast<char>(cFirst1252 + (at - cWindows1252.begin())));
  }
  return bytes;
}

} // namespace

std::optional<QString> Ets_Text::decode(const QByteArray& bytes, QString& error) {
  std::optional<QString> text = decodeMarked(bytes, error);
  if (text) {
    const auto at = std::find_if(text->cbegin(), text->cend(), isForbidden);
    if (at != text->cend()) {
      error = tr("Die Datei ist keine Textdatei: Zeile %2 enthält das Steuerzeichen 0x%1.")
                  .arg(at->unicode(), 2, 16, QLatin1Char('0'))
                  .arg(lineOf(*text, at - text->cbegin()));
      text.reset();
    }
  }
  return text;
}

QString Ets_Text::preview(const QByteArray& bytes) {
  const QByteArrayView view = bytes;
  if (view.startsWith(cUtf16LittleMark) || view.startsWith(cUtf16BigMark)) {
    // With the mark, which tells the decoder the order of the bytes.
    return QStringDecoder(QStringDecoder::Utf16).decode(view);
  }
  return QString::fromLatin1(view.startsWith(cUtf8Mark) ? view.sliced(cUtf8Mark.size()) : view);
}

std::optional<QString> Ets_Text::read(QIODevice& device, Ets_Collector& collector) {
  constexpr int cHalf = 50;
  const qint64 size = device.size();
  QByteArray bytes;
  while (collector.progress(bytes.size(), size, 0, cHalf)) {
    const qsizetype before = bytes.size();
    bytes.resize(before + cChunk);
    const qint64 count = device.read(bytes.data() + before, cChunk);
    bytes.truncate(before + qMax(count, qint64(0)));
    collector.checkRead(device, count);
    if (qMax(size, qint64(bytes.size())) > cSizeLimit) {
      collector.setError(tr("Die Datei ist für eine Ausgabe als ESF oder CSV zu groß; gelesen werden höchstens %1.")
                             .arg(QLocale().formattedDataSize(cSizeLimit, 0)));
    }
    if (count <= 0 || !collector.isOk()) {
      break;
    }
  }
  if (!collector.isOk()) {
    return std::nullopt;
  }
  QString error;
  std::optional<QString> text = decode(bytes, error);
  if (!text) {
    collector.setError(error);
  }
  return text;
}

QString Ets_Text::permitted(const QString& text) {
  QString result = text;
  result.removeIf(isForbidden);
  return result;
}

QByteArray Ets_Text::encode(const QString& text) {
  const std::optional<QByteArray> narrow = toWindows1252(text);
  // Some texts would be taken for UTF-8, or their first letters for a mark.
  QString error;
  if (narrow && decode(*narrow, error) == text) {
    return *narrow;
  }
  return cUtf8Mark.toByteArray() + text.toUtf8();
}
