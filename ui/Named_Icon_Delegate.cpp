#include "ui/Named_Icon_Delegate.h"

#include "db/Model_Roles.h"
#include "ui/Theme.h"

void Named_Icon_Delegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  const QString name = index.data(Model_Roles::cIconName).toString();
  if (name.isEmpty()) {
    return;
  }
  auto icon = mIcons.find(name);
  if (icon == mIcons.end()) {
    icon = mIcons.insert(name, Theme::icon(name));
  }
  option->icon = *icon;
  option->features |= QStyleOptionViewItem::HasDecoration;
}
