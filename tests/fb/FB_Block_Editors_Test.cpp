#include "base/App_Settings.h"
#include "fb/FB_Block_Editor.h"
#include "fb/FB_Block_Editors.h"
#include "fb/model/FB_Modbus_Words.h"
#include "tests/fb/Logic_Rig.h"
#include "ui/Theme.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTableView>

/// The windows of a formula and of Modbus registers, as they are used.
class FB_Block_Editors_Test : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() {
    QLocale::setDefault(QLocale(QLocale::German));
    Theme::apply(*qApp);
  }

  void init() {
    mRig = std::make_unique<Logic_Rig>();
    mSettings = std::make_unique<App_Settings>(mRig->path("settings.ini"));
    mParent = std::make_unique<QWidget>();
    mEditors = new FB_Block_Editors(mRig->mSession, *mSettings, mParent.get());
  }

  void cleanup() {
    mParent.reset();
    mSettings.reset();
    mRig.reset();
  }

  void formula() {
    open(1393);
    auto* const edit = mWindow->findChild<QPlainTextEdit*>();
    edit->setPlainText("E1 +");
    QVERIFY(hasLabel("Zeichen 5: "));
    edit->setPlainText("1 + 6 * 7");
    QVERIFY(hasLabel("43"));
    press("Übernehmen");
    mRig->history().commit();
    edit->setPlainText("1 + 1");
    press("OK"); // hands over and closes
    QCOMPARE(parameter(), QStringLiteral("1 + 1"));
    mRig->history().commit();
    QTRY_VERIFY(!mWindow);
    mWindow = mEditors->open(mBlock);
    QVERIFY(mRig->history().undo());
    QCOMPARE(parameter(), QStringLiteral("1 + 6 * 7"));
    QTRY_VERIFY(hasLabel("43")); // the window follows
    mWindow->findChild<QPlainTextEdit*>()->setPlainText("2");
    press("Abbrechen");
    QCOMPARE(parameter(), QStringLiteral("1 + 6 * 7"));
  }

  /// Deleted beside the window: what was typed waits there for the undo.
  void typedFormulaOutlivesItsBlock() {
    open(1393);
    mWindow->findChild<QPlainTextEdit*>()->setPlainText("E1");
    QVERIFY(FB_Page_Edits::remove(mRig->mSession, {mBlock}));
    mRig->history().commit();
    QCoreApplication::processEvents();
    QVERIFY(mWindow && mWindow->isVisible() && mWindow->isUnsaved());
    QVERIFY(mRig->history().undo());
    QCoreApplication::processEvents();
    QVERIFY(mEditors->finishAll());
    QCOMPARE(parameter(), QStringLiteral("E1"));
    mRig->mSession.close();
    QTRY_VERIFY(!mWindow);
  }

  void registers() {
    open(FB_Modbus_Words::cMaster);
    auto* const table = mWindow->findChild<QTableView*>();
    const auto row = [table](int row) {
      return table->model()->index(row, 1).data().toString() + u' ' + table->model()->index(row, 3).data().toString();
    };
    QApplication::clipboard()->setText("Name\tAdresse\tDatentyp\nLeistung\t100\tuint32\nStrom\t200\tuint16\n");
    trigger("Einfügen");
    mRig->history().commit();
    QCOMPARE(row(0), QStringLiteral("Leistung 100"));
    QCOMPARE(names(), QStringLiteral("Leistung,Strom"));
    table->selectRow(0);
    trigger("Duplizieren");
    QCOMPARE(row(1), QStringLiteral("Leistung 2 102"));
    mRig->history().commit();
    trigger("Löschen"); // the copy is selected
    mRig->history().commit();
    QCOMPARE(names(), QStringLiteral("Leistung,Strom"));
    table->selectRow(1);
    trigger("Duplizieren");
    trigger("Rückgängig");
    QTRY_COMPARE(table->model()->rowCount(), 2);
    QTRY_COMPARE(table->currentIndex().row(), 1); // near what went, so that Delete meets nothing else
    QCOMPARE(names(), QStringLiteral("Leistung,Strom"));
    QVERIFY(table->model()->setData(table->model()->index(1, 1), "Spannung"));
    mRig->history().commit();
    QCOMPARE(names(), QStringLiteral("Leistung,Spannung"));
    trigger("Rückgängig");
    trigger("Rückgängig");
    QCOMPARE(names(), QStringLiteral("Leistung,Leistung 2,Strom"));
    QTRY_COMPARE(table->model()->rowCount(), 3); // the window follows
    mRig->mState.setOperatingMode(true);
    QVERIFY(!action("Hinzufügen")->isEnabled() && !action("Löschen")->isEnabled());
    QVERIFY(!(table->model()->flags(table->model()->index(0, 1)) & Qt::ItemIsEditable));
  }

private:
  void open(int type) {
    mBlock = mRig->add(type);
    mRig->history().commit();
    mWindow = mEditors->open(mBlock);
    QVERIFY(mWindow);
    QVERIFY(QTest::qWaitForWindowExposed(mWindow));
  }
  [[nodiscard]] QString parameter() { return mRig->block(mBlock).mParams.value(1); }
  [[nodiscard]] QString names() {
    QStringList names;
    for (const DB_Modbus_Register& item : mRig->block(mBlock).mModbusRegisters) {
      names.append(item.mName);
    }
    return names.join(u',');
  }
  [[nodiscard]] bool hasLabel(const QString& start) const {
    const auto labels = mWindow->findChildren<QLabel*>();
    return std::ranges::any_of(labels, [&start](const QLabel* label) { return label->text().startsWith(start); });
  }
  template <class Thing>
  [[nodiscard]] Thing* find(const QString& text) const {
    const auto things = mWindow->findChildren<Thing*>();
    const auto at =
        std::ranges::find(things, text, [](const Thing* thing) { return QString(thing->text()).remove(u'&'); });
    return at == things.end() ? nullptr : *at;
  }
  [[nodiscard]] QAction* action(const QString& text) const { return find<QAction>(text); }
  void trigger(const QString& text) {
    QVERIFY2(action(text) && action(text)->isEnabled(), qPrintable(text));
    action(text)->trigger();
  }
  void press(const QString& text) {
    auto* const button = find<QAbstractButton>(text);
    QVERIFY2(button && button->isEnabled(), qPrintable(text));
    button->click();
  }

  std::unique_ptr<Logic_Rig> mRig;
  std::unique_ptr<App_Settings> mSettings;
  std::unique_ptr<QWidget> mParent;
  FB_Block_Editors* mEditors = nullptr;
  QPointer<FB_Block_Editor> mWindow;
  QUuid mBlock;
};

QTEST_MAIN(FB_Block_Editors_Test)

#include "FB_Block_Editors_Test.moc"
