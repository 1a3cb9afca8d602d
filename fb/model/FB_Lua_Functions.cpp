#include "fb/model/FB_Lua_Functions.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace {

constexpr qsizetype cCommentWidth = 46;

QString tr(const char* text) {
  return QCoreApplication::translate("FB_Lua_Functions", text);
}

struct Value {
  QString mName;
  QString mText;
};

QList<Value> parametersOf(const FB_Lua_Function& function) {
  QList<Value> values;
  for (const FB_Lua_Value& parameter : function.mParameters) {
    if (*parameter.mName) {
      values.append({QString::fromUtf8(parameter.mName), FB_Lua_Functions::text(parameter.mText)});
    }
  }
  return values;
}

QString htmlOf(const FB_Lua_Function& function, bool isHelp) {
  const QString name = QString::fromUtf8(function.mName);
  const QString signature = FB_Lua_Functions::signature(function).toHtmlEscaped();
  QString html = isHelp ? QStringLiteral("<h3><a name=\"%1\"></a>%2</h3>").arg(name, signature)
                        : QStringLiteral("<p><b>%1</b></p>").arg(signature);
  html += QStringLiteral("<p>%1.</p>").arg(FB_Lua_Functions::text(function.mText).toHtmlEscaped());
  const QList<Value> parameters = parametersOf(function);
  if (!parameters.isEmpty()) {
    html += QStringLiteral("<table>");
    for (const Value& parameter : parameters) {
      html += QStringLiteral("<tr><td><code>%1</code>&nbsp;&nbsp;</td><td>%2</td></tr>")
                  .arg(parameter.mName, parameter.mText.toHtmlEscaped());
    }
    html += QStringLiteral("</table>");
  }
  if (*function.mResult) {
    html += QStringLiteral("<p>%1</p>")
                .arg(tr("Ergebnis: %1").arg(FB_Lua_Functions::text(function.mResult).toHtmlEscaped()));
  }
  return html + QStringLiteral("<pre>%1</pre>").arg(QString::fromUtf8(function.mExample).toHtmlEscaped());
}

QString htmlOf(const FB_Lua_Callback& callback, bool isHelp) {
  const QString signature = QString::fromUtf8(callback.mSignature).toHtmlEscaped();
  const QString head =
      isHelp ? QStringLiteral("<h3><a name=\"%1\"></a>%2</h3>").arg(FB_Lua_Functions::name(callback), signature)
             : QStringLiteral("<p><b>%1</b></p>").arg(signature);
  return head + QStringLiteral("<p>%1</p>").arg(tr("Wird aufgerufen %1.").arg(FB_Lua_Functions::text(callback.mText)));
}

QString plainOf(const FB_Lua_Function& function) {
  QString text = FB_Lua_Functions::signature(function) + QStringLiteral("\n  ") +
                 FB_Lua_Functions::text(function.mText) + QStringLiteral(".\n");
  for (const Value& parameter : parametersOf(function)) {
    text += QStringLiteral("  %1: %2\n").arg(parameter.mName, parameter.mText);
  }
  if (*function.mResult) {
    text += QStringLiteral("  %1\n").arg(tr("Ergebnis: %1").arg(FB_Lua_Functions::text(function.mResult)));
  }
  const QStringList example = QString::fromUtf8(function.mExample).split(u'\n');
  return text + QStringLiteral("    ") + example.join(QStringLiteral("\n    ")) + QStringLiteral("\n\n");
}

} // namespace

QString FB_Lua_Functions::callbackTitle() {
  return QStringLiteral("Callback functions");
}

const FB_Lua_Function* FB_Lua_Functions::find(const QString& name) {
  for (const FB_Lua_Group& group : groups()) {
    const auto at = std::ranges::find_if(group.mFunctions, [&name](const FB_Lua_Function& function) {
      return name == QLatin1StringView(function.mName);
    });
    if (at != group.mFunctions.end()) {
      return &*at;
    }
  }
  return nullptr;
}

const FB_Lua_Callback* FB_Lua_Functions::findCallback(const QString& wanted) {
  const auto at = std::ranges::find_if(callbacks(),
                                       [&wanted](const FB_Lua_Callback& callback) { return name(callback) == wanted; });
  return at == callbacks().end() ? nullptr : &*at;
}

QString FB_Lua_Functions::signature(const FB_Lua_Function& function) {
  QStringList names;
  for (const Value& parameter : parametersOf(function)) {
    names.append(parameter.mName);
  }
  return QStringLiteral("%1(%2)").arg(QString::fromUtf8(function.mName), names.join(u','));
}

QString FB_Lua_Functions::name(const FB_Lua_Callback& callback) {
  return QString::fromUtf8(callback.mSignature).section(u'(', 0, 0);
}

QString FB_Lua_Functions::label(const FB_Lua_Callback& callback) {
  return QStringLiteral("Insert Callback Function: ") +
         QString::fromUtf8(*callback.mLabel ? callback.mLabel : callback.mSignature);
}

QString FB_Lua_Functions::inserted(const FB_Lua_Callback& callback) {
  return QStringLiteral("\n-- %1\n-- This function is called %2\nfunction %3\n\nend\n\n\n")
      .arg(QString(cCommentWidth, u'#'), QString::fromUtf8(callback.mOccasion), QString::fromUtf8(callback.mSignature));
}

QString FB_Lua_Functions::text(const char* germanText) {
  return *germanText ? tr(germanText) : QString();
}

QString FB_Lua_Functions::toolTip(const QString& name) {
  if (const FB_Lua_Function* const function = find(name)) {
    return htmlOf(*function, false);
  }
  const FB_Lua_Callback* const callback = findCallback(name);
  return callback ? htmlOf(*callback, false) : QString();
}

QString FB_Lua_Functions::html() {
  QString page = QStringLiteral("<p>%1</p>").arg(tr("Was die Steuerung den Scripts bietet."));
  for (const FB_Lua_Group& group : groups()) {
    page += QStringLiteral("<h2>%1</h2>").arg(QString::fromUtf8(group.mTitle));
    for (const FB_Lua_Function& function : group.mFunctions) {
      page += htmlOf(function, true);
    }
  }
  page += QStringLiteral("<h2>%1</h2>").arg(callbackTitle());
  for (const FB_Lua_Callback& callback : callbacks()) {
    page += htmlOf(callback, true);
  }
  return page;
}

QString FB_Lua_Functions::plainText() {
  QString page;
  for (const FB_Lua_Group& group : groups()) {
    page += QString::fromUtf8(group.mTitle) + QStringLiteral("\n\n");
    for (const FB_Lua_Function& function : group.mFunctions) {
      page += plainOf(function);
    }
  }
  page += callbackTitle() + QStringLiteral("\n\n");
  for (const FB_Lua_Callback& callback : callbacks()) {
    page += QStringLiteral("%1\n  %2\n\n")
                .arg(QString::fromUtf8(callback.mSignature), tr("Wird aufgerufen %1.").arg(text(callback.mText)));
  }
  return page;
}
