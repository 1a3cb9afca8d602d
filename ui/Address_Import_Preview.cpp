#include "ui/Address_Import_Preview.h"

#include "base/App_Settings.h"
#include "base/Decimal_Text.h"
#include "db/Address_Import_Model.h"
#include "ui/Address_Import_View.h"
#include "ui/Empty_Hint.h"
#include "ui/Filter_Edit.h"
#include "ui/Theme.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>

namespace {

constexpr int cGap = 8;
constexpr int cFilterDelayMs = 120;
constexpr int cFilterWidth = 240;

struct Kind_Row {
  Address_Import_Row::Kind mKind;
  const char* mText; ///< with the count
  const char* mToolTip;
};

constexpr std::array cKinds{
    Kind_Row{Address_Import_Row::Kind::New, QT_TRANSLATE_NOOP("Address_Import_Preview", "N&eu %1"),
             QT_TRANSLATE_NOOP("Address_Import_Preview", "Steht in der Datei und noch nicht im Projekt.")},
    Kind_Row{Address_Import_Row::Kind::Changed, QT_TRANSLATE_NOOP("Address_Import_Preview", "&Geändert %1"),
             QT_TRANSLATE_NOOP("Address_Import_Preview",
                               "Das Projekt hat etwas anderes als die Datei; angehakt gilt die Datei.")},
    Kind_Row{Address_Import_Row::Kind::Vanished, QT_TRANSLATE_NOOP("Address_Import_Preview", "Ent&fällt %1"),
             QT_TRANSLATE_NOOP("Address_Import_Preview",
                               "Steht im Projekt und nicht in der Datei; angehakt wird die Adresse gelöscht.")},
    Kind_Row{Address_Import_Row::Kind::Conflict, QT_TRANSLATE_NOOP("Address_Import_Preview", "&Konflikt %1"),
             QT_TRANSLATE_NOOP("Address_Import_Preview",
                               "Braucht eine Entscheidung: Die Datei nennt die Adresse mehrfach, oder ihr Typ bekommt "
                               "eine andere Größe, obwohl sie verwendet wird.")}};

} // namespace

Address_Import_Preview::Address_Import_Preview(const Session_State& state, QWidget* parent)
    : QWidget(parent),
      mModel(new Address_Import_Model(this)),
      mView(new Address_Import_View(*mModel, state)),
      mHead(new QWidget),
      mFoot(new QWidget),
      mTableOrHint(new QStackedWidget),
      mHint(new Empty_Hint),
      mUnchanged(new QLabel),
      mFilter(new Filter_Edit(cFilterDelayMs)),
      mCount(new QLabel) {
  fillHead();
  fillFoot();
  mTableOrHint->addWidget(mView);
  mTableOrHint->addWidget(mHint);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(cGap);
  layout->addWidget(mHead);
  layout->addWidget(mTableOrHint, 1);
  layout->addWidget(mFoot);

  connect(mHint, &Empty_Hint::stepRequested, this, &Address_Import_Preview::stepRequested);
  connect(mModel, &Address_Import_Model::ticksChanged, this, &Address_Import_Preview::ticksChanged);
  connect(mModel, &QAbstractItemModel::modelReset, this, &Address_Import_Preview::updateTexts);
  updateTexts();
}

void Address_Import_Preview::fillHead() {
  auto* const layout = new QHBoxLayout(mHead);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(cGap);
  for (const Kind_Row& row : cKinds) {
    auto* const button = new QPushButton;
    button->setCheckable(true);
    button->setChecked(true);
    button->setAutoDefault(false);
    button->setToolTip(tr(row.mToolTip) + u'\n' + tr("Ein Druck blendet diese Zeilen aus und wieder ein."));
    connect(button, &QPushButton::toggled, this,
            [this, kind = row.mKind](bool isOn) { mModel->setKindShown(kind, isOn); });
    mKinds[static_cast<size_t>(row.mKind)] = button;
    layout->addWidget(button);
  }
  Theme::setTextRole(*mUnchanged, Theme::Role::SecondaryText);
  layout->addWidget(mUnchanged);
  layout->addStretch(1);

  mFilter->setObjectName(QStringLiteral("mImportFilter"));
  mFilter->setAccessibleName(tr("Zeilen suchen"));
  mFilter->setToolTip(
      tr("Zeigt die Zeilen, in denen jedes Wort vorkommt. Strg+F führt hierher, Escape leert das Feld."));
  mFilter->setFixedWidth(cFilterWidth);
  layout->addWidget(mFilter);
  connect(mFilter, &Filter_Edit::filterChanged, mModel, &Address_Import_Model::setFilter);
  connect(mFilter, &Filter_Edit::listWanted, this, &Address_Import_Preview::enterRows);
  connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, mFilter,
          [this] { mFilter->setFocus(Qt::ShortcutFocusReason); });
}

void Address_Import_Preview::fillFoot() {
  auto* const layout = new QHBoxLayout(mFoot);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(cGap);
  mAll = new QPushButton(tr("&Alle anhaken"));
  mAll->setToolTip(tr("Alle Zeilen, die zu sehen sind; von mehreren Zeilen einer Adresse nur eine."));
  mNone = new QPushButton(tr("Ke&ine"));
  mNone->setToolTip(tr("Nimmt die Haken aller Zeilen weg, die zu sehen sind."));
  connect(mAll, &QPushButton::clicked, this, [this] { mModel->setShownTicked(true); });
  connect(mNone, &QPushButton::clicked, this, [this] { mModel->setShownTicked(false); });
  Theme::setTextRole(*mCount, Theme::Role::SecondaryText);
  layout->addWidget(mAll);
  layout->addWidget(mNone);
  layout->addWidget(mCount);
  layout->addStretch(1);
}

void Address_Import_Preview::enterRows() {
  mFilter->apply();
  if (!mView->currentIndex().isValid()) {
    mView->setCurrentIndex(mModel->index(0, 0));
  }
  mView->setFocus(Qt::OtherFocusReason);
}

const Address_Import_Plan& Address_Import_Preview::plan() const {
  return mModel->plan();
}

void Address_Import_Preview::setPlan(Address_Import_Plan plan) {
  mEmptyText.clear();
  mEmptyStep.clear();
  mModel->setPlan(std::move(plan));
}

void Address_Import_Preview::setEmpty(const QString& text, const QString& step) {
  mEmptyText = text;
  mEmptyStep = step;
  mModel->setPlan({});
}

void Address_Import_Preview::updateTexts() {
  const Address_Import_Plan& plan = mModel->plan();
  const bool isCompared = mEmptyText.isEmpty();
  for (const Kind_Row& row : cKinds) {
    QPushButton* const button = mKinds[static_cast<size_t>(row.mKind)];
    button->setText(tr(row.mText).arg(Decimal_Text::count(plan.count(row.mKind))));
  }
  QString unchanged = tr("Bleiben unverändert: %1").arg(Decimal_Text::count(plan.unchangedCount()));
  if (plan.repeatedCount() > 0) {
    unchanged += tr(", gleich wiederholt %1").arg(Decimal_Text::count(plan.repeatedCount()));
  }
  mUnchanged->setText(unchanged);
  mHead->setVisible(isCompared);
  mFoot->setVisible(isCompared);
  const bool hasRows = mModel->rowCount() > 0;
  mAll->setEnabled(hasRows);
  mNone->setEnabled(hasRows);
  mFilter->setEnabled(plan.size() > 0);
  mCount->setText(
      hasRows ? tr("%1 von %2 Zeilen").arg(Decimal_Text::count(mModel->rowCount()), Decimal_Text::count(plan.size()))
              : QString());

  if (!isCompared) {
    mHint->setText(mEmptyText);
  } else if (plan.size() == 0) {
    mHint->setText(tr("Es gibt nichts zu importieren: Mit diesen Optionen bleibt alles, wie es ist."));
  } else {
    mHint->setText(tr("Keine Zeile passt zu dem, was oben gewählt und gesucht ist."));
  }
  mHint->setStep(mEmptyStep);
  mTableOrHint->setCurrentIndex(hasRows ? 0 : 1);
}

void Address_Import_Preview::saveState(App_Settings& settings) const {
  settings.setViewState(mView->header()->objectName(), mView->header()->saveState());
}

void Address_Import_Preview::restoreState(const App_Settings& settings) {
  mView->header()->restoreState(settings.viewState(mView->header()->objectName()));
}
