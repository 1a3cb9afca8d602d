#include "base/App_Settings.h"
#include "db/Address_Edits.h"
#include "tests/db/Usage_Sample.h"
#include "ui/Project_Search_Dialog.h"
#include "ui/Theme.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSet>
#include <QSignalSpy>
#include <QTreeView>

/// The window of "Suchen" and "Suchen und ersetzen", used through its keys and read from its widgets.
class Project_Search_Dialog_Test : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() {
    QLocale::setDefault(QLocale(QStringLiteral("de")));
    Theme::apply(*qApp);
  }

  void init() {
    mRig = std::make_unique<Session_Rig>();
    mSettings = std::make_unique<App_Settings>(mRig->path("settings.ini"));
    QVERIFY(mRig->create());
    mSample = std::make_unique<Usage_Sample>(*mRig);
    mSample->element().mComment = QStringLiteral("Licht an, Licht aus");
    mDialog = std::make_unique<Project_Search_Dialog>(mRig->mSession, *mSettings);
    mTree = mDialog->findChild<QTreeView*>();
    new QAbstractItemModelTester(mTree->model(), QAbstractItemModelTester::FailureReportingMode::QtTest, mTree);
    mDialog->bringUp();
    QVERIFY(QTest::qWaitForWindowActive(mDialog.get()));
  }

  void cleanup() {
    mDialog.reset();
    mSettings.reset();
    mRig.reset();
  }

  void whatIsShown_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("scope");
    QTest::addColumn<QString>("box"); // that is ticked
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<QString>("count");
    const QStringList both{"Adresse|1/2/3|Name|Licht", "Element|Visu / Knopf|Kommentar|Licht an, Licht aus"};
    QTest::newRow("nothing sought")
        << "" << 0 << ""
        << QStringList{"Hier stehen die Treffer aus Adressen, Variablen, Seiten, Bausteinen und Elementen."} << "";
    QTest::newRow("everywhere") << "licht" << 0 << "" << both << "3 Treffer an 2 Orten";
    QTest::newRow("one") << "an," << 0 << "" << both.mid(1) << "1 Treffer an 1 Ort";
    QTest::newRow("in addresses") << "licht" << 1 << "" << both.mid(0, 1) << "1 Treffer an 1 Ort";
    QTest::newRow("in elements") << "licht" << 4 << "" << both.mid(1) << "2 Treffer an 1 Ort";
    QTest::newRow("in its case") << "licht" << 0 << "&Groß-/Kleinschreibung"
                                 << QStringList{"Das Projekt enthält \"licht\" nicht."} << "";
    QTest::newRow("whole words") << "lich" << 0 << "Nur ganze &Wörter"
                                 << QStringList{"Das Projekt enthält \"lich\" nicht."} << "";
    QTest::newRow("not there") << "Licht" << 3 << "" << QStringList{"Bausteine enthalten \"Licht\" nicht."} << "";
    QTest::newRow("a pattern is plain") << "L.*" << 0 << "" << QStringList{"Das Projekt enthält \"L.*\" nicht."} << "";
  }

  void whatIsShown() {
    QFETCH(const QString, text);
    QFETCH(const int, scope);
    QFETCH(const QString, box);
    mDialog->findChild<QComboBox*>()->setCurrentIndex(scope);
    for (QCheckBox* const one : mDialog->findChildren<QCheckBox*>()) {
      one->setChecked(one->text() == box);
    }
    type(text);
    QFETCH(const QStringList, rows);
    QTRY_COMPARE(shownRows(), rows);
    QTEST(label("ui:mCount")->text(), "count");
  }

  void keysLeadToTheHits_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("chosen"); // by pressing F3 twice and Shift+F3 twice
    QTest::newRow("address, element") << "licht" << QStringList{"address", "child", "address", "child"};
    QTest::newRow("pages") << "visu" << QStringList{"page", "page", "page", "page"};
    QTest::newRow("variable") << "merker" << QStringList{"address", "address", "address", "address"};
    QTest::newRow("blocks") << "und" << QStringList{"child", "child", "child", "child"};
    QTest::newRow("no hit") << "garage" << QStringList();
  }

  void keysLeadToTheHits() {
    QStringList chosen;
    connect(mDialog.get(), &Result_Dialog::addressChosen, this, [&] { chosen += "address"; });
    connect(mDialog.get(), &Result_Dialog::pageChosen, this, [&] { chosen += "page"; });
    connect(mDialog.get(), &Result_Dialog::childChosen, this, [&](const QUuid& page, const QUuid& guid) {
      const ProjectDatabase& database = mRig->mSession.database();
      const auto* const block = database.mFbPages.child(guid);
      chosen += page == (block ? block->mPageGuid : mSample->element().mPageGuid) ? "child" : "child of another page";
    });
    QFETCH(const QString, text);
    type(text);
    for (const Qt::KeyboardModifiers modifiers :
         {Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier, Qt::ShiftModifier}) {
      QTest::keyClick(mDialog.get(), Qt::Key_F3, modifiers);
    }
    QTEST(chosen, "chosen");
    chosen.clear();
    QTest::keyClick(field(), Qt::Key_Return);
    QVERIFY(chosen.isEmpty());
    if (mTree->model()->rowCount() > 0) {
      QTest::keyClick(mTree, Qt::Key_Return);
      QCOMPARE(chosen.size(), 1);
    }
  }

  void rowsFollowEdits() {
    type(QStringLiteral("licht"));
    QTRY_COMPARE(shownRows().size(), 2);
    mTree->setCurrentIndex(mTree->model()->index(1, 0));
    field()->setFocus();
    Address_Edits::set(mRig->mSession, {mSample->mLight}, Address_Edits::Field::Description, QStringLiteral("Licht"));
    QTRY_COMPARE(shownRows().size(), 3);
    QCOMPARE(mTree->currentIndex().row(), 2);
    QVERIFY(field()->hasFocus());
    mRig->mSession.close();
    QVERIFY(!mDialog->isVisible());
  }

  void replacesAllAndTakesItBack() {
    replaceMode(QStringLiteral("licht"), QStringLiteral("Lampe"));
    mTree->setCurrentIndex(mTree->model()->index(1, 0));
    click("&Ersetzen");
    QCOMPARE(label("ui:mNote")->text(), QStringLiteral("2 Stellen ersetzt. Strg+Z nimmt es zurück."));
    QCOMPARE(mSample->element().mComment, QStringLiteral("Lampe an, Lampe aus"));
    QCOMPARE(shownRows(), QStringList{"Adresse|1/2/3|Name|Licht"});
    QCOMPARE(mTree->currentIndex().row(), 0); // the next press goes on
    click("&Alle ersetzen");
    QCOMPARE(shownRows(), QStringList{"Das Projekt enthält \"licht\" nicht."});
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::ControlModifier);
    QTRY_COMPARE(shownRows(), QStringList{"Adresse|1/2/3|Name|Licht"});
    QCOMPARE(label("ui:mNote")->text(), QStringLiteral("Rückgängig: Ersetzen"));
    QTest::keyClick(mTree, Qt::Key_Z, Qt::ControlModifier);
    QTRY_COMPARE(shownRows().size(), 2);
    type(QStringLiteral("Reserve"));
    QVERIFY(label("ui:mNote")->isHidden());
  }

  void theButtonsTellWhyTheyRest_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isOperating");
    QTest::addColumn<QString>("reason");
    QTest::newRow("nothing sought") << "" << false << "Erst einen Suchtext eingeben.";
    QTest::newRow("nothing found") << "garage" << false << "Nichts gefunden.";
    QTest::newRow("what stays") << "1/2/3" << false << "Adressen, Typen und Parameter werden nicht ersetzt.";
    QTest::newRow("operating mode") << "licht" << true << Session_State::operatingModeRefusal();
    QTest::newRow("none") << "licht" << false << "";
  }

  void theButtonsTellWhyTheyRest() {
    QFETCH(const QString, text);
    QFETCH(const bool, isOperating);
    QFETCH(const QString, reason);
    replaceMode(text, QStringLiteral("x"));
    mRig->mState.setOperatingMode(isOperating);
    QCOMPARE(button("&Alle ersetzen")->isEnabled(), reason.isEmpty());
    QCOMPARE(button("&Alle ersetzen")->toolTip() == reason, !reason.isEmpty());
    QVERIFY(!button("&Ersetzen")->isEnabled());
    QCOMPARE(button("&Ersetzen")->toolTip(), reason.isEmpty() ? "Erst Zeilen der Liste wählen." : reason);
  }

  void bothModes() {
    QVERIFY(!button("&Ersetzen")->isVisible());
    QCOMPARE(mDialog->windowTitle(), QStringLiteral("Suchen"));
    QTest::keyClick(mDialog.get(), Qt::Key_H, Qt::ControlModifier);
    QCOMPARE(mDialog->windowTitle(), QStringLiteral("Suchen und ersetzen"));
    QVERIFY(button("&Ersetzen")->isVisible());
    QTest::keyClick(mDialog.get(), Qt::Key_F, Qt::ControlModifier);
    QVERIFY(!button("&Ersetzen")->isVisible() && field()->hasFocus());
  }

  void everythingIsReachedByKeys() {
    replaceMode(QStringLiteral("licht"), QStringLiteral("Licht"));
    mTree->setCurrentIndex(mTree->model()->index(0, 0));
    QSet<QString> keys;
    for (const QWidget* const widget : mDialog->findChildren<QWidget*>()) {
      const QString text = widget->property("text").toString();
      const auto* const asLabel = qobject_cast<const QLabel*>(widget);
      if (const qsizetype at = text.indexOf('&'); at >= 0 && (!asLabel || asLabel->buddy())) {
        QVERIFY2(!keys.contains(text.mid(at + 1, 1).toLower()), qPrintable(text));
        keys.insert(text.mid(at + 1, 1).toLower());
      }
    }
    QCOMPARE(keys.size(), 8);
    field()->setFocus();
    QStringList order;
    do {
      order += QApplication::focusWidget()->property("text").toString();
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    } while (!field()->hasFocus() && order.size() < 20);
    QCOMPARE(order, (QStringList{"licht", "Licht", "&Ersetzen", "&Alle ersetzen", "", "&Groß-/Kleinschreibung",
                                 "Nur ganze &Wörter", "", "S&chließen"}));
  }

private:
  [[nodiscard]] QLineEdit* field() const { return mDialog->findChild<QLineEdit*>(); }
  [[nodiscard]] QLabel* label(const QString& name) const { return mDialog->findChild<QLabel*>(name); }

  [[nodiscard]] QPushButton* button(const QString& text) const {
    const auto buttons = mDialog->findChildren<QPushButton*>();
    return *std::find_if(buttons.cbegin(), buttons.cend(), [&](QPushButton* one) { return one->text() == text; });
  }

  void click(const QString& text) const { QTest::mouseClick(button(text), Qt::LeftButton); }

  void type(const QString& text) const {
    field()->setFocus();
    field()->selectAll();
    QTest::keyClicks(field(), text);
    QTest::keyClick(field(), Qt::Key_Down); // hands it over at once
    field()->setFocus();
    mTree->setCurrentIndex({});
  }

  void replaceMode(const QString& text, const QString& by) const {
    mDialog->setReplaceMode(true);
    type(text);
    mDialog->findChild<QLineEdit*>("ui:mReplaceBy")->setText(by);
  }

  /// The text in its place when there are none.
  [[nodiscard]] QStringList shownRows() const {
    QStringList rows;
    for (int row = 0; row < mTree->model()->rowCount(); ++row) {
      QStringList cells;
      for (int column = 0; column < mTree->model()->columnCount(); ++column) {
        cells += mTree->model()->index(row, column).data().toString();
      }
      rows += cells.join('|');
    }
    for (const QLabel* const hint : mTree->parentWidget()->findChildren<QLabel*>()) {
      if (hint->isVisible() && !hint->text().isEmpty()) {
        rows += hint->text();
      }
    }
    return rows;
  }

  std::unique_ptr<Session_Rig> mRig;
  std::unique_ptr<App_Settings> mSettings;
  std::unique_ptr<Usage_Sample> mSample;
  std::unique_ptr<Project_Search_Dialog> mDialog;
  QTreeView* mTree = nullptr;
};

QTEST_MAIN(Project_Search_Dialog_Test)
#include "Project_Search_Dialog_Test.moc"
