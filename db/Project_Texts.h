#pragma once

#include "db/DB_Address_Groups.h"
#include "db/DB_FB_Page.h"
#include "db/DB_Widget_Page.h"

#include <QString>

#include <array>
#include <concepts>
#include <utility>

/// The texts of the project's records that a user reads and searches.
namespace Project_Texts {

enum class Field : quint8 {
  Address,     ///< "1/2/3", "1/2/*", "1/*"
  Name,        ///< of a page its caption
  Description, ///< of an address or group
  Title,       ///< of a block; of a comment block its text
  Comment,
  Type,      ///< what the type of a block is called
  Parameter, ///< one of several
};

template <class Record>
using Text = std::pair<Field, QString Record::*>;

/// The texts that are members of a record, in the order in which they are listed.
template <class Record>
[[nodiscard]] constexpr auto of() {
  if constexpr (std::same_as<Record, DB_FB_Control>) {
    return std::array{Text<Record>(Field::Name, &Record::mName), Text<Record>(Field::Title, &Record::mTitle),
                      Text<Record>(Field::Comment, &Record::mComment)};
  } else if constexpr (std::same_as<Record, DB_Widget>) {
    return std::array{Text<Record>(Field::Name, &Record::mName), Text<Record>(Field::Comment, &Record::mComment)};
  } else if constexpr (std::same_as<Record, DB_FB_Page> || std::same_as<Record, DB_Widget_Page>) {
    return std::array{Text<Record>(Field::Name, &Record::mCaption), Text<Record>(Field::Comment, &Record::mComment)};
  } else {
    return std::array{Text<Record>(Field::Name, &Record::mName),
                      Text<Record>(Field::Description, &Record::mDescription)};
  }
}

/// Null when the record has no such text.
template <class Record>
[[nodiscard]] constexpr QString Record::*member(Field field) {
  for (const auto& [which, text] : of<Record>()) {
    if (which == field) {
      return text;
    }
  }
  return nullptr;
}

} // namespace Project_Texts
