#include "mcp/tools/Modbus_Tools_Register.h"

#include "base/Group_Address.h"
#include "fb/model/FB_Modbus_Fields.h"
#include "fb/model/FB_Pins.h"
#include "fb/model/FB_Register_Pins.h"
#include "fb/model/FB_Types.h"
#include "mcp/tools/FB_Json.h"

#include <QHash>
#include <QUuid>

#include <algorithm>

namespace {

using FB_Modbus_Fields::Field;
using Kind = DB_Address_Binding::Kind;

constexpr FB_Side cSides[] = {FB_Side::Input, FB_Side::Output};
constexpr int cMostWords = 4;

MCP_Parameter ranged(const MCP_Parameter& parameter, Field field) {
  const FB_Modbus_Fields::Info& info = FB_Modbus_Fields::info(field);
  return parameter.within(info.mMinimum, info.mMaximum);
}

QString keysOfDataTypes() {
  QStringList keys;
  for (const FB_Modbus_Words::Data_Type& type : FB_Modbus_Words::dataTypes()) {
    keys.append(QLatin1String(type.mKey));
  }
  return keys.join(QStringLiteral(", "));
}

QString functionCodes() {
  QStringList codes;
  for (const FB_Modbus_Words::Function& function : FB_Modbus_Words::functions()) {
    codes.append(QStringLiteral("%1 (%2)").arg(function.mValue).arg(QLatin1String(function.mKey)));
  }
  return codes.join(QStringLiteral(", "));
}

/// Functions on single bits bring their data type.
MCP_Result takeFunction(const MCP_Call& arguments, DB_Modbus_Register& item) {
  const int code = arguments.integer("function_code", item.mFunctionCode);
  const FB_Modbus_Words::Function* const function = FB_Modbus_Words::function(code);
  if (arguments.has("function_code") && !function) {
    return MCP_Result::failed(
        QStringLiteral("function_code %1 unbekannt, erlaubt: %2").arg(QString::number(code), functionCodes()));
  }
  if (function && function->mIsBits && code != item.mFunctionCode) {
    FB_Modbus_Words::setDataType(item, *FB_Modbus_Words::dataType(u"bool"));
  }
  item.mFunctionCode = code;
  return MCP_Result::done();
}

MCP_Result takeNamedType(const MCP_Call& arguments, DB_Modbus_Register& item, QStringList& warnings) {
  const QString name = arguments.text("datatype").trimmed();
  const FB_Modbus_Words::Data_Type* const type = FB_Modbus_Words::dataType(name);
  if (!type) {
    return MCP_Result::failed(QStringLiteral("datatype '%1' unbekannt, erlaubt: %2").arg(name, keysOfDataTypes()));
  }
  FB_Modbus_Words::setDataType(item, *type);
  QStringList overruled;
  const auto compare = [&](const char* member, int value) {
    if (arguments.integer(member, value) != value) {
      overruled.append(QLatin1String(member));
    }
  };
  compare("datatype_register", item.mDataType);
  compare("word_count", item.mWordCount);
  compare("signed", int(item.mSigned));
  if (!overruled.isEmpty()) {
    warnings.append(QStringLiteral("datatype '%1' gilt, abweichende Angaben ignoriert: %2.")
                        .arg(QLatin1String(type->mKey), overruled.join(QStringLiteral(", "))));
  }
  return MCP_Result::done();
}

MCP_Result takeTypeParts(const MCP_Call& arguments, DB_Modbus_Register& item) {
  item.mDataType = arguments.integer("datatype_register", item.mDataType);
  item.mWordCount = arguments.integer("word_count", item.mWordCount);
  item.mSigned = arguments.flag("signed", item.mSigned);
  const bool isGiven = arguments.has("datatype_register") || arguments.has("word_count") || arguments.has("signed");
  return !isGiven || FB_Modbus_Words::dataTypeOf(item)
             ? MCP_Result::done()
             : MCP_Result::failed(QStringLiteral("Einen Datentyp mit datatype_register %1, word_count %2, signed %3 "
                                                 "gibt es nicht; datatype verwenden: %4")
                                      .arg(QString::number(item.mDataType), QString::number(item.mWordCount),
                                           QString::number(int(item.mSigned)), keysOfDataTypes()));
}

/// One after the other: side and place of the pins of each register.
class Pin_Walk {
public:
  explicit Pin_Walk(const DB_FB_Control& block) : mBlock(block) {
    for (const FB_Side side : cSides) {
      next(side) = FB_Pins::fixedPins(*FB_Types::find(FB_Modbus_Words::cMaster), side);
    }
  }

  /// Calls `visit(side, index, pin)` for those of the next register.
  template <class Visit>
  void step(const DB_Modbus_Register& item, Visit&& visit) {
    const FB_Side side = FB_Register_Pins::sideOf(item);
    const std::vector<DB_FB_Pin>& pins = FB_Pins::pins(mBlock, side);
    size_t& at = next(side);
    const size_t end = std::min(pins.size(), at + static_cast<size_t>(std::max(1, item.mCount)));
    for (; at < end; ++at) {
      visit(side, at, pins[at]);
    }
  }

private:
  size_t& next(FB_Side side) { return mNext[side == FB_Side::Input ? 0 : 1]; }

  const DB_FB_Control& mBlock;
  size_t mNext[2] = {0, 0};
};

QString textOf(const DB_Address_Binding& binding) {
  return binding.mKind == Kind::GroupAddress ? Group_Address(binding.mMain, binding.mMiddle, binding.mSub).toString()
                                             : binding.mName;
}

QJsonObject pinToJson(const Address_Tree& tree, FB_Side side, size_t index, const DB_FB_Pin& pin) {
  QJsonObject object{{QStringLiteral("io_type"), side == FB_Side::Output ? 1 : 0},
                     {QStringLiteral("io_index"), static_cast<qint64>(index)},
                     {QStringLiteral("name"), pin.mLongName}};
  if (pin.mBinding.mKind != Kind::None) {
    object.insert(QStringLiteral("binding"), FB_Json::binding(tree, pin.mBinding));
  }
  return object;
}

QJsonObject toJson(const DB_Modbus_Register& item, int index) {
  QJsonObject object{{QStringLiteral("index"), index},
                     {QStringLiteral("name"), item.mName},
                     {QStringLiteral("address"), item.mAddress},
                     {QStringLiteral("function_code"), item.mFunctionCode},
                     {QStringLiteral("datatype_register"), item.mDataType},
                     {QStringLiteral("word_count"), item.mWordCount},
                     {QStringLiteral("signed"), int(item.mSigned)},
                     {QStringLiteral("count"), item.mCount},
                     {QStringLiteral("byte_order"), item.mByteOrder},
                     {QStringLiteral("factor"), item.mFactor},
                     {QStringLiteral("offset"), item.mOffset},
                     {QStringLiteral("polling_interval"), item.mPollingInterval},
                     {QStringLiteral("active"), int(item.mActive)},
                     {QStringLiteral("write_mode"), item.mWriteMode},
                     {QStringLiteral("update_on_change"), int(item.mUpdateOnChange)}};
  if (const FB_Modbus_Words::Data_Type* const type = FB_Modbus_Words::dataTypeOf(item)) {
    object.insert(QStringLiteral("datatype"), QLatin1String(type->mKey));
  }
  if (const FB_Modbus_Words::Function* const function = FB_Modbus_Words::function(item.mFunctionCode)) {
    object.insert(QStringLiteral("function"), QLatin1String(function->mKey));
  }
  return object;
}

} // namespace

std::vector<MCP_Parameter> Modbus_Tools_Register::members() {
  using P = MCP_Parameter;
  return {
      ranged(P::integer("address", "Registeradresse ab 0 (0-65535)"), Field::Address),
      P::integer("function_code", "1, 2, 3 (Vorgabe), 4 lesen; 5, 6, 15, 16 schreiben"),
      P::text("datatype", "bool, int16, uint16 (Vorgabe), int32, uint32, int64, uint64, float32, float64"),
      P::integer("word_count", "Worte je Wert: 1, 2 oder 4; ergibt sich aus datatype").within(1, cMostWords),
      ranged(P::integer("count", "Werte hintereinander, je ein Anschluss (1-1000, Vorgabe 1)"), Field::Count),
      P::integer("datatype_register", "0=Ganzzahl, 1=Gleitkomma, 2=Bit; ergibt sich aus datatype")
          .within(FB_Modbus_Words::cInteger, FB_Modbus_Words::cBit),
      P::integer("byte_order", "0=ABCD (Vorgabe), 1=CDAB, 2=BADC, 3=DCBA").within(0, 3),
      ranged(P::number("factor", "Wert = Registerinhalt * factor + offset; nicht 0 (Vorgabe 1)"), Field::Factor),
      ranged(P::number("offset", "Vorgabe 0"), Field::Offset),
      ranged(P::integer("polling_interval", "Abstand in ms (50-3600000, Vorgabe 1000)"), Field::Interval),
      P::integer("active", "1=aktiv (Vorgabe), 0=abgeschaltet").within(0, 1).orFlag(),
      P::integer("signed", "1=mit Vorzeichen; ergibt sich aus datatype").within(0, 1).orFlag(),
      P::integer("write_mode", "0=bei jedem Telegramm (Vorgabe), 1=bei Aenderung, 2=zyklisch").within(0, 2),
      P::integer("update_on_change", "1=Ausgang nur bei Aenderung senden, 0=nach jeder Abfrage (Vorgabe)")
          .within(0, 1)
          .orFlag(),
      P::text("name", "Name des Anschlusses, bis 255 Zeichen"),
  };
}

MCP_Result Modbus_Tools_Register::take(const MCP_Call& arguments, DB_Modbus_Register& item, QStringList& warnings) {
  MCP_Result result = takeFunction(arguments, item);
  if (result) {
    result = arguments.has("datatype") ? takeNamedType(arguments, item, warnings) : takeTypeParts(arguments, item);
  }
  if (!result) {
    return result;
  }
  if (arguments.has("name")) {
    const QString fault = FB_Modbus_Fields::set(item, Field::Name, arguments.text("name"));
    if (!fault.isEmpty()) {
      return MCP_Result::failed(QStringLiteral("name: ") + fault);
    }
  }
  item.mAddress = arguments.integer("address", item.mAddress);
  item.mCount = arguments.integer("count", item.mCount);
  item.mByteOrder = arguments.integer("byte_order", item.mByteOrder);
  item.mFactor = arguments.number("factor", item.mFactor);
  item.mOffset = arguments.number("offset", item.mOffset);
  item.mPollingInterval = arguments.integer("polling_interval", item.mPollingInterval);
  item.mActive = arguments.flag("active", item.mActive);
  item.mWriteMode = arguments.integer("write_mode", item.mWriteMode);
  item.mUpdateOnChange = arguments.flag("update_on_change", item.mUpdateOnChange);
  if (arguments.has("factor") && item.mFactor == 0) {
    return MCP_Result::failed(QStringLiteral("Parameter 'factor' darf nicht 0 sein"));
  }
  for (const FB_Modbus_Fields::Fault& fault : FB_Modbus_Fields::faults(item)) {
    if (!fault.mIsRange) {
      warnings.append(fault.mText);
    }
  }
  return result;
}

QJsonArray Modbus_Tools_Register::list(const Address_Tree& tree, const DB_FB_Control& block, int offset, int limit) {
  QJsonArray entries;
  Pin_Walk walk(block);
  for (size_t i = 0; i < block.mModbusRegisters.size() && entries.size() < limit; ++i) {
    const DB_Modbus_Register& item = block.mModbusRegisters[i];
    const bool isWanted = i >= static_cast<size_t>(offset);
    QJsonArray pins;
    walk.step(item, [&](FB_Side side, size_t index, const DB_FB_Pin& pin) {
      if (isWanted) {
        pins.append(pinToJson(tree, side, index, pin));
      }
    });
    if (isWanted) {
      QJsonObject entry = toJson(item, static_cast<int>(i));
      entry.insert(QStringLiteral("pins"), pins);
      entries.append(entry);
    }
  }
  return entries;
}

QJsonObject Modbus_Tools_Register::entry(const Address_Tree& tree, const DB_FB_Control& block, int index) {
  return list(tree, block, index, 1).first().toObject();
}

QStringList Modbus_Tools_Register::lostBindings(const DB_FB_Control& before, const DB_FB_Control& after) {
  // By key and name first: of several pins on one address the one that went is to be named.
  QHash<std::pair<QUuid, QString>, int> keptPins;
  QHash<QUuid, int> kept;
  const auto walk = [](const DB_FB_Control& block, auto&& visit) {
    Pin_Walk pins(block);
    for (const DB_Modbus_Register& item : block.mModbusRegisters) {
      pins.step(item, [&visit](FB_Side, size_t, const DB_FB_Pin& pin) {
        if (pin.mBinding.mKind != Kind::None) {
          visit(pin);
        }
      });
    }
  };
  walk(after, [&](const DB_FB_Pin& pin) {
    ++keptPins[{pin.mBinding.mKey, pin.mLongName}];
    ++kept[pin.mBinding.mKey];
  });
  std::vector<const DB_FB_Pin*> gone;
  walk(before, [&](const DB_FB_Pin& pin) {
    if (--keptPins[{pin.mBinding.mKey, pin.mLongName}] < 0) {
      gone.push_back(&pin);
    } else {
      --kept[pin.mBinding.mKey];
    }
  });
  QStringList lost;
  for (const DB_FB_Pin* const pin : gone) {
    if (--kept[pin->mBinding.mKey] < 0) {
      lost.append(QStringLiteral("%1 (%2)").arg(pin->mLongName, textOf(pin->mBinding)));
    }
  }
  return lost;
}
