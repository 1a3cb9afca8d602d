#include "base/Access_Key.h"
#include "base/App_Settings.h"
#include "net/Controller_Command.h"
#include "net/Controller_Link.h"
#include "net/dialogs/Connection_Test_View.h"
#include "net/dialogs/Dev_Connect_Progress_Dlg.h"
#include "net/dialogs/Dev_Connection_Assistant.h"
#include "net/dialogs/Dev_Select_Connection.h"
#include "net/dialogs/Main_Connection_Edit.h"
#include "tests/db/Session_Rig.h"
#include "tests/net/Scripted_Peer.h"
#include "ui/Checked_Line_Edit.h"

#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTextEdit>
#include <QTimer>
#include <QTreeView>
#include <QTreeWidget>
#include <QUdpSocket>

using namespace Qt::StringLiterals;

namespace Command = Controller_Command;

class Connection_Dialogs_Test : public QObject {
  Q_OBJECT

  struct Rig : Session_Rig {
    Rig() : mSettings(mTemp.filePath(u"a.ini"_s)), mLink(mSession) {
      mIsReady = create();
      mSettings.setText(Setting::DiscoveryAddresses, u"127.255.255.255"_s);
    }
    DB_Connections& connections() { return mSession.database().mConnections; }
    bool mIsReady = false;
    App_Settings mSettings;
    Controller_Link mLink;
  };

  /// By its text without the mark of the access key.
  static QPushButton* button(const QWidget& dialog, const QString& text) {
    for (QPushButton* const one : dialog.findChildren<QPushButton*>()) {
      if (QString(one->text()).remove(u'&') == text) {
        return one;
      }
    }
    return nullptr;
  }

  static QStringList names(const DB_Connections& connections) {
    QStringList names;
    for (const DB_Connections::ITEM& item : connections.mItems) {
      names.append(item.mName);
    }
    return names;
  }

private slots:
  void theListEditsAndFollows() {
    Rig rig;
    QVERIFY(rig.mIsReady);
    Dev_Select_Connection dialog(rig.mSession, rig.mSettings, rig.mLink, nullptr);
    dialog.show();
    QTreeView& list = *dialog.findChild<QTreeView*>();
    QSet<QChar> keys;
    for (const QPushButton* const one : dialog.findChildren<QPushButton*>()) {
      if (one->isVisible()) {
        const QChar key = Access_Key::of(one->text());
        QVERIFY2(!key.isNull() && !keys.contains(key), qPrintable(one->text()));
        keys.insert(key);
      }
    }
    QCOMPARE(list.model()->rowCount(), 1);
    button(dialog, u"Duplizieren"_s)->click();
    QCOMPARE(names(rig.connections()), (QStringList{u"Steuerung"_s, u"Steuerung 2"_s}));
    QVERIFY(!button(dialog, u"Nach unten"_s)->isEnabled()); // the copy is current, and last
    button(dialog, u"Auswählen"_s)->click();
    QCOMPARE(rig.connections().mSelected, 1);
    button(dialog, u"Nach oben"_s)->click();
    QCOMPARE(names(rig.connections()), (QStringList{u"Steuerung 2"_s, u"Steuerung"_s}));
    QCOMPARE(rig.connections().mSelected, 0);
    QCOMPARE(list.currentIndex().row(), 0);
    QVERIFY(rig.mSession.history().undo());
    QVERIFY(rig.mSession.history().undo());
    QCOMPARE(list.model()->index(0, 1).data().toString(), u"Steuerung"_s);
    QTest::keyClick(&list, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
    QVERIFY(QApplication::clipboard()->text().contains(u"172.31.1.100"_s));
    QVERIFY(!QApplication::clipboard()->text().contains(rig.connections().mItems.front().mPassword));
    QVERIFY(!button(dialog, u"Verbinden"_s)->isEnabled()); // two are selected
    rig.mState.setOperatingMode(true);
    for (const QString& text : {u"Neu ..."_s, u"Suchen ..."_s, u"Löschen"_s}) {
      QVERIFY2(!button(dialog, text)->isEnabled(), qPrintable(text));
    }
    rig.mState.setOperatingMode(false);
    button(dialog, u"Löschen"_s)->click();
    QVERIFY(rig.connections().mItems.empty());
    QVERIFY(button(dialog, u"Steuerung suchen ..."_s)->isVisible()); // the empty place offers it
    rig.mSession.close();
    QVERIFY(!dialog.isVisible());
  }

  void theEditorTakesOnlyWhatIsRight() {
    Rig rig;
    QVERIFY(rig.mIsReady);
    Main_Connection_Edit dialog(rig.mSession, rig.mLink, 0, nullptr);
    dialog.show();
    const QList<Checked_Line_Edit*> fields = dialog.findChildren<Checked_Line_Edit*>(); // name, address, DNS, ...
    Checked_Line_Edit& address = *fields.at(1);
    QPushButton& accept = *button(dialog, u"Übernehmen"_s);
    QCOMPARE(address.text(), u"172.31.1.100"_s);
    address.setText(u"172.31.1.100:0"_s);
    QVERIFY(!accept.isEnabled() && !button(dialog, u"Verbindung testen"_s)->isEnabled());
    QVERIFY(!address.reason().isEmpty());
    dialog.findChild<QComboBox*>()->setCurrentIndex(1);
    QVERIFY(!address.isEnabled() && address.isValid() && fields.at(2)->isEnabled());
    QVERIFY(!accept.isEnabled()); // without DNS name
    fields.at(2)->setText(u"haus.example"_s);
    fields.at(0)->setText(u" Haus "_s);
    accept.click();
    const DB_Connections::ITEM& item = rig.connections().mItems.front();
    QVERIFY(item.isRelay());
    QCOMPARE(item.mName, u"Haus"_s);
    QCOMPARE(item.mUser, u"root"_s);
    QVERIFY(rig.mSession.history().undo());
    QCOMPARE(item.mAddress, u"172.31.1.100"_s);
    QVERIFY(!item.isRelay());
    for (QLineEdit* const line : dialog.findChildren<QLineEdit*>()) {
      if (line->text() == item.mPassword) {
        line->selectAll();
        line->copy();
        QVERIFY(line->displayText() != item.mPassword);
        QVERIFY(QApplication::clipboard()->text() != item.mPassword);
      }
    }
  }

  void theAssistantFindsTestsAndAdds() {
    Rig rig;
    QVERIFY(rig.mIsReady);
    Scripted_Peer peer;
    peer.mOnMessage = [&peer](const Scripted_Peer::Message& message) {
      if (message.mCommand == Command::Connection_Check) {
        peer.send(Command::Connection_Check_Reply, "\0"_ba);
      }
    };
    QUdpSocket controller;
    QVERIFY(controller.bind(QHostAddress::AnyIPv4, 0, QUdpSocket::ShareAddress | QUdpSocket::ReuseAddressHint));
    const quint16 port = controller.localPort();
    Dev_Connection_Assistant dialog(rig.mSession, rig.mSettings, rig.mLink, {port, 20}, nullptr);
    dialog.show();
    QAbstractButton& next = *dialog.button(QWizard::NextButton);
    QVERIFY(!next.isEnabled());
    DB_Discovery_Answer answer;
    answer.mName = u"Keller"_s;
    answer.mSerialNumber = u"RZ-1"_s;
    answer.mPort = peer.port();
    controller.writeDatagram(answer.toData(), QHostAddress(u"127.255.255.255"_s), port);
    QTreeWidget& found = *dialog.findChild<QTreeWidget*>();
    QTRY_COMPARE(found.topLevelItemCount(), 1);
    QVERIFY(next.isEnabled()); // the first one is chosen
    button(dialog, u"Suche beenden"_s)->click();
    QVERIFY(button(dialog, u"Erneut suchen"_s));
    dialog.next();
    auto& view = *dialog.findChild<Connection_Test_View*>();
    button(dialog, u"Testen"_s)->click();
    QVERIFY(view.isRunning() && !next.isEnabled());
    QTRY_VERIFY(!view.isRunning());
    QVERIFY(view.isRight() && next.isEnabled());
    dialog.next();
    auto& name = *dialog.currentPage()->findChild<Checked_Line_Edit*>();
    QCOMPARE(name.text(), u"Keller"_s);
    name.setText(u"Haus"_s);
    dialog.back();
    dialog.next();
    dialog.accept();
    QCOMPARE(names(rig.connections()), (QStringList{u"Steuerung"_s, u"Haus"_s}));
    QCOMPARE(rig.connections().mSelected, 1);
    QCOMPARE(rig.connections().mItems.back().mAddress, peer.address());
    QVERIFY(rig.mSession.history().undo());
    QCOMPARE(rig.connections().mItems.size(), 1U);
    QCOMPARE(rig.connections().mSelected, 0);
  }

  void dialogsCloseWithTheProject() {
    Rig rig;
    QVERIFY(rig.mIsReady);
    Main_Connection_Edit editor(rig.mSession, rig.mLink, 0, nullptr);
    Dev_Connection_Assistant assistant(rig.mSession, rig.mSettings, rig.mLink, {0, 20}, nullptr);
    editor.show();
    assistant.show();
    rig.mSession.close();
    QVERIFY(!editor.isVisible() && !assistant.isVisible());
  }

  void theEditorKeepsAwayFromAListThatChanged() {
    Rig rig;
    QVERIFY(rig.mIsReady);
    Main_Connection_Edit dialog(rig.mSession, rig.mLink, 0, nullptr);
    dialog.show();
    DB_Connections::ITEM other = rig.connections().mItems.front();
    other.mName = u"Andere"_s;
    QVERIFY(Connection_Edits::add(rig.mSession, other));
    QVERIFY(Connection_Edits::move(rig.mSession, 1, 0));
    QString told;
    QTimer::singleShot(0, &dialog, [&told] {
      auto* const box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      told = box->findChild<QTextEdit*>()->toPlainText();
      box->reject();
    });
    button(dialog, u"Übernehmen"_s)->click();
    QVERIFY2(told.contains(u"inzwischen"_s), qPrintable(told));
    QVERIFY(dialog.isVisible());
    QCOMPARE(names(rig.connections()), (QStringList{u"Andere"_s, u"Steuerung"_s}));
  }

  void progress_data() {
    QTest::addColumn<quint32>("reply");
    QTest::addColumn<bool>("isEndedElsewhere");
    QTest::newRow("accepted") << quint32(Command::Log_On_Accepted) << false;
    QTest::newRow("refused") << quint32(Command::Log_On_Refused) << false;
    QTest::newRow("cancelled") << quint32(0) << false;
    QTest::newRow("ended elsewhere") << quint32(0) << true;
  }
  void progress() {
    QFETCH(quint32, reply);
    QFETCH(bool, isEndedElsewhere);
    Rig rig;
    QVERIFY(rig.mIsReady);
    Scripted_Peer peer;
    peer.mOnMessage = [&peer, reply](const Scripted_Peer::Message& message) {
      if (message.mCommand == Command::Log_On && reply != 0) {
        peer.send(reply, reply == Command::Log_On_Refused ? "falsches Passwort\0"_ba : QByteArray());
      }
    };
    rig.mLink.connectTo(peer.connection());
    Dev_Connect_Progress_Dlg dialog(rig.mLink, nullptr);
    dialog.show();
    QTRY_COMPARE(peer.count(Command::Log_On), 1);
    if (reply == Command::Log_On_Accepted) {
      QTRY_VERIFY(!dialog.isVisible());
      QCOMPARE(dialog.result(), int(QDialog::Accepted));
      QVERIFY(rig.mLink.isOnline());
      return;
    }
    if (reply == Command::Log_On_Refused) {
      QTRY_VERIFY(button(dialog, u"Schließen"_s));
      QVERIFY(dialog.isVisible());
      QVERIFY(dialog.findChildren<QLabel*>().at(1)->text().contains(u"falsches Passwort"_s));
    }
    if (isEndedElsewhere) {
      rig.mLink.disconnectLink();
    } else {
      dialog.reject();
    }
    QTRY_VERIFY(!dialog.isVisible());
    QCOMPARE(rig.mLink.state(), Controller_Link::State::Offline);
    QVERIFY(!rig.mLink.client().isWanted());
  }
};

QTEST_MAIN(Connection_Dialogs_Test)
#include "Connection_Dialogs_Test.moc"
