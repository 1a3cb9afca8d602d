#include "fb/model/FB_Pin_Text.h"

#include <QCoreApplication>

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("FB_Pin_Text", text);
}

QString other(const QString& kind, const DB_Address_Binding& binding) {
  return QStringLiteral("%1:%2").arg(kind, binding.mName.isEmpty() ? binding.mKey.toString(QUuid::WithoutBraces)
                                                                   : binding.mName);
}

} // namespace

QString FB_Pin_Text::binding(const DB_Address_Binding& binding) {
  switch (binding.mKind) {
  case DB_Address_Binding::Kind::None:
    break;
  case DB_Address_Binding::Kind::GroupAddress:
    return QStringLiteral("%1.%2.%3").arg(binding.mMain).arg(binding.mMiddle).arg(binding.mSub);
  case DB_Address_Binding::Kind::Internal:
    return other(tr("Variable"), binding);
  }
  return {};
}

QString FB_Pin_Text::label(const DB_Address_Binding& binding) {
  switch (binding.mKind) {
  case DB_Address_Binding::Kind::None:
    break;
  case DB_Address_Binding::Kind::GroupAddress:
    return (FB_Pin_Text::binding(binding) + u' ' + binding.mName).simplified();
  case DB_Address_Binding::Kind::Internal:
    return other(tr("V"), binding).simplified();
  }
  return {};
}
