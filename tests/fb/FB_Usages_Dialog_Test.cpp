#include "base/App_Settings.h"
#include "fb/FB_Output_Check_Dialog.h"
#include "fb/FB_Usages_Dialog.h"
#include "fb/model/FB_Page_Edits.h"
#include "tests/db/Usage_Sample.h"

#include <QHeaderView>
#include <QLabel>
#include <QSignalSpy>
#include <QTreeView>

/// The lists of uses, read from their widgets.
class FB_Usages_Dialog_Test : public QObject {
  Q_OBJECT

private slots:
  void init() {
    mRig = std::make_unique<Session_Rig>();
    mSettings = std::make_unique<App_Settings>(mRig->path("settings.ini"));
    QVERIFY(mRig->create());
    mSample = std::make_unique<Usage_Sample>(*mRig);
    mBlocks = &mRig->mSession.database().mFbPages;
  }

  void cleanup() {
    mSample.reset();
    mSettings.reset();
    mRig.reset();
  }

  void usesOfWhatIsAskedFor() {
    FB_Usages_Dialog dialog(mRig->mSession, *mSettings);
    dialog.showUses(mSample->mWind);
    QCOMPARE(rows(dialog), QStringList{"Programm 1|Flur|Ausgang 1"});
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Verwendungen: 4/0/0 \"Wind\""));
    dialog.showUses(mSample->mVariable);
    QCOMPARE(rows(dialog), QStringList({"Programm 1|Und|Ausgang 1", "Programm 1|Flur|Eingang 1"}));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Verwendungen: Variable \"Merker\""));
    dialog.showType(50);
    QCOMPARE(rows(dialog), QStringList({"Programm 1|Und", "Programm 1|Flur"}));
    dialog.showType(51);
    QCOMPARE(rows(dialog), QStringList{"Baustein \"Oder\" wird nirgends verwendet."});
    dialog.showUses(mSample->mUnused);
    QCOMPARE(rows(dialog), QStringList{"1/2/4 \"Reserve\" wird nirgends verwendet."});
  }

  void enterJumpsAndEditsAreFollowed() {
    FB_Usages_Dialog dialog(mRig->mSession, *mSettings);
    dialog.showType(50);
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    const QSignalSpy chosen(&dialog, &Result_Dialog::childChosen);
    auto* const tree = dialog.findChild<QTreeView*>();
    tree->setCurrentIndex(tree->model()->index(1, 0));
    QTest::keyClick(tree, Qt::Key_Return);
    const DB_FB_Control& flur = mBlocks->pages().at(0).mChildren.at(1);
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(chosen[0], QVariantList({flur.mPageGuid, flur.mGuid}));
    QVERIFY(FB_Page_Edits::setTitle(mRig->mSession, flur.mGuid, QStringLiteral("Gang")));
    QTRY_COMPARE(rows(dialog), QStringList({"Programm 1|Und", "Programm 1|Gang"}));
    dialog.showUses(mSample->mVariable);
    mBlocks->clear();
    QTRY_COMPARE(rows(dialog), QStringList{"Variable \"Merker\" wird nirgends verwendet."});
  }

  void doubleOutputs() {
    FB_Output_Check_Dialog dialog(mRig->mSession, *mSettings);
    dialog.bringUp();
    QCOMPARE(rows(dialog), QStringList{"Auf jede Adresse und jede Variable schreibt höchstens ein Ausgang."});
    const FB_Pin_Ref output{mBlocks->pages().at(0).mChildren.at(0).mGuid, FB_Side::Output, 0};
    QVERIFY(FB_Page_Edits::bind(mRig->mSession, output, mSample->mWind));
    QTRY_COMPARE(rows(dialog), QStringList({"4/0/0|Wind|Programm 1|Und|Ausgang 1|2 Ausgänge schreiben hierauf.",
                                            "4/0/0|Wind|Programm 1|Flur|Ausgang 1|2 Ausgänge schreiben hierauf."}));
    QCOMPARE(dialog.findChild<QLabel*>("ui:mCount")->text(), QStringLiteral("1 Adresse oder Variable, 2 Ausgänge"));
  }

private:
  /// The cells as they stand beside each other; the text of an empty list.
  [[nodiscard]] static QStringList rows(const QDialog& dialog) {
    auto* const tree = dialog.findChild<QTreeView*>();
    QStringList rows;
    for (int row = 0; row < tree->model()->rowCount(); ++row) {
      QStringList cells;
      for (int place = 0; place < tree->header()->count(); ++place) {
        const int column = tree->header()->logicalIndex(place);
        if (!tree->isColumnHidden(column)) {
          cells += tree->model()->index(row, column).data().toString();
        }
      }
      rows += cells.join('|');
    }
    for (const QLabel* const hint : tree->parentWidget()->findChildren<QLabel*>()) {
      if (hint->isVisible() && !hint->text().isEmpty()) {
        rows += hint->text();
      }
    }
    return rows;
  }

  std::unique_ptr<Session_Rig> mRig;
  std::unique_ptr<App_Settings> mSettings;
  std::unique_ptr<Usage_Sample> mSample;
  DB_Page_List<DB_FB_Page>* mBlocks = nullptr;
};

QTEST_MAIN(FB_Usages_Dialog_Test)
#include "FB_Usages_Dialog_Test.moc"
