#pragma once

#include "fb/model/FB_Type.h"

#include <QString>

/// Where a block shows its parameters for editing: one row each, with the parameter's name and description. Rows are
/// named by the index of the parameter, from 0; asking again for a row that is there adjusts it.
class FB_Property_Editors {
public:
  FB_Property_Editors() = default;
  FB_Property_Editors(const FB_Property_Editors&) = delete;
  FB_Property_Editors& operator=(const FB_Property_Editors&) = delete;
  virtual ~FB_Property_Editors() = default;

  /// With the parameter's range and decimals; a value that is no number is shown as 0.
  virtual void addNumber(int index, const FB_Parameter& parameter, const QString& value) = 0;
  /// Checked for any number but 0.
  virtual void addCheck(int index, const FB_Parameter& parameter, const QString& value) = 0;
  /// With the parameter's choices; the value is the index of one.
  virtual void addChoice(int index, const FB_Parameter& parameter, const QString& value) = 0;
  /// In one line; of a parameter that names a file only what a file name may hold.
  virtual void addText(int index, const FB_Parameter& parameter, const QString& value) = 0;
  /// Whether the row can be used; of rows that only matter for certain values of others.
  virtual void setEnabled(int index, bool isEnabled) = 0;
};
