#include "fb/model/FB_Formula_Language.h"

#include "fb/model/FB_Formula_Reader.h"

#include <QCoreApplication>
#include <QLocale>

#include <muParser.h>

#include <cmath>
#include <cstdlib>
#include <utility>

namespace {

using Word = FB_Formula_Word;

QString tr(const char* text) {
  return QCoreApplication::translate("FB_Formula_Language", text);
}

/// What ends a computation; never leaves this file.
struct No_Result {
  QString mText;
};

double call(const Word& word, const double* values, int count) {
  const double result = word.mCall(values, count);
  if (std::isnan(result)) {
    throw No_Result{*word.mNoResult ? FB_Formula_Words::text(word.mNoResult)
                                    : tr("\"%1\" hat für diese Werte kein Ergebnis.").arg(QLatin1String(word.mName))};
  }
  if (std::isinf(result)) {
    throw No_Result{tr("Das Ergebnis von \"%1\" ist zu groß.").arg(QLatin1String(word.mName))};
  }
  return result;
}

double callFunction(void* word, const double* values, int count) {
  return call(*static_cast<const Word*>(word), values, count);
}

/// The library calls operators by plain functions: one for each row of the table.
template <size_t Row>
double callBinary(double a, double b) {
  const double values[] = {a, b};
  return call(FB_Formula_Words::all()[Row], values, 2);
}

template <size_t Row>
double callInFront(double a) {
  return call(FB_Formula_Words::all()[Row], &a, 1);
}

/// The library with none of its own words, only those of the table.
class Parser : public mu::ParserBase {
public:
  Parser() {
    Parser::InitCharSets();
    AddValIdent(&readNumber);
    EnableBuiltInOprt(false);
    SetArgSep(';');
    defineOperators(std::make_index_sequence<cOperatorRows>());
    for (const Word& word : FB_Formula_Words::all()) {
      if (word.mKind == Word::Kind::Function && word.mCall) {
        DefineFunUserData(word.mName, &callFunction, const_cast<Word*>(&word), false);
      }
    }
  }

private:
  /// At least so many rows are looked at for operators; they stand first.
  static constexpr size_t cOperatorRows = 17;

  void InitCharSets() override {
    DefineNameChars("0123456789_abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ");
    DefineOprtChars("+-*^/<>=!|&%");
    DefineInfixOprtChars("+-!");
  }
  void InitFun() override {}
  void InitConst() override {}
  void InitOprt() override {}

  /// Signs are operators.
  static int readNumber(const char* text, int* position, double* value) {
    if (*text < '0' || *text > '9') {
      return 0;
    }
    const char* end = text;
    while ((*end >= '0' && *end <= '9') || *end == '.' || *end == 'e' ||
           ((*end == '-' || *end == '+') && *(end - 1) == 'e')) {
      ++end;
    }
    bool isNumber = false;
    *value = QByteArray(text, static_cast<int>(end - text)).toDouble(&isNumber);
    *position += static_cast<int>(end - text);
    return isNumber ? 1 : 0;
  }

  template <size_t... Rows>
  void defineOperators(std::index_sequence<Rows...>) {
    (defineOperator<Rows>(), ...);
  }

  template <size_t Row>
  void defineOperator() {
    const Word& word = FB_Formula_Words::all()[Row];
    const char* const code = FB_Formula_Reader::codeOf(word);
    if (word.mFewest == 1) {
      DefineInfixOprt(code, &callInFront<Row>, word.mPriority, false);
    } else {
      const bool isFromRight = word.mName[0] == '^';
      DefineOprt(code, &callBinary<Row>, static_cast<unsigned>(word.mPriority), isFromRight ? mu::oaRIGHT : mu::oaLEFT);
    }
  }
};

FB_Formula_Language::Result compute(const std::string& code, std::span<const double> values) {
  std::vector<double> inputs(values.begin(), values.end());
  try {
    Parser parser;
    for (size_t i = 0; i < inputs.size(); ++i) {
      parser.DefineVar("E" + std::to_string(i + 1), &inputs[i]);
    }
    parser.SetExpr(code);
    const double result = parser.Eval();
    if (std::isfinite(result)) {
      return {result, {}};
    }
    return {{}, tr("Das Ergebnis ist keine endliche Zahl.")};
  } catch (const No_Result& none) {
    return {{}, none.mText};
  } catch (const mu::ParserError& error) {
    return {{}, tr("Die Formel lässt sich nicht berechnen: %1").arg(QString::fromStdString(error.GetMsg()))};
  } catch (const std::exception& error) {
    return {{}, tr("Die Formel lässt sich nicht berechnen: %1").arg(QString::fromUtf8(error.what()))};
  }
}

QString table(Word::Kind kind, const QString& title) {
  QString html = QStringLiteral("<h2>%1</h2>\n<table>\n<tr><th>%2</th><th>%3</th><th>%4</th></tr>\n")
                     .arg(title, tr("Schreibweise"), tr("Bedeutung"), tr("Beispiel"));
  for (const Word& word : FB_Formula_Words::all()) {
    if (word.mKind == kind) {
      const QString alias = *word.mAlias ? tr(" oder %1").arg(QLatin1String(word.mAlias)) : QString();
      html += QStringLiteral("<tr><td><code>%1</code></td><td>%2</td><td><code>%3</code></td></tr>\n")
                  .arg((QString::fromUtf8(word.mSignature) + alias).toHtmlEscaped(),
                       FB_Formula_Words::text(word.mDescription).toHtmlEscaped(),
                       QString::fromUtf8(word.mExample).toHtmlEscaped());
    }
  }
  return html + QStringLiteral("</table>\n");
}

} // namespace

FB_Formula_Language::Fault FB_Formula_Language::check(const QString& formula, int inputs) {
  return FB_Formula_Reader(formula, inputs).fault();
}

FB_Formula_Language::Result FB_Formula_Language::evaluate(const QString& formula, std::span<const double> values) {
  const FB_Formula_Reader reader(formula, static_cast<int>(values.size()));
  if (reader.fault()) {
    return {{}, reader.fault().mText};
  }
  for (const double value : values) {
    if (!std::isfinite(value)) {
      return {{}, tr("Ein Eingang hat keinen endlichen Wert.")};
    }
  }
  return compute(reader.code(), values);
}

double FB_Formula_Language::rounded(double value, int decimals) {
  const double scale = std::pow(10, decimals);
  const bool isRounded = decimals >= 0 && std::isfinite(value * scale);
  return isRounded ? std::round(value * scale) / scale : value;
}

QString FB_Formula_Language::referenceHtml() {
  const QLocale locale;
  const QStringList rules{
      tr("Werte sind die Eingänge E1 bis E%1, Zahlen, Konstanten und Funktionen.").arg(cMostInputs),
      tr("Zahlen haben einen Punkt oder ein Komma vor den Nachkommastellen (0.5 oder 0,5), aber keine Tausenderpunkte "
         "und keinen Exponenten; statt 1E3 heißt es 10^3."),
      tr("Werte einer Funktion werden mit Strichpunkt getrennt: max(E1; E2)."),
      tr("Wahr ist, was ungleich 0 ist; Vergleiche ergeben 1 oder 0. \"a ? b : c\" ergibt b, wenn a wahr ist, sonst "
         "c."),
      tr("Zuerst gerechnet wird ^, dann Vorzeichen und not, dann * / %, dann + -, dann < <= > >=, dann = <>, dann and, "
         "dann or, zuletzt ? :. Klammern gehen vor."),
      tr("Groß- und Kleinschreibung, Leerzeichen und Zeilenumbrüche bedeuten nichts."),
      tr("Eine Formel hat höchstens %1 Zeichen und %2 Klammern ineinander.")
          .arg(locale.toString(cLongest), locale.toString(cDeepest)),
      tr("Ohne Ergebnis bleiben die Division durch 0, Wurzel und Logarithmus außerhalb ihres Bereichs und Werte, die "
         "zu groß werden."),
  };
  QString html =
      QStringLiteral("<p>%1</p>\n<ul>\n").arg(tr("Wie die Formel eines Bausteins \"Formel\" geschrieben wird."));
  for (const QString& rule : rules) {
    html += QStringLiteral("<li>%1</li>\n").arg(rule.toHtmlEscaped());
  }
  return html + QStringLiteral("</ul>\n") + table(Word::Kind::Operator, tr("Operatoren")) +
         table(Word::Kind::Function, tr("Funktionen")) + table(Word::Kind::Constant, tr("Konstanten"));
}
