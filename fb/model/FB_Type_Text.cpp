#include "fb/model/FB_Type_Text.h"

#include "fb/model/FB_Parameter_Text.h"
#include "fb/model/FB_Types.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("FB_Type_Text", text);
}

/// "E%1" from its first to its last number.
QString numbered(const char* word, const FB_Pin_Group& pins) {
  const QString text = FB_Types::text(word);
  const bool isCounted = pins.mParameter >= 0;
  if (!isCounted && pins.mCount == 1) {
    return text.contains(u"%1") ? text.arg(1) : text;
  }
  const QString last = isCounted ? QStringLiteral("n") : QString::number(pins.mCount);
  if (!text.contains(u"%1")) {
    return QStringLiteral("%1 (%2 ×)").arg(text, last);
  }
  // "Eingang 1 … n", but "E1 … En": a number that stands alone is enough.
  const bool isAlone = text.endsWith(u" %1");
  return QStringLiteral("%1 … %2").arg(text.arg(1), isAlone ? last : text.arg(last));
}

QString onOff(bool isOn) {
  return isOn ? tr("Ein") : tr("Aus");
}

QString choiceText(const FB_Parameter& parameter, int value) {
  const auto choice = std::ranges::find(parameter.mChoices, value, &FB_Choice::mValue);
  return choice == parameter.mChoices.end() ? QString::number(value) : FB_Types::text(choice->mText);
}

} // namespace

QString FB_Type_Text::longName(const FB_Pin_Group& pins) {
  return numbered(pins.mLongName, pins);
}

QString FB_Type_Text::shortName(const FB_Pin_Group& pins) {
  return numbered(pins.mShortName, pins);
}

QString FB_Type_Text::count(const FB_Type& type, const FB_Pin_Group& pins) {
  if (pins.mParameter < 0) {
    return {};
  }
  const FB_Parameter& counter = type.mParameters[static_cast<size_t>(pins.mParameter)];
  return QStringLiteral("n = %1 (%2)").arg(FB_Types::text(counter.mName), range(counter));
}

int FB_Type_Text::alike(const FB_Type& type, int parameter) {
  const auto from = type.mParameters.subspan(static_cast<size_t>(parameter));
  const QLatin1String name(from.front().mName);
  const auto isOther = [name](const FB_Parameter& other) { return QLatin1String(other.mName) != name; };
  return name.contains(QLatin1String("%1"))
             ? static_cast<int>(std::distance(from.begin(), std::ranges::find_if(from, isOther)))
             : 1;
}

QString FB_Type_Text::name(const FB_Type& type, int parameter, int count) {
  QString text = FB_Types::text(type.mParameters[static_cast<size_t>(parameter)].mName);
  if (!text.contains(u"%1")) {
    return text;
  }
  return count == 1 ? text.arg(parameter)
                    : text.arg(QStringLiteral("%1 … %2").arg(parameter).arg(parameter + count - 1));
}

QString FB_Type_Text::range(const FB_Parameter& parameter) {
  switch (parameter.mEditor) {
  case FB_Editor::Number:
    return tr("%1 bis %2")
        .arg(FB_Parameter_Text::shownNumber(parameter.mMinimum, parameter.mDecimals),
             FB_Parameter_Text::shownNumber(parameter.mMaximum, parameter.mDecimals));
  case FB_Editor::Check:
    return onOff(false) + QStringLiteral("; ") + onOff(true);
  case FB_Editor::Choice: {
    QStringList texts;
    for (const FB_Choice& choice : parameter.mChoices) {
      texts.append(FB_Types::text(choice.mText));
    }
    return texts.join(QStringLiteral("; "));
  }
  case FB_Editor::Text:
  case FB_Editor::File_Name:
  case FB_Editor::Window:
    break;
  }
  return {};
}

QString FB_Type_Text::usual(const FB_Parameter& parameter) {
  QString value = QString::fromUtf8(parameter.mDefault);
  switch (parameter.mEditor) {
  case FB_Editor::Number:
    return FB_Parameter_Text::shownNumber(value.toDouble(), parameter.mDecimals);
  case FB_Editor::Check:
    return onOff(value == u"1");
  case FB_Editor::Choice:
    return choiceText(parameter, value.toInt());
  case FB_Editor::Text:
  case FB_Editor::File_Name:
  case FB_Editor::Window:
    break;
  }
  return value;
}

QString FB_Type_Text::condition(const FB_Type& type, const FB_Parameter& parameter) {
  if (parameter.mNeeds < 0 || parameter.mNeeds >= static_cast<int>(type.mParameters.size())) {
    return {};
  }
  const FB_Parameter& needed = type.mParameters[static_cast<size_t>(parameter.mNeeds)];
  const QString value = needed.mEditor == FB_Editor::Check ? onOff(parameter.mNeedsValue != 0)
                                                           : choiceText(needed, parameter.mNeedsValue);
  return tr("nur bei %1 = %2").arg(FB_Types::text(needed.mName), value);
}
