#include "fb/model/FB_Help_Page.h"

#include "base/Datapoint_Types.h"
#include "fb/model/FB_Type_Text.h"
#include "fb/model/FB_Types.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("FB_Help_Page", text);
}

QString heading(const QString& text) {
  return QStringLiteral("<h2>%1</h2>\n").arg(text.toHtmlEscaped());
}

QString note(const QString& text) {
  return QStringLiteral("<p class=\"note\">%1</p>\n").arg(text.toHtmlEscaped());
}

QString row(const QStringList& cells, const QString& tag) {
  QString html = QStringLiteral("<tr>");
  for (const QString& cell : cells) {
    html += QStringLiteral("<%1>%2</%1>").arg(tag, cell.toHtmlEscaped());
  }
  return html + QStringLiteral("</tr>\n");
}

/// Columns that are empty in all rows are left out.
QString table(QList<QStringList> rows) {
  for (qsizetype column = rows.first().size() - 1; column >= 0; --column) {
    const auto isFilled = [column](const QStringList& cells) { return !cells.at(column).isEmpty(); };
    if (std::none_of(rows.cbegin() + 1, rows.cend(), isFilled)) {
      for (QStringList& cells : rows) {
        cells.removeAt(column);
      }
    }
  }
  QString html = QStringLiteral("<table width=\"100%\">\n") + row(rows.takeFirst(), QStringLiteral("th"));
  for (const QStringList& cells : rows) {
    html += row(cells, QStringLiteral("td"));
  }
  return html + QStringLiteral("</table>\n");
}

QString categoryOf(const FB_Type& type) {
  for (const FB_Types::Category& category : FB_Types::categories()) {
    const auto types = category.mTypes;
    if (std::ranges::any_of(types, [&type](const FB_Type& other) { return other.mId == type.mId; })) {
      return *category.mTitle ? FB_Types::text(category.mTitle) : tr("nicht im Katalog, nur in älteren Projekten");
    }
  }
  return {};
}

QString head(const FB_Type& type) {
  QStringList facts{tr("Bausteintyp %1").arg(type.mId), categoryOf(type)};
  if (type.mIsOnce) {
    facts.append(tr("nur einmal im Projekt möglich"));
  }
  return QStringLiteral("<h1>%1</h1>\n").arg(FB_Types::text(type.mName).simplified().toHtmlEscaped()) +
         note(facts.join(QStringLiteral(" · ")));
}

QString pins(const FB_Type& type, FB_Side side) {
  QList<QStringList> rows{{tr("Name"), tr("Kurzname"), tr("Datenpunkttyp"), tr("Bedeutung")}};
  QStringList counts;
  for (const FB_Pin_Group& group : type.mPins) {
    if (group.mSide == side) {
      const QString dpt = QString::fromLatin1(group.mDpt);
      const auto id = Datapoint_Id::parse(dpt);
      rows.append({FB_Type_Text::longName(group), FB_Type_Text::shortName(group),
                   id ? Datapoint_Types::describe(*id) : dpt, FB_Types::text(group.mDescription)});
      counts.append(FB_Type_Text::count(type, group));
    }
  }
  if (rows.size() == 1) {
    return {};
  }
  counts.removeAll(QString());
  counts.removeDuplicates();
  QString html = table(rows);
  for (const QString& count : std::as_const(counts)) {
    html += note(count);
  }
  return html;
}

QString parameters(const FB_Type& type) {
  QList<QStringList> rows{{tr("Name"), tr("Bedeutung"), tr("Bereich"), tr("Einheit"), tr("Vorgabe")}};
  int count = 1;
  for (int i = 0; i < static_cast<int>(type.mParameters.size()); i += count) {
    count = FB_Type_Text::alike(type, i);
    const FB_Parameter& parameter = type.mParameters[static_cast<size_t>(i)];
    const QString description = FB_Types::text(parameter.mDescription);
    const QString condition = FB_Type_Text::condition(type, parameter);
    const bool isBoth = !description.isEmpty() && !condition.isEmpty();
    rows.append({FB_Type_Text::name(type, i, count),
                 description + (isBoth ? QStringLiteral("; ") : QString()) + condition, FB_Type_Text::range(parameter),
                 FB_Types::text(parameter.mUnit), FB_Type_Text::usual(parameter)});
  }
  return rows.size() == 1 ? QString() : table(rows);
}

QString declared(const FB_Type& type) {
  if (!type.mHasPins) {
    return note(tr("Ein- und Ausgänge dieses Bausteins sind in dieser Fassung noch nicht verfügbar."));
  }
  QString html;
  if (const QString inputs = pins(type, FB_Side::Input); !inputs.isEmpty()) {
    html += heading(tr("Eingänge")) + inputs;
  }
  if (const QString outputs = pins(type, FB_Side::Output); !outputs.isEmpty()) {
    html += heading(tr("Ausgänge")) + outputs;
  } else if (*type.mNoOutput) {
    html += heading(tr("Ausgänge")) +
            QStringLiteral("<p>%1</p>\n").arg(tr("Keine: %1").arg(FB_Types::text(type.mNoOutput)).toHtmlEscaped());
  }
  if (const QString list = parameters(type); !list.isEmpty()) {
    html += heading(tr("Parameter")) + list;
  }
  return html;
}

} // namespace

QString FB_Help_Page::purpose(const QString& fragment) {
  return fragment.left(fragment.indexOf(QLatin1String("<h2")));
}

QString FB_Help_Page::html(const FB_Type& type, const QString& fragment) {
  const QString first = purpose(fragment);
  return head(type) + first + u'\n' + declared(type) + fragment.mid(first.size());
}
