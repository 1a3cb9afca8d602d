#include "fb/model/FB_Output_Check.h"
#include "fb/model/FB_Page_Links.h"
#include "tests/db/Usage_Sample.h"

#include <QSignalSpy>

/// "Programm 1" holds two blocks: a variable leads from the first output of the first to the first input of the second,
/// whose output writes "Wind". Further pages are added.
class FB_Page_Links_Test : public QObject {
  Q_OBJECT

private slots:
  void init() {
    mRig = std::make_unique<Session_Rig>();
    QVERIFY(mRig->create());
    mSample = std::make_unique<Usage_Sample>(*mRig);
    mPages = &mRig->mSession.database().mFbPages;
  }

  void cleanup() { mRig.reset(); }

  void aPinLeadsToItsCounterparts_data() {
    QTest::addColumn<QStringList>("pages"); // each with "E" or "A" where the variable is used
    QTest::addColumn<QString>("ofInput");
    QTest::addColumn<QString>("ofOutput");
    QTest::newRow("on no other page") << QStringList{"Keller "} << ""
                                      << "";
    QTest::newRow("read elsewhere") << QStringList{"Keller E"} << "Keller"
                                    << "Keller";
    QTest::newRow("written elsewhere") << QStringList{"Keller A"} << "Keller"
                                       << "Keller";
    QTest::newRow("both") << QStringList{"Keller E", "Dach A"} << "Dach"
                          << "Keller";
    QTest::newRow("two pages") << QStringList{"Keller EE", "Dach E"} << "Keller, Dach"
                               << "Keller, Dach";
    QTest::newRow("five pages") << QStringList{"K E", "D E", "A A", "B E", "C AE"} << "A, C"
                                << "K, D, +2";
  }

  void aPinLeadsToItsCounterparts() {
    QFETCH(const QStringList, pages);
    for (const QString& page : pages) {
      addPage(page.section(' ', 0, 0), page.section(' ', 1));
    }
    FB_Page_Links links(mRig->mSession);
    QFETCH(const QString, ofInput);
    QFETCH(const QString, ofOutput);
    const DB_FB_Page& page = mPages->pages().at(0);
    QCOMPARE(links.text({page.mChildren.at(1).mGuid, FB_Side::Input, 0}), ofInput);
    QCOMPARE(links.text({page.mChildren.at(0).mGuid, FB_Side::Output, 0}), ofOutput);
    QCOMPARE(links.text({page.mChildren.at(0).mGuid, FB_Side::Output, 7}), QString());
    QCOMPARE(links.text({QUuid::createUuid(), FB_Side::Input, 0}), QString());
  }

  void targetsFollowEdits() {
    FB_Page_Links links(mRig->mSession);
    const FB_Pin_Ref output{mPages->pages().at(0).mChildren.at(0).mGuid, FB_Side::Output, 0};
    QCOMPARE(links.targets(output).size(), 0);
    QCOMPARE(links.text(output), QString());
    const QSignalSpy changed(&links, &FB_Page_Links::changed);
    const QUuid keller = addPage(QStringLiteral("Keller"), QStringLiteral("AE"));
    QTRY_COMPARE(changed.size(), 1);
    const QList<FB_Page_Links::Target> targets = links.targets(output);
    QCOMPARE(targets.size(), 1);
    QCOMPARE(targets[0].mPage, keller);
    QCOMPARE(targets[0].mPin, (FB_Pin_Ref{mPages->page(keller)->mChildren.at(1).mGuid, FB_Side::Input, 0}));
    QCOMPARE(targets[0].mText, QStringLiteral("Und: Eingang 1"));
    QCOMPARE(links.text(output), QStringLiteral("Keller"));
    mPages->changePage(keller, [](DB_FB_Page& page) { page.mCaption = QStringLiteral("Dach"); });
    QTRY_COMPARE(links.text(output), QStringLiteral("Dach"));
  }

  void doubleOutputsAreFound() {
    ProjectDatabase& database = mRig->mSession.database();
    const auto found = [&database] {
      QStringList texts;
      for (const Address_Use_Row& row : FB_Output_Check::rows(database)) {
        texts += QStringLiteral("%1 %2").arg(row.mName, row.mText.toString());
      }
      return texts;
    };
    QCOMPARE(found(), QStringList());
    addPage(QStringLiteral("Keller"), QStringLiteral("AEA"));
    const QStringList variable{"Merker Programm 1 / Und: Ausgang 1", "Merker Keller / Und: Ausgang 1",
                               "Merker Keller / Und: Ausgang 1"};
    QCOMPARE(found(), variable);
    std::vector<DB_FB_Pin>& outputs = mPages->pages().at(0).mChildren.at(1).mOutputs;
    outputs.push_back(outputs[0]);
    QCOMPARE(found(),
             variable + QStringList({"Wind Programm 1 / Flur: Ausgang 1", "Wind Programm 1 / Flur: Ausgang 1"}));
    QCOMPARE(FB_Output_Check::subjects(FB_Output_Check::rows(database)), 2);
    mPages->clear();
    QCOMPARE(found(), QStringList());
  }

private:
  QUuid addPage(const QString& caption, const QString& uses) {
    auto page = std::make_unique<DB_FB_Page>();
    page->mCaption = caption;
    const QUuid guid = mPages->appendPage(std::move(page)).mGuid;
    for (const QChar use : uses) {
      auto block = std::make_unique<DB_FB_Control>();
      block->mPageGuid = guid;
      block->mType = 50;
      DB_FB_Pin& pin = (use == 'A' ? block->mOutputs : block->mInputs).emplace_back();
      pin.mBinding = mPages->pages().at(0).mChildren.at(0).mOutputs[0].mBinding;
      mPages->appendChild(std::move(block));
    }
    return guid;
  }

  std::unique_ptr<Session_Rig> mRig;
  std::unique_ptr<Usage_Sample> mSample;
  DB_Page_List<DB_FB_Page>* mPages = nullptr;
};

QTEST_GUILESS_MAIN(FB_Page_Links_Test)
#include "FB_Page_Links_Test.moc"
