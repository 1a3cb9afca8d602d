#include "app/Dev_Settings_Dlg.h"

#include "base/Access_Key.h"
#include "base/App_Settings.h"
#include "ui/Theme.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <array>

namespace {

constexpr int cGap = 8;
constexpr int cGroupGap = 12;
constexpr int cFieldWidth = 120;

constexpr std::array cGroups{Setting_Group::Project, Setting_Group::Pages, Setting_Group::Controller,
                             Setting_Group::Assistant};

/// "spinBox_McpPort": kind and key of the setting.
QString fieldName(const char* kind, const Setting_Row& row) {
  QString key = QString::fromLatin1(row.mKey);
  if (key.startsWith(u'm')) {
    key.remove(0, 1);
  }
  return QLatin1String(kind) + u'_' + key;
}

QString markedLabel(const Setting_Row& row) {
  return Access_Key::mark(Setting_Table::text(row.mLabel), row.mAccessKey);
}

/// The reason is a sentence of its own below those fields, so that it is seen without the mouse.
QLabel* makeNote(const QString& text) {
  auto* const note = new QLabel(text);
  note->setWordWrap(true);
  Theme::setTextRole(*note, Theme::Role::SecondaryText);
  return note;
}

} // namespace

Dev_Settings_Dlg::Dev_Settings_Dlg(App_Settings& settings, QWidget* parent) : QDialog(parent), mSettings(settings) {
  setWindowTitle(tr("Einstellungen"));
  auto* const layout = new QVBoxLayout(this);
  layout->setSpacing(cGroupGap);
  for (const Setting_Group group : cGroups) {
    layout->addWidget(makeGroup(group));
  }
  layout->addStretch();

  auto* const buttons = new QDialogButtonBox;
  buttons->addButton(tr("&Übernehmen"), QDialogButtonBox::AcceptRole)->setDefault(true);
  buttons->addButton(tr("&Abbrechen"), QDialogButtonBox::RejectRole);
  connect(buttons, &QDialogButtonBox::accepted, this, &Dev_Settings_Dlg::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &Dev_Settings_Dlg::reject);
  layout->addWidget(buttons);
}

QWidget* Dev_Settings_Dlg::makeGroup(Setting_Group group) {
  auto* const box = new QGroupBox(Setting_Table::groupTitle(group));
  auto* const form = new QFormLayout(box);
  form->setSpacing(cGap);
  form->setLabelAlignment(Qt::AlignLeft);
  QStringList reasons;
  for (const Setting_Row& row : Setting_Table::rows()) {
    if (row.mGroup == group) {
      addField(*form, row);
      reasons.append(Setting_Table::text(row.mUnread));
    }
  }
  reasons.removeAll(QString());
  reasons.removeDuplicates();
  for (const QString& reason : std::as_const(reasons)) {
    form->addRow(makeNote(reason));
  }
  return box;
}

void Dev_Settings_Dlg::addField(QFormLayout& form, const Setting_Row& row) {
  QWidget* const editor = makeEditor(row);
  const QString reason = Setting_Table::text(row.mUnread);
  const QString tip = Setting_Table::text(row.mTip);
  editor->setEnabled(reason.isEmpty());
  editor->setToolTip(reason.isEmpty() ? tip : tip + u'\n' + reason);
  if (row.mKind == Setting_Row::Kind::Switch) {
    form.addRow(editor);
    return;
  }
  editor->setMinimumWidth(cFieldWidth);
  auto* const label = new QLabel(markedLabel(row));
  label->setEnabled(reason.isEmpty());
  label->setBuddy(editor);
  editor->setAccessibleName(Setting_Table::text(row.mLabel));
  editor->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
  form.addRow(label, editor);
}

QWidget* Dev_Settings_Dlg::makeEditor(const Setting_Row& row) {
  const int value = mSettings.value(row.mSetting);
  switch (row.mKind) {
  case Setting_Row::Kind::Switch: {
    auto* const box = new QCheckBox(markedLabel(row));
    box->setObjectName(fieldName("checkBox", row));
    box->setChecked(value != 0);
    mStores.emplace_back(
        [this, setting = row.mSetting, box] { mSettings.setValue(setting, box->isChecked() ? 1 : 0); });
    return box;
  }
  case Setting_Row::Kind::Number: {
    auto* const box = new QSpinBox;
    box->setObjectName(fieldName("spinBox", row));
    box->setRange(row.mMinimum, row.mMaximum);
    box->setSuffix(*row.mUnit ? u' ' + Setting_Table::text(row.mUnit) : QString());
    box->setValue(value);
    mStores.emplace_back([this, setting = row.mSetting, box] { mSettings.setValue(setting, box->value()); });
    return box;
  }
  case Setting_Row::Kind::Text: {
    auto* const line = new QLineEdit(mSettings.text(row.mSetting));
    line->setObjectName(fieldName("lineEdit", row));
    mStores.emplace_back([this, setting = row.mSetting, line] { mSettings.setText(setting, line->text().trimmed()); });
    return line;
  }
  case Setting_Row::Kind::Choice:
    break;
  }
  auto* const box = new QComboBox;
  box->setObjectName(fieldName("comboBox", row));
  box->addItems(Setting_Table::text(row.mChoices).split(u'|'));
  box->setCurrentIndex(value);
  mStores.emplace_back([this, setting = row.mSetting, box] { mSettings.setValue(setting, box->currentIndex()); });
  return box;
}

void Dev_Settings_Dlg::accept() {
  for (const std::function<void()>& store : mStores) {
    store();
  }
  QDialog::accept();
}
