#include "db/Connection_Edits.h"
#include "tests/db/Session_Rig.h"

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(std::function<Edit_Result(Project_Session&)>)

class Connection_Edits_Test : public QObject {
  Q_OBJECT

  using Edit = std::function<Edit_Result(Project_Session&)>;

  static DB_Connections::ITEM item(const QString& name, const QString& address) {
    DB_Connections::ITEM item;
    item.mName = name;
    item.mAddress = address;
    return item;
  }

  /// Three connections A, B, C, the second one selected.
  static void fill(DB_Connections& connections) {
    connections.mItems = {item(u"A"_s, u"10.0.0.1"_s), item(u"B"_s, u"10.0.0.2"_s), item(u"C"_s, u"10.0.0.3"_s)};
    connections.mSelected = 1;
  }

  /// "A *B C": the names in their order, the selected one marked.
  static QString namesOf(const DB_Connections& connections) {
    QStringList names;
    for (int i = 0; i < static_cast<int>(connections.mItems.size()); ++i) {
      names.append((i == connections.mSelected ? u"*"_s : QString()) +
                   connections.mItems[static_cast<size_t>(i)].mName);
    }
    return names.join(u' ');
  }

private slots:
  void finds_data() {
    QTest::addColumn<QString>("query");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("error");
    const auto none = [](const char* name, const QString& query, const QString& error) {
      QTest::newRow(name) << query << -1 << error;
    };
    QTest::newRow("number") << u"#1"_s << 0 << QString();
    QTest::newRow("last number") << u" #5 "_s << 4 << QString();
    none("number 0", u"#0"_s, u"Verbindung #0 gibt es nicht."_s);
    none("number above", u"#6"_s, u"Verbindung #6 gibt es nicht."_s);
    none("no number", u" \"#Keller\" "_s, u"Verbindung  \"#Keller\"  gibt es nicht."_s);
    none("only the sign", u"#"_s, u"Verbindung # gibt es nicht."_s);
    none("beyond 32 bits", u"#4294967297"_s, u"Verbindung #4294967297 gibt es nicht."_s);
    none("empty", u"  "_s, {});
    none("only quotes", u"\"\""_s, {});
    QTest::newRow("name, quoted, other case") << u"\"KELLER\""_s << 0 << QString();
    QTest::newRow("quotes inside") << u"Kel\"ler"_s << 0 << QString();
    QTest::newRow("address") << u"192.168.1.21:10010"_s << 1 << QString();
    QTest::newRow("name equals address: one match") << u"10.0.0.9"_s << 3 << QString();
    QTest::newRow("serial number") << u"rz-0001"_s << 4 << QString();
    none("part of a name", u"Kell"_s, u"Verbindung \"Kell\" ist nicht eingerichtet."_s);
    none("user", u"root"_s, u"Verbindung \"root\" ist nicht eingerichtet."_s);
    none("twice", u"\"Dach\""_s, u"Verbindung \"\"Dach\"\" ist nicht eindeutig, bitte IP-Adresse angeben."_s);
    none("a place marker", u"%1"_s, u"Verbindung \"%1\" ist nicht eingerichtet."_s);
  }
  void finds() {
    QFETCH(QString, query);
    QFETCH(int, index);
    QFETCH(QString, error);
    DB_Connections connections;
    connections.mItems = {item(u" Keller "_s, u"192.168.1.20"_s), item(u"Dach"_s, u"192.168.1.21:10010"_s),
                          item(u"dach"_s, u"192.168.1.22"_s), item(u"10.0.0.9"_s, u"10.0.0.9"_s),
                          item(u"Hof"_s, u"10.0.0.8"_s)};
    for (auto& one : connections.mItems) {
      one.mUser = u"root"_s;
    }
    connections.mItems.back().mSerialNumber = u"RZ-0001"_s;
    QString told;
    QCOMPARE(connections.findConnection(query, &told), index);
    QCOMPARE(told, error);
    QCOMPARE(connections.findConnection(query), index);
  }

  void edits_data() {
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<QString>("names"); ///< empty: refused
    const auto row = [](const char* name, const QString& names, const Edit& edit) {
      QTest::newRow(name) << edit << names;
    };
    using namespace Connection_Edits;
    row("add", u"A *B C D"_s, [](auto& s) { return add(s, item(u" D\n"_s, u" 10.0.0.4:10010 "_s)); });
    row("add, selected", u"A B C *D"_s, [](auto& s) { return add(s, item(u"D"_s, u"keller"_s), true); });
    row("add without address", {}, [](auto& s) { return add(s, item(u"D"_s, {})); });
    row("change", u"A *B E"_s, [](auto& s) { return change(s, 2, item(u"E"_s, u"10.0.0.3"_s)); });
    row("change none", {}, [](auto& s) { return change(s, 3, item(u"E"_s, u"10.0.0.3"_s)); });
    row("change to no name", {}, [](auto& s) { return change(s, 0, item(u"\n "_s, u"10.0.0.3"_s)); });
    row("duplicate before the selected", u"A A 2 *B C"_s, [](auto& s) { return duplicate(s, 0); });
    row("remove before the selected", u"*B C"_s, [](auto& s) { return remove(s, {0}); });
    row("remove the selected", u"A *C"_s, [](auto& s) { return remove(s, {1}); });
    row("remove the selected and what follows", u"*A"_s, [](auto& s) { return remove(s, {1, 2, 1}); });
    row("remove one that is none", {}, [](auto& s) { return remove(s, {0, 3}); });
    row("move the selected up", u"*B A C"_s, [](auto& s) { return move(s, 1, 0); });
    row("move over the selected, down", u"*B C A"_s, [](auto& s) { return move(s, 0, 2); });
    row("move over the selected, up", u"C A *B"_s, [](auto& s) { return move(s, 2, 0); });
    row("move behind the end", {}, [](auto& s) { return move(s, 2, 3); });
    row("select", u"A B *C"_s, [](auto& s) { return select(s, 2); });
    row("select none", {}, [](auto& s) { return select(s, -1); });
  }
  void edits() {
    QFETCH(Edit, edit);
    QFETCH(QString, names);
    Session_Rig rig;
    QVERIFY(rig.create());
    Project_Session& session = rig.mSession;
    DB_Connections& connections = session.database().mConnections;
    fill(connections);
    session.history().clear();
    const QByteArray before = connections.toData();
    QSignalSpy changes(&session.database(), &ProjectDatabase::recordChanged);

    rig.mState.setOperatingMode(true);
    QVERIFY(!edit(session));
    QCOMPARE(connections.toData(), before);
    rig.mState.setOperatingMode(false);
    QCOMPARE(bool(edit(session)), !names.isEmpty());
    QCOMPARE(changes.size(), names.isEmpty() ? 0 : 1);
    if (names.isEmpty()) {
      QVERIFY(!session.history().canUndo());
      QCOMPARE(connections.toData(), before);
      return;
    }
    QCOMPARE(namesOf(connections), names);
    const QByteArray after = connections.toData();
    QVERIFY(session.history().undo());
    QCOMPARE(connections.toData(), before);
    QVERIFY(session.history().redo());
    QCOMPARE(connections.toData(), after);
    QCOMPARE(changes.size(), 3);
    QVERIFY(session.isModified());
  }

  void removingTheLastLeavesNoneSelected() {
    Session_Rig rig;
    QVERIFY(rig.create()); // has one connection
    QVERIFY(Connection_Edits::remove(rig.mSession, {0}));
    QCOMPARE(rig.mSession.database().mConnections.mSelected, -1);
    QVERIFY(Connection_Edits::add(rig.mSession, item(u"A"_s, u"10.0.0.1"_s)));
    QCOMPARE(rig.mSession.database().mConnections.mSelected, 0);
  }

  void faults_data() {
    using Field = Connection_Edits::Field;
    QTest::addColumn<DB_Connections::ITEM>("item");
    QTest::addColumn<QList<int>>("fields");
    const auto direct = [](const QString& address) { return item(u"A"_s, address); };
    const auto relayed = [](const QString& dns, const QString& host, const QString& mail) {
      DB_Connections::ITEM one = item(u"A"_s, u"not used: here"_s);
      one.mKind = DB_Connections::ITEM::cRelay;
      one.mRelayDns = dns;
      one.mRelayHost = host;
      one.mRelayMail = mail;
      return one;
    };
    const QList<int> none;
    QTest::newRow("address") << direct(u"192.168.1.20"_s) << none;
    QTest::newRow("address with port") << direct(u"keller.haus:65535"_s) << none;
    QTest::newRow("port 0") << direct(u"10.0.0.1:0"_s) << QList{int(Field::Address)};
    QTest::newRow("port above") << direct(u"10.0.0.1:65536"_s) << QList{int(Field::Address)};
    QTest::newRow("no address") << direct({}) << QList{int(Field::Address)};
    QTest::newRow("relayed") << relayed(u"haus.example"_s, {}, u"ich@haus.example"_s) << none;
    QTest::newRow("relayed, neither DNS name nor account") << relayed({}, {}, {}) << QList{int(Field::RelayDns)};
    QTest::newRow("relayed, account alone") << relayed({}, {}, u"ich@haus.example"_s) << none;
    QTest::newRow("relayed, host with port")
        << relayed(u"haus"_s, u"10.0.0.1:10003"_s, u"ich"_s) << QList{int(Field::RelayMail), int(Field::RelayHost)};
  }
  void faults() {
    QFETCH(DB_Connections::ITEM, item);
    QFETCH(QList<int>, fields);
    QList<int> found;
    for (const Connection_Edits::Fault& fault : Connection_Edits::faultsOf(item)) {
      found.append(int(fault.mField));
      QVERIFY(fault.mText.endsWith(u'.'));
    }
    QCOMPARE(found, fields);
  }
};

QTEST_MAIN(Connection_Edits_Test)
#include "Connection_Edits_Test.moc"
