#include "base/App_Settings.h"
#include "fb/FB_Block_Editors.h"
#include "fb/lua/FB_Lua_Code_Edit.h"
#include "fb/lua/FB_Lua_Completion.h"
#include "fb/lua/FB_Lua_Find_Bar.h"
#include "fb/lua/FB_Lua_Script_Editor.h"
#include "fb/lua/FB_Lua_Trace_View.h"
#include "tests/fb/Logic_Rig.h"
#include "ui/Theme.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDateTime>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTimer>
#include <QToolBar>

/// The window of a script block.
class FB_Lua_Script_Editor_Test : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { Theme::apply(*qApp); }

  void init() {
    mRig = std::make_unique<Logic_Rig>();
    mSettings = std::make_unique<App_Settings>(mRig->path("settings.ini"));
    mWindow = std::make_unique<QWidget>();
    mEditors = new FB_Block_Editors(mRig->mSession, *mSettings, mWindow.get());
    mBlock = mRig->add(900);
    mRig->history().commit();
    mEditor = qobject_cast<FB_Lua_Script_Editor*>(mEditors->open(mBlock));
    QVERIFY(mEditor);
    mEdit = mEditor->findChild<FB_Lua_Code_Edit*>();
    QVERIFY(QTest::qWaitForWindowExposed(mEditor));
  }

  void cleanup() {
    mWindow.reset();
    mSettings.reset();
    mRig.reset();
  }

  void savingIsOneStep() {
    mEdit->replaceAll("x = 1;\n-- Ende");
    auto* const save = mEditor->findChild<QToolBar*>("toolbar")->actions().constFirst();
    QCOMPARE(save->text(), QStringLiteral("Speichern und ausführen"));
    QCOMPARE(stored(), QString());
    save->trigger();
    QCOMPARE(stored(), QStringLiteral("x = 1;\n-- Ende"));
    mRig->history().commit();
    save->trigger(); // nothing new
    mRig->history().commit();
    QVERIFY(mRig->history().undo());
    QCOMPARE(stored(), QString());
    QTRY_COMPARE(mEditor->script(), QString()); // the window follows
    QVERIFY(mRig->history().redo());
    QTRY_COMPARE(mEditor->script(), QStringLiteral("x = 1;\n-- Ende"));
  }

  void typedTextIsKeptWhenTheProjectChanges() {
    mEdit->replaceAll("getippt()");
    QVERIFY(FB_Page_Edits::setParameter(mRig->mSession, mBlock, 0, "anderswo()"));
    QTRY_VERIFY(button(*mEditor, "Änderung übernehmen"));
    auto* const take = button(*mEditor, "Änderung übernehmen");
    QCOMPARE(mEditor->script(), QStringLiteral("getippt()"));
    take->click();
    QCOMPARE(mEditor->script(), QStringLiteral("anderswo()"));
    QVERIFY(mEditor->finish()); // without a question
  }

  void closingAsks_data() {
    QTest::addColumn<QString>("answer");
    QTest::addColumn<bool>("isClosed");
    QTest::addColumn<QString>("stored");
    QTest::newRow("save") << "Speichern" << true << "x = 1";
    QTest::newRow("discard") << "Verwerfen" << true << "";
    QTest::newRow("go on") << "Abbrechen" << false << "";
  }
  void closingAsks() {
    QFETCH(QString, answer);
    mEdit->replaceAll("x = 1");
    QVERIFY(mEditor->isWindowModified());
    bool isAsked = false;
    pressSoon(answer, &isAsked);
    QTEST(mEditors->finishAll(), "isClosed");
    QVERIFY(isAsked);
    QTEST(stored(), "stored");
  }

  void brokenScriptIsSavedOnlyAfterAQuestion() {
    mEdit->replaceAll("x = = 1");
    bool isAsked = false;
    pressSoon("Nein", &isAsked);
    mEditor->onSave();
    QVERIFY(isAsked);
    QCOMPARE(stored(), QString());
    QVERIFY(button(*mEditor, "Zeile 1: Unverständlich bei \"=\""));
  }

  void completionTakesFunction() {
    QTest::keyClicks(mEdit, "sys_timer_sta");
    QVERIFY(mEdit->completion().isShown());
    QTest::keyClick(mEdit, Qt::Key_Tab);
    QCOMPARE(mEditor->script(), QStringLiteral("sys_timer_start()"));
    QCOMPARE(mEdit->textCursor().position(), 16);
  }

  void returnCompletesNothing_data() {
    QTest::addColumn<QString>("typed");
    QTest::newRow("whole word") << "end"; // there is sys_send_mail too
    QTest::newRow("comment") << "-- Licht an";
    QTest::newRow("string") << "x = \"Licht an";
    QTest::newRow("block comment") << "--[[\rLicht an";
  }
  void returnCompletesNothing() {
    QFETCH(QString, typed);
    QTest::keyClicks(mEdit, typed);
    QTest::keyClick(mEdit, Qt::Key_Return);
    QCOMPARE(mEditor->script(), typed.replace(u'\r', u'\n') + u'\n');
  }

  void findsWhatIsThereNow() {
    auto* const bar = mEditor->findChild<FB_Lua_Find_Bar*>();
    const auto isShown = [bar](const QString& count) {
      const auto labels = bar->findChildren<QLabel*>();
      return std::ranges::any_of(labels, [&count](const QLabel* label) { return label->text() == count; });
    };
    mEdit->replaceAll("ab\nabc\nab");
    bar->bringUp(true);
    bar->findChild<QLineEdit*>("mFind")->setText("ab");
    QVERIFY(isShown("3 Stellen"));
    mEdit->replaceAll("ab");
    QTRY_VERIFY(isShown("1 Stelle"));
    bar->findChild<QLineEdit*>("mReplacement")->setText("abab");
    bar->replaceAll();
    QCOMPARE(mEditor->script(), QStringLiteral("abab")); // once
    QVERIFY(isShown("1 ersetzt"));
  }

  /// Deleted beside the window: what was typed waits there for the undo; a saved text closes with its block.
  void typedTextOutlivesItsBlock() {
    const QPointer<FB_Lua_Script_Editor> window = mEditor;
    const auto remove = [this] { return FB_Page_Edits::remove(mRig->mSession, {mBlock}); };
    mEdit->replaceAll("x = 1");
    QVERIFY(remove());
    mRig->history().commit();
    QCoreApplication::processEvents();
    QVERIFY(window && window->isVisible() && window->isWindowModified());
    bool isAsked = false;
    pressSoon("Nein", &isAsked);
    QVERIFY(!mEditors->finishAll());
    QVERIFY(isAsked);
    QVERIFY(mRig->history().undo());
    QCoreApplication::processEvents();
    mEditor->onSave();
    QCOMPARE(stored(), QStringLiteral("x = 1"));
    mRig->history().commit();
    QVERIFY(remove());
    QTRY_VERIFY(!window);
  }

  void operatingModeOnlyShows() {
    mRig->mState.setOperatingMode(true);
    QTest::keyClicks(mEdit, "x");
    QTest::keyClick(mEdit, Qt::Key_Return);
    QTest::keyClick(mEdit, Qt::Key_Tab);
    QCOMPARE(mEditor->script(), QString());
    QVERIFY(!mEditor->findChild<QToolBar*>("toolbar")->actions().constFirst()->isEnabled());
  }

  /// The first ones go, and the table is not built line by line.
  void aFloodOfLinesIsShownTogether() {
    FB_Lua_Trace_View view(QString(), {"A"}, nullptr);
    view.show();
    QSignalSpy changes(view.findChild<QTableView*>()->model(), &QAbstractItemModel::rowsRemoved);
    for (int i = 0; i < FB_Lua_Trace_View::cMostRows + 5; ++i) {
      view.append({QString::number(i)});
    }
    QTRY_COMPARE(view.rowCount(), FB_Lua_Trace_View::cMostRows);
    for (int i = 0; i < 7; ++i) {
      view.append({"x"});
    }
    view.copy();
    const QStringList lines = QApplication::clipboard()->text().split('\n');
    QCOMPARE(lines.size(), FB_Lua_Trace_View::cMostRows);
    QCOMPARE(lines.first(), QString("12"));
    QCOMPARE(lines.last(), QString("x"));
    QCOMPARE(changes.size(), 1);
    view.append({"y"});
    view.clear();
    QTest::qWait(200);
    QCOMPARE(view.rowCount(), 0);
  }

  void traceAndVariables() {
    mEditor->addTrace(QDateTime(QDate(2026, 3, 4), QTime(5, 6, 7)), "Hallo");
    mEditor->addTrace(QDateTime(QDate(2026, 3, 4), QTime(5, 6, 8)), "Welt");
    mEditor->onTraceCopy();
    QCOMPARE(QApplication::clipboard()->text(),
             QStringLiteral("04.03.2026 05:06:07.000\tHallo\n04.03.2026 05:06:08.000\tWelt"));
    mEditor->setVariable("a", "1");
    mEditor->setVariable("b", "2");
    mEditor->setVariable("a", "3");
    mEditor->onVarCopy();
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("a\t3\nb\t2"));
    mEditor->onVarClear();
    mEditor->onTraceClear();
    mEditor->onVarCopy();
    QCOMPARE(QApplication::clipboard()->text(), QString());
  }

  void helpIsThatOfTheFunction() {
    const QSignalSpy asked(mEditors, &FB_Block_Editors::helpRequested);
    mEdit->replaceAll("sys_alias()");
    mEditor->onHelp();
    QCOMPARE(asked.value(0).value(0).toString(), QStringLiteral("lua_functions.html#sys_alias"));
    mEdit->replaceAll("x");
    mEditor->onHelp();
    QCOMPARE(asked.value(1).value(0).toString(), QStringLiteral("fb_lua_script.html"));
  }

private:
  [[nodiscard]] QString stored() { return mRig->block(mBlock).mParams.value(0); }

  static QAbstractButton* button(const QWidget& window, const QString& text) {
    for (auto* const found : window.findChildren<QAbstractButton*>()) {
      if (QString(found->text()).remove(u'&') == text) {
        return found;
      }
    }
    return nullptr;
  }

  static void pressSoon(const QString& text, bool* isPressed) {
    QTimer::singleShot(0, qApp, [text, isPressed] {
      const QWidget* const box = QApplication::activeModalWidget();
      auto* const found = box ? button(*box, text) : nullptr;
      if (found) {
        *isPressed = true;
        found->click();
      }
    });
  }

  std::unique_ptr<Logic_Rig> mRig;
  std::unique_ptr<App_Settings> mSettings;
  std::unique_ptr<QWidget> mWindow;
  FB_Block_Editors* mEditors = nullptr;
  FB_Lua_Script_Editor* mEditor = nullptr;
  FB_Lua_Code_Edit* mEdit = nullptr;
  QUuid mBlock;
};

QTEST_MAIN(FB_Lua_Script_Editor_Test)

#include "FB_Lua_Script_Editor_Test.moc"
