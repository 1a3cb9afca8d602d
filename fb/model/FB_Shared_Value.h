#pragma once

#include "db/DB_FB_Control.h"

#include <QString>

#include <vector>

/// What several blocks share of one field, as text: the value of the first, and whether one of the others differs.
struct FB_Shared_Value {
  QString mText;
  bool mIsMixed = false;

  /// `field` yields the field's text of a block.
  template <class Field>
  [[nodiscard]] static FB_Shared_Value of(const std::vector<const DB_FB_Control*>& blocks, Field&& field) {
    FB_Shared_Value value;
    for (const DB_FB_Control* const block : blocks) {
      const QString text = field(*block);
      if (block == blocks.front()) {
        value.mText = text;
      } else if (text != value.mText) {
        value.mIsMixed = true;
        break;
      }
    }
    return value;
  }

  friend bool operator==(const FB_Shared_Value&, const FB_Shared_Value&) = default;
};
