#include "fb/model/FB_Type_Check.h"

#include "base/Datapoint_Types.h"
#include "fb/model/FB_Pins.h"

#include <QSet>

#include <algorithm>

namespace {

constexpr int cMostDecimals = 9;

bool isTrimmed(const char* text) {
  const QString whole = QString::fromUtf8(text);
  return whole == whole.trimmed();
}

/// For a row of the property panel or of a table: something, without blanks around it and without a full stop.
bool isDescription(const char* text) {
  return *text && isTrimmed(text) && !QByteArrayView(text).endsWith('.');
}

/// A datapoint type, or the format of several.
bool isKnown(const char* dpt) {
  const auto id = Datapoint_Id::parse(QString::fromLatin1(dpt));
  return id && (id->hasSub() ? Datapoint_Types::find(*id) != nullptr : !Datapoint_Types::ofMain(id->mMain).empty());
}

/// Why a user could not set the default; empty for one that is good.
QString wrongDefault(const FB_Parameter& parameter) {
  const QString value = QString::fromUtf8(parameter.mDefault);
  bool isNumber = false;
  const double number = value.toDouble(&isNumber);
  switch (parameter.mEditor) {
  case FB_Editor::Number:
    if (!isNumber || number < parameter.mMinimum || number > parameter.mMaximum) {
      return QStringLiteral("default out of range");
    }
    return value.section(u'.', 1).size() > parameter.mDecimals ? QStringLiteral("default with too many decimals")
                                                               : QString();
  case FB_Editor::Check:
    return value == u"0" || value == u"1" ? QString() : QStringLiteral("default neither 0 nor 1");
  case FB_Editor::Choice: {
    const auto isDefault = [&value](const FB_Choice& choice) { return QString::number(choice.mValue) == value; };
    return std::ranges::any_of(parameter.mChoices, isDefault) ? QString() : QStringLiteral("default is no choice");
  }
  case FB_Editor::Text:
  case FB_Editor::File_Name:
  case FB_Editor::Window:
    return {};
  }
  return QStringLiteral("unknown editor");
}

QString wrongChoices(const FB_Parameter& parameter) {
  QSet<int> values;
  QSet<QByteArray> texts;
  for (const FB_Choice& choice : parameter.mChoices) {
    values.insert(choice.mValue);
    texts.insert(choice.mText);
    if (!*choice.mText || !isTrimmed(choice.mText)) {
      return QStringLiteral("choice without a text");
    }
  }
  const auto count = static_cast<qsizetype>(parameter.mChoices.size());
  if (values.size() != count || texts.size() != count) {
    return QStringLiteral("choice made twice");
  }
  return count > 0 && parameter.mEditor != FB_Editor::Choice ? QStringLiteral("choices of what is not chosen")
                                                             : QString();
}

/// What decides whether a parameter matters must be able to have the value that says so.
bool isNeedGood(const FB_Type& type, int index) {
  const FB_Parameter& parameter = type.mParameters[static_cast<size_t>(index)];
  if (parameter.mNeeds < 0) {
    return true;
  }
  if (parameter.mNeeds == index || parameter.mNeeds >= static_cast<int>(type.mParameters.size())) {
    return false;
  }
  const FB_Parameter& needed = type.mParameters[static_cast<size_t>(parameter.mNeeds)];
  const auto isMeant = [&parameter](const FB_Choice& choice) { return choice.mValue == parameter.mNeedsValue; };
  return needed.mEditor == FB_Editor::Choice
             ? std::ranges::any_of(needed.mChoices, isMeant)
             : needed.mEditor == FB_Editor::Check && (parameter.mNeedsValue == 0 || parameter.mNeedsValue == 1);
}

QString wrongParameter(const FB_Type& type, int index) {
  const FB_Parameter& parameter = type.mParameters[static_cast<size_t>(index)];
  if (!*parameter.mName || !isTrimmed(parameter.mName)) {
    return QStringLiteral("parameter without a name");
  }
  if (!isDescription(parameter.mDescription)) {
    return QStringLiteral("parameter without a description");
  }
  if (parameter.mMinimum > parameter.mMaximum || parameter.mDecimals < 0 || parameter.mDecimals > cMostDecimals) {
    return QStringLiteral("impossible range");
  }
  if (!isTrimmed(parameter.mUnit) || (*parameter.mUnit && parameter.mEditor != FB_Editor::Number)) {
    return QStringLiteral("unit of no number");
  }
  if (!isNeedGood(type, index)) {
    return QStringLiteral("needs what cannot be");
  }
  const QString choices = wrongChoices(parameter);
  return choices.isEmpty() ? wrongDefault(parameter) : choices;
}

QString wrongPins(const FB_Type& type, const FB_Pin_Group& group) {
  if (!*group.mLongName || !*group.mShortName || !isTrimmed(group.mLongName) || !isTrimmed(group.mShortName)) {
    return QStringLiteral("pin without a name");
  }
  if (group.mCount < 0 || group.mParameter >= static_cast<int>(type.mParameters.size())) {
    return QStringLiteral("pins counted by what is not there");
  }
  if (*group.mDpt && !isKnown(group.mDpt)) {
    return QStringLiteral("pin of no datapoint type");
  }
  if (*group.mDescription && !isDescription(group.mDescription)) {
    return QStringLiteral("pin with a bad description");
  }
  if (group.mParameter < 0 && group.mCount <= 1) {
    return {};
  }
  if (!QByteArrayView(group.mLongName).contains("%1") || !QByteArrayView(group.mShortName).contains("%1")) {
    return QStringLiteral("pins without a number");
  }
  if (group.mParameter < 0) {
    return {};
  }
  const FB_Parameter& counter = type.mParameters[static_cast<size_t>(group.mParameter)];
  const bool isCount = counter.mEditor == FB_Editor::Number && counter.mDecimals == 0;
  if (isCount && counter.mMaximum > FB_Pins::mostPins(type, group.mParameter)) {
    return QStringLiteral("counts more pins than there can be");
  }
  return isCount && counter.mMinimum == group.mCount ? QString() : QStringLiteral("pins counted by no count");
}

/// What a user could not tell from another: pins of a side, or parameters.
QString sameNames(const FB_Type& type) {
  QSet<QString> names;
  for (const FB_Pin_Group& group : type.mPins) {
    const QString side = group.mSide == FB_Side::Input ? QStringLiteral("I") : QStringLiteral("O");
    for (const QString& name :
         {side + u'L' + QString::fromUtf8(group.mLongName), side + u'S' + QString::fromUtf8(group.mShortName)}) {
      if (names.contains(name)) {
        return QStringLiteral("two pins of one name");
      }
      names.insert(name);
    }
  }
  names.clear();
  for (const FB_Parameter& parameter : type.mParameters) {
    const QString name = QString::fromUtf8(parameter.mName);
    if (names.contains(name) && !name.contains(u"%1")) {
      return QStringLiteral("two parameters of one name");
    }
    names.insert(name);
  }
  return {};
}

/// Of a type with pins: one that sends nothing says why, and only that.
bool isSilentForNoReason(const FB_Type& type) {
  const bool hasOutput =
      std::ranges::any_of(type.mPins, [](const FB_Pin_Group& group) { return group.mSide == FB_Side::Output; });
  return type.mHasPins && hasOutput == (*type.mNoOutput != 0);
}

/// The pins' bindings could not be kept when one of two counts changes.
bool hasTwoCounts(const FB_Type& type, FB_Side side) {
  QSet<int> parameters;
  for (const FB_Pin_Group& group : type.mPins) {
    if (group.mSide == side && group.mParameter >= 0) {
      parameters.insert(group.mParameter);
    }
  }
  return parameters.size() > 1;
}

} // namespace

QStringList FB_Type_Check::problems(std::span<const FB_Types::Category> categories) {
  QStringList found;
  QSet<int> ids;
  QSet<QByteArray> classes;
  for (const auto& category : categories) {
    for (const FB_Type& type : category.mTypes) {
      const auto report = [&found, &type](const QString& problem) {
        if (!problem.isEmpty()) {
          found.append(QStringLiteral("%1: %2").arg(type.mId).arg(problem));
        }
      };
      report(ids.contains(type.mId) ? QStringLiteral("id used twice") : QString());
      report(classes.contains(type.mClass) ? QStringLiteral("class used twice") : QString());
      report(!*type.mName || !*type.mClass || !isTrimmed(type.mName) ? QStringLiteral("no name or class") : QString());
      ids.insert(type.mId);
      classes.insert(type.mClass);
      for (int i = 0; i < static_cast<int>(type.mParameters.size()); ++i) {
        report(wrongParameter(type, i));
      }
      for (const FB_Pin_Group& group : type.mPins) {
        report(wrongPins(type, group));
      }
      report(!type.mHasPins && (!type.mPins.empty() || !type.mParameters.empty())
                 ? QStringLiteral("declares pins or parameters and says it has none")
                 : QString());
      const bool isCounted = std::ranges::any_of(type.mPins, [](const auto& group) { return group.mParameter >= 0; });
      report(type.mHasRegisterPins && isCounted ? QStringLiteral("pins counted twice over") : QString());
      const bool isAmbiguous = hasTwoCounts(type, FB_Side::Input) || hasTwoCounts(type, FB_Side::Output);
      report(isAmbiguous ? QStringLiteral("two counts on one side") : QString());
      report(isSilentForNoReason(type) ? QStringLiteral("neither an output nor a reason for none, or both")
                                       : QString());
      report(sameNames(type));
    }
  }
  return found;
}
