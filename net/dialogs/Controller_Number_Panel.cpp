#include "net/dialogs/Controller_Number_Panel.h"

#include "db/Project_Session.h"
#include "net/Controller_Command.h"
#include "net/dialogs/Request_Queue.h"
#include "ui/Result_List.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

constexpr int cGap = 8;
constexpr int cNumberMost = 255;
constexpr int cNumberWidth = 70;
constexpr int cTextWidth = 130;
constexpr int cVersionWidth = 80;
constexpr int cListHeight = 130;

} // namespace

Controller_Number_Panel::Controller_Number_Panel(const Controller_Access& access, Request_Queue& queue,
                                                 Exchange_Runner& runner)
    : QGroupBox(tr("Verteiltes Projekt")),
      mAccess(access),
      mQueue(queue),
      mRunner(runner),
      mOwn(new QLabel(tr("nicht bekannt"))),
      mChoice(new QComboBox),
      mTyped(new QSpinBox),
      mSet(new QPushButton(tr("&Nummer setzen"))),
      mClear(new QPushButton(tr("Nummer &löschen"))),
      mPartners(new Result_List(mModel, -1, access.mSession.state())),
      mSetPartner(new QPushButton(tr("Nummer beim &Partner setzen"))),
      mClearPartner(new QPushButton(tr("Nummer beim Partner l&öschen"))) {
  auto* const layout = new QVBoxLayout(this);
  layout->setSpacing(cGap);
  layout->addLayout(makeOwn());
  layout->addLayout(makePartners(), 1);
  for (QPushButton* const button : {mSet, mClear, mSetPartner, mClearPartner}) {
    button->setAutoDefault(false);
  }
  connect(mSet, &QPushButton::clicked, this, &Controller_Number_Panel::onSet);
  connect(mClear, &QPushButton::clicked, this, &Controller_Number_Panel::onClear);
  connect(mSetPartner, &QPushButton::clicked, this, &Controller_Number_Panel::onSetPartner);
  connect(mClearPartner, &QPushButton::clicked, this, &Controller_Number_Panel::onClearPartner);
  connect(mPartners, &Result_List::selectionChanged, this, &Controller_Number_Panel::updateState);
  updateState();
}

Controller_Number_Panel::~Controller_Number_Panel() {
  mPartners->saveState(mAccess.mSettings);
}

QLayout* Controller_Number_Panel::makeOwn() {
  const std::vector<DB_Controller>& controllers = mAccess.mSession.database().mProject.mControllers;
  for (const DB_Controller& controller : controllers) {
    const QString name = controller.mName.isEmpty() ? controller.mAddress : controller.mName.simplified();
    mChoice->addItem(QStringLiteral("%1 – %2").arg(QString::number(controller.mNumber), name), controller.mNumber);
  }
  mTyped->setRange(1, cNumberMost);
  mChoice->setVisible(!controllers.empty());
  mTyped->setVisible(controllers.empty());
  mChoice->setToolTip(tr("Nummern der Steuerungen des Projekts"));
  mTyped->setToolTip(tr("Nummer der Steuerung, 1 bis %1").arg(QString::number(cNumberMost)));
  auto* const label = new QLabel(tr("Ne&ue Nummer:"));
  label->setBuddy(controllers.empty() ? static_cast<QWidget*>(mTyped) : mChoice);

  auto* const row = new QHBoxLayout;
  row->setSpacing(cGap);
  row->addWidget(new QLabel(tr("Nummer dieser Steuerung:")));
  row->addWidget(mOwn);
  row->addStretch();
  row->addWidget(label);
  row->addWidget(mChoice);
  row->addWidget(mTyped);
  row->addWidget(mSet);
  row->addWidget(mClear);
  return row;
}

QLayout* Controller_Number_Panel::makePartners() {
  mModel.setRows(Partner_Model::rowsOf(mAccess.mSession.database().mProject.mControllers, {}));
  mPartners->setNames(tr("Steuerungen des Projekts"), QStringLiteral("net:mPartnerHeader"));
  mPartners->setHint(tr("Das Projekt nennt keine weiteren Steuerungen. Sie stehen im Menü Bearbeiten, "
                        "Projekteinstellungen, Verteiltes Projekt."));
  mPartners->setMinimumHeight(cListHeight);
  mPartners->header().resizeSection(Partner_Model::cNumber, cNumberWidth);
  mPartners->header().resizeSection(Partner_Model::cName, cTextWidth);
  mPartners->header().resizeSection(Partner_Model::cAddress, cTextWidth);
  mPartners->header().resizeSection(Partner_Model::cState, cTextWidth);
  mPartners->header().resizeSection(Partner_Model::cVersion, cVersionWidth);
  mPartners->restoreState(mAccess.mSettings);
  auto* const commands = new QHBoxLayout;
  commands->setSpacing(cGap);
  commands->addStretch();
  commands->addWidget(mSetPartner);
  commands->addWidget(mClearPartner);
  auto* const layout = new QVBoxLayout;
  layout->setSpacing(cGap);
  layout->addWidget(mPartners, 1);
  layout->addLayout(commands);
  return layout;
}

void Controller_Number_Panel::read() {
  mQueue.add({{}, Controller_Command::Number_Get, {}, Controller_Command::Number_Get_Reply},
             [this](Controller_Request& request) {
               mNumber = request.replyText().toInt();
               mOwn->setText(mNumber == 0 ? tr("keine") : QString::number(mNumber));
               const int place = mChoice->findData(mNumber);
               mChoice->setCurrentIndex(place < 0 ? 0 : place);
               mTyped->setValue(mNumber);
             });
  mQueue.add({{}, Controller_Command::Group_Status, {}, Controller_Command::Group_Status_Reply},
             [this](Controller_Request& request) {
               mModel.setRows(Partner_Model::rowsOf(mAccess.mSession.database().mProject.mControllers,
                                                    request.replyRecord<DB_Group_Status>()));
             });
}

void Controller_Number_Panel::setUsable(bool isUsable) {
  mIsUsable = isUsable;
  updateState();
}

void Controller_Number_Panel::updateState() {
  mSet->setEnabled(mIsUsable);
  mClear->setEnabled(mIsUsable && mNumber != 0);
  mSetPartner->setEnabled(mIsUsable && partner());
  mClearPartner->setEnabled(mIsUsable && partner());
}

int Controller_Number_Panel::chosenNumber() const {
  return mChoice->count() > 0 ? mChoice->currentData().toInt() : mTyped->value();
}

/// The selected one; null for the connected controller itself, whose number has buttons of its own.
const Partner_Row* Controller_Number_Panel::partner() const {
  const std::vector<int> rows = mPartners->selectedRows();
  if (rows.size() != 1) {
    return nullptr;
  }
  const Partner_Row& row = mModel.row(rows.front());
  return mNumber != 0 && row.mNumber == mNumber ? nullptr : &row;
}

void Controller_Number_Panel::run(const Exchange_Runner::Request& request, const QString& done) {
  mRunner.request(tr("Nummer setzen"), request, [this, done](Controller_Request&) { emit changed(done); });
}

void Controller_Number_Panel::onSet() {
  const QString number = QString::number(chosenNumber());
  run({tr("Nummer %1 wird gesetzt...").arg(number), Controller_Command::Number_Set,
       Controller_Request::textPayload(number), Controller_Command::Number_Set_Reply},
      tr("Die Steuerung hat die Nummer %1.").arg(number));
}

void Controller_Number_Panel::onClear() {
  run({tr("Nummer wird gesetzt..."), Controller_Command::Number_Clear, {}, Controller_Command::Number_Clear_Reply},
      tr("Die Steuerung hat keine Nummer mehr."));
}

void Controller_Number_Panel::onSetPartner() {
  if (const Partner_Row* const row = partner()) {
    const QString number = QString::number(row->mNumber);
    run({tr("Nummer %1 wird gesetzt...").arg(number), Controller_Command::Partner_Number_Set,
         Controller_Request::textPayload(QStringLiteral("%1#%2").arg(row->mAddress, number)),
         Controller_Command::Partner_Number_Set_Reply},
        tr("Die Steuerung %1 hat die Nummer %2.").arg(row->mAddress, number));
  }
}

void Controller_Number_Panel::onClearPartner() {
  if (const Partner_Row* const row = partner()) {
    run({tr("Nummer wird gesetzt..."), Controller_Command::Partner_Number_Clear,
         Controller_Request::textPayload(row->mAddress), Controller_Command::Partner_Number_Clear_Reply},
        tr("Die Steuerung %1 hat keine Nummer mehr.").arg(row->mAddress));
  }
}
