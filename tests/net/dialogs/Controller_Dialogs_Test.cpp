#include "db/Project_Image.h"
#include "net/Controller_Records.h"
#include "net/dialogs/Dev_BackupController_Dlg.h"
#include "net/dialogs/Dev_Clock_Dlg.h"
#include "net/dialogs/Dev_Controller_Dlg.h"
#include "net/dialogs/Dev_Restore_Backup_Dlg.h"
#include "tests/net/dialogs/Commands_Rig.h"

#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTreeView>

using namespace Qt::StringLiterals;
using namespace Controller_Command;

class Controller_Dialogs_Test : public QObject {
  Q_OBJECT

private:
  static DB_Backup_List backups() {
    DB_Backup_List list;
    list.mBackups = {{u"alt-1"_s, 1'700'000'000, u"vor dem Umbau"_s, u"Haus"_s, 2'000'000},
                     {u"neu-2"_s, 1'750'000'000, {}, u"Haus"_s, 3'000}};
    return list;
  }
  static QString time(qint64 seconds) {
    return QDateTime::fromSecsSinceEpoch(seconds).toString(u"dd.MM.yyyy HH:mm:ss"_s);
  }
  static bool hasText(const QWidget& dialog, const QString& text) {
    const auto labels = dialog.findChildren<QLabel*>();
    return std::any_of(labels.begin(), labels.end(), [&](const QLabel* label) { return label->text() == text; });
  }
  static bool isShown(const QWidget& dialog, const QString& text) {
    return QTest::qWaitFor([&] { return hasText(dialog, text); });
  }
  /// Selects the first row once the list is there.
  static bool selectFirst(const QDialog& dialog) {
    auto* const list = dialog.findChild<QTreeView*>();
    if (!QTest::qWaitFor([list] { return list->model()->rowCount() > 0; })) {
      return false;
    }
    list->setCurrentIndex(list->model()->index(0, 0));
    return true;
  }
  static bool press(const QDialog& dialog, const QString& text) {
    QPushButton* const button = Commands_Rig::button(dialog, text);
    if (!button || !QTest::qWaitFor([button] { return button->isEnabled(); })) {
      return false;
    }
    button->click();
    return true;
  }

private slots:
  void backupsAreListedMadeStoredAndDeleted() {
    Commands_Rig rig;
    QVERIFY(rig.goOnline());
    rig.mAnswers[Backup_List] = {{Backup_List_Reply, backups().toData()}};
    rig.mCommands->backup();
    QDialog& dialog = *Commands_Rig::shown();
    QVERIFY(selectFirst(dialog));
    QVERIFY(hasText(dialog, u"2 Sicherungen"_s));
    const QAbstractItemModel& model = *dialog.findChild<QTreeView*>()->model();
    QCOMPARE(model.index(0, 0).data().toString(), time(1'750'000'000)); // the newest first

    const QByteArray bytes(100'000, 'b');
    const QString path = rig.mRig.folder() + u"/sicherung.zbak"_s;
    rig.mAnswers[Backup_Fetch] = Commands_Rig::stream(Backup_Fetch_Begin, Backup_Fetch_Data, bytes);
    rig.mQuestions.mAnswers = {path};
    QVERIFY(press(dialog, u"In Datei speichern…"_s));
    QVERIFY(QTest::qWaitFor([&] { return Session_Rig::bytesOf(path) == bytes; }));
    QCOMPARE(rig.mPeer.last(Backup_Fetch), Commands_Rig::text(u"neu-2"_s));

    rig.mAnswers[Backup_Delete] = {{Backup_Deleted, {}}};
    QVERIFY(press(dialog, u"Löschen"_s)); // not agreed
    QCOMPARE(rig.mQuestions.mTold,
             QStringList{
                 u"? Die Sicherung vom %1 wird auf der Steuerung gelöscht.\nFortfahren?"_s.arg(time(1'750'000'000))});
    QCOMPARE(rig.mPeer.count(Backup_Delete), 0);
    rig.mQuestions.mAnswers = {u"Ja"_s};
    DB_Backup_List rest = backups();
    rest.mBackups.pop_back();
    rig.mAnswers[Backup_List] = {{Backup_List_Reply, rest.toData()}};
    QVERIFY(press(dialog, u"Löschen"_s));
    QVERIFY(isShown(dialog, u"1 Sicherung"_s));
    QCOMPARE(rig.mPeer.last(Backup_Delete), Commands_Rig::text(u"neu-2"_s));

    DB_Backup_List made = backups();
    made.mBackups.erase(made.mBackups.begin());
    rig.mAnswers[Backup_Make] = {{Backup_Made, made.toData()}};
    rig.mAnswers[Backup_List] = {{Backup_List_Reply, backups().toData()}};
    for (QLineEdit* const edit : dialog.findChildren<QLineEdit*>()) {
      if (edit->maxLength() == 200) {
        edit->setText(u" vor  dem Fest "_s);
        edit->setFocus();
        QTest::keyClick(edit, Qt::Key_Return);
      }
    }
    QVERIFY(isShown(dialog, u"2 Sicherungen"_s));
    QCOMPARE(rig.mPeer.last(Backup_Make), Commands_Rig::text(u"vor dem Fest"_s));
    QVERIFY(hasText(dialog, u"Die Sicherung vom %1 ist erstellt."_s.arg(time(1'750'000'000))));
    QCOMPARE(rig.mDialogsSeen, 1); // none of it took long
  }

  /// Whatever a controller says, it is shown as text, soon, and breaks nothing.
  void hostileController() {
    constexpr qint64 cMost = std::numeric_limits<qint64>::max();
    Commands_Rig rig;
    QVERIFY(rig.goOnline());
    DB_Backup_List list;
    list.mBackups.assign(50'000, {u"x"_s, -cMost, u"<h1>&fett</h1>"_s, QString(5'000, u'W'), -cMost});
    rig.mAnswers[Backup_List] = {{Backup_List_Reply, list.toData()}};
    QElapsedTimer time;
    time.start();
    rig.mCommands->backup();
    QDialog& dialog = *Commands_Rig::shown();
    QVERIFY(selectFirst(dialog));
    QVERIFY2(time.elapsed() < 30'000, qPrintable(QString::number(time.elapsed())));
    const QAbstractItemModel& model = *dialog.findChild<QTreeView*>()->model();
    QCOMPARE(model.index(0, 1).data().toString(), u"<h1>&fett</h1>"_s);
    QVERIFY(!model.index(0, 1).data(Qt::ToolTipRole).toString().contains(u"<h1>"));
    dialog.reject();
    QVERIFY(rig.isIdle());

    DB_Controller_Informations informations;
    informations.mName = QString(100'000, u'W');
    informations.mProjectTimestamp = cMost;
    rig.mAnswers[Information] = {{Information_Reply, informations.toData()}};
    rig.mAnswers[Network_Settings] = {{Network_Settings_Reply, "x\x02\x03\x03"}};
    rig.mAnswers[Clock_Get] = {{Clock_Reply, QByteArray::number(-cMost)}};
    rig.mAnswers[Number_Get] = {{Number_Get_Reply, QByteArray::number(cMost)}};
    rig.mAnswers[Group_Status] = {{Group_Status_Reply, "mMember_0.mIndex\x02-9\x03"}};
    rig.mCommands->showInformation();
    QDialog& shown = *Commands_Rig::shown();
    QVERIFY(QTest::qWaitFor([&] { return Commands_Rig::button(shown, u"Nummer setzen"_s)->isEnabled(); }));
    QVERIFY(shown.minimumSizeHint().width() < 4'000);
  }

  void linkLostWhileTheListIsOpen() {
    Commands_Rig rig;
    QVERIFY(rig.goOnline());
    rig.mAnswers[Backup_List] = {{Backup_List_Reply, backups().toData()}};
    rig.mCommands->backup();
    QDialog& dialog = *Commands_Rig::shown();
    QVERIFY(selectFirst(dialog));
    const QPushButton* const remove = Commands_Rig::button(dialog, u"Löschen"_s);
    QVERIFY(QTest::qWaitFor([remove] { return remove->isEnabled(); }));
    rig.mPeer.close();
    QVERIFY(isShown(dialog, u"Steuerung nicht verbunden"_s));
    QVERIFY(!hasText(dialog, u"Keine Verbindung zur Steuerung"_s)); // once is enough
    QVERIFY(!remove->isEnabled());
    QVERIFY(rig.goOnline()); // and it is read again
    QVERIFY(QTest::qWaitFor([remove] { return remove->isEnabled(); }));
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(rig.isIdle());
  }

  void backupIsRestored_data() {
    QTest::addColumn<QString>("choice");
    QTest::addColumn<QString>("sent");
    QTest::newRow("all") << u"Projekt und persistente Werte"_s << u"neu-2#all"_s;
    QTest::newRow("project") << u"Nur Projekt"_s << u"neu-2#project"_s;
    QTest::newRow("values") << u"Nur persistente Werte"_s << u"neu-2#persistent"_s;
  }
  void backupIsRestored() {
    QFETCH(QString, choice);
    QFETCH(QString, sent);
    Commands_Rig rig;
    QVERIFY(rig.goOnline());
    rig.mAnswers = {{Backup_List, {{Backup_List_Reply, backups().toData()}}},
                    {Backup_Restore, {{Backup_Restored, {}}}}};
    rig.mCommands->restoreBackup();
    QDialog& dialog = *Commands_Rig::shown();
    QVERIFY(selectFirst(dialog));
    for (QRadioButton* const button : dialog.findChildren<QRadioButton*>()) {
      if (button->text().remove(u'&') == choice) {
        button->click();
      }
    }
    rig.mQuestions.mAnswers = {u"Ja"_s};
    QVERIFY(press(dialog, u"Wiederherstellen"_s));
    QVERIFY(isShown(dialog, u"Die Sicherung vom %1 ist wiederhergestellt."_s.arg(time(1'750'000'000))));
    QCOMPARE(rig.mPeer.last(Backup_Restore), Commands_Rig::text(sent));
    QVERIFY(rig.mQuestions.mTold.constFirst().contains(time(1'750'000'000)));
  }

  /// Opening what was loaded closes the project, and with it the dialog that is still telling of it.
  void projectOfABackupIsOpened() {
    Commands_Rig rig;
    QVERIFY(rig.goOnline());
    const auto image = Project_Image::whole(rig.mRig.mSession.database());
    QVERIFY(image);
    rig.mAnswers = {{Backup_List, {{Backup_List_Reply, backups().toData()}}},
                    {Load, Commands_Rig::stream(Load_Begin, Load_Data, image->toBytes())}};
    rig.mCommands->restoreBackup();
    QDialog& dialog = *Commands_Rig::shown();
    QVERIFY(selectFirst(dialog));
    const QString path = rig.mRig.folder() + u"/alt.zpro"_s;
    rig.mQuestions.mAnswers = {path};
    bool isOpened = false;
    connect(rig.mCommands.get(), &Controller_Commands::projectLoaded, this,
            [&](const QString& loaded) { isOpened = rig.mRig.mSession.open(loaded); });
    QVERIFY(press(dialog, u"Projekt laden…"_s));
    QVERIFY(QTest::qWaitFor([&] { return isOpened; }));
    QCOMPARE(rig.mPeer.last(Load), Commands_Rig::text(u"project#neu-2"_s));
    QCOMPARE(rig.mRig.mSession.path(), path);
    QVERIFY(!Commands_Rig::shown());
  }

  void informationNumberAndClock() {
    Commands_Rig rig;
    QVERIFY(rig.goOnline());
    DB_Controller keller{2, u"Keller"_s, u"10.0.0.2"_s, true};
    DB_Controller dach{3, u"Dach"_s, u"10.0.0.3"_s, false};
    rig.mRig.mSession.database().mProject.mControllers = {keller, dach};
    DB_Controller_Informations informations;
    informations.mSerialNumber = u"SN-4711"_s;
    DB_Network_Settings network;
    network.mAddress = u"10.0.0.2"_s;
    DB_Group_Status status;
    status.mMembers = {{3, 1, 5, u"2.1"_s, 4, 0}};
    const qint64 ahead = QDateTime::currentMSecsSinceEpoch() + 3'600'000;
    rig.mAnswers = {{Information, {{Information_Reply, informations.toData()}}},
                    {Network_Settings, {{Network_Settings_Reply, network.toData()}}},
                    {Clock_Get, {{Clock_Reply, Commands_Rig::text(QString::number(ahead))}}},
                    {Clock_Set, {{Clock_Reply, Commands_Rig::text(u"0"_s)}}},
                    {Number_Get, {{Number_Get_Reply, Commands_Rig::text(u"2"_s)}}},
                    {Number_Set, {{Number_Set_Reply, Commands_Rig::text(u"3"_s)}}},
                    {Partner_Number_Set, {{Partner_Number_Set_Reply, Commands_Rig::text(u"10.0.0.3#3"_s)}}},
                    {Group_Status, {{Group_Status_Reply, status.toData()}}}};
    rig.mCommands->showInformation();
    QDialog& dialog = *Commands_Rig::shown();
    QVERIFY(isShown(dialog, u"SN-4711"_s));
    QVERIFY(isShown(dialog, u"10.0.0.2"_s));
    const QAbstractItemModel& partners = *dialog.findChild<QTreeView*>()->model();
    QVERIFY(QTest::qWaitFor([&] { return partners.index(1, 3).data().toString() == u"verbunden"; }));
    QCOMPARE(partners.index(0, 3).data().toString(), u"nicht bekannt"_s);

    auto* const choice = dialog.findChild<QComboBox*>();
    QCOMPARE(choice->currentData().toInt(), 2);
    choice->setCurrentIndex(1);
    QVERIFY(press(dialog, u"Nummer setzen"_s));
    QVERIFY(isShown(dialog, u"Die Steuerung hat die Nummer 3."_s));
    QCOMPARE(rig.mPeer.last(Number_Set), Commands_Rig::text(u"3"_s));

    dialog.findChild<QTreeView*>()->setCurrentIndex(partners.index(0, 0)); // its own number is not a partner's
    QVERIFY(QTest::qWaitFor([&] { return Commands_Rig::button(dialog, u"Nummer setzen"_s)->isEnabled(); }));
    QVERIFY(!Commands_Rig::button(dialog, u"Nummer beim Partner setzen"_s)->isEnabled());
    dialog.findChild<QTreeView*>()->setCurrentIndex(partners.index(1, 0));
    QVERIFY(press(dialog, u"Nummer beim Partner setzen"_s));
    QVERIFY(isShown(dialog, u"Die Steuerung 10.0.0.3 hat die Nummer 3."_s));
    QCOMPARE(rig.mPeer.last(Partner_Number_Set), Commands_Rig::text(u"10.0.0.3#3"_s));

    const qint64 before = QDateTime::currentMSecsSinceEpoch();
    QVERIFY(press(dialog, u"Uhrzeit stellen"_s));
    QVERIFY(isShown(dialog, u"Die Uhrzeit ist gestellt."_s));
    const qint64 sent = rig.mPeer.last(Clock_Set).chopped(1).toLongLong();
    QVERIFY(sent >= before && sent <= QDateTime::currentMSecsSinceEpoch());
    QVERIFY(QTest::qWaitFor([&] { return rig.mPeer.count(Number_Get) == 4; })); // read again after each change
  }

  /// A silent controller leaves a dialog that says so and can ask again.
  void readingFails() {
    Commands_Rig rig;
    QVERIFY(rig.goOnline());
    rig.mCommands->setTimeout(100);
    rig.mCommands->showClock();
    QDialog& dialog = *Commands_Rig::shown();
    QVERIFY(isShown(dialog, u"Keine Antwort der Steuerung"_s));
    const QString now = QString::number(QDateTime::currentMSecsSinceEpoch() + 7'500'000);
    rig.mAnswers[Clock_Get] = {{Clock_Reply, Commands_Rig::text(now)}};
    QVERIFY(press(dialog, u"Aktualisieren"_s));
    QVERIFY(isShown(dialog, u"geht 2 h 4 min vor"_s) || hasText(dialog, u"geht 2 h 5 min vor"_s));
  }
};

QTEST_MAIN(Controller_Dialogs_Test)
#include "Controller_Dialogs_Test.moc"
