#pragma once

#include "base/Group_Address.h"

#include <QString>
#include <QVariant>

/// Roles that the models of the data layer answer besides the toolkit's own.
namespace Model_Roles {

/// Name of the icon (QString, without path and ending) that stands before the item's text. The layer links no GUI, so
/// it names the picture and the view draws it.
inline constexpr int cIconName = Qt::UserRole;

/// What the cell is sorted by: a text or a whole number, in one column always the same of both.
inline constexpr int cSortKey = Qt::UserRole + 1;

[[nodiscard]] inline qint64 sortKey(const Group_Address& address) {
  return (qint64(address.main()) << 32) + (qint64(address.middle()) << 16) + address.sub();
}

/// What the row is the same by after the model was built anew; of a type that compares.
inline constexpr int cIdentity = Qt::UserRole + 2;

/// Which parts of the cell's text were searched for: a `QList<Text_Search::Match>`.
inline constexpr int cMatches = Qt::UserRole + 3;

/// Whether what the cell says may be out of date; the view draws it paler.
inline constexpr int cIsStale = Qt::UserRole + 4;

/// For the tool tip role: the text as it is. A tool tip would take what looks like mark-up for it.
[[nodiscard]] inline QVariant toolTip(const QString& text) {
  return text.isEmpty() ? QVariant() : QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped());
}

} // namespace Model_Roles
