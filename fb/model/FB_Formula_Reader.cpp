#include "fb/model/FB_Formula_Reader.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("FB_Formula_Language", text);
}

bool isDigit(QChar c) {
  return c >= u'0' && c <= u'9';
}

bool isNamePart(QChar c) {
  return c.isLetterOrNumber() || c == u'_';
}

/// Signs that texts use in place of those on the keyboard.
QStringView keyboardSign(QStringView sign) {
  static constexpr std::pair<char16_t, QStringView> cSigns[] = {{u'−', u"-"},  {u'–', u"-"}, {u'×', u"*"},
                                                                {u'·', u"*"},  {u'÷', u"/"}, {u'≤', u"<="},
                                                                {u'≥', u">="}, {u'≠', u"!="}};
  for (const auto& [written, meant] : cSigns) {
    if (sign.front() == written) {
      return meant;
    }
  }
  return sign;
}

} // namespace

FB_Formula_Reader::FB_Formula_Reader(const QString& formula, int inputs) : mText(formula), mInputs(inputs) {
  mFrames.emplace_back();
  if (mText.size() > FB_Formula_Language::cLongest) {
    const QLocale locale;
    fail(FB_Formula_Language::cLongest, mText.size() - FB_Formula_Language::cLongest,
         tr("Die Formel hat %1 Zeichen, erlaubt sind höchstens %2.")
             .arg(locale.toString(mText.size()), locale.toString(FB_Formula_Language::cLongest)));
    return;
  }
  readAll();
}

void FB_Formula_Reader::readAll() {
  skipBlanks();
  if (mAt == mText.size()) {
    fail(0, 0, tr("Die Formel ist leer."));
  }
  while (!mFault && mAt < mText.size()) {
    readWord();
    skipBlanks();
  }
  if (mFault) {
    return;
  }
  if (mIsValueNext) {
    fail(mAt, 0, tr("Die Formel hört zu früh auf, hier fehlt ein Wert."));
  } else if (mFrames.size() > 1) {
    fail(mFrames.back().mAt, 1, tr("Zu dieser Klammer fehlt ')'."));
    if (mFrames.back().mFunction) {
      mFault.mLength = static_cast<qsizetype>(std::strlen(mFrames.back().mFunction->mName));
      mFault.mText = tr("Die Klammer von \"%1\" wird nicht geschlossen, es fehlt ')'.")
                         .arg(QLatin1String(mFrames.back().mFunction->mName));
    }
  } else {
    endPart();
  }
}

void FB_Formula_Reader::skipBlanks() {
  while (mAt < mText.size() && mText[mAt].isSpace()) {
    ++mAt;
  }
}

void FB_Formula_Reader::readWord() {
  const QChar c = mText[mAt];
  const bool isFraction = (c == u'.' || c == u',') && mIsValueNext && mAt + 1 < mText.size() && isDigit(mText[mAt + 1]);
  if (isDigit(c) || isFraction) {
    readNumber();
  } else if (isNamePart(c)) {
    readName();
  } else {
    readSymbol();
  }
}

void FB_Formula_Reader::readNumber() {
  const qsizetype start = mAt;
  int signs = 0;
  const auto isSign = [this] {
    return mAt + 1 < mText.size() && (mText[mAt] == u'.' || mText[mAt] == u',') && isDigit(mText[mAt + 1]);
  };
  while (mAt < mText.size() && (isDigit(mText[mAt]) || isSign())) {
    signs += isDigit(mText[mAt]) ? 0 : 1;
    ++mAt;
  }
  if (!expect(true, start, mAt - start)) {
    return;
  }
  QString digits = mText.mid(start, mAt - start).toString();
  if (signs > 1) {
    fail(start, mAt - start,
         tr("\"%1\" hat mehr als ein Dezimalzeichen. Werte werden mit ';' getrennt.").arg(digits.left(40)));
    return;
  }
  const double number = QLocale::c().toDouble(digits.replace(u',', u'.'));
  if (!std::isfinite(number)) {
    fail(start, mAt - start, tr("Die Zahl ist zu groß."));
    return;
  }
  emitCode(QByteArray::number(number, 'g', QLocale::FloatingPointShortest).constData());
}

void FB_Formula_Reader::readName() {
  const qsizetype start = mAt;
  while (mAt < mText.size() && isNamePart(mText[mAt])) {
    ++mAt;
  }
  const QStringView name = mText.mid(start, mAt - start);
  if (const FB_Formula_Word* const sign = FB_Formula_Words::find(name, true)) {
    mAt = start;
    readOperator(*sign, name.size());
    return;
  }
  const FB_Formula_Word* const word = FB_Formula_Words::find(name);
  if (word && word->mKind == FB_Formula_Word::Kind::Operator) {
    mAt = start;
    readOperator(*word, name.size());
  } else if (!expect(true, start, name.size())) {
    return;
  } else if (word && word->mKind == FB_Formula_Word::Kind::Function) {
    readFunction(*word, start);
  } else if (word) {
    emitCode(QByteArray::number(word->mValue, 'g', QLocale::FloatingPointShortest).constData());
  } else {
    readInput(name);
  }
}

void FB_Formula_Reader::readInput(QStringView name) {
  const qsizetype start = mAt - name.size();
  const bool isInput = name.size() > 1 && name.front().toUpper() == u'E' &&
                       std::all_of(name.begin() + 1, name.end(), [](QChar c) { return isDigit(c); });
  bool isNumber = false;
  const int number = name.mid(1).toInt(&isNumber);
  if (!isInput) {
    fail(start, name.size(), tr("Den Namen \"%1\" gibt es nicht.").arg(name.left(40)));
  } else if (!isNumber || number < 1 || number > mInputs || name.at(1) == u'0') {
    const QString count = mInputs == 1 ? tr("der Baustein hat nur den Eingang E1")
                                       : tr("der Baustein hat die Eingänge E1 bis E%1").arg(mInputs);
    fail(start, name.size(), tr("Den Eingang %1 gibt es nicht, %2.").arg(name.left(40).toString().toUpper(), count));
  } else {
    emitCode(QByteArray("E").append(QByteArray::number(number)).constData());
  }
}

void FB_Formula_Reader::readFunction(const FB_Formula_Word& word, qsizetype start) {
  const qsizetype end = mAt;
  skipBlanks();
  if (mAt == mText.size() || mText[mAt] != u'(') {
    fail(start, end - start,
         tr("Hinter \"%1\" fehlen die Werte in Klammern: %2")
             .arg(QLatin1String(word.mName), QString::fromUtf8(word.mSignature)));
    return;
  }
  ++mAt;
  open(&word, start);
}

void FB_Formula_Reader::readSymbol() {
  const QChar c = mText[mAt];
  switch (c.unicode()) {
  case u'(':
    if (expect(true, mAt, 1)) {
      ++mAt;
      open(nullptr, mAt - 1);
    }
    return;
  case u')':
    close();
    return;
  case u';':
    divide();
    return;
  case u'?':
    question();
    return;
  case u':':
    colon();
    return;
  case u',':
    fail(mAt, 1, tr("Unerwartetes Zeichen ','. Werte werden mit ';' getrennt."));
    return;
  default:
    break;
  }
  for (const qsizetype length : {2, 1}) {
    const QStringView written = mText.mid(mAt, length);
    const QStringView sign = length == 1 ? keyboardSign(written) : written;
    const FB_Formula_Word* word = mIsValueNext ? FB_Formula_Words::find(sign, true) : nullptr;
    word = word ? word : FB_Formula_Words::find(sign);
    word = word ? word : FB_Formula_Words::find(sign, true);
    if (word && written.size() == length) {
      readOperator(*word, length);
      return;
    }
  }
  const qsizetype size = c.isHighSurrogate() && mAt + 1 < mText.size() ? 2 : 1;
  fail(mAt, size, tr("Unerwartetes Zeichen '%1'.").arg(mText.mid(mAt, size)));
}

void FB_Formula_Reader::readOperator(const FB_Formula_Word& word, qsizetype length) {
  const bool isInFront = word.mFewest == 1;
  const qsizetype start = mAt;
  if (isInFront && mIsValueNext && mIsBehindSign) {
    fail(start, length, tr("Zwei Vorzeichen hintereinander: das zweite gehört in Klammern."));
    return;
  }
  if (!expect(isInFront, start, length)) {
    return;
  }
  mAt += length;
  mIsValueNext = true;
  mIsBehindSign = isInFront;
  Frame& frame = mFrames.back();
  if (word.mPriority == 3 || word.mPriority == 4) {
    if (frame.mIsCompared) {
      fail(start, length,
           tr("Vergleiche werden mit \"and\" verbunden: statt \"1 < E1 < 5\" also \"1 < E1 and E1 < 5\"."));
    }
    frame.mIsCompared = true;
  } else if (word.mPriority < 3) {
    frame.mIsCompared = false;
  }
  emitCode(codeOf(word));
}

bool FB_Formula_Reader::expect(bool isValue, qsizetype at, qsizetype length) {
  if (isValue == mIsValueNext) {
    mIsValueNext = false;
    mIsBehindSign = false;
    return true;
  }
  const QStringView word = mText.mid(at, std::min<qsizetype>(length, 40));
  fail(at, length,
       isValue ? tr("Vor \"%1\" fehlt ein Operator.").arg(word)
               : tr("Unerwartetes Zeichen '%1', davor fehlt ein Wert.").arg(word));
  return false;
}

void FB_Formula_Reader::fail(qsizetype at, qsizetype length, const QString& text) {
  if (!mFault) {
    mFault = {at, length, text};
  }
}

void FB_Formula_Reader::open(const FB_Formula_Word* function, qsizetype start) {
  if (mFrames.size() > static_cast<size_t>(FB_Formula_Language::cDeepest)) {
    fail(mAt - 1, 1, tr("Mehr als %1 Klammern ineinander sind nicht möglich.").arg(FB_Formula_Language::cDeepest));
    return;
  }
  const bool isIf = function && !function->mCall;
  if (function && !isIf) {
    mCode += function->mName; // no blank: the library takes it for a function by its bracket
  }
  emitCode(isIf ? "( (" : "(");
  mFrames.push_back({start, function});
  mIsValueNext = true;
  mIsBehindSign = false;
}

void FB_Formula_Reader::close() {
  if (mFrames.size() == 1) {
    fail(mAt, 1, tr("Zu dieser Klammer fehlt '('."));
    return;
  }
  if (!expect(false, mAt, 1)) {
    return;
  }
  endPart();
  endFrame();
  ++mAt;
}

/// A value in brackets is one value, whatever was inside.
void FB_Formula_Reader::endFrame() {
  const Frame frame = std::move(mFrames.back());
  mFrames.pop_back();
  const FB_Formula_Word* const function = frame.mFunction;
  if (function && (frame.mValues < function->mFewest || frame.mValues > function->mMost)) {
    const bool isTooFew = frame.mValues < function->mFewest;
    fail(frame.mAt, static_cast<qsizetype>(std::strlen(function->mName)),
         (isTooFew ? tr("\"%1\" bekommt zu wenige Werte: %2") : tr("\"%1\" bekommt zu viele Werte: %2"))
             .arg(QLatin1String(function->mName), QString::fromUtf8(function->mSignature)));
  }
  emitCode(function && !function->mCall ? ") )" : ")");
}

void FB_Formula_Reader::divide() {
  if (!mFrames.back().mFunction) {
    fail(mAt, 1, tr("Unerwartetes Zeichen ';': es trennt die Werte einer Funktion."));
    return;
  }
  if (!expect(false, mAt, 1)) {
    return;
  }
  endPart();
  Frame& frame = mFrames.back();
  const bool isIf = !frame.mFunction->mCall;
  emitCode(!isIf ? ";" : frame.mValues == 1 ? ") ? (" : ") : (");
  ++frame.mValues;
  ++mAt;
  mIsValueNext = true;
}

void FB_Formula_Reader::question() {
  const size_t depth = mFrames.back().mQuestions.size() + mFrames.size();
  if (depth > static_cast<size_t>(FB_Formula_Language::cDeepest)) {
    fail(mAt, 1, tr("Mehr als %1 '?' und Klammern ineinander sind nicht möglich.").arg(FB_Formula_Language::cDeepest));
  } else if (expect(false, mAt, 1)) {
    mFrames.back().mQuestions.push_back(mAt);
    mFrames.back().mIsCompared = false;
    emitCode("?");
    ++mAt;
    mIsValueNext = true;
  }
}

void FB_Formula_Reader::colon() {
  std::vector<qsizetype>& questions = mFrames.back().mQuestions;
  if (questions.empty()) {
    fail(mAt, 1, tr("Unerwartetes Zeichen ':', davor fehlt '?'."));
  } else if (expect(false, mAt, 1)) {
    questions.pop_back();
    mFrames.back().mIsCompared = false;
    emitCode(":");
    ++mAt;
    mIsValueNext = true;
  }
}

/// A value of a function, a bracket or the formula is complete.
void FB_Formula_Reader::endPart() {
  Frame& frame = mFrames.back();
  if (!frame.mQuestions.empty()) {
    fail(frame.mQuestions.back(), 1, tr("Zu diesem '?' fehlt ':' mit dem anderen Wert."));
  }
  frame.mIsCompared = false;
}
