#include "base/Language_Catalogues.h"

#include "base/Text_Order.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>
#include <QRegularExpression>

#include <algorithm>

namespace {

const QString cPrefix = QStringLiteral("quarna-studio_");
const QString cSuffix = QStringLiteral(".qm");
const QString cGerman = QStringLiteral("de");

/// A code names a file, so it must not lead elsewhere.
bool isCode(const QString& code) {
  static const QRegularExpression form(QStringLiteral("^[A-Za-z0-9_]+$"));
  return form.match(code).hasMatch();
}

QString nameOf(const QString& code) {
  const QLocale locale(code);
  if (code == u"en") {
    return QStringLiteral("English"); // the toolkit would name a country's
  }
  // A code that the toolkit does not know becomes the C locale.
  QString name = locale.language() == QLocale::C ? code : locale.nativeLanguageName();
  if (!name.isEmpty()) {
    name[0] = name.at(0).toUpper();
  }
  const bool hasCountry = code.contains(u'_') && locale.language() != QLocale::C;
  return hasCountry ? QStringLiteral("%1 (%2)").arg(name, locale.nativeTerritoryName()) : name;
}

} // namespace

QStringList Language_Catalogues::folders() {
  const QString program = QCoreApplication::applicationDirPath();
  return {program + QStringLiteral("/translations"),
          QDir::cleanPath(program + QStringLiteral("/../share/quarna-studio/translations"))};
}

QList<Language_Catalogues::Language> Language_Catalogues::available(const QStringList& folders) {
  QStringList codes;
  for (const QString& folder : folders) {
    for (const QString& file : QDir(folder).entryList({cPrefix + u'*' + cSuffix}, QDir::Files)) {
      const QString code = file.mid(cPrefix.size(), file.size() - cPrefix.size() - cSuffix.size());
      if (isCode(code) && code != cGerman && !codes.contains(code)) {
        codes.append(code);
      }
    }
  }
  QList<Language> languages;
  for (const QString& code : std::as_const(codes)) {
    languages.append({code, nameOf(code)});
  }
  const QCollator collator = Text_Order::collator();
  std::sort(languages.begin(), languages.end(),
            [&collator](const Language& a, const Language& b) { return collator.compare(a.mName, b.mName) < 0; });
  languages.prepend({cGerman, QStringLiteral("Deutsch")});
  return languages;
}

QString Language_Catalogues::fileOf(const QString& code, const QStringList& folders) {
  if (!isCode(code) || code == cGerman) {
    return {};
  }
  for (const QString& folder : folders) {
    QString path = folder + u'/' + cPrefix + code + cSuffix;
    if (QFile::exists(path)) {
      return path;
    }
  }
  return {};
}
