#include "ui/Page_Details_View.h"

#include "base/Session_State.h"
#include "db/Page_Tree_Model.h"
#include "ui/Empty_Hint.h"
#include "ui/Theme.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QShortcut>
#include <QStackedLayout>

namespace {
constexpr int cGap = 8;
} // namespace

Page_Details_View::Page_Details_View(Page_Tree_Model& model, const Session_State& state, QWidget* parent)
    : QWidget(parent),
      mModel(model),
      mState(state),
      mPages(new QStackedLayout(this)),
      mHint(new Empty_Hint),
      mForm(new QFormLayout),
      mName(new QLineEdit),
      mGuidText(new QLineEdit) {
  mPages->setContentsMargins(0, 0, 0, 0);
  mPages->addWidget(mHint);
  mPages->addWidget(makeForm());
  connect(mName, &QLineEdit::editingFinished, this, &Page_Details_View::onNameEdited);
  connect(&mState, &Session_State::operatingModeChanged, this, &Page_Details_View::refresh);
  refresh();
}

QWidget* Page_Details_View::makeForm() {
  auto* const content = new QWidget;
  mForm->setContentsMargins(0, 0, 0, 0);
  content->setContentsMargins(cGap, cGap, cGap, cGap);
  mForm->setSpacing(cGap);
  mForm->setLabelAlignment(Qt::AlignLeft);
  mForm->addRow(tr("&Name"), mName);
  mKind = addRow(tr("Art"));
  mSize = addRow(tr("Größe"));
  mContent = addRow(tr("Inhalt"));
  mController = addRow(tr("Steuerung"));
  // A field and not a label, so that it can be reached and copied by keyboard.
  mGuidText->setReadOnly(true);
  mForm->addRow(tr("&GUID"), mGuidText);
  content->setLayout(mForm);

  auto* const escape = new QShortcut(QKeySequence(Qt::Key_Escape), mName);
  escape->setContext(Qt::WidgetShortcut);
  escape->setEnabled(false);
  connect(mName, &QLineEdit::textChanged, escape, [this, escape] { escape->setEnabled(mName->isModified()); });
  connect(escape, &QShortcut::activated, this, [this] {
    mName->setModified(false);
    refresh();
  });

  auto* const area = new QScrollArea;
  area->setFrameShape(QFrame::NoFrame);
  area->setWidgetResizable(true);
  area->setFocusPolicy(Qt::NoFocus);
  area->setWidget(content);
  return area;
}

QLabel* Page_Details_View::addRow(const QString& text) {
  auto* const label = new QLabel;
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  auto* const name = new QLabel(text);
  Theme::setTextRole(*name, Theme::Role::SecondaryText);
  mForm->addRow(name, label);
  label->setAccessibleName(text);
  return label;
}

void Page_Details_View::setHint(const QString& text) {
  mHint->setText(text);
}

void Page_Details_View::setPage(const QUuid& guid) {
  if (guid != mGuid) {
    mGuid = guid;
    mName->setModified(false);
  }
  refresh();
}

void Page_Details_View::refresh() {
  const auto details = mModel.detailsOf(mGuid);
  mPages->setCurrentIndex(details ? 1 : 0);
  if (!details) {
    return;
  }
  if (!mName->isModified()) {
    mName->setText(details->mCaption);
  }
  const bool isLocked = mState.operatingMode();
  mName->setReadOnly(isLocked);
  mName->setToolTip(isLocked ? Session_State::operatingModeRefusal() : tr("Name der Seite, 1 bis 255 Zeichen"));
  mKind->setText(details->mKind);
  mSize->setText(details->mSize);
  mContent->setText(details->mContent);
  mController->setText(details->mController);
  mForm->setRowVisible(mController, !details->mController.isEmpty());
  if (const QString guid = details->mGuid.toString(QUuid::WithoutBraces); mGuidText->text() != guid) {
    mGuidText->setText(guid); // which takes a selection away
    mGuidText->setCursorPosition(0);
  }
}

void Page_Details_View::onNameEdited() {
  if (!mName->isModified()) {
    return;
  }
  const QString name = mName->text();
  mName->setModified(false); // before the edit, whose refusal may take the focus and come here again
  mModel.rename(mGuid, name);
  refresh();
}
