#include "fb/properties/FB_Binding_Edit.h"

#include "ui/Theme.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCompleter>
#include <QKeyEvent>
#include <QScreen>
#include <QStringListModel>

namespace {

constexpr size_t cOffered = 50;
constexpr int cShown = 12;
constexpr int cListWidth = 320;

bool isEnter(int key) {
  return key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

FB_Binding_Edit::FB_Binding_Edit(Search search, QWidget* parent)
    : Checked_Line_Edit(
          [search](const QString& text) {
            const FB_Binding_Search::Meaning meaning = search().meaning(text);
            return meaning.mKind == FB_Binding_Search::Meaning::Kind::Refused ? meaning.mText : QString();
          },
          parent),
      mSearch(std::move(search)),
      mFound(new QStringListModel(this)) {
  setPlaceholderText(tr("Adresse oder Name"));
  setToolTip(tr("Nummer oder Name einer Gruppenadresse, oder Name einer Variable.\n"
                "Ein neuer Name macht eine interne Variable."));
  auto* const completer = new QCompleter(mFound, this);
  completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion); // the model holds what is found
  completer->setMaxVisibleItems(cShown);
  completer->popup()->setMinimumWidth(cListWidth);
  setCompleter(completer);
  completer->popup()->installEventFilter(this);
  connect(this, &QLineEdit::textEdited, this, &FB_Binding_Edit::search);
  connect(completer, qOverload<const QString&>(&QCompleter::activated), this, &FB_Binding_Edit::chosen,
          Qt::QueuedConnection);
  QAction* const pick = addAction(Theme::icon(QStringLiteral("search-white")), TrailingPosition);
  pick->setToolTip(tr("Aus allen Gruppenadressen und Variablen auswählen"));
  connect(pick, &QAction::triggered, this, &FB_Binding_Edit::pickerRequested);
}

void FB_Binding_Edit::search(const QString& text) {
  QStringList found;
  for (const FB_Binding_Search::Hit& hit : mSearch().find(text, cOffered)) {
    found.append(hit.mText);
  }
  mFound->setStringList(found);
}

/// While the list is open the text in the field is a search.
bool FB_Binding_Edit::mayShowReason() const {
  return Checked_Line_Edit::mayShowReason() && !(completer() && completer()->popup()->isVisible());
}

bool FB_Binding_Edit::eventFilter(QObject* watched, QEvent* event) {
  QWidget* const list = completer()->popup();
  if (watched == list &&
      (event->type() == QEvent::Show || event->type() == QEvent::Resize || event->type() == QEvent::Move)) {
    // The toolkit places a list that is wider than its field beyond the screen.
    const int beyond = list->geometry().right() - screen()->availableGeometry().right();
    if (beyond > 0) {
      list->move(list->x() - beyond, list->y());
    }
  }
  if (watched == list && event->type() == QEvent::KeyPress && isEnter(static_cast<QKeyEvent*>(event)->key()) &&
      !completer()->popup()->currentIndex().isValid()) {
    list->hide(); // nothing of it was chosen: the text counts as it is typed
    emit chosen();
    return true;
  }
  if (watched == list && (event->type() == QEvent::Show || event->type() == QEvent::Hide)) {
    showReason();
  }
  return Checked_Line_Edit::eventFilter(watched, event);
}

/// The arrow shows the first of all when nothing is typed yet.
void FB_Binding_Edit::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Down && !completer()->popup()->isVisible()) {
    search(hasSelectedText() && selectedText() == text() ? QString() : text());
    completer()->complete();
    return;
  }
  Checked_Line_Edit::keyPressEvent(event);
}
