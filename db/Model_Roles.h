#pragma once

#include <QString>
#include <QVariant>

/// Roles that the models of the data layer answer besides the toolkit's own.
namespace Model_Roles {

/// Name of the icon (QString, without path and ending) that stands before the item's text. The layer links no GUI, so
/// it names the picture and the view draws it.
inline constexpr int cIconName = Qt::UserRole;

/// For the tool tip role: the text as it is. A tool tip would take what looks like mark-up for it.
[[nodiscard]] inline QVariant toolTip(const QString& text) {
  return text.isEmpty() ? QVariant() : QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped());
}

} // namespace Model_Roles
