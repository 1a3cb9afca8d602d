#include "app/Action_Table.h"
#include "app/Main_Window_Dev.h"
#include "app/Project_Lifecycle.h"
#include "app/Project_Overview.h"
#include "app/Start_Page.h"
#include "base/App_Settings.h"
#include "db/Project_Edits.h"
#include "tests/db/Session_Rig.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDropEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QSplitter>
#include <QStackedWidget>
#include <QTabWidget>
#include <QToolBar>

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

} // namespace

class Main_Window_Test : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

  void theWindowIsLaidOut() {
    Window_Rig rig;
    auto* const main = rig.mWindow.findChild<QSplitter*>(u"ui:mSplitterMain"_s);
    QVERIFY(main);
    QCOMPARE(rig.mWindow.centralWidget(), main);
    QCOMPARE(main->orientation(), Qt::Horizontal);
    QCOMPARE(main->widget(0)->sizePolicy().horizontalStretch(), 3);
    QCOMPARE(main->widget(1)->sizePolicy().horizontalStretch(), 2);
    QCOMPARE(qobject_cast<QStackedWidget*>(main->widget(0))->count(), 2);
    auto* const tabs = qobject_cast<QTabWidget*>(main->widget(1));
    QCOMPARE(tabs->tabPosition(), QTabWidget::South);
    QVERIFY(tabs->isMovable());
    QCOMPARE(tabs->tabText(0), u"Navigation"_s);
    QCOMPARE(tabs->tabText(1), u"Variablen"_s);
    QCOMPARE(tabs->currentIndex(), 0);
    auto* const right = rig.mWindow.findChild<QSplitter*>(u"ui:mSplitterRight"_s);
    QVERIFY(right);
    QCOMPARE(right->orientation(), Qt::Vertical);
    QCOMPARE(right->widget(0)->sizePolicy().verticalStretch(), 1);
    QCOMPARE(right->widget(1)->sizePolicy().verticalStretch(), 3);
    QCOMPARE(QApplication::palette().color(QPalette::Window), QColor(0x2b, 0x2b, 0x2b));
  }

  void everyActionDoesSomething_data() {
    QTest::addColumn<QByteArray>("slot");
    for (const Action_Row& row : Action_Table::rows()) {
      if (!row.mIsSubmenu) {
        QTest::newRow(row.mSlot) << QByteArray(row.mSlot);
      }
    }
  }

  void everyActionDoesSomething() {
    QFETCH(QByteArray, slot);
    Window_Rig rig;
    rig.show();
    QVERIFY(rig.create());
    rig.mWindow.findChild<Start_Page*>()->backRequested();
    QVERIFY(rig.edit() && rig.edit(u"Nochmals"_s));
    QVERIFY(rig.mSession.history().undo());
    QAction* const action = rig.action(slot);
    QVERIFY(action && action->isEnabled());
    const auto signature = [&rig] {
      return QStringList{rig.mSession.path(),
                         rig.mWindow.windowTitle(),
                         QString::number(rig.mSession.history().position()),
                         QString::number(rig.mSession.isModified()),
                         QString::number(rig.stack()->currentIndex()),
                         QString::number(rig.mWindow.isVisible())};
    };
    const QStringList before = signature();
    bool isDialogSeen = false;
    QTimer::singleShot(0, qApp, [&isDialogSeen] {
      if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
        isDialogSeen = true;
        dialog->reject();
      }
    });
    action->trigger();
    QVERIFY(isDialogSeen || signature() != before);
  }

  void theTitleFollowsTheUndoPosition() {
    Window_Rig rig;
    QCOMPARE(rig.mWindow.windowTitle(), u"Quarna-Studio"_s);
    QVERIFY(rig.create());
    QCOMPARE(rig.mWindow.windowTitle(), u"[*]Haus - Quarna-Studio"_s);
    QVERIFY(!rig.mWindow.isWindowModified());
    QVERIFY(rig.edit());
    QVERIFY(rig.mWindow.isWindowModified());
    rig.action("onEdit_Undo")->trigger();
    QVERIFY(!rig.mWindow.isWindowModified());
    rig.action("onEdit_Redo")->trigger();
    QVERIFY(rig.mWindow.isWindowModified());
    rig.action("onMenuFileSave")->trigger();
    QVERIFY(!rig.mWindow.isWindowModified());
    rig.action("onEdit_Undo")->trigger();
    QVERIFY(rig.mWindow.isWindowModified());
    rig.mSession.close();
    QCOMPARE(rig.mWindow.windowTitle(), u"Quarna-Studio"_s);
    QVERIFY(!rig.mWindow.isWindowModified());
  }

  void theProjectShowsItsPageAndTheStartPageLeadsBack() {
    Window_Rig rig;
    rig.show();
    QVERIFY(rig.create());
    rig.mSession.close();
    QVERIFY(qobject_cast<Start_Page*>(rig.stack()->currentWidget()));
    QVERIFY(rig.mWindow.lifecycle().open(rig.path()));
    QVERIFY(qobject_cast<Project_Overview*>(rig.stack()->currentWidget()));
    rig.action("onShowWelcome")->trigger();
    QVERIFY(qobject_cast<Start_Page*>(rig.stack()->currentWidget()));
    QVERIFY(rig.mSession.isOpen());
    emit rig.stack()->findChild<Start_Page*>()->backRequested();
    QVERIFY(qobject_cast<Project_Overview*>(rig.stack()->currentWidget()));
    rig.action("onMenuFileClose")->trigger();
    QVERIFY(qobject_cast<Start_Page*>(rig.stack()->currentWidget()));
    QVERIFY(!rig.action("onMenuFileSave")->isEnabled());
  }

  void aDroppedProjectOpensAfterTheDrop() {
    Window_Rig rig;
    rig.show();
    QVERIFY(rig.create());
    rig.mSession.close();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(rig.path(u"Bild.png"_s)), QUrl::fromLocalFile(rig.path())});
    QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&rig.mWindow, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&rig.mWindow, &drop);
    QVERIFY(!rig.mSession.isOpen());
    QTRY_VERIFY(rig.mSession.isOpen());

    data.setUrls({QUrl::fromLocalFile(rig.path(u"Bild.png"_s))});
    QDragEnterEvent other({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    other.ignore();
    QApplication::sendEvent(&rig.mWindow, &other);
    QVERIFY(!other.isAccepted());
  }

  void aRestartKeepsTheLooks() {
    Session_Rig files;
    QList<int> sizes;
    for (const bool isFirst : {true, false}) {
      Session_State state;
      App_Settings settings(files.path(u"studio.ini"_s));
      Project_Session session(state);
      Main_Window_Dev window(session, settings, state, false);
      auto* const splitter = window.findChild<QSplitter*>(u"ui:mSplitterMain"_s);
      auto* const bar = window.findChildren<QToolBar*>().first();
      if (isFirst) {
        window.resize(1000, 600);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        splitter->setSizes({700, 300});
        window.addToolBar(Qt::LeftToolBarArea, bar);
        QCoreApplication::processEvents();
        sizes = splitter->sizes();
      } else {
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(window.size(), QSize(1000, 600));
        QCOMPARE(splitter->sizes(), sizes);
        QCOMPARE(window.toolBarArea(bar), Qt::LeftToolBarArea);
      }
      QVERIFY(window.close());
    }
  }

  void closingAsksAboutChanges_data() {
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("isClosed");
    QTest::newRow("cancelled") << u"Abbrechen"_s << false;
    QTest::newRow("dropped") << u"Nein"_s << true;
    QTest::newRow("saved") << u"Ja"_s << true;
  }

  void closingAsksAboutChanges() {
    QFETCH(QString, button);
    QFETCH(bool, isClosed);
    Window_Rig rig;
    rig.show();
    QVERIFY(rig.create());
    QVERIFY(rig.edit());
    bool isPressed = false;
    pressSoon(button, &isPressed);
    QCOMPARE(rig.mWindow.close(), isClosed);
    QVERIFY(isPressed);
    QCOMPARE(rig.mSession.isModified(), button != u"Ja");
  }

  void aKioskEditsNothingAndRemembersNothing() {
    Window_Rig rig(true);
    rig.mWindow.showAsRemembered();
    QVERIFY(QTest::qWaitForWindowExposed(&rig.mWindow));
    QVERIFY(rig.mWindow.isFullScreen());
    QVERIFY(!rig.mWindow.menuBar()->isVisible());
    for (const auto* const bar : rig.mWindow.findChildren<QToolBar*>()) {
      QVERIFY(!bar->isVisible());
    }
    QVERIFY(rig.create());
    QVERIFY(!rig.edit());
    QVERIFY(rig.action("onMenuFileQuit")->isEnabled());
    QVERIFY(!rig.action("onMenuFileNew")->isEnabled());
    QVERIFY(rig.mWindow.close());
    QVERIFY(rig.mSettings.windowState().isEmpty());
  }
};

QTEST_MAIN(Main_Window_Test)
#include "Main_Window_Test.moc"
