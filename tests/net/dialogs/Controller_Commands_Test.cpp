#include "db/Project_Image.h"
#include "net/Controller_Records.h"
#include "net/dialogs/Controller_Clock.h"
#include "net/dialogs/Controller_File.h"
#include "net/dialogs/Dev_Write_Persistent_Project_Dlg.h"
#include "tests/net/dialogs/Commands_Rig.h"

#include <QLabel>
#include <QProgressBar>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace Controller_Command;

using Command = void (Controller_Commands::*)();
Q_DECLARE_METATYPE(Command)

class Controller_Commands_Test : public QObject {
  Q_OBJECT

private:
  static void addCommands() {
    QTest::addColumn<Command>("command");
    QTest::newRow("write") << &Controller_Commands::writeProject;
    QTest::newRow("download") << &Controller_Commands::downloadProject;
    QTest::newRow("compare") << &Controller_Commands::compare;
    QTest::newRow("backup") << &Controller_Commands::backup;
    QTest::newRow("restore") << &Controller_Commands::restoreBackup;
    QTest::newRow("store values") << &Controller_Commands::storePersistentValues;
    QTest::newRow("load values") << &Controller_Commands::downloadPersistentValues;
    QTest::newRow("send values") << &Controller_Commands::uploadPersistentValues;
    QTest::newRow("information") << &Controller_Commands::showInformation;
    QTest::newRow("clock") << &Controller_Commands::showClock;
    QTest::newRow("restart") << &Controller_Commands::reboot;
    QTest::newRow("reset") << &Controller_Commands::factoryReset;
  }

private slots:
  void withoutLinkNothingOpens_data() { addCommands(); }
  void withoutLinkNothingOpens() {
    QFETCH(Command, command);
    Commands_Rig rig;
    (rig.mCommands.get()->*command)();
    QCOMPARE(rig.mQuestions.mTold, QStringList{u"Keine Verbindung zur Steuerung"_s});
    QVERIFY(!rig.mCommands->isBusy());
    QCOMPARE(rig.mDialogsSeen, 0);
  }

  /// Whatever was begun, the window stands without a dialog when the project is gone.
  void closingTheProjectEndsAll_data() { addCommands(); }
  void closingTheProjectEndsAll() {
    QFETCH(Command, command);
    Commands_Rig rig;
    QVERIFY(rig.goOnline());
    QFile values(rig.mRig.folder() + u"/werte.zval"_s);
    QVERIFY(values.open(QIODevice::WriteOnly) && values.write("1/2/3;00") == 8);
    values.close();
    // Whatever is asked: agreed, or this file, which is not there yet or is replaced.
    const bool sends = command == &Controller_Commands::uploadPersistentValues;
    const bool loadsValues = command == &Controller_Commands::downloadPersistentValues;
    const bool loads = command == &Controller_Commands::downloadProject;
    rig.mQuestions.mAnswers = sends         ? QStringList{values.fileName(), u"Ja"_s}
                              : loadsValues ? QStringList{u"Ja"_s, rig.mRig.folder() + u"/neu.zval"_s}
                              : loads       ? QStringList{rig.mRig.folder() + u"/neu.zpro"_s}
                                            : QStringList{u"Ja"_s};
    const auto sent = rig.mPeer.mMessages.size();
    (rig.mCommands.get()->*command)();
    QVERIFY(rig.mCommands->isBusy());
    QVERIFY(QTest::qWaitFor([&] { return rig.mPeer.mMessages.size() > sent; }));
    rig.mRig.mSession.close();
    QVERIFY(!rig.mCommands->isBusy());
    QCoreApplication::processEvents();
    QVERIFY(!Commands_Rig::shown());
    QVERIFY(rig.mLink.isOnline());
  }

  void confirmedRequests_data() {
    QTest::addColumn<Command>("command");
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("reply");
    QTest::addColumn<QString>("question");
    QTest::addColumn<QString>("told");
    QTest::newRow("reset") << &Controller_Commands::factoryReset << int(Reset) << int(Reset_Reply)
                           << u"? Projekt und persistente Daten an der Steuerung werden gelöscht. Dieser Schritt kann "
                              "nicht rückgängig gemacht werden.\nFortfahren?"_s
                           << u"Projekt und persistente Daten an der Steuerung sind zurückgesetzt."_s;
    QTest::newRow("restart") << &Controller_Commands::reboot << int(Restart) << int(Restarting)
                             << u"? Die Steuerung wird neu gestartet. Die Verbindung wird dabei "
                                "beendet.\nFortfahren?"_s
                             << u"Die Steuerung startet neu und beendet die Verbindung. Danach mit F11 wieder "
                                "verbinden."_s;
  }
  void confirmedRequests() {
    QFETCH(Command, command);
    QFETCH(int, number);
    QFETCH(int, reply);
    QFETCH(QString, question);
    QFETCH(QString, told);
    Commands_Rig rig;
    QVERIFY(rig.goOnline());
    (rig.mCommands.get()->*command)(); // not agreed
    QCOMPARE(rig.mQuestions.mTold, QStringList{question});
    QVERIFY(!rig.mCommands->isBusy());
    rig.mAnswers[quint32(number)] = {{quint32(reply), {}}};
    rig.mQuestions.mAnswers = {u"Ja"_s};
    (rig.mCommands.get()->*command)();
    QVERIFY(rig.isTold(told));
    QCOMPARE(rig.mPeer.count(quint32(number)), 1);
    QCOMPARE(rig.mDialogsSeen, 0); // it was shorter than is worth showing
  }

  void failureStandsInTheDialog_data() {
    QTest::addColumn<Command>("command");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("how");
    QTest::addColumn<QString>("text");
    const std::pair<const char*, std::pair<Command, int>> commands[] = {
        {"values", {&Controller_Commands::storePersistentValues, int(Persistent_Store)}},
        {"compare", {&Controller_Commands::compare, int(Compare)}},
        {"write", {&Controller_Commands::writeProject, int(Program_Begin)}},
    };
    for (const auto& [name, command] : commands) {
      QTest::addRow("%s, silence", name) << command.first << command.second << u"silence"_s
                                         << u"Keine Antwort der Steuerung"_s;
      QTest::addRow("%s, link lost", name)
          << command.first << command.second << u"lost"_s << u"Keine Verbindung zur Steuerung"_s;
      QTest::addRow("%s, refusal", name) << command.first << command.second << u"refused"_s
                                         << u"Die Steuerung ist beschäftigt."_s;
    }
  }
  void failureStandsInTheDialog() {
    QFETCH(Command, command);
    QFETCH(int, number);
    QFETCH(QString, how);
    QFETCH(QString, text);
    Commands_Rig rig;
    QVERIFY(rig.goOnline());
    rig.mSettings.setValue(Setting::AskBeforeWriteBootProject, 0);
    if (how == u"silence") {
      rig.mCommands->setTimeout(100);
    } else if (how == u"refused") {
      DB_Refusal refusal;
      refusal.mCommand = number;
      refusal.mReason = text;
      rig.mAnswers[quint32(number)] = {{Refused, refusal.toData()}};
    }
    (rig.mCommands.get()->*command)();
    QVERIFY(rig.isHeard(quint32(number)));
    if (how == u"lost") {
      rig.mPeer.close();
    }
    QVERIFY(QTest::qWaitFor([] { return Commands_Rig::shown() != nullptr; }, 2000));
    QDialog* const dialog = Commands_Rig::shown();
    const auto labels = dialog->findChildren<QLabel*>();
    QVERIFY(std::any_of(labels.begin(), labels.end(),
                        [&](const QLabel* label) { return label->isVisible() && label->text() == text; }));
    QVERIFY(!dialog->findChild<QProgressBar*>()->isVisible());
    // It can be tried again where that makes sense, and ends without a word.
    QCOMPARE(Commands_Rig::button(*dialog, u"Erneut versuchen"_s)->isVisible(), how != u"lost");
    if (how == u"silence") {
      Commands_Rig::button(*dialog, u"Erneut versuchen"_s)->click();
      QVERIFY(rig.isHeard(quint32(number), 2));
      QVERIFY(QTest::qWaitFor([&] { return Commands_Rig::button(*dialog, u"Schließen"_s)->isVisible(); }));
    }
    QTest::keyClick(dialog, Qt::Key_Escape);
    QVERIFY(rig.isIdle());
    QVERIFY(rig.mQuestions.mTold.isEmpty());
  }

  /// The link's reading waits for the rest of a message and runs the event loop meanwhile.
  void boxesWaitUntilNothingIsBeingDelivered() {
    Commands_Rig rig;
    QVERIFY(rig.goOnline());
    std::optional<bool> isReading;
    rig.mQuestions.mWhileTold = [&] { isReading = rig.mLink.client().isReading(); };
    rig.mCommands->storePersistentValues();
    QVERIFY(rig.isHeard(Persistent_Store));
    rig.mPeer.sendRaw(Network_Frame::pack(Persistent_Stored, {}) +
                      Network_Frame::pack(Persistent_Taken, "1").first(40));
    QVERIFY(QTest::qWaitFor([&] { return isReading.has_value(); }));
    QVERIFY(!*isReading);
  }

  void triedAgainItSucceeds() {
    Commands_Rig rig;
    QVERIFY(rig.goOnline());
    rig.mCommands->setTimeout(100);
    rig.mCommands->storePersistentValues();
    QVERIFY(QTest::qWaitFor([] { return Commands_Rig::shown() != nullptr; }));
    rig.mAnswers[Persistent_Store] = {{Persistent_Stored, {}}};
    Commands_Rig::button(*Commands_Rig::shown(), u"Erneut versuchen"_s)->click();
    QVERIFY(rig.isTold(u"Persistente Werte auf Steuerung gespeichert"_s));
    QVERIFY(rig.isIdle());
  }

  void cancelledWithEscapeOrButton_data() {
    QTest::addColumn<bool>("isEscape");
    QTest::newRow("escape") << true;
    QTest::newRow("button") << false;
  }
  void cancelledWithEscapeOrButton() {
    QFETCH(bool, isEscape);
    Commands_Rig rig;
    QVERIFY(rig.goOnline());
    rig.mSettings.setValue(Setting::AskBeforeWriteBootProject, 0);
    rig.mCommands->writeProject();
    QVERIFY(QTest::qWaitFor([] { return Commands_Rig::shown() != nullptr; }, 2000)); // it takes long: it is shown
    QDialog* const dialog = Commands_Rig::shown();
    if (isEscape) {
      QTest::keyClick(dialog, Qt::Key_Escape);
    } else {
      Commands_Rig::button(*dialog, u"Abbrechen"_s)->click();
    }
    QVERIFY(rig.isIdle());
    QVERIFY(rig.isHeard(Transfer_Abort)); // the controller keeps its project
    QVERIFY(rig.mQuestions.mTold.isEmpty());
    QVERIFY(!rig.mRig.mSession.isModified());
  }

  void deletingTheDialogCancels() {
    Commands_Rig rig;
    QVERIFY(rig.goOnline());
    rig.mSettings.setValue(Setting::AskBeforeWriteBootProject, 0);
    rig.mCommands->writeProject();
    QVERIFY(rig.isHeard(Program_Begin));
    delete rig.mWindow.findChild<Exchange_Dialog*>();
    QVERIFY(rig.isHeard(Transfer_Abort));
    QVERIFY(!rig.mCommands->isBusy());
  }

  void deletingTheLinkEndsAll() {
    Session_Rig session;
    QVERIFY(session.create());
    Commands_Rig rig;
    auto link = std::make_unique<Controller_Link>(session.mSession);
    Controller_Commands commands(session.mSession, rig.mSettings, *link, rig.mWindow, &rig.mQuestions);
    link->connectTo(rig.mPeer.connection());
    QVERIFY(QTest::qWaitFor([&] { return link->isOnline(); }));
    rig.mSettings.setValue(Setting::AskBeforeWriteBootProject, 0);
    commands.writeProject();
    QVERIFY(rig.isHeard(Program_Begin));
    link.reset();
    QVERIFY(!commands.isBusy());
  }

  void projectIsWrittenAndTold() {
    Commands_Rig rig;
    QVERIFY(rig.goOnline());
    DB_Project told;
    told.mGeneration = 7;
    rig.mAnswers = {{Program_End, {{Program_Staged, {}}}},
                    {Project_Start, {{Project_Started, told.toData() + '\0'}}},
                    {Compact, {{Compacted, {}}}}};
    rig.mQuestions.mAnswers = {u"Ja"_s};
    QSignalSpy written(rig.mCommands.get(), &Controller_Commands::projectWritten);
    rig.mCommands->writeProject();
    QVERIFY(rig.isHeard(Project_Closed));
    QVERIFY(rig.isIdle());
    QCOMPARE(rig.mQuestions.mTold,
             (QStringList{u"? Das Projekt an der Steuerung wird durch das lokale Projekt ersetzt.\nFortfahren?"_s,
                          u"Projekt erfolgreich gespeichert"_s}));
    QCOMPARE(written.value(0).value(0).toInt(), 7);
  }

  void askedBeforeWriting_data() {
    QTest::addColumn<int>("setting");
    QTest::addColumn<qint64>("sinceToolCall"); ///< -1: none was
    QTest::addColumn<bool>("isAsked");
    QTest::newRow("user") << 1 << qint64(-1) << true;
    QTest::newRow("user, not wanted") << 0 << qint64(-1) << false;
    QTest::newRow("assistant just now") << 1 << qint64(14'999) << false;
    QTest::newRow("assistant long ago") << 1 << qint64(15'001) << true;
  }
  void askedBeforeWriting() {
    QFETCH(int, setting);
    QFETCH(qint64, sinceToolCall);
    QFETCH(bool, isAsked);
    Commands_Rig rig;
    rig.mSettings.setValue(Setting::AskBeforeWriteBootProject, setting);
    Session_State state;
    constexpr qint64 then = 1'000'000;
    if (sinceToolCall >= 0) {
      state.beginToolCall(then);
      state.endToolCall(then);
    }
    QCOMPARE(Dev_Write_Persistent_Project_Dlg::mustAsk(rig.mSettings, state, then + sinceToolCall), isAsked);
  }

  void projectIsLoadedIntoAFile() {
    Commands_Rig rig;
    QVERIFY(rig.goOnline());
    const auto image = Project_Image::whole(rig.mRig.mSession.database());
    QVERIFY(image);
    rig.mAnswers[Load] = Commands_Rig::stream(Load_Begin, Load_Data, image->toBytes());
    const QString path = rig.mRig.folder() + u"/geladen"_s;
    // A project that is open here or elsewhere is not replaced; a name without an ending gets one.
    Session_State elsewhere;
    Project_Session another(elsewhere);
    const QString used = rig.mRig.folder() + u"/anderes.zpro"_s;
    QVERIFY(another.create(used, {}));
    rig.mQuestions.mAnswers = {rig.mRig.path(), used, path};
    QSignalSpy loaded(rig.mCommands.get(), &Controller_Commands::projectLoaded);
    rig.mCommands->downloadProject();
    QVERIFY(loaded.wait());
    QCOMPARE(loaded.value(0).value(0).toString(), path + u".zpro"_s);
    QCOMPARE(rig.mPeer.last(Load), Commands_Rig::text(u"project"_s));
    QCOMPARE(rig.mQuestions.mTold.size(), 2);
    QVERIFY(rig.mQuestions.mTold.at(1).contains(u"in einem anderen Studio geöffnet"));
    Session_State state;
    Project_Session other(state);
    QVERIFY2(other.open(path + u".zpro"_s), qPrintable(other.lastError()));
    QCOMPARE(Project_Image::whole(other.database())->toBytes(), image->toBytes());
  }

  void valuesGoIntoAFileAndBack() {
    Commands_Rig rig;
    QVERIFY(rig.goOnline());
    QByteArray bytes;
    for (int sub = 0; sub < 255; ++sub) {
      bytes += "1/2/" + QByteArray::number(sub) + ';' + QByteArray(500, '0') + '\n';
    }
    rig.mAnswers[Persistent_Load] = Commands_Rig::stream(Persistent_Load_Begin, Persistent_Load_Data, bytes);
    const QString path = rig.mRig.folder() + u"/werte.zval"_s;
    rig.mQuestions.mAnswers = {u"Ja"_s, path};
    rig.mCommands->downloadPersistentValues();
    QVERIFY(QTest::qWaitFor([&] { return rig.mQuestions.mTold.size() == 2; }));
    QCOMPARE(rig.mQuestions.mTold.at(0), u"? Persistente Werte aus Steuerung laden?"_s);
    QCOMPARE(Session_Rig::bytesOf(path), bytes);

    QByteArray sent;
    rig.mQuestions.mAnswers = {path, u"Ja"_s};
    rig.mCommands->uploadPersistentValues();
    QVERIFY(QTest::qWaitFor([&] {
      sent.clear();
      for (const Scripted_Peer::Message& message : rig.mPeer.mMessages) {
        sent += message.mCommand == Persistent_Send_Data ? message.mData : QByteArray();
      }
      return sent.size() == bytes.size();
    }));
    QCOMPARE(sent, bytes);
    rig.mPeer.send(Persistent_Taken, Commands_Rig::text(u"12"_s));
    QVERIFY(rig.isTold(u"Die Steuerung hat 12 persistente Werte übernommen."_s));
  }

  /// What is no list of values does not travel.
  void otherFilesStayHere() {
    Commands_Rig rig;
    QVERIFY(rig.goOnline());
    rig.mQuestions.mAnswers = {rig.mRig.path(), u"Ja"_s};
    rig.mCommands->uploadPersistentValues();
    QVERIFY(rig.mQuestions.mTold.value(0).startsWith(u"Zeile 1 der persistenten Werte"));
    QVERIFY(!rig.mCommands->isBusy());
    QCOMPARE(rig.mPeer.count(Persistent_Send_Begin), 0);
  }

  /// Nobody here knows which project the controller runs then.
  void cancelledWhileItStarts() {
    Commands_Rig rig;
    QVERIFY(rig.goOnline());
    rig.mAnswers = {{Program_End, {{Program_Staged, {}}}}};
    rig.mQuestions.mAnswers = {u"Ja"_s};
    rig.mCommands->writeProject();
    QVERIFY(rig.isHeard(Project_Start));
    rig.mWindow.findChild<Exchange_Dialog*>()->reject();
    QVERIFY(rig.isIdle());
    QVERIFY(rig.mQuestions.mTold.constLast().startsWith(u"Die Steuerung hat den Start des Projekts noch nicht"));
  }

  void clocks_data() {
    QTest::addColumn<qint64>("difference");
    QTest::addColumn<QString>("text");
    QTest::newRow("less than is seen") << qint64(-499) << u"geht gleich"_s;
    QTest::newRow("seconds ahead") << qint64(12'340) << u"geht 12,3 s vor"_s;
    QTest::newRow("minutes behind") << qint64(-125'000) << u"geht 2 min 5 s nach"_s;
    QTest::newRow("hours") << qint64(7'500'000) << u"geht 2 h 5 min vor"_s;
    QTest::newRow("days") << qint64(-180'000'000) << u"geht 2 d 2 h nach"_s;
  }
  void clocks() {
    QFETCH(qint64, difference);
    QLocale::setDefault(QLocale(QLocale::German));
    Controller_Clock clock;
    clock.set(10'000 + difference, 9'000, 11'000); // the way there and back took two seconds
    QCOMPARE(clock.differenceMs(), difference);
    QCOMPARE(clock.at(50'000), 50'000 + difference);
    QTEST(Controller_Clock::differenceText(clock.differenceMs()), "text");
  }

  void namesOfFiles_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << u"Haus Süd"_s << u"Haus Süd"_s;
    QTest::newRow("folders") << u"../etc/passwd"_s << u"etc passwd"_s;
    QTest::newRow("nothing left") << u"..\\\n"_s << u"Projekt"_s;
    QTest::newRow("forbidden elsewhere") << u"a:b*c?"_s << u"a b c"_s;
  }
  void namesOfFiles() {
    QFETCH(QString, text);
    QTEST(Controller_File::nameOf(text), "name");
  }
};

QTEST_MAIN(Controller_Commands_Test)
#include "Controller_Commands_Test.moc"
