#include "db/Model_Roles.h"
#include "db/Project_Replace.h"
#include "db/Project_Search_Model.h"
#include "db/Variable_Edits.h"
#include "tests/db/Project_Dump.h"
#include "tests/db/Usage_Sample.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

using Project_Search::Scope;

/// Searching and replacing in a small project that has a text in every field.
class Project_Search_Test : public QObject {
  Q_OBJECT

private slots:
  void init() {
    mRig = std::make_unique<Session_Rig>();
    QVERIFY(mRig->create());
    mSample = std::make_unique<Usage_Sample>(*mRig);
    Address_Tree& tree = database().mAddresses;
    tree.mainGroup(1)->mName = QStringLiteral("Erdgeschoß");
    tree.middleGroup(1, 2)->mName = QStringLiteral("Küche");
    tree.subGroup(mSample->mLight)->mDescription = QStringLiteral("UV1, Kanal 2\nDecke Küche");
    DB_FB_Page& logic = database().mFbPages.pages().at(0);
    logic.mComment = QStringLiteral("Alles zum Licht");
    DB_FB_Control& block = logic.mChildren.at(0);
    block.mName = QStringLiteral("Verteiler");
    block.mComment = QStringLiteral("schaltet das Licht,\n\tdas Licht im Flur");
    block.mParams = QStringList{QStringLiteral("12"), QStringLiteral("Licht.wav")};
    database().mWidgetPages.page(mSample->element().mPageGuid)->mComment = QStringLiteral("Küche unten");
    mSample->element().mComment = QStringLiteral("für Küche");
    mSample->element().mParams = QStringList{QStringLiteral("Küche")};
    tree.beginChange(); // what is cached in the bindings is to be true
    tree.endChange();
  }

  void finds_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<Scope>("scope");
    QTest::addColumn<QStringList>("hits");
    const QString name = QStringLiteral("Adresse 1/2/3|Name|[Licht]");
    const QString description = QStringLiteral("Adresse 1/2/3 Licht|Beschreibung|UV1, Kanal 2 Decke [Küche]");
    const QStringList visuPage{"Visualisierungsseite Visu|Kommentar|[Küche] unten"};
    const QStringList elements{"Element Visu / Knopf|Kommentar|für [Küche]",
                               "Element Visu / Knopf|Parameter 1|[Küche]"};
    const QStringList logicPage{"Programmseite Programm 1|Kommentar|Alles zum [Licht]"};
    const QStringList blocks{"Baustein Programm 1 / Verteiler|Kommentar|schaltet das [Licht],  das [Licht] im Flur",
                             "Baustein Programm 1 / Verteiler|Parameter 2|[Licht].wav"};
    const QStringList kitchen{"Mittelgruppe 1/2/*|Name|[Küche]", description};
    QTest::newRow("nothing") << "" << Scope::Everything << QStringList();
    QTest::newRow("what is nowhere") << "Garage" << Scope::Everything << QStringList();
    QTest::newRow("everywhere") << "licht" << Scope::Everything << QStringList{name} + logicPage + blocks;
    QTest::newRow("umlauts") << "KÜCHE" << Scope::Everything << kitchen + visuPage + elements;
    QTest::newRow("in addresses") << "küche" << Scope::Addresses << kitchen;
    QTest::newRow("in pages") << "küche" << Scope::Pages << visuPage;
    QTest::newRow("in blocks") << "licht" << Scope::Blocks << blocks;
    QTest::newRow("in elements") << "küche" << Scope::Elements << elements;
    QTest::newRow("captions") << "visu" << Scope::Pages
                              << QStringList{"Visualisierungsseite Visu hoch|Name|[Visu] hoch",
                                             "Visualisierungsseite Visu quer|Name|[Visu] quer",
                                             "Visualisierungsseite Visu|Name|[Visu]"};
    QTest::newRow("a main group") << "geschoss" << Scope::Addresses << QStringList{"Hauptgruppe 1/*|Name|Erd[geschoß]"};
    QTest::newRow("a variable") << "merk" << Scope::Everything
                                << QStringList{"Variable Programm 1 / Verteiler: Ausgang 1|Name|[Merk]er"};
    QTest::newRow("a variable is no page") << "merk" << Scope::Pages << QStringList();
    QTest::newRow("title and name") << "fl" << Scope::Blocks
                                    << QStringList{"Baustein Programm 1 / Verteiler|Kommentar|schaltet das Licht,  das "
                                                   "Licht im [Fl]ur",
                                                   "Baustein Programm 1 / Flur|Titel|[Fl]ur"};
    QTest::newRow("types") << "typ 5" << Scope::Blocks
                           << QStringList{"Baustein Programm 1 / Verteiler|Typ|[Typ 5]0",
                                          "Baustein Programm 1 / Flur|Typ|[Typ 5]0"};
    QTest::newRow("over a line break") << "2\ndecke" << Scope::Everything
                                       << QStringList{"Adresse 1/2/3 Licht|Beschreibung|UV1, Kanal [2 Decke] Küche"};
    QTest::newRow("an address") << "1/2/3" << Scope::Everything << QStringList{"Adresse 1/2/3 Licht|Adresse|[1/2/3]"};
    QTest::newRow("no longer address") << "1/2/" << Scope::Everything
                                       << QStringList{"Mittelgruppe 1/2/* Küche|Adresse|[1/2/*]",
                                                      "Adresse 1/2/3 Licht|Adresse|[1/2/3]",
                                                      "Adresse 1/2/4 Reserve|Adresse|[1/2/4]"};
    QTest::newRow("a number beyond all") << "99999999999/*" << Scope::Everything << QStringList();
    QTest::newRow("another address that ends so") << "2/3" << Scope::Everything << QStringList();
    QTest::newRow("of a main group") << " 4/* " << Scope::Everything
                                     << QStringList{"Hauptgruppe 4/*|Adresse|[4/*]",
                                                    "Mittelgruppe 4/0/*|Adresse|[4/0/*]",
                                                    "Adresse 4/0/0 Wind|Adresse|[4/0/0]"};
  }

  void finds() {
    QFETCH(const QString, text);
    QFETCH(const Scope, scope);
    Project_Search_Model model(database(), typeName);
    new QAbstractItemModelTester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest, &model);
    model.search(Address_Usage(database()), {text, {}, scope});
    QStringList found;
    for (int row = 0; row < model.rowCount(); ++row) {
      const auto cell = [&](int column) { return model.index(row, column).data().toString(); };
      QString marked = cell(Project_Search_Model::cText);
      const auto matches = model.index(row, Project_Search_Model::cText).data(Model_Roles::cMatches);
      const auto all = matches.value<Project_Search_Model::Matches>();
      for (auto match = all.crbegin(); match != all.crend(); ++match) {
        marked.insert(match->mStart + match->mLength, u']').insert(match->mStart, u'[');
      }
      found += cell(Project_Search_Model::cKind) + ' ' + cell(Project_Search_Model::cPlace) + '|' +
               cell(Project_Search_Model::cField) + '|' + marked;
      QVERIFY(!model.index(row, 0).data(Model_Roles::cIconName).toString().isEmpty());
    }
    QTEST(found, "hits");
  }

  void placesAndMatchesAreCounted() {
    const Project_Search::Result result = find(QStringLiteral("licht"));
    QCOMPARE(result.mHits.size(), size_t(4));
    QCOMPARE(result.mPlaces, 3);
    QCOMPARE(result.mMatches, 5);
  }

  void aLongTextIsShownFromItsMatchOn() {
    DB_Widget& element = mSample->element();
    element.mComment = QString(5000, u'x') + QStringLiteral(" Ziel ") + QString(5000, u'y');
    Project_Search_Model model(database(), typeName);
    model.search({}, {QStringLiteral("ziel"), {}, {}});
    const QModelIndex cell = model.index(0, Project_Search_Model::cText);
    const auto match = cell.data(Model_Roles::cMatches).value<Project_Search_Model::Matches>().value(0);
    const QString text = cell.data().toString();
    QVERIFY(text.startsWith(QStringLiteral("…xxx")) && text.size() < 500);
    QVERIFY(match.mStart < 50);
    QCOMPARE(text.mid(match.mStart, match.mLength), QStringLiteral("Ziel"));
    QVERIFY(cell.data(Qt::ToolTipRole).toString().contains(element.mComment));
  }

  void searchingAgainResetsOnlyWhatDiffers() {
    Project_Search_Model model(database(), typeName);
    const QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    const auto search = [&](const char* text) {
      model.search(Address_Usage(database()), {QString::fromUtf8(text), {}, {}});
      return reset.size();
    };
    QCOMPARE(search("licht"), 1);
    database().mFbPages.pages().at(0).mCaption = QStringLiteral("Anders");
    QCOMPARE(search("licht"), 1);
    database().mFbPages.pages().at(0).mComment = QStringLiteral("Vom Licht");
    QCOMPARE(search("licht"), 2);
    database().mFbPages.clear(); // rows of what is gone are still painted until the next search
    for (int row = 0; row < model.rowCount(); ++row) {
      model.index(row, Project_Search_Model::cText).data();
      model.index(row, Project_Search_Model::cPlace).data();
    }
    QCOMPARE(search("licht"), 3);
    QCOMPARE(model.rowCount(), 1);
  }

  void replaces_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("by");
    QTest::addColumn<Scope>("scope");
    QTest::addColumn<QString>("outcome");
    QTest::addColumn<QStringList>("texts"); // that differ afterwards
    const QString nothing = "Nichts ersetzt.";
    const QString parameter = " 1 Stelle bleibt, wie sie ist: ";
    QTest::newRow("nothing sought") << ""
                                    << "x" << Scope::Everything << nothing << QStringList();
    QTest::newRow("what is nowhere") << "Garage"
                                     << "x" << Scope::Everything << nothing << QStringList();
    QTest::newRow("by itself") << "Merker"
                               << "Merker" << Scope::Everything << nothing << QStringList();
    QTest::newRow("everywhere") << "licht"
                                << "Lampe" << Scope::Everything
                                << "4 Stellen ersetzt. Strg+Z nimmt es zurück. 1 Stelle bleibt, wie sie ist: Baustein "
                                   "Programm 1 / Verteiler, Parameter 2: Parameter werden nicht ersetzt."
                                << QStringList{"Lampe", "Alles zum Lampe", "schaltet das Lampe,\n\tdas Lampe im Flur"};
    QTest::newRow("a variable at all its pins")
        << "Merker"
        << "Nacht" << Scope::Addresses << "1 Stelle ersetzt. Strg+Z nimmt es zurück." << QStringList{"Nacht"};
    QTest::newRow("by what holds it") << "Wind"
                                      << "Wind Wind" << Scope::Everything << "1 Stelle ersetzt. Strg+Z nimmt es zurück."
                                      << QStringList{"Wind Wind"};
    QTest::newRow("captions and titles") << "u"
                                         << "U" << Scope::Pages << "6 Stellen ersetzt. Strg+Z nimmt es zurück."
                                         << QStringList{"Alles zUm Licht", "VisU hoch", "VisU qUer", "VisU",
                                                        "Küche Unten"};
    QTest::newRow("a name would be empty") << "Wind"
                                           << "" << Scope::Everything
                                           << "Nichts ersetzt. 1 Stelle bleibt, wie sie ist: Adresse 4/0/0, Name: Der "
                                              "Name wäre leer."
                                           << QStringList();
    QTest::newRow("a variable would be blank") << "Merker"
                                               << " \t" << Scope::Everything
                                               << "Nichts ersetzt. 1 Stelle bleibt, wie sie ist: Variable Programm 1 / "
                                                  "Verteiler: Ausgang 1, Name: Der Name wäre leer."
                                               << QStringList();
    QTest::newRow("a comment may be empty")
        << "für Küche"
        << "" << Scope::Everything << "1 Stelle ersetzt. Strg+Z nimmt es zurück." << QStringList{""};
    QTest::newRow("marker bytes are lost") << "Wind"
                                           << "St\u0002ur\u0003m" << Scope::Everything
                                           << "1 Stelle ersetzt. Strg+Z nimmt es zurück." << QStringList{"Sturm"};
    QTest::newRow("a name stays in one line")
        << "Wind"
        << "a\nb " << Scope::Everything << "1 Stelle ersetzt. Strg+Z nimmt es zurück." << QStringList{"a b"};
    QTest::newRow("line breaks stay") << "decke küche"
                                      << "Wand" << Scope::Everything << "1 Stelle ersetzt. Strg+Z nimmt es zurück."
                                      << QStringList{"UV1, Kanal 2\nWand"};
    QTest::newRow("a name of 255") << "Wind" << QString(255, u'w') << Scope::Everything
                                   << "1 Stelle ersetzt. Strg+Z nimmt es zurück." << QStringList{QString(255, u'w')};
    QTest::newRow("a name too long, a comment not")
        << "unten" << QString(256, u'w') << Scope::Everything << "1 Stelle ersetzt. Strg+Z nimmt es zurück."
        << QStringList{"Küche " + QString(256, u'w')};
    QTest::newRow("a name of 256") << "Wind" << QString(256, u'w') << Scope::Everything
                                   << "Nichts ersetzt. 1 Stelle bleibt, wie sie ist: Adresse 4/0/0, Name: Der Text "
                                      "hätte 256 Zeichen, erlaubt sind höchstens 255."
                                   << QStringList();
    QTest::newRow("types and addresses stay") << "Typ"
                                              << "x" << Scope::Everything
                                              << "Nichts ersetzt. 2 Stellen bleiben, wie sie sind, die erste: Baustein "
                                                 "Programm 1 / Verteiler, Typ: Der Typ eines Bausteins steht fest."
                                              << QStringList();
    QTest::newRow("addresses stay") << "1/2/3"
                                    << "1/2/5" << Scope::Everything
                                    << "Nichts ersetzt. 1 Stelle bleibt, wie sie ist: Adresse 1/2/3 Licht, Adresse: "
                                       "Adressen werden nicht ersetzt."
                                    << QStringList();
    QTest::newRow("patterns are plain") << ".*"
                                        << "x" << Scope::Everything << nothing << QStringList();
  }

  void replaces() {
    QFETCH(const QString, text);
    QFETCH(const QString, by);
    QFETCH(const Scope, scope);
    const QByteArray before = dump();
    const QStringList textsBefore = texts();
    QTEST(replaceAll(text, by, scope).toString(), "outcome");
    const QByteArray after = dump();
    QStringList changed;
    const QStringList textsAfter = texts();
    for (int i = 0; i < textsAfter.size(); ++i) {
      if (textsAfter[i] != textsBefore[i]) {
        changed += textsAfter[i];
      }
    }
    QTEST(changed, "texts");
    QCOMPARE(mRig->mSession.history().position(), changed.isEmpty() ? size_t(0) : size_t(1));
    QCOMPARE(after == before, changed.isEmpty());
    for (int round = 0; round < 2 && !changed.isEmpty(); ++round) {
      QVERIFY(mRig->mSession.history().undo());
      QCOMPARE(dump(), before);
      QVERIFY(mRig->mSession.history().redo());
      QCOMPARE(dump(), after);
    }
  }

  void boundPinsFollow() {
    QVERIFY(replaceAll(QStringLiteral("Licht"), QStringLiteral("Lampe"), Scope::Addresses).mReplaced == 1);
    replaceAll(QStringLiteral("Merker"), QStringLiteral("Nacht"), Scope::Everything);
    const DB_FB_Page& page = database().mFbPages.pages().at(0);
    QCOMPARE(page.mChildren.at(0).mInputs[0].mBinding.mName, QStringLiteral("Lampe"));
    QCOMPARE(page.mChildren.at(0).mOutputs[0].mBinding.mName, QStringLiteral("Nacht"));
    QCOMPARE(page.mChildren.at(1).mInputs[0].mBinding.mName, QStringLiteral("Nacht"));
  }

  void onlyTheChosenHits() {
    const Project_Search::Result result = find(QStringLiteral("küche"));
    const Project_Replace::Outcome outcome =
        Project_Replace::replace(mRig->mSession, {QStringLiteral("küche"), {}, {}}, result,
                                 std::span(result.mHits).subspan(1, 1), QStringLiteral("Bad"), typeName);
    QCOMPARE(outcome.mReplaced, 1);
    QCOMPARE(database().mAddresses.subGroup(mSample->mLight)->mDescription, QStringLiteral("UV1, Kanal 2\nDecke Bad"));
    QCOMPARE(find(QStringLiteral("küche")).mHits.size(), result.mHits.size() - 1);
  }

  void moreAddressesThanViewsHearOfOneByOne() {
    for (int sub = 10; sub < 100; ++sub) {
      mRig->addAddress({1, 2, sub}, QStringLiteral("Fenster %1").arg(sub));
    }
    const QByteArray before = dump();
    const QSignalSpy rebuilt(&database().mAddresses, &Address_Tree::structureChanged);
    QCOMPARE(replaceAll(QStringLiteral("Fenster"), QStringLiteral("Tür"), {}).mReplaced, 90);
    QCOMPARE(rebuilt.size(), 1);
    QVERIFY(mRig->mSession.history().undo());
    QCOMPARE(dump(), before);
  }

  void whatChangedSinceTheSearch() {
    const Project_Search::Result result = find(QStringLiteral("e"));
    Variable_Edits::rename(mRig->mSession, mSample->mVariable, QStringLiteral("Tag"));
    database().mWidgetPages.clear();
    mRig->mSession.history().commit();
    const Project_Replace::Outcome outcome = Project_Replace::replace(
        mRig->mSession, {QStringLiteral("e"), {}, {}}, result, result.mHits, QStringLiteral("E"), typeName);
    QVERIFY(outcome.mReplaced > 0);
    QCOMPARE(Address_Usage(database()).variables()[0].mName, QStringLiteral("Tag"));
  }

  void theOperatingModeRefuses() {
    const QByteArray before = dump();
    mRig->mState.setOperatingMode(true);
    const Project_Replace::Outcome outcome = replaceAll(QStringLiteral("Licht"), QStringLiteral("x"), {});
    QCOMPARE(outcome.toString(), Session_State::operatingModeRefusal());
    QCOMPARE(outcome.mReplaced, 0);
    QCOMPARE(dump(), before);
  }

private:
  static QString typeName(int type) { return QStringLiteral("Typ %1").arg(type); }
  [[nodiscard]] ProjectDatabase& database() { return mRig->mSession.database(); }
  [[nodiscard]] QByteArray dump() { return Project_Dump::project(database()); }

  [[nodiscard]] Project_Search::Result find(const QString& text, Scope scope = {}) {
    return Project_Search::find(database(), Address_Usage(database()), {text, {}, scope}, typeName);
  }

  Project_Replace::Outcome replaceAll(const QString& text, const QString& by, Scope scope) {
    const Project_Search::Result result = find(text, scope);
    return Project_Replace::replace(mRig->mSession, {text, {}, scope}, result, result.mHits, by, typeName);
  }

  /// Every text that can be searched, in the order of the project; of variables the first.
  [[nodiscard]] QStringList texts() {
    QStringList texts;
    const auto add = [&texts]<class Record>(const Record& record) {
      for (const auto& [field, text] : Project_Texts::of<Record>()) {
        texts += record.*text;
      }
      if constexpr (requires { record.mParams; }) {
        texts += record.mParams;
      }
    };
    for (const auto& main : database().mAddresses.mainGroups()) {
      add(*main);
      for (const auto& middle : main->mMiddleGroups) {
        add(*middle);
        for (const auto& sub : middle->mSubGroups) {
          add(*sub);
        }
      }
    }
    texts += Address_Usage(database()).variables()[0].mName;
    const auto addPages = [&add](const auto& list) {
      for (const auto& page : list.pages()) {
        add(*page);
        for (const auto& child : page->mChildren) {
          add(*child);
        }
      }
    };
    addPages(database().mFbPages);
    addPages(database().mWidgetPages);
    return texts;
  }

  std::unique_ptr<Session_Rig> mRig;
  std::unique_ptr<Usage_Sample> mSample;
};

QTEST_GUILESS_MAIN(Project_Search_Test)
#include "Project_Search_Test.moc"
