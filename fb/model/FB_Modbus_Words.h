#pragma once

#include "db/DB_FB_Control.h"

#include <QString>

#include <span>

/// The values that a Modbus register of a block can have, with their words (MODBUS Application Protocol V1.1b3). Texts
/// are German and translated in the context "FB_Modbus_Words".
namespace FB_Modbus_Words {

/// Type id of the block.
inline constexpr int cMaster = 1917;

/// A value with its words. `mKey` is what tools and spreadsheets may write.
struct Choice {
  int mValue = 0;
  const char* mKey = "";
  const char* mText = "";
};

struct Function : Choice {
  bool mIsWriting = false;
  bool mIsBits = false; ///< single bits in place of words of 16 bits
  int mMost = 0;        ///< words or bits in one request
};

/// What the words of a register hold.
struct Data_Type : Choice {
  int mDataType = 0; ///< of the record: 0 whole number, 1 floating point (IEEE 754), 2 bit
  int mWords = 1;
  bool mIsSigned = false;
};

inline constexpr int cInteger = 0;
inline constexpr int cFloat = 1;
inline constexpr int cBit = 2;

[[nodiscard]] std::span<const Function> functions();
/// In the order of `mValue`, which stands in no file.
[[nodiscard]] std::span<const Data_Type> dataTypes();
[[nodiscard]] std::span<const Choice> byteOrders();
[[nodiscard]] std::span<const Choice> writeModes();

/// Null for a code that there is not.
[[nodiscard]] const Function* function(int code);
/// By its key: "uint16"; null for none.
[[nodiscard]] const Data_Type* dataType(QStringView key);
/// Null when kind, words and sign of the register do not go together.
[[nodiscard]] const Data_Type* dataTypeOf(const DB_Modbus_Register& item);
void setDataType(DB_Modbus_Register& item, const Data_Type& type);
/// False for reading and for a code that there is not.
[[nodiscard]] bool isWriting(const DB_Modbus_Register& item);

/// Translates a text of the tables.
[[nodiscard]] QString text(const char* germanText);

} // namespace FB_Modbus_Words
