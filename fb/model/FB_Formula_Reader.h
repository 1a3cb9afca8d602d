#pragma once

#include "fb/model/FB_Formula_Language.h"
#include "fb/model/FB_Formula_Words.h"

#include <string>
#include <vector>

/// Reads a formula once from left to right: finds what is wrong with it and where, and makes the text that the
/// expression library computes. That text is always one that the library understands: blanks around every word, one
/// name for each, decimal points, "if" as "?:".
class FB_Formula_Reader {
public:
  /// The formula must live as long.
  FB_Formula_Reader(const QString& formula, int inputs);

  [[nodiscard]] const FB_Formula_Language::Fault& fault() const { return mFault; }
  /// For the library; of no use when there is a fault.
  [[nodiscard]] const std::string& code() const { return mCode; }

  /// As it stands in `code`.
  [[nodiscard]] static const char* codeOf(const FB_Formula_Word& word) {
    return *word.mAlias ? word.mAlias : word.mName;
  }

private:
  /// A bracket that is open, or the whole formula.
  struct Frame {
    qsizetype mAt = 0;                          ///< of its beginning, the function's name included
    const FB_Formula_Word* mFunction = nullptr; ///< null for a plain bracket
    int mValues = 1;
    std::vector<qsizetype> mQuestions = {}; ///< "?" that have no ":" yet
    bool mIsCompared = false;               ///< a comparison stands in this part already
  };

  void readAll();
  void readWord();
  void readNumber();
  void readName();
  void readInput(QStringView name);
  void readFunction(const FB_Formula_Word& word, qsizetype start);
  void readSymbol();
  void readOperator(const FB_Formula_Word& word, qsizetype length);
  void open(const FB_Formula_Word* function, qsizetype start);
  void close();
  void divide();
  void question();
  void colon();
  void endPart();
  void endFrame();
  /// False, with the fault told, when a value is to come here and something else does, or the other way round.
  bool expect(bool isValue, qsizetype at, qsizetype length);
  void fail(qsizetype at, qsizetype length, const QString& text);
  void emitCode(const char* text) { (mCode += text) += ' '; }
  void skipBlanks();

  QStringView mText;
  int mInputs;
  qsizetype mAt = 0;
  bool mIsValueNext = true;
  bool mIsBehindSign = false;
  std::vector<Frame> mFrames;
  std::string mCode;
  FB_Formula_Language::Fault mFault;
};
