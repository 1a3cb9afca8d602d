#include "ui/Address_Import_Faults.h"

#include "base/Decimal_Text.h"
#include "db/Ets_Groups.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace {

constexpr int cGap = 8;
constexpr int cShownLines = 4;

} // namespace

Address_Import_Faults::Address_Import_Faults(QWidget* parent)
    : QWidget(parent),
      mCount(new QLabel),
      mTexts(new QPlainTextEdit) {
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(cGap / 2);
  mTexts->setObjectName(QStringLiteral("mFaultTexts"));
  mTexts->setAccessibleName(tr("Was in der Datei nicht zu lesen war"));
  mTexts->setReadOnly(true);
  mTexts->setTabChangesFocus(true);
  mTexts->setLineWrapMode(QPlainTextEdit::NoWrap);
  mTexts->setFixedHeight(cShownLines * fontMetrics().lineSpacing() + 2 * cGap);
  layout->addWidget(mCount);
  layout->addWidget(mTexts);
}

void Address_Import_Faults::setGroups(const Ets_Groups* groups) {
  const qsizetype count = groups ? groups->mFaultCount : 0;
  setVisible(count > 0);
  if (count == 0) {
    return;
  }
  const qsizetype told = groups->mFaults.size();
  QString text =
      count == 1 ? tr("1 Eintrag der Datei ist nicht oder nur zum Teil zu lesen:")
                 : tr("%1 Einträge der Datei sind nicht oder nur zum Teil zu lesen:").arg(Decimal_Text::count(count));
  if (told < count) {
    text += u' ' + tr("Die ersten %1 stehen hier.").arg(Decimal_Text::count(told));
  }
  mCount->setText(text);
  mTexts->setPlainText(groups->mFaults.join(u'\n'));
}
