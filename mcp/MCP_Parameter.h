#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <optional>

/// A parameter of a tool, as the list of tools shows it and as arguments are checked against it.
///
///     MCP_Parameter::integer("limit", "Hoechstzahl der Eintraege").within(1, 1000)
class MCP_Parameter {
public:
  enum class Type { Text, Integer, Number, Flag, List, Object, Any };

  [[nodiscard]] static MCP_Parameter text(const char* name, const char* description);
  /// Whole, of 32 bits unless `within` says otherwise.
  [[nodiscard]] static MCP_Parameter integer(const char* name, const char* description);
  /// Finite.
  [[nodiscard]] static MCP_Parameter number(const char* name, const char* description);
  [[nodiscard]] static MCP_Parameter flag(const char* name, const char* description);
  /// `itemMembers`, when given, are the properties of the objects in the list, as JSON schemas.
  [[nodiscard]] static MCP_Parameter list(const char* name, const char* description,
                                          const QJsonObject& itemMembers = {}, const QJsonArray& itemRequired = {});
  [[nodiscard]] static MCP_Parameter object(const char* name, const char* description);
  /// Of no declared type.
  [[nodiscard]] static MCP_Parameter any(const char* name, const char* description);

  [[nodiscard]] MCP_Parameter required() const;
  /// Both included.
  [[nodiscard]] MCP_Parameter within(double minimum, double maximum) const;
  /// An integer that is called with true and false as well, for 1 and 0; a text that is called with them.
  [[nodiscard]] MCP_Parameter orFlag() const;
  /// Declared as an object, but is a list.
  [[nodiscard]] MCP_Parameter reallyList() const;

  [[nodiscard]] const QString& name() const { return mName; }
  [[nodiscard]] const QString& description() const { return mDescription; }
  [[nodiscard]] Type type() const { return mType; }
  [[nodiscard]] bool isRequired() const { return mIsRequired; }
  [[nodiscard]] QJsonObject schema() const;
  /// Why the argument may not be so (German, names it); empty when it may. An optional one may be null.
  [[nodiscard]] QString faultOf(const QJsonValue& value) const;

private:
  MCP_Parameter(Type type, const char* name, const char* description);
  [[nodiscard]] bool isOfType(const QJsonValue& value) const;
  [[nodiscard]] QString expected() const;

  QString mName;
  QString mDescription;
  Type mType;
  QJsonObject mItems;
  double mMinimum;
  double mMaximum;
  bool mIsRequired = false;
  bool mTakesFlag = false;
  bool mTakesList = false;
};
