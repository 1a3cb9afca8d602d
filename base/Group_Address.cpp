#include "base/Group_Address.h"

#include <QCoreApplication>
#include <QList>

namespace {

constexpr qsizetype cLongestPart = 6;

QString tr(const char* text) {
  return QCoreApplication::translate("Group_Address", text);
}

/// A number written with digits only: no sign, no blanks, no further characters.
std::optional<int> digits(QStringView text, int base = 10) {
  if (text.isEmpty() || text.size() > cLongestPart) {
    return std::nullopt;
  }
  for (const QChar c : text) {
    const bool hexLetter = (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
    if (!(c >= u'0' && c <= u'9') && !(base == 16 && hexLetter)) {
      return std::nullopt;
    }
  }
  bool ok = false;
  const int value = text.toInt(&ok, base);
  return ok ? std::optional(value) : std::nullopt;
}

std::optional<Group_Address> fromParts(const QList<QStringView>& parts) {
  QList<int> numbers;
  for (const QStringView part : parts) {
    const std::optional<int> number = digits(part);
    if (!number) {
      return std::nullopt;
    }
    numbers.append(*number);
  }
  if (numbers[0] > Group_Address::cMainMax) {
    return std::nullopt;
  }
  if (numbers.size() == 2) {
    const int number = numbers[0] * Group_Address::cMainSpan + numbers[1];
    return numbers[1] < Group_Address::cMainSpan
               ? std::optional(Group_Address::fromNumber(static_cast<quint16>(number)))
               : std::nullopt;
  }
  const Group_Address address(numbers[0], numbers[1], numbers[2]);
  return address.isOnBus() ? std::optional(address) : std::nullopt;
}

std::optional<Group_Address> read(QStringView text) {
  const QList<QStringView> parts = text.split(u'/');
  if (parts.size() == 2 || parts.size() == 3) {
    return fromParts(parts);
  }
  if (parts.size() != 1) {
    return std::nullopt;
  }
  std::optional<int> number;
  if (text.startsWith(u'$')) {
    number = digits(text.mid(1), 16);
  } else if (text.startsWith(u"0x", Qt::CaseInsensitive)) {
    number = digits(text.mid(2), 16);
  } else {
    number = digits(text);
  }
  if (!number || *number > Group_Address::cNumberMax) {
    return std::nullopt;
  }
  return Group_Address::fromNumber(static_cast<quint16>(*number));
}

/// "1/2" for two parts; empty where a part is no number of its level.
std::optional<Group_Address> readGroup(QStringView text, qsizetype partCount) {
  if (text.endsWith(u"/*")) {
    text.chop(2);
  }
  const QList<QStringView> parts = text.split(u'/');
  const std::optional<int> main = digits(parts[0]);
  const std::optional<int> middle = partCount == 2 ? digits(parts.value(1)) : std::optional(0);
  if (parts.size() != partCount || !main || !middle) {
    return std::nullopt;
  }
  const Group_Address group(*main, *middle, 0);
  return group.isOnBus() ? std::optional(group) : std::nullopt;
}

} // namespace

std::optional<Group_Address> Group_Address::parse(QStringView text, QString* error) {
  const std::optional<Group_Address> address = read(text.trimmed());
  if (!address && error) {
    *error = tr("\"%1\" ist keine Gruppenadresse. Erlaubt sind Haupt/Mittel/Unter (0..31/0..7/0..255), "
                "Haupt/Unter (0..31/0..2047) oder eine Zahl 0..65535.")
                 .arg(text.left(40).toString());
  }
  return address;
}

std::optional<Group_Address> Group_Address::parseMainGroup(QStringView text, QString* error) {
  const std::optional<Group_Address> group = readGroup(text.trimmed(), 1);
  if (!group && error) {
    *error =
        tr("\"%1\" ist keine Hauptgruppe. Erlaubt ist eine Zahl 0..31, auch als 1/*.").arg(text.left(40).toString());
  }
  return group;
}

std::optional<Group_Address> Group_Address::parseMiddleGroup(QStringView text, QString* error) {
  const std::optional<Group_Address> group = readGroup(text.trimmed(), 2);
  if (!group && error) {
    *error = tr("\"%1\" ist keine Mittelgruppe. Erlaubt sind Haupt/Mittel (0..31/0..7), auch als 1/2/*.")
                 .arg(text.left(40).toString());
  }
  return group;
}

QString Group_Address::toString() const {
  return QStringLiteral("%1/%2/%3").arg(mMain).arg(mMiddle).arg(mSub);
}

QString Group_Address::mainGroupText(int main) {
  return QStringLiteral("%1/*").arg(main);
}

QString Group_Address::middleGroupText(int main, int middle) {
  return QStringLiteral("%1/%2/*").arg(main).arg(middle);
}
