#include "app/Action_Table.h"
#include "app/Link_Status.h"
#include "app/Main_Window_Dev.h"
#include "app/Program_Play.h"
#include "app/Window_Link.h"
#include "base/App_Settings.h"
#include "db/Project_Edits.h"
#include "fb/FB_Block_Editors.h"
#include "fb/lua/FB_Lua_Script_Editor.h"
#include "fb/lua/FB_Lua_Trace_View.h"
#include "fb/model/FB_Page_Edits.h"
#include "net/Controller_Command.h"
#include "net/Controller_Records.h"
#include "net/Script_Message.h"
#include "tests/db/Session_Rig.h"
#include "tests/net/Scripted_Peer.h"
#include "ui/Message_Dialog.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QStatusBar>
#include <QTextEdit>

namespace {

using namespace Qt::StringLiterals;
using namespace Controller_Command;

constexpr int cLuaScript = 900;

/// A window with a project whose connection leads to a peer that lets everyone in and takes every program.
struct Link_Rig : Session_Rig {
  Link_Rig() : mWindow(mSession, mSettings, mState, false), mLink(*mWindow.findChild<Window_Link*>()) {
    mPeer.mOnMessage = [this](const Scripted_Peer::Message& message) { answer(message.mCommand); };
    QObject::connect(&mCloser, &QTimer::timeout, &mCloser, [this] { closeBox(); });
    mCloser.start(1);
    mWindow.show();
    if (!create()) {
      qFatal("no project");
    }
    DB_Connections& connections = mSession.database().mConnections;
    connections.mItems = {mPeer.connection()};
    connections.mSelected = 0;
  }

  void answer(quint32 command) {
    if (mMuted == command) {
      return;
    }
    const QByteArray refusal = [this, command] {
      DB_Refusal record;
      record.mCommand = static_cast<int>(command);
      record.mReason = mReason;
      return record.toData();
    }();
    if (mRefused == command) {
      command == Log_On ? mPeer.send(Log_On_Refused, mReason.toUtf8() + '\0') : mPeer.send(Refused, refusal);
    } else if (command == Log_On) {
      mPeer.send(Log_On_Accepted, DB_Controller_Informations().toData());
    } else if (command == Compare) {
      mPeer.send(Compare_Reply, DB_Controller_Project().toData());
    } else if (command == Program_End) {
      if (mAtEnd) {
        std::exchange(mAtEnd, nullptr)();
      }
      mPeer.send(Program_Staged);
    } else if (command == Program_Start) {
      mPeer.send(Program_Started, DB_Controller_Project().toData());
    }
  }

  void closeBox() {
    if (auto* const box = qobject_cast<Message_Dialog*>(QApplication::activeModalWidget())) {
      mTold += box->findChild<QTextEdit*>()->toPlainText();
      ++mBoxes;
      for (auto* const button : box->findChildren<QAbstractButton*>()) {
        if (QString(button->text()).remove(u'&') == mAnswer) {
          button->click();
          return;
        }
      }
      box->reject();
    } else if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
      mIsDialogSeen = true;
      dialog->reject();
    }
  }

  QAction* action(const char* slot) { return mWindow.findChild<QAction*>(QLatin1String(slot)); }
  void press(const char* slot) { action(slot)->trigger(); }
  QString status() { return mWindow.findChild<Link_Status*>()->text(); }
  [[nodiscard]] bool goOnline() {
    press("onControllerConnect");
    return QTest::qWaitFor([this] { return mLink.isOnline(); });
  }
  bool edit(const QString& caption) {
    const QUuid page = mSession.database().mFbPages.pages().at(0).mGuid;
    return bool(Project_Edits::renamePage(mSession, page, caption));
  }

  App_Settings mSettings{path(u"studio.ini"_s)};
  Scripted_Peer mPeer;
  quint32 mMuted = 0;   ///< no answer to that command
  quint32 mRefused = 0; ///< refused with `mReason`
  QString mReason;
  std::function<void()> mAtEnd; ///< when the program has come
  QTimer mCloser;
  QString mTold; ///< by boxes
  int mBoxes = 0;
  QString mAnswer; ///< the button that is pressed in them, where there is one
  bool mIsDialogSeen = false;
  Main_Window_Dev mWindow;
  Window_Link& mLink;
};

} // namespace

/// F11 and F5: how the window dials, logs on, loses the link and brings a program over.
class Window_Link_Test : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
  void init() { mRig = std::make_unique<Link_Rig>(); }
  void cleanup() { mRig.reset(); }

  void connectsAndTellsHowItStands() {
    Link_Rig& rig = *mRig;
    QCOMPARE(rig.status(), u"Nicht verbunden"_s);
    QCOMPARE(rig.action("onControllerConnect")->text(), u"Ver&binden\tF11\nNicht verbunden"_s);
    QCOMPARE(rig.action("onControllerReboot")->statusTip(), u"Keine Verbindung zur Steuerung"_s);
    const qint64 offline = rig.action("onControllerConnect")->icon().cacheKey();
    QVERIFY(rig.goOnline());
    const QString online = u"Verbunden: Test (%1)"_s.arg(rig.mPeer.address());
    QCOMPARE(rig.status(), online);
    QCOMPARE(rig.action("onControllerConnect")->text(), u"Ver&binden\tF11\n"_s + online);
    QVERIFY(rig.action("onControllerConnect")->icon().cacheKey() != offline);
    QVERIFY(rig.action("onControllerReboot")->isEnabled());
    rig.press("onControllerConnect");
    QTRY_VERIFY(!rig.mPeer.isConnected());
    QCOMPARE(rig.status(), u"Nicht verbunden"_s);
    QVERIFY(!rig.action("onControllerReboot")->isEnabled() && rig.mBoxes == 0);
  }

  void aLostLinkIsToldAndComesBack() {
    Link_Rig& rig = *mRig;
    QVERIFY(rig.goOnline());
    rig.mPeer.close();
    QTRY_COMPARE(rig.status(), u"Verbindung verloren: Test (%1)"_s.arg(rig.mPeer.address()));
    QCOMPARE(rig.mBoxes, 0);
    QVERIFY(rig.goOnline());
    QCOMPARE(rig.mPeer.mAccepted, 2);
  }

  void aRefusedLogOnSaysWhy() {
    Link_Rig& rig = *mRig;
    rig.mRefused = Log_On;
    rig.mReason = u"Das Passwort stimmt nicht."_s;
    rig.press("onControllerConnect");
    QTRY_VERIFY(!rig.mPeer.isConnected() && rig.mPeer.mAccepted == 1);
    QTRY_VERIFY2(rig.mTold.contains(rig.mReason), qPrintable(rig.mTold));
    QVERIFY(!rig.mLink.isWanted());
  }

  void withoutConnectionItSaysSo() {
    mRig->mSession.database().mConnections.mSelected = -1;
    mRig->press("onControllerConnect");
    QTRY_COMPARE(mRig->mBoxes, 1);
    QVERIFY(!mRig->mLink.isWanted());
  }

  void aClosedProjectEndsTheLink() {
    QVERIFY(mRig->goOnline());
    mRig->mSession.close();
    QTRY_VERIFY(!mRig->mPeer.isConnected());
    QVERIFY(!mRig->mLink.isWanted() && mRig->mBoxes == 0);
  }

  void playWithoutLinkSwitchesAndSaysSo() {
    mRig->press("onControlPlay");
    QVERIFY(mRig->mState.operatingMode());
    QVERIFY(mRig->mWindow.statusBar()->currentMessage().startsWith(u"Bedienmodus ohne Verbindung:"_s));
    mRig->press("onControlPlay");
    QVERIFY(!mRig->mState.operatingMode());
  }

  void play_data() {
    QTest::addColumn<quint32>("muted");
    QTest::addColumn<quint32>("refused");
    QTest::addColumn<bool>("isCancelled");
    QTest::addColumn<bool>("isLost");
    QTest::addColumn<QString>("told"); // empty: the mode is on
    const QString noAnswer = u"Keine Antwort der Steuerung"_s;
    QTest::newRow("taken") << 0U << 0U << false << false << QString();
    QTest::newRow("refused") << 0U << quint32(Program_Start) << false << false << u"Nicht jetzt."_s;
    QTest::newRow("no answer at first") << quint32(Compare) << 0U << false << false << noAnswer;
    QTest::newRow("no answer at last") << quint32(Program_Start) << 0U << false << false << noAnswer;
    QTest::newRow("given up") << quint32(Program_Start) << 0U << true << false << u"-"_s;
    QTest::newRow("lost") << quint32(Program_Start) << 0U << false << true << u"Keine Verbindung zur Steuerung"_s;
  }
  void play() {
    QFETCH(quint32, muted);
    QFETCH(quint32, refused);
    QFETCH(bool, isCancelled);
    QFETCH(bool, isLost);
    QFETCH(QString, told);
    Link_Rig& rig = *mRig;
    rig.mMuted = muted;
    rig.mRefused = refused;
    rig.mReason = u"Nicht jetzt."_s;
    QVERIFY(rig.goOnline());
    rig.mLink.play().setTimeout(isLost || isCancelled ? 30'000 : 300);
    rig.press("onControlPlay");
    QVERIFY(rig.mLink.play().isRunning() && !rig.mState.operatingMode());
    QVERIFY(!rig.action("onControllerReboot")->isEnabled());
    if (isCancelled || isLost) {
      QTRY_COMPARE(rig.mPeer.count(Program_Start), 1);
      isLost ? rig.mPeer.close() : rig.press("onControlPlay");
    }
    QTRY_VERIFY(!rig.mLink.play().isRunning());
    QCOMPARE(rig.mState.operatingMode(), told.isEmpty());
    if (told.size() > 1) {
      QTRY_VERIFY2(rig.mTold.contains(told), qPrintable(rig.mTold));
    }
    if (isCancelled) {
      QTRY_COMPARE(rig.mPeer.count(Transfer_Abort), 1);
      QCOMPARE(rig.mBoxes, 0);
    }
    if (told.isEmpty()) {
      QVERIFY(rig.action("onControllerReboot")->isEnabled());
      rig.press("onControlPlay"); // out of it nothing is sent
      QVERIFY(!rig.mState.operatingMode());
      QCOMPARE(rig.mPeer.count(Compare), 1);
    }
  }

  /// The window stays usable: what is edited while the program is on its way is not lost on the controller.
  void whatIsEditedMeanwhileGoesOverAsWell() {
    Link_Rig& rig = *mRig;
    QVERIFY(rig.goOnline());
    rig.mAtEnd = [&rig] { QVERIFY(rig.edit(u"Geändert"_s)); };
    rig.press("onControlPlay");
    QTRY_VERIFY(rig.mState.operatingMode());
    QCOMPARE(rig.mPeer.count(Program_Start), 2);
  }

  void closingAsksWhileAProgramIsOnItsWay() {
    Link_Rig& rig = *mRig;
    QVERIFY(rig.goOnline());
    rig.mMuted = Compare;
    rig.press("onControlPlay");
    QVERIFY(!rig.mWindow.close());
    QCOMPARE(rig.mBoxes, 1);
    QVERIFY(rig.mLink.play().isRunning());
  }

  void everyCommandDoesWhatItsRowNames_data() {
    QTest::addColumn<QString>("slot");
    QTest::addColumn<quint32>("command"); // 0: a dialog opens
    const QHash<QString, quint32> commands = {{u"onControllerSavePersistentValues"_s, Persistent_Store},
                                              {u"onControllerReboot"_s, Restart},
                                              {u"onControllerFactoryReset"_s, Reset}};
    for (const Action_Row& row : Action_Table::rows()) {
      if (row.mWhen == Action_When::Online) {
        QCOMPARE(row.mEffect == Action_Effect::Controller, commands.contains(QLatin1String(row.mSlot)));
        QTest::newRow(row.mSlot) << QString(QLatin1String(row.mSlot)) << commands.value(QLatin1String(row.mSlot));
      }
    }
  }
  void everyCommandDoesWhatItsRowNames() {
    QFETCH(QString, slot);
    QFETCH(quint32, command);
    Link_Rig& rig = *mRig;
    rig.mMuted = Compare;
    QVERIFY(rig.goOnline());
    rig.mAnswer = u"Ja"_s;
    rig.press(qPrintable(slot));
    if (command != 0) {
      QTRY_COMPARE(rig.mPeer.count(command), 1);
    } else {
      QTRY_VERIFY(rig.mIsDialogSeen);
    }
  }

  void scripts() {
    Link_Rig& rig = *mRig;
    const QUuid page = rig.mSession.database().mFbPages.pages().at(0).mGuid;
    const auto made = FB_Page_Edits::create(rig.mSession, page, cLuaScript, {});
    QVERIFY(bool(made));
    const QUuid block = made.mBlocks.first();
    auto& editors = *rig.mWindow.findChild<FB_Block_Editors*>();
    const QPointer<FB_Lua_Script_Editor> editor = qobject_cast<FB_Lua_Script_Editor*>(editors.open(block));
    QVERIFY(editor);
    editor->onSave();
    QCOMPARE(rig.mPeer.count(Script_Run), 0);
    QVERIFY(rig.goOnline());
    QTRY_COMPARE(rig.mPeer.last(Script_Watch), block.toRfc4122()); // at once
    editor->onSave();
    QTRY_COMPARE(rig.mPeer.count(Script_Run), 1);
    rig.mPeer.send(Script_Run_Reply, Script_Message::ofBlock(block, u"Zeile 7: falsch"_s));
    rig.mPeer.send(Script_Console, Script_Message::ofLine({block, 1000, u"Hallo"_s}));
    rig.mPeer.send(Script_Variable, Script_Message::ofVariable({block, u"x"_s, u"1"_s}));
    rig.mPeer.send(Script_Console, Script_Message::ofLine({QUuid::createUuid(), 1000, u"anderswo"_s}));
    const auto views = editor->findChildren<FB_Lua_Trace_View*>();
    QTRY_VERIFY(views.at(0)->rowCount() == 1 && views.at(1)->rowCount() == 1);
    QTRY_VERIFY(std::ranges::any_of(editor->findChildren<QLabel*>(), [](const QLabel* label) {
      return label->textFormat() == Qt::PlainText && label->text().contains(u"Zeile 7: falsch"_s);
    }));
    editor->onSave();
    delete editor.data(); // before the reply
    QTRY_COMPARE(rig.mPeer.count(Script_Run), 2);
    rig.mPeer.send(Script_Run_Reply, Script_Message::ofBlock(block));
    rig.mPeer.send(Script_Console, Script_Message::ofLine({block, 1000, u"spät"_s}));
    QVERIFY(rig.mLink.isOnline());
  }

private:
  std::unique_ptr<Link_Rig> mRig;
};

QTEST_MAIN(Window_Link_Test)
#include "Window_Link_Test.moc"
