#include "fb/FB_Catalogue_Tip.h"

#include "db/DB_Text.h"
#include "fb/model/FB_Types.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("FB_Catalogue_Tip", text);
}

/// "Eingang 1, Eingang 2, …": of counted pins the fewest.
QString pinNames(const FB_Type& type, FB_Side side) {
  QStringList names;
  for (const FB_Pin_Group& group : type.mPins) {
    if (group.mSide != side) {
      continue;
    }
    const QString name = FB_Types::text(group.mLongName);
    for (int i = 1; i <= group.mCount; ++i) {
      names.append(name.contains(QLatin1String("%1")) ? name.arg(i) : name);
    }
    if (group.mParameter >= 0) {
      names.append(QStringLiteral("…"));
    }
  }
  return names.join(QLatin1String(", "));
}

QString parameterNames(const FB_Type& type) {
  QStringList names;
  for (const FB_Parameter& parameter : type.mParameters) {
    names.append(FB_Types::text(parameter.mName));
  }
  return names.join(QLatin1String(", "));
}

void addLine(QStringList& lines, const QString& title, const QString& text) {
  if (!text.isEmpty()) {
    lines.append(title.arg(text.toHtmlEscaped()));
  }
}

} // namespace

QString FB_Catalogue_Tip::of(const FB_Type& type) {
  QStringList lines{QStringLiteral("<b>%1</b>").arg(DB_Text::rich(FB_Types::name(type.mId))),
                    tr("Bausteintyp %1").arg(type.mId)};
  if (type.mHasPins) {
    addLine(lines, tr("Eingänge: %1"), pinNames(type, FB_Side::Input));
    addLine(lines, tr("Ausgänge: %1"), pinNames(type, FB_Side::Output));
    addLine(lines, tr("Parameter: %1"), parameterNames(type));
  } else {
    lines.append(tr("Ein-/Ausgänge noch nicht verfügbar"));
  }
  if (type.mIsOnce) {
    lines.append(tr("Nur einmal im Projekt möglich"));
  }
  return lines.join(QLatin1String("<br>"));
}
