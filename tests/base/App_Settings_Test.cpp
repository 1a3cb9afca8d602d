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
    QStringList expected;
    for (int i = 0; i < 15; ++i) {
      settings.addLastProject(path(i));
      expected.prepend(path(i));
    }
    settings.addLastProject(path(7));
    settings.removeLastProject(path(10));
    settings.removeLastProject(path(99));
    expected = expected.first(12);
    expected.move(expected.indexOf(path(7)), 0);
    expected.removeAll(path(10));
    settings.sync();
    QCOMPARE(App_Settings(mFile).lastProjects(), expected);
  }

  void port() {
    const std::pair<const char*, int> cases[] = {{"", 0},   {"4711", 4711}, {"65535", 65'535},          {"65536", 0},
                                                 {"-1", 0}, {"auto", 0},    {"99999999999999999999", 0}};
    for (const auto& [stored, port] : cases) {
      QSettings store(mFile, QSettings::IniFormat);
      store.setValue(QStringLiteral("Settings/mMcpPort"), QString::fromLatin1(stored));
      store.sync();
      QCOMPARE(App_Settings(mFile).value(Setting::McpPort), port);
    }
  }

  void everySettingStoresWhatDiffersFromItsDefault() {
    for (const Setting_Row& row : Setting_Table::rows()) {
      const QString key = QStringLiteral("Settings/") + QLatin1String(row.mKey);
      App_Settings settings(mFile);
      if (row.mKind == Setting_Row::Kind::Text) {
        settings.setText(row.mSetting, QStringLiteral("Büro"));
        settings.sync();
        QCOMPARE(App_Settings(mFile).text(row.mSetting), QStringLiteral("Büro"));
        continue;
      }
      QSignalSpy changes(&settings, &App_Settings::changed);
      QCOMPARE(settings.value(row.mSetting), row.mDefault);
      const int other = row.mDefault == row.mMaximum ? row.mMinimum : row.mMaximum;
      settings.setValue(row.mSetting, other);
      settings.sync();
      QCOMPARE(App_Settings(mFile).value(row.mSetting), other);
      settings.setValue(row.mSetting, row.mMaximum + 1);
      QCOMPARE(settings.value(row.mSetting), row.mDefault);
      settings.sync();
      QVERIFY2(!QSettings(mFile, QSettings::IniFormat).contains(key), row.mKey);
      QCOMPARE(changes.size(), 2);
    }
  }

  void favoritesKeepTheirOrder() {
    App_Settings settings(mFile);
    for (const int i : {2, 1, 2, 3}) {
      settings.setFavoriteProject(path(i), true);
    }
    settings.setFavoriteProject(path(1), false);
    settings.setFavoriteProject(path(9), false);
    settings.sync();
    QCOMPARE(App_Settings(mFile).favoriteProjects(), QStringList({path(2), path(3)}));
  }

  void twoStudiosShareTheLists() {
    App_Settings first(mFile);
    App_Settings second(mFile);
    first.setFavoriteProject(path(1), true);
    second.setFavoriteProject(path(2), true);
    first.addLastProject(path(3));
    second.addLastProject(path(4));
    first.setFavoriteProject(path(1), false);
    QCOMPARE(App_Settings(mFile).favoriteProjects(), QStringList{path(2)});
    QCOMPARE(App_Settings(mFile).lastProjects(), QStringList({path(4), path(3)}));
  }

  void errors() {
    const std::pair<QByteArray, bool> cases[] = {
        {"[Settings]\nmMcpPort=1\n", false},
        {QByteArray(), false},
        {"Das ist ein Brief.\nUnd keine Liste von Werten.\n", true},
        {QByteArray("SQLite format 3\0\x10\0\x01\x01\0\x40", 22) + QByteArray(4000, '\0'), true},
        {"[Settings\nmMcpPort=1\n", true}};
    for (const auto& [content, isError] : cases) {
      QFile file(mFile);
      QVERIFY(file.open(QIODevice::WriteOnly));
      file.write(content);
      file.close();
      const App_Settings settings(mFile);
      QCOMPARE(settings.error().contains(mFile), isError);
    }
  }

private:
  static QString path(int i) { return QStringLiteral("/home/büro/Projekt %1.zpro").arg(i); }

  std::unique_ptr<QTemporaryDir> mFolder;
  QString mFile;
};

QTEST_GUILESS_MAIN(App_Settings_Test)
#include "App_Settings_Test.moc"
