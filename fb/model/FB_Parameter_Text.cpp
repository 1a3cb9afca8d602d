#include "fb/model/FB_Parameter_Text.h"

#include "fb/model/FB_Types.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("FB_Parameter_Text", text);
}

QString withUnit(const FB_Parameter& parameter, const QString& number) {
  const QString unit = FB_Types::text(parameter.mUnit);
  return unit.isEmpty() ? number : number + u' ' + unit;
}

/// With no more digits than needed, as the chosen language writes it.
QString range(const FB_Parameter& parameter) {
  return tr("%1 bis %2")
      .arg(FB_Parameter_Text::shownNumber(parameter.mMinimum, parameter.mDecimals),
           withUnit(parameter, FB_Parameter_Text::shownNumber(parameter.mMaximum, parameter.mDecimals)));
}

const FB_Choice* choiceOf(const FB_Parameter& parameter, const QString& value) {
  const auto found = std::find_if(parameter.mChoices.begin(), parameter.mChoices.end(),
                                  [&](const FB_Choice& choice) { return QString::number(choice.mValue) == value; });
  return found == parameter.mChoices.end() ? nullptr : &*found;
}

} // namespace

QString FB_Parameter_Text::shownNumber(double value, int decimals) {
  QLocale locale;
  locale.setNumberOptions(QLocale::OmitGroupSeparator);
  const QString stored = ofNumber(value, decimals);
  return locale.toString(value, 'f', FB_Parameter_Text::decimals(stored));
}

QString FB_Parameter_Text::name(const FB_Parameter& parameter, int index) {
  QString text = FB_Types::text(parameter.mName);
  return text.replace(QStringLiteral("%1"), QString::number(index));
}

std::optional<double> FB_Parameter_Text::number(const QString& text) {
  bool isNumber = false;
  const double value = text.trimmed().toDouble(&isNumber);
  return isNumber && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

QString FB_Parameter_Text::ofNumber(double value, int decimals) {
  QString text = QString::number(value, 'f', decimals);
  if (text.contains(u'.')) {
    while (text.endsWith(u'0')) {
      text.chop(1);
    }
    if (text.endsWith(u'.')) {
      text.chop(1);
    }
  }
  return text == QStringLiteral("-0") ? QStringLiteral("0") : text;
}

int FB_Parameter_Text::decimals(const QString& text) {
  const auto value = number(text);
  if (!value) {
    return 0;
  }
  const QString all = ofNumber(*value, cMostDecimals);
  const qsizetype point = all.indexOf(u'.');
  return point < 0 ? 0 : static_cast<int>(all.size() - point - 1);
}

bool FB_Parameter_Text::isDefault(const FB_Parameter& parameter, const QString& value) {
  const QString usual = QString::fromUtf8(parameter.mDefault);
  if (parameter.mEditor == FB_Editor::Text || parameter.mEditor == FB_Editor::File_Name) {
    return value == usual;
  }
  const auto present = number(value);
  return parameter.mEditor == FB_Editor::Check ? (present.value_or(0) != 0) == (number(usual).value_or(0) != 0)
                                               : value == usual || (present && present == number(usual));
}

QString FB_Parameter_Text::fault(const FB_Parameter& parameter, const QString& value) {
  if (parameter.mEditor == FB_Editor::Choice) {
    return choiceOf(parameter, value) ? QString() : tr("\"%1\" steht nicht zur Wahl").arg(value.left(40));
  }
  const auto present = number(value);
  if (parameter.mEditor == FB_Editor::Check) {
    return present ? QString() : tr("\"%1\" ist weder Ein noch Aus").arg(value.left(40));
  }
  if (parameter.mEditor != FB_Editor::Number) {
    return {};
  }
  if (!present) {
    return tr("\"%1\" ist keine Zahl").arg(value.left(40));
  }
  const bool isOutside = *present < parameter.mMinimum || *present > parameter.mMaximum;
  return isOutside ? tr("erlaubt: %1").arg(range(parameter)) : QString();
}

QString FB_Parameter_Text::shown(const FB_Parameter& parameter, const QString& value) {
  switch (parameter.mEditor) {
  case FB_Editor::Number:
    return withUnit(parameter, shownNumber(number(value).value_or(0), cMostDecimals));
  case FB_Editor::Check:
    return number(value).value_or(0) != 0 ? tr("Ein") : tr("Aus");
  case FB_Editor::Choice: {
    const FB_Choice* const choice = choiceOf(parameter, value);
    return choice ? FB_Types::text(choice->mText) : value;
  }
  case FB_Editor::Text:
  case FB_Editor::File_Name:
  case FB_Editor::Window:
    break;
  }
  return value.isEmpty() ? tr("leer") : value;
}

QString FB_Parameter_Text::toolTip(const FB_Parameter& parameter) {
  QStringList lines;
  if (parameter.mEditor == FB_Editor::Number) {
    lines.append(tr("Bereich: %1").arg(range(parameter)));
  }
  lines.append(tr("Vorgabe: %1").arg(shown(parameter, QString::fromUtf8(parameter.mDefault))));
  return lines.join(u'\n');
}
