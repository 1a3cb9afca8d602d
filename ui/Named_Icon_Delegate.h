#pragma once

#include <QHash>
#include <QIcon>
#include <QString>
#include <QStyledItemDelegate>

/// Draws the items of models of the data layer: with the icon that the model names.
class Named_Icon_Delegate : public QStyledItemDelegate {
  Q_OBJECT

public:
  using QStyledItemDelegate::QStyledItemDelegate;

protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
  mutable QHash<QString, QIcon> mIcons; ///< by name; a row is drawn often
};
