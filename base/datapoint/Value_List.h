#pragma once

#include <QString>

#include <string_view>

/// Lists of values and their texts as the table of types writes them: "0=Aus|1=Ein", UTF-8, values from 0 up.
namespace Value_List {

[[nodiscard]] inline QString toQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// Calls `use(value, text)` for each entry, in order, until it returns true.
template <class Use>
void each(std::string_view list, Use use) {
  while (!list.empty()) {
    const std::string_view entry = list.substr(0, list.find('|'));
    list.remove_prefix(std::min(entry.size() + 1, list.size()));
    int value = 0;
    std::size_t at = 0;
    for (; at < entry.size() && entry[at] != '='; ++at) {
      value = value * 10 + (entry[at] - '0');
    }
    if (use(value, entry.substr(std::min(at + 1, entry.size())))) {
      return;
    }
  }
}

/// The text of a value; empty when the list lacks it.
[[nodiscard]] inline QString text(std::string_view list, qint64 wanted) {
  QString found;
  each(list, [&found, wanted](int value, std::string_view text) {
    if (value == wanted) {
      found = toQString(text);
    }
    return value == wanted;
  });
  return found;
}

} // namespace Value_List
