#include "fb/model/FB_Tool_Tip.h"

#include "db/DB_Text.h"
#include "fb/model/FB_Geometry.h"
#include "fb/model/FB_Pin_Text.h"
#include "fb/model/FB_Pins.h"
#include "fb/model/FB_Types.h"

#include <QCoreApplication>

namespace {

constexpr qsizetype cLongest = 400; ///< characters of one text; more would fill the screen

QString tr(const char* text) {
  return QCoreApplication::translate("FB_Tool_Tip", text);
}

QString escaped(const QString& text) {
  const bool isLong = text.size() > cLongest;
  const QString shown = isLong ? text.first(cLongest - 1) + u'…' : text;
  return DB_Text::rich(shown);
}

/// What tells the block from others of its type.
QString nameOf(const DB_FB_Control& block) {
  for (const QString* const text : {&block.mName, &block.mTitle, &block.mComment}) {
    if (!text->isEmpty()) {
      return *text;
    }
  }
  return FB_Types::name(block.mType);
}

QString head(const DB_FB_Control& block) {
  const bool isStandIn = block.mType == FB_Types::cComment && block.mOriginalType != 0;
  const int type = isStandIn ? block.mOriginalType : block.mType;
  const QString typeName = isStandIn ? FB_Geometry::title(block) : FB_Types::name(block.mType);
  const QString name = isStandIn && !block.mOriginalTitle.isEmpty() ? block.mOriginalTitle : nameOf(block);
  return QStringLiteral("<b>[%1] %2 (%3)</b><br>").arg(QString::number(type), escaped(typeName), escaped(name));
}

QString describe(const DB_FB_Pin& pin) {
  QStringList lines{escaped(pin.mLongName)};
  const DB_Address_Binding& binding = pin.mBinding;
  if (binding.mKind == DB_Address_Binding::Kind::None) {
    lines.append(tr("nicht verbunden"));
  } else {
    const bool isAddress = binding.mKind == DB_Address_Binding::Kind::GroupAddress;
    lines.append(escaped(FB_Pin_Text::binding(binding) + (isAddress ? u' ' + binding.mName : QString())));
  }
  if (!binding.mDescription.isEmpty()) {
    lines.append(escaped(binding.mDescription));
  }
  if (!binding.mDpt.isNone()) {
    lines.append(QStringLiteral("DPT %1").arg(binding.mDpt.toString()));
  }
  return lines.join(QStringLiteral("<br>")) + QStringLiteral("<br><br>");
}

const DB_FB_Pin* pinAt(const std::vector<DB_FB_Pin>& pins, int index) {
  return index >= 0 && index < static_cast<int>(pins.size()) ? &pins[index] : nullptr;
}

} // namespace

QString FB_Tool_Tip::of(const DB_FB_Control& block, int input, int output, std::optional<int> executionNumber) {
  QString text = head(block);
  if (const QString missing = FB_Pins::missingPins(block); !missing.isEmpty()) {
    text += escaped(missing) + QStringLiteral("<br>");
  }
  if (const DB_FB_Pin* const pin = pinAt(block.mInputs, input)) {
    text += describe(*pin);
  } else if (const DB_FB_Pin* const other = pinAt(block.mOutputs, output)) {
    text += describe(*other);
  }
  if (executionNumber) {
    text += QStringLiteral("<br>Call#: %1<br>GUID: %2<br>")
                .arg(QString::number(*executionNumber), block.mGuid.toString(QUuid::WithoutBraces));
  }
  return text;
}
