#include "fb/model/FB_Type_Check.h"

#include <QSet>

#include <algorithm>

namespace {

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

QString wrongPins(const FB_Type& type, const FB_Pin_Group& group) {
  if (!*group.mLongName || !*group.mShortName) {
    return QStringLiteral("pin without a name");
  }
  if (group.mCount < 0 || group.mParameter >= static_cast<int>(type.mParameters.size())) {
    return QStringLiteral("pins counted by what is not there");
  }
  if (group.mParameter < 0) {
    return {};
  }
  const FB_Parameter& counter = type.mParameters[static_cast<size_t>(group.mParameter)];
  const bool isCount = counter.mEditor == FB_Editor::Number && counter.mDecimals == 0;
  return isCount && counter.mMinimum == group.mCount ? QString() : QStringLiteral("pins counted by no count");
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
      report(!*type.mName || !*type.mClass ? QStringLiteral("no name or class") : QString());
      ids.insert(type.mId);
      classes.insert(type.mClass);
      for (const FB_Parameter& parameter : type.mParameters) {
        report(*parameter.mName ? wrongDefault(parameter) : QStringLiteral("parameter without a name"));
      }
      for (const FB_Pin_Group& group : type.mPins) {
        report(wrongPins(type, group));
      }
      report(!type.mHasPins && (!type.mPins.empty() || !type.mParameters.empty())
                 ? QStringLiteral("declares pins or parameters and says it has none")
                 : QString());
      const bool isAmbiguous = hasTwoCounts(type, FB_Side::Input) || hasTwoCounts(type, FB_Side::Output);
      report(isAmbiguous ? QStringLiteral("two counts on one side") : QString());
    }
  }
  return found;
}
