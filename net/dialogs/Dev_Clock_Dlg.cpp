#include "net/dialogs/Dev_Clock_Dlg.h"

#include "net/dialogs/Controller_Clock_Reader.h"
#include "ui/Theme.h"

#include <QDateTimeEdit>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int cGap = 8;
constexpr QSize cSize(520, 250);

} // namespace

Dev_Clock_Dlg::Dev_Clock_Dlg(const Controller_Access& access, QWidget* parent)
    : Controller_Dialog(access, tr("Uhrzeit"), QStringLiteral("net:Dev_Clock_Dlg"), cSize, parent),
      mReader(new Controller_Clock_Reader(access, queue(), this)),
      mController(new QLabel),
      mComputer(new QLabel),
      mDifference(new QLabel),
      mChosen(new QDateTimeEdit(QDateTime::currentDateTime())),
      mTakeOver(new QPushButton(tr("Uhrzeit des Computers über&nehmen"))),
      mSet(new QPushButton(tr("Zeit &stellen"))) {
  mChosen->setDisplayFormat(QStringLiteral("dd.MM.yyyy HH:mm:ss"));
  mChosen->setCalendarPopup(true);
  mChosen->setToolTip(tr("Zeit, auf die die Uhr der Steuerung gestellt wird, in der Zeitzone dieses Computers"));
  mTakeOver->setAutoDefault(false);
  mSet->setAutoDefault(false);
  auto* const zone = new QLabel(tr("Alle Zeiten in der Zeitzone dieses Computers."));
  Theme::setTextRole(*zone, Theme::Role::SecondaryText);

  auto* const form = new QFormLayout;
  form->setVerticalSpacing(cGap);
  form->addRow(tr("Steuerung:"), mController);
  form->addRow(tr("Computer:"), mComputer);
  form->addRow(tr("Abweichung:"), mDifference);
  form->addRow({}, mTakeOver);
  auto* const label = new QLabel(tr("Andere &Zeit:"));
  label->setBuddy(mChosen);
  auto* const chosen = new QHBoxLayout;
  chosen->setSpacing(cGap);
  chosen->addWidget(mChosen, 1);
  chosen->addWidget(mSet);
  form->addRow(label, chosen);
  rows().addLayout(form);
  rows().addWidget(zone);
  rows().addStretch();

  connect(mReader, &Controller_Clock_Reader::ticked, this, &Dev_Clock_Dlg::showClocks);
  connect(mTakeOver, &QPushButton::clicked, this, [this] { set(&Controller_Clock_Reader::now); });
  connect(mSet, &QPushButton::clicked, this,
          [this] { set([ms = mChosen->dateTime().toMSecsSinceEpoch()] { return ms; }); });
  showClocks();
}

void Dev_Clock_Dlg::read() {
  mReader->read();
}

void Dev_Clock_Dlg::updateState() {
  mTakeOver->setEnabled(isUsable());
  mSet->setEnabled(isUsable());
}

void Dev_Clock_Dlg::showClocks() {
  const qint64 now = Controller_Clock_Reader::now();
  const Controller_Clock& clock = mReader->clock();
  const QString unknown = tr("nicht bekannt");
  mController->setText(clock.isSet() ? Controller_Clock_Reader::text(clock.at(now)) : unknown);
  mComputer->setText(Controller_Clock_Reader::text(now));
  mDifference->setText(clock.isSet() ? Controller_Clock::differenceText(clock.differenceMs()) : unknown);
}

void Dev_Clock_Dlg::set(const std::function<qint64()>& time) {
  mReader->set(runner(), time, [this] {
    readAgain();
    setNote(tr("Die Uhrzeit ist gestellt."));
  });
}
