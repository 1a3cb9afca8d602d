#include "db/Page_Tree_Model.h"
#include "tests/db/Session_Rig.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

/// The tree of pages as views see it, in a new project with a second logic page on a second controller.
class Page_Tree_Model_Test : public QObject {
  Q_OBJECT

private slots:
  void init() {
    mRig = std::make_unique<Session_Rig>();
    QVERIFY(mRig->create());
    ProjectDatabase& database = mRig->mSession.database();
    DB_Controller controller;
    controller.mNumber = 2;
    controller.mName = QStringLiteral("Keller");
    database.mProject.mControllers = {controller};
    auto page = std::make_unique<DB_FB_Page>();
    page->mCaption = QStringLiteral("Heizung");
    page->mControllerIndex = 2;
    mHeating = database.mFbPages.appendPage(std::move(page)).mGuid;
    auto block = std::make_unique<DB_FB_Control>();
    block->mPageGuid = mHeating;
    database.mFbPages.appendChild(std::move(block));
    mModel = std::make_unique<Page_Tree_Model>(mRig->mSession);
    mTester = std::make_unique<QAbstractItemModelTester>(mModel.get(),
                                                         QAbstractItemModelTester::FailureReportingMode::QtTest);
  }

  void cleanup() {
    Session_State::process().setOperatingMode(false);
    mTester.reset();
    mModel.reset();
    mRig.reset();
  }

  void pages() {
    const std::pair<std::pair<int, int>, QStringList> cases[] = {
        {{0, 0}, {"Programm 1", "Programmseite", "2000 × 1400 Pixel", "0 Bausteine", "Hauptsteuerung"}},
        {{0, 1}, {"Heizung", "Programmseite", "2000 × 1400 Pixel", "1 Baustein", "2 (Keller)"}},
        {{1, 0}, {"Visu hoch", "Visualisierungsseite, Hochformat", "800 × 1280 Pixel", "0 Elemente", ""}},
        {{1, 1}, {"Visu quer", "Visualisierungsseite, Querformat", "1280 × 800 Pixel", "0 Elemente", ""}}};
    for (const auto& [place, details] : cases) {
      const QModelIndex index = mModel->index(place.second, 0, mModel->index(place.first, 0));
      const QUuid guid = mModel->guidOf(index);
      QCOMPARE(mModel->indexOf(guid), index);
      QCOMPARE(index.data().toString(), details[0]);
      const auto found = mModel->detailsOf(guid);
      QVERIFY(found && found->mGuid == guid);
      QCOMPARE((QStringList{found->mCaption, found->mKind, found->mSize, found->mContent, found->mController}),
               details);
    }
    QVERIFY(mModel->guidOf(mModel->index(0, 0)).isNull());
  }

  void renameIsOneStep() {
    const QSignalSpy changes(mModel.get(), &QAbstractItemModel::dataChanged);
    QVERIFY(mModel->setData(mModel->indexOf(mHeating), QStringLiteral("Kühlung")));
    QCOMPARE(changes.size(), 1);
    QCOMPARE(mModel->detailsOf(mHeating)->mCaption, QStringLiteral("Kühlung"));
    QVERIFY(mRig->mSession.history().undo());
    QCOMPARE(mModel->indexOf(mHeating).data().toString(), QStringLiteral("Heizung"));
    QVERIFY(mRig->mSession.history().redo());
    QCOMPARE(mModel->indexOf(mHeating).data().toString(), QStringLiteral("Kühlung"));
  }

  void refusals() {
    const QModelIndex index = mModel->indexOf(mHeating);
    const QSignalSpy refused(mModel.get(), &Page_Tree_Model::refused);
    QVERIFY(!mModel->setData(index, QStringLiteral("  ")));
    QVERIFY(!mModel->setData(index, QString(256, QLatin1Char('x'))));
    mRig->mState.setOperatingMode(true);
    Session_State::process().setOperatingMode(true);
    QVERIFY(!index.flags().testFlag(Qt::ItemIsEditable));
    QVERIFY(!mModel->setData(index, QStringLiteral("Neu")));
    QCOMPARE(refused.size(), 3);
    QCOMPARE(index.data().toString(), QStringLiteral("Heizung"));
  }

  void followsTheProject() {
    mRig->mSession.close();
    QCOMPARE(mModel->rowCount(mModel->index(0, 0)), 0);
    QVERIFY(!mModel->indexOf(mHeating).isValid());
    QVERIFY(!mModel->detailsOf(mHeating));
    QVERIFY(mRig->create());
    QCOMPARE(mModel->rowCount(mModel->index(0, 0)), 1);
    QCOMPARE(mModel->rowCount(mModel->index(1, 0)), 2);
  }

private:
  std::unique_ptr<Session_Rig> mRig;
  std::unique_ptr<Page_Tree_Model> mModel;
  std::unique_ptr<QAbstractItemModelTester> mTester;
  QUuid mHeating;
};

QTEST_GUILESS_MAIN(Page_Tree_Model_Test)
#include "Page_Tree_Model_Test.moc"
