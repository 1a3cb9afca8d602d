#include "db/Address_Clipboard.h"
#include "db/Address_Edits.h"
#include "db/Address_Table_Paste.h"
#include "db/Address_Usage.h"
#include "tests/db/Project_Dump.h"
#include "tests/db/Session_Rig.h"

using Field = Address_Edits::Field;
using Use = Address_Clipboard::Use;

/// Every edit as a row: what it answers, how the tree looks afterwards, and that it can be undone and done again.
class Address_Edits_Test : public QObject {
  Q_OBJECT

private slots:
  void init() {
    mRig = std::make_unique<Session_Rig>();
    QVERIFY(mRig->create());
    mRig->addAddress({0, 0, 1}, QStringLiteral("Eins"));
    mRig->addAddress({1, 2, 3}, QStringLiteral("Licht"));
    mRig->addAddress({1, 2, 4}, QStringLiteral("Jalousie"));
    mRig->addAddress({1, 3, 3}, QStringLiteral("Wind"));
    mRig->addAddress({5, 0, 0}, QStringLiteral("Regen"));
    mRig->mSession.history().clear();
  }

  void edits_data() {
    using Edit = std::function<Edit_Result(Address_Edits_Test&)>;
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<QString>("tree");  ///< afterwards; empty when it is refused
    QTest::addColumn<QString>("error"); ///< part of the refusal
    using T = Address_Edits_Test;
    const auto row = [](const char* name, const Edit& edit, const char* tree, const char* error = "") {
      QTest::newRow(name) << edit << QString::fromUtf8(tree) << QString::fromUtf8(error);
    };
    const auto refused = [&row](const char* name, const Edit& edit, const char* error) { row(name, edit, "", error); };
    constexpr const char* cSame = "0/0/1 Eins|1/2/3 Licht|1/2/4 Jalousie|1/3/3 Wind|5/0/0 Regen";

    row(
        "rename", [](T& t) { return t.set("1/2/3", Field::Name, " Lampe\n1 "); },
        "0/0/1 Eins|1/2/3 Lampe 1|1/2/4 Jalousie|1/3/3 Wind|5/0/0 Regen");
    refused(
        "rename too long", [](T& t) { return t.set("1/2/3", Field::Name, QString(256, u'x')); }, "256 Zeichen");
    row(
        "type", [](T& t) { return t.set("1/2/3", Field::Type, "DPST-9-1"); },
        "0/0/1 Eins|1/2/3 Licht 9.001|1/2/4 Jalousie|1/3/3 Wind|5/0/0 Regen");
    row(
        "type of a whole group", [](T& t) { return t.set("1/*", Field::Type, "1"); },
        "0/0/1 Eins|1/2/3 Licht 1|1/2/4 Jalousie 1|1/3/3 Wind 1|5/0/0 Regen");
    refused(
        "no type", [](T& t) { return t.set("1/2/3", Field::Type, "warm"); }, "\"warm\" ist kein Datenpunkttyp");
    row(
        "flag of several", [](T& t) { return t.set("1/2/*,5/0/0", Field::Active, false); },
        "0/0/1 Eins|1/2/3 Licht aus|1/2/4 Jalousie aus|1/3/3 Wind|5/0/0 Regen aus");
    refused(
        "flag of nothing", [](T& t) { return Address_Edits::set(t.session(), {}, Field::Write, true); },
        "gibt es nicht mehr");
    refused(
        "flag of an empty group",
        [](T& t) {
          QUuid key;
          Address_Edits::addMainGroup(t.session(), 9, {}, &key);
          t.session().history().commit();
          t.session().history().undo();
          t.session().history().redo();
          Edit_Result result = Address_Edits::set(t.session(), {key}, Field::Write, true);
          t.session().history().undo();
          t.session().history().clear();
          return result;
        },
        "In der Gruppe ist keine Adresse");

    row(
        "add",
        [](T& t) {
          return Address_Edits::add(t.session(), {1, 2, 0}, {"Neu", "", {9, 1}});
        },
        "0/0/1 Eins|1/2/0 Neu 9.001|1/2/3 Licht|1/2/4 Jalousie|1/3/3 Wind|5/0/0 Regen");
    row(
        "add with groups",
        [](T& t) {
          return Address_Edits::add(t.session(), {31, 7, 255}, {"Ende", "", {}});
        },
        "0/0/1 Eins|1/2/3 Licht|1/2/4 Jalousie|1/3/3 Wind|5/0/0 Regen|31/7/255 Ende");
    refused(
        "add again",
        [](T& t) {
          return Address_Edits::add(t.session(), {1, 2, 3}, {});
        },
        "1/2/3 gibt es schon: \"Licht\"");
    refused(
        "add beyond the bus",
        [](T& t) {
          return Address_Edits::add(t.session(), {32, 0, 0}, {});
        },
        "32/0/0");
    refused(
        "add a middle group again", [](T& t) { return Address_Edits::addMiddleGroup(t.session(), 1, 2, {}); }, "1/2/*");
    refused(
        "add main group 32", [](T& t) { return Address_Edits::addMainGroup(t.session(), 32, {}); }, "0..31");

    row(
        "remove", [](T& t) { return t.remove("1/2/3,5/0/0"); }, "0/0/1 Eins|1/2/4 Jalousie|1/3/3 Wind|5/0/*");
    row(
        "remove a group and what is in it", [](T& t) { return t.remove("1/2/3,1/*,1/3/*"); }, "0/0/1 Eins|5/0/0 Regen");
    refused(
        "remove nothing", [](T& t) { return Address_Edits::remove(t.session(), {QUuid::createUuid()}); },
        "gibt es nicht mehr");

    row(
        "renumber", [](T& t) { return t.renumber("1/2/3", "1/2/9"); },
        "0/0/1 Eins|1/2/4 Jalousie|1/2/9 Licht|1/3/3 Wind|5/0/0 Regen");
    row(
        "renumber into a new group", [](T& t) { return t.renumber("1/2/3", "7/1/0"); },
        "0/0/1 Eins|1/2/4 Jalousie|1/3/3 Wind|5/0/0 Regen|7/1/0 Licht");
    row(
        "renumber a middle group", [](T& t) { return t.renumber("1/2/*", "5/7"); },
        "0/0/1 Eins|1/3/3 Wind|5/0/0 Regen|5/7/3 Licht|5/7/4 Jalousie");
    row(
        "renumber a main group", [](T& t) { return t.renumber("5/*", "0/*", "0/*", "30"); },
        "0/0/0 Regen|1/2/3 Licht|1/2/4 Jalousie|1/3/3 Wind|30/0/1 Eins");
    refused(
        "renumber to one that is taken", [](T& t) { return t.renumber("1/2/3", "1/2/4"); }, "\"Jalousie\"");
    refused(
        "renumber to no number", [](T& t) { return t.renumber("1/2/3", "1/2/256"); }, "0..255");
    refused(
        "renumber a group to an address", [](T& t) { return t.renumber("1/2/*", "1/2/3"); }, "keine Mittelgruppe");
    row(
        "renumber to itself", [](T& t) { return t.renumber("1/2/3", "1/515"); }, cSame);

    row(
        "move", [](T& t) { return t.move("1/2/3,1/2/4", "1/3/*"); },
        "0/0/1 Eins|1/2/*|1/3/3 Wind|1/3/4 Licht|1/3/5 Jalousie|5/0/0 Regen");
    row(
        "move a middle group", [](T& t) { return t.move("1/2/*", "5/*"); },
        "0/0/1 Eins|1/3/3 Wind|5/0/0 Regen|5/2/3 Licht|5/2/4 Jalousie");
    row(
        "move to where it is", [](T& t) { return t.move("1/2/3", "1/2/*"); }, cSame);
    refused(
        "move into an address", [](T& t) { return t.move("1/2/3", "1/3/3"); }, "nur in eine Mittelgruppe");
    refused(
        "move a group into a group of its kind", [](T& t) { return t.move("1/2/*", "1/3/*"); }, "nur in eine");

    row(
        "copy", [](T& t) { return t.paste("1/2/3,1/2/4", Use::Copy, "1/3/3"); },
        "0/0/1 Eins|1/2/3 Licht|1/2/4 Jalousie|1/3/3 Wind|1/3/4 Licht|1/3/5 Jalousie|5/0/0 Regen");
    row(
        "copy beside itself", [](T& t) { return t.paste("1/2/*,1/2/3", Use::Copy, "1/2/3"); },
        "0/0/1 Eins|1/2/3 Licht|1/2/4 Jalousie|1/3/3 Wind|1/4/3 Licht|1/4/4 Jalousie|5/0/0 Regen");
    row(
        "copy a main group", [](T& t) { return t.paste("5/*", Use::Copy, ""); },
        "0/0/1 Eins|1/2/3 Licht|1/2/4 Jalousie|1/3/3 Wind|5/0/0 Regen|6/0/0 Regen");
    row(
        "cut", [](T& t) { return t.paste("1/2/3", Use::Move, "5/0/*"); },
        "0/0/1 Eins|1/2/4 Jalousie|1/3/3 Wind|5/0/0 Regen|5/0/3 Licht");
    refused(
        "cut a main group", [](T& t) { return t.paste("5/*", Use::Move, ""); }, "steht für sich");
    refused(
        "copy addresses into a main group", [](T& t) { return t.paste("1/2/3", Use::Copy, "5/*"); }, "Mittelgruppe");
    refused(
        "copy different levels", [](T& t) { return t.paste("1/2/3,1/3/*", Use::Copy, "5/*"); }, "nicht gemischt");
    refused(
        "paste nothing", [](T& t) { return Address_Clipboard::paste(t.session(), "{}", {}, t.mResult); },
        "lassen sich");

    refused(
        "paste a group with a group of its kind in it",
        [](T& t) {
          QByteArray packed = Address_Clipboard::pack(t.session(), t.keys("1/2/*"), Use::Copy);
          return Address_Clipboard::paste(t.session(), packed.replace("\"level\":2", "\"level\":1"),
                                          t.keys("5/*").value(0), t.mResult);
        },
        "lassen sich");

    row(
        "table with addresses",
        [](T& t) { return t.pasteText("1/2/3\tLampe\t\tDPST-1-1\n2/0/0\t\"a \"\"b\"\"\"\r\n3/*\tHaus\n"); },
        "0/0/1 Eins|1/2/3 Lampe 1.001|1/2/4 Jalousie|1/3/3 Wind|2/0/0 a \"b\"|3/* Haus|5/0/0 Regen");
    row(
        "table with titles", [](T& t) { return t.pasteText("Typ;Aktiv;Adresse;Name\n9.001 Temperatur;nein;1/2/3;\n"); },
        "0/0/1 Eins|1/2/3  9.001 aus|1/2/4 Jalousie|1/3/3 Wind|5/0/0 Regen");
    row(
        "table with types as the tree shows them",
        [](T& t) {
          return t.pasteText("Adresse\tDatenpunkttyp\n1/2/3\tDPT 9.001\n1/2/4\t9.001 (vermutet)\n"
                             "1/3/3\tunbekannt\n5/0/0\t \n");
        },
        "0/0/1 Eins|1/2/3 Licht 9.001|1/2/4 Jalousie 9.001|1/3/3 Wind|5/0/0 Regen");
    row(
        "table with types behind the names", [](T& t) { return t.pasteText("1/2/3\tA\t1.001\n1/2/4\tB\t\n"); },
        "0/0/1 Eins|1/2/3 A 1.001|1/2/4 B|1/3/3 Wind|5/0/0 Regen");
    row(
        "table with an address twice", [](T& t) { return t.pasteText("1/2/3\tA\n1/2/3\tB\n"); },
        "0/0/1 Eins|1/2/3 A|1/2/4 Jalousie|1/3/3 Wind|5/0/0 Regen");
    row(
        "names only", [](T& t) { return t.pasteText("Erste\nZweite\tBeschreibung\t5.001\n", "1/2/*"); },
        "0/0/1 Eins|1/2/0 Erste|1/2/1 Zweite 5.001|1/2/3 Licht|1/2/4 Jalousie|1/3/3 Wind|5/0/0 Regen");
    row(
        "table with faults", [](T& t) { return t.pasteText("1/2/3\tLampe\n1/2/400\tx\n1/2/4\ty\t\twarm\n"); },
        "0/0/1 Eins|1/2/3 Lampe|1/2/4 Jalousie|1/3/3 Wind|5/0/0 Regen");
    row(
        "addresses called like titles", [](T& t) { return t.pasteText("0/0/9\tAktiv\t\t1.001\n0/0/8\tName\tTyp\n"); },
        "0/0/1 Eins|0/0/8 Name|0/0/9 Aktiv 1.001|1/2/3 Licht|1/2/4 Jalousie|1/3/3 Wind|5/0/0 Regen");
    row(
        "names called like titles", [](T& t) { return t.pasteText("Zentral\nAktiv\n", "1/2/*"); },
        "0/0/1 Eins|1/2/0 Zentral|1/2/1 Aktiv|1/2/3 Licht|1/2/4 Jalousie|1/3/3 Wind|5/0/0 Regen");
    row(
        "table with mostly wrong addresses",
        [](T& t) { return t.pasteText("99/0/0\ta\n1/2/400\tb\nName\tc\n2/0/0\td\n", "1/2/*"); },
        "0/0/1 Eins|1/2/3 Licht|1/2/4 Jalousie|1/3/3 Wind|2/0/0 d|5/0/0 Regen");
    refused(
        "names without a place", [](T& t) { return t.pasteText("Erste\n"); }, "keine Mittelgruppe");
    refused(
        "no table", [](T& t) { return t.pasteText(" \n\t\n"); }, "weder Adressen noch eine Tabelle");
  }

  void edits() {
    QFETCH(const std::function<Edit_Result(Address_Edits_Test&)>, edit);
    QFETCH(const QString, tree);
    QFETCH(const QString, error);
    const QByteArray before = dump();
    mRig->mState.setOperatingMode(true);
    const Edit_Result locked = edit(*this);
    QVERIFY(!locked || tree == "0/0/1 Eins|1/2/3 Licht|1/2/4 Jalousie|1/3/3 Wind|5/0/0 Regen");
    QCOMPARE(dump(), before);
    mRig->mState.setOperatingMode(false);

    const Edit_Result result = edit(*this);
    session().history().commit();
    QVERIFY2(result.mError.contains(error) && static_cast<bool>(result) == error.isEmpty(), qPrintable(result.mError));
    if (!error.isEmpty()) {
      QCOMPARE(dump(), before);
      QVERIFY(!session().history().canUndo());
      return;
    }
    QCOMPARE(shown(), tree);
    const QByteArray after = dump();
    QVERIFY(!after.contains("NOT FOUND"));
    QCOMPARE(session().history().position(), size_t(after == before ? 0 : 1));
    if (after != before) {
      QVERIFY(session().history().undo());
      QCOMPARE(dump(), before);
      QVERIFY(session().history().redo());
      QCOMPARE(dump(), after);
    }
  }

  void aFullGroupRefuses() {
    for (int sub = 0; sub <= 255; ++sub) {
      if (!session().database().mAddresses.subGroup({5, 0, sub})) {
        mRig->addAddress({5, 0, sub}, {});
      }
    }
    session().history().clear();
    const QByteArray before = dump();
    for (const Edit_Result& result : {move("1/2/3", "5/0/*"), paste("1/2/3", Use::Copy, "5/0/*")}) {
      QVERIFY(result.mError.contains(QStringLiteral("nicht genug Nummern frei")));
    }
    QCOMPARE(Address_Edits::freeSub(session(), 5, 0), -1);
    QCOMPARE(Address_Edits::freeSub(session(), 0, 0), 2);
    QCOMPARE(Address_Edits::freeSub(session(), 1, 2, 256), 0);
    QCOMPARE(dump(), before);
  }

  void bindingsFollowTheirAddress() {
    Address_Tree& tree = session().database().mAddresses;
    auto page = std::make_unique<DB_FB_Page>();
    auto block = std::make_unique<DB_FB_Control>();
    block->mInputs.resize(1);
    DB_Address_Binding& binding = block->mInputs[0].mBinding;
    binding.bindTo(*tree.subGroup(Group_Address(1, 2, 3)), {1, 2, 3});
    page->mChildren.append(std::move(block));
    session().database().mFbPages.appendPage(std::move(page));
    const QUuid key = binding.mKey;
    const auto cached = [&binding] {
      return QStringLiteral("%1/%2/%3 %4").arg(binding.mMain).arg(binding.mMiddle).arg(binding.mSub).arg(binding.mName);
    };
    set("1/2/3", Field::Name, "Lampe");
    QCOMPARE(cached(), "1/2/3 Lampe");
    renumber("1/*", "9");
    QCOMPARE(cached(), "9/2/3 Lampe");
    const Address_Usage usage(session().database());
    QCOMPARE(Address_Edits::whatRemoves(session(), {key}, usage).mUses, 1);
    remove("9/2/3");
    QCOMPARE(cached(), "9/2/3 Lampe"); // the copy stays, so that it can be told what is missing
    session().history().commit();
    QVERIFY(session().history().undo());
    QCOMPARE(binding.mKey, key);
    QCOMPARE(cached(), "1/2/3 Licht");
  }

private:
  [[nodiscard]] Project_Session& session() { return mRig->mSession; }
  [[nodiscard]] QByteArray dump() { return Project_Dump::project(session().database(), false); }

  /// "1/2/3", "1/2/*" or "1/*", several divided by commas.
  [[nodiscard]] QList<QUuid> keys(const QString& texts) {
    const Address_Tree& tree = session().database().mAddresses;
    QList<QUuid> keys;
    for (const QString& text : texts.split(u',', Qt::SkipEmptyParts)) {
      if (const auto main = Group_Address::parseMainGroup(text)) {
        keys.append(tree.mainGroup(main->main())->mKey);
      } else if (const auto middle = Group_Address::parseMiddleGroup(text)) {
        keys.append(tree.middleGroup(middle->main(), middle->middle())->mKey);
      } else {
        keys.append(tree.subGroup(*Group_Address::parse(text))->mKey);
      }
    }
    return keys;
  }

  Edit_Result set(const QString& texts, Field field, const QVariant& value) {
    return Address_Edits::set(session(), keys(texts), field, value);
  }
  Edit_Result remove(const QString& texts) { return Address_Edits::remove(session(), keys(texts)); }
  Edit_Result renumber(const QString& text, const QString& number) {
    return Address_Edits::renumber(session(), keys(text).value(0), number);
  }
  /// Two groups that change places.
  Edit_Result renumber(const QString& text, const QString& number, const QString& other, const QString& otherNumber) {
    const QUuid key = keys(text).value(0);
    const Edit_Result first = renumber(other, otherNumber);
    return first ? Address_Edits::renumber(session(), key, number) : first;
  }
  Edit_Result move(const QString& texts, const QString& target) {
    return Address_Edits::move(session(), keys(texts), keys(target).value(0));
  }
  Edit_Result paste(const QString& texts, Use use, const QString& target) {
    const QByteArray packed = Address_Clipboard::pack(session(), keys(texts), use);
    return Address_Clipboard::paste(session(), packed, keys(target).value(0), mResult);
  }
  Edit_Result pasteText(const QString& text, const QString& target = {}) {
    return Address_Table_Paste::paste(session(), text, keys(target).value(0), mResult);
  }

  /// Addresses with name, type and "aus" when not active; groups that are empty or have a name.
  [[nodiscard]] QString shown() {
    QStringList lines;
    for (const auto& main : session().database().mAddresses.mainGroups()) {
      if (main->mMiddleGroups.isEmpty()) {
        lines.append(Group_Address::mainGroupText(main->mNumber) + u' ' + main->mName);
      }
      for (const auto& middle : main->mMiddleGroups) {
        if (middle->mSubGroups.isEmpty()) {
          lines.append(Group_Address::middleGroupText(main->mNumber, middle->mNumber) + middle->mName);
        }
        for (const auto& sub : middle->mSubGroups) {
          QString line = QStringLiteral("%1/%2/%3 ").arg(main->mNumber).arg(middle->mNumber).arg(sub->mNumber);
          line += sub->mName + (sub->mDpt.isNone() ? QString() : u' ' + sub->mDpt.toString());
          lines.append(line + (sub->mActive ? QString() : QStringLiteral(" aus")));
        }
      }
    }
    return lines.join(u'|');
  }

  std::unique_ptr<Session_Rig> mRig;

public:
  Address_Clipboard::Result mResult;
};

QTEST_GUILESS_MAIN(Address_Edits_Test)
#include "Address_Edits_Test.moc"
