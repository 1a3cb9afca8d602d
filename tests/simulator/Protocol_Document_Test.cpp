#include "db/DB_Controller_Informations.h"
#include "net/Byte_Stream.h"
#include "net/Controller_Command.h"
#include "net/Controller_Records.h"
#include "net/DB_Address_Network_Telegram.h"
#include "net/DB_Discovery_Answer.h"
#include "net/Network_Frame.h"
#include "simulator/Simulator_Commands.h"

#include <QRegularExpression>
#include <QtTest>

/// The document that tells others how to write a controller says what the code does.
class Protocol_Document_Test : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() {
    QFile file(QFINDTESTDATA("../../docs/protocol.md"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    mText = QString::fromUtf8(file.readAll());
  }

  void example() {
    QByteArray bytes;
    static const QRegularExpression line(QStringLiteral("^    ((?:[0-9a-f]{2} ?){16})$"),
                                         QRegularExpression::MultilineOption);
    for (auto it = line.globalMatch(mText); it.hasNext();) {
      bytes += QByteArray::fromHex(it.next().captured(1).toLatin1());
    }
    using Telegram = DB_Address_Network_Telegram;
    const QByteArray telegram = Telegram::to({1, 2, 3}, Telegram::Write, QByteArray(1, '\1')).toBytes();
    const auto header = Network_Message::make(Controller_Command::Telegram, static_cast<quint32>(telegram.size()),
                                              1'767'225'600'250'000);
    const QByteArray clear = header.toBytes() + telegram.leftJustified(header.mPaddedLength, '\0');
    QCOMPARE(bytes.toHex(' '), (clear + Network_Frame::pack(header, telegram)).toHex(' '));
  }

  /// Each command that the stand-in answers is told of.
  void commands() {
    for (quint32 command = 0; command < 8000; ++command) {
      const QRegularExpression number(QStringLiteral("\\b%1\\b").arg(command));
      QVERIFY2(!Simulator_Commands::find(command) || mText.contains(number), qPrintable(QString::number(command)));
    }
  }

  /// So is each field of the records that only travel.
  void fields() {
    DB_Log_On logOn;
    DB_Refusal refusal;
    DB_Controller_Informations informations;
    DB_Controller_Project project;
    DB_Backup_List backups;
    DB_Group_Status group;
    DB_Network_Settings network;
    DB_Stream_Begin stream;
    DB_Discovery_Answer answer;
    for (DB_Data_Base* const record : std::initializer_list<DB_Data_Base*>{
             &logOn, &refusal, &informations, &project, &backups, &group, &network, &stream, &answer}) {
      const DB_Fields::Keys keys = DB_Fields::keys(*record);
      for (const QByteArray& key : keys.mPlain + keys.mLists) {
        const QByteArray name = key.startsWith("mProject.") ? "mProject." : key.split('.').last();
        QVERIFY2(mText.contains(QString::fromLatin1('`' + name)), key.constData());
      }
    }
  }

private:
  QString mText;
};

QTEST_GUILESS_MAIN(Protocol_Document_Test)
#include "Protocol_Document_Test.moc"
