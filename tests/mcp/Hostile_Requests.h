#pragma once

#include "mcp/MCP_Catalogue.h"
#include "tests/mcp/Raw_Client.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <random>

/// Requests that nobody sends who means well; the same seed makes the same ones. Half of them are calls of tools, one
/// after another, with arguments of the declared names.
class Hostile_Requests {
public:
  /// `guids` are those of things that exist, so that a call gets beyond looking them up.
  Hostile_Requests(unsigned seed, const MCP_Catalogue& catalogue, const QStringList& guids)
      : mRandom(seed),
        mCatalogue(catalogue),
        mGuids(guids) {}

  [[nodiscard]] QByteArray next() {
    switch (below(8)) {
    case 0:
      return bytes(below(600));
    case 1:
      return damaged(Raw_Client::post("/mcp", call()));
    case 2:
      return head() + "\r\n" + bytes(below(40));
    case 3:
      return Raw_Client::post(below(4) == 0 ? "/messages?sessionId=1" : "/mcp", json(any(3)));
    default:
      return Raw_Client::post("/mcp", call());
    }
  }

private:
  [[nodiscard]] int below(int limit) { return int(mRandom() % unsigned(limit)); }
  template <class List>
  [[nodiscard]] auto oneOf(const List& list) {
    return list[below(int(list.size()))];
  }

  [[nodiscard]] QByteArray bytes(int count) {
    QByteArray all;
    while (all.size() < count) {
      all.append(below(5) == 0 ? QByteArray("\r\n") : QByteArray(1, char(mRandom())));
    }
    return all;
  }

  [[nodiscard]] QByteArray damaged(QByteArray request) {
    for (int i = below(6) + 1; i > 0; --i) {
      const int at = below(int(request.size()));
      switch (below(3)) {
      case 0:
        request[at] = char(mRandom());
        break;
      case 1:
        request.remove(at, below(9));
        break;
      default:
        request.insert(at, request.mid(below(int(request.size())), below(30)));
      }
    }
    return request;
  }

  [[nodiscard]] QByteArray head() {
    static const QList<QByteArray> words = {"GET",       "POST",    "OPTIONS",      "/mcp", "/sse", "/messages",
                                            "HTTP/1.1",  "Host:",   "evil.test",    "\r\n", "\n",   "Content-Length:",
                                            "-1",        "5",       "999999999999", ":",    "\t",   "localhost",
                                            "sessionId", "Origin:", "null",         "?",    "\xff", "chunked"};
    QByteArray head;
    for (int i = below(20); i >= 0; --i) {
      head += oneOf(words) + (below(4) == 0 ? "" : " ");
    }
    return head + "\r\n";
  }

  [[nodiscard]] static QByteArray json(const QJsonValue& value) {
    const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return list.sliced(1, list.size() - 2);
  }

  [[nodiscard]] QJsonValue any(int depth) {
    static const QJsonArray values = {QJsonValue(),
                                      true,
                                      false,
                                      0,
                                      -1,
                                      1,
                                      2,
                                      7,
                                      900,
                                      65'536,
                                      2147483647,
                                      -2147483648.0,
                                      4294967296.0,
                                      1.5,
                                      1e300,
                                      -1e300,
                                      "",
                                      " ",
                                      "x",
                                      "ä😀",
                                      "%1 %2 %n",
                                      "../x",
                                      ".",
                                      "1/2/3",
                                      "-1/0/0",
                                      "true",
                                      "1",
                                      "week",
                                      "add",
                                      "null",
                                      QString(100'000, u'y'),
                                      QString(QChar(0)),
                                      QString(QChar(0xd800)),
                                      "{00000000-0000-0000-0000-000000000000}",
                                      "' OR 1=1 --",
                                      "<b>",
                                      "method",
                                      "id"};
    const int kind = below(depth > 0 ? 8 : 6);
    if (kind == 0 && !mGuids.isEmpty()) {
      return oneOf(mGuids);
    }
    if (kind < 6) {
      return values.at(below(int(values.size())));
    }
    if (kind == 6) {
      QJsonArray list;
      for (int i = below(50) == 0 ? 5000 : below(4); i > 0; --i) {
        list.append(i > 10 ? QJsonValue() : any(depth - 1));
      }
      return list;
    }
    static const QStringList names = {"index", "value", "main",     "middle", "sub",     "io_type", "io_index",
                                      "name",  "guid",  "register", "id",     "method",  "params",  "type",
                                      "",      "ü",     "address",  "ip",     "jsonrpc", "caption"};
    QJsonObject object;
    for (int i = below(6); i > 0; --i) {
      object.insert(oneOf(names), any(depth - 1));
    }
    return object;
  }

  /// Of the declared type more often than not.
  [[nodiscard]] QJsonValue argument(const QString& type) {
    for (int attempt = 0; attempt < 40; ++attempt) {
      QJsonValue value = any(3);
      if ((type == u"string" && value.isString()) || (type == u"boolean" && value.isBool()) ||
          (type == u"array" && value.isArray()) || (type == u"object" && (value.isObject() || value.isArray())) ||
          ((type == u"integer" || type == u"number") && value.isDouble()) || below(20) == 0) {
        return value;
      }
    }
    return any(1);
  }

  [[nodiscard]] QByteArray call() {
    const std::vector<MCP_Tool>& tools = mCatalogue.tools();
    QJsonObject arguments;
    QString name = MCP_Catalogue::names().at(below(int(MCP_Catalogue::names().size())));
    if (!tools.empty()) {
      const QJsonObject tool = tools[mNextTool++ % tools.size()].toJson();
      name = tool.value("name").toString();
      const QJsonObject properties = tool.value("inputSchema").toObject().value("properties").toObject();
      for (auto it = properties.begin(); it != properties.end(); ++it) {
        if (below(8) != 0) {
          arguments.insert(it.key(), argument(it.value().toObject().value("type").toString()));
        }
      }
    }
    if (below(10) == 0) {
      arguments.insert("unbekannt", any(2));
    }
    return json(QJsonObject{{"jsonrpc", "2.0"},
                            {"id", any(1)},
                            {"method", "tools/call"},
                            {"params", QJsonObject{{"name", name}, {"arguments", arguments}}}});
  }

  std::mt19937 mRandom;
  const MCP_Catalogue& mCatalogue;
  QStringList mGuids;
  size_t mNextTool = 0;
};
