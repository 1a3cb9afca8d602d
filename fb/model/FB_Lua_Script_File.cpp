#include "fb/model/FB_Lua_Script_File.h"

#include "db/DB_Text.h"
#include "fb/model/FB_Lua_Script_Cipher.h"
#include "fb/model/FB_Page_Edits.h"

#include <QCoreApplication>
#include <QFile>
#include <QSaveFile>
#include <QStringDecoder>

#include <algorithm>
#include <optional>

namespace {

using namespace FB_Lua_Script_File;

constexpr QByteArrayView cKind = "zscr ";
constexpr QByteArrayView cVersion = "1";
constexpr qsizetype cFields = 5;
constexpr qsizetype cCheckLength = 32;
constexpr int cMostPins = 64;

QString tr(const char* text) {
  return QCoreApplication::translate("FB_Lua_Script_File", text);
}

/// As in addresses of the web (RFC 3986), but only what would break the record, so that a script stays readable.
QByteArray escaped(const QByteArray& text) {
  QByteArray result;
  result.reserve(text.size() + text.size() / 8);
  for (const char c : text) {
    if (c == ';' || c == '%' || (c >= 0 && c < ' ')) {
      result += '%' + QByteArray(1, c).toHex().toUpper();
    } else {
      result += c;
    }
  }
  return result;
}

std::optional<QString> decoded(const QByteArray& utf8) {
  QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  const QString text = decoder.decode(utf8);
  return decoder.hasError() ? std::nullopt : std::optional(text);
}

std::optional<int> countIn(const QByteArray& field) {
  bool isNumber = false;
  const int count = field.toInt(&isNumber);
  return isNumber && count >= 1 && count <= cMostPins ? std::optional(count) : std::nullopt;
}

bool isCheck(const QByteArray& field) {
  return field.size() == cCheckLength &&
         std::ranges::all_of(field, [](char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f'); });
}

Reading failed(State state) {
  return {state, {}};
}

Reading readRecord(const QList<QByteArray>& fields, const QString& password) {
  const std::optional<int> inputs = countIn(fields[2]);
  const std::optional<int> outputs = countIn(fields[3]);
  const bool isProtected = !fields[1].isEmpty();
  if (!inputs || !outputs || (isProtected && !isCheck(fields[1]))) {
    return failed(State::Read_Failed);
  }
  QByteArray utf8 = QByteArray::fromPercentEncoding(fields[4]);
  if (isProtected) {
    const auto bytes = QByteArray::fromBase64Encoding(fields[4], QByteArray::AbortOnBase64DecodingErrors);
    if (!bytes) {
      return failed(State::Read_Failed);
    }
    if (password.isEmpty()) {
      return failed(State::Needs_Password);
    }
    const std::optional<QByteArray> plain = FB_Lua_Script_Cipher::unlock({fields[1], *bytes}, password);
    if (!plain) {
      return failed(State::Wrong_Password);
    }
    utf8 = *plain;
  }
  std::optional<QString> text = decoded(utf8);
  if (!text) {
    return failed(State::Read_Failed);
  }
  text = DB_Text::clean(text->replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n'));
  return text->size() > FB_Page_Edits::cParameterLimit ? failed(State::Read_Failed)
                                                       : Reading{State::Read, {*text, *inputs, *outputs}};
}

} // namespace

QByteArray FB_Lua_Script_File::write(const Script& script, const QString& password) {
  QByteArray check;
  QByteArray text = escaped(script.mText.toUtf8());
  if (!password.isEmpty()) {
    const FB_Lua_Script_Cipher::Locked locked = FB_Lua_Script_Cipher::lock(script.mText.toUtf8(), password);
    check = locked.mCheck;
    text = locked.mBytes.toBase64();
  }
  return QStringLiteral("%1;%2;%3;%4;%5;")
      .arg(QString::fromLatin1(cKind) + QString::fromLatin1(cVersion), QString::fromLatin1(check),
           QString::number(std::clamp(script.mInputs, 1, cMostPins)),
           QString::number(std::clamp(script.mOutputs, 1, cMostPins)), QString::fromUtf8(text))
      .toUtf8();
}

FB_Lua_Script_File::Reading FB_Lua_Script_File::read(const QByteArray& bytes, const QString& password) {
  const qsizetype versionEnd = bytes.indexOf(';');
  if (bytes.size() > cSizeLimit || !bytes.startsWith(cKind) || versionEnd < 0) {
    return failed(State::Read_Failed);
  }
  if (bytes.first(versionEnd).sliced(cKind.size()) != cVersion) {
    return failed(State::Unknown_Version);
  }
  // A line break behind the record is what editors and mail programs add.
  const QByteArray record = bytes.trimmed();
  const bool isWhole = record.count(';') == cFields && record.endsWith(';');
  return isWhole ? readRecord(record.split(';'), password) : failed(State::Read_Failed);
}

QString FB_Lua_Script_File::message(State state) {
  switch (state) {
  case State::Read:
  case State::Needs_Password:
    break;
  case State::Open_Failed:
    return tr("Fehler beim Öffnen der Datei");
  case State::Read_Failed:
    return tr("Fehler beim Lesen der Datei");
  case State::Unknown_Version:
    return tr("Unbekannte Dateiversion");
  case State::Wrong_Password:
    return tr("Falsches Passwort");
  }
  return {};
}

FB_Lua_Script_File::Reading FB_Lua_Script_File::readFile(const QString& path, const QString& password) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    return failed(State::Open_Failed);
  }
  const QByteArray bytes = file.read(cSizeLimit + 1);
  return file.error() == QFileDevice::NoError ? read(bytes, password) : failed(State::Read_Failed);
}

bool FB_Lua_Script_File::writeFile(const QString& path, const Script& script, const QString& password) {
  QSaveFile file(path);
  const QByteArray bytes = write(script, password);
  return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}

QString FB_Lua_Script_File::writeFailure() {
  return tr("Fehler beim Speichern der Datei");
}
