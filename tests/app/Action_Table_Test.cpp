#include "app/Action_Table.h"
#include "app/Main_Window_Dev.h"

#include <QFile>
#include <QMetaMethod>
#include <QSet>
#include <QtTest>

namespace {

Action_State opened() {
  return {.mIsOpen = true, .mCanUndo = true, .mCanRedo = true, .mUndoText = "Umbenennen", .mRedoText = "Verschieben"};
}

QChar accessKey(const QString& text) {
  const qsizetype at = text.indexOf(u'&');
  return at < 0 || at + 1 >= text.size() ? QChar() : text.at(at + 1).toLower();
}

const Action_Row& rowOf(const char* slot) {
  const auto rows = Action_Table::rows();
  return *std::find_if(rows.begin(), rows.end(),
                       [slot](const Action_Row& row) { return qstrcmp(row.mSlot, slot) == 0; });
}

} // namespace

class Action_Table_Test : public QObject {
  Q_OBJECT

private slots:
  void everyRowIsWholeAndAloneInItsPlace() {
    QSet<QString> slotNames;
    QSet<QKeySequence> keys;
    QSet<std::pair<int, QChar>> accessKeys;
    QSet<QChar> menuKeys;
    for (const Action_Row& row : Action_Table::rows()) {
      const QString slot = row.mSlot;
      QVERIFY2(!slotNames.contains(slot), row.mSlot);
      slotNames.insert(slot);
      QVERIFY2(QFile::exists(QStringLiteral(":/icons/%1.png").arg(row.mIcon)), row.mIcon);
      QVERIFY2(*row.mTip, row.mSlot);
      const QChar key = accessKey(Action_Table::text(row));
      QVERIFY2(!key.isNull() && !accessKeys.contains({int(row.mMenu), key}), row.mSlot);
      accessKeys.insert({int(row.mMenu), key});
      menuKeys.insert(accessKey(Action_Table::menuTitle(row.mMenu)));
      if (*row.mKeys) {
        const QKeySequence sequence(QLatin1String(row.mKeys), QKeySequence::PortableText);
        QVERIFY2(sequence.count() == 1 && sequence[0].key() != Qt::Key_unknown && !keys.contains(sequence), row.mSlot);
        keys.insert(sequence);
      }
      const int index = Main_Window_Dev::staticMetaObject.indexOfSlot(QByteArray(row.mSlot) + "()");
      QCOMPARE(index >= 0, !row.mIsSubmenu);
    }
    QSet<int> menus;
    for (const Action_Row& row : Action_Table::rows()) {
      menus.insert(int(row.mMenu));
    }
    QCOMPARE(menuKeys.size(), menus.size());
  }

  void everySlotOfTheWindowIsInTheTable() {
    const QMetaObject& meta = Main_Window_Dev::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
      if (meta.method(i).methodType() == QMetaMethod::Slot) {
        const QByteArray name = meta.method(i).name();
        const auto rows = Action_Table::rows();
        QVERIFY2(std::any_of(rows.begin(), rows.end(), [&name](const Action_Row& row) { return name == row.mSlot; }),
                 name);
      }
    }
  }

  void texts_data() {
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<QString>("text");
    QTest::newRow("new") << QByteArray("onMenuFileNew") << "Neues Projekt";
    QTest::newRow("save") << QByteArray("onMenuFileSave") << "Speichern";
    QTest::newRow("save as") << QByteArray("onMenuFileSaveAs") << "Speichern unter";
    QTest::newRow("close") << QByteArray("onMenuFileClose") << "Schließen";
    QTest::newRow("quit") << QByteArray("onMenuFileQuit") << "Beenden";
    QTest::newRow("start page") << QByteArray("onShowWelcome") << "Startseite";
    QTest::newRow("redo") << QByteArray("onEdit_Redo") << "Wiederherstellen";
    QTest::newRow("import") << QByteArray("onEdit_ODBC_Import") << "Adressen ODBC Import (ESF/XML)";
    QTest::newRow("about") << QByteArray("onShowAboutDlg") << "Quarna-Studio";
  }

  void texts() {
    QFETCH(QByteArray, slot);
    QFETCH(QString, text);
    QCOMPARE(Action_Table::text(rowOf(slot)).remove(u'&'), text);
  }

  void enabled_data() {
    QTest::addColumn<Action_State>("state");
    QTest::addColumn<QStringList>("slotNames"); // those of the sample that are enabled
    Action_State operating = opened();
    operating.mIsOperating = true;
    Action_State kiosk = operating;
    kiosk.mIsKiosk = true;
    Action_State fresh = opened();
    fresh.mCanUndo = fresh.mCanRedo = false;
    QTest::newRow("no project") << Action_State() << QStringList{"onMenuFileQuit", "onMenuFileOpen"};
    QTest::newRow("project") << opened() << QStringList{"onMenuFileQuit", "onMenuFileOpen", "onMenuFileSave",
                                                        "onEditGeopos",   "onEdit_Undo",    "onEdit_Redo"};
    QTest::newRow("no steps") << fresh
                              << QStringList{"onMenuFileQuit", "onMenuFileOpen", "onMenuFileSave", "onEditGeopos"};
    QTest::newRow("operating mode") << operating << QStringList{"onMenuFileQuit", "onMenuFileOpen", "onMenuFileSave"};
    QTest::newRow("kiosk") << kiosk << QStringList{"onMenuFileQuit"};
  }

  void enabled() {
    QFETCH(Action_State, state);
    QFETCH(QStringList, slotNames);
    QStringList found;
    for (const char* const slot :
         {"onMenuFileQuit", "onMenuFileOpen", "onMenuFileSave", "onEditGeopos", "onEdit_Undo", "onEdit_Redo"}) {
      if (Action_Table::whyDisabled(rowOf(slot), state).isEmpty()) {
        found.append(slot);
      } else {
        QCOMPARE(Action_Table::tip(rowOf(slot), state), Action_Table::whyDisabled(rowOf(slot), state));
      }
    }
    QCOMPARE(found, slotNames);
  }

  void undoAndRedoNameTheirStep() {
    QCOMPARE(Action_Table::tip(rowOf("onEdit_Undo"), opened()), "Rückgängig: Umbenennen");
    QCOMPARE(Action_Table::tip(rowOf("onEdit_Redo"), opened()), "Wiederherstellen: Verschieben");
  }
};

QTEST_GUILESS_MAIN(Action_Table_Test)
#include "Action_Table_Test.moc"
