#pragma once

#include <QList>
#include <QString>
#include <QStringView>

#include <optional>
#include <utility>
#include <variant>

/// What a datapoint says, without its bytes: a number, a text, or named parts of both in the order of the type.
struct Datapoint_Value {
  /// Nothing stands for a part that is marked as not valid. Whole numbers are exact, also those of 64 bits.
  using Scalar = std::variant<std::monostate, qint64, double, QString>;
  struct Part {
    QString mKey;
    Scalar mValue;
    friend bool operator==(const Part&, const Part&) = default;
  };

  Scalar mScalar;     ///< of simple types
  QList<Part> mParts; ///< of compounds; empty for simple types

  [[nodiscard]] static Datapoint_Value ofWhole(qint64 value) { return {value, {}}; }
  [[nodiscard]] static Datapoint_Value ofText(const QString& text) { return {text, {}}; }

  /// As a double, whichever kind of number it is; empty for texts and for what is not valid.
  [[nodiscard]] static std::optional<double> number(const Scalar& scalar) {
    if (const qint64* const whole = std::get_if<qint64>(&scalar)) {
      return static_cast<double>(*whole);
    }
    const double* const number = std::get_if<double>(&scalar);
    return number ? std::optional(*number) : std::nullopt;
  }
  [[nodiscard]] std::optional<double> number() const { return number(mScalar); }

  /// The part of this name; null when the value has none.
  [[nodiscard]] const Scalar* part(QStringView key) const {
    for (const Part& part : mParts) {
      if (part.mKey == key) {
        return &part.mValue;
      }
    }
    return nullptr;
  }

  friend bool operator==(const Datapoint_Value&, const Datapoint_Value&) = default;
};
