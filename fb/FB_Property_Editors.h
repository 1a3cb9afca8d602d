#pragma once

#include "fb/model/FB_Type.h"

#include <QString>

class FB_Dev_Properties_Checkbox;
class FB_Dev_Properties_ComboBox;
class FB_Dev_Properties_LineEdit;
class FB_Dev_Properties_SpinBox;

/// Where a block shows its parameters for editing: one row each, with the parameter's name and description. Rows are
/// named by the index of the parameter, from 0; asking again for a row that is there adjusts it.
class FB_Property_Editors {
public:
  FB_Property_Editors() = default;
  FB_Property_Editors(const FB_Property_Editors&) = delete;
  FB_Property_Editors& operator=(const FB_Property_Editors&) = delete;
  virtual ~FB_Property_Editors() = default;

  // Each makes the row and its editor where they are not there yet, and answers the editor, so that the block can
  // adjust it: range, decimals, entries. The rows own their editors.

  /// A value that is no number is shown as 0.
  virtual FB_Dev_Properties_SpinBox* addNumber(int index, const FB_Parameter& parameter, const QString& value) = 0;
  /// Checked for any number but 0.
  virtual FB_Dev_Properties_Checkbox* addCheck(int index, const FB_Parameter& parameter, const QString& value) = 0;
  /// The value is that of an entry, not its place.
  virtual FB_Dev_Properties_ComboBox* addChoice(int index, const FB_Parameter& parameter, const QString& value) = 0;
  /// In one line.
  virtual FB_Dev_Properties_LineEdit* addText(int index, const FB_Parameter& parameter, const QString& value) = 0;
  /// Whether the row can be used; of rows that only matter for certain values of others.
  virtual void setEnabled(int index, bool isEnabled) = 0;
};
