#include "base/App_Settings.h"
#include "fb/help/FB_Help_Browser.h"
#include "fb/help/FB_Help_Contents.h"
#include "fb/help/FB_Help_Hits.h"
#include "fb/help/FB_Help_Window.h"

#include <QLineEdit>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

class FB_Help_Window_Test : public QObject {
  Q_OBJECT

private slots:
  void contentsLinksAndSearchLeadToPages() {
    const QTemporaryDir folder;
    App_Settings settings(folder.filePath(u"studio.ini"_s));
    FB_Help_Window window(settings, nullptr);
    window.showContents();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QCOMPARE(window.page(), u"overview.html"_s);
    auto* const browser = window.findChild<FB_Help_Browser*>();
    auto* const contents = window.findChild<FB_Help_Contents*>();
    QTest::keyClick(contents, Qt::Key_Down);
    QCOMPARE(window.page(), u"logic_pages.html"_s);
    window.showPage(u"fb_hs_motion_detector.html"_s);
    QCOMPARE(window.windowTitle(), u"HS Bewegungsmelder - Hilfe"_s);
    QCOMPARE(contents->currentItem()->text(0), u"HS Bewegungsmelder"_s);
    QCOMPARE(browser->mark({u"bewegungsmelder"_s}), 3);
    // A link, and the way back.
    QVERIFY(browser->findNext(u"Block Bewegungsmelder"_s, false));
    QTest::keyClick(browser, Qt::Key_Return);
    QCOMPARE(window.page(), u"fb_block_motion_detector.html"_s);
    QVERIFY(browser->extraSelections().isEmpty());
    browser->backward();
    QCOMPARE(window.page(), u"fb_hs_motion_detector.html"_s);
    browser->showPage(u"fb_none.html"_s);
    QVERIFY(browser->toPlainText().contains(u"fb_none.html"_s));

    window.showSearch();
    auto* const field = window.findChild<QLineEdit*>(u"fb:mHelpSearch"_s);
    auto* const hits = window.findChild<FB_Help_Hits*>();
    QTRY_VERIFY(field->hasFocus());
    QTest::keyClicks(field, u"Klimageraet coil"_s);
    QTest::keyClick(field, Qt::Key_Return);
    QVERIFY(hits->isVisible() && hits->hasFocus());
    QCOMPARE(window.page(), u"fb_block_air_conditioner.html"_s);
    field->setText(u"gibtesnicht"_s);
    QTRY_VERIFY(!hits->isVisible());
    QTest::keyClick(field, Qt::Key_Escape);
    QVERIFY(contents->isVisible());
    QTest::keyClick(field, Qt::Key_Escape);
    QVERIFY(!window.isVisible());
    QVERIFY(!settings.viewState(u"fb:mHelpSplitter"_s).isEmpty());
  }
};

QTEST_MAIN(FB_Help_Window_Test)
#include "FB_Help_Window_Test.moc"
