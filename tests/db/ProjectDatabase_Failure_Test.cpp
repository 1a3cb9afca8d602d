#include "tests/db/Project_Dump.h"
#include "tests/db/Project_Sample.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace Project_Sample;

namespace {

struct Case {
  DB_Table mTable;
  int mRow; ///< counted from 1
  const char* mHow;
  const char* mError;
  const char*
      mWritten; ///< main, middle, sub groups; single records; visualisation pages, elements; logic pages, blocks
};

} // namespace

/// Saves that fail in the middle: what is still written, what is told, and that memory and the next save are right.
class ProjectDatabase_Failure_Test : public QObject {
  Q_OBJECT

private slots:
  void init() {
    mFolder = std::make_unique<QTemporaryDir>();
    QVERIFY(mFolder->isValid());
    mPath = mFolder->filePath(QStringLiteral("a.zpro"));
    mStore = std::make_unique<ProjectDatabase>();
    QVERIFY(mStore->openProject(mPath, true));
    fill(*mStore);
    QVERIFY(mStore->recordWriteAll(false));
  }

  void rowsThatFail_data() {
    QTest::addColumn<Case>("row");
    const auto row = [](const char* name, const Case& row) { QTest::newRow(name) << row; };
    const char* const groups = "Error: recordWriteAddress";
    row("first sub group", {DB_Table::Sub_Groups, 1, "ABORT", groups, "2,4,11;8;3,6;2,6"});
    row("its middle groups go on", {DB_Table::Main_Groups, 2, "ABORT", groups, "1,4,12;8;3,6;2,6"});
    row("middle group", {DB_Table::Middle_Groups, 1, "FAIL", groups, "2,3,12;8;3,6;2,6"});
    row("last single record", {DB_Table::Project_Generator, 1, "FAIL", "voll", "2,4,12;7;3,6;2,6"});
    row("second visualisation page", {DB_Table::Visu_Pages, 2, "FAIL", "voll", "2,4,12;8;1,2;2,6"});
    row("last element of a page", {DB_Table::Visu_Elements, 4, "FAIL", "voll", "2,4,12;8;3,5;2,6"});
    row("second logic page", {DB_Table::Logic_Pages, 2, "ABORT", "voll", "2,4,12;8;3,6;1,3"});
    row("second block", {DB_Table::Logic_Blocks, 2, "FAIL", "voll", "2,4,12;8;3,6;2,4"});
    // The engine takes everything back: the file stays as it was.
    row("rolled back", {DB_Table::Sub_Groups, 5, "ROLLBACK", groups, "2,4,12;8;3,6;2,6"});
    row("rolled back late", {DB_Table::Logic_Blocks, 2, "ROLLBACK", "voll", "2,4,12;8;3,6;2,6"});
  }

  void rowsThatFail() {
    QFETCH(Case, row);
    const QByteArray name = quoted(row.mTable);
    const QByteArray refused = rawRows(mPath, name).value(row.mRow - 1);
    QVERIFY(mStore->execute("CREATE TRIGGER refusal BEFORE INSERT ON " + name + " WHEN NEW.DATA='" + refused +
                            "' BEGIN SELECT RAISE(" + row.mHow + ", 'voll'); END"));
    const QByteArray dump = Project_Dump::project(*mStore);

    QVERIFY(!mStore->recordWriteAll(false));
    QCOMPARE(mStore->lastError(), row.mError);
    QCOMPARE(written(), row.mWritten);
    QCOMPARE(Project_Dump::project(*mStore), dump);

    QVERIFY(mStore->execute("DROP TRIGGER refusal"));
    QVERIFY2(mStore->recordWriteAll(false), qPrintable(mStore->lastError()));
    QVERIFY(mStore->openProject(mPath, true));
    QCOMPARE(Project_Dump::project(*mStore), dump);
  }

  /// Another process that reads holds the commit up until the engine gives up.
  void commitRefused() {
    const QByteArray saved = savedDump();
    mStore->mProject.mAuthor = QStringLiteral("Neu");
    const QByteArray dump = Project_Dump::project(*mStore);
    DB_Sqlite other;
    QVERIFY(other.open(mPath, DB_Sqlite::Mode::ReadWrite));
    QVERIFY(other.execute("BEGIN; SELECT * FROM " + quoted(DB_Table::Project)));
    DB_Statement reading = other.prepare("SELECT * FROM " + quoted(DB_Table::Sub_Groups));
    QCOMPARE(reading.step(), DB_Statement::Step::Row);
    QVERIFY(!mStore->recordWriteAll(true));
    QVERIFY2(mStore->lastError().contains(QStringLiteral("locked")), qPrintable(mStore->lastError()));
    reading = {};
    QVERIFY(other.execute("COMMIT"));
    other.close();
    QCOMPARE(savedDump(), saved);
    QCOMPARE(Project_Dump::project(*mStore), dump);
    QVERIFY(mStore->recordWriteAll(false));
    QCOMPARE(savedDump(), dump);
  }

private:
  [[nodiscard]] QByteArray savedDump() const {
    ProjectDatabase store;
    store.openProjectReadOnly(mPath);
    return Project_Dump::project(store);
  }

  [[nodiscard]] QByteArray written() const {
    const auto count = [this](DB_Table table) { return QByteArray::number(rows(mPath, table).size()); };
    qsizetype singles = 0;
    for (const ProjectDatabase::Single& single : mStore->singles()) {
      singles += rows(mPath, single.mTable).size();
    }
    return count(DB_Table::Main_Groups) + ',' + count(DB_Table::Middle_Groups) + ',' + count(DB_Table::Sub_Groups) +
           ';' + QByteArray::number(singles) + ';' + count(DB_Table::Visu_Pages) + ',' +
           count(DB_Table::Visu_Elements) + ';' + count(DB_Table::Logic_Pages) + ',' + count(DB_Table::Logic_Blocks);
  }

  std::unique_ptr<QTemporaryDir> mFolder;
  QString mPath;
  std::unique_ptr<ProjectDatabase> mStore;
};

QTEST_GUILESS_MAIN(ProjectDatabase_Failure_Test)
#include "ProjectDatabase_Failure_Test.moc"
