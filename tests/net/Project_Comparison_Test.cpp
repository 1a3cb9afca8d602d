#include "net/Project_Comparison.h"
#include "tests/db/Project_Sample.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace Project_Sample;

class Project_Comparison_Test : public QObject {
  Q_OBJECT

private slots:
  /// Each digest tells of its own part only, and saving changes none.
  void digests() {
    ProjectDatabase store;
    const QTemporaryDir folder;
    QVERIFY(store.openProject(folder.filePath("Haus.zpro"), true));
    fill(store);
    const Project_Digests first = *Project_Digests::of(store);
    QVERIFY(store.recordWriteAll(true));
    const auto changed = [&store, &first] {
      const Project_Digests now = *Project_Digests::of(store);
      return QList<bool>{now.mProgram != first.mProgram, now.mRecords != first.mRecords,
                         now.mResources != first.mResources};
    };
    QCOMPARE(changed(), (QList<bool>{false, false, false}));
    QVERIFY(first.mResources.isEmpty());
    QVERIFY(store.ressourceWriteRaw("b", "2") && store.ressourceWriteRaw("a", "1"));
    QCOMPARE(changed(), (QList<bool>{false, false, true}));
    QCOMPARE(Project_Digests::of(store)->mResources, Project_Digests::program(QByteArray("a\0"
                                                                                         "1b\0"
                                                                                         "2",
                                                                                         6)));
    QVERIFY(store.ressourceDeleteAll());
    const QString server = std::exchange(store.mMail.mServer, "anderer");
    QCOMPARE(changed(), (QList<bool>{false, true, false}));
    store.mMail.mServer = server;
    store.mGenerator.mOrientation += 1;
    QCOMPARE(changed(), (QList<bool>{true, false, false}));
  }

  void verdict_data() {
    QTest::addColumn<DB_Controller_Project>("controller");
    QTest::addColumn<Project_Comparison::Verdict>("verdict");
    QTest::addColumn<QStringList>("different");
    using Verdict = Project_Comparison::Verdict;
    DB_Controller_Project same;
    same.mProject = local();
    same.mProgramDigest = known().mProgram;
    same.mRecordsDigest = known().mRecords;
    QTest::newRow("same") << same << Verdict::Same << QStringList();
    DB_Controller_Project other = same;
    other.mProject.mTimestamp += 1000;
    other.mProject.mGeneration = 9;
    QTest::newRow("saved and written since") << other << Verdict::Same << QStringList{"Gespeichert", "Generation"};
    other = same;
    other.mProgramDigest = QString(64, u'b');
    QTest::newRow("another program") << other << Verdict::Different << QStringList{"Programm"};
    other = same;
    other.mRecordsDigest.clear();
    QTest::newRow("other records") << other << Verdict::Different << QStringList{"Einstellungen"};
    other = same;
    other.mResources = 1;
    other.mResourcesDigest = QString(64, u'c');
    QTest::newRow("a resource more") << other << Verdict::Different << QStringList{"Ressourcen"};
    other = same;
    other.mProject.mProjectId = QUuid::createUuid();
    QTest::newRow("another project") << other << Verdict::Different << QStringList{"Kennung"};
    other = {};
    QTest::newRow("none") << other << Verdict::NoProject
                          << QStringList{"Name",  "Gespeichert", "Kennung",      "Generation",
                                         "Autor", "Programm",    "Einstellungen"};
  }

  void verdict() {
    QFETCH(DB_Controller_Project, controller);
    QFETCH(QStringList, different);
    const Project_Comparison comparison(local(), known(), controller);
    QTEST(comparison.verdict(), "verdict");
    QStringList found;
    for (const Project_Comparison::Row& row : comparison.rows()) {
      if (!row.mIsSame) {
        found.append(row.mWhat);
      }
    }
    QCOMPARE(found, different);
    QCOMPARE(comparison.text() == "Projekt an der Steuerung entspricht nicht dem aktuellen Projekt",
             comparison.verdict() == Project_Comparison::Verdict::Different);
  }

private:
  static DB_Project local() {
    DB_Project project;
    project.mProjectId = QUuid("{6ba7b810-9dad-11d1-80b4-00c04fd430c8}");
    project.mName = "Haus";
    project.mAuthor = "Erika";
    project.mTimestamp = 1'700'000'000;
    project.mGeneration = 3;
    return project;
  }
  static Project_Digests known() { return {QString(64, u'1'), QString(64, u'2'), {}, 0}; }
};

QTEST_GUILESS_MAIN(Project_Comparison_Test)
#include "Project_Comparison_Test.moc"
