#include "net/dialogs/Dev_Controller_Dlg.h"

#include "db/DB_Controller_Informations.h"
#include "net/Controller_Command.h"
#include "net/dialogs/Controller_Clock_Reader.h"
#include "net/dialogs/Controller_Number_Panel.h"

#include <QDateTime>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int cGap = 8;
constexpr int cGroupGap = 12;
constexpr QSize cSize(820, 600);
constexpr qsizetype cMostCharacters = 200; // of what a controller says of itself

QLabel* addValue(QFormLayout& form, const QString& title) {
  auto* const label = new QLabel;
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  form.addRow(title, label);
  return label;
}

/// What is empty is told too.
void setValues(const QList<QLabel*>& labels, const QStringList& values) {
  for (qsizetype i = 0; i < labels.size(); ++i) {
    labels[i]->setText(values[i].isEmpty() ? QStringLiteral("–") : values[i].left(cMostCharacters));
  }
}

} // namespace

Dev_Controller_Dlg::Dev_Controller_Dlg(const Controller_Access& access, QWidget* parent)
    : Controller_Dialog(access, tr("Steuerungsinformationen"), QStringLiteral("net:Dev_Controller_Dlg"), cSize, parent),
      mReader(new Controller_Clock_Reader(access, queue(), this)),
      mNumbers(new Controller_Number_Panel(access, queue(), runner())),
      mSetClock(new QPushButton(tr("Uhrzeit &stellen"))) {
  auto* const columns = new QHBoxLayout;
  columns->setSpacing(cGroupGap);
  columns->addWidget(makeInformation(), 1);
  auto* const right = new QVBoxLayout;
  right->setSpacing(cGroupGap);
  right->addWidget(makeNetwork(), 1);
  right->addWidget(makeClock());
  columns->addLayout(right, 1);
  rows().addLayout(columns);
  rows().addWidget(mNumbers, 1);

  connect(mReader, &Controller_Clock_Reader::ticked, this, &Dev_Controller_Dlg::showClock);
  connect(mSetClock, &QPushButton::clicked, this, [this] {
    mReader->set(runner(), &Controller_Clock_Reader::now, [this] {
      readAgain();
      setNote(tr("Die Uhrzeit ist gestellt."));
    });
  });
  connect(mNumbers, &Controller_Number_Panel::changed, this, [this](const QString& text) {
    readAgain();
    setNote(text);
  });
  showClock();
}

QWidget* Dev_Controller_Dlg::makeInformation() {
  auto* const box = new QGroupBox(tr("Steuerung"));
  auto* const form = new QFormLayout(box);
  form->setVerticalSpacing(cGap);
  for (const QString& title : {tr("Name:"), tr("Seriennummer:"), tr("Laufzeitsystem:"), tr("Betriebssystem:"),
                               tr("Projekt:"), tr("Gespeichert:"), tr("Programm:")}) {
    mInformation.append(addValue(*form, title));
  }
  return box;
}

QWidget* Dev_Controller_Dlg::makeNetwork() {
  auto* const box = new QGroupBox(tr("Netzwerk"));
  auto* const form = new QFormLayout(box);
  form->setVerticalSpacing(cGap);
  for (const QString& title : {tr("Bezug:"), tr("IP-Adresse:"), tr("Netzmaske:"), tr("Gateway:"), tr("Nameserver:")}) {
    mNetwork.append(addValue(*form, title));
  }
  return box;
}

QWidget* Dev_Controller_Dlg::makeClock() {
  auto* const box = new QGroupBox(tr("Uhrzeit"));
  auto* const form = new QFormLayout(box);
  form->setVerticalSpacing(cGap);
  mTime = addValue(*form, tr("Steuerung:"));
  mDifference = addValue(*form, tr("Abweichung:"));
  mSetClock->setToolTip(tr("Stellt die Uhr der Steuerung auf die Uhrzeit dieses Computers"));
  mSetClock->setAutoDefault(false);
  mSetClock->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  form->addRow({}, mSetClock);
  return box;
}

void Dev_Controller_Dlg::read() {
  queue().add(
      {{}, Controller_Command::Information, {}, Controller_Command::Information_Reply},
      [this](Controller_Request& request) { showInformation(request.replyRecord<DB_Controller_Informations>()); });
  queue().add({{}, Controller_Command::Network_Settings, {}, Controller_Command::Network_Settings_Reply},
              [this](Controller_Request& request) { showNetwork(request.replyRecord<DB_Network_Settings>()); });
  mReader->read();
  mNumbers->read();
}

void Dev_Controller_Dlg::updateState() {
  mSetClock->setEnabled(isUsable());
  mNumbers->setUsable(isUsable());
}

void Dev_Controller_Dlg::showInformation(const DB_Controller_Informations& informations) {
  const QString time =
      informations.mProjectTimestamp == 0
          ? QString()
          : Controller_Clock_Reader::text(QDateTime::fromSecsSinceEpoch(informations.mProjectTimestamp));
  setValues(mInformation,
            {informations.mName, informations.mSerialNumber, informations.mRuntimeVersion, informations.mSystemVersion,
             informations.mProjectName, time, informations.mIsRunning ? tr("läuft") : tr("steht")});
}

void Dev_Controller_Dlg::showNetwork(const DB_Network_Settings& network) {
  setValues(mNetwork, {network.mIsDhcp ? tr("automatisch (DHCP)") : tr("fest eingestellt"), network.mAddress,
                       network.mMask, network.mGateway, network.mNameServer});
}

void Dev_Controller_Dlg::showClock() {
  const Controller_Clock& clock = mReader->clock();
  mTime->setText(clock.isSet() ? Controller_Clock_Reader::text(clock.at(Controller_Clock_Reader::now()))
                               : QStringLiteral("–"));
  mDifference->setText(clock.isSet() ? Controller_Clock::differenceText(clock.differenceMs()) : QStringLiteral("–"));
}
