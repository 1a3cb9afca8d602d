#include "app/Page_Tabs.h"
#include "app/Project_Overview.h"
#include "base/App_Settings.h"
#include "db/Project_Edits.h"
#include "fb/FB_Page.h"
#include "fb/model/FB_Page_Edits.h"
#include "fb/model/FB_Types.h"
#include "tests/db/Project_Dump.h"
#include "tests/db/Session_Rig.h"
#include "ui/Page_Content_View.h"

#include <QLineEdit>
#include <QTabBar>
#include <QTreeView>

using namespace Qt::StringLiterals;

class Page_Tabs_Test : public QObject {
  Q_OBJECT

private slots:
  void init() {
    mRig = std::make_unique<Session_Rig>();
    mSettings = std::make_unique<App_Settings>(mRig->path(u"studio.ini"_s));
    QVERIFY(mRig->create());
    auto block = std::make_unique<DB_FB_Control>();
    block->mPageGuid = logic();
    block->mName = u"Flur"_s;
    block->mX = 120;
    mBlock = mRig->mSession.database().mFbPages.appendChild(std::move(block))->mGuid;
    auto* const overview = new Project_Overview(mRig->mSession, {}, nullptr);
    mTabs = std::make_unique<Page_Tabs>(mRig->mSession, *mSettings, *overview);
    mTabs->resize(600, 400);
    mTabs->show();
    QVERIFY(QTest::qWaitForWindowExposed(mTabs.get()));
  }
  void cleanup() {
    mTabs.reset();
    mSettings.reset();
    mRig.reset();
  }

  void openReorderAndClose() {
    mTabs->showPage(logic());
    mTabs->showPage(visu(0));
    mTabs->showPage(visu(1));
    mTabs->showPage(logic());
    mTabs->showPage(QUuid::createUuid());
    QCOMPARE(titles(), QStringList({u"Projekt"_s, u"*Programm 1"_s, visuName(0), visuName(1)}));
    mTabs->tabBar()->moveTab(3, 1);
    mTabs->tabBar()->moveTab(0, 2); // the project stays first
    mTabs->tabBar()->moveTab(1, 0);
    QCOMPARE(titles(), QStringList({u"Projekt"_s, visuName(1), u"*Programm 1"_s, visuName(0)}));
    mTabs->showNext();
    mTabs->showNext();
    QCOMPARE(mTabs->currentIndex(), 0);
    mTabs->showPrevious();
    QCOMPARE(mTabs->currentPage(), visu(0));
    mTabs->closeCurrent();
    middleClick(1);
    middleClick(0);
    QCOMPARE(titles(), QStringList({u"Projekt"_s, u"*Programm 1"_s}));
    mTabs->showPage(logic());
    mTabs->closeCurrent();
    mTabs->closeCurrent();
    QCOMPARE(titles(), QStringList({u"*Projekt"_s}));
  }

  void followsThePages() {
    mTabs->showPage(logic());
    mTabs->showPage(visu(0));
    QVERIFY(
        Project_Edits::renamePage(mRig->mSession, logic(), u"Licht & <b>Schatten</b> in allen Räumen des Hauses"_s));
    QCOMPARE(mTabs->tabText(1), u"Licht && <b>Schatten</b> in alle…"_s);
    const std::unique_ptr<DB_Widget_Page> page = mRig->mSession.database().mWidgetPages.takePage(visu(0));
    QCOMPARE(mTabs->count(), 2);
    mRig->mSession.close();
    QCOMPARE(titles(), QStringList({u"*Projekt"_s}));
  }

  void otherKind() {
    QVERIFY(mTabs->showOtherKind());
    QCOMPARE(mTabs->currentPage(), logic());
    QVERIFY(mTabs->showOtherKind());
    QCOMPARE(mTabs->currentPage(), visu(0));
    mTabs->showPage(visu(1));
    mTabs->showPage(logic());
    QVERIFY(mTabs->showOtherKind());
    QCOMPARE(mTabs->currentPage(), visu(1)); // the last one, not the first
    while (!mRig->mSession.database().mFbPages.pages().isEmpty()) {
      static_cast<void>(mRig->mSession.database().mFbPages.takePage(logic()));
    }
    QVERIFY(!mTabs->showOtherKind());
  }

  void aChildIsSelectedThoughAFilterHidesIt() {
    auto element = std::make_unique<DB_Widget>();
    element->mPageGuid = visu(0);
    element->mName = u"Flur"_s;
    const QUuid guid = mRig->mSession.database().mWidgetPages.appendChild(std::move(element))->mGuid;
    mTabs->showPage(visu(0));
    auto* const filter = mTabs->currentWidget()->findChild<QLineEdit*>();
    filter->setText(u"nirgends"_s);
    QCoreApplication::processEvents();
    mTabs->showChild(visu(0), guid);
    auto* const list = mTabs->currentWidget()->findChild<QTreeView*>();
    QVERIFY(filter->text().isEmpty());
    QCOMPARE(list->currentIndex().siblingAtColumn(Page_Content_Model::cName).data().toString(), u"Flur"_s);
    mTabs->showChild(logic(), mBlock);
    QCOMPARE(mTabs->logicPage()->selectedBlocks(), QList<QUuid>{mBlock});
  }

  /// Looking at pages changes nothing in the file.
  void savesTheSameWhateverWasLookedAt() {
    ProjectDatabase& database = mRig->mSession.database();
    QVERIFY(bool(FB_Page_Edits::create(mRig->mSession, logic(), FB_Types::cConstant, {8, 8})));
    QCoreApplication::processEvents();
    QCOMPARE(mRig->mSession.save(), Project_Session::Save_Result::Saved);
    const QByteArray before = Project_Dump::project(database);
    for (const auto& page : database.mFbPages.pages()) {
      mTabs->showPage(page->mGuid);
      mTabs->logicPage()->zoomIn();
      mTabs->logicPage()->selectAll();
    }
    mTabs->showPage(visu(0));
    QCoreApplication::processEvents();
    QVERIFY(!mRig->mSession.isModified());
    const auto stamp = database.mProject.mTimestamp;
    QCOMPARE(mRig->mSession.save(), Project_Session::Save_Result::Saved);
    database.mProject.mTimestamp = stamp;
    QCOMPARE(Project_Dump::project(database), before);
  }

private:
  QUuid logic() const { return mRig->mSession.database().mFbPages.pages().at(0).mGuid; }
  QUuid visu(int i) const { return mRig->mSession.database().mWidgetPages.pages().at(i).mGuid; }
  QString visuName(int i) const { return mRig->mSession.database().mWidgetPages.pages().at(i).mCaption; }
  QStringList titles() const {
    QStringList titles;
    for (int i = 0; i < mTabs->count(); ++i) {
      titles.append((i == mTabs->currentIndex() ? u"*"_s : QString()) + mTabs->tabText(i));
    }
    return titles;
  }
  void middleClick(int tab) {
    QTest::mouseClick(mTabs->tabBar(), Qt::MiddleButton, {}, mTabs->tabBar()->tabRect(tab).center());
  }

  std::unique_ptr<Session_Rig> mRig;
  std::unique_ptr<App_Settings> mSettings;
  std::unique_ptr<Page_Tabs> mTabs;
  QUuid mBlock;
};

QTEST_MAIN(Page_Tabs_Test)
#include "Page_Tabs_Test.moc"
