// Reads arbitrary bytes as the payload, and as the text, of a datapoint type that the first two bytes choose.
#include "base/Datapoint_Codec.h"
#include "base/Datapoint_Types.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 2) {
    return 0;
  }
  const std::span<const Datapoint_Type> types = Datapoint_Types::all();
  const Datapoint_Type& type = types[(data[0] << 8 | data[1]) % types.size()];
  const QByteArray bytes(reinterpret_cast<const char*>(data) + 2, static_cast<qsizetype>(size) - 2);
  const auto check = [](bool isRight) {
    if (!isRight) {
      std::abort();
    }
  };

  QString error;
  if (const std::optional<Datapoint_Value> value = Datapoint_Codec::decode(type, bytes, &error)) {
    const std::optional<QByteArray> written = Datapoint_Codec::encode(type, *value, &error);
    check(written.has_value() && error.isEmpty());
    const std::optional<Datapoint_Value> again = Datapoint_Codec::decode(type, *written);
    const QString text = Datapoint_Codec::toText(type, *value);
    check(again && Datapoint_Codec::toText(type, *again) == text);
    const std::optional<Datapoint_Value> fromText = Datapoint_Codec::fromText(type, text);
    check(fromText && Datapoint_Codec::encode(type, *fromText) == written);
    (void)Datapoint_Codec::display(type, *value);
  } else {
    check(!error.isEmpty());
  }

  error.clear();
  if (const auto value = Datapoint_Codec::fromText(type, QString::fromUtf8(bytes), &error)) {
    const std::optional<QByteArray> written = Datapoint_Codec::encode(type, *value);
    check(written && Datapoint_Codec::decode(type, *written));
    (void)Datapoint_Codec::display(type, *value);
  } else {
    check(!error.isEmpty());
  }
  return 0;
}
