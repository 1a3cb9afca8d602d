#pragma once

#include "fb/model/FB_Shared_Value.h"

class QWidget;

/// What the editors of the property panel have in common: kind, index of the parameter they edit, and a value as it is
/// stored. Showing a value never reports it; what is being typed stays until it is handed over.
class FB_Dev_Properties_Editor {
public:
  enum class Kind { Text = 0, Check = 1, Number = 2, Choice = 3 };

  FB_Dev_Properties_Editor(Kind kind, int index) : mKind(kind), mIndex(index) {}
  FB_Dev_Properties_Editor(const FB_Dev_Properties_Editor&) = delete;
  FB_Dev_Properties_Editor& operator=(const FB_Dev_Properties_Editor&) = delete;
  virtual ~FB_Dev_Properties_Editor() = default;

  [[nodiscard]] Kind kind() const { return mKind; }
  /// From 0; -1 for a field that is no parameter.
  [[nodiscard]] int index() const { return mIndex; }

  [[nodiscard]] virtual QWidget& widget() = 0;
  virtual void showValue(const FB_Shared_Value& value) = 0;
  /// As it is to be stored.
  [[nodiscard]] virtual QString storedText() const = 0;
  /// Something was typed that is not reported yet.
  [[nodiscard]] virtual bool isTyping() const { return false; }
  /// Reports what was typed, as leaving the field does.
  virtual void finishTyping() {}

  /// What stands in a field where the blocks differ.
  [[nodiscard]] static QString mixedText();

private:
  Kind mKind;
  int mIndex;
};
