#include "net/Network_Frame.h"
#include "simulator/Simulator_Command_Line.h"
#include "simulator/Simulator_Faults.h"
#include "simulator/Simulator_Frame_Reader.h"

#include <QtTest>

class Simulator_Faults_Test : public QObject {
  Q_OBJECT

private slots:
  void arguments_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");
    const auto row = [](const char* name, const QStringList& arguments, const QString& error) {
      QTest::newRow(name) << arguments << error;
    };
    row("none", {}, {});
    row("all kinds", {"--port", "0", "--name=Haus", "--log", "--fault", "garbage=3@13", "--cycle", "50"}, {});
    row("unknown", {"--prot"}, QStringLiteral("Unbekannte Option --prot."));
    row("no value", {"--port"}, QStringLiteral("Die Option --port braucht einen Wert."));
    row("port too high", {"--port=65536"}, QStringLiteral("Die Option --port nimmt den Wert \"65536\" nicht an."));
    row("no address", {"--listen", "haus"}, QStringLiteral("Die Option --listen nimmt den Wert \"haus\" nicht an."));
    for (const char* const fault : {"magic=1", "garbage", "garbage=-1", "close=x", "noise", "bytes@", "mute=1@2@3"}) {
      row(fault, {"--fault", QString::fromLatin1(fault)},
          QStringLiteral("Die Option --fault nimmt den Wert \"%1\" nicht an.").arg(QLatin1String(fault)));
    }
  }

  void arguments() {
    QFETCH(QStringList, arguments);
    QFETCH(QString, error);
    QCOMPARE(Simulator_Command_Line::parse(arguments).mError, error);
  }

  void relayHasItsPort() {
    QCOMPARE(Simulator_Command_Line::parse({"--relay"}).mOptions.mPort, quint16(10003));
    QCOMPARE(Simulator_Command_Line::parse({"--relay", "--port", "7"}).mOptions.mPort, quint16(7));
  }

  /// What is sent with faults holds the message whole, and only that concerns which should.
  void pieces() {
    Simulator_Faults faults;
    QVERIFY(faults.add(QStringLiteral("pause-header=10")) && faults.add(QStringLiteral("garbage=32@13")));
    const QByteArray message = Network_Frame::pack(13, QByteArray(20, 'x'));
    for (const quint32 command : {13U, 14U}) {
      const QList<Simulator_Faults::Piece> pieces = faults.pieces(command, message);
      QByteArray all;
      for (const Simulator_Faults::Piece& piece : pieces) {
        all += piece.mBytes;
      }
      QCOMPARE(all.size(), message.size() + (command == 13 ? 32 : 0));
      QVERIFY(all.endsWith(message));
      QCOMPARE(pieces.last().mDelayMs, 10);
    }
  }

  /// However the bytes are cut, the same messages come out; a header that is none takes what is buffered with it.
  void reading_data() {
    QTest::addColumn<int>("cut");
    for (const int cut : {1, 15, 16, 31, 32, 33, 47, 1000}) {
      QTest::addRow("%d", cut) << cut;
    }
  }

  void reading() {
    QFETCH(int, cut);
    const QByteArray wire = Network_Frame::pack(7, {}) + Network_Frame::pack(10, "abc") + Network_Frame::pack(21, {});
    Simulator_Frame_Reader reader;
    QList<QByteArray> payloads;
    for (qsizetype at = 0; at < wire.size(); at += cut) {
      reader.append(QByteArrayView(wire).sliced(at, std::min<qsizetype>(cut, wire.size() - at)));
      while (const auto message = reader.next()) {
        payloads.append(message->mPayload);
      }
    }
    QCOMPARE(payloads, QList<QByteArray>({QByteArray(), "abc", QByteArray()}));
    reader.append(QByteArray(32, 'x') + wire);
    QVERIFY(!reader.next());
    QCOMPARE(reader.dropped(), 32 + wire.size());
    reader.append(wire);
    QVERIFY(reader.next());
  }

  void tooLong() {
    Simulator_Frame_Reader reader;
    reader.setMostPayload(64);
    reader.append(Network_Frame::pack(Network_Message::make(10, 80), {}));
    QVERIFY(!reader.next());
    QVERIFY(reader.isTooLong());
  }
};

QTEST_GUILESS_MAIN(Simulator_Faults_Test)
#include "Simulator_Faults_Test.moc"
