#include "db/Address_Filter_Model.h"
#include "db/Address_Usage_Model.h"
#include "db/Address_Usage_Watch.h"
#include "db/Address_Use_Model.h"
#include "db/DB_Bindings.h"
#include "db/Variable_Edits.h"
#include "tests/db/Project_Dump.h"
#include "tests/db/Usage_Sample.h"

#include <QSignalSpy>

/// Where addresses are used, and the tables that show it.
class Address_Usage_Test : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { QLocale::setDefault(QLocale(QStringLiteral("de"))); }

  void init() {
    mRig = std::make_unique<Session_Rig>();
    QVERIFY(mRig->create());
    mSample = std::make_unique<Usage_Sample>(*mRig);
  }

  void usesStandInTheOrderOfPages() {
    const Address_Usage usage(database());
    const std::pair<QUuid, QStringList> cases[] = {
        {mSample->mLight,
         {"Programm 1 / Und: Eingang 1", "Programm 1 / Und: Eingang 2", "Programm 1 / Flur: Deaktivieren",
          "Visu / Knopf: Adresse 2"}},
        {mSample->mWind, {"Programm 1 / Flur: Ausgang 1"}},
        {mSample->mUnused, {}},
        {mSample->mVariable, {"Programm 1 / Und: Ausgang 1", "Programm 1 / Flur: Eingang 1"}},
        {QUuid(), {}},
        {QUuid::createUuid(), {}}};
    for (const auto& [key, texts] : cases) {
      QStringList found;
      for (const Address_Use& use : usage.uses(key)) {
        found += Address_Usage::text(database(), use, typeName).toString();
      }
      QCOMPARE(found, texts);
      QCOMPARE(usage.count(key), texts.size());
    }
    QCOMPARE(usage.variables().size(), size_t(1));
    QCOMPARE(usage.variables()[0].mKey, mSample->mVariable);
    QCOMPARE(usage.variables()[0].mName, QStringLiteral("Merker"));
    QCOMPARE(usage.variables()[0].mDpt, (Datapoint_Id{1, 1}));
  }

  void textsOfWhatIsGoneOrNameless() {
    const Address_Usage usage(database());
    const Address_Use use = usage.uses(mSample->mLight).front();
    QCOMPARE(Address_Usage::text(database(), use).mOwner, QStringLiteral("Baustein"));
    database().mFbPages.child(use.mOwnerGuid)->mInputs[0].mLongName.clear();
    QCOMPARE(Address_Usage::text(database(), use).mPlace, QStringLiteral("Eingang 1"));
    database().mFbPages.child(use.mOwnerGuid)->mInputs.clear();
    QCOMPARE(Address_Usage::text(database(), use).mPlace, QStringLiteral("Eingang 1"));
    database().mFbPages.clear();
    QCOMPARE(Address_Usage::text(database(), use).toString(), QString());
  }

  void invalidBindings() {
    QVERIFY(Address_Usage(database()).invalid().empty());
    database().mAddresses.take(mSample->mLight);
    DB_Address_Binding& binding = mSample->element().mAddresses[0];
    binding.mKind = DB_Address_Binding::Kind::GroupAddress;
    std::tie(binding.mMain, binding.mMiddle, binding.mSub) = std::tuple(4, 5, 6);
    const auto reasons = [this] {
      QStringList reasons;
      for (const auto& row : Address_Use_Model::invalidRows(database(), Address_Usage(database()), typeName)) {
        reasons += row.mText.mPlace + ' ' + row.mAddress->toString() + row.mName + ": " + row.mReason;
      }
      return reasons;
    };
    const QString gone = "Die Adresse gibt es nicht mehr";
    QCOMPARE(reasons(), QStringList({"Eingang 1 1/2/3Licht: " + gone + '.', "Eingang 2 1/2/3Licht: " + gone + '.',
                                     "Deaktivieren 1/2/3Licht: " + gone + '.', "Adresse 1 4/5/6: " + gone + '.',
                                     "Adresse 2 1/2/3Licht: " + gone + '.'}));
    mRig->addAddress({1, 2, 3}, "Lampe");
    QCOMPARE(reasons().first(), "Eingang 1 1/2/3Licht: " + gone + "; 1/2/3 ist jetzt \"Lampe\".");
  }

  void filterAndOrder() {
    Address_Use_Model uses;
    uses.setRows(Address_Use_Model::allRows(database(), Address_Usage(database()), typeName));
    QCOMPARE(uses.rowCount(), 5);
    Address_Usage_Model addresses;
    for (int i = 0; i < 12; ++i) {
      mRig->addAddress({11, 2, i}, QStringLiteral("kanal %1").arg(i));
    }
    mRig->addAddress({2, 1, 2}, "Kanal 7 von 1/2/3");
    addresses.setRows(Address_Usage_Model::rowsOf(database(), Address_Usage(database()), false));
    Address_Filter_Model model(addresses, Address_Usage_Model::cAddress);
    const std::tuple<const char*, int, Qt::SortOrder, QStringList> cases[] = {
        {"1/2/3", 0, Qt::AscendingOrder, {"2/1/2"}}, // in the name; the address itself is used
        {"11/2/1", 0, Qt::AscendingOrder, {"11/2/1"}},
        {"011/02/001", 0, Qt::AscendingOrder, {"11/2/1"}},
        {"1/*", 0, Qt::AscendingOrder, {"1/2/4"}},
        {"2/1/*", 0, Qt::AscendingOrder, {"2/1/2"}},
        {"2/1", 0, Qt::AscendingOrder, {"2/1/2"}},
        {"kanal 11/2 1/", 0, Qt::AscendingOrder, {}},
        {"von kanal", 0, Qt::AscendingOrder, {"2/1/2"}},
        {"KANAL 0", 1, Qt::DescendingOrder, {"11/2/10", "11/2/0"}},
        {"kanal 2/1/2", 1, Qt::AscendingOrder, {"2/1/2"}},
        {"",
         1,
         Qt::AscendingOrder,
         {"11/2/0", "11/2/1", "11/2/2", "11/2/3", "11/2/4", "11/2/5", "11/2/6", "11/2/7", "2/1/2", "11/2/8", "11/2/9",
          "11/2/10", "11/2/11", "1/2/4"}},
        {"garage", 0, Qt::AscendingOrder, {}}};
    for (const auto& [filter, column, order, expected] : cases) {
      model.setFilter(filter);
      model.sort(column, order);
      QStringList found;
      for (int row = 0; row < model.rowCount(); ++row) {
        found += model.index(row, 0).data().toString();
      }
      QCOMPARE(found, expected);
    }
    model.setFilter({});
    addresses.setRows(Address_Usage_Model::rowsOf(database(), Address_Usage(database()), true));
    model.sort(Address_Usage_Model::cCount, Qt::AscendingOrder);
    QCOMPARE(model.index(0, Address_Usage_Model::cCount).data().toString(), QStringLiteral("1"));
    QCOMPARE(model.index(1, Address_Usage_Model::cCount).data().toString(), QStringLiteral("4"));
  }

  void watchTellsEachTurnOnce() {
    Address_Usage_Watch watch(mRig->mSession);
    QSignalSpy changed(&watch, &Address_Usage_Watch::changed);
    QCOMPARE(watch.usage().count(mSample->mLight), 4);
    const auto unbind = [this](std::vector<DB_Address_Binding>& bindings) {
      bindings.clear();
      database().mWidgetPages.changePage(mSample->element().mPageGuid, [](DB_Widget_Page&) {});
    };
    unbind(mSample->element().mAddresses);
    mRig->addAddress({3, 3, 3}, {});
    QCOMPARE(watch.usage().count(mSample->mLight), 3); // before it tells
    QVERIFY(changed.isEmpty());
    QTRY_COMPARE(changed.size(), 1);
    mRig->mSession.close();
    QVERIFY(watch.usage().variables().empty());
    QTRY_COMPARE(changed.size(), 2);
  }

  void aVariableIsEditedInAllItsBindings() {
    Project_Session& session = mRig->mSession;
    const auto variable = [this] { return Address_Usage(database()).variables().at(0); };
    const QByteArray before = Project_Dump::project(database(), false);
    QVERIFY(Variable_Edits::rename(session, mSample->mVariable, QStringLiteral(" Nacht\n")));
    QVERIFY(Variable_Edits::setType(session, mSample->mVariable, QStringLiteral("5.010")));
    session.history().commit();
    for (const auto& block : database().mFbPages.pages().at(0).mChildren) {
      DB_Bindings::visitOwner(*block, [](const DB_Address_Binding& binding) {
        const bool isVariable = binding.mKind == DB_Address_Binding::Kind::Internal;
        const bool isChanged = binding.mName == QStringLiteral("Nacht") && binding.mDpt == Datapoint_Id{5, 10};
        QCOMPARE(isChanged, isVariable);
      });
    }
    QVERIFY(session.history().undo());
    QCOMPARE(Project_Dump::project(database(), false), before);
    QVERIFY(session.history().redo());
    QCOMPARE(variable().mName, QStringLiteral("Nacht"));
    const QByteArray after = Project_Dump::project(database(), false);
    const auto refused = [&](const Edit_Result& result) { return !result && !result.mError.isEmpty(); };
    QVERIFY(refused(Variable_Edits::rename(session, mSample->mVariable, QStringLiteral(" "))));
    QVERIFY(refused(Variable_Edits::rename(session, mSample->mLight, QStringLiteral("Nacht")))); // no variable
    QVERIFY(refused(Variable_Edits::rename(session, QUuid::createUuid(), QStringLiteral("Nacht"))));
    QVERIFY(refused(Variable_Edits::setType(session, mSample->mVariable, QStringLiteral("warm"))));
    mRig->mState.setOperatingMode(true);
    QVERIFY(refused(Variable_Edits::rename(session, mSample->mVariable, QStringLiteral("Tag"))));
    QCOMPARE(Project_Dump::project(database(), false), after);
  }

private:
  static QString typeName(int type) { return type == 50 ? QStringLiteral("Und") : QString(); }
  ProjectDatabase& database() { return mRig->mSession.database(); }

  std::unique_ptr<Session_Rig> mRig;
  std::unique_ptr<Usage_Sample> mSample;
};

QTEST_GUILESS_MAIN(Address_Usage_Test)
#include "Address_Usage_Test.moc"
