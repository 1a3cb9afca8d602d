#include "fb/model/FB_Help.h"

#include "fb/model/FB_Formula_Language.h"
#include "fb/model/FB_Help_Page.h"
#include "fb/model/FB_Lua_Functions.h"
#include "fb/model/FB_Types.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr FB_Help::Topic cTopics[] = {
    {FB_Help::cOverview, QT_TRANSLATE_NOOP("FB_Help", "Überblick")},
    {FB_Help::cLogicPages, QT_TRANSLATE_NOOP("FB_Help", "Programmseiten")},
    {FB_Help::cProperties, QT_TRANSLATE_NOOP("FB_Help", "Eigenschaften")},
    {FB_Help::cGroupAddresses, QT_TRANSLATE_NOOP("FB_Help", "Gruppenadressen")},
    {"variable.html", QT_TRANSLATE_NOOP("FB_Help", "Datentypen und Variablen")},
    {"format.html", QT_TRANSLATE_NOOP("FB_Help", "Schreibweise der Werte")},
    {"formula_language.html", QT_TRANSLATE_NOOP("FB_Help", "Sprache der Formeln"), &FB_Formula_Language::referenceHtml},
    {"lua_functions.html", QT_TRANSLATE_NOOP("FB_Help", "Funktionen der Scripts"), &FB_Lua_Functions::html},
};

const FB_Help::Topic* topicOf(const QString& page) {
  const auto at =
      std::ranges::find_if(cTopics, [&page](const auto& topic) { return page == QLatin1String(topic.mPage); });
  return at == std::end(cTopics) ? nullptr : at;
}

QHash<QString, const FB_Type*> typesByPage() {
  QHash<QString, const FB_Type*> types;
  for (const FB_Type* const type : FB_Types::all()) {
    types.insert(FB_Types::helpFileName(type->mId), type);
  }
  return types;
}

QStringList allPages() {
  QStringList pages;
  for (const FB_Help::Topic& topic : cTopics) {
    pages.append(QString::fromLatin1(topic.mPage));
  }
  for (const FB_Types::Category& category : FB_Types::categories()) {
    for (const FB_Type& type : category.mTypes) {
      pages.append(FB_Types::helpFileName(type.mId));
    }
  }
  return pages;
}

} // namespace

std::span<const FB_Help::Topic> FB_Help::topics() {
  return cTopics;
}

const QStringList& FB_Help::pages() {
  static const QStringList cPages = allPages();
  return cPages;
}

const FB_Type* FB_Help::typeOf(const QString& page) {
  static const QHash<QString, const FB_Type*> cTypes = typesByPage();
  return cTypes.value(page);
}

QString FB_Help::title(const QString& page) {
  if (const Topic* const topic = topicOf(page)) {
    return QCoreApplication::translate("FB_Help", topic->mTitle);
  }
  const FB_Type* const type = typeOf(page);
  return type ? FB_Types::name(type->mId).simplified() : QString();
}

QString FB_Help::fragment(const QString& page) {
  if (const Topic* const topic = topicOf(page); topic && topic->mMake) {
    return topic->mMake();
  }
  const bool isKnown = topicOf(page) || typeOf(page);
  QFile file(QStringLiteral(":/help/") + page);
  return isKnown && file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString FB_Help::html(const QString& page) {
  if (const FB_Type* const type = typeOf(page)) {
    return FB_Help_Page::html(*type, fragment(page));
  }
  const QString name = title(page);
  return name.isEmpty() ? QString() : QStringLiteral("<h1>%1</h1>\n").arg(name.toHtmlEscaped()) + fragment(page);
}

QString FB_Help::text(const QString& page) {
  return plain(html(page));
}

QString FB_Help::plain(const QString& html) {
  static const QRegularExpression cCellEnd(QStringLiteral(R"(</t[dh]>\s*(?=<t[dh]))"));
  static const QRegularExpression cLineEnd(QStringLiteral(R"(</(p|h[1-6]|li|tr|pre)>|<br\s*/?>)"));
  static const QRegularExpression cTag(QStringLiteral("<[^>]*>"));
  static const QRegularExpression cSpace(QStringLiteral(R"([ \t\n]+)"));
  static const QRegularExpression cLines(QStringLiteral(R"( *\x{2028}[ \x{2028}]*)"));
  QString text = html;
  text.replace(cCellEnd, QStringLiteral(" | ")).replace(cLineEnd, QStringLiteral("\u2028"));
  text.remove(cTag).replace(cSpace, QStringLiteral(" ")).replace(cLines, QStringLiteral("\n"));
  text.replace(QLatin1String("&nbsp;"), QLatin1String(" ")).replace(QLatin1String("&lt;"), QLatin1String("<"));
  text.replace(QLatin1String("&gt;"), QLatin1String(">")).replace(QLatin1String("&quot;"), QLatin1String("\""));
  return text.replace(QLatin1String("&amp;"), QLatin1String("&")).trimmed();
}
