#include "base/App_Settings.h"

#include <QTemporaryDir>
#include <QtTest>

class App_Settings_Test : public QObject {
  Q_OBJECT

private slots:
  void init() {
    mFolder = std::make_unique<QTemporaryDir>();
    QVERIFY(mFolder->isValid());
    mFile = mFolder->filePath(QStringLiteral("a.ini"));
  }

  void lastProjects() {
    App_Settings settings(mFile);
    QVERIFY(settings.lastProjects().isEmpty());
    QStringList expected;
    for (int i = 0; i < 15; ++i) {
      settings.addLastProject(path(i));
      expected.prepend(path(i));
    }
    expected = expected.first(12);
    QCOMPARE(settings.lastProjects(), expected);
    settings.addLastProject(path(7));
    expected.removeAll(path(7));
    expected.prepend(path(7));
    QCOMPARE(settings.lastProjects(), expected);
    settings.removeLastProject(path(10));
    settings.removeLastProject(path(99));
    expected.removeAll(path(10));
    settings.sync();
    QCOMPARE(App_Settings(mFile).lastProjects(), expected);
    for (const QString& project : std::as_const(expected)) {
      settings.removeLastProject(project);
    }
    QVERIFY(settings.lastProjects().isEmpty());
  }

  /// A list that somebody else wrote: too long, with empty and doubled entries.
  void foreignLastProjects() {
    QSettings store(mFile, QSettings::IniFormat);
    store.beginWriteArray(QStringLiteral("Settings/mLastProjectsList"));
    for (int i = 0; i < 20; ++i) {
      store.setArrayIndex(i);
      store.setValue(QStringLiteral("path"), i % 4 == 0 ? QString() : path(i % 3));
    }
    store.endArray();
    store.sync();
    QCOMPARE(App_Settings(mFile).lastProjects(), QStringList({path(1), path(2), path(0)}));
  }

  void port_data() {
    QTest::addColumn<QString>("stored");
    QTest::addColumn<int>("port");
    QTest::newRow("nothing") << QString() << 0;
    QTest::newRow("a port") << QStringLiteral("4711") << 4711;
    QTest::newRow("highest") << QStringLiteral("65535") << 65'535;
    QTest::newRow("too high") << QStringLiteral("65536") << 0;
    QTest::newRow("negative") << QStringLiteral("-1") << 0;
    QTest::newRow("text") << QStringLiteral("auto") << 0;
    QTest::newRow("above every number") << QStringLiteral("99999999999999999999") << 0;
  }

  void port() {
    QFETCH(QString, stored);
    QSettings store(mFile, QSettings::IniFormat);
    store.setValue(QStringLiteral("Settings/mMcpPort"), stored);
    store.sync();
    QTEST(App_Settings(mFile).mcpPort(), "port");
  }

  void defaultsAreNotStored() {
    App_Settings settings(mFile);
    settings.setMcpPort(4711);
    settings.setLanguageDev(QStringLiteral("en"));
    settings.setLastProjectDir(QStringLiteral("/a"));
    settings.setViewState(QStringLiteral("mSplitter"), "\x01\x02");
    settings.setWindowGeometry("g");
    settings.sync();
    QCOMPARE(QSettings(mFile, QSettings::IniFormat).allKeys().size(), 5);
    const App_Settings again(mFile);
    QCOMPARE(again.mcpPort(), 4711);
    QCOMPARE(again.languageDev(), QStringLiteral("en"));
    QCOMPARE(again.viewState(QStringLiteral("mSplitter")), QByteArray("\x01\x02"));
    settings.setMcpPort(0);
    settings.setLanguageDev(QStringLiteral("de"));
    settings.setLastProjectDir({});
    settings.setViewState(QStringLiteral("mSplitter"), {});
    settings.setWindowGeometry({});
    settings.sync();
    QVERIFY(QSettings(mFile, QSettings::IniFormat).allKeys().isEmpty());
    QCOMPARE(settings.languageDev(), QStringLiteral("de"));
  }

  void errors_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isError");
    QTest::newRow("right") << QByteArray("[Settings]\nmMcpPort=1\n") << false;
    QTest::newRow("empty") << QByteArray() << false;
    QTest::newRow("a letter") << QByteArray("Das ist ein Brief.\nUnd keine Liste von Werten.\n") << true;
    QTest::newRow("a project file") << QByteArray("SQLite format 3\0\x10\0\x01\x01\0\x40", 22) + QByteArray(4000, '\0')
                                    << true;
    QTest::newRow("group that does not end") << QByteArray("[Settings\nmMcpPort=1\n") << true;
  }

  void errors() {
    QFETCH(QByteArray, content);
    QFETCH(bool, isError);
    QFile file(mFile);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    const App_Settings settings(mFile);
    QCOMPARE(!settings.error().isEmpty(), isError);
    QVERIFY(!isError || settings.error().contains(mFile));
  }

  void folderIsNoFile() {
    QVERIFY(!App_Settings(mFolder->path()).error().isEmpty());
    QVERIFY(App_Settings(mFolder->filePath(QStringLiteral("new.ini"))).error().isEmpty());
  }

private:
  static QString path(int i) { return QStringLiteral("/home/büro/Projekt %1.zpro").arg(i); }

  std::unique_ptr<QTemporaryDir> mFolder;
  QString mFile;
};

QTEST_GUILESS_MAIN(App_Settings_Test)
#include "App_Settings_Test.moc"
