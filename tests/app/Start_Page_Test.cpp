#include "app/Start_Page.h"

#include <QAction>
#include <QApplication>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

class Start_Page_Test : public QObject {
  Q_OBJECT

private slots:
  void aRecentProjectIsChosenOnce_data() {
    QTest::addColumn<int>("way");
    QTest::newRow("click") << 0;
    QTest::newRow("click on the folder") << 1;
    QTest::newRow("double click") << 2;
    QTest::newRow("enter") << 3;
  }

  void aRecentProjectIsChosenOnce() {
    QFETCH(int, way);
    Start_Page page({}, nullptr);
    page.setRecentProjects({QStringLiteral("/a/Haus.zpro"), QStringLiteral("/b/Werk.zpro")});
    page.resize(800, 600);
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    auto* const list = page.findChild<QTreeWidget*>();
    const QSignalSpy spy(&page, &Start_Page::recentChosen);
    const QTreeWidgetItem* const item = list->topLevelItem(1);
    QPoint at = list->visualItemRect(item).center();
    at.setX(way == 1 ? list->columnViewportPosition(1) + 10 : 10);
    if (way == 3) {
      list->setCurrentItem(list->topLevelItem(1));
      QTest::keyClick(list, Qt::Key_Return);
    } else {
      QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
      if (way == 2) {
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, at);
      }
    }
    QTRY_COMPARE(spy.count(), 1);
    QTest::qWait(0);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toString(), QStringLiteral("/b/Werk.zpro"));
  }

  void missingProjectsSaySo() {
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("Haus.zpro")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    Start_Page page({}, nullptr);
    page.setRecentProjects({file.fileName(), QStringLiteral("/fehlt/Werk.zpro")});
    auto* const list = page.findChild<QTreeWidget*>();
    QCOMPARE(list->topLevelItem(0)->text(0), QStringLiteral("Haus"));
    QCOMPARE(list->topLevelItem(1)->text(0), QStringLiteral("Werk (fehlt)"));
    QVERIFY(list->topLevelItem(1)->toolTip(0).startsWith(QDir::toNativeSeparators(QStringLiteral("/fehlt/Werk.zpro"))));
    QVERIFY(list->topLevelItem(1)->foreground(0).color() != list->topLevelItem(0)->foreground(0).color());
  }

  void aButtonFollowsItsAction() {
    QAction action(QStringLiteral("Ö&ffnen"));
    action.setEnabled(false);
    Start_Page page({&action}, nullptr);
    const auto buttons = page.findChildren<QPushButton*>();
    const auto at = std::find_if(buttons.begin(), buttons.end(),
                                 [](const QPushButton* button) { return button->text() == QStringLiteral("Öffnen"); });
    QVERIFY(at != buttons.end());
    QVERIFY(!(*at)->isEnabled());
    action.setEnabled(true);
    QVERIFY((*at)->isEnabled());
    const QSignalSpy spy(&action, &QAction::triggered);
    (*at)->click();
    QCOMPARE(spy.count(), 1);
  }
};

QTEST_MAIN(Start_Page_Test)
#include "Start_Page_Test.moc"
