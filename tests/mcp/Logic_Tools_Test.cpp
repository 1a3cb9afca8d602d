#include "db/DB_Widget_Page.h"
#include "tests/db/Project_Dump.h"
#include "tests/mcp/Tool_Rig.h"

#include <QtTest>

#include <functional>

namespace {

constexpr int cAnd = 50;
constexpr int cTrigger = 103;
constexpr int cScript = 900;
constexpr int cFormula = 1393;
constexpr int cOnce = 1337;

/// Two pages; on the first two gates, A's output connected to B's first input, a script, a comment and a formula.
class House : public Tool_Rig {
public:
  House() {
    addAddress({1, 2, 3}, QStringLiteral("Licht"));
    mPage = call("list_fb_pages")["pages"].toArray().first().toObject()["guid"].toString();
    mOther = call("add_fb_page", {{"caption", "Keller"}})["guid"].toString();
    mA = add(cAnd);
    mB = add(cAnd);
    mScript = add(cScript);
    mComment = add(10);
    mFormula = add(cFormula);
    connectTo(mB, 0);
    mSession.database().mProject.mControllers = {{2, QStringLiteral("Garage"), {}, false}};
    mSession.history().clear();
  }

  QString add(int type, const QString& page = {}) {
    const QJsonObject made = call("add_function_block",
                                  {{"page_guid", page.isEmpty() ? mPage : page}, {"type", type}, {"x", 16}, {"y", 32}});
    return made["guid"].toString();
  }
  QJsonObject connectTo(const QString& target, int input) {
    return call("connect_fb_io", {{"source_fb_guid", mA},
                                  {"source_output_index", 0},
                                  {"target_fb_guid", target},
                                  {"target_input_index", input}});
  }
  const DB_FB_Control& block(const QString& guid) {
    return *mSession.database().mFbPages.child(QUuid::fromString(guid));
  }
  void bindAddress(const QString& guid, int input) {
    Address_Tree& tree = mSession.database().mAddresses;
    mSession.database().mFbPages.changeChild(QUuid::fromString(guid), [&](DB_FB_Control& record) {
      record.mInputs.at(static_cast<size_t>(input)).mBinding.bindTo(*tree.subGroup(Group_Address(1, 2, 3)), {1, 2, 3});
    });
  }
  QByteArray dump() { return Project_Dump::project(mSession.database(), false); }

  QString mPage, mOther, mA, mB, mScript, mComment, mFormula;
};

using Arguments = std::function<QJsonObject(const House&)>;
using Check = std::function<bool(House&, const QJsonObject&)>;

QJsonArray params(std::initializer_list<QJsonArray> entries) {
  QJsonArray list;
  for (const QJsonArray& entry : entries) {
    list.append(QJsonObject{{"index", entry.at(0)}, {"value", entry.at(1)}});
  }
  return list;
}

bool warns(const QJsonObject& answer, const QString& of) {
  return answer["warning"].toString().contains(of);
}

} // namespace

Q_DECLARE_METATYPE(Arguments)
Q_DECLARE_METATYPE(Check)

/// What the tools of logic pages and blocks change and answer, and what they refuse.
class Logic_Tools_Test : public QObject {
  Q_OBJECT

private slots:
  void edits_data();
  void edits();
  void refusals_data();
  void refusals();
  void types();
  void reading();
  void connectionList();
  void aDeletedAddressIsMissing();
};

void Logic_Tools_Test::aDeletedAddressIsMissing() {
  House house;
  house.bindAddress(house.mB, 1);
  const auto binding = [&] {
    return house.call("get_fb_detail", {{"guid", house.mB}})["inputs"][1]["binding"].toObject();
  };
  QVERIFY(binding()["address"] == "1/2/3" && !binding().contains("missing"));
  const QJsonObject address{{"main", 1}, {"middle", 2}, {"sub", 3}, {"comment", "Neu"}};
  QVERIFY(house.errorOf("delete_address", address).isEmpty());
  QVERIFY(binding()["missing"].toBool());
  QVERIFY(house.errorOf("create_address", address).isEmpty()); // another one of the same number
  QVERIFY(binding()["missing"].toBool());
}

void Logic_Tools_Test::edits_data() {
  QTest::addColumn<QString>("tool");
  QTest::addColumn<Arguments>("arguments");
  QTest::addColumn<Check>("check");
  const auto row = [](const char* name, const char* tool, const Arguments& arguments, const Check& check) {
    QTest::newRow(name) << QString::fromLatin1(tool) << arguments << check;
  };
  const auto update = [&row](const char* name, const QJsonObject& arguments, const Check& check) {
    row(
        name, "update_fb",
        [arguments](const House& h) {
          QJsonObject all = arguments;
          all["guid"] = h.mB;
          return all;
        },
        check);
  };
  const auto script = [&row](const char* name, const QJsonObject& arguments, const Check& check) {
    row(
        name, "set_lua_script",
        [arguments](const House& h) {
          QJsonObject all = arguments;
          all["fb_guid"] = h.mScript;
          return all;
        },
        check);
  };

  row(
      "page", "add_fb_page",
      [](const House&) {
        return QJsonObject{{"caption", " Dach\n"}};
      },
      [](House& h, const QJsonObject& answer) {
        const DB_FB_Page* const page = h.mSession.database().mFbPages.page(QUuid(answer["guid"].toString()));
        return page && page->mCaption == "Dach" && answer["caption"] == "Dach" && !answer.contains("warning");
      });
  row(
      "page of a name that is there", "add_fb_page",
      [](const House&) {
        return QJsonObject{{"caption", "Keller"}};
      },
      [](House&, const QJsonObject& answer) { return warns(answer, "gibt es schon"); });
  row(
      "controller", "set_fb_page_controller",
      [](const House& h) {
        return QJsonObject{{"page_guid", h.mPage}, {"controller_index", 2}};
      },
      [](House& h, const QJsonObject& answer) {
        return h.mSession.database().mFbPages.page(QUuid(h.mPage))->mControllerIndex == 2 &&
               answer["controller_name"] == "Garage";
      });
  row(
      "block", "add_function_block",
      [](const House& h) {
        return QJsonObject{{"page_guid", h.mOther}, {"type", cAnd}, {"x", -16}, {"y", 48}};
      },
      [](House& h, const QJsonObject& answer) {
        const DB_FB_Control& made = h.block(answer["guid"].toString());
        const QJsonObject count = answer["parameters"].toArray().first().toObject();
        return made.mPageGuid == QUuid(h.mOther) && made.mX == -16 && made.mY == 48 &&
               answer["inputs"].toArray().size() == 2 && answer["outputs"].toArray().size() == 1 &&
               answer["outputs"].toArray().first().toObject()["dpt"] == "1.001" && count["minimum"] == 2 &&
               count["maximum"] == 64 && count["value"] == "2" && warns(answer, "nicht ganz auf der Seite");
      });
  row(
      "block with addresses", "add_function_block",
      [](const House& h) {
        return QJsonObject{
            {"page_guid", h.mOther}, {"type", cAnd}, {"x", 16}, {"y", 16}, {"auto_generate_addresses", true}};
      },
      [](House& h, const QJsonObject& answer) {
        const QJsonObject bound = answer["outputs"].toArray().first().toObject()["binding"].toObject();
        return answer["addresses_created"] == 3 && bound["kind"] == "address" &&
               h.mSession.database().mAddresses.subGroup(*Group_Address::parse(bound["address"].toString()));
      });
  row(
      "deletion", "delete_function_block",
      [](const House& h) {
        return QJsonObject{{"guid", h.mA}};
      },
      [](House& h, const QJsonObject& answer) {
        const QJsonObject cut = answer["disconnected"].toArray().first().toObject();
        const QJsonObject released = answer["released"].toArray().first().toObject();
        return !h.mSession.database().mFbPages.child(QUuid(h.mA)) && cut["io_type"] == 1 &&
               cut["also_bound"].toArray().first().toObject()["fb_guid"] == h.mB && released["fb_guid"] == h.mB &&
               h.block(h.mB).mInputs[0].mBinding.mKind == DB_Address_Binding::Kind::None;
      });

  update("position, one half", {{"x", 320}}, [](House& h, const QJsonObject& answer) {
    return h.block(h.mB).mX == 320 && h.block(h.mB).mY == 32 && answer["x"] == 320;
  });
  update("position off the page", {{"x", -16}},
         [](House&, const QJsonObject& answer) { return warns(answer, "nicht ganz auf der Seite"); });
  update("caption", {{"comment", "Flur"}}, [](House& h, const QJsonObject& answer) {
    return h.block(h.mB).mComment == "Flur" && h.block(h.mB).mCommentAsCaption && answer["caption"] == "Flur";
  });
  update("comment that is no caption", {{"comment", "Flur"}, {"comment_use_as_caption", false}, {"x", 0}},
         [](House& h, const QJsonObject&) {
           return h.block(h.mB).mComment == "Flur" && !h.block(h.mB).mCommentAsCaption && h.block(h.mB).mX == 0;
         });
  row(
      "text of a comment block", "update_fb",
      [](const House& h) {
        return QJsonObject{{"guid", h.mComment}, {"comment", "Zeile 1\nZeile 2"}};
      },
      [](House& h, const QJsonObject&) { return h.block(h.mComment).mTitle == "Zeile 1\nZeile 2"; });
  for (const QJsonValue& value : {QJsonValue(5), QJsonValue("5"), QJsonValue(" 5.0 ")}) {
    update(qPrintable("parameter " + QString::number(int(value.type())) + value.toString()),
           {{"params", params({QJsonArray{0, value}})}}, [](House& h, const QJsonObject& answer) {
             return h.block(h.mB).mParams[0] == "5" && answer["inputs"].toArray().size() == 5 &&
                    !answer.contains("warning");
           });
  }

  script("script", {{"code", "function onProcess()\r\nend"}, {"inputs", 3}, {"outputs", 2}},
         [](House& h, const QJsonObject& answer) {
           const DB_FB_Control& block = h.block(h.mScript);
           return block.mParams[0] == "function onProcess()\nend" && block.mInputs.size() == 3 &&
                  block.mOutputs.size() == 2 && !answer.contains("warning");
         });
  script("script with a fault is stored", {{"code", "x = 1\ny = = 2"}}, [](House& h, const QJsonObject& answer) {
    return h.block(h.mScript).mParams[0] == "x = 1\ny = = 2" && h.block(h.mScript).mInputs.size() == 1 &&
           warns(answer, "Zeile 2");
  });
  script("script with what a project cannot hold", {{"code", "-- \x02\x03"}}, [](House& h, const QJsonObject& answer) {
    return h.block(h.mScript).mParams[0] == "-- " && warns(answer, "Steuerzeichen");
  });

  row(
      "formula with a fault is stored", "update_fb",
      [](const House& h) {
        return QJsonObject{{"guid", h.mFormula}, {"params", params({{1, "E1 + E3"}, {0, 2}})}};
      },
      [](House& h, const QJsonObject& answer) {
        return h.block(h.mFormula).mParams[1] == "E1 + E3" && warns(answer, "bei Zeichen 6");
      });
  row(
      "formula with the inputs that it needs", "update_fb",
      [](const House& h) {
        return QJsonObject{{"guid", h.mFormula}, {"params", params({{1, "E1 + E3"}, {0, 3}})}};
      },
      [](House&, const QJsonObject& answer) { return !answer.contains("warning"); });
  const auto connect = [&row](const char* name, const std::function<QString(const House&)>& source,
                              const std::function<QString(const House&)>& target, int input, const Check& check) {
    row(
        name, "connect_fb_io",
        [=](const House& h) {
          return QJsonObject{{"source_fb_guid", source(h)},
                             {"source_output_index", 0},
                             {"target_fb_guid", target(h)},
                             {"target_input_index", input}};
        },
        check);
  };
  const auto a = [](const House& h) { return h.mA; };
  const auto b = [](const House& h) { return h.mB; };
  const auto lua = [](const House& h) { return h.mScript; };
  connect("connection to a bound output", a, b, 1, [](House& h, const QJsonObject& answer) {
    return h.block(h.mB).mInputs[1].mBinding.mKey == h.block(h.mA).mOutputs[0].mBinding.mKey &&
           answer["binding"].toObject()["kind"] == "internal" && answer["also_bound_count"] == 1 &&
           answer["also_bound"].toArray().first().toObject()["io_index"] == 0 && answer["same_page"] == true;
  });
  connect("second writer", lua, b, 0, [](House& h, const QJsonObject& answer) {
    return h.block(h.mScript).mOutputs[0].mBinding.mKey == h.block(h.mB).mInputs[0].mBinding.mKey &&
           warns(answer, "mehrere Ausgaenge");
  });
  row(
      "disconnection", "disconnect_fb_io",
      [](const House& h) {
        return QJsonObject{{"fb_guid", h.mA}, {"io_type", 1}, {"io_index", 0}};
      },
      [](House& h, const QJsonObject& answer) {
        return answer["count"] == 2 && answer["disconnected"].toArray().size() == 2 &&
               !answer.contains("still_bound") &&
               h.block(h.mB).mInputs[0].mBinding.mKind == DB_Address_Binding::Kind::None &&
               h.block(h.mA).mOutputs[0].mBinding.mKind == DB_Address_Binding::Kind::None;
      });
}

void Logic_Tools_Test::edits() {
  QFETCH(const QString, tool);
  QFETCH(const Arguments, arguments);
  QFETCH(const Check, check);
  House house;
  const QByteArray before = house.dump();
  const QJsonObject answer = house.call(tool, arguments(house));
  QVERIFY2(!answer.contains("error") && check(house, answer), QJsonDocument(answer).toJson());
  QCOMPARE(house.mSession.history().position(), size_t(1));
  QVERIFY(house.mSession.history().undo());
  QCOMPARE(house.dump(), before);
}

void Logic_Tools_Test::refusals_data() {
  QTest::addColumn<QString>("tool");
  QTest::addColumn<Arguments>("arguments");
  QTest::addColumn<QString>("error");
  const auto row = [](const char* name, const char* tool, const QString& error, const Arguments& arguments) {
    QTest::newRow(name) << QString::fromLatin1(tool) << arguments << error;
  };
  const auto fixed = [](const QJsonObject& arguments) { return [arguments](const House&) { return arguments; }; };
  const auto update = [&row](const char* name, const QString& error, const QJsonValue& list) {
    row(name, "update_fb", error, [list](const House& h) {
      return QJsonObject{{"guid", h.mB}, {"x", 640}, {"comment", "Neu"}, {"params", list}};
    });
  };
  const QString page = QStringLiteral("FB-Seite nicht gefunden: x");
  const QString block = QStringLiteral("Funktionsbaustein nicht gefunden: x");
  row("get_fb_page", "get_fb_page", page, fixed({{"guid", "x"}}));
  row("list_fb_connections", "list_fb_connections", page, fixed({{"page_guid", "x"}}));
  row("get_fb_detail", "get_fb_detail", block, fixed({{"guid", "x"}}));
  row("delete_function_block", "delete_function_block", block, fixed({{"guid", "x"}}));
  row("caption of blanks", "add_fb_page", QStringLiteral("'caption' ist leer"), fixed({{"caption", " \n"}}));
  row("caption too long", "add_fb_page", QStringLiteral("255"), fixed({{"caption", QString(256, u'x')}}));
  row("controller", "set_fb_page_controller",
      QStringLiteral("controller_index 1 steht nicht in der Steuerungsliste. Erlaubt: 0 (Hauptsteuerung), 2 (Garage)"),
      [](const House& h) {
        return QJsonObject{{"page_guid", h.mPage}, {"controller_index", 1}};
      });

  const auto add = [&row](const char* name, const QString& error, const QJsonValue& type, int x = 0) {
    row(name, "add_function_block", error, [type, x](const House& h) {
      return QJsonObject{{"page_guid", h.mPage}, {"type", type}, {"x", x}, {"y", 0}};
    });
  };
  add("no type", QStringLiteral("Parameter 'type' fehlt. list_fb_types nennt alle Typen."), QJsonValue::Null);
  add("type 0", QStringLiteral("Unbekannter Bausteintyp: 0. list_fb_types nennt alle Typen."), 0);
  add("far away", QStringLiteral("Position"), cAnd, 1'000'001);
  row("no such page", "add_function_block", page, fixed({{"page_guid", "x"}, {"type", cAnd}, {"x", 0}, {"y", 0}}));

  update("no such parameter", QStringLiteral("params[1]: Parameter-Index ausserhalb"),
         params({QJsonArray{0, 4}, QJsonArray{77, 1}}));
  update("parameter twice", QStringLiteral("params[1]: Parameter 0 kommt mehrfach vor"),
         params({QJsonArray{0, 4}, QJsonArray{0, 5}}));
  update("below the range", QStringLiteral("params[0]: Parameter 0 ("), params({QJsonArray{0, 1}}));
  update("no whole number", QStringLiteral("\"4.5\" ist keine ganze Zahl"), params({QJsonArray{0, 4.5}}));
  update("no number", QStringLiteral("ist keine Zahl"), params({QJsonArray{0, "viele"}}));
  update("no value", QStringLiteral("params[0]: Parameter 'value' fehlt"), QJsonArray{QJsonObject{{"index", 0}}});
  update("no index", QStringLiteral("params[0]: Parameter 'index' fehlt"), QJsonArray{QJsonObject{{"value", 0}}});
  update("value of another kind", QStringLiteral("params[0]: 'value' muss"), params({QJsonArray{0, QJsonArray{}}}));
  update("no object", QStringLiteral("params[0]"), QJsonArray{3});
  update("neither on nor off", QStringLiteral("params[0]: Parameter 1 (Ausgang invertieren): erlaubt: true"),
         params({QJsonArray{1, 99}}));
  update("no choice", QStringLiteral("erlaubt: 0 = "), params({QJsonArray{2, 99}}));
  row("comment too long", "update_fb", QStringLiteral("erlaubt sind höchstens"), [](const House& h) {
    return QJsonObject{{"guid", h.mB}, {"x", 5}, {"comment", QString(20'001, u'x')}};
  });

  row("no script block", "set_lua_script", QStringLiteral("Lua-Script-FB nicht gefunden: {"), [](const House& h) {
    return QJsonObject{{"fb_guid", h.mA}, {"code", ""}};
  });
  row("no block", "set_lua_script", QStringLiteral("Lua-Script-FB nicht gefunden: x"),
      fixed({{"fb_guid", "x"}, {"code", ""}}));
  row("too many inputs", "set_lua_script", QStringLiteral("'inputs' ausserhalb"), [](const House& h) {
    return QJsonObject{{"fb_guid", h.mScript}, {"code", "x = 1"}, {"inputs", 65}};
  });
  row("script too long", "set_lua_script", QStringLiteral("erlaubt sind höchstens"), [](const House& h) {
    return QJsonObject{{"fb_guid", h.mScript}, {"code", QString(1'000'001, u' ')}};
  });

  const auto connect = [&row](const char* name, const QString& error, const QJsonObject& differing) {
    row(name, "connect_fb_io", error, [differing](const House& h) {
      QJsonObject arguments{
          {"source_fb_guid", h.mA}, {"source_output_index", 0}, {"target_fb_guid", h.mB}, {"target_input_index", 0}};
      for (auto member = differing.begin(); member != differing.end(); ++member) {
        arguments[member.key()] = member.value() == "A" ? QJsonValue(h.mA) : member.value();
      }
      return arguments;
    });
  };
  connect("no source", QStringLiteral("Quell-FB nicht gefunden: x"),
          {{"source_fb_guid", "x"}, {"target_fb_guid", "y"}});
  connect("no target", QStringLiteral("Ziel-FB nicht gefunden: y"), {{"target_fb_guid", "y"}});
  connect("no output", QStringLiteral("Ausgangs-Index ausserhalb des gueltigen Bereichs: 1"),
          {{"source_output_index", 1}, {"target_input_index", 9}});
  connect("negative input", QStringLiteral("Eingangs-Index ausserhalb des gueltigen Bereichs: -1"),
          {{"target_input_index", -1}});
  connect("to itself", QStringLiteral("Baustein Quelle und Ziel dürfen nicht gleich sein"), {{"target_fb_guid", "A"}});

  row("no such pin", "disconnect_fb_io", QStringLiteral("IO-Index ausserhalb des gueltigen Bereichs: 2 (max 1)"),
      [](const House& h) {
        return QJsonObject{{"fb_guid", h.mA}, {"io_type", 0}, {"io_index", 2}};
      });
  row("no such side", "disconnect_fb_io", QStringLiteral("'io_type' ausserhalb"), [](const House& h) {
    return QJsonObject{{"fb_guid", h.mA}, {"io_type", 2}, {"io_index", 0}};
  });
}

void Logic_Tools_Test::refusals() {
  QFETCH(const QString, tool);
  QFETCH(const Arguments, arguments);
  QFETCH(const QString, error);
  House house;
  const QByteArray before = house.dump();
  const QString answered = house.errorOf(tool, arguments(house));
  QVERIFY2(answered.contains(error), qPrintable(answered));
  QCOMPARE(house.dump(), before);
  QVERIFY(!house.mSession.history().canUndo());
}

void Logic_Tools_Test::types() {
  House house;
  QCOMPARE(house.connectTo(house.mB, 2)["hint"], QJsonValue("Eingaenge des Bausteins \"Und\": 0 bis 1."));
  QCOMPARE(house.connectTo(house.mComment, 0)["hint"], QJsonValue("Der Baustein \"Kommentar\" hat keine Eingaenge."));
  QVERIFY(house.errorOf("get_fb_type_info").contains("'type' fehlt"));
  QVERIFY(house.errorOf("get_fb_type_info", {{"type", 49}}).contains("list_fb_types"));
  QCOMPARE(house.call("get_fb_type_info", {{"type", cTrigger}})["type"], QJsonValue(cTrigger));
  const QJsonArray types = house.call("list_fb_types")["types"].toArray();
  const QJsonObject gate = house.call("get_fb_type_info", {{"type", cAnd}});
  QCOMPARE(gate["type_hex"], QJsonValue("0x0032"));
  QCOMPARE(gate["inputs"].toArray().first().toObject()["count_parameter"], QJsonValue(0));
  // Every type can be inserted and answers what it is; one that may be there once is then refused.
  for (const QJsonValue& type : types) {
    const QJsonObject made =
        house.call("add_function_block", {{"page_guid", house.mOther}, {"type", type["type"]}, {"x", 0}, {"y", 0}});
    QVERIFY2(made["type_name"] == type["type_name"], QJsonDocument(made).toJson());
    QCOMPARE(warns(made, "nicht bekannt"), type["pins_unknown"].toBool());
  }
  QVERIFY(house.errorOf("add_function_block", {{"page_guid", house.mOther}, {"type", cOnce}, {"x", 0}, {"y", 0}})
              .contains("nur einmal im Projekt"));
}

void Logic_Tools_Test::reading() {
  House house;
  auto widget = std::make_unique<DB_Widget>();
  widget->mPageGuid = house.mSession.database().mWidgetPages.pages().at(0).mGuid;
  widget->mParams = {QString(), house.mB};
  house.mSession.database().mWidgetPages.appendChild(std::move(widget));
  house.bindAddress(house.mB, 1);
  const QUuid light = house.block(house.mB).mInputs[1].mBinding.mKey;
  house.mSession.values().set(light, {QByteArray(1, '\1'), {}, 1'000, {}, true});

  for (const QJsonValue& flag : {QJsonValue(true), QJsonValue(1)}) {
    const QJsonArray pages = house.call("list_fb_pages", {{"include_summary", flag}})["pages"].toArray();
    const QJsonArray counts = pages.first().toObject()["types"].toArray();
    QCOMPARE(counts.size(), 4);
    QCOMPARE(counts.at(1)["type"], QJsonValue(cAnd));
    QCOMPARE(counts.at(1)["count"], QJsonValue(2));
  }
  QVERIFY(!house.call("list_fb_pages")["pages"].toArray().first().toObject().contains("types"));

  const QJsonObject page = house.call("get_fb_page", {{"guid", house.mPage}});
  const QJsonArray blocks = page["function_blocks"].toArray();
  QCOMPARE(blocks.size(), 5);
  QCOMPARE(blocks.at(1)["inputs"].toArray().at(1)["binding"]["address"], QJsonValue("1/2/3"));
  QCOMPARE(blocks.at(0)["outputs"].toArray().at(0)["binding"]["kind"], QJsonValue("internal"));

  const QJsonObject detail = house.call("get_fb_detail", {{"guid", house.mB}});
  const QJsonArray inputs = detail["inputs"].toArray();
  QCOMPARE(inputs.at(0)["also_bound"].toArray().at(0)["fb_guid"], QJsonValue(house.mA));
  QCOMPARE(inputs.at(1)["value"], QJsonValue("01"));
  QCOMPARE(inputs.at(1)["value_stale"], QJsonValue(true));
  QCOMPARE(detail["execution"]["execution_number"], QJsonValue(2));

  const QJsonObject fewer = house.call("update_fb", {{"guid", house.mB}, {"params", params({QJsonArray{0, 3}})}});
  QVERIFY(!fewer.contains("warning"));
  house.connectTo(house.mB, 2);
  const QJsonObject lost = house.call("update_fb", {{"guid", house.mB}, {"params", params({QJsonArray{0, 2}})}});
  QVERIFY2(warns(lost, "Eingang 3"), qPrintable(lost["warning"].toString()));

  const QJsonObject replaced = house.connectTo(house.mB, 1);
  QVERIFY2(warns(replaced, "1/2/3 Licht"), qPrintable(replaced["warning"].toString()));
  const size_t steps = house.mSession.history().position();
  QCOMPARE(house.connectTo(house.mB, 1)["already_connected"], QJsonValue(true));
  const QJsonObject nothing =
      house.call("disconnect_fb_io", {{"fb_guid", house.mScript}, {"io_type", 1}, {"io_index", 0}});
  QCOMPARE(nothing["count"], QJsonValue(0));
  QCOMPARE(house.mSession.history().position(), steps);

  // Two outputs, each with an input of its own: taking the one's input leaves its output without a reader.
  house.call("connect_fb_io", {{"source_fb_guid", house.mScript},
                               {"source_output_index", 0},
                               {"target_fb_guid", house.mFormula},
                               {"target_input_index", 0}});
  const QJsonObject taken = house.connectTo(house.mFormula, 0);
  QCOMPARE(taken["released"].toArray().at(0)["fb_guid"], QJsonValue(house.mScript));
  QCOMPARE(taken["released"].toArray().size(), 1);
  QVERIFY(warns(house.call("update_fb", {{"guid", house.mB}}), "nichts geaendert"));

  const QJsonObject gone = house.call("delete_function_block", {{"guid", house.mB}});
  QCOMPARE(gone["widgets"].toArray().size(), 1);
  QVERIFY(warns(gone, "1 Bedienelement"));
  // Without braces a GUID is known, too.
  QCOMPARE(house.call("get_fb_detail", {{"guid", house.mA.mid(1, 36)}})["guid"], QJsonValue(house.mA));
}

void Logic_Tools_Test::connectionList() {
  House house;
  const QString away = house.add(cAnd, house.mOther);
  const QJsonObject crossed = house.connectTo(away, 1);
  QCOMPARE(crossed["same_page"], QJsonValue(false));
  QVERIFY(crossed.contains("note"));
  house.bindAddress(house.mB, 1);

  const QJsonObject list = house.call("list_fb_connections", {{"page_guid", house.mPage}});
  QCOMPARE(list["count"], QJsonValue(2));
  const QJsonValue within = list["connections"].toArray().at(0);
  QCOMPARE(within["kind"], QJsonValue("internal"));
  QCOMPARE(within["target"]["fb_guid"], QJsonValue(house.mB));
  QCOMPARE(within["source"]["io"], QJsonValue("Ausgang"));
  const QJsonValue across = list["connections"].toArray().at(1);
  QCOMPARE(across["kind"], QJsonValue("other_page"));
  QCOMPARE(across["target"]["page"], QJsonValue("Keller"));
  QCOMPARE(list["external"].toArray().at(0)["binding"]["comment"], QJsonValue("Licht"));

  // Seen from the other page it is the same connection the other way round; cutting here leaves the other page's pin,
  // for something there may still be read.
  const QJsonObject there = house.call("list_fb_connections", {{"page_guid", house.mOther}});
  QCOMPARE(there["connections"].toArray().at(0)["source"]["fb_guid"], QJsonValue(house.mA));
  const QJsonObject cut = house.call("disconnect_fb_io", {{"fb_guid", house.mB}, {"io_type", 0}, {"io_index", 0}});
  QCOMPARE(cut["count"], QJsonValue(2));
  QCOMPARE(cut["still_bound"].toArray().at(0)["fb_guid"], QJsonValue(away));
  QVERIFY(!cut.contains("released"));

  // The only reader is cut: its output on the other page goes with it.
  const QString reader = house.add(cAnd);
  house.call(
      "connect_fb_io",
      {{"source_fb_guid", away}, {"source_output_index", 0}, {"target_fb_guid", reader}, {"target_input_index", 0}});
  const QJsonObject last = house.call("disconnect_fb_io", {{"fb_guid", reader}, {"io_type", 0}, {"io_index", 0}});
  QCOMPARE(last["released"].toArray().at(0)["fb_guid"], QJsonValue(away));
  QVERIFY(!last.contains("still_bound"));
}

QTEST_GUILESS_MAIN(Logic_Tools_Test)
#include "Logic_Tools_Test.moc"
