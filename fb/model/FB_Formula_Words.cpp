#include "fb/model/FB_Formula_Words.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <numeric>
#include <optional>

namespace {

using Word = FB_Formula_Word;
constexpr double cNone = std::numeric_limits<double>::quiet_NaN();
constexpr double cDegree = std::numbers::pi / 180;
constexpr int cAnyNumber = 64;

constexpr Word op(const char* name, const char* alias, const char* description, const char* example, int priority,
                  Word::Call call, const char* noResult = "") {
  return {.mKind = Word::Kind::Operator,
          .mName = name,
          .mAlias = alias,
          .mSignature = name,
          .mDescription = description,
          .mExample = example,
          .mFewest = 2,
          .mMost = 2,
          .mPriority = priority,
          .mCall = call,
          .mNoResult = noResult};
}

constexpr Word front(const char* name, const char* alias, const char* description, const char* example,
                     Word::Call call) {
  Word word = op(name, alias, description, example, 7, call);
  word.mFewest = word.mMost = 1;
  return word;
}

constexpr Word function(const char* name, const char* signature, int fewest, int most, const char* description,
                        const char* example, Word::Call call, const char* noResult = "") {
  return {.mName = name,
          .mSignature = signature,
          .mDescription = description,
          .mExample = example,
          .mFewest = fewest,
          .mMost = most,
          .mCall = call,
          .mNoResult = noResult};
}

constexpr Word constant(const char* name, const char* description, const char* example, double value) {
  return {.mKind = Word::Kind::Constant,
          .mName = name,
          .mSignature = name,
          .mDescription = description,
          .mExample = example,
          .mValue = value};
}

/// Bits are those of a whole number of 32 bits without a sign.
std::optional<quint32> bits(double value) {
  const bool isWhole = value >= 0 && value <= std::numeric_limits<quint32>::max() && std::floor(value) == value;
  return isWhole ? std::optional(static_cast<quint32>(value)) : std::nullopt;
}

template <class Operation>
double onBits(const double* values, Operation&& operation) {
  const auto a = bits(values[0]);
  const auto b = bits(values[1]);
  return a && b ? static_cast<double>(static_cast<quint32>(operation(*a, *b))) : cNone;
}

double rounded(const double* values, int count) {
  if (count < 2) {
    return std::round(values[0]);
  }
  if (std::floor(values[1]) != values[1] || std::abs(values[1]) > 9) {
    return cNone;
  }
  const double power = std::pow(10, std::abs(values[1]));
  const double scaled = values[1] < 0 ? values[0] / power : values[0] * power;
  if (!std::isfinite(scaled)) {
    return values[0]; // far above what has digits to round
  }
  return values[1] < 0 ? std::round(scaled) * power : std::round(scaled) / power;
}

constexpr const char* cByZero = QT_TRANSLATE_NOOP("FB_Formula_Words", "Division durch null.");
constexpr const char* cOnlyBits = QT_TRANSLATE_NOOP(
    "FB_Formula_Words", "Bits haben nur ganze Zahlen von 0 bis 4294967295, gezählt werden sie von 0 bis 31.");
constexpr const char* cLimits =
    QT_TRANSLATE_NOOP("FB_Formula_Words", "Die untere Grenze liegt über der oberen (\"limit\").");

constexpr Word cWords[] = {
    front("-", "", QT_TRANSLATE_NOOP("FB_Formula_Words", "Vorzeichen, wirkt nach der Potenz: -2^2 ist -4."), "-E1",
          [](const double* v, int) { return -v[0]; }),
    front("+", "", QT_TRANSLATE_NOOP("FB_Formula_Words", "Vorzeichen ohne Wirkung."), "+E1",
          [](const double* v, int) { return v[0]; }),
    front("not", "!", QT_TRANSLATE_NOOP("FB_Formula_Words", "Nicht: 1, wenn der Wert dahinter 0 ist, sonst 0."),
          "not (E1 > 5)", [](const double* v, int) { return v[0] == 0 ? 1.0 : 0.0; }),
    op("^", "", QT_TRANSLATE_NOOP("FB_Formula_Words", "Potenz, von rechts her: 2^3^2 ist 2^9."), "E1^2", 8,
       [](const double* v, int) { return std::pow(v[0], v[1]); }),
    op("*", "", QT_TRANSLATE_NOOP("FB_Formula_Words", "Multiplikation."), "E1 * 1.19", 6,
       [](const double* v, int) { return v[0] * v[1]; }),
    op(
        "/", "", QT_TRANSLATE_NOOP("FB_Formula_Words", "Division; durch 0 ist ein Fehler."), "E1 / 10", 6,
        [](const double* v, int) { return v[1] == 0 ? cNone : v[0] / v[1]; }, cByZero),
    op(
        "%", "",
        QT_TRANSLATE_NOOP("FB_Formula_Words", "Rest der Division, mit dem Vorzeichen des Wertes davor; kein Prozent."),
        "E1 % 24", 6, [](const double* v, int) { return v[1] == 0 ? cNone : std::fmod(v[0], v[1]); }, cByZero),
    op("+", "", QT_TRANSLATE_NOOP("FB_Formula_Words", "Addition."), "E1 + E2", 5,
       [](const double* v, int) { return v[0] + v[1]; }),
    op("-", "", QT_TRANSLATE_NOOP("FB_Formula_Words", "Subtraktion."), "E1 - E2", 5,
       [](const double* v, int) { return v[0] - v[1]; }),
    op("<", "", QT_TRANSLATE_NOOP("FB_Formula_Words", "Kleiner: 1 oder 0."), "E1 < 21.5", 4,
       [](const double* v, int) { return v[0] < v[1] ? 1.0 : 0.0; }),
    op("<=", "", QT_TRANSLATE_NOOP("FB_Formula_Words", "Kleiner oder gleich: 1 oder 0."), "E1 <= 100", 4,
       [](const double* v, int) { return v[0] <= v[1] ? 1.0 : 0.0; }),
    op(">", "", QT_TRANSLATE_NOOP("FB_Formula_Words", "Größer: 1 oder 0."), "E1 > E2", 4,
       [](const double* v, int) { return v[0] > v[1] ? 1.0 : 0.0; }),
    op(">=", "", QT_TRANSLATE_NOOP("FB_Formula_Words", "Größer oder gleich: 1 oder 0."), "E1 >= 0", 4,
       [](const double* v, int) { return v[0] >= v[1] ? 1.0 : 0.0; }),
    op("=", "==", QT_TRANSLATE_NOOP("FB_Formula_Words", "Genau gleich: 1 oder 0."), "E1 = 3", 3,
       [](const double* v, int) { return v[0] == v[1] ? 1.0 : 0.0; }),
    op("<>", "!=", QT_TRANSLATE_NOOP("FB_Formula_Words", "Ungleich: 1 oder 0."), "E1 <> E2", 3,
       [](const double* v, int) { return v[0] != v[1] ? 1.0 : 0.0; }),
    op("and", "&&", QT_TRANSLATE_NOOP("FB_Formula_Words", "Und: 1, wenn beide Werte ungleich 0 sind."),
       "E1 > 5 and E2 < 3", 2, [](const double* v, int) { return v[0] != 0 && v[1] != 0 ? 1.0 : 0.0; }),
    op("or", "||", QT_TRANSLATE_NOOP("FB_Formula_Words", "Oder: 1, wenn einer der Werte ungleich 0 ist."),
       "E1 = 1 or E2 = 1", 1, [](const double* v, int) { return v[0] != 0 || v[1] != 0 ? 1.0 : 0.0; }),

    function(FB_Formula_Words::cIf, "if(Bedingung; dann; sonst)", 3, 3,
             QT_TRANSLATE_NOOP("FB_Formula_Words", "Der zweite Wert, wenn der erste ungleich 0 ist, sonst der dritte; "
                                                   "nur dieser wird berechnet. Dasselbe ist \"a ? b : c\"."),
             "if(E2 = 0; 0; E1 / E2)", nullptr),
    function(
        "limit", "limit(x; min; max)", 3, 3,
        QT_TRANSLATE_NOOP("FB_Formula_Words", "Der Wert, begrenzt auf den Bereich von min bis max."),
        "limit(E1; 0; 100)", [](const double* v, int) { return v[1] > v[2] ? cNone : std::clamp(v[0], v[1], v[2]); },
        cLimits),
    function(
        "scale", "scale(x; x1; x2; y1; y2)", 5, 5,
        QT_TRANSLATE_NOOP("FB_Formula_Words",
                          "Rechnet den Wert linear um: x1 wird y1, x2 wird y2; darüber hinaus geht die Gerade weiter."),
        "scale(E1; 0; 10; -50; 50)",
        [](const double* v, int) {
          return v[1] == v[2] ? cNone : v[3] + (v[0] - v[1]) * (v[4] - v[3]) / (v[2] - v[1]);
        },
        cByZero),
    function("min", "min(a; b; …)", 2, cAnyNumber, QT_TRANSLATE_NOOP("FB_Formula_Words", "Der kleinste der Werte."),
             "min(E1; E2; E3)", [](const double* v, int count) { return *std::min_element(v, v + count); }),
    function("max", "max(a; b; …)", 2, cAnyNumber, QT_TRANSLATE_NOOP("FB_Formula_Words", "Der größte der Werte."),
             "max(E1; E2; E3)", [](const double* v, int count) { return *std::max_element(v, v + count); }),
    function("avg", "avg(a; b; …)", 2, cAnyNumber, QT_TRANSLATE_NOOP("FB_Formula_Words", "Der Mittelwert der Werte."),
             "avg(E1; E2; E3; E4)",
             [](const double* v, int count) { return std::accumulate(v, v + count, 0.0) / count; }),
    function("sum", "sum(a; b; …)", 2, cAnyNumber, QT_TRANSLATE_NOOP("FB_Formula_Words", "Die Summe der Werte."),
             "sum(E1; E2; E3)", [](const double* v, int count) { return std::accumulate(v, v + count, 0.0); }),
    function("abs", "abs(x)", 1, 1, QT_TRANSLATE_NOOP("FB_Formula_Words", "Der Wert ohne Vorzeichen."), "abs(E1 - E2)",
             [](const double* v, int) { return std::abs(v[0]); }),
    function("sign", "sign(x)", 1, 1, QT_TRANSLATE_NOOP("FB_Formula_Words", "Das Vorzeichen: -1, 0 oder 1."),
             "sign(E1)", [](const double* v, int) { return v[0] < 0   ? -1.0
                                                           : v[0] > 0 ? 1.0
                                                                      : 0.0; }),
    function("round", "round(x; Stellen)", 1, 2,
             QT_TRANSLATE_NOOP("FB_Formula_Words",
                               "Rundet auf so viele Nachkommastellen, ohne Angabe auf ganze Zahlen; "
                               "negative Stellen runden auf Zehner, Hunderter …"),
             "round(E1; 1)", &rounded,
             QT_TRANSLATE_NOOP("FB_Formula_Words", "Die Stellen von \"round\" sind eine ganze Zahl von -9 bis 9.")),
    function("floor", "floor(x)", 1, 1, QT_TRANSLATE_NOOP("FB_Formula_Words", "Rundet auf die ganze Zahl darunter."),
             "floor(E1)", [](const double* v, int) { return std::floor(v[0]); }),
    function("ceil", "ceil(x)", 1, 1, QT_TRANSLATE_NOOP("FB_Formula_Words", "Rundet auf die ganze Zahl darüber."),
             "ceil(E1)", [](const double* v, int) { return std::ceil(v[0]); }),
    function("trunc", "trunc(x)", 1, 1, QT_TRANSLATE_NOOP("FB_Formula_Words", "Schneidet die Nachkommastellen ab."),
             "trunc(E1)", [](const double* v, int) { return std::trunc(v[0]); }),
    function("sqrt", "sqrt(x)", 1, 1, QT_TRANSLATE_NOOP("FB_Formula_Words", "Die Quadratwurzel."), "sqrt(E1)",
             [](const double* v, int) { return std::sqrt(v[0]); }),
    function("exp", "exp(x)", 1, 1, QT_TRANSLATE_NOOP("FB_Formula_Words", "Die Potenz e^x."), "exp(-E1)",
             [](const double* v, int) { return std::exp(v[0]); }),
    function("ln", "ln(x)", 1, 1, QT_TRANSLATE_NOOP("FB_Formula_Words", "Der natürliche Logarithmus."), "ln(E1)",
             [](const double* v, int) { return v[0] > 0 ? std::log(v[0]) : cNone; }),
    function("log10", "log10(x)", 1, 1, QT_TRANSLATE_NOOP("FB_Formula_Words", "Der Logarithmus zur Basis 10."),
             "log10(E1)", [](const double* v, int) { return v[0] > 0 ? std::log10(v[0]) : cNone; }),
    function("sin", "sin(x)", 1, 1, QT_TRANSLATE_NOOP("FB_Formula_Words", "Der Sinus eines Winkels im Bogenmaß."),
             "sin(rad(E1))", [](const double* v, int) { return std::sin(v[0]); }),
    function("cos", "cos(x)", 1, 1, QT_TRANSLATE_NOOP("FB_Formula_Words", "Der Kosinus eines Winkels im Bogenmaß."),
             "cos(rad(E1))", [](const double* v, int) { return std::cos(v[0]); }),
    function("tan", "tan(x)", 1, 1, QT_TRANSLATE_NOOP("FB_Formula_Words", "Der Tangens eines Winkels im Bogenmaß."),
             "tan(rad(E1))", [](const double* v, int) { return std::tan(v[0]); }),
    function("asin", "asin(x)", 1, 1,
             QT_TRANSLATE_NOOP("FB_Formula_Words", "Der Winkel im Bogenmaß, dessen Sinus x ist."), "deg(asin(E1))",
             [](const double* v, int) { return std::asin(v[0]); }),
    function("acos", "acos(x)", 1, 1,
             QT_TRANSLATE_NOOP("FB_Formula_Words", "Der Winkel im Bogenmaß, dessen Kosinus x ist."), "deg(acos(E1))",
             [](const double* v, int) { return std::acos(v[0]); }),
    function("atan", "atan(x)", 1, 1,
             QT_TRANSLATE_NOOP("FB_Formula_Words", "Der Winkel im Bogenmaß, dessen Tangens x ist."), "deg(atan(E1))",
             [](const double* v, int) { return std::atan(v[0]); }),
    function("deg", "deg(x)", 1, 1, QT_TRANSLATE_NOOP("FB_Formula_Words", "Rechnet Bogenmaß in Grad um."),
             "deg(atan(E1 / E2))", [](const double* v, int) { return v[0] / cDegree; }),
    function("rad", "rad(x)", 1, 1, QT_TRANSLATE_NOOP("FB_Formula_Words", "Rechnet Grad in Bogenmaß um."), "rad(E1)",
             [](const double* v, int) { return v[0] * cDegree; }),
    function("xor", "xor(a; b)", 2, 2,
             QT_TRANSLATE_NOOP("FB_Formula_Words", "Exklusiv oder: 1, wenn genau einer der Werte ungleich 0 ist."),
             "xor(E1; E2)", [](const double* v, int) { return (v[0] != 0) != (v[1] != 0) ? 1.0 : 0.0; }),
    function(
        "bit", "bit(x; Nummer)", 2, 2,
        QT_TRANSLATE_NOOP("FB_Formula_Words", "Das Bit dieser Nummer (0 bis 31) einer ganzen Zahl: 1 oder 0."),
        "bit(E1; 3)",
        [](const double* v,
           int) { return v[1] > 31 ? cNone : onBits(v, [](quint32 a, quint32 b) { return (a >> b) & 1U; }); },
        cOnlyBits),
    function(
        "bitand", "bitand(a; b)", 2, 2,
        QT_TRANSLATE_NOOP("FB_Formula_Words", "Die Bits, die in beiden ganzen Zahlen gesetzt sind."), "bitand(E1; 255)",
        [](const double* v, int) { return onBits(v, std::bit_and<>()); }, cOnlyBits),
    function(
        "bitor", "bitor(a; b)", 2, 2,
        QT_TRANSLATE_NOOP("FB_Formula_Words", "Die Bits, die in einer der ganzen Zahlen gesetzt sind."),
        "bitor(E1; 128)", [](const double* v, int) { return onBits(v, std::bit_or<>()); }, cOnlyBits),
    function(
        "bitxor", "bitxor(a; b)", 2, 2,
        QT_TRANSLATE_NOOP("FB_Formula_Words", "Die Bits, die in genau einer der ganzen Zahlen gesetzt sind."),
        "bitxor(E1; 1)", [](const double* v, int) { return onBits(v, std::bit_xor<>()); }, cOnlyBits),

    constant("pi", QT_TRANSLATE_NOOP("FB_Formula_Words", "Die Kreiszahl 3,14159…"), "pi * E1^2", std::numbers::pi),
    constant("e", QT_TRANSLATE_NOOP("FB_Formula_Words", "Die Eulersche Zahl 2,71828…"), "e^E1", std::numbers::e),
};

} // namespace

std::span<const FB_Formula_Word> FB_Formula_Words::all() {
  return cWords;
}

const FB_Formula_Word* FB_Formula_Words::find(QStringView name, bool isInFront) {
  const auto isCalled = [name, isInFront](const Word& word) {
    const bool isFront = word.mKind == Word::Kind::Operator && word.mFewest == 1;
    return isFront == isInFront && (name.compare(QLatin1String(word.mName), Qt::CaseInsensitive) == 0 ||
                                    (*word.mAlias && name == QLatin1String(word.mAlias)));
  };
  const auto at = std::ranges::find_if(cWords, isCalled);
  return at == std::end(cWords) ? nullptr : at;
}

QString FB_Formula_Words::text(const char* germanText) {
  return QCoreApplication::translate("FB_Formula_Words", germanText);
}
