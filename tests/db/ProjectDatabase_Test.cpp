#include "tests/db/Project_Dump.h"
#include "tests/db/Project_Sample.h"

#include <QDateTime>
#include <QTemporaryDir>
#include <QtTest>

using namespace Project_Sample;

class ProjectDatabase_Test : public QObject {
  Q_OBJECT

private slots:
  void init() {
    mFolder = std::make_unique<QTemporaryDir>();
    QVERIFY(mFolder->isValid());
    mPath = mFolder->filePath(QStringLiteral("Büro Nord.zpro"));
  }

  void saveAndReopen() {
    ProjectDatabase store;
    QVERIFY(store.openProject(mPath, true));
    fill(store);
    QVERIFY(store.ressourceWriteRaw(QStringLiteral("bild.png"), "\x89PNG"));
    QVERIFY2(store.recordWriteAll(true), qPrintable(store.lastError()));
    QVERIFY(std::abs(store.mProject.mTimestamp - QDateTime::currentSecsSinceEpoch()) < 60);
    const QByteArray dump = Project_Dump::project(store);
    QVERIFY(dump.count("\nblock\n") == 6 && dump.count("group address\n") == 12 &&
            dump.contains("resource bild.png 4"));
    QVERIFY(!dump.contains("NOT FOUND"));

    ProjectDatabase again;
    QVERIFY(again.openProject(mPath, true));
    QCOMPARE(Project_Dump::project(again), dump);
    QVERIFY(again.loadReport().lines().isEmpty());
    QVERIFY(again.recordWriteAll(false));
    QVERIFY(again.openProjectReadOnly(mPath));
    QCOMPARE(Project_Dump::project(again), dump);
  }

  /// A row per record in the order of the lists in memory, and none of its texts in clear.
  void rowsOfTheFile() {
    ProjectDatabase store;
    QVERIFY(store.openProject(mPath, true));
    fill(store);
    store.mProject.mAuthor = QStringLiteral("Erika Mustermann");
    QVERIFY(store.mWidgetPages.movePage(2, 0));
    QVERIFY(store.recordWriteAll(true));
    for (const ProjectDatabase::Single& single : store.singles()) {
      QCOMPARE(rows(mPath, single.mTable), QByteArrayList{single.mRecord->toData()});
    }
    QByteArrayList elements;
    for (const auto& page : store.mWidgetPages.pages()) {
      for (const auto& element : page->mChildren) {
        elements.append(element->toData());
      }
    }
    QCOMPARE(elements.size(), 6);
    QCOMPARE(rows(mPath, DB_Table::Visu_Elements), elements);
    const QByteArray bytes = bytesOf(mPath);
    for (const char* const clear : {"Mustermann", "mAuthor", "mGuid", "Adresse 1/1/1", "project", "Teil"}) {
      QVERIFY2(!bytes.contains(clear), clear);
    }
  }

  /// The project stays in memory while its file is moved away.
  void detachedAndAttachedAgain() {
    ProjectDatabase store;
    QVERIFY(!store.recordWriteAll(true));
    QVERIFY(store.openProject(mPath, true));
    fill(store);
    const QByteArray dump = Project_Dump::project(store);
    store.detach();
    QVERIFY(!store.isOpen() && !store.recordWriteAll(true));
    QCOMPARE(store.lastError(), QStringLiteral("Database not open"));
    QCOMPARE(Project_Dump::project(store), dump);
    const QString moved = mFolder->filePath(QStringLiteral("moved.zpro"));
    QVERIFY(QFile::rename(mPath, moved));
    QVERIFY(!store.attach(mPath));
    QVERIFY(store.attach(moved));
    QVERIFY(store.recordWriteAll(false));
    QCOMPARE(rows(moved, DB_Table::Project), QByteArrayList{store.mProject.toData()});
  }

  /// A page that comes back with its children has them found again; what is doubled gets GUIDs of its own.
  void pagesComeBackWhole() {
    ProjectDatabase store;
    addPages(store.mFbPages, 2, 3);
    const QByteArray dump = Project_Dump::project(store);
    const QUuid guid = store.mFbPages.pages().at(0).mGuid;
    const QUuid block = store.mFbPages.pages().at(0).mChildren.at(1).mGuid;
    std::unique_ptr<DB_FB_Page> taken = store.mFbPages.takePage(guid);
    QVERIFY(!store.mFbPages.page(guid) && !store.mFbPages.child(block));
    auto copy = std::make_unique<DB_FB_Page>(*taken);
    store.mFbPages.insertPage(0, std::move(taken));
    QCOMPARE(Project_Dump::project(store), dump);
    copy->mChildren.append(std::make_unique<DB_FB_Control>(*store.mFbPages.child(block)));
    const DB_FB_Page& added = store.mFbPages.appendPage(std::move(copy));
    QVERIFY(added.mGuid != guid && added.mChildren.at(0).mGuid != block);
    QVERIFY(!Project_Dump::project(store).contains("NOT FOUND"));
    QCOMPARE(store.mFbPages.childCount(), 7);
  }

private:
  std::unique_ptr<QTemporaryDir> mFolder;
  QString mPath;
};

QTEST_GUILESS_MAIN(ProjectDatabase_Test)
#include "ProjectDatabase_Test.moc"
