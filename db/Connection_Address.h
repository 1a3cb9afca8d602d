#pragma once

#include <QString>

/// Where a controller is found, read from what a user wrote or copied as its address.
struct Connection_Address {
  QString mHost;
  quint16 mPort = 0;

  /// The address without what a copied link has around it: blanks anywhere, "scheme://" before it, "/", "?" or "#" with
  /// what follows, a "user@" before it, and the brackets of an IPv6 address that stands alone.
  [[nodiscard]] static QString normalised(const QString& text);

  /// Host and port of a normalised address. One that ":" splits into exactly two parts is host and port, the port a
  /// decimal number cut to 16 bits; no number, and one above 32 bits, gives 0. Any other is the host as a whole.
  [[nodiscard]] static Connection_Address parse(const QString& normalised, quint16 defaultPort);

  friend bool operator==(const Connection_Address&, const Connection_Address&) = default;
};
