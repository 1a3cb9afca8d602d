// Faults of the controller against what the studio does with it: nothing hangs or crashes, and everything ends with
// success or with the text that is due. With STUDIO_FAULT_MATRIX=FILE what came of each is written there as a table.
#include "db/Project_Image.h"
#include "net/Controller_Command.h"
#include "net/Controller_Request.h"
#include "net/Persistent_Values.h"
#include "net/Program_Transfer.h"
#include "net/Project_Transfer.h"
#include "net/Stream_Load.h"
#include "simulator/Simulator_Backups.h"
#include "tests/simulator/Simulator_Rig.h"

#include <QtTest>

using namespace Controller_Command;
using Telegram_Record = DB_Address_Network_Telegram;

namespace {

const QString cDone;
const QString cNoAnswer = QStringLiteral("Keine Antwort der Steuerung");
const QString cNoLink = QStringLiteral("Keine Verbindung zur Steuerung");
const QString cRefused = QStringLiteral("auf Wunsch");
constexpr int cShortMs = 150;
constexpr int cLongMs = 5000;
constexpr int cTelegrams = 4;
constexpr int cLostMs = 2000; // so soon a lost link ends everything
constexpr qsizetype cResource = 6000;

using Make = std::unique_ptr<Controller_Exchange> (*)(Simulator_Rig& rig);
/// Whether all of the answer arrived; the generation is that of the controller's project before.
using Proof = bool (*)(Simulator_Rig& rig, Controller_Exchange& exchange, int generation);

struct Operation {
  const char* mName;
  quint32 mCommand; ///< the one that is answered
  Make mMake;
  Proof mProof;
};

template <class Record>
bool isAnswer(Controller_Exchange& exchange, const Record& expected) {
  return static_cast<Controller_Request&>(exchange).replyRecord<Record>().isEqual(expected);
}

QByteArray loaded(Controller_Exchange& exchange) {
  return static_cast<Stream_Load&>(exchange).bytes();
}

std::unique_ptr<Controller_Exchange> streamLoad(Simulator_Rig& rig, quint32 command, quint32 begin, quint32 data,
                                                const QString& text) {
  return std::make_unique<Stream_Load>(rig.client(), Stream_Load::What{command, text, begin, data, {}, {}});
}

const Operation cOperations[] = {
    {"information", Information,
     [](Simulator_Rig& rig) -> std::unique_ptr<Controller_Exchange> {
       return std::make_unique<Controller_Request>(rig.client(), Information, QByteArray(), Information_Reply,
                                                   QString());
     },
     [](Simulator_Rig& rig, Controller_Exchange& exchange, int) {
       return isAnswer(exchange, rig.controller().informations());
     }},
    {"backup list", Backup_List,
     [](Simulator_Rig& rig) -> std::unique_ptr<Controller_Exchange> {
       return std::make_unique<Controller_Request>(rig.client(), Backup_List, QByteArray(), Backup_List_Reply,
                                                   QString());
     },
     [](Simulator_Rig& rig, Controller_Exchange& exchange, int) {
       return isAnswer(exchange, Simulator_Backups(rig.controller()).list());
     }},
    {"load project", Load,
     [](Simulator_Rig& rig) { return streamLoad(rig, Load, Load_Begin, Load_Data, QStringLiteral("project")); },
     [](Simulator_Rig& rig, Controller_Exchange& exchange, int) {
       return loaded(exchange) == rig.controller().project().image();
     }},
    {"load values", Persistent_Load,
     [](Simulator_Rig& rig) {
       return streamLoad(rig, Persistent_Load, Persistent_Load_Begin, Persistent_Load_Data, {});
     },
     [](Simulator_Rig& rig, Controller_Exchange& exchange, int) {
       return !loaded(exchange).isEmpty() && loaded(exchange) == rig.controller().values().persistent().toBytes();
     }},
    {"program", Program_Start,
     [](Simulator_Rig& rig) -> std::unique_ptr<Controller_Exchange> {
       return std::make_unique<Program_Transfer>(rig.client(), rig.mSession, Program_Transfer::Options{true, true});
     },
     [](Simulator_Rig& rig, Controller_Exchange& exchange, int) {
       return static_cast<Program_Transfer&>(exchange).wasSent() &&
              rig.controller().project().mProgram == Project_Image::program(rig.mSession.database()).toBytes();
     }},
    {"project write", Project_Start,
     [](Simulator_Rig& rig) -> std::unique_ptr<Controller_Exchange> {
       return std::make_unique<Project_Transfer>(rig.client(), rig.mSession, Project_Transfer::Options());
     },
     [](Simulator_Rig& rig, Controller_Exchange& exchange, int generation) {
       return rig.controller().project().header().mGeneration == generation + 1 &&
              static_cast<Project_Transfer&>(exchange).generation() == generation + 1 &&
              rig.controller().project().mResources.value("plan.png").size() == cResource;
     }},
};

struct Fault {
  const char* mName;
  QStringList mSpecs; ///< %1 stands for the operation's command
  QString mOutcome;
};

const Fault cFaults[] = {
    {"bytes", {QStringLiteral("bytes")}, cDone},
    {"together", {QStringLiteral("together=30")}, cDone},
    {"pause in header", {QStringLiteral("pause-header=70")}, cDone},
    {"pause in payload", {QStringLiteral("pause-payload=70")}, cDone},
    {"wrong magic", {QStringLiteral("magic")}, cDone},
    {"odd length", {QStringLiteral("length-odd")}, cDone},
    {"short length", {QStringLiteral("length-short")}, cDone},
    {"huge length", {QStringLiteral("length-huge")}, cDone},
    {"garbage", {QStringLiteral("garbage=64")}, cDone},
    {"behind wrong magic", {QStringLiteral("magic"), QStringLiteral("gap=0")}, cNoAnswer},
    {"silence", {QStringLiteral("silence")}, cNoAnswer},
    {"mute", {QStringLiteral("mute=%1")}, cNoAnswer},
    {"refusal", {QStringLiteral("refuse=%1")}, cRefused},
    {"close", {QStringLiteral("close=1")}, cNoLink},
};

bool addAll(Simulator_Rig& rig, const QStringList& specs, quint32 command) {
  return std::ranges::all_of(specs, [&](const QString& spec) {
    return rig.mServer.faults().add(spec.contains(u'%') ? spec.arg(command) : spec);
  });
}

} // namespace

class Fault_Matrix_Test : public QObject {
  Q_OBJECT

private slots:
  void operations_data() {
    QTest::addColumn<int>("operation");
    QTest::addColumn<int>("fault");
    for (size_t operation = 0; operation < std::size(cOperations); ++operation) {
      for (size_t fault = 0; fault < std::size(cFaults); ++fault) {
        QTest::addRow("%s, %s", cOperations[operation].mName, cFaults[fault].mName)
            << static_cast<int>(operation) << static_cast<int>(fault);
      }
    }
  }

  void operations() {
    QFETCH(int, operation);
    QFETCH(int, fault);
    const Operation& wanted = cOperations[operation];
    const Fault& wrong = cFaults[fault];
    Simulator_Rig& rig = *mRig;
    QVERIFY(rig.goOnline());
    QVERIFY(addAll(rig, wrong.mSpecs, wanted.mCommand));
    const int generation = rig.controller().project().header().mGeneration;
    const std::unique_ptr<Controller_Exchange> exchange = wanted.mMake(rig);
    exchange->setTimeout(wrong.mOutcome == cNoAnswer ? cShortMs : cLongMs);
    int ends = 0;
    connect(exchange.get(), &Controller_Exchange::finished, this, [&ends] { ++ends; });
    exchange->start();
    const int most = wrong.mOutcome == cNoLink ? cLostMs : cLongMs + cShortMs;
    QVERIFY(Simulator_Rig::waitFor([&ends] { return ends > 0; }, most));
    mOutcomes.append(exchange->errorText().isEmpty() ? QStringLiteral("done") : exchange->errorText());
    QVERIFY(exchange->isFinished() && rig.mServer.faults().hits() > 0);
    QCOMPARE(rig.mLink.isOnline(), wrong.mOutcome != cNoLink);
    rig.mServer.faults().clear();
    if (wrong.mOutcome.isEmpty()) {
      QCOMPARE(exchange->errorText(), QString());
      QVERIFY(wanted.mProof(rig, *exchange, generation));
      return;
    }
    QVERIFY2(exchange->errorText().contains(wrong.mOutcome), qPrintable(exchange->errorText()));
    if (wrong.mOutcome != cNoLink) {
      // What was sent behind a refusal, or comes too late, belongs to nobody any more.
      rig.mLink.disconnectLink();
    }
    // The same again, on a controller that behaves.
    QVERIFY(rig.goOnline());
    QVERIFY(Simulator_Rig::waitFor([&rig] { return rig.controller().isRunning(); }));
    const int generationAgain = rig.controller().project().header().mGeneration;
    const std::unique_ptr<Controller_Exchange> again = wanted.mMake(rig);
    again->start();
    QVERIFY(Simulator_Rig::waitFor([&again] { return again->isFinished(); }));
    QCOMPARE(again->errorText(), QString());
    QVERIFY(wanted.mProof(rig, *again, generationAgain));
    QCOMPARE(ends, 1);
  }

  void logOn_data() {
    QTest::addColumn<QStringList>("faults");
    QTest::addColumn<QString>("outcome");
    const QString ended = QStringLiteral("hat die Verbindung bei der Anmeldung beendet");
    for (const Fault& fault : cFaults) {
      QTest::addRow("%s", fault.mName) << fault.mSpecs << (fault.mOutcome == cNoLink ? ended : fault.mOutcome);
    }
    QTest::addRow("close in header") << QStringList(QStringLiteral("close=20")) << ended;
    QTest::addRow("close in payload") << QStringList(QStringLiteral("close=40")) << ended;
  }

  void logOn() {
    QFETCH(QStringList, faults);
    QFETCH(QString, outcome);
    Simulator_Rig& rig = *mRig;
    rig.mLink.disconnectLink();
    QVERIFY(addAll(rig, faults, Log_On));
    rig.mLink.setLogOnTimeout(outcome == cNoAnswer ? cShortMs : cLongMs);
    QString reason;
    connect(&rig.mLink, &Controller_Link::refused, &mContext, [&reason](const QString& text) { reason = text; });
    rig.mLink.connectTo(rig.connection());
    QVERIFY(Simulator_Rig::waitFor([&] { return rig.mLink.isOnline() || !reason.isEmpty(); }));
    QCOMPARE(rig.mLink.isOnline(), outcome.isEmpty());
    QVERIFY(rig.mServer.faults().hits() > 0);
    QVERIFY2(reason.contains(outcome), qPrintable(reason));
  }

  void telegrams_data() {
    QTest::addColumn<QStringList>("faults");
    QTest::addColumn<bool>("doAllArrive");
    for (const Fault& fault : cFaults) {
      const bool isBehind = fault.mSpecs.contains(QStringLiteral("gap=0"));
      if (fault.mOutcome.isEmpty() || isBehind) {
        QTest::addRow("%s", fault.mName) << fault.mSpecs << !isBehind;
      }
    }
  }

  /// Every whole message arrives once and in order, unless it is buffered behind a wrong magic; then the next does.
  void telegrams() {
    QFETCH(QStringList, faults);
    QFETCH(bool, doAllArrive);
    Simulator_Rig& rig = *mRig;
    QVERIFY(rig.goOnline());
    QVERIFY(addAll(rig, faults, 0));
    QByteArray heard;
    connect(&rig.client(), qOverload<Telegram_Record>(&Main_Network_Client::onProcessNetworkRead), &mContext,
            [&heard](const Telegram_Record& telegram) {
              if (telegram.address() == Group_Address(7, 7, 7)) {
                heard += telegram.mData;
              }
            });
    QByteArray told;
    for (int i = 0; i < cTelegrams; ++i) {
      told += static_cast<char>(i);
      rig.controller().writeValue({7, 7, 7}, QByteArray(1, static_cast<char>(i)));
    }
    if (doAllArrive) {
      QTRY_COMPARE(heard, told);
      return;
    }
    QTest::qWait(cShortMs);
    QVERIFY(heard.size() < told.size());
    rig.mServer.faults().clear();
    rig.controller().writeValue({7, 7, 7}, QByteArray(1, 'x'));
    QTRY_VERIFY(heard.endsWith('x'));
  }

  /// A link that is lost in the middle of a long answer.
  void closeInMiddle() {
    Simulator_Rig& rig = *mRig;
    QVERIFY(rig.goOnline());
    QVERIFY(rig.mServer.faults().add(QStringLiteral("close=3000")));
    const auto load = cOperations[2].mMake(rig);
    load->start();
    QTRY_VERIFY(load->isFinished());
    QCOMPARE(load->errorText(), cNoLink);
  }

  void initTestCase() {
    mRig = std::make_unique<Simulator_Rig>();
    mRig->addAddress({1, 2, 3}, QStringLiteral("Licht"))->mDpt = {1, 1};
    QVERIFY(mRig->mSession.database().ressourceWriteRaw(QStringLiteral("plan.png"), QByteArray(cResource, 'p')));
    QVERIFY(mRig->goOnline());
    const auto write = cOperations[std::size(cOperations) - 1].mMake(*mRig);
    write->start();
    QTRY_VERIFY(write->isFinished());
    QCOMPARE(write->errorText(), QString());
    QCOMPARE(mRig->controller().project().mResources.size(), 1);
  }

  void cleanup() {
    mContext.disconnect();
    if (mRig) {
      disconnect(&mRig->client(), nullptr, &mContext, nullptr);
      disconnect(&mRig->mLink, nullptr, &mContext, nullptr);
      mRig->mServer.faults().clear();
      mRig->mLink.disconnectLink();
    }
  }

  /// A line for each operation, a column for each fault.
  void cleanupTestCase() {
    mRig.reset();
    QFile file(qEnvironmentVariable("STUDIO_FAULT_MATRIX"));
    if (file.fileName().isEmpty() ||
        mOutcomes.size() != static_cast<qsizetype>(std::size(cOperations) * std::size(cFaults))) {
      return;
    }
    QByteArray table = "| Fault |";
    for (const Operation& operation : cOperations) {
      table += QByteArray(" ") + operation.mName + " |";
    }
    table += "\n|---|" + QByteArray("---|").repeated(static_cast<qsizetype>(std::size(cOperations))) + '\n';
    for (size_t fault = 0; fault < std::size(cFaults); ++fault) {
      table += QByteArray("| ") + cFaults[fault].mName + " |";
      for (size_t operation = 0; operation < std::size(cOperations); ++operation) {
        table += ' ' + mOutcomes.at(static_cast<qsizetype>(operation * std::size(cFaults) + fault)).toUtf8() + " |";
      }
      table += '\n';
    }
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(table) == table.size());
  }

private:
  QStringList mOutcomes; ///< in the order of the rows
  QObject mContext;
  std::unique_ptr<Simulator_Rig> mRig;
};

QTEST_GUILESS_MAIN(Fault_Matrix_Test)
#include "Fault_Matrix_Test.moc"
