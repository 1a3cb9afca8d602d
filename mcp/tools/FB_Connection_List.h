#pragma once

#include "db/Address_Use.h"
#include "fb/model/FB_Pin_Ref.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonObject>

#include <vector>

class Address_Usage;
class DB_FB_Page;
class ProjectDatabase;

/// The connections of a logic page, as tools answer them.
class FB_Connection_List {
public:
  /// More than a page should have; the rest is counted as left out.
  static constexpr qsizetype cMost = 5000;

  FB_Connection_List(const ProjectDatabase& database, const Address_Usage& usage, const DB_FB_Page& page);

  /// Between blocks of the page (`kind` "internal" for a variable, "address" for a group address) and to blocks of
  /// other pages ("other_page"), each with binding, source and target.
  [[nodiscard]] const QJsonArray& connections() const { return mConnections; }
  /// The pins that are bound to group addresses.
  [[nodiscard]] const QJsonArray& external() const { return mExternal; }
  [[nodiscard]] bool isTruncated() const { return mIsTruncated; }

private:
  void addWithin();
  void addPins(FB_Side side);
  void addToOtherPages(const FB_Pin_Ref& pin);
  /// The pins of other pages that are bound to the same.
  const std::vector<Address_Use>& elsewhere(const QUuid& key);
  void append(QJsonArray& list, const QJsonObject& object);

  const ProjectDatabase& mDatabase;
  const Address_Usage& mUsage;
  const DB_FB_Page& mPage;
  QHash<QUuid, std::vector<Address_Use>> mElsewhere;
  QJsonArray mConnections;
  QJsonArray mExternal;
  bool mIsTruncated = false;
};
