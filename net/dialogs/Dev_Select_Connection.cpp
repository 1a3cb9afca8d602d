#include "net/dialogs/Dev_Select_Connection.h"

#include "base/App_Settings.h"
#include "base/Decimal_Text.h"
#include "db/Connection_Edits.h"
#include "db/Project_Session.h"
#include "net/Controller_Link.h"
#include "net/dialogs/Dev_Connect_Progress_Dlg.h"
#include "net/dialogs/Dev_Connection_Assistant.h"
#include "net/dialogs/Main_Connection_Edit.h"
#include "ui/Empty_Hint.h"
#include "ui/Filter_Edit.h"
#include "ui/Message_Box.h"
#include "ui/Result_List.h"
#include "ui/Theme.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int cGap = 8;
constexpr int cGroupGap = 12;
constexpr QSize cSize(960, 440);
constexpr int cNumberWidth = 80;
constexpr int cNameWidth = 150;
constexpr int cAddressWidth = 130;
constexpr int cKindWidth = 140;
constexpr int cUserWidth = 80;
constexpr int cSelectedWidth = 95;
const QString cGeometry = QStringLiteral("net:Dev_Select_Connection");

} // namespace

Dev_Select_Connection::Dev_Select_Connection(Project_Session& session, App_Settings& settings, Controller_Link& link,
                                             QWidget* parent)
    : QDialog(parent),
      mSession(session),
      mSettings(settings),
      mLink(link),
      mFilter(new Filter_Edit(0)),
      mStack(new QStackedWidget),
      mList(new Result_List(mModel, -1, session.state())),
      mHint(new Empty_Hint),
      mCount(new QLabel) {
  setWindowTitle(tr("Verbindungen"));
  auto* const layout = new QVBoxLayout(this);
  layout->setSpacing(cGroupGap);
  auto* const body = new QHBoxLayout;
  body->setSpacing(cGroupGap);
  body->addWidget(makeList(), 1);
  body->addWidget(makeCommands());
  layout->addLayout(body);

  auto* const buttons = new QDialogButtonBox;
  mConnect = buttons->addButton(tr("&Verbinden"), QDialogButtonBox::ActionRole);
  mConnect->setIcon(Theme::icon(QStringLiteral("control_online")));
  mConnect->setDefault(true);
  buttons->addButton(tr("S&chließen"), QDialogButtonBox::RejectRole)->setAutoDefault(false);
  connect(mConnect, &QPushButton::clicked, this, &Dev_Select_Connection::onConnect);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  layout->addWidget(buttons);

  connect(&session.database(), &ProjectDatabase::recordChanged, this, [this](DB_Table table) {
    if (table == DB_Table::Connections) {
      refresh();
    }
  });
  connect(&session, &Project_Session::opened, this, &Dev_Select_Connection::refresh);
  connect(&session, &Project_Session::aboutToClose, this, &QDialog::reject);
  connect(&session.state(), &Session_State::operatingModeChanged, this, &Dev_Select_Connection::updateState);
  resize(cSize);
  restoreGeometry(settings.viewState(cGeometry));
  mList->restoreState(settings);
  refresh();
  mList->showRow(session.database().mConnections.mSelected);
}

Dev_Select_Connection::~Dev_Select_Connection() {
  mSettings.setViewState(cGeometry, saveGeometry());
  mList->saveState(mSettings);
}

void Dev_Select_Connection::bringUp() {
  QWidget::show();
  raise();
  activateWindow();
  mList->enter();
}

QWidget* Dev_Select_Connection::makeList() {
  auto* const label = new QLabel(tr("&Filtern:"));
  label->setBuddy(mFilter);
  mFilter->setPlaceholderText(tr("Name, Adresse, Benutzer ..."));
  connect(mFilter, &Filter_Edit::filterChanged, this, [this](const QString& text) {
    mList->setFilter(text);
    updateCount();
    updateState();
  });
  connect(mFilter, &Filter_Edit::listWanted, mList, &Result_List::enter);

  mList->setNames(tr("Verbindungen"), QStringLiteral("net:mConnectionHeader"));
  mList->setHint(tr("Keine Verbindung enthält diesen Text."));
  mList->header().resizeSection(Connection_List_Model::cNumber, cNumberWidth);
  mList->header().resizeSection(Connection_List_Model::cName, cNameWidth);
  mList->header().resizeSection(Connection_List_Model::cAddress, cAddressWidth);
  mList->header().resizeSection(Connection_List_Model::cKind, cKindWidth);
  mList->header().resizeSection(Connection_List_Model::cUser, cUserWidth);
  mList->header().resizeSection(Connection_List_Model::cSelected, cSelectedWidth);
  connect(mList, &Result_List::chosen, this, &Dev_Select_Connection::onEdit);
  connect(mList, &Result_List::selectionChanged, this, &Dev_Select_Connection::updateState);
  auto* const remove = new QShortcut(QKeySequence::Delete, &mList->view(), nullptr, nullptr, Qt::WidgetShortcut);
  connect(remove, &QShortcut::activated, this, [this] {
    if (mDelete->isEnabled()) {
      onDelete();
    }
  });

  mHint->setText(tr("Das Projekt hat keine Verbindung zu einer Steuerung."));
  mHint->setStep(tr("Steuerung suchen ..."));
  connect(mHint, &Empty_Hint::stepRequested, this, &Dev_Select_Connection::onSearch);
  mStack->addWidget(mList);
  mStack->addWidget(mHint);
  Theme::setTextRole(*mCount, Theme::Role::SecondaryText);

  auto* const group = new QWidget;
  auto* const layout = new QVBoxLayout(group);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(cGap);
  auto* const top = new QHBoxLayout;
  top->addWidget(label);
  top->addWidget(mFilter);
  layout->addLayout(top);
  layout->addWidget(mStack, 1);
  layout->addWidget(mCount);
  return group;
}

QPushButton* Dev_Select_Connection::makeCommand(const QString& text, const QString& toolTip,
                                                void (Dev_Select_Connection::*slot)()) {
  auto* const button = new QPushButton(text);
  button->setAutoDefault(false);
  button->setToolTip(toolTip);
  connect(button, &QPushButton::clicked, this, slot);
  mEdits.append(button);
  return button;
}

QWidget* Dev_Select_Connection::makeCommands() {
  using Self = Dev_Select_Connection;
  mNew = makeCommand(tr("&Neu ..."), tr("Eine Verbindung eingeben"), &Self::onNew);
  mSearch = makeCommand(tr("S&uchen ..."), tr("Steuerungen im Netz suchen und eine übernehmen"), &Self::onSearch);
  mEdit = makeCommand(tr("&Bearbeiten ..."), tr("Die Verbindung ändern"), &Self::onEdit);
  mDuplicate = makeCommand(tr("&Duplizieren"), tr("Eine Kopie dahinter anlegen"), &Self::onDuplicate);
  mDelete = makeCommand(tr("&Löschen"), tr("Die Verbindungen aus dem Projekt entfernen"), &Self::onDelete);
  mUp = makeCommand(tr("Nach &oben"), tr("Vor die vorige Verbindung"), &Self::onUp);
  mDown = makeCommand(tr("Nach un&ten"), tr("Hinter die nächste Verbindung"), &Self::onDown);
  mSelect = makeCommand(tr("&Auswählen"), tr("Mit ihr verbindet das Studio ab jetzt"), &Self::onSelect);
  mNew->setIcon(Theme::icon(QStringLiteral("plus_white")));
  mSearch->setIcon(Theme::icon(QStringLiteral("search-white")));
  mDuplicate->setIcon(Theme::icon(QStringLiteral("duplicate_white")));
  mDelete->setIcon(Theme::icon(QStringLiteral("trash-white")));

  auto* const group = new QWidget;
  auto* const layout = new QVBoxLayout(group);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(cGap);
  for (QPushButton* const button : std::as_const(mEdits)) {
    layout->addWidget(button);
    if (button == mSearch || button == mDelete || button == mDown) {
      layout->addSpacing(cGroupGap - cGap);
    }
  }
  layout->addStretch();
  return group;
}

void Dev_Select_Connection::refresh() {
  mModel.setRows(Connection_List_Model::rowsOf(mSession.database().mConnections));
  mStack->setCurrentIndex(mModel.rowCount() > 0 ? 0 : 1);
  updateCount();
  updateState();
}

void Dev_Select_Connection::updateCount() {
  const int count = mModel.rowCount();
  const QString all = count == 1 ? tr("1 Verbindung") : tr("%1 Verbindungen").arg(Decimal_Text::count(count));
  const QString shown =
      mList->isFiltered() ? tr(", %1 gezeigt").arg(Decimal_Text::count(mList->shownCount())) : QString();
  mCount->setText(all + shown);
}

QList<int> Dev_Select_Connection::selected() const {
  const std::vector<int> rows = mList->selectedRows();
  return {rows.begin(), rows.end()};
}

/// The one selected row; -1 when there is none or more.
int Dev_Select_Connection::current() const {
  const QList<int> rows = selected();
  return rows.size() == 1 ? rows.first() : -1;
}

QString Dev_Select_Connection::connectRefusal(const QList<int>& rows) const {
  return rows.size() == 1 ? QString() : tr("Dafür muss genau eine Verbindung gewählt sein.");
}

void Dev_Select_Connection::updateState() {
  if (!mConnect) {
    return; // still being built
  }
  const bool mayEdit = !mSession.state().operatingMode();
  const QString mode = mayEdit ? QString() : Session_State::operatingModeRefusal();
  const QList<int> rows = selected();
  const int row = current();
  const int last = mModel.rowCount() - 1;
  mNew->setEnabled(mayEdit);
  mSearch->setEnabled(mayEdit);
  mHint->setStepEnabled(mayEdit, mode);
  mEdit->setEnabled(mayEdit && row >= 0);
  mDuplicate->setEnabled(mayEdit && row >= 0);
  mDelete->setEnabled(mayEdit && !rows.isEmpty());
  mUp->setEnabled(mayEdit && row > 0);
  mDown->setEnabled(mayEdit && row >= 0 && row < last);
  mSelect->setEnabled(mayEdit && row >= 0 && !mModel.row(row).mIsSelected);
  mConnect->setEnabled(row >= 0);
  mConnect->setToolTip(connectRefusal(rows));
  for (QPushButton* const button : std::as_const(mEdits)) {
    button->setStatusTip(mode);
  }
  mCount->setToolTip(mode);
}

void Dev_Select_Connection::report(const Edit_Result& edit) {
  if (!edit) {
    Message_Box::showMessage(this, edit.mError);
  }
}

void Dev_Select_Connection::showRow(int row) {
  mList->showRow(row);
  mList->view().setFocus();
}

void Dev_Select_Connection::onNew() {
  Main_Connection_Edit dialog(mSession, mLink, Main_Connection_Edit::cNew, this);
  if (dialog.exec() == QDialog::Accepted) {
    showRow(mModel.rowCount() - 1);
  }
}

void Dev_Select_Connection::onEdit() {
  const int row = current();
  if (row < 0 || !mEdit->isEnabled()) {
    return;
  }
  Main_Connection_Edit dialog(mSession, mLink, row, this);
  dialog.exec();
}

void Dev_Select_Connection::onDuplicate() {
  const int row = current();
  report(Connection_Edits::duplicate(mSession, row));
  showRow(row + 1);
}

void Dev_Select_Connection::onDelete() {
  const QList<int> rows = selected();
  report(Connection_Edits::remove(mSession, rows));
  if (!rows.isEmpty() && mModel.rowCount() > 0) {
    showRow(std::min(rows.first(), mModel.rowCount() - 1));
  }
}

void Dev_Select_Connection::move(int by) {
  const int row = current();
  report(Connection_Edits::move(mSession, row, row + by));
  showRow(row + by);
}

void Dev_Select_Connection::onUp() {
  move(-1);
}

void Dev_Select_Connection::onDown() {
  move(1);
}

void Dev_Select_Connection::onSelect() {
  report(Connection_Edits::select(mSession, current()));
}

void Dev_Select_Connection::onSearch() {
  Dev_Connection_Assistant assistant(mSession, mSettings, mLink, this);
  if (assistant.exec() == QDialog::Accepted) {
    showRow(mModel.rowCount() - 1);
  }
}

void Dev_Select_Connection::onConnect() {
  const int row = current();
  if (row < 0) {
    return;
  }
  if (!mModel.row(row).mIsSelected && !mSession.state().operatingMode()) {
    report(Connection_Edits::select(mSession, row));
  }
  mLink.connectTo(mSession.database().mConnections.mItems[static_cast<size_t>(row)]);
  Dev_Connect_Progress_Dlg::follow(mLink, parentWidget());
  QDialog::accept();
}
