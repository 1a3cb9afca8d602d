#include "fb/FB_Base_GenerateVar.h"

#include "ui/Theme.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int cGap = 12;
constexpr int cListWidth = 380;
constexpr int cShownLines = 8;
constexpr int cFrame = 4;

QLabel* makeLabel(const QString& text) {
  auto* const label = new QLabel(text);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  return label;
}

} // namespace

FB_Base_GenerateVar::FB_Base_GenerateVar(const QString& block, const QStringList& variables, int number, int count,
                                         QWidget* parent)
    : QDialog(parent),
      mForAll(new QCheckBox(tr("Für alle &weiteren Bausteine ebenso"))) {
  setWindowTitle(tr("Variablen generieren"));
  QLabel* const heading = makeLabel(tr("Variable bereits vorhanden"));
  QFont font = heading->font();
  font.setBold(true);
  heading->setFont(font);
  QLabel* const which = makeLabel(count > 1 ? tr("%1 (Baustein %2 von %3)").arg(block).arg(number).arg(count) : block);

  auto* const list = new QListWidget;
  list->setAccessibleName(heading->text());
  list->setFocusPolicy(Qt::NoFocus);
  list->setSelectionMode(QAbstractItemView::NoSelection);
  list->addItems(variables);
  list->setMinimumWidth(cListWidth);
  const auto lines = static_cast<int>(std::clamp<qsizetype>(variables.size(), 2, cShownLines));
  list->setFixedHeight(lines * std::max(list->sizeHintForRow(0), list->fontMetrics().height()) + cFrame);

  QLabel* const note = makeLabel(tr("\"Ergänzen\" lässt diese Ein- und Ausgänge, wie sie sind. \"Überschreiben\" "
                                    "verknüpft auch sie mit neuen Variablen; Gruppenadressen bleiben im Projekt."));
  Theme::setTextRole(*note, Theme::Role::SecondaryText);
  mForAll->setVisible(number < count);

  auto* const buttons = new QDialogButtonBox;
  QPushButton* const append = buttons->addButton(tr("&Ergänzen"), QDialogButtonBox::ActionRole);
  QPushButton* const overwrite = buttons->addButton(tr("&Überschreiben"), QDialogButtonBox::ActionRole);
  QPushButton* const cancel = buttons->addButton(tr("&Abbrechen"), QDialogButtonBox::RejectRole);
  append->setDefault(true);
  connect(append, &QPushButton::clicked, this, &FB_Base_GenerateVar::onAppendClicked);
  connect(overwrite, &QPushButton::clicked, this, &FB_Base_GenerateVar::onOverWriteClicked);
  connect(cancel, &QPushButton::clicked, this, &FB_Base_GenerateVar::onCancelClicked);

  auto* const layout = new QVBoxLayout(this);
  layout->setSpacing(cGap);
  for (QWidget* const part : {static_cast<QWidget*>(heading), static_cast<QWidget*>(which), static_cast<QWidget*>(list),
                              static_cast<QWidget*>(note), static_cast<QWidget*>(mForAll)}) {
    layout->addWidget(part);
  }
  layout->addWidget(buttons);
  append->setFocus();
}

bool FB_Base_GenerateVar::isForAll() const {
  return mForAll->isChecked();
}

void FB_Base_GenerateVar::onOverWriteClicked() {
  mChoice = FB_Variable_Generation::Conflict::Overwrite;
  accept();
}

void FB_Base_GenerateVar::onAppendClicked() {
  mChoice = FB_Variable_Generation::Conflict::Append;
  accept();
}

void FB_Base_GenerateVar::onCancelClicked() {
  reject();
}
