#include "ui/Address_Import_Settings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>

namespace {

constexpr int cGap = 8;
constexpr int cGroupGap = 24;

} // namespace

Address_Import_Settings::Address_Import_Settings(QWidget* parent)
    : QWidget(parent),
      mNewOnly(addOption(QStringLiteral("mNewOnly"), tr("Nur &neue Adressen"),
                         tr("Was das Projekt schon hat, bleibt, wie es ist; gelöscht wird nichts."))),
      mKeepType(addOption(QStringLiteral("mKeepType"), tr("&Typ vorhandener Adressen behalten"),
                          tr("Nur Adressen ohne Typ bekommen den aus der Datei."))),
      mKeepComment(addOption(QStringLiteral("mKeepComment"), tr("Name und &Beschreibung vorhandener Adressen behalten"),
                             tr("Gilt auch für die Haupt- und Mittelgruppen, die das Projekt schon hat."))),
      mConnected(addOption(QStringLiteral("mConnected"), tr("&Verbundene Adressen (ESF) in die Beschreibung"),
                           tr("Neue und geänderte Adressen bekommen in ihre Beschreibung eine Zeile \"Verbunden mit: "
                              "1/1/1, 1/1/2\". Nur eine ESF-Datei nennt verbundene Adressen."))),
      mFormat(new QComboBox),
      mGuesses(makeGuesses()) {
  auto* const layout = new QGridLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setHorizontalSpacing(cGroupGap);
  layout->setVerticalSpacing(cGap);
  layout->addWidget(mNewOnly, 0, 0);
  layout->addWidget(mKeepType, 0, 1);
  layout->addWidget(makeFormat(), 0, 2, Qt::AlignLeft);
  layout->addWidget(mConnected, 1, 0);
  layout->addWidget(mKeepComment, 1, 1);
  layout->addWidget(mGuesses, 2, 0, 1, 3);
  layout->setColumnStretch(2, 1);
  setFormat(std::nullopt);
}

QCheckBox* Address_Import_Settings::addOption(const QString& name, const QString& text, const QString& toolTip) {
  auto* const box = new QCheckBox(text);
  box->setObjectName(name);
  box->setToolTip(toolTip);
  connect(box, &QCheckBox::toggled, this, &Address_Import_Settings::optionsChanged);
  return box;
}

QString Address_Import_Settings::formatText(Ets_Groups::Format format) {
  switch (format) {
  case Ets_Groups::Format::Esf:
    return QStringLiteral("ESF");
  case Ets_Groups::Format::Csv:
    return QStringLiteral("CSV");
  case Ets_Groups::Format::Xml:
    break;
  }
  return QStringLiteral("XML");
}

QWidget* Address_Import_Settings::makeFormat() {
  mFormat->setObjectName(QStringLiteral("mFormat"));
  mFormat->setToolTip(tr("Wie die Datei gelesen wird; automatisch heißt: wie ihr Inhalt aussieht."));
  mFormat->addItem(tr("automatisch"));
  for (const auto format : {Ets_Groups::Format::Xml, Ets_Groups::Format::Esf, Ets_Groups::Format::Csv}) {
    mFormat->addItem(formatText(format), static_cast<int>(format));
  }
  connect(mFormat, &QComboBox::currentIndexChanged, this, &Address_Import_Settings::readerOptionsChanged);
  auto* const label = new QLabel(tr("F&ormat:"));
  label->setBuddy(mFormat);
  auto* const row = new QWidget;
  auto* const layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(cGap);
  layout->addWidget(label);
  layout->addWidget(mFormat);
  return row;
}

QComboBox* Address_Import_Settings::makeGuess(const QString& name,
                                              const QList<std::pair<Datapoint_Id, QString>>& types) {
  auto* const guess = new QComboBox;
  guess->setObjectName(name);
  guess->setToolTip(tr("Die ESF-Datei nennt von manchen Adressen nur die Größe. Sie bekommen diesen Typ, als vermutet "
                       "gekennzeichnet."));
  for (const auto& [type, meaning] : types) {
    guess->addItem(type.toString() + QStringLiteral("  ") + meaning, type.toString());
  }
  guess->addItem(tr("ohne Typ"), QString());
  connect(guess, &QComboBox::currentIndexChanged, this, &Address_Import_Settings::readerOptionsChanged);
  return guess;
}

QWidget* Address_Import_Settings::makeGuesses() {
  mGuess1 = makeGuess(QStringLiteral("mGuess1"), {{{5, 1}, tr("Prozent")},
                                                  {{5, 10}, tr("Zähler")},
                                                  {{6, 1}, tr("Prozent mit Vorzeichen")},
                                                  {{17, 1}, tr("Szene")},
                                                  {{18, 1}, tr("Szenensteuerung")},
                                                  {{20, 102}, tr("Betriebsart Heizung")}});
  mGuess2 = makeGuess(QStringLiteral("mGuess2"),
                      {{{9, 1}, tr("Temperatur")}, {{7, 1}, tr("Impulse")}, {{8, 1}, tr("Impulse mit Vorzeichen")}});
  mGuess4 = makeGuess(QStringLiteral("mGuess4"), {{{14, Datapoint_Id::cAnySub}, tr("Gleitkommazahl")},
                                                  {{12, 1}, tr("Zähler")},
                                                  {{13, 1}, tr("Zähler mit Vorzeichen")}});
  auto* const row = new QWidget;
  auto* const layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(cGap);
  for (const auto& [text, guess] : {std::pair(tr("Unbestimmt (&1 Byte):"), mGuess1),
                                    std::pair(tr("(&2 Byte):"), mGuess2), std::pair(tr("(&4 Byte):"), mGuess4)}) {
    auto* const label = new QLabel(text);
    label->setBuddy(guess);
    layout->addWidget(label);
    layout->addWidget(guess);
    layout->addSpacing(cGroupGap - cGap);
  }
  layout->addStretch(1);
  return row;
}

Datapoint_Id Address_Import_Settings::typeOf(const QComboBox& guess) {
  return Datapoint_Id::parse(guess.currentData().toString()).value_or(Datapoint_Id());
}

Address_Import::Options Address_Import_Settings::options() const {
  using Address_Import::Connected;
  return {mKeepType->isChecked(), mKeepComment->isChecked(), mNewOnly->isChecked(),
          mConnected->isChecked() ? Connected::Describe : Connected::Ignore};
}

Ets_Reader::Options Address_Import_Settings::readerOptions() const {
  Ets_Reader::Options options;
  if (const QVariant format = mFormat->currentData(); format.isValid()) {
    options.mFormat = static_cast<Ets_Groups::Format>(format.toInt());
  }
  options.mUncertain1Byte = typeOf(*mGuess1);
  options.mUncertain2Byte = typeOf(*mGuess2);
  options.mUncertain4Byte = typeOf(*mGuess4);
  return options;
}

void Address_Import_Settings::setFormat(std::optional<Ets_Groups::Format> format) {
  mGuesses->setVisible(format == Ets_Groups::Format::Esf);
  mConnected->setEnabled(!format || format == Ets_Groups::Format::Esf);
}
