#include "app/Action_Table.h"
#include "app/Main_Window_Dev.h"
#include "app/Project_Lifecycle.h"
#include "app/Start_Page.h"
#include "base/App_Settings.h"
#include "db/Project_Edits.h"
#include "tests/db/Session_Rig.h"
#include "ui/Page_Details_View.h"
#include "ui/Page_View.h"
#include "ui/Project_Tree_View.h"
#include "ui/Result_Dialog.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QMenuBar>
#include <QSplitter>
#include <QStackedWidget>
#include <QTabWidget>

namespace {

using namespace Qt::StringLiterals;

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
  QAction* action(const char* name) { return mWindow.findChild<QAction*>(QLatin1String(name)); }
  QStackedWidget* stack() { return mWindow.findChild<QSplitter*>(u"ui:mSplitterMain"_s)->findChild<QStackedWidget*>(); }

  App_Settings mSettings{path(u"studio.ini"_s)};
  Main_Window_Dev mWindow;
};

/// Presses the button of that text in the box that will be open next.
void pressSoon(const QString& text, bool* isPressed) {
  QTimer::singleShot(0, qApp, [text, isPressed] {
    const QWidget* const box = QApplication::activeModalWidget();
    if (!box) {
      return;
    }
    for (auto* const button : box->findChildren<QAbstractButton*>()) {
      if (QString(button->text()).remove(u'&') == text) {
        *isPressed = true;
        button->click();
        return;
      }
    }
  });
}

qsizetype visibleWindows() {
  const QWidgetList windows = QApplication::topLevelWidgets();
  return std::count_if(windows.begin(), windows.end(), [](const QWidget* window) { return window->isVisible(); });
}

} // namespace

class Main_Window_Test : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

  void everyActionDoesSomething() {
    for (const Action_Row& row : Action_Table::rows()) {
      Window_Rig rig;
      rig.show();
      QVERIFY(rig.create());
      rig.mWindow.findChild<Start_Page*>()->backRequested();
      QVERIFY(rig.edit() && rig.edit(u"Nochmals"_s));
      QVERIFY(rig.mSession.history().undo());
      const auto signature = [&rig] {
        return QStringList{rig.mSession.path(),
                           rig.mWindow.windowTitle(),
                           QString::number(rig.mSession.history().position()),
                           QString::number(rig.mSession.isModified()),
                           QString::number(rig.stack()->currentIndex()),
                           QString::number(rig.mWindow.isVisible()),
                           QString::number(visibleWindows())};
      };
      const QStringList before = signature();
      bool isDialogSeen = row.mIsSubmenu; // opens its menu only
      QTimer::singleShot(0, qApp, [&isDialogSeen] {
        if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
          isDialogSeen = true;
          dialog->reject();
        }
      });
      if (!row.mIsSubmenu) {
        QVERIFY2(rig.action(row.mSlot) && rig.action(row.mSlot)->isEnabled(), row.mSlot);
        rig.action(row.mSlot)->trigger();
      }
      QCoreApplication::processEvents();
      QVERIFY2(isDialogSeen || signature() != before, row.mSlot);
    }
  }

  void resultsLeadToTheirTab() {
    Window_Rig rig;
    rig.show();
    QVERIFY(rig.create());
    rig.addAddress({1, 2, 3}, u"Licht"_s);
    rig.action("onEdit_Search_Unused")->trigger();
    auto* const results = rig.mWindow.findChild<Result_Dialog*>();
    auto* const tabs = rig.mWindow.findChild<QTabWidget*>();
    const auto current = [tabs] {
      return tabs->currentWidget()->findChild<QTreeView*>()->currentIndex().data().toString();
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
    for (const QString& place : {u"tree"_s, u"panel"_s}) {
      if (place == u"tree") {
        tree->edit(page);
      } else {
        rig.mWindow.findChild<Page_Details_View*>()->findChild<QLineEdit*>()->setFocus();
      }
      auto* const editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
      QVERIFY(editor);
      editor->selectAll();
      QTest::keyClicks(editor, place);
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

  void aKioskEditsNothingAndRemembersNothing() {
    Window_Rig rig(true);
    rig.mWindow.showAsRemembered();
    QVERIFY(QTest::qWaitForWindowExposed(&rig.mWindow));
    QVERIFY(rig.mWindow.isFullScreen() && !rig.mWindow.menuBar()->isVisible());
    QVERIFY(rig.create());
    QVERIFY(!rig.edit());
    QVERIFY(rig.action("onMenuFileQuit")->isEnabled() && !rig.action("onMenuFileNew")->isEnabled());
    QVERIFY(rig.mWindow.close());
    QVERIFY(rig.mSettings.windowState().isEmpty());
  }
};

QTEST_MAIN(Main_Window_Test)
#include "Main_Window_Test.moc"
