#include "mcp/MCP_Parameter.h"

#include <QJsonArray>

#include <cmath>
#include <limits>

namespace {

QString schemaType(MCP_Parameter::Type type) {
  switch (type) {
  case MCP_Parameter::Type::Text:
    return QStringLiteral("string");
  case MCP_Parameter::Type::Integer:
    return QStringLiteral("integer");
  case MCP_Parameter::Type::Number:
    return QStringLiteral("number");
  case MCP_Parameter::Type::Flag:
    return QStringLiteral("boolean");
  case MCP_Parameter::Type::List:
    return QStringLiteral("array");
  case MCP_Parameter::Type::Object:
    return QStringLiteral("object");
  case MCP_Parameter::Type::Any:
    break;
  }
  return {};
}

QString nameOf(const QJsonValue& value) {
  switch (value.type()) {
  case QJsonValue::Bool:
    return QStringLiteral("Wahrheitswert");
  case QJsonValue::Double:
    return QStringLiteral("Zahl %1").arg(value.toDouble());
  case QJsonValue::String:
    return QStringLiteral("Text");
  case QJsonValue::Array:
    return QStringLiteral("Liste");
  case QJsonValue::Object:
    return QStringLiteral("Objekt");
  case QJsonValue::Null:
  case QJsonValue::Undefined:
    break;
  }
  return QStringLiteral("null");
}

} // namespace

MCP_Parameter::MCP_Parameter(Type type, const char* name, const char* description)
    : mName(QString::fromUtf8(name)),
      mDescription(QString::fromUtf8(description)),
      mType(type),
      mMinimum(type == Type::Integer ? std::numeric_limits<int>::min() : std::numeric_limits<double>::lowest()),
      mMaximum(type == Type::Integer ? std::numeric_limits<int>::max() : std::numeric_limits<double>::max()) {}

MCP_Parameter MCP_Parameter::text(const char* name, const char* description) {
  return {Type::Text, name, description};
}

MCP_Parameter MCP_Parameter::integer(const char* name, const char* description) {
  return {Type::Integer, name, description};
}

MCP_Parameter MCP_Parameter::number(const char* name, const char* description) {
  return {Type::Number, name, description};
}

MCP_Parameter MCP_Parameter::flag(const char* name, const char* description) {
  return {Type::Flag, name, description};
}

MCP_Parameter MCP_Parameter::list(const char* name, const char* description, const QJsonObject& itemMembers,
                                  const QJsonArray& itemRequired) {
  MCP_Parameter parameter(Type::List, name, description);
  if (!itemMembers.isEmpty()) {
    parameter.mItems = {{QStringLiteral("type"), QStringLiteral("object")},
                        {QStringLiteral("properties"), itemMembers}};
    if (!itemRequired.isEmpty()) {
      parameter.mItems.insert(QStringLiteral("required"), itemRequired);
    }
  }
  return parameter;
}

MCP_Parameter MCP_Parameter::object(const char* name, const char* description) {
  return {Type::Object, name, description};
}

MCP_Parameter MCP_Parameter::any(const char* name, const char* description) {
  return {Type::Any, name, description};
}

MCP_Parameter MCP_Parameter::required() const {
  MCP_Parameter parameter = *this;
  parameter.mIsRequired = true;
  return parameter;
}

MCP_Parameter MCP_Parameter::within(double minimum, double maximum) const {
  MCP_Parameter parameter = *this;
  parameter.mMinimum = minimum;
  parameter.mMaximum = maximum;
  return parameter;
}

MCP_Parameter MCP_Parameter::orFlag() const {
  MCP_Parameter parameter = *this;
  parameter.mTakesFlag = true;
  return parameter;
}

MCP_Parameter MCP_Parameter::reallyList() const {
  MCP_Parameter parameter = *this;
  parameter.mTakesList = true;
  return parameter;
}

QJsonObject MCP_Parameter::schema() const {
  QJsonObject schema{{QStringLiteral("description"), mDescription}};
  if (mType != Type::Any) {
    schema.insert(QStringLiteral("type"), schemaType(mType));
  }
  if (!mItems.isEmpty()) {
    schema.insert(QStringLiteral("items"), mItems);
  }
  return schema;
}

bool MCP_Parameter::isOfType(const QJsonValue& value) const {
  switch (mType) {
  case Type::Text:
    return value.isString() || (mTakesFlag && value.isBool());
  case Type::Integer:
    return (value.isDouble() && value.toDouble() == std::trunc(value.toDouble())) || (mTakesFlag && value.isBool());
  case Type::Number:
    return value.isDouble() && std::isfinite(value.toDouble());
  case Type::Flag:
    return value.isBool();
  case Type::List:
    return value.isArray();
  case Type::Object:
    return mTakesList ? value.isArray() : value.isObject();
  case Type::Any:
    break;
  }
  return true;
}

QString MCP_Parameter::expected() const {
  switch (mType) {
  case Type::Text:
    return QStringLiteral("Text");
  case Type::Integer:
    return QStringLiteral("ganze Zahl");
  case Type::Number:
    return QStringLiteral("Zahl");
  case Type::Flag:
    return QStringLiteral("Wahrheitswert (true oder false)");
  case Type::List:
    return QStringLiteral("Liste");
  case Type::Object:
    return mTakesList ? QStringLiteral("Liste") : QStringLiteral("Objekt");
  case Type::Any:
    break;
  }
  return {};
}

QString MCP_Parameter::faultOf(const QJsonValue& value) const {
  if (value.isNull() || value.isUndefined()) {
    return mIsRequired ? QStringLiteral("Parameter '%1' fehlt").arg(mName) : QString();
  }
  if (!isOfType(value)) {
    return QStringLiteral("Parameter '%1' hat den falschen Typ: erwartet %2, erhalten %3")
        .arg(mName, expected(), nameOf(value));
  }
  if (value.isDouble() && (value.toDouble() < mMinimum || value.toDouble() > mMaximum)) {
    return QStringLiteral("Parameter '%1' ausserhalb des gueltigen Bereichs: %2 (erlaubt %3 bis %4)")
        .arg(mName)
        .arg(value.toDouble(), 0, 'g', 12)
        .arg(mMinimum, 0, 'g', 12)
        .arg(mMaximum, 0, 'g', 12);
  }
  return {};
}
