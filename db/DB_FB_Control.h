#pragma once

#include "db/DB_Address_Binding.h"
#include "db/DB_Data_Base.h"

#include <QString>
#include <QStringList>
#include <QUuid>

#include <vector>

/// An input or output of a function block.
struct DB_FB_Pin {
  QString mLongName;  ///< "Eingang 1"
  QString mShortName; ///< "E1", drawn beside the pin
  DB_Address_Binding mBinding;

  void fields(DB_Fields& fields);
};

/// A register that a Modbus master block polls or writes (MODBUS Application Protocol V1.1b3).
struct DB_Modbus_Register {
  QString mName;
  int mAddress = 0;      ///< counted from 0
  int mFunctionCode = 3; ///< 3 read holding, 4 read input, 6 write single, 16 write multiple
  int mWordCount = 1;    ///< 16-bit words of one value
  int mCount = 1;        ///< values one behind the other
  int mDataType = 0;
  int mByteOrder = 0;
  bool mSigned = false;
  double mFactor = 1;
  double mOffset = 0;
  int mPollingInterval = 1000; ///< milliseconds
  bool mActive = true;
  int mWriteMode = 0;
  bool mUpdateOnChange = false;

  void fields(DB_Fields& fields);
  friend bool operator==(const DB_Modbus_Register&, const DB_Modbus_Register&) = default;
};

/// A function block on a logic page.
class DB_FB_Control : public DB_Record<DB_FB_Control> {
public:
  void fields(DB_Fields& fields) override;
  /// What stands above the block instead of its type's name: the comment where that is the heading, else the title of
  /// its own; empty for neither.
  [[nodiscard]] const QString& ownTitle() const { return mCommentAsCaption && !mComment.isEmpty() ? mComment : mTitle; }

  QUuid mGuid;
  QUuid mPageGuid; ///< the logic page it belongs to
  int mType = 0;   ///< block type id
  bool mDisplay = true;
  double mX = 0; ///< left edge in pixels of the unzoomed page
  double mY = 0; ///< upper edge in pixels of the unzoomed page
  QString mName;
  QString mComment;
  QString mTitle; ///< the block's own title; of a comment block its text
  bool mCommentAsCaption = false;
  bool mDisabled = false;
  bool mUpdateAtStart = true;
  bool mUpdateCyclic = false;
  int mStartDelay = 0; ///< seconds
  int mExecutionNumber = 0;
  DB_Address_Binding mDisableAddress; ///< while its value is set the block rests
  int mOriginalType = 0;  ///< of a block whose type this studio does not know and shows as a comment; 0 otherwise
  QString mOriginalTitle; ///< goes with `mOriginalType`
  QStringList mParams;
  std::vector<DB_FB_Pin> mInputs;
  std::vector<DB_FB_Pin> mOutputs;
  std::vector<DB_Modbus_Register> mModbusRegisters;
};
