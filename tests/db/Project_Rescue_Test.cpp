#include "db/DB_Tables.h"
#include "db/Edit_Scope.h"
#include "db/Project_Edits.h"
#include "tests/db/Project_Dump.h"
#include "tests/db/Session_Rig.h"

#include <QDir>

using DB_Tables::quoted;
using Save = Project_Session::Save_Result;

/// Project files that were damaged or made strange outside the studio: what is read can be saved again, and stays.
class Project_Rescue_Test : public QObject {
  Q_OBJECT

private slots:
  void init() {
    mRig = std::make_unique<Session_Rig>();
    QVERIFY(mRig->create());
    for (int i = 0; i < 1500; ++i) {
      mRig->addAddress({i / 512, i / 256 % 2, i % 256}, QStringLiteral("Adresse %1 ").arg(i).repeated(5));
    }
    QVERIFY(session().database().ressourceWriteRaw(QStringLiteral("bild.png"), QByteArray(3000, 'x')));
    QCOMPARE(session().save(), Save::Saved);
    session().close();
  }

  void aStrangeFileIsSavedWhole_data() {
    QTest::addColumn<QByteArray>("sql");
    QTest::addColumn<bool>("isDamaged");
    const QByteArray subs = quoted(DB_Table::Sub_Groups);
    QTest::newRow("write-ahead log") << QByteArray("PRAGMA journal_mode=WAL") << false;
    QTest::newRow("trigger that deletes")
        << "CREATE TRIGGER t AFTER INSERT ON " + subs + " BEGIN DELETE FROM " + subs + "; END" << true;
    QTest::newRow("view in the place of a table")
        << "DROP TABLE " + subs + "; CREATE VIEW " + subs +
               " AS WITH RECURSIVE r(x) AS (SELECT 1 UNION ALL SELECT x+1 FROM r) SELECT x AS DATA FROM r"
        << true;
    QTest::newRow("table missing that is not read") << "DROP TABLE " + quoted(DB_Table::Scenes) << false;
    QTest::newRow("two rows, the first unreadable")
        << "INSERT INTO " + quoted(DB_Table::Mail) + "(rowid,DATA) VALUES(-1,'')" << true;
  }

  void aStrangeFileIsSavedWhole() {
    QFETCH(QByteArray, sql);
    QFETCH(bool, isDamaged);
    {
      DB_Sqlite database;
      QVERIFY(database.open(mRig->path(), DB_Sqlite::Mode::ReadWrite));
      QVERIFY(database.execute(sql));
    }
    const QStringList before = QDir(mRig->folder()).entryList(QDir::Files | QDir::Hidden);
    QVERIFY2(session().open(mRig->path()), qPrintable(session().lastError()));
    QCOMPARE(QDir(mRig->folder()).entryList(QDir::Files | QDir::Hidden), before);
    QCOMPARE(session().database().loadReport().isDamaged(), isDamaged);
    editSaveAndReopen();
  }

  void aCutFileOpensWithWhatIsReadable_data() {
    QTest::addColumn<int>("percent");
    for (const int percent : {99, 95, 90, 75, 50, 30}) {
      QTest::newRow(qPrintable(QString::number(percent))) << percent;
    }
  }

  void aCutFileOpensWithWhatIsReadable() {
    QFETCH(int, percent);
    QFile file(mRig->path());
    QVERIFY(file.resize(file.size() * percent / 100));
    QVERIFY2(session().open(mRig->path()), qPrintable(session().lastError()));
    QVERIFY(session().database().loadReport().isDamaged());
    QVERIFY(!session().database().loadReport().lines().isEmpty());
    qInfo("%d %%: %lld addresses", percent, session().database().mAddresses.subGroupCount());
    if (percent >= 90) {
      QVERIFY(session().database().mAddresses.subGroupCount() > 0);
    }
    editSaveAndReopen();
  }

  void overwrittenPagesLeaveTheRestAndCanBeSaved() {
    const QByteArray bytes = Session_Rig::bytesOf(mRig->path());
    constexpr qsizetype cPage = 4096;
    int opened = 0;
    for (qsizetype page = 1; page < bytes.size() / cPage; page += 23) {
      QByteArray damaged = bytes;
      damaged.replace(page * cPage, cPage, QByteArray(cPage, '\x5a'));
      QFile file(mRig->path());
      QVERIFY(file.open(QIODevice::WriteOnly));
      file.write(damaged);
      file.close();
      if (session().open(mRig->path())) {
        ++opened;
        editSaveAndReopen();
        session().close();
      }
    }
    QVERIFY(opened > 0);
  }

  /// Resources stay in the file: what a broken page takes of them is told before the save, and it takes no other.
  void brokenResourcesAreToldAndTheRestIsKept() {
    QVERIFY(session().open(mRig->path()));
    ProjectDatabase& store = session().database();
    const auto name = [](int i) { return QStringLiteral("bild%1").arg(i); };
    for (int i = 0; i < 9; ++i) {
      QVERIFY(store.ressourceWriteRaw(name(i), QByteArray(40'000, char('a' + i))));
    }
    QCOMPARE(session().save(), Save::Saved);
    session().close();
    QByteArray bytes = Session_Rig::bytesOf(mRig->path());
    constexpr qsizetype cPage = 4096;
    const qsizetype inFifth = bytes.indexOf(QByteArray(cPage / 2, 'e'));
    bytes.replace((inFifth / cPage + 1) * cPage, cPage, QByteArray(cPage, '\xff'));
    QFile file(mRig->path());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();
    QVERIFY2(session().open(mRig->path()), qPrintable(session().lastError()));
    QCOMPARE(store.loadReport().lines(), QStringList{QStringLiteral("Ressourcen: Nicht lesbare Einträge: 1.")});
    editSaveAndReopen();
    for (int i = 0; i < 9; ++i) {
      QByteArray read;
      QCOMPARE(store.ressourceReadRaw(name(i), read), i != 4);
      QCOMPARE(read, i == 4 ? QByteArray() : QByteArray(40'000, char('a' + i)));
    }
  }

  void aNameTooLongForItsWorkingFileIsRefused() {
    QVERIFY(!session().create(mRig->path(QString(225, u'n') + QStringLiteral(".zpro")), {}));
    QVERIFY2(session().lastError().contains(QStringLiteral("zu lang")), qPrintable(session().lastError()));
  }

  void pagesComeBackInTheirOrder() {
    QVERIFY(session().open(mRig->path()));
    DB_Page_List<DB_Widget_Page>& pages = session().database().mWidgetPages;
    pages.appendPage(std::make_unique<DB_Widget_Page>());
    const QByteArray before = Project_Dump::project(session().database());
    const QUuid a = pages.pages().at(0).mGuid;
    const QUuid b = pages.pages().at(1).mGuid;
    const QUuid c = pages.pages().at(2).mGuid;
    Undo_Adapter& undo = session().widgetPageUndo();
    const auto move = [&](Edit_Scope& scope, const QUuid& page, qsizetype to) {
      scope.moved(undo, page);
      pages.movePage(undo.placeOf(page), to);
    };
    {
      Edit_Scope scope(session().history(), QStringLiteral("a"), Edit_Scope::Grouping::Own);
      move(scope, a, 2);
      move(scope, b, 1);
      move(scope, a, 0);
    }
    {
      Edit_Scope scope(session().history(), QStringLiteral("b"), Edit_Scope::Grouping::Own);
      move(scope, c, 0);
      scope.deleted(undo, a);
      pages.takePage(a);
      move(scope, c, 1);
    }
    QVERIFY(session().history().undo());
    QVERIFY(session().history().undo());
    QCOMPARE(Project_Dump::project(session().database()), before);
  }

  void addressesOfOneNumberComeBackInTheirOrder() {
    QVERIFY(session().open(mRig->path()));
    const QUuid first = mRig->addAddress({9, 1, 5}, QStringLiteral("erste"))->mKey;
    mRig->addAddress({9, 1, 5}, QStringLiteral("zweite"));
    Address_Tree& tree = session().database().mAddresses;
    {
      Edit_Scope scope(session().history(), QStringLiteral("a"), Edit_Scope::Grouping::Own);
      scope.modified(session().addressUndo(), first);
      tree.change(first, [](DB_Data_Base& record) { dynamic_cast<DB_Address_Sub_Group&>(record).mNumber = 9; });
    }
    QCOMPARE(tree.subGroup({9, 1, 5})->mName, QStringLiteral("zweite"));
    QVERIFY(session().history().undo());
    QCOMPARE(tree.subGroup({9, 1, 5})->mName, QStringLiteral("erste"));
  }

private:
  Project_Session& session() { return mRig->mSession; }

  /// What is in memory, and an edit, is what the saved file holds.
  void editSaveAndReopen() {
    QVERIFY(Project_Edits::setGeoposition(session(), 12, 34));
    const Save result = session().save();
    QVERIFY2(result == Save::Saved, qPrintable(session().lastError()));
    const QByteArray saved = Project_Dump::project(session().database());
    session().close();
    QVERIFY2(session().open(mRig->path()), qPrintable(session().lastError()));
    QVERIFY2(!session().database().loadReport().isDamaged(),
             qPrintable(session().database().loadReport().lines().join(u'\n')));
    QCOMPARE(Project_Dump::project(session().database()), saved);
  }

  std::unique_ptr<Session_Rig> mRig;
};

QTEST_GUILESS_MAIN(Project_Rescue_Test)
#include "Project_Rescue_Test.moc"
