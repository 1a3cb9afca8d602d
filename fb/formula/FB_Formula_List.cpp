#include "fb/formula/FB_Formula_List.h"

#include "fb/model/FB_Formula_Words.h"
#include "ui/Filter_Edit.h"
#include "ui/Theme.h"

#include <QHeaderView>
#include <QLabel>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int cGap = 8;
constexpr int cWidth = 190;
constexpr int cExampleLines = 4;
constexpr int cWordRole = Qt::UserRole;
constexpr int cExampleRole = Qt::UserRole + 1;
constexpr int cIsFunctionRole = Qt::UserRole + 2;

using Kind = FB_Formula_Word::Kind;

} // namespace

FB_Formula_List::FB_Formula_List(QWidget* parent)
    : QWidget(parent),
      mFilter(new Filter_Edit(0)),
      mTree(new QTreeWidget),
      mExample(new QLabel) {
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(cGap);
  layout->addWidget(mFilter);
  layout->addWidget(mTree, 1);
  layout->addWidget(mExample);
  mFilter->setAccessibleName(tr("Funktionen suchen"));
  mTree->setAccessibleName(tr("Operatoren, Funktionen und Konstanten"));
  mTree->setColumnCount(2);
  mTree->setHeaderLabels({tr("Schreibweise"), tr("Bedeutung")});
  mTree->header()->resizeSection(0, cWidth);
  mTree->setRootIsDecorated(false);
  mTree->setItemsExpandable(false);
  mTree->setIndentation(cGap);
  mTree->setToolTip(tr("Doppelklick oder Enter fügt in die Formel ein."));
  mExample->setWordWrap(true);
  mExample->setTextFormat(Qt::PlainText);
  mExample->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  mExample->setMinimumHeight(cExampleLines * fontMetrics().lineSpacing());
  mExample->setTextInteractionFlags(Qt::TextSelectableByMouse);
  Theme::setTextRole(*mExample, Theme::Role::SecondaryText);
  fill();
  showExample();
  connect(mFilter, &Filter_Edit::filterChanged, this, &FB_Formula_List::filter);
  connect(mFilter, &Filter_Edit::listWanted, mTree, qOverload<>(&QWidget::setFocus));
  connect(mTree, &QTreeWidget::currentItemChanged, this, &FB_Formula_List::showExample);
  connect(mTree, &QTreeWidget::itemActivated, this, [this](const QTreeWidgetItem* item) { choose(item); });
}

void FB_Formula_List::fill() {
  const std::pair<Kind, QString> groups[] = {
      {Kind::Function, tr("Funktionen")}, {Kind::Operator, tr("Operatoren")}, {Kind::Constant, tr("Konstanten")}};
  for (const auto& [kind, title] : groups) {
    auto* const group = new QTreeWidgetItem(mTree, {title});
    group->setFirstColumnSpanned(true);
    group->setFlags(Qt::ItemIsEnabled);
    QFont bold = font();
    bold.setBold(true);
    group->setFont(0, bold);
    for (const FB_Formula_Word& word : FB_Formula_Words::all()) {
      if (word.mKind != kind) {
        continue;
      }
      const QString meaning = FB_Formula_Words::text(word.mDescription);
      auto* const item = new QTreeWidgetItem(group, {QString::fromUtf8(word.mSignature), meaning});
      item->setToolTip(1, meaning);
      item->setData(0, cWordRole, QString::fromLatin1(word.mName));
      item->setData(0, cExampleRole, QString::fromUtf8(word.mExample));
      item->setData(0, cIsFunctionRole, kind == Kind::Function);
    }
  }
  mTree->expandAll();
}

void FB_Formula_List::filter(const QString& text) {
  const QStringList words = text.split(u' ', Qt::SkipEmptyParts);
  for (int i = 0; i < mTree->topLevelItemCount(); ++i) {
    QTreeWidgetItem* const group = mTree->topLevelItem(i);
    bool isAny = false;
    for (int row = 0; row < group->childCount(); ++row) {
      QTreeWidgetItem* const item = group->child(row);
      const QString all = item->text(0) + u' ' + item->text(1);
      const bool isShown =
          std::ranges::all_of(words, [&all](const QString& word) { return all.contains(word, Qt::CaseInsensitive); });
      item->setHidden(!isShown);
      isAny = isAny || isShown;
    }
    group->setHidden(!isAny);
  }
}

void FB_Formula_List::showExample() {
  const QTreeWidgetItem* const item = mTree->currentItem();
  const QString example = item ? item->data(0, cExampleRole).toString() : QString();
  mExample->setText(!item || example.isEmpty() ? tr("Doppelklick oder Enter fügt in die Formel ein.")
                                               : tr("%1\nBeispiel: %2").arg(item->text(1), example));
}

void FB_Formula_List::choose(const QTreeWidgetItem* item) {
  const QString word = item->data(0, cWordRole).toString();
  if (!word.isEmpty()) {
    emit chosen(word, item->data(0, cIsFunctionRole).toBool());
  }
}
