#include "db/Project_Image.h"
#include "tests/db/Project_Dump.h"
#include "tests/db/Project_Sample.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace Project_Sample;

namespace {

QByteArray row(int table, quint32 length, const QByteArray& content) {
  QByteArray bytes(1, static_cast<char>(table));
  for (int shift = 0; shift < 32; shift += 8) {
    bytes += static_cast<char>(length >> shift);
  }
  return bytes + content;
}

QByteArray row(DB_Table table, const QByteArray& content) {
  return row(static_cast<int>(table), static_cast<quint32>(content.size()), content);
}

const QByteArray cItem = "mName\x02Haus\x03";

} // namespace

class Project_Image_Test : public QObject {
  Q_OBJECT

private slots:
  void init() {
    mFolder = std::make_unique<QTemporaryDir>();
    mPath = mFolder->filePath(QStringLiteral("Haus.zpro"));
    mCopy = mFolder->filePath(QStringLiteral("aus der Steuerung.zpro"));
  }

  /// Layout, unknown items, orphaned children and resources come back as they were.
  void wholeProject() {
    {
      ProjectDatabase store;
      QVERIFY(store.openProject(mPath, true));
      fill(store);
      store.mMail.setData(store.mMail.toData() + "mFuture\x02" + "später\x03");
      store.mFbPages.pages().at(0).mChildren.at(1).mX = 777;
      QVERIFY(store.ressourceWriteRaw(QStringLiteral("Ton.wav"), QByteArray(100'000, '\0')));
      QVERIFY(store.ressourceWriteRaw(QStringLiteral("bild ä.png"), "\x89PNG"));
      QVERIFY(store.recordWriteAll(true));
    }
    for (const DB_Table table : {DB_Table::Middle_Groups, DB_Table::Sub_Groups, DB_Table::Visu_Elements}) {
      QVERIFY(run(mPath, insertion(table, "mName\x02"
                                          "Waise\x03")));
    }
    ProjectDatabase store;
    QVERIFY(store.openProject(mPath, true));
    const std::optional<Project_Image> image = Project_Image::whole(store);
    QVERIFY(image);
    const std::optional<Project_Image> arrived = Project_Image::fromBytes(image->toBytes());
    QVERIFY(arrived && arrived->mRows == image->mRows);
    QString error;
    QVERIFY2(arrived->writeFile(mCopy, &error), qPrintable(error));

    ProjectDatabase copy;
    QVERIFY(copy.openProject(mCopy, true));
    QVERIFY(!copy.loadReport().isDamaged());
    QCOMPARE(copy.loadReport().lines(), store.loadReport().lines());
    QCOMPARE(Project_Dump::project(copy), Project_Dump::project(store));
    for (const DB_Table_Row& table : DB_Tables::all()) {
      QCOMPARE(copy.orphans(table.mTable), store.orphans(table.mTable));
    }
    QCOMPARE(Project_Image::program(copy).toBytes(), Project_Image::program(store).toBytes());
    QVERIFY(Project_Dump::project(copy).contains("später") && !copy.orphans(DB_Table::Visu_Elements).empty());
  }

  void newProjectHasAnImage() {
    ProjectDatabase store;
    QVERIFY(store.openProject(mPath, true));
    const QByteArray bytes = Project_Image::whole(store)->toBytes();
    QVERIFY(Project_Image::writeFile(bytes, mCopy));
    ProjectDatabase copy;
    QVERIFY(copy.openProject(mCopy, true) && copy.loadReport().lines().isEmpty());
    QCOMPARE(Project_Dump::project(copy), Project_Dump::project(store));
  }

  void wrongBytes_data() {
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray project = row(DB_Table::Project, cItem);
    QTest::newRow("unknown table") << project + row(24, 5, cItem);
    QTest::newRow("table that the studio only makes") << project + row(DB_Table::Users, cItem);
    QTest::newRow("cut in the head") << project + project.left(4);
    QTest::newRow("cut in the content") << project.chopped(1);
    QTest::newRow("length of 4 GB") << project + row(0, 0xffff'ffff, cItem);
    QTest::newRow("no item") << project + row(DB_Table::Sub_Groups, "mName");
    QTest::newRow("empty record") << project + row(DB_Table::Styles, "");
    QTest::newRow("resource without name") << project + row(DB_Table::Resources, QByteArray("\0x", 2));
    QTest::newRow("resource without file") << project + row(DB_Table::Resources, QByteArray("a\0", 2));
    QTest::newRow("resource without end of name") << project + row(DB_Table::Resources, "a");
    QTest::newRow("resource with a long name")
        << project + row(DB_Table::Resources, QByteArray(513, 'a') + QByteArray("\0x", 2));
    QTest::newRow("resource twice") << project + row(DB_Table::Resources, QByteArray("a\0x", 3)) +
                                           row(DB_Table::Resources, QByteArray("a\0y", 3));
    QTest::newRow("no project record") << row(DB_Table::Sub_Groups, cItem);
    QTest::newRow("nothing") << QByteArray();
  }

  /// What is there already stays.
  void wrongBytes() {
    QFETCH(QByteArray, bytes);
    QVERIFY(Project_Sample::writeFile(mCopy, "das alte Projekt"));
    QString error;
    QVERIFY(!Project_Image::writeFile(bytes, mCopy, &error));
    QVERIFY(!error.isEmpty());
    QCOMPARE(bytesOf(mCopy), QByteArray("das alte Projekt"));
  }

  void cutNames_data() {
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("kept");
    QTest::newRow("in a character of two bytes") << QByteArray("b\xc3") << QStringLiteral("b");
    QTest::newRow("in one of four") << QByteArray("b\xf0\x9f\x98") << QStringLiteral("b");
    QTest::newRow("wrong in the middle") << QByteArray("a\xffz") << QString::fromUtf8("a\xef\xbf\xbdz");
    QTest::newRow("path") << QByteArray("../../etc/passwd") << QStringLiteral("../../etc/passwd");
  }

  /// A resource is found by the name that the list tells.
  void cutNames() {
    QFETCH(QByteArray, name);
    QFETCH(QString, kept);
    QVERIFY(Project_Image::writeFile(
        row(DB_Table::Project, cItem) + row(DB_Table::Resources, name + QByteArray("\0Inhalt", 7)), mCopy));
    ProjectDatabase copy;
    QVERIFY(copy.openProject(mCopy, true));
    QStringList names;
    QByteArray bytes;
    QVERIFY(copy.ressourceList(names) && copy.ressourceReadRaw(names.value(0), bytes));
    QCOMPARE(names, QStringList{kept});
    QCOMPARE(bytes, QByteArray("Inhalt"));
  }

  void folderThatIsMissing() {
    QString error;
    QVERIFY(!Project_Image::writeFile(row(DB_Table::Project, cItem), mFolder->filePath("fehlt/a.zpro"), &error));
    QVERIFY(error.contains("fehlt/a.zpro"));
  }

private:
  std::unique_ptr<QTemporaryDir> mFolder;
  QString mPath;
  QString mCopy;
};

QTEST_GUILESS_MAIN(Project_Image_Test)
#include "Project_Image_Test.moc"
