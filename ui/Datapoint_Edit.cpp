#include "ui/Datapoint_Edit.h"

#include "base/Datapoint_Types.h"
#include "db/Address_Edits.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QScreen>
#include <QStringListModel>

namespace {

constexpr int cShownTypes = 12;
constexpr int cListWidth = 320;

QStringList typesWith(const QString& text) {
  QStringList types;
  for (const Datapoint_Id& id : Datapoint_Types::search(text)) {
    types.append(Datapoint_Types::describe(id));
  }
  return types;
}

} // namespace

Datapoint_Edit::Datapoint_Edit(QWidget* parent)
    : Checked_Line_Edit(
          [](const QString& text) {
            return Address_Edits::check(Address_Edits::Field::Type, Datapoint_Types::numberIn(text)).mError;
          },
          parent),
      mFound(new QStringListModel(this)) {
  auto* const completer = new QCompleter(mFound, this);
  completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion); // the model holds what is found
  completer->setMaxVisibleItems(cShownTypes);
  completer->popup()->setMinimumWidth(cListWidth);
  setCompleter(completer);
  completer->popup()->installEventFilter(this);
  connect(this, &QLineEdit::textEdited, this, [this](const QString& text) { search(text); });
  // What counts is the number at the beginning.
  connect(
      completer, qOverload<const QString&>(&QCompleter::activated), this, [this] { setCursorPosition(0); },
      Qt::QueuedConnection);
  setPlaceholderText(tr("Nummer oder Name"));
}

void Datapoint_Edit::search(const QString& text) {
  mFound->setStringList(typesWith(text));
}

Datapoint_Id Datapoint_Edit::type() const {
  return Datapoint_Id::parse(Datapoint_Types::numberIn(text())).value_or(Datapoint_Id());
}

/// While the list is open the words in the field are a search.
bool Datapoint_Edit::mayShowReason() const {
  return Checked_Line_Edit::mayShowReason() && !completer()->popup()->isVisible();
}

bool Datapoint_Edit::eventFilter(QObject* watched, QEvent* event) {
  QWidget* const list = completer()->popup();
  if (watched == list &&
      (event->type() == QEvent::Show || event->type() == QEvent::Resize || event->type() == QEvent::Move)) {
    // The toolkit places a list that is wider than its field beyond the screen.
    const int beyond = list->geometry().right() - screen()->availableGeometry().right();
    if (beyond > 0) {
      list->move(list->x() - beyond, list->y());
    }
  }
  if (watched == list && (event->type() == QEvent::Show || event->type() == QEvent::Hide)) {
    showReason();
  }
  return Checked_Line_Edit::eventFilter(watched, event);
}

/// The arrow shows all types when nothing is typed yet.
void Datapoint_Edit::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Down && !completer()->popup()->isVisible()) {
    search(Datapoint_Types::numberIn(text()));
    completer()->complete();
    return;
  }
  Checked_Line_Edit::keyPressEvent(event);
}
