#include "fb/formula/FB_Formula_Inputs.h"

#include "base/Decimal_Text.h"
#include "db/DB_FB_Control.h"
#include "fb/model/FB_Formula_Language.h"
#include "fb/model/FB_Pin_Text.h"
#include "ui/Checked_Line_Edit.h"
#include "ui/Elided_Label.h"
#include "ui/Theme.h"

#include <QGridLayout>
#include <QLabel>

namespace {

constexpr int cGap = 8;
constexpr int cRowGap = 4;
constexpr int cValueWidth = 110;

QString whyNot(const QString& text) {
  return Decimal_Text::parse(text) ? QString() : FB_Formula_Inputs::tr("Eine Zahl, zum Beispiel 21,5.");
}

QLabel* heading(const QString& text) {
  auto* const label = new QLabel(text);
  Theme::setTextRole(*label, Theme::Role::SecondaryText);
  return label;
}

} // namespace

FB_Formula_Inputs::FB_Formula_Inputs(QWidget* parent) : QWidget(parent) {
  auto* const grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(cGap);
  grid->setVerticalSpacing(cRowGap);
  grid->setColumnStretch(1, 1);
  grid->addWidget(heading(tr("Eingang")), 0, 0);
  grid->addWidget(heading(tr("Verknüpft mit")), 0, 1);
  grid->addWidget(heading(tr("Testwert")), 0, 2);
  for (int i = 0; i < FB_Formula_Language::cMostInputs; ++i) {
    auto* const label = new QLabel(QStringLiteral("E%1").arg(i + 1));
    auto* const binding = new Elided_Label;
    auto* const value = new Checked_Line_Edit(&whyNot);
    value->setFixedWidth(cValueWidth);
    value->setAlignment(Qt::AlignRight);
    value->setText(QStringLiteral("0"));
    value->setAccessibleName(tr("Testwert von E%1").arg(i + 1));
    value->setToolTip(tr("Wert, mit dem die Formel hier berechnet wird. Er wird nicht gespeichert."));
    label->setBuddy(value);
    grid->addWidget(label, i + 1, 0);
    grid->addWidget(binding, i + 1, 1);
    grid->addWidget(value, i + 1, 2);
    connect(value, &QLineEdit::textChanged, this, &FB_Formula_Inputs::valuesChanged);
    mRows.push_back({label, binding, value});
  }
}

void FB_Formula_Inputs::show(const DB_FB_Control& block, int inputs) {
  mShown = inputs;
  for (size_t i = 0; i < mRows.size(); ++i) {
    const bool isShown = static_cast<int>(i) < inputs;
    const Row& row = mRows[i];
    for (QWidget* const part : {row.mLabel, static_cast<QWidget*>(row.mBinding), static_cast<QWidget*>(row.mValue)}) {
      part->setVisible(isShown);
    }
    // The trigger stands before them.
    const QString bound = i + 1 < block.mInputs.size() ? FB_Pin_Text::label(block.mInputs[i + 1].mBinding) : QString();
    row.mBinding->setText(bound.isEmpty() ? tr("nicht verknüpft") : bound);
    Theme::setTextRole(*row.mBinding, bound.isEmpty() ? Theme::Role::DisabledText : Theme::Role::Text);
  }
}

std::vector<double> FB_Formula_Inputs::values() const {
  std::vector<double> values;
  values.reserve(static_cast<size_t>(mShown));
  for (int i = 0; i < mShown; ++i) {
    values.push_back(Decimal_Text::parse(mRows[static_cast<size_t>(i)].mValue->text()).value_or(0));
  }
  return values;
}
