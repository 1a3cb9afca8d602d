#include "mcp/tools/FB_Parameter_Json.h"

#include "db/DB_FB_Control.h"
#include "fb/model/FB_Page_Edits.h"
#include "fb/model/FB_Parameter_Text.h"
#include "fb/model/FB_Type_Text.h"
#include "fb/model/FB_Types.h"

#include <QLocale>
#include <QStringList>

namespace {

using Stored = FB_Parameter_Json::Stored;

const FB_Type* typeOf(const DB_FB_Control& block) {
  return block.mOriginalType == 0 ? FB_Types::find(block.mType) : nullptr;
}

int countOf(const FB_Type* type) {
  return type ? static_cast<int>(type->mParameters.size()) : 0;
}

QString kindOf(FB_Editor editor) {
  switch (editor) {
  case FB_Editor::Number:
    return QStringLiteral("number");
  case FB_Editor::Check:
    return QStringLiteral("boolean");
  case FB_Editor::Choice:
    return QStringLiteral("choice");
  case FB_Editor::File_Name:
    return QStringLiteral("file");
  case FB_Editor::Text:
  case FB_Editor::Window:
    break;
  }
  return QStringLiteral("text");
}

void addText(QJsonObject& object, const QString& name, const QString& text) {
  if (!text.isEmpty()) {
    object.insert(name, text);
  }
}

QJsonArray choicesOf(const FB_Parameter& parameter) {
  QJsonArray choices;
  for (const FB_Choice& choice : parameter.mChoices) {
    choices.append(
        QJsonObject{{QStringLiteral("value"), choice.mValue}, {QStringLiteral("text"), FB_Types::text(choice.mText)}});
  }
  return choices;
}

/// A number in a text has no needless digits, and never an exponent where it is whole.
QString textOf(const QJsonValue& value) {
  if (value.isBool()) {
    return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
  }
  return value.isDouble() ? QString::number(value.toDouble(), 'f', QLocale::FloatingPointShortest) : value.toString();
}

QString allowedChoices(const FB_Parameter& parameter) {
  QStringList choices;
  for (const FB_Choice& choice : parameter.mChoices) {
    choices.append(QStringLiteral("%1 = %2").arg(choice.mValue).arg(FB_Types::text(choice.mText)));
  }
  return choices.join(QStringLiteral(", "));
}

Stored fault(const FB_Parameter& parameter, int index, const QString& what) {
  return {{}, QStringLiteral("Parameter %1 (%2): %3").arg(index).arg(FB_Parameter_Text::name(parameter, index), what)};
}

Stored numberOf(const FB_Parameter& parameter, int index, const QString& text) {
  const double number = FB_Parameter_Text::number(text).value_or(0);
  if (FB_Parameter_Text::decimals(text) > parameter.mDecimals) {
    return fault(parameter, index,
                 parameter.mDecimals == 0 ? QStringLiteral("\"%1\" ist keine ganze Zahl").arg(text)
                                          : QStringLiteral("hoechstens %1 Nachkommastellen").arg(parameter.mDecimals));
  }
  return {FB_Parameter_Text::ofNumber(number, parameter.mDecimals), {}};
}

Stored checkOf(const FB_Parameter& parameter, int index, const QString& text) {
  const double number = FB_Parameter_Text::number(text).value_or(0);
  if (number != 0 && number != 1) {
    return fault(parameter, index, QStringLiteral("erlaubt: true (1) oder false (0)"));
  }
  return {number == 1 ? QStringLiteral("1") : QStringLiteral("0"), {}};
}

Stored storedAs(const FB_Parameter& parameter, int index, const QString& text) {
  const QString trimmed = text.trimmed();
  const bool isChoice = parameter.mEditor == FB_Editor::Choice;
  if (const QString wrong = FB_Parameter_Text::fault(parameter, trimmed); !wrong.isEmpty()) {
    return fault(parameter, index,
                 isChoice ? QStringLiteral("%1 (erlaubt: %2)").arg(wrong, allowedChoices(parameter)) : wrong);
  }
  switch (parameter.mEditor) {
  case FB_Editor::Number:
    return numberOf(parameter, index, trimmed);
  case FB_Editor::Check:
    return checkOf(parameter, index, trimmed);
  case FB_Editor::Choice:
    return {trimmed, {}};
  case FB_Editor::Text:
  case FB_Editor::File_Name:
  case FB_Editor::Window:
    break;
  }
  return {text, {}};
}

} // namespace

QJsonObject FB_Parameter_Json::declared(const FB_Type& type, int index) {
  const FB_Parameter& parameter = type.mParameters[static_cast<size_t>(index)];
  QJsonObject object{{QStringLiteral("index"), index},
                     {QStringLiteral("name"), FB_Parameter_Text::name(parameter, index)},
                     {QStringLiteral("kind"), kindOf(parameter.mEditor)},
                     {QStringLiteral("default"), QString::fromUtf8(parameter.mDefault)}};
  if (parameter.mEditor == FB_Editor::Number) {
    object.insert(QStringLiteral("minimum"), parameter.mMinimum);
    object.insert(QStringLiteral("maximum"), parameter.mMaximum);
    object.insert(QStringLiteral("decimals"), parameter.mDecimals);
  }
  if (parameter.mEditor == FB_Editor::Choice) {
    object.insert(QStringLiteral("choices"), choicesOf(parameter));
  }
  addText(object, QStringLiteral("unit"), FB_Types::text(parameter.mUnit));
  addText(object, QStringLiteral("description"), FB_Types::text(parameter.mDescription));
  addText(object, QStringLiteral("condition"), FB_Type_Text::condition(type, parameter));
  return object;
}

QJsonArray FB_Parameter_Json::ofType(const FB_Type& type) {
  QJsonArray array;
  for (int i = 0; i < countOf(&type); ++i) {
    array.append(declared(type, i));
  }
  return array;
}

QJsonArray FB_Parameter_Json::ofBlock(const DB_FB_Control& block) {
  const FB_Type* const type = typeOf(block);
  QJsonArray array;
  for (int i = 0; i < static_cast<int>(block.mParams.size()); ++i) {
    QJsonObject object = i < countOf(type) ? declared(*type, i) : QJsonObject{{QStringLiteral("index"), i}};
    object.insert(QStringLiteral("value"), block.mParams.at(i));
    array.append(object);
  }
  return array;
}

Stored FB_Parameter_Json::stored(const DB_FB_Control& block, int index, const QJsonValue& value) {
  const FB_Type* const type = typeOf(block);
  const int count = std::max(countOf(type), static_cast<int>(block.mParams.size()));
  if (index < 0 || index >= count) {
    return {{},
            count == 0 ? QStringLiteral("Der Baustein hat keine Parameter")
                       : QStringLiteral("Parameter-Index ausserhalb des gueltigen Bereichs: %1 (erlaubt 0 bis %2)")
                             .arg(index)
                             .arg(count - 1)};
  }
  const QString text = textOf(value);
  if (text.size() > FB_Page_Edits::cParameterLimit) {
    return {{},
            QStringLiteral("Parameter %1: der Text hat %2 Zeichen, erlaubt sind hoechstens %3")
                .arg(index)
                .arg(text.size())
                .arg(FB_Page_Edits::cParameterLimit)};
  }
  return index < countOf(type) ? storedAs(type->mParameters[static_cast<size_t>(index)], index, text)
                               : Stored{text, {}};
}
