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

  void enabled() {
    Action_State operating = opened();
    operating.mIsOperating = true;
    Action_State kiosk = operating;
    kiosk.mIsKiosk = true;
    Action_State fresh = opened();
    fresh.mCanUndo = fresh.mCanRedo = false;
    const char* const cSlots[] = {"onMenuFileQuit", "onMenuFileOpen", "onMenuFileSave",
                                  "onEditGeopos",   "onEdit_Undo",    "onEdit_Redo"};
    const std::pair<Action_State, int> cases[] = {
        {Action_State(), 2}, {opened(), 6}, {fresh, 4}, {operating, 3}, {kiosk, 1}};
    for (const auto& [state, enabled] : cases) {
      for (int i = 0; i < 6; ++i) {
        const QString reason = Action_Table::whyDisabled(rowOf(cSlots[i]), state);
        QCOMPARE(reason.isEmpty(), i < enabled);
        QVERIFY(reason.isEmpty() || Action_Table::tip(rowOf(cSlots[i]), state) == reason);
      }
    }
  }
};

QTEST_GUILESS_MAIN(Action_Table_Test)
#include "Action_Table_Test.moc"
