#include "fb/formula/FB_Formula_Editor.h"

#include "base/App_Settings.h"
#include "base/Decimal_Text.h"
#include "db/Project_Session.h"
#include "fb/formula/FB_Formula_Edit.h"
#include "fb/formula/FB_Formula_Inputs.h"
#include "fb/formula/FB_Formula_List.h"
#include "fb/model/FB_Page_Edits.h"
#include "fb/model/FB_Types.h"
#include "fb/model/families/FB_Formula_Declaration.h"
#include "ui/Message_Box.h"
#include "ui/Theme.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int cGap = 8;
constexpr int cGroupGap = 12;
constexpr int cIconSize = 16;
constexpr int cFaultLines = 2;
constexpr QSize cSize(980, 600);
constexpr int cLeftWidth = 500;
const QString cGeometryName = QStringLiteral("fb:FB_Formula_Editor");

QLabel* value(const QString& name) {
  auto* const label = new QLabel;
  label->setAccessibleName(name);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return label;
}

} // namespace

FB_Formula_Editor::FB_Formula_Editor(Project_Session& session, App_Settings& settings, const QUuid& block,
                                     QWidget* parent)
    : FB_Block_Editor(session, settings, block, parent),
      mEdit(new FB_Formula_Edit),
      mInputs(new FB_Formula_Inputs),
      mList(new FB_Formula_List),
      mFaultIcon(new QLabel),
      mFault(new QLabel),
      mResult(value(tr("Ergebnis"))),
      mBit(value(tr("Ergebnis als Bit"))),
      mError(value(tr("Fehler"))) {
  auto* const splitter = new QSplitter;
  splitter->addWidget(makeLeft());
  splitter->addWidget(mList);
  splitter->setSizes({cLeftWidth, cSize.width() - cLeftWidth});
  splitter->setChildrenCollapsible(false);
  auto* const body = new QWidget;
  auto* const layout = new QVBoxLayout(body);
  layout->setContentsMargins(cGroupGap, cGroupGap, cGroupGap, cGroupGap);
  layout->setSpacing(cGroupGap);
  layout->addWidget(splitter, 1);
  layout->addWidget(makeButtons());
  setCentralWidget(body);
  resize(cSize);
  restoreGeometry(settings.viewState(cGeometryName));

  connect(mEdit, &QPlainTextEdit::textChanged, this, &FB_Formula_Editor::update);
  connect(mInputs, &FB_Formula_Inputs::valuesChanged, this, &FB_Formula_Editor::update);
  connect(mList, &FB_Formula_List::chosen, mEdit, &FB_Formula_Edit::insertWord);
  connect(&session.state(), &Session_State::operatingModeChanged, this, &FB_Formula_Editor::updateMode);
  connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this,
          [this] { emit helpRequested(FB_Types::helpFileName(FB_Formula_Declaration::cType.mId)); });
  mStored = stored();
  mEdit->setPlainText(mStored);
  mEdit->moveCursor(QTextCursor::End);
  follow();
  updateMode();
  mEdit->setFocus();
}

FB_Formula_Editor::~FB_Formula_Editor() {
  settings().setViewState(cGeometryName, saveGeometry());
}

QWidget* FB_Formula_Editor::makeLeft() {
  mFault->setWordWrap(true);
  mFault->setTextFormat(Qt::PlainText);
  mFault->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  mFault->setMinimumHeight(cFaultLines * fontMetrics().lineSpacing());
  mFaultIcon->setFixedWidth(cIconSize);
  mFaultIcon->setAlignment(Qt::AlignTop);
  auto* const label = new QLabel(tr("&Formel"));
  label->setBuddy(mEdit);
  mEdit->setAccessibleName(tr("Formel"));

  auto* const fault = new QHBoxLayout;
  fault->setSpacing(cGap);
  fault->addWidget(mFaultIcon, 0, Qt::AlignTop);
  fault->addWidget(mFault, 1);
  auto* const results = new QFormLayout;
  results->setHorizontalSpacing(cGroupGap);
  results->setVerticalSpacing(cGap / 2);
  results->addRow(tr("Ergebnis"), mResult);
  results->addRow(tr("Ergebnis als Bit"), mBit);
  results->addRow(tr("Fehler"), mError);

  auto* const left = new QWidget;
  auto* const layout = new QVBoxLayout(left);
  layout->setContentsMargins(0, 0, cGroupGap, 0);
  layout->setSpacing(cGap);
  layout->addWidget(label);
  layout->addWidget(mEdit, 1);
  layout->addLayout(fault);
  layout->addSpacing(cGroupGap - cGap);
  layout->addWidget(mInputs);
  layout->addSpacing(cGroupGap - cGap);
  layout->addLayout(results);
  layout->addStretch();
  return left;
}

QWidget* FB_Formula_Editor::makeButtons() {
  auto* const row = new QWidget;
  auto* const layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(cGap);
  const auto add = [layout](const QString& text) {
    auto* const button = new QPushButton(text);
    button->setAutoDefault(true);
    layout->addWidget(button);
    return button;
  };
  QPushButton* const help = add(tr("&Hilfe"));
  help->setIcon(Theme::icon(QStringLiteral("help_context_white")));
  layout->addStretch();
  QPushButton* const accept = add(tr("&OK"));
  mApply = add(tr("&Übernehmen"));
  QPushButton* const cancel = add(tr("&Abbrechen"));
  connect(help, &QPushButton::clicked, this, [this] { emit helpRequested(QStringLiteral("formula_language.html")); });
  connect(accept, &QPushButton::clicked, this, &QWidget::close);
  connect(mApply, &QPushButton::clicked, this, &FB_Formula_Editor::apply);
  const auto discard = [this] {
    mEdit->setPlainText(mStored);
    close();
  };
  connect(cancel, &QPushButton::clicked, this, discard);
  connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, discard);
  connect(new QShortcut(Qt::CTRL | Qt::Key_Return, this), &QShortcut::activated, this, &FB_Formula_Editor::apply);
  mApply->setToolTip(tr("Strg+Enter"));
  return row;
}

QString FB_Formula_Editor::stored() const {
  const DB_FB_Control* const block = record();
  return block ? block->mParams.value(FB_Formula_Declaration::cFormulaParameter) : QString();
}

int FB_Formula_Editor::inputs() const {
  const DB_FB_Control* const block = record();
  const int count = block ? block->mParams.value(0).toInt() : 0;
  return std::clamp(count, 1, FB_Formula_Language::cMostInputs);
}

int FB_Formula_Editor::decimals() const {
  const DB_FB_Control* const block = record();
  bool isNumber = false;
  const double count =
      block ? block->mParams.value(FB_Formula_Declaration::cDecimalsParameter).toDouble(&isNumber) : -1;
  return isNumber ? static_cast<int>(std::clamp(count, -1.0, 6.0)) : -1;
}

bool FB_Formula_Editor::isUnsaved() const {
  return mEdit->toPlainText() != mStored;
}

void FB_Formula_Editor::follow() {
  const DB_FB_Control* const block = record();
  if (!block) {
    update();
    return;
  }
  showTitle(tr("Formel"));
  const QString now = stored();
  if (now != mStored) {
    const bool wasModified = isUnsaved();
    mStored = now;
    if (!wasModified) {
      mEdit->setPlainText(now);
    }
  }
  mInputs->show(*block, inputs());
  update();
}

void FB_Formula_Editor::update() {
  const QString formula = mEdit->toPlainText();
  const FB_Formula_Language::Fault fault = FB_Formula_Language::check(formula, inputs());
  mEdit->showFault(fault);
  const QIcon icon = Theme::icon(fault ? QStringLiteral("error_white") : QStringLiteral("info_white"));
  mFaultIcon->setPixmap(icon.pixmap(cIconSize));
  mFault->setText(fault ? tr("Zeichen %1: %2").arg(QString::number(fault.mAt + 1), fault.mText)
                        : tr("Die Formel ist in Ordnung."));
  if (!record()) {
    mFault->setText(goneText());
  }
  Theme::setTextRole(*mFault, fault || !record() ? Theme::Role::ErrorText : Theme::Role::Ok);

  const FB_Formula_Language::Result result = FB_Formula_Language::evaluate(formula, mInputs->values());
  const double number = FB_Formula_Language::rounded(result.mNumber.value_or(0), decimals());
  mResult->setText(result.mNumber ? QLocale().toString(number, 'g', 12) : QStringLiteral("–"));
  mBit->setText(!result.mNumber ? QStringLiteral("–") : number != 0 ? QStringLiteral("1") : QStringLiteral("0"));
  mError->setText(result.mNumber ? QStringLiteral("0") : fault ? QStringLiteral("1") : tr("1: %1").arg(result.mError));
  Theme::setTextRole(*mError, result.mNumber ? Theme::Role::Text : Theme::Role::ErrorText);
  setWindowModified(isUnsaved());
  mApply->setEnabled(isUnsaved() && record() && !session().state().operatingMode());
}

void FB_Formula_Editor::updateMode() {
  mEdit->setReadOnly(session().state().operatingMode());
  update();
}

bool FB_Formula_Editor::apply() {
  if (!isUnsaved()) {
    return true;
  }
  const QString formula = mEdit->toPlainText();
  const Edit_Result result =
      FB_Page_Edits::setParameter(session(), block(), FB_Formula_Declaration::cFormulaParameter, formula);
  if (!result) {
    Message_Box::showMessage(this, result.mError);
    return false;
  }
  mStored = stored();
  if (mStored != formula) {
    mEdit->setPlainText(mStored); // without characters that a record cannot hold
  }
  update();
  emit statusText(tr("Die Formel ist übernommen."));
  return true;
}

bool FB_Formula_Editor::finish() {
  if (!isUnsaved()) {
    return true;
  }
  if (!record()) {
    return mayDiscard();
  }
  const FB_Formula_Language::Fault fault = FB_Formula_Language::check(mEdit->toPlainText(), inputs());
  const bool isRefused = session().state().operatingMode();
  if (!fault && !isRefused) {
    return apply();
  }
  using Message_Box::Answer;
  if (isRefused) {
    return Message_Box::askYesNo(
        this, tr("Im Bedienmodus kann die geänderte Formel nicht übernommen werden. Änderung verwerfen?"));
  }
  const Answer answer = Message_Box::askYesNoCancel(
      this, tr("Die Formel hat einen Fehler: %1\n\nTrotzdem übernehmen?").arg(fault.mText), Answer::Cancel);
  if (answer == Answer::No) {
    mEdit->setPlainText(mStored);
  }
  return answer == Answer::No || (answer == Answer::Yes && apply());
}
