#include "ui/Project_Search_Dialog.h"

#include "base/Decimal_Text.h"
#include "db/Project_Session.h"
#include "fb/model/FB_Types.h"
#include "ui/Filter_Edit.h"
#include "ui/Match_Delegate.h"
#include "ui/Result_List.h"
#include "ui/Theme.h"
#include "ui/Undo_Step.h"
#include "ui/Wait_Cursor.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <utility>

namespace {
constexpr int cGap = 8;
constexpr int cGroupGap = 12;
/// The text, the last one, takes what is left.
constexpr std::array cWidths{std::pair(Project_Search_Model::cKind, 160), std::pair(Project_Search_Model::cPlace, 240),
                             std::pair(Project_Search_Model::cField, 110)};
constexpr QSize cDefaultSize(900, 480);
} // namespace

Project_Search_Dialog::Project_Search_Dialog(Project_Session& session, App_Settings& settings, QWidget* parent)
    : Result_Dialog(session, settings, QStringLiteral("ui:Project_Search_Dialog"), cDefaultSize, parent),
      mModel(session.database(), FB_Types::name),
      mReplaceRow(new QWidget),
      mBy(new QLineEdit),
      mReplace(new QPushButton(tr("&Ersetzen"))),
      mReplaceAll(new QPushButton(tr("&Alle ersetzen"))),
      mScope(new QComboBox),
      mMatchCase(new QCheckBox(tr("&Groß-/Kleinschreibung"))),
      mWholeWords(new QCheckBox(tr("Nur ganze &Wörter"))),
      mList(new Result_List(mModel, Project_Search_Model::cPlace, session.state())),
      mNote(new QLabel) {
  setFilterTexts(tr("&Suchen:"), tr("Text, 1/2/3, 1/2/* oder 1/*"),
                 tr("Findet den Text, wie er hier steht, in Namen, Beschreibungen, Titeln, Kommentaren, Typen und "
                    "Parametern. 1/2/3 ist auch diese Adresse, 1/2/* und 1/* sind auch alle der Gruppe. F3 führt zum "
                    "nächsten Treffer, Umschalt+F3 zum vorigen. Escape leert das Feld."));
  makeReplaceRow();
  makeOptions();
  makeList();
  makeKeys();
  mNote->setObjectName(QStringLiteral("ui:mNote"));
  mNote->setTextFormat(Qt::PlainText);
  mNote->setWordWrap(true);
  rows().insertWidget(rows().count() - 1, mNote);
  tell({});
  connect(&session.state(), &Session_State::operatingModeChanged, this, &Project_Search_Dialog::updateButtons);
  setReplaceMode(false);
  updateTexts();
}

void Project_Search_Dialog::makeReplaceRow() {
  auto* const label = new QLabel(tr("Ersetzen &durch:"));
  label->setBuddy(mBy);
  const int width = label->sizeHint().width();
  label->setMinimumWidth(width);
  filterLabel().setMinimumWidth(width);
  mBy->setObjectName(QStringLiteral("ui:mReplaceBy"));
  mBy->setClearButtonEnabled(true);
  mBy->setToolTip(tr("Steht danach an der Stelle des Gesuchten; leer löscht es."));
  auto* const row = new QHBoxLayout(mReplaceRow);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(cGap);
  row->addWidget(label);
  row->addWidget(mBy, 1);
  for (QPushButton* const button : {mReplace, mReplaceAll}) {
    button->setAutoDefault(false); // Enter belongs to the list
    row->addWidget(button);
  }
  connect(mReplace, &QPushButton::clicked, this, &Project_Search_Dialog::replaceSelected);
  connect(mReplaceAll, &QPushButton::clicked, this, &Project_Search_Dialog::replaceAll);
  rows().insertWidget(1, mReplaceRow);
  setTabOrder(&filter(), mBy);
  setTabOrder(mBy, mReplace);
  setTabOrder(mReplace, mReplaceAll);
}

void Project_Search_Dialog::makeOptions() {
  // In the order of `Project_Search::Scope`.
  mScope->addItems({tr("Alles"), tr("Adressen"), tr("Seiten"), tr("Bausteine"), tr("Elemente")});
  auto* const label = new QLabel(tr("Suchen &in:"));
  label->setBuddy(mScope);
  label->setMinimumWidth(filterLabel().minimumWidth());
  auto* const row = new QHBoxLayout;
  row->setSpacing(cGap);
  row->addWidget(label);
  row->addWidget(mScope);
  row->addSpacing(cGroupGap);
  row->addWidget(mMatchCase);
  row->addSpacing(cGroupGap);
  row->addWidget(mWholeWords);
  row->addStretch();
  rows().insertLayout(2, row);
  setTabOrder(mReplaceAll, mScope);
  setTabOrder(mScope, mMatchCase);
  setTabOrder(mMatchCase, mWholeWords);
  connect(mScope, &QComboBox::currentIndexChanged, this, &Project_Search_Dialog::applyFilter);
  connect(mMatchCase, &QCheckBox::toggled, this, &Project_Search_Dialog::applyFilter);
  connect(mWholeWords, &QCheckBox::toggled, this, &Project_Search_Dialog::applyFilter);
}

void Project_Search_Dialog::makeList() {
  mList->setNames(tr("Treffer"), QStringLiteral("ui:mProjectSearchHeader"));
  mList->setDelegate(new Match_Delegate);
  for (const auto& [column, width] : cWidths) {
    mList->header().resizeSection(column, width);
  }
  mList->addCommand(tr("&Zeigen"), [this](int row) { choose(row); });
  connect(mList, &Result_List::chosen, this, &Project_Search_Dialog::choose);
  connect(mList, &Result_List::selectionChanged, this, &Project_Search_Dialog::updateButtons);
  connect(&mModel, &Project_Search_Model::textsChanged, mList, &Result_List::updateTexts);
  addList(*mList, 1);
}

/// Those of the main window, which are not heard here.
void Project_Search_Dialog::makeKeys() {
  const auto add = [this](const auto& keys, const auto& run) {
    connect(new QShortcut(keys, this), &QShortcut::activated, this, run);
  };
  add(QKeySequence(Qt::Key_F3), [this] { onNext(); });
  add(QKeySequence(Qt::SHIFT | Qt::Key_F3), [this] { onPrevious(); });
  add(QKeySequence(Qt::CTRL | Qt::Key_F), [this] { setReplaceMode(false); });
  add(QKeySequence(Qt::CTRL | Qt::Key_H), [this] { setReplaceMode(true); });
  add(QKeySequence::Undo, [this] { tell(Undo_Step::undo(mSession.history())); });
  add(QKeySequence::Redo, [this] { tell(Undo_Step::redo(mSession.history())); });
}

void Project_Search_Dialog::setReplaceMode(bool isOn) {
  mReplaceRow->setVisible(isOn);
  setWindowTitle(isOn ? tr("Suchen und ersetzen") : tr("Suchen"));
  filter().setFocus(Qt::OtherFocusReason);
  filter().selectAll();
}

void Project_Search_Dialog::onNext() {
  filter().apply();
  mList->chooseNext();
}

void Project_Search_Dialog::onPrevious() {
  filter().apply();
  mList->choosePrevious();
}

void Project_Search_Dialog::choose(int row) {
  const Project_Search::Hit hit = mModel.hit(row);
  switch (hit.mKind) {
  case Project_Search::Kind::LogicPage:
  case Project_Search::Kind::VisuPage:
    emit pageChosen(hit.mId);
    return;
  case Project_Search::Kind::Block:
  case Project_Search::Kind::Element:
    emit childChosen(Project_Search::pageOf(database(), hit), hit.mId);
    return;
  default:
    emit addressChosen(hit.mId);
  }
}

Project_Search::Query Project_Search_Dialog::query() const {
  return {filter().text(),
          {mMatchCase->isChecked(), mWholeWords->isChecked()},
          static_cast<Project_Search::Scope>(mScope->currentIndex())};
}

void Project_Search_Dialog::refresh() {
  const Project_Search::Query query = this->query();
  // Only the variables are told by what is used, which is a long walk after an edit.
  const bool isAnyVariable = !query.mText.isEmpty() && (query.mScope == Project_Search::Scope::Everything ||
                                                        query.mScope == Project_Search::Scope::Addresses);
  mModel.search(isAnyVariable ? usage() : Address_Usage(), query);
  updateTexts();
}

void Project_Search_Dialog::applyFilter() {
  tell({});
  refresh();
}

void Project_Search_Dialog::replaceAll() {
  filter().apply();
  replace(mModel.result().mHits);
}

void Project_Search_Dialog::replaceSelected() {
  std::vector<Project_Search::Hit> hits;
  for (const int row : mList->selectedRows()) {
    hits.push_back(mModel.hit(row));
  }
  replace(hits);
}

void Project_Search_Dialog::replace(const std::vector<Project_Search::Hit>& hits) {
  const Wait_Cursor wait;
  const int row = std::max(mList->current(), 0);
  const auto outcome = Project_Replace::replace(mSession, query(), mModel.result(), hits, mBy->text(), FB_Types::name);
  refresh();
  if (mList->shownCount() > 0 && mList->current() < 0) {
    mList->setCurrent(row); // so that the next press goes on there
  }
  // A field would keep the keys that take it back for itself.
  if (mList->shownCount() > 0) {
    mList->enter();
  } else {
    mScope->setFocus(Qt::OtherFocusReason);
  }
  tell(outcome.toString());
}

void Project_Search_Dialog::tell(const QString& note) {
  mNote->setText(note);
  mNote->setVisible(!note.isEmpty());
}

void Project_Search_Dialog::updateTexts() {
  const Project_Search::Result& result = mModel.result();
  const QString hits = tr("%1 Treffer").arg(Decimal_Text::count(result.mMatches));
  const QString places =
      result.mPlaces == 1 ? tr("an 1 Ort") : tr("an %1 Orten").arg(Decimal_Text::count(result.mPlaces));
  setCountText(result.mMatches == 0 ? QString() : hits + QLatin1Char(' ') + places);
  mList->setHint(emptyText());
  updateButtons();
}

QString Project_Search_Dialog::emptyText() const {
  if (!mSession.isOpen()) {
    return tr("Es ist kein Projekt geöffnet.");
  }
  const QString text = filter().text();
  if (text.isEmpty()) {
    return tr("Hier stehen die Treffer aus Adressen, Variablen, Seiten, Bausteinen und Elementen.");
  }
  return mScope->currentIndex() == 0 ? tr("Das Projekt enthält \"%1\" nicht.").arg(text)
                                     : tr("%1 enthalten \"%2\" nicht.").arg(mScope->currentText(), text);
}

QString Project_Search_Dialog::whyNoReplacing() const {
  if (mSession.state().operatingMode()) {
    return Session_State::operatingModeRefusal();
  }
  const std::vector<Project_Search::Hit>& hits = mModel.result().mHits;
  if (!mSession.isOpen()) {
    return emptyText();
  }
  if (hits.empty()) {
    return filter().text().isEmpty() ? tr("Erst einen Suchtext eingeben.") : tr("Nichts gefunden.");
  }
  return std::none_of(hits.cbegin(), hits.cend(), Project_Replace::isReplaceable)
             ? tr("Adressen, Typen und Parameter werden nicht ersetzt.")
             : QString();
}

void Project_Search_Dialog::updateButtons() {
  const QString reason = whyNoReplacing();
  const bool isChoice = !mList->selectedRows().empty();
  mReplaceAll->setEnabled(reason.isEmpty());
  mReplaceAll->setToolTip(reason.isEmpty() ? tr("Ersetzt alle Treffer, in einem Schritt.") : reason);
  mReplace->setEnabled(reason.isEmpty() && isChoice);
  const QString hint = isChoice ? tr("Ersetzt die Treffer der gewählten Zeilen.") : tr("Erst Zeilen der Liste wählen.");
  mReplace->setToolTip(reason.isEmpty() ? hint : reason);
}
