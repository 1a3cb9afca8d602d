#include "fb/model/FB_Modbus_Words.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

using namespace FB_Modbus_Words;

constexpr Function cFunctions[] = {
    {{1, "readCoils", QT_TRANSLATE_NOOP("FB_Modbus_Words", "1 Ausgangsbits lesen (Coils)")}, false, true, 2000},
    {{2, "readDiscrete", QT_TRANSLATE_NOOP("FB_Modbus_Words", "2 Eingangsbits lesen (Discrete Inputs)")},
     false,
     true,
     2000},
    {{3, "readHolding", QT_TRANSLATE_NOOP("FB_Modbus_Words", "3 Halteregister lesen")}, false, false, 125},
    {{4, "readInput", QT_TRANSLATE_NOOP("FB_Modbus_Words", "4 Eingangsregister lesen")}, false, false, 125},
    {{5, "writeCoil", QT_TRANSLATE_NOOP("FB_Modbus_Words", "5 Ausgangsbit schreiben (Coil)")}, true, true, 1},
    {{6, "writeSingle", QT_TRANSLATE_NOOP("FB_Modbus_Words", "6 Einzelnes Halteregister schreiben")}, true, false, 1},
    {{15, "writeCoils", QT_TRANSLATE_NOOP("FB_Modbus_Words", "15 Mehrere Ausgangsbits schreiben")}, true, true, 1968},
    {{16, "writeMultiple", QT_TRANSLATE_NOOP("FB_Modbus_Words", "16 Mehrere Halteregister schreiben")},
     true,
     false,
     123},
};

constexpr Data_Type cDataTypes[] = {
    {{0, "bool", QT_TRANSLATE_NOOP("FB_Modbus_Words", "BOOL, ein Bit")}, cBit, 1, false},
    {{1, "int16", QT_TRANSLATE_NOOP("FB_Modbus_Words", "INT16, mit Vorzeichen")}, cInteger, 1, true},
    {{2, "uint16", QT_TRANSLATE_NOOP("FB_Modbus_Words", "UINT16")}, cInteger, 1, false},
    {{3, "int32", QT_TRANSLATE_NOOP("FB_Modbus_Words", "INT32, mit Vorzeichen")}, cInteger, 2, true},
    {{4, "uint32", QT_TRANSLATE_NOOP("FB_Modbus_Words", "UINT32")}, cInteger, 2, false},
    {{5, "int64", QT_TRANSLATE_NOOP("FB_Modbus_Words", "INT64, mit Vorzeichen")}, cInteger, 4, true},
    {{6, "uint64", QT_TRANSLATE_NOOP("FB_Modbus_Words", "UINT64")}, cInteger, 4, false},
    {{7, "float32", QT_TRANSLATE_NOOP("FB_Modbus_Words", "FLOAT32, Gleitkomma")}, cFloat, 2, true},
    {{8, "float64", QT_TRANSLATE_NOOP("FB_Modbus_Words", "FLOAT64, Gleitkomma")}, cFloat, 4, true},
};

constexpr Choice cByteOrders[] = {
    {0, "ABCD", QT_TRANSLATE_NOOP("FB_Modbus_Words", "ABCD, höchstes Byte zuerst")},
    {1, "CDAB", QT_TRANSLATE_NOOP("FB_Modbus_Words", "CDAB, Worte getauscht")},
    {2, "BADC", QT_TRANSLATE_NOOP("FB_Modbus_Words", "BADC, Bytes getauscht")},
    {3, "DCBA", QT_TRANSLATE_NOOP("FB_Modbus_Words", "DCBA, niedrigstes Byte zuerst")},
};

constexpr Choice cWriteModes[] = {
    {0, "telegram", QT_TRANSLATE_NOOP("FB_Modbus_Words", "Bei jedem Telegramm")},
    {1, "change", QT_TRANSLATE_NOOP("FB_Modbus_Words", "Bei Änderung")},
    {2, "cyclic", QT_TRANSLATE_NOOP("FB_Modbus_Words", "Zyklisch im Intervall")},
};

} // namespace

std::span<const Function> FB_Modbus_Words::functions() {
  return cFunctions;
}

std::span<const Data_Type> FB_Modbus_Words::dataTypes() {
  return cDataTypes;
}

std::span<const Choice> FB_Modbus_Words::byteOrders() {
  return cByteOrders;
}

std::span<const Choice> FB_Modbus_Words::writeModes() {
  return cWriteModes;
}

const Function* FB_Modbus_Words::function(int code) {
  const auto at = std::ranges::find(cFunctions, code, &Function::mValue);
  return at == std::end(cFunctions) ? nullptr : at;
}

const Data_Type* FB_Modbus_Words::dataType(QStringView key) {
  const auto at = std::ranges::find_if(cDataTypes, [key](const Data_Type& type) {
    return key.compare(QLatin1String(type.mKey), Qt::CaseInsensitive) == 0;
  });
  return at == std::end(cDataTypes) ? nullptr : at;
}

const Data_Type* FB_Modbus_Words::dataTypeOf(const DB_Modbus_Register& item) {
  const auto at = std::ranges::find_if(cDataTypes, [&item](const Data_Type& type) {
    const bool isSignOf = type.mDataType != cInteger || type.mIsSigned == item.mSigned;
    return type.mDataType == item.mDataType && type.mWords == item.mWordCount && isSignOf;
  });
  return at == std::end(cDataTypes) ? nullptr : at;
}

void FB_Modbus_Words::setDataType(DB_Modbus_Register& item, const Data_Type& type) {
  item.mDataType = type.mDataType;
  item.mWordCount = type.mWords;
  item.mSigned = type.mIsSigned;
}

bool FB_Modbus_Words::isWriting(const DB_Modbus_Register& item) {
  const Function* const known = function(item.mFunctionCode);
  return known && known->mIsWriting;
}

QString FB_Modbus_Words::text(const char* germanText) {
  return QCoreApplication::translate("FB_Modbus_Words", germanText);
}
