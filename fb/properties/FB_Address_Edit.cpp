#include "fb/properties/FB_Address_Edit.h"

#include "db/Address_Clipboard.h"
#include "fb/model/FB_Binding_Search.h"

#include <QCompleter>
#include <QDropEvent>
#include <QStringListModel>

namespace {
constexpr size_t cMostMatches = 20;
constexpr qsizetype cShownCharacters = 80;
} // namespace

FB_Address_Edit::FB_Address_Edit(const ProjectDatabase& database, QWidget* parent)
    : FB_Dev_Properties_LineEdit(-1, parent),
      mDatabase(database),
      mProposals(new QStringListModel(this)) {
  auto* const completer = new QCompleter(mProposals, this);
  completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
  setCompleter(completer);
  connect(this, &QLineEdit::textEdited, this, &FB_Address_Edit::propose);
  connect(this, &FB_Dev_Properties_LineEdit::valueChanged, this, &FB_Address_Edit::choose);
  connect(completer, qOverload<const QString&>(&QCompleter::activated), this, &FB_Address_Edit::finishTyping,
          Qt::QueuedConnection); // the completer writes into the field behind its signal
}

QString FB_Address_Edit::textOf(const DB_Address_Binding& binding) {
  switch (binding.mKind) {
  case DB_Address_Binding::Kind::None:
    return {};
  case DB_Address_Binding::Kind::Internal:
    return binding.mName;
  case DB_Address_Binding::Kind::GroupAddress:
    break;
  }
  const Group_Address address(binding.mMain, binding.mMiddle, binding.mSub);
  return (address.toString() + u' ' + binding.mName).simplified();
}

void FB_Address_Edit::takeOff() {
  if (!text().isEmpty() || !placeholderText().isEmpty()) {
    emit addressChosen({});
  }
}

void FB_Address_Edit::propose(const QString& text) {
  QStringList matches;
  if (!text.trimmed().isEmpty()) {
    for (const FB_Binding_Search::Hit& hit : FB_Binding_Search(mDatabase, mNoVariables).find(text, cMostMatches)) {
      matches.append(hit.mText);
    }
  }
  mProposals->setStringList(matches);
}

void FB_Address_Edit::choose() {
  using Kind = FB_Binding_Search::Meaning::Kind;
  const FB_Binding_Search::Meaning meaning = FB_Binding_Search(mDatabase, mNoVariables).meaning(text());
  if (meaning.mKind == Kind::Nothing || meaning.mKind == Kind::Address) {
    emit addressChosen(meaning.mKey);
  } else {
    emit refused(
        meaning.mKind == Kind::Refused
            ? meaning.mText
            : tr("Eine Gruppenadresse \"%1\" gibt es im Projekt nicht.").arg(text().trimmed().left(cShownCharacters)));
  }
}

void FB_Address_Edit::dragEnterEvent(QDragEnterEvent* event) {
  if (Address_Clipboard::singleAddress(*event->mimeData()).isNull()) {
    event->ignore();
  } else {
    event->setDropAction(Qt::LinkAction);
    event->accept();
  }
}

void FB_Address_Edit::dragMoveEvent(QDragMoveEvent* event) {
  event->setDropAction(Qt::LinkAction);
  event->accept();
}

void FB_Address_Edit::dropEvent(QDropEvent* event) {
  event->setDropAction(Qt::LinkAction);
  event->accept();
  emit addressChosen(Address_Clipboard::singleAddress(*event->mimeData()));
}
