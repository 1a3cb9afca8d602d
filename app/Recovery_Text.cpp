#include "app/Recovery_Text.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>

namespace {

const QString cGap = QStringLiteral("\n\n");
constexpr qint64 cMinute = 60;
constexpr qint64 cHour = 60 * cMinute;
constexpr qint64 cDay = 24 * cHour;

QString tr(const char* text) {
  return QCoreApplication::translate("Recovery_Text", text);
}

QString count(qint64 number, const char* one, const char* several) {
  return number == 1 ? tr(one) : tr(several).arg(number);
}

QString ageOf(qint64 seconds) {
  if (seconds < cMinute) {
    return tr("vor weniger als einer Minute");
  }
  if (seconds < cHour) {
    return count(seconds / cMinute, "vor einer Minute", "vor %1 Minuten");
  }
  if (seconds < cDay) {
    return count(seconds / cHour, "vor einer Stunde", "vor %1 Stunden");
  }
  return count(seconds / cDay, "vor einem Tag", "vor %1 Tagen");
}

QString timeAndSize(const QDateTime& time, const QString& age, qint64 size) {
  const QLocale locale;
  return locale.toString(time, QLocale::ShortFormat) + age + QStringLiteral(", ") + locale.formattedDataSize(size, 1);
}

} // namespace

QString Recovery_Text::question(const QString& projectPath, const Working_Copy::Left_Behind& found,
                                const QDateTime& now) {
  const QFileInfo project(projectPath);
  const QString age = QStringLiteral(" (%1)").arg(ageOf(found.mModified.secsTo(now)));
  QStringList parts = {
      tr("Das Projekt \"%1\" wurde nicht ordentlich geschlossen. Ein Arbeitsstand ist noch vorhanden.")
          .arg(project.completeBaseName()),
      tr("Arbeitsstand: %1").arg(timeAndSize(found.mModified, age, found.mSize)) + u'\n' +
          tr("Projektdatei: %1")
              .arg(project.exists() ? timeAndSize(project.lastModified(), {}, project.size()) : tr("fehlt"))};
  if (found.mIsOvertaken) {
    parts.append(tr("Die Projektdatei wurde geändert, seit dieser Arbeitsstand begonnen wurde."));
  }
  if (found.mFurther > 0) {
    parts.append(count(found.mFurther, "Ein weiterer, älterer Arbeitsstand wird erst beim nächsten Öffnen angeboten.",
                       "%1 weitere, ältere Arbeitsstände werden erst beim nächsten Öffnen angeboten."));
  }
  const QString discard = found.mFurther > 0
                              ? tr("\"Verwerfen\" öffnet die Projektdatei und löscht alle Arbeitsstände.")
                              : tr("\"Verwerfen\" öffnet die Projektdatei und löscht den Arbeitsstand.");
  parts.append(
      tr("\"Wiederherstellen\" öffnet den Arbeitsstand, die Projektdatei bleibt bis zum Speichern wie sie ist.") +
      u'\n' + discard);
  return parts.join(cGap);
}

QString Recovery_Text::overwriting(const QString& projectPath, const Working_Copy::Left_Behind& found,
                                   const QDateTime& now) {
  const QString age = QStringLiteral(" (%1)").arg(ageOf(found.mModified.secsTo(now)));
  return tr("Von \"%1\" ist noch ein Arbeitsstand vorhanden, der nie gespeichert wurde:")
             .arg(QFileInfo(projectPath).completeBaseName()) +
         u' ' + timeAndSize(found.mModified, age, found.mSize) + u'.' + cGap +
         tr("Den Arbeitsstand löschen und fortfahren?");
}

QString Recovery_Text::unreadable(const QString& workingPath, const QString& error) {
  return tr("Der Arbeitsstand \"%1\" kann nicht gelesen werden: %2").arg(QDir::toNativeSeparators(workingPath), error) +
         cGap + tr("Den Arbeitsstand löschen und die Projektdatei öffnen?");
}

QString Recovery_Text::gone() {
  return tr("Der Arbeitsstand ist nicht mehr vorhanden.");
}
