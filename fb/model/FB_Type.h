#pragma once

#include <QtGlobal>

#include <span>

enum class FB_Side { Input, Output };

/// What a block's body looks like.
enum class FB_Body {
  Plain,   ///< framed, the darker ground
  Lighter, ///< framed, the lighter ground
  None,    ///< unframed: the content fills the block
};

/// How a parameter is edited.
enum class FB_Editor {
  Number,
  Check,
  Choice,
  Text,
  File_Name,
  Window, ///< a text of many lines: only in the block's own window, no row in the panel
};

/// One of the values that a parameter can be chosen from. The value stands in project files and never changes, wherever
/// the choice stands in its list.
struct FB_Choice {
  int mValue = 0;
  const char* mText = ""; ///< German
};

/// One parameter of a block type. Texts are German and translated in the context "FB_Types".
struct FB_Parameter {
  const char* mName = ""; ///< "%1" stands for the parameter's index
  const char* mDescription = "";
  FB_Editor mEditor = FB_Editor::Number;
  const char* mDefault = "";
  double mMinimum = -4294967295.0; ///< of a number
  double mMaximum = 4294967295.0;
  int mDecimals = 0;
  std::span<const FB_Choice> mChoices = {}; ///< of a choice; the parameter's text is the value of one
  const char* mUnit = "";                   ///< German, shown behind a number: "s", "°C"
  int mNeeds = -1;     ///< index of the parameter that decides whether this one matters; -1 for none
  int mNeedsValue = 0; ///< it matters while that parameter has this value
};

/// Pins of one side that are named alike. Where a word holds "%1", the running number takes its place; it counts the
/// pins of the group, from 1.
struct FB_Pin_Group {
  FB_Side mSide = FB_Side::Input;
  const char* mLongName = "";    ///< German, "Eingang %1"
  const char* mShortName = "";   ///< "E%1", drawn beside the pin
  int mCount = 1;                ///< fixed number of pins; with a parameter: the fewest
  int mParameter = -1;           ///< index of the parameter that counts them; -1 for a fixed number
  const char* mDpt = "";         ///< usual datapoint type, "1.001" or "9" for any of the format; empty for any
  const char* mDescription = ""; ///< German, one sentence without a point: what the pin takes or sends
};

/// One type of function blocks, as its family declares it: everything that is true of the type and not of a block.
struct FB_Type {
  int mId = 0;             ///< fixed for ever, stands in project files
  const char* mName = "";  ///< German display name; double blanks and a trailing " *" belong to it
  const char* mClass = ""; ///< of the block's widget, "FB_AND"
  const char* mHelp = "";  ///< help page; empty: made from the class, "fb_and.html"
  FB_Body mBody = FB_Body::Plain;
  bool mIsOnce = false;  ///< at most one block of the type in a project
  bool mHasPins = false; ///< parameters and pins are declared; a block of any other type keeps what its record holds
  std::span<const FB_Parameter> mParameters = {};
  std::span<const FB_Pin_Group> mPins = {};
  const char* mNoOutput = "";    ///< German; of a type with pins but no output: why it needs none
  bool mHasRegisterPins = false; ///< the block's Modbus registers make further pins, behind these; none is counted then
};
