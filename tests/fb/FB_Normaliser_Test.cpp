#include "fb/model/FB_Normaliser.h"
#include "fb/model/FB_Page_Edits.h"
#include "fb/model/FB_Page_List_Edits.h"
#include "fb/model/FB_Page_Notices.h"
#include "fb/model/FB_Pins.h"
#include "fb/model/FB_Types.h"
#include "tests/db/Project_Dump.h"
#include "tests/db/Session_Rig.h"

class FB_Normaliser_Test : public QObject {
  Q_OBJECT

private slots:
  void anUnknownTypeBecomesACommentAndComesBack() {
    Session_Rig rig;
    QVERIFY(rig.create());
    DB_Page_List<DB_FB_Page>& pages = rig.mSession.database().mFbPages;
    const auto add = [&pages](int type, const QString& title) {
      auto block = std::make_unique<DB_FB_Control>();
      block->mPageGuid = pages.pages().at(0).mGuid;
      block->mType = type;
      block->mTitle = title;
      return pages.appendChild(std::move(block))->mGuid;
    };
    const QUuid known = add(50, QStringLiteral("Und hier"));
    const QUuid unknown = add(54321, QStringLiteral("Neuheit"));
    const QUuid comment = add(FB_Types::cComment, QStringLiteral("Text"));
    QCOMPARE(FB_Normaliser::normalise(pages).mUnknown, 1);
    QCOMPARE(pages.child(known)->mTitle, QStringLiteral("Und hier"));
    QCOMPARE(pages.child(comment)->mTitle, QStringLiteral("Text"));
    QCOMPARE(pages.child(unknown)->mType, FB_Types::cComment);
    QCOMPARE(pages.child(unknown)->mTitle, QString());
    QVERIFY(!rig.mSession.isModified());
    QCOMPARE(rig.mSession.save(), Project_Session::Save_Result::Saved);
    const QByteArray saved = Project_Dump::project(rig.mSession.database());
    QVERIFY(rig.mSession.open(rig.path()));
    QCOMPARE(FB_Normaliser::normalise(pages).mUnknown, 1);
    QCOMPARE(Project_Dump::project(rig.mSession.database()), saved);
    // The same file in a studio that knows the type.
    pages.child(unknown)->mOriginalType = 51;
    QCOMPARE(FB_Normaliser::normalise(pages).mRestored, 1);
    QCOMPARE(pages.child(unknown)->mType, 51);
    QCOMPARE(pages.child(unknown)->mTitle, QStringLiteral("Neuheit"));
    QCOMPARE(pages.child(unknown)->mOriginalType, 0);
    QCOMPARE(pages.child(unknown)->mInputs.size(), size_t(2));
  }

  void impossibleCountsAreCorrectedWithoutAStep() {
    Session_Rig rig;
    QVERIFY(rig.create());
    DB_Page_List<DB_FB_Page>& pages = rig.mSession.database().mFbPages;
    const auto add = [&pages](const QString& count) {
      auto block = FB_Pins::makeBlock(50, {});
      block->mPageGuid = pages.pages().at(0).mGuid;
      block->mParams[0] = count;
      return pages.appendChild(std::move(block))->mGuid;
    };
    const QUuid wrong = add(QStringLiteral("abc"));
    const QUuid right = add(QStringLiteral("2"));
    pages.child(right)->mInputs[0].mLongName = QStringLiteral("Input 1"); // written in another language
    QCOMPARE(FB_Normaliser::normalise(pages).mRebuilt, 1);
    QCOMPARE(pages.child(wrong)->mParams.at(0), QStringLiteral("2"));
    QCOMPARE(pages.child(right)->mInputs[0].mLongName, QStringLiteral("Input 1"));
    const QUuid large = add(QStringLiteral("1000000"));
    pages.pages().at(0).mCaption = QStringLiteral("Keller");
    const QStringList told = FB_Normaliser::normalise(pages).mMissingPins;
    QCOMPARE(pages.child(large)->mParams.at(0), QStringLiteral("1000000"));
    QCOMPARE(pages.child(large)->mInputs.size(), size_t(FB_Pins::cMostPins));
    QVERIFY(told.size() == 1 && told.at(0).startsWith(u"Keller: Und: "));
    QCOMPARE(FB_Page_Notices::of(pages.pages().at(0), {}, {}).size(), 1);
    QVERIFY(!rig.mSession.isModified());
    QCOMPARE(FB_Normaliser::normalise(pages).mRebuilt, 0);
  }

  void placesThatNobodyReachesAreCorrected_data() {
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("corrected");
    QTest::newRow("right") << -12.5 << -12.5;
    QTest::newRow("far") << 1e300 << double(FB_Page_Edits::cPositionLimit);
    QTest::newRow("far left") << -1e12 << -double(FB_Page_Edits::cPositionLimit);
    QTest::newRow("no number") << qQNaN() << 0.0;
  }
  void placesThatNobodyReachesAreCorrected() {
    QFETCH(double, x);
    Session_Rig rig;
    QVERIFY(rig.create());
    DB_Page_List<DB_FB_Page>& pages = rig.mSession.database().mFbPages;
    DB_FB_Page& page = pages.pages().at(0);
    page.mWidth = 2'000'000'000;
    page.mHeight = -1;
    auto block = FB_Pins::makeBlock(50, {x, 7});
    block->mPageGuid = page.mGuid;
    const DB_FB_Control& added = *pages.appendChild(std::move(block));
    FB_Normaliser::normalise(pages);
    QTEST(added.mX, "corrected");
    QCOMPARE(added.mY, 7.0);
    QCOMPARE(page.mWidth, FB_Page_List_Edits::cSizeMaximum);
    QCOMPARE(page.mHeight, FB_Page_List_Edits::cSizeMinimum);
  }
};

QTEST_GUILESS_MAIN(FB_Normaliser_Test)
#include "FB_Normaliser_Test.moc"
