#include "base/datapoint/Text_Codec.h"

#include "base/datapoint/Codec_Error.h"

#include <QStringDecoder>

namespace {

using Codec_Error::refuse;
using Codec_Error::tr;

constexpr char16_t cAsciiMax = 0x7f;
constexpr char16_t cLatin1Max = 0xff;
constexpr qsizetype cLanguageLength = 2;

/// The last character that a type of one byte per character has.
char16_t lastCharacter(const Datapoint_Type& type) {
  if (type.mFormat == Datapoint_Format::Char) {
    return static_cast<char16_t>(type.mMax);
  }
  return type.mFormat == Datapoint_Format::String_Latin1 ? cLatin1Max : cAsciiMax;
}

bool isLetter(QChar c) {
  return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z');
}

/// Why a text is none of this type; empty when it is one.
QString fault(const Datapoint_Type& type, const QString& text) {
  const char16_t last = lastCharacter(type);
  for (const QChar c : text) {
    if (c.unicode() > last) {
      return last == cAsciiMax ? tr("\"%1\" hat das Zeichen \"%2\", das es in ASCII nicht gibt.").arg(text, c)
                               : tr("\"%1\" hat das Zeichen \"%2\", das es in ISO 8859-1 nicht gibt.").arg(text, c);
    }
  }
  if (type.mFormat == Datapoint_Format::Char) {
    return text.size() == 1 ? QString() : tr("\"%1\" ist nicht ein einzelnes Zeichen.").arg(text);
  }
  if (type.bytes() > 0 && text.size() > type.bytes()) {
    return tr("\"%1\" hat %2 Zeichen. Erlaubt sind %3.").arg(text).arg(text.size()).arg(type.bytes());
  }
  return text.contains(QChar::Null) ? tr("Ein Text darf kein NUL-Zeichen enthalten.") : QString();
}

QString codeFault(const Datapoint_Type& type, const QString& letters) {
  if (letters.size() == type.bytes() && std::all_of(letters.begin(), letters.end(), isLetter)) {
    return {};
  }
  return type.mFormat == Datapoint_Format::Locale
             ? tr("\"%1\" ist keine Angabe von Sprache und Region. Erlaubt ist etwa de-DE.").arg(letters)
             : tr("\"%1\" ist kein Code. Erlaubt sind zwei Buchstaben von A bis Z.").arg(letters);
}

/// "de-DE" is "deDE" on the bus.
QString withoutHyphen(const Datapoint_Type& type, const QString& text) {
  const bool hasHyphen = type.mFormat == Datapoint_Format::Locale && text.indexOf(u'-') == cLanguageLength;
  return hasHyphen ? text.left(cLanguageLength) + text.mid(cLanguageLength + 1) : text;
}

std::optional<QByteArray> serialFromText(const QString& text, qsizetype size, QString* error) {
  QString digits = text;
  digits.remove(u':');
  const QByteArray bytes = QByteArray::fromHex(digits.toLatin1());
  if (digits.size() != 2 * size || QLatin1String(bytes.toHex()).compare(digits, Qt::CaseInsensitive) != 0) {
    return refuse(error, tr("\"%1\" ist keine Seriennummer. Erlaubt sind zwölf hexadezimale Ziffern.").arg(text));
  }
  return bytes;
}

/// The bytes before the NUL that must end a string of variable length, and end it just once.
std::optional<QByteArrayView> terminated(QByteArrayView payload, QString* error) {
  if (payload.indexOf('\0') != payload.size() - 1 || payload.isEmpty()) {
    return refuse(error, tr("Ein Text variabler Länge muss mit genau einem NUL-Byte enden."));
  }
  return payload.chopped(1);
}

std::optional<QString> utf8(QByteArrayView bytes, QString* error) {
  QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
  QString text = decoder(bytes);
  // The comparison also finds a last character that is cut, which the decoder waits for.
  if (text.toUtf8() != bytes) {
    return refuse(error, tr("Der Text ist kein gültiges UTF-8."));
  }
  return text;
}

} // namespace

bool Text_Codec::isFreeText(Datapoint_Format format) {
  return format == Datapoint_Format::Char || format == Datapoint_Format::String_Ascii ||
         format == Datapoint_Format::String_Latin1 || format == Datapoint_Format::String_Utf8;
}

std::optional<Datapoint_Value> Text_Codec::decode(const Datapoint_Type& type, QByteArrayView payload, QString* error) {
  if (type.mFormat == Datapoint_Format::Serial) {
    return Datapoint_Value::ofText(QString::fromLatin1(payload.toByteArray().toHex().toUpper()));
  }
  if (type.bytes() == 0) {
    const std::optional<QByteArrayView> inner = terminated(payload, error);
    if (!inner) {
      return std::nullopt;
    }
    payload = *inner;
  } else if (type.mFormat != Datapoint_Format::Char && payload.contains('\0')) {
    payload = payload.first(payload.indexOf('\0'));
  }
  if (type.mFormat == Datapoint_Format::String_Utf8) {
    const std::optional<QString> text = utf8(payload, error);
    return text ? std::optional(Datapoint_Value::ofText(*text)) : std::nullopt;
  }
  QString text = QString::fromLatin1(payload);
  const QString why = isFreeText(type.mFormat) ? fault(type, text) : codeFault(type, text);
  if (!why.isEmpty()) {
    return refuse(error, why);
  }
  return Datapoint_Value::ofText(type.mFormat == Datapoint_Format::Locale ? text.insert(cLanguageLength, u'-') : text);
}

std::optional<QByteArray> Text_Codec::encode(const Datapoint_Type& type, const Datapoint_Value& value, QString* error) {
  const QString* const given = std::get_if<QString>(&value.mScalar);
  if (!given) {
    return refuse(error, tr("Für diesen Typ ist ein Text anzugeben."));
  }
  if (type.mFormat == Datapoint_Format::Serial) {
    return serialFromText(*given, type.bytes(), error);
  }
  if (type.mFormat == Datapoint_Format::String_Utf8) {
    if (!given->isValidUtf16() || given->contains(QChar::Null)) {
      return refuse(error, tr("Ein Text darf kein NUL-Zeichen und kein halbes Zeichen enthalten."));
    }
    return given->toUtf8() + '\0';
  }
  const QString text = withoutHyphen(type, *given);
  const QString why = isFreeText(type.mFormat) ? fault(type, text) : codeFault(type, text);
  if (!why.isEmpty()) {
    return refuse(error, why);
  }
  const QByteArray bytes = text.toLatin1();
  return type.bytes() > 0 ? bytes.leftJustified(type.bytes(), '\0') : bytes + '\0';
}
