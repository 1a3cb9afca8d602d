#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>

class DB_FB_Control;
struct FB_Type;

/// Parameters of blocks as tools answer and take them. A value is answered as the text that is stored.
namespace FB_Parameter_Json {

/// The declared parameter: index, name, kind, default, range, unit, choices, and when it matters.
[[nodiscard]] QJsonObject declared(const FB_Type& type, int index);
[[nodiscard]] QJsonArray ofType(const FB_Type& type);
/// With their values. Those that no type declares have index and value only.
[[nodiscard]] QJsonArray ofBlock(const DB_FB_Control& block);

/// A value that a tool was given, as it is stored.
struct Stored {
  QString mText;
  QString mFault; ///< what is wrong and what is allowed (German, names the parameter); empty when nothing is
};
/// `value` is a text, a number or true and false.
[[nodiscard]] Stored stored(const DB_FB_Control& block, int index, const QJsonValue& value);

} // namespace FB_Parameter_Json
