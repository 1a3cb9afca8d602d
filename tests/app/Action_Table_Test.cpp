#include "app/Action_Table.h"
#include "app/Main_Window_Dev.h"
#include "base/Access_Key.h"

#include <QFile>
#include <QMetaMethod>
#include <QSet>
#include <QtTest>

#include <set>

namespace {

using namespace Qt::StringLiterals;

Action_State opened() {
  return {.mIsOpen = true,
          .mCanUndo = true,
          .mCanRedo = true,
          .mUndoText = "Umbenennen",
          .mRedoText = "Verschieben",
          .mLinkText = "Nicht verbunden"};
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
    std::set<std::pair<Action_Menu, QChar>> accessKeys;
    QSet<Action_Menu> menus;
    QSet<Action_Menu> opened;
    for (const Action_Row& row : Action_Table::rows()) {
      const QString slot = row.mSlot;
      QVERIFY2(!slotNames.contains(slot), row.mSlot);
      slotNames.insert(slot);
      QVERIFY2(QFile::exists(QString::fromLatin1(row.mIcon)), row.mIcon);
      QVERIFY2(*row.mTip, row.mSlot);
      const QChar key = Access_Key::of(Action_Table::menuText(row));
      QVERIFY2(!key.isNull() && accessKeys.insert({row.mMenu, key}).second, row.mSlot);
      menus.insert(row.mMenu);
      if (row.mSubmenu) {
        opened.insert(*row.mSubmenu);
      }
      if (*row.mKeys) {
        const QKeySequence sequence(QLatin1String(row.mKeys), QKeySequence::PortableText);
        QVERIFY2(sequence.count() == 1 && sequence[0].key() != Qt::Key_unknown && !keys.contains(sequence), row.mSlot);
        keys.insert(sequence);
      }
      // What cannot be used has no slot, and what can be used has one and says what it changes.
      const int index = Main_Window_Dev::staticMetaObject.indexOfSlot(QByteArray(row.mSlot) + "()");
      const bool isUsable = !*row.mMissing && !row.mSubmenu;
      QVERIFY2((index >= 0) == isUsable, row.mSlot);
      QVERIFY2((row.mEffect != Action_Effect::None) == !*row.mMissing, row.mSlot);
    }
    QSet<QChar> menuKeys;
    for (const Action_Menu menu : std::as_const(menus)) {
      const QString title = Action_Table::menuTitle(menu);
      QVERIFY(title.isEmpty() == opened.contains(menu));
      if (!title.isEmpty()) {
        QVERIFY(!menuKeys.contains(Access_Key::of(title)));
        menuKeys.insert(Access_Key::of(title));
      }
    }
  }

  /// Spellings, capitals and crossed pictures that look like slips and are meant.
  void wordsThatStandAsTheyAre() {
    const std::tuple<const char*, QString, const char*> cases[] = {
        {"onControllerSytemClock", u"Uhrzeit"_s, "clock_white"},
        {"onDesigner_SameWidht", u"Gleiche Breite"_s, "dev_widget_sort_width"},
        {"onProgramProgram_Left", u"Links ausrichten"_s, "dev_widget_sort_left"},
        {"onDesigner_Center_Horizontal", u"Zentrieren horizontal"_s, "dev_widget_sort_center_vertical"},
        {"onDesigner_Center_Vertical", u"Zentrieren vertikal"_s, "dev_widget_sort_center_horizontal"},
        {"onProgramRasterHorizontal", u"Aufteilen Horizontal"_s, "dev_widget_sort_grid_horizontal"},
        {"onProgramRasterVertical", u"Aufteilen Vertikal"_s, "dev_widget_sort_grid_vertical"},
        {"onDesigner_Raster_Horizontal", u"Aufteilen horizontal"_s, "dev_widget_sort_grid_horizontal"},
        {"onDesigner_Raster_Vertical", u"Aufteilen vertikal"_s, "dev_widget_sort_grid_vertical"},
        {"onControllerConnect", u"Verbinden\tF11"_s, "control_offline"},
    };
    for (const auto& [slot, text, icon] : cases) {
      QCOMPARE(Action_Table::text(rowOf(slot)), text);
      QCOMPARE(QString(rowOf(slot).mIcon), u":/icons/%1.png"_s.arg(QLatin1String(icon)));
    }
    const std::pair<const char*, QString> tips[] = {
        {"onZoom_Plus", u"Zoom\t(Strg + Mausrad)"_s},
        {"onPagePrevious", u"Vorherige Seite\t(Strg + Pfeil links)"_s},
        {"onControlPlay", u"Zwischen Bearbeitungsmodus und Bedienemodus umschalten\tF5"_s},
        {"onControllerSavePersistentProjectAsk", u"Projekt permanent auf Steuerung speichern"_s},
    };
    for (const auto& [slot, tip] : tips) {
      QCOMPARE(Action_Table::toolTip(rowOf(slot), {}), tip);
      QCOMPARE(Action_Table::toolTip(rowOf(slot), opened()), tip);
    }
    QCOMPARE(Action_Table::barText(rowOf("onEditStyles")), u"Style"_s);
    QCOMPARE(Action_Table::text(rowOf("onEditStyles")), u"Styles"_s);
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
        QVERIFY(reason.isEmpty() || Action_Table::statusTip(rowOf(cSlots[i]), state) == reason);
      }
    }
  }
};

QTEST_GUILESS_MAIN(Action_Table_Test)
#include "Action_Table_Test.moc"
