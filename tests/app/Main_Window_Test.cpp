#include "app/Action_Table.h"
#include "app/Command_Palette.h"
#include "app/Link_Status.h"
#include "app/Main_Window_Dev.h"
#include "app/Page_Tabs.h"
#include "app/Project_Lifecycle.h"
#include "app/Start_Page.h"
#include "base/App_Settings.h"
#include "db/Edit_Scope.h"
#include "db/Project_Edits.h"
#include "fb/FB_Block_Editors.h"
#include "fb/FB_Page.h"
#include "fb/help/FB_Help_Window.h"
#include "fb/model/FB_Page_Edits.h"
#include "fb/model/FB_Page_List_Edits.h"
#include "tests/db/Session_Rig.h"
#include "ui/Address_View.h"
#include "ui/Message_Dialog.h"
#include "ui/Page_Details_View.h"
#include "ui/Page_View.h"
#include "ui/Project_Tree_View.h"
#include "ui/Result_Dialog.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPointer>
#include <QSplitter>
#include <QStackedLayout>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>
#include <QTreeView>

namespace {

using namespace Qt::StringLiterals;

bool press(const QWidget& box, const QString& text) {
  for (auto* const button : box.findChildren<QAbstractButton*>()) {
    if (QString(button->text()).remove(u'&') == text) {
      button->click();
      return true;
    }
  }
  return false;
}

/// Presses the button of that text in the box that will be open next.
void pressSoon(const QString& text, bool* isPressed) {
  QTimer::singleShot(0, qApp, [text, isPressed] {
    const QWidget* const box = QApplication::activeModalWidget();
    *isPressed = box && press(*box, text);
  });
}

qsizetype visibleWindows() {
  const QWidgetList windows = QApplication::topLevelWidgets();
  return std::count_if(windows.begin(), windows.end(), [](const QWidget* window) { return window->isVisible(); });
}

struct Window_Rig : Session_Rig {
  explicit Window_Rig(bool isKiosk = false) : mWindow(mSession, mSettings, mState, isKiosk) {}

  void show() {
    mWindow.show();
    QVERIFY(QTest::qWaitForWindowExposed(&mWindow));
  }
  bool edit(const QString& caption = u"Umbenannt"_s) {
    const QUuid page = mSession.database().mFbPages.pages().at(0).mGuid;
    const bool isDone = bool(Project_Edits::renamePage(mSession, page, caption));
    QCoreApplication::processEvents(); // the step ends with the turn
    return isDone;
  }
  /// A project with two steps, of which one is taken back, two pages shown, on the upper one three blocks, all
  /// selected, and text selected in a field.
  void prepare() {
    show();
    QVERIFY(create());
    const DB_Page_List<DB_FB_Page>& pages = mSession.database().mFbPages;
    mSession.database().mConnections.mItems.at(0).mAddress = u"127.0.0.1:1"_s; // nobody listens there
    auto* const tabs = mWindow.findChild<Page_Tabs*>();
    tabs->showPage(mSession.database().mWidgetPages.pages().at(0).mGuid);
    tabs->showPage(pages.pages().at(0).mGuid);
    mWindow.findChild<Start_Page*>()->backRequested();
    for (const QPointF& at : {QPointF(3, 5), QPointF(301, 47), QPointF(703, 203)}) {
      QVERIFY(bool(FB_Page_Edits::create(mSession, pages.pages().at(0).mGuid, 50, at)));
    }
    QVERIFY(edit() && edit(u"Nochmals"_s));
    QVERIFY(mSession.history().undo());
    QVERIFY(QTest::qWaitForWindowActive(&mWindow));
    mField = mWindow.findChild<Address_View*>()->findChild<QLineEdit*>();
    mWindow.findChild<QTabWidget*>(u"ui:mTabs"_s)->setCurrentIndex(1);
    tabs->logicPage()->zoomIn();
    tabs->logicPage()->selectAll();
    mField->setFocus();
    mField->setText(u"Text"_s);
    mField->setSelection(1, 2);
    QApplication::clipboard()->setText(u"eingefügt"_s);
    emit mWindow.menuBar()->actions().at(1)->menu()->aboutToShow();
  }
  /// Tells the states apart that an action of that effect leads to.
  QString signature(Action_Effect effect) {
    QStringList parts;
    switch (effect) {
    case Action_Effect::Project:
      parts << mSession.path() << QString::number(mSession.history().position())
            << QString::number(mSession.isModified());
      break;
    case Action_Effect::View:
      parts << QString::number(stack()->currentIndex()) << mWindow.findChild<Page_Tabs*>()->currentPage().toString()
            << QString::number(mWindow.findChild<Page_Tabs*>()->count())
            << QString::number(mWindow.findChild<Page_Tabs*>()->areValuesShown())
            << QString::number(mWindow.findChild<Page_Tabs*>()->isOrderShown())
            << QString::number(quintptr(QApplication::focusWidget()));
      break;
    case Action_Effect::Zoom:
      parts << QString::number(mWindow.findChild<Page_Tabs*>()->logicPage()->zoom());
      break;
    case Action_Effect::Setting:
      for (const Setting_Row& row : Setting_Table::rows()) {
        parts << QString::number(mSettings.value(row.mSetting));
      }
      break;
    case Action_Effect::Edit:
      parts << mField->text() << mField->selectedText() << QApplication::clipboard()->text();
      break;
    case Action_Effect::Link:
      parts << mWindow.findChild<Link_Status*>()->text();
      break;
    case Action_Effect::Mode:
      parts << QString::number(mState.operatingMode());
      break;
    default:
      parts << QString::number(visibleWindows());
    }
    return parts.join(u'|');
  }
  QAction* action(const char* name) { return mWindow.findChild<QAction*>(QLatin1String(name)); }
  QStackedWidget* stack() { return mWindow.findChild<QSplitter*>(u"ui:mSplitterMain"_s)->findChild<QStackedWidget*>(); }

  App_Settings mSettings{path(u"studio.ini"_s)};
  Main_Window_Dev mWindow;
  QLineEdit* mField = nullptr; ///< has the focus
};

} // namespace

class Main_Window_Test : public QObject {
  Q_OBJECT

private slots:
  /// What is typed in the window of a block is asked for before the project is saved or left.
  void unsavedScriptIsAskedFor_data() {
    QTest::addColumn<QString>("command");
    QTest::addColumn<bool>("isLeaving");
    QTest::newRow("save") << u"onMenuFileSave"_s << false;
    QTest::newRow("close") << u"onMenuFileClose"_s << true;
    QTest::newRow("quit") << u"onMenuFileQuit"_s << true;
  }
  void unsavedScriptIsAskedFor() {
    QFETCH(QString, command);
    Window_Rig rig;
    rig.show();
    QVERIFY(rig.create());
    const QUuid page = rig.mSession.database().mFbPages.pages().at(0).mGuid;
    const QUuid block = FB_Page_Edits::create(rig.mSession, page, 900, {}).mBlocks.constFirst();
    const QPointer<FB_Block_Editor> editor = rig.mWindow.findChild<FB_Block_Editors*>()->open(block);
    editor->findChild<QPlainTextEdit*>()->insertPlainText(u"x = 1"_s);
    bool isAsked = false;
    pressSoon(u"Abbrechen"_s, &isAsked);
    QVERIFY(QMetaObject::invokeMethod(&rig.mWindow, command.toLatin1().constData()));
    QVERIFY(isAsked);
    QVERIFY(rig.mSession.isModified() && rig.mWindow.isVisible()); // called off
    QFETCH(bool, isLeaving);
    bool isProjectAsked = false;
    QTimer::singleShot(0, qApp, [&] {
      pressSoon(u"Ja"_s, &isProjectAsked);
      isAsked = press(*QApplication::activeModalWidget(), u"Speichern"_s);
    });
    QVERIFY(QMetaObject::invokeMethod(&rig.mWindow, command.toLatin1().constData()));
    QCOMPARE(isProjectAsked, isLeaving);
    Project_Session saved(rig.mState);
    rig.mSession.close();
    QVERIFY(saved.open(rig.path()));
    QCOMPARE(saved.database().mFbPages.child(block)->mParams.value(0), u"x = 1"_s);
    QTRY_VERIFY(!editor);
  }

  void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

  void whatCannotBeUsedSaysWhy() {
    Window_Rig rig;
    rig.prepare();
    for (const Action_Row& row : Action_Table::rows()) {
      const QAction* const action = rig.action(row.mSlot);
      if (!action) {
        QFAIL(row.mSlot);
      }
      const bool isOfPage = row.mWhen == Action_When::Duplicate; // text cannot
      const bool isOnline = row.mWhen == Action_When::Online;
      const QString reason = isOnline ? u"Keine Verbindung zur Steuerung"_s : QString::fromUtf8(row.mMissing);
      QVERIFY2(action->isEnabled() == (!*row.mMissing && !isOfPage && !isOnline), row.mSlot);
      QVERIFY2(action->isEnabled() || isOfPage || action->statusTip() == reason, row.mSlot);
      if (row.mSubmenu) {
        emit action->menu()->aboutToShow();
        QVERIFY2(!action->menu()->actions().isEmpty(), row.mSlot);
      }
    }
  }

  void whatCanBeUsedChangesWhatItsRowNames() {
    for (const Action_Row& row : Action_Table::rows()) {
      if (*row.mMissing || row.mSubmenu || row.mWhen == Action_When::Online) {
        continue; // Window_Link_Test has a controller for the last
      }
      Window_Rig rig;
      rig.prepare();
      if (qstrcmp(row.mSlot, "onShowVariables") == 0) {
        rig.mWindow.findChild<QTabWidget*>(u"ui:mTabs"_s)->setCurrentIndex(0);
      }
      if (row.mWhen == Action_When::Duplicate) {
        rig.mWindow.findChild<Page_Tabs*>()->logicPage()->setFocus();
        emit rig.mWindow.menuBar()->actions().at(1)->menu()->aboutToShow();
      }
      QAction* const action = rig.action(row.mSlot);
      const QString before = rig.signature(row.mEffect);
      bool isDialogSeen = false;
      QTimer closer;
      connect(&closer, &QTimer::timeout, qApp, [&isDialogSeen] {
        if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
          // The question about unsaved changes is not what the action is there for.
          isDialogSeen = isDialogSeen || !qobject_cast<Message_Dialog*>(dialog);
          if (!press(*dialog, u"Nein"_s)) {
            dialog->reject();
          }
        }
      });
      closer.start(0);
      action->trigger();
      closer.stop();
      QCoreApplication::processEvents();
      QVERIFY2((isDialogSeen && row.mEffect == Action_Effect::Dialog) || rig.signature(row.mEffect) != before,
               row.mSlot);
    }
  }

  void resultsLeadToTheirTab() {
    Window_Rig rig;
    rig.show();
    QVERIFY(rig.create());
    rig.addAddress({1, 2, 3}, u"Licht"_s);
    rig.action("onEdit_Search_Unused")->trigger();
    auto* const results = rig.mWindow.findChild<Result_Dialog*>();
    auto* const tabs = rig.mWindow.findChild<QTabWidget*>(u"ui:mTabs"_s);
    const auto current = [tabs] {
      return tabs->currentWidget()->findChild<Project_Tree_View*>()->currentIndex().data().toString();
    };
    const ProjectDatabase& database = rig.mSession.database();
    emit results->addressChosen(database.mAddresses.subGroup({1, 2, 3})->mKey);
    QCOMPARE(current(), u"1/2/3"_s);
    emit results->pageChosen(database.mFbPages.pages().at(0).mGuid);
    QCOMPARE(current(), database.mFbPages.pages().at(0).mCaption);
    emit results->pageChosen(QUuid::createUuid());
    QCOMPARE(current(), database.mFbPages.pages().at(0).mCaption);
    rig.mSession.close();
    QVERIFY(!results->isVisible());
  }

  void theOverviewLeadsToALogicPageAndThatToUsages() {
    Window_Rig rig;
    rig.show();
    QVERIFY(rig.create());
    QVERIFY(press(rig.mWindow, u"Programmseite öffnen"_s));
    FB_Page* const page = rig.mWindow.findChild<Page_Tabs*>()->logicPage();
    QVERIFY(page);
    page->setFocus();
    QTRY_VERIFY(page->hasFocus());
    QTest::keyClick(page, Qt::Key_Tab);
    QVERIFY(!page->hasFocus());
    QCOMPARE(page->pos(), QPoint()); // the place stays when Tab leaves
    emit page->typeUsagesRequested(50);
    QCOMPARE(rig.mWindow.findChild<Result_Dialog*>()->windowTitle(), u"Verwendungen: Baustein \"Und\""_s);
  }

  void undoOfSeveralPagesStaysOnTheShownOne() {
    Window_Rig rig;
    rig.show();
    QVERIFY(rig.create());
    const QUuid first = rig.mSession.database().mFbPages.pages().at(0).mGuid;
    const auto made = FB_Page_List_Edits::create(rig.mSession, u"Zweite"_s);
    QVERIFY(made);
    const QUuid second = made.mPage;
    {
      const Edit_Scope scope(rig.mSession.history(), u"Beide"_s, Edit_Scope::Grouping::Own);
      QVERIFY(FB_Page_Edits::create(rig.mSession, first, 50, {}) &&
              FB_Page_Edits::create(rig.mSession, second, 50, {}));
    }
    auto* const tabs = rig.mWindow.findChild<Page_Tabs*>();
    for (const QUuid& shown : {first, second}) {
      emit rig.mWindow.findChild<Page_View*>()->pageChosen(shown);
      QCOMPARE(tabs->currentPage(), shown);
      rig.action("onEdit_Undo")->trigger();
      QCOMPARE(tabs->currentPage(), shown);
      rig.action("onEdit_Redo")->trigger();
    }
  }

  void helpIsOfWhatTheUserIsAt() {
    Window_Rig rig;
    rig.prepare(); // the keyboard is in the addresses, blocks are selected
    const auto help = [&rig] {
      rig.action("onHelp_Context")->trigger();
      return rig.mWindow.findChild<FB_Help_Window*>()->page();
    };
    QCOMPARE(help(), u"group_addresses.html"_s);
    QTRY_COMPARE(help(), u"fb_and.html"_s); // the help has the keyboard now
    FB_Page* const page = rig.mWindow.findChild<Page_Tabs*>()->logicPage();
    page->select({});
    QCOMPARE(help(), u"logic_pages.html"_s);
    emit page->helpRequested(u"fb_or.html"_s);
    QCOMPARE(rig.mWindow.findChild<FB_Help_Window*>()->page(), u"fb_or.html"_s);
    rig.action("onShowWelcome")->trigger();
    QCOMPARE(help(), u"overview.html"_s);
  }

  void theTitleFollowsTheUndoPosition() {
    Window_Rig rig;
    QVERIFY(rig.create());
    QCOMPARE(rig.mWindow.windowTitle(), u"[*]Haus - Quarna-Studio"_s);
    QVERIFY(rig.edit() && rig.mWindow.isWindowModified());
    for (const char* const slot : {"onEdit_Undo", "onEdit_Redo", "onMenuFileSave", "onEdit_Undo", "onEdit_Redo"}) {
      const bool wasModified = rig.mWindow.isWindowModified();
      rig.action(slot)->trigger();
      QVERIFY2(rig.mWindow.isWindowModified() != wasModified, slot);
    }
    rig.mSession.close();
    QCOMPARE(rig.mWindow.windowTitle(), u"Quarna-Studio"_s);
  }

  void closingAsksAboutChanges() {
    Window_Rig rig;
    QVERIFY(rig.create());
    for (const QString& button : {u"Abbrechen"_s, u"Ja"_s, u"Nein"_s}) {
      rig.show();
      QVERIFY(rig.edit(button));
      bool isPressed = false;
      pressSoon(button, &isPressed);
      QCOMPARE(rig.mWindow.close(), button != u"Abbrechen");
      QVERIFY(isPressed);
      QCOMPARE(rig.mSession.isModified(), button != u"Ja");
    }
  }

  /// Text in an editor that is still open belongs to the project when it is saved, closed or left.
  void whatIsBeingTypedIsSaved() {
    Window_Rig rig;
    QVERIFY(rig.create());
    rig.show();
    QVERIFY(QTest::qWaitForWindowActive(&rig.mWindow));
    auto* const tree = rig.mWindow.findChild<Page_View*>()->findChild<Project_Tree_View*>();
    const QModelIndex page = tree->model()->index(0, 0, tree->model()->index(0, 0));
    const auto caption = [&rig] { return rig.mSession.database().mFbPages.pages().at(0).mCaption; };
    tree->setCurrentIndex(page);
    for (const QString& place : {u"tree"_s, u"menu"_s, u"panel"_s}) {
      if (place != u"panel") {
        tree->edit(page);
      } else {
        rig.mWindow.findChild<Page_Details_View*>()->findChild<QLineEdit*>()->setFocus();
      }
      auto* const editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
      QVERIFY(editor);
      editor->selectAll();
      QTest::keyClicks(editor, place);
      if (place == u"menu") {
        rig.mWindow.menuBar()->setFocus(Qt::MenuBarFocusReason); // as Alt does; the field is not told
        QVERIFY(editor->isVisible());
      }
      rig.action("onMenuFileSave")->trigger();
      QCOMPARE(caption(), place);
      QVERIFY(!rig.mSession.isModified());
      QVERIFY(tree->hasFocus() || place != u"tree");
    }
    tree->edit(page);
    QTest::keyClicks(QApplication::focusWidget(), u"undone"_s);
    rig.action("onEdit_Undo")->trigger();
    QCOMPARE(caption(), u"panel"_s); // what was being typed is what is taken back
    tree->edit(page);
    QTest::keyClicks(QApplication::focusWidget(), u"quit"_s);
    bool isAsked = false;
    pressSoon(u"Ja"_s, &isAsked);
    QVERIFY(rig.mWindow.close() && isAsked);
    QCOMPARE(caption(), u"quit"_s);
  }

  void layoutAndFirstTab() {
    Window_Rig rig;
    rig.mWindow.resize(1405, 800);
    rig.show();
    auto* const main = rig.mWindow.findChild<QSplitter*>(u"ui:mSplitterMain"_s);
    auto* const right = rig.mWindow.findChild<QSplitter*>(u"ui:mSplitterRight"_s);
    auto* const tabs = qobject_cast<QTabWidget*>(main->widget(1));
    QCOMPARE(main->orientation(), Qt::Horizontal);
    QCOMPARE(right->orientation(), Qt::Vertical);
    QVERIFY(qobject_cast<QStackedWidget*>(main->widget(0)) && rig.stack()->count() == 2);
    QVERIFY(std::abs(main->sizes().at(0) - 1.5 * main->sizes().at(1)) < 3);
    QVERIFY(std::abs(3 * right->sizes().at(0) - right->sizes().at(1)) < 5);
    QVERIFY(tabs->tabPosition() == QTabWidget::South && tabs->isMovable() && tabs->currentIndex() == 0);
    QCOMPARE(tabs->tabText(0) + tabs->tabText(1), u"NavigationVariablen"_s);
    for (const QLayout* const layout : rig.mWindow.centralWidget()->findChildren<QLayout*>()) {
      const bool isStack = qobject_cast<const QStackedLayout*>(layout); // these have no margins at all
      QVERIFY2(isStack || layout->contentsMargins().isNull(), layout->parentWidget()->metaObject()->className());
    }
  }

  void looksSurviveARestart() {
    Window_Rig rig;
    rig.show();
    auto* const main = rig.mWindow.findChild<QSplitter*>(u"ui:mSplitterMain"_s);
    main->setSizes({900, 300});
    auto* const tabs = qobject_cast<QTabWidget*>(main->widget(1));
    tabs->tabBar()->moveTab(0, 1);
    tabs->setCurrentIndex(1);
    rig.mWindow.findChild<QToolBar*>()->hide();
    const QList<int> sizes = main->sizes();
    const QString properties = u"FB_Dev_Properties::ui->mSplitter"_s;
    rig.mWindow.findChild<QSplitter*>(properties)->setSizes({500, 100});
    const QByteArray state = rig.mWindow.findChild<QSplitter*>(properties)->saveState();
    QVERIFY(rig.mWindow.close());
    Main_Window_Dev again(rig.mSession, rig.mSettings, rig.mState, false);
    again.show();
    QVERIFY(QTest::qWaitForWindowExposed(&again));
    auto* const mainAgain = again.findChild<QSplitter*>(u"ui:mSplitterMain"_s);
    auto* const tabsAgain = qobject_cast<QTabWidget*>(mainAgain->widget(1));
    QCOMPARE(mainAgain->sizes(), sizes);
    QCOMPARE(again.findChild<QSplitter*>(properties)->saveState(), state);
    QCOMPARE(tabsAgain->tabText(0), u"Variablen"_s);
    QCOMPARE(tabsAgain->currentIndex(), 0); // always the first
    QVERIFY(!again.findChild<QToolBar*>()->isVisible());
  }

  void languageOfTheNextStart() {
    Window_Rig rig;
    QAction english;
    english.setData(u"en"_s);
    rig.mWindow.onSelectLanguage(&english);
    QCOMPARE(rig.mSettings.languageDev(), u"en"_s);
    QVERIFY(rig.action("mMenuLanguage")->menu()->actions().at(0)->isChecked());
  }

  /// No signal tells of every selection: the palette asks, and the command must know what it was told.
  void aPaletteCommandKnowsTheSelection() {
    Window_Rig rig;
    rig.prepare();
    rig.mField->deselect();
    emit rig.mWindow.menuBar()->actions().at(1)->menu()->aboutToShow();
    QVERIFY(!rig.action("onEditCut")->isEnabled());
    rig.mField->selectAll();
    emit rig.mWindow.findChild<Command_Palette*>()->actionChosen(u"onEditCut"_s);
    QCOMPARE(rig.mField->text(), QString());
  }

  void anUnseenTabIsNotClosedAndTakesNoFocus() {
    Window_Rig rig;
    rig.prepare();
    auto* const tabs = rig.mWindow.findChild<Page_Tabs*>();
    rig.action("onPageClose")->trigger();
    QVERIFY(rig.mField->hasFocus());
    rig.action("onShowWelcome")->trigger();
    QVERIFY(!rig.action("onPageClose")->isEnabled());
    QCOMPARE(tabs->count(), 2);
  }

  void theReasonInTheOperatingMode() {
    Window_Rig rig;
    rig.prepare();
    rig.addAddress({1, 2, 3}, u"Licht"_s);
    auto* const tree = rig.mWindow.findChild<Address_View*>()->findChild<QTreeView*>();
    rig.mField->clear();
    QCoreApplication::processEvents();
    tree->setFocus();
    tree->selectAll();
    rig.mState.setOperatingMode(true);
    for (const char* const slot : {"onEditCut", "onEditDelete", "onEdit_Undo"}) {
      QCOMPARE(rig.action(slot)->statusTip(), Session_State::operatingModeRefusal());
    }
    QVERIFY(rig.action("onEditCopy")->isEnabled());
  }

  void anOpenEditorGoesWithTheWindow() {
    auto rig = std::make_unique<Session_Rig>();
    App_Settings settings(rig->path(u"studio.ini"_s));
    QVERIFY(rig->create());
    {
      Main_Window_Dev window(rig->mSession, settings, rig->mState, false);
      window.show();
      QVERIFY(QTest::qWaitForWindowActive(&window));
      auto* const tree = window.findChild<Page_View*>()->findChild<Project_Tree_View*>();
      tree->edit(tree->model()->index(0, 0, tree->model()->index(0, 0)));
      QTest::keyClicks(QApplication::focusWidget(), u"zuletzt"_s);
    }
    QVERIFY(rig->mSession.isOpen());
  }

  void theWindowsKeysWorkBesideIt() {
    Window_Rig rig;
    rig.prepare();
    rig.action("onEdit_Search")->trigger();
    auto* const search = rig.mWindow.findChild<Result_Dialog*>();
    QVERIFY(QTest::qWaitForWindowActive(search) && rig.mSession.isModified());
    QTest::keyClick(search, Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!rig.mSession.isModified());
    QTest::keyClick(search, Qt::Key_H, Qt::ControlModifier);
    QCOMPARE(search->windowTitle(), u"Suchen und ersetzen"_s);
  }

  void aKioskEditsNothingAndRemembersNothing() {
    Window_Rig rig(true);
    rig.mWindow.showAsRemembered();
    QVERIFY(QTest::qWaitForWindowActive(&rig.mWindow));
    QVERIFY(rig.mWindow.isFullScreen() && !rig.mWindow.menuBar()->isVisible() && !rig.mWindow.acceptDrops());
    for (const QToolBar* const bar : rig.mWindow.findChildren<QToolBar*>()) {
      QVERIFY(!bar->isVisible());
    }
    QVERIFY(rig.create());
    rig.mSession.close();
    QVERIFY(rig.mWindow.lifecycle().open(rig.path()));
    QVERIFY(!rig.edit());
    QTest::keyClick(&rig.mWindow, Qt::Key_F5);
    QTest::keyClick(&rig.mWindow, Qt::Key_K, Qt::ControlModifier);
    QVERIFY(rig.mState.operatingMode() && !rig.mWindow.findChild<Command_Palette*>()->isVisible());
    for (const Action_Row& row : Action_Table::rows()) {
      QVERIFY2(rig.action(row.mSlot)->isEnabled() == (qstrcmp(row.mSlot, "onMenuFileQuit") == 0), row.mSlot);
    }
    QVERIFY(rig.mWindow.close());
    rig.mSettings.sync();
    QVERIFY(Session_Rig::bytesOf(rig.path(u"studio.ini"_s)).isEmpty());
  }
};

QTEST_MAIN(Main_Window_Test)
#include "Main_Window_Test.moc"
