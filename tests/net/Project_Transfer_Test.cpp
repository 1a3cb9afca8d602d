#include "db/Project_Image.h"
#include "net/Project_Transfer.h"
#include "tests/db/Project_Dump.h"
#include "tests/db/Project_Sample.h"
#include "tests/net/Transfer_Rig.h"

using namespace Controller_Command;
using End = Controller_Exchange::End;
using List = Transfer_Rig::List;

namespace {

const List cProgram = {Program_Begin, Program_Data, Program_End};
const List cRecords = {Record_Project, Record_Connections, Record_Style,  Record_M8800,
                       Record_Mail,    Record_Statistic,   Record_TgmMon, Project_Start};
const List cWithFiles =
    cProgram + List{Project_Begin} + cRecords + List{Resources_Begin, Resource, Resource, Compact, Project_Closed};

} // namespace

class Project_Transfer_Test : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() {
    mRig = std::make_unique<Transfer_Rig>();
    mLongName = QString(300, u'n');
  }
  void init() {
    QVERIFY(store().ressourceDeleteAll());
    mTransfer.reset();
    QVERIFY(mRig->connectClient());
  }

  void wire_data() {
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<bool>("clearFirst");
    QTest::addColumn<List>("commands");
    const List tail = List{Project_Begin} + cRecords + List{Compact, Project_Closed};
    QTest::newRow("two files, one empty") << QStringList{"a.png", mLongName} << false << cWithFiles;
    QTest::newRow("empty file only") << QStringList{} << false << cProgram + tail;
    QTest::newRow("cleared first") << QStringList{} << true << cProgram + List{Project_Clear} + tail;
  }

  void wire() {
    QFETCH(QStringList, files);
    QFETCH(bool, clearFirst);
    QFETCH(List, commands);
    addFiles(files);
    const int generation = mRig->mGeneration + 1;
    const size_t steps = mRig->mSession.history().position();
    QCOMPARE(run({clearFirst}), End::Done);
    QCOMPARE(mRig->commands(), commands);
    QCOMPARE(mTransfer->generation(), generation);

    const ProjectDatabase& database = store();
    QByteArray sent = mRig->mPeer.last(Program_Data);
    QCOMPARE(sent, Project_Image::program(database).toBytes());
    const std::array<std::pair<quint32, const DB_Data_Base*>, 6> records = {{{105, &database.mConnections},
                                                                             {104, &database.mStyle},
                                                                             {350, &database.mM8800},
                                                                             {210, &database.mMail},
                                                                             {106, &database.mStatistic},
                                                                             {107, &database.mTgmMon}}};
    for (const auto& [command, record] : records) {
      QCOMPARE(mRig->mPeer.last(command), record->toData() + '\0');
    }
    DB_Project before;
    before.setData(mRig->mPeer.last(Record_Project).chopped(1));
    QCOMPARE(before.mGeneration, generation - 1);
    if (!files.isEmpty()) {
      QCOMPARE(mRig->mPeer.last(Resource), QByteArray(255, 'n') + "Inhalt");
    }

    // The controller's name for it is saved, and neither a step nor a change.
    QVERIFY(!mRig->mSession.isModified() && mRig->mSession.history().position() == steps);
    ProjectDatabase saved;
    QVERIFY(saved.openProjectReadOnly(mRig->mSession.path()));
    QCOMPARE(saved.mProject.mControllerProjectId, QStringLiteral("K-4711"));
    QCOMPARE(saved.mProject.mGeneration, generation);
    QCOMPARE(Project_Dump::project(saved), Project_Dump::project(store()));

    QStringList labels = {"Projekt lokal speichern 10/100",
                          "Programm übertragen 10/100",
                          "Programm übertragen 50/100",
                          "Steuerung stopp 50/100",
                          "Projekt... 60/100",
                          "Projekt übertragen, Runtime start... 60/100",
                          "Projekt erfolgreich auf Steuerung übertragen 80/100"};
    labels += files.isEmpty()
                  ? QStringList{"Datenbankoptimierung... 80/100"}
                  : QStringList{"Übertrage Ressourcen 0/2", "Übertrage Ressourcen 1/2", "Übertrage Ressourcen 2/2",
                                "Alle Ressourcen übertragen 2/2", "Projektoptimierung 2/2"};
    labels += "Projekt erfolgreich gespeichert 100/100";
    QCOMPARE(mRig->mLabels, labels);
  }

  void givenUp_data() {
    QTest::addColumn<int>("message");
    QTest::addColumn<End>("end");
    for (int i = 0; i < cWithFiles.size() - 1; ++i) {
      const quint32 command = cWithFiles[i];
      QTest::addRow("cancelled at %d, %u", i, command) << i << End::Cancelled;
      QTest::addRow("link lost at %d, %u", i, command) << i << End::NoLink;
      QTest::addRow("silent from %d, %u", i, command) << i << End::NoAnswer;
    }
  }

  /// At each message: it ends soon, the project here is saved and the controller told, and a second attempt succeeds.
  void givenUp() {
    QFETCH(int, message);
    QFETCH(End, end);
    addFiles({"a.png", "b.wav"});
    mRig->mBefore = [this, message, end](const Scripted_Peer::Message&) {
      if (mRig->mPeer.mMessages.size() != message + 1) {
        return;
      }
      mRig->mIsSilent = true;
      if (end == End::Cancelled) {
        mTransfer->cancel();
      } else if (end == End::NoLink) {
        mRig->mPeer.close();
      }
    };
    QElapsedTimer time;
    time.start();
    QCOMPARE(run({}, end == End::NoAnswer ? 150 : 10'000), end);
    QVERIFY(time.elapsed() < 2'000);
    QCOMPARE(mTransfer->errorText(), end == End::NoLink     ? "Keine Verbindung zur Steuerung"
                                     : end == End::NoAnswer ? "Keine Antwort der Steuerung"
                                                            : "");
    const bool hasStarted = cWithFiles.indexOf(Project_Start) < message;
    QCOMPARE(mTransfer->hasStarted(), hasStarted);
    const bool isTold = !hasStarted && end != End::NoLink;
    QCOMPARE(mRig->commands().contains(Transfer_Abort), isTold);
    QVERIFY(!mRig->commands().contains(Project_Closed));
    QVERIFY(!mRig->mSession.isModified());
    ProjectDatabase saved;
    QVERIFY(saved.openProjectReadOnly(mRig->mSession.path()));
    QCOMPARE(saved.mProject.mGeneration, mRig->mGeneration);

    QVERIFY(mRig->connectClient());
    QCOMPARE(run({}), End::Done);
    QCOMPARE(mRig->commands(), cWithFiles);
  }

  void replies_data() {
    QTest::addColumn<quint32>("at");
    QTest::addColumn<QList<quint32>>("replies");
    QTest::addColumn<End>("end");
    QTest::newRow("staged before it is") << quint32(Program_Begin) << List{Program_Staged} << End::Done;
    QTest::newRow("started too early") << quint32(Program_End) << List{Project_Started} << End::Done;
    QTest::newRow("started while records come") << quint32(Record_Mail) << List{Project_Started} << End::Done;
    QTest::newRow("started twice") << quint32(Resources_Begin) << List{Project_Started} << End::Done;
    QTest::newRow("stored before the first") << quint32(Project_Start) << List{Resource_Stored} << End::Done;
    QTest::newRow("stored before any was sent") << quint32(Resources_Begin) << List{Resource_Stored} << End::Done;
    QTest::newRow("stored too often") << quint32(Compact) << List(5, Resource_Stored) << End::Done;
    QTest::newRow("compacted early") << quint32(Resource) << List{Compacted} << End::Done;
    QTest::newRow("refused while staging") << quint32(Program_Begin) << List{Refused} << End::Refused;
    QTest::newRow("refused at the start") << quint32(Project_Start) << List{Refused} << End::Refused;
    QTest::newRow("a resource refused") << quint32(Resource) << List{Refused} << End::Refused;
  }

  /// Replies out of order change nothing.
  void replies() {
    QFETCH(quint32, at);
    QFETCH(List, replies);
    QFETCH(End, end);
    addFiles({"a.png", "b.wav"});
    mRig->mBefore = [this, at, replies](const Scripted_Peer::Message& message) {
      if (message.mCommand == at && mRig->mPeer.count(at) == 1) {
        for (const quint32 reply : replies) {
          DB_Refusal refusal;
          refusal.mCommand = static_cast<int>(at);
          refusal.mReason = QStringLiteral("Kein Platz.");
          mRig->mPeer.send(reply, reply == Refused ? refusal.toData() : QByteArray("x", 2));
        }
      }
    };
    QCOMPARE(run({}, 2'000), end);
    if (end == End::Done) {
      QCOMPARE(mRig->commands(), cWithFiles);
      QCOMPARE(mRig->mLabels.count("Übertrage Ressourcen 1/2"), 1);
    } else {
      QCOMPARE(mTransfer->errorText(), QStringLiteral("Kein Platz."));
      QCOMPARE(mRig->commands().contains(Transfer_Abort), !mTransfer->hasStarted());
    }
  }

  /// They are none, whatever they stand for.
  void repliesWithoutContent() {
    addFiles({"a.png", "b.wav"});
    mRig->mBefore = [this](const Scripted_Peer::Message& message) {
      if (message.mCommand == Project_Start) {
        mRig->mPeer.send(Project_Started);
        mRig->mPeer.send(Project_Started, QByteArray(1, '\0'));
      } else if (message.mCommand == Resource) {
        mRig->mPeer.send(Resource_Stored);
      }
    };
    QCOMPARE(run({}), End::Done);
    QCOMPARE(mRig->commands(), cWithFiles);
    QCOMPARE(store().mProject.mControllerProjectId, QStringLiteral("K-4711"));
    QCOMPARE(mRig->mLabels.count("Übertrage Ressourcen 1/2"), 1);
  }

  void savingFails() {
    const QString path = mRig->mSession.path();
    const QByteArray before = Session_Rig::bytesOf(path);
    QVERIFY(QFile::remove(path) && QDir().mkpath(path));
    QCOMPARE(run({}), End::Failed);
    QVERIFY(mTransfer->errorText().startsWith(u"Das Projekt konnte nicht gespeichert werden"));
    QVERIFY(mRig->commands().isEmpty());
    QVERIFY(QDir().rmdir(path) && Project_Sample::writeFile(path, before));
  }

  /// What is edited meanwhile belongs to the next write; a resource that goes meanwhile is not waited for.
  void editedMeanwhile() {
    addFiles({"a.png", "b.wav", "c.wav"});
    const QString server = store().mMail.mServer;
    mRig->mBefore = [this](const Scripted_Peer::Message& message) {
      if (message.mCommand == Project_Begin) {
        store().mMail.mServer += QStringLiteral("neu");
      } else if (message.mCommand == Project_Start) {
        QTimer::singleShot(0, this, [this] { store().ressourceDelete("b.wav"); });
      }
    };
    connect(&mRig->mClient, qOverload<Network_Message*, uchar*>(&Main_Network_Client::onProcessNetworkRead), this,
            [this](const Network_Message* message) {
              if (message->mCommand == Project_Started) {
                QTimer::singleShot(0, this, [this] { store().ressourceDelete("c.wav"); });
              }
            });
    QCOMPARE(run({}), End::Done);
    disconnect(&mRig->mClient, nullptr, this, nullptr);
    DB_SMTP_Mail sent;
    sent.setData(mRig->mPeer.last(Record_Mail).chopped(1));
    QCOMPARE(sent.mServer, server);
    QVERIFY(mRig->mPeer.count(Resource) < 3);
  }

  void projectClosedMeanwhile() {
    mRig->mBefore = [this](const Scripted_Peer::Message& message) {
      if (message.mCommand == Record_Mail) {
        mRig->mSession.close();
      }
    };
    QCOMPARE(run({}), End::Failed);
    QCOMPARE(mTransfer->errorText(), QStringLiteral("Das Projekt wurde geschlossen."));
    QVERIFY(mRig->commands().contains(Transfer_Abort));
    QCOMPARE(run({}), End::Failed);
    QCOMPARE(mTransfer->errorText(), QStringLiteral("Es ist kein Projekt geöffnet."));
  }

private:
  ProjectDatabase& store() { return mRig->mSession.database(); }

  /// And an empty one, which no studio makes.
  void addFiles(const QStringList& names) {
    QVERIFY(store().execute(QByteArray("INSERT INTO ") + DB_Tables::quoted(DB_Table::Resources) +
                            " VALUES('leer.png',x'')"));
    for (const QString& name : names) {
      QVERIFY(store().ressourceWriteRaw(name, "Inhalt"));
    }
  }

  End run(Project_Transfer::Options options, int timeout = 10'000) {
    mTransfer = std::make_unique<Project_Transfer>(mRig->mClient, mRig->mSession, options);
    mTransfer->setTimeout(timeout);
    return mRig->run(*mTransfer);
  }

  std::unique_ptr<Transfer_Rig> mRig;
  std::unique_ptr<Project_Transfer> mTransfer;
  QString mLongName;
};

QTEST_GUILESS_MAIN(Project_Transfer_Test)
#include "Project_Transfer_Test.moc"
