#include "app/Recovery_Text.h"

#include <QFile>
#include <QLocale>
#include <QTemporaryDir>
#include <QtTest>

class Recovery_Text_Test : public QObject {
  Q_OBJECT

private slots:
  void question_data() {
    QTest::addColumn<qint64>("age"); // seconds
    QTest::addColumn<qint64>("projectAge");
    QTest::addColumn<int>("further");
    QTest::addColumn<QStringList>("parts");
    const auto row = [](const char* name, qint64 age, qint64 projectAge, int further, const QStringList& parts) {
      QTest::newRow(name) << age << projectAge << further << parts;
    };
    row("seconds", 59, 4000, 0,
        {tr("Das Projekt \"Haus\" wurde nicht ordentlich geschlossen."),
         tr("Arbeitsstand: 21.11.26 11:59 (vor weniger als einer Minute), 1,5 KiB\nProjektdatei: 21.11.26 10:53, "
            "2 Bytes\n"),
         tr("löscht den Arbeitsstand.")});
    row("one minute", 60, 4000, 0, {tr("(vor einer Minute)")});
    row("minutes", 3599, 4000, 0, {tr("(vor 59 Minuten)")});
    row("one hour", 3600, 4000, 0, {tr("(vor einer Stunde)")});
    row("hours", 86399, 90000, 0, {tr("(vor 23 Stunden)")});
    row("one day, project newer", 86400, 4000, 0,
        {tr("(vor einem Tag)"), tr("Die Projektdatei wurde geändert, seit dieser Arbeitsstand begonnen wurde.")});
    row("days, one more", 200000, 300000, 1,
        {tr("(vor 2 Tagen)"), tr("Ein weiterer, älterer Arbeitsstand"), tr("löscht alle Arbeitsstände.")});
    row("several more", 60, 4000, 3, {tr("3 weitere, ältere Arbeitsstände")});
  }

  void question() {
    QFETCH(qint64, age);
    QFETCH(qint64, projectAge);
    QFETCH(int, further);
    QFETCH(QStringList, parts);
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    const QDateTime now(QDate(2026, 11, 21), QTime(12, 0));
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("Haus.zpro")));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("xy") == 2 && file.flush());
    QVERIFY(file.setFileTime(now.addSecs(-projectAge), QFileDevice::FileModificationTime));
    const QString text =
        Recovery_Text::question(file.fileName(), {{}, 1536, now.addSecs(-age), further, projectAge < age}, now);
    for (const QString& part : parts) {
      QVERIFY2(text.contains(part), qPrintable(text));
    }
    QCOMPARE(text.contains(QStringLiteral("seit dieser Arbeitsstand")), projectAge < age);
    QCOMPARE(text.contains(QStringLiteral("weiter")), further > 0);
  }
};

QTEST_GUILESS_MAIN(Recovery_Text_Test)
#include "Recovery_Text_Test.moc"
