// The rows of the panel: how they are made and laid out, and how the keyboard goes through them.
#include "fb/properties/FB_Dev_Properties_Page.h"
#include "fb/properties/FB_Property_Row.h"
#include "ui/Theme.h"

#include <QApplication>
#include <QPushButton>
#include <QToolButton>
#include <QTreeWidget>

#include <algorithm>
#include <utility>

namespace {

constexpr int cGap = 8;
constexpr int cSmallGap = 4;
/// Of the width, for names at most.
constexpr double cNameShare = 0.62;

} // namespace

FB_Dev_Properties_Page::Field FB_Dev_Properties_Page::addField(QTreeWidgetItem& section, int place, const QString& name,
                                                               FB_Dev_Properties_Editor& editor) {
  Field field;
  field.mItem = new QTreeWidgetItem({name});
  section.insertChild(place, field.mItem);
  field.mEditor = &editor;
  field.mRow = new FB_Property_Row(editor.widget());
  editor.widget().setAccessibleName(name);
  mTree->setItemWidget(field.mItem, 1, field.mRow);
  connect(field.mRow, &FB_Property_Row::heightChanged, this, [this] {
    mTree->doItemsLayout();
    reveal(QApplication::focusWidget());
  });
  return field;
}

void FB_Dev_Properties_Page::describe(Field& field, const QString& description, const QString& toolTip) {
  field.mDescription = description;
  field.mToolTip = toolTip;
  const QString reason = std::exchange(field.mDisabledReason, {});
  field.mItem->setToolTip(0, description.isEmpty() ? field.mItem->text(0) : description);
  field.mEditor->widget().setToolTip(toolTip);
  setDisabledReason(field, reason);
}

void FB_Dev_Properties_Page::setDisabledReason(Field& field, const QString& reason) {
  if (reason == field.mDisabledReason) {
    return;
  }
  field.mDisabledReason = reason;
  field.mRow->setEnabled(reason.isEmpty());
  field.mRow->setToolTip(reason);
  field.mEditor->widget().setToolTip(reason.isEmpty() ? field.mToolTip : reason);
  const auto role = reason.isEmpty() ? Theme::Role::Text : Theme::Role::DisabledText;
  field.mItem->setForeground(0, Theme::color(role));
}

void FB_Dev_Properties_Page::updateColumns() {
  const int most = static_cast<int>(mTree->viewport()->width() * cNameShare);
  int width = 0;
  for (const QTreeWidgetItem* const section : {mGeneral, mParameters}) {
    for (int i = 0; i < section->childCount(); ++i) {
      if (const QTreeWidgetItem* const item = section->child(i); item != mHint) {
        const QFontMetrics metrics(item->data(0, Qt::FontRole).isValid() ? item->font(0) : mTree->font());
        width = std::max(width, metrics.horizontalAdvance(item->text(0)));
      }
    }
  }
  mTree->setColumnWidth(0, std::min(most, width + 2 * mTree->indentation() + cGap + cSmallGap));
}

void FB_Dev_Properties_Page::reveal(const QWidget* widget) {
  if (!widget || !mTree->isAncestorOf(widget)) {
    return;
  }
  const auto show = [&](const Field& field) {
    if (field.mRow->isAncestorOf(widget)) {
      mTree->scrollToItem(field.mItem);
    }
  };
  for (const auto& [editor, field] : mFields) {
    show(field);
  }
  for (const auto& [index, field] : mRows) {
    show(field);
  }
}

/// As one reads, however late a row was made.
void FB_Dev_Properties_Page::orderTabs() {
  QWidget* last = nullptr;
  const auto append = [&last](QWidget* widget) {
    if (last && widget->focusPolicy() & Qt::TabFocus) {
      setTabOrder(last, widget);
    }
    last = widget->focusPolicy() & Qt::TabFocus ? widget : last;
  };
  for (const QTreeWidgetItem* const section : {mGeneral, mParameters}) {
    for (int i = 0; i < section->childCount(); ++i) {
      const QWidget* const row = mTree->itemWidget(section->child(i), 1);
      const auto parts = row ? row->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly) : QList<QWidget*>();
      std::ranges::for_each(parts, append);
    }
  }
  for (QWidget* const button :
       {static_cast<QWidget*>(mGenerate), static_cast<QWidget*>(mPageProperties), static_cast<QWidget*>(mOpenEditor)}) {
    append(button);
  }
}

void FB_Dev_Properties_Page::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  updateColumns();
}
