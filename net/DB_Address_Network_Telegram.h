#pragma once

#include "base/Group_Address.h"

#include <QByteArray>
#include <QByteArrayView>

/// A group telegram between studio and controller (services as KNX Standard 3/3/7 names them): a head of 45 bytes and
/// up to 255 data bytes, all numbers little-endian.
///
///     0  kind           u32   1 from the bus, 2 from the controller's runtime or the studio
///     4  service        u32   0 read, 1 response, 2 write
///     8  priority       u32   0 system, 1 normal, 2 urgent, 3 low
///     12 source area    u32   physical address of the sender: area.line.device
///     16 source line    u32
///     20 source device  u32
///     24 main group     u32   the group address; a telegram whose three words are 0 means nothing
///     28 middle group   u32
///     32 sub group      u32
///     36 time           u32   seconds since 1970 (UTC) at the controller, 0 where not known
///     40 data length    u32   0..255
///     44 valid          u8    1: the data holds a value
///     45 data                 payload of the datapoint type, as Datapoint_Codec writes it
struct DB_Address_Network_Telegram {
  static constexpr qsizetype cHead = 45;
  static constexpr qsizetype cMostData = 255;
  static constexpr qsizetype cSize = cHead + cMostData;

  static constexpr quint32 cKindBus = 1;
  static constexpr quint32 cKindRuntime = 2;
  /// The physical address that stands for the studio and the runtime: 0.0.0.
  static constexpr quint32 cOwnSource = 0;

  enum Service : quint32 { Read = 0, Response = 1, Write = 2 };

  quint32 mKind = cKindRuntime;
  quint32 mService = Write;
  quint32 mPriority = 3;
  quint32 mSourceArea = cOwnSource;
  quint32 mSourceLine = cOwnSource;
  quint32 mSourceDevice = cOwnSource;
  quint32 mMain = 0;
  quint32 mMiddle = 0;
  quint32 mSub = 0;
  quint32 mTime = 0;
  quint8 mIsValid = 0;
  QByteArray mData; ///< at most 255 bytes; its size is the record's data length

  [[nodiscard]] static DB_Address_Network_Telegram to(const Group_Address& address, Service service,
                                                      const QByteArray& data);

  [[nodiscard]] bool isAddressed() const { return mMain != 0 || mMiddle != 0 || mSub != 0; }
  [[nodiscard]] Group_Address address() const;

  /// The record as far as it is used: the head and the data.
  [[nodiscard]] QByteArray toBytes() const;
  /// Reads at most 300 bytes; what is missing counts as 0. A data length above what is there is cut.
  [[nodiscard]] static DB_Address_Network_Telegram fromBytes(QByteArrayView bytes);
  /// The same into this one, whose memory is used again.
  void read(QByteArrayView bytes);

  friend bool operator==(const DB_Address_Network_Telegram&, const DB_Address_Network_Telegram&) = default;
};
