#include "net/dialogs/Main_Connection_Edit.h"

#include "db/Connection_Defaults.h"
#include "db/Project_Session.h"
#include "net/dialogs/Dev_Connection_Test_Dlg.h"
#include "ui/Checked_Line_Edit.h"
#include "ui/Message_Box.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

using Item = DB_Connections::ITEM;
using Field = Connection_Edits::Field;

constexpr int cGap = 8;
constexpr int cGroupGap = 12;
constexpr int cFieldWidth = 320;
constexpr int cDescriptionLines = 3;
constexpr int cDirectIndex = 0;
constexpr int cRelayIndex = 1;

QFormLayout* makeForm(QGroupBox* box) {
  auto* const form = new QFormLayout(box);
  form->setSpacing(cGap);
  form->setLabelAlignment(Qt::AlignLeft);
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  return form;
}

} // namespace

Main_Connection_Edit::Main_Connection_Edit(Project_Session& session, Controller_Link& link, int index, QWidget* parent)
    : QDialog(parent),
      mSession(session),
      mLink(link),
      mIndex(index) {
  const DB_Connections& connections = session.database().mConnections;
  mItem = index == cNew ? Connection_Edits::proposal(connections) : connections.mItems.at(static_cast<size_t>(index));
  setWindowTitle(index == cNew ? tr("Neue Verbindung") : tr("Verbindung #%1").arg(index + 1));
  auto* const layout = new QVBoxLayout(this);
  layout->setSpacing(cGroupGap);
  layout->addWidget(makeController(mItem));
  layout->addWidget(makeRelay(mItem));
  layout->addStretch();
  layout->addWidget(makeButtons());
  for (Checked_Line_Edit* const field : mChecked) {
    connect(field, &Checked_Line_Edit::validityChanged, this, &Main_Connection_Edit::updateState);
  }
  // Both groups have their fields below each other.
  int labelWidth = 0;
  const QList<QLabel*> labels = findChildren<QLabel*>();
  for (const QLabel* const label : labels) {
    labelWidth = std::max(labelWidth, label->sizeHint().width());
  }
  for (QLabel* const label : labels) {
    label->setMinimumWidth(labelWidth);
  }
  connect(&session, &Project_Session::aboutToClose, this, &QDialog::reject);
  // The index may be that of another connection by then.
  connect(&session.database(), &ProjectDatabase::recordChanged, this,
          [this](DB_Table table) { mIsOutdated |= mIndex != cNew && table == DB_Table::Connections; });
  onKindChanged();
  mName->selectAll();
  mName->setFocus();
}

Checked_Line_Edit* Main_Connection_Edit::addChecked(QFormLayout& form, const QString& label, const QString& toolTip,
                                                    const QString& text, Field field) {
  auto* const line = new Checked_Line_Edit([this, field](const QString& typed) {
    Item item;
    item.mKind = mKind->currentIndex() == cRelayIndex ? Item::cRelay : 0;
    item.mName = item.mAddress = item.mRelayMail = item.mRelayDns = item.mRelayHost = typed;
    return Connection_Edits::faultOf(item, field);
  });
  line->setText(text);
  line->setToolTip(toolTip);
  line->setMinimumWidth(cFieldWidth);
  form.addRow(label, line);
  mChecked.push_back(line);
  return line;
}

QLineEdit* Main_Connection_Edit::addLine(QFormLayout& form, const QString& label, const QString& toolTip,
                                         const QString& text) {
  auto* const line = new QLineEdit(text);
  line->setMaxLength(static_cast<int>(Connection_Edits::cTextLimit));
  line->setToolTip(toolTip);
  form.addRow(label, line);
  return line;
}

/// The toolkit copies nothing out of a field with this echo mode.
QLineEdit* Main_Connection_Edit::addPassword(QFormLayout& form, const QString& label, const QString& toolTip,
                                             const QString& text) {
  QLineEdit* const line = addLine(form, label, toolTip, text);
  line->setEchoMode(QLineEdit::Password);
  return line;
}

QWidget* Main_Connection_Edit::makeController(const Item& item) {
  auto* const box = new QGroupBox(tr("Steuerung"));
  QFormLayout& form = *makeForm(box);
  mKind = new QComboBox;
  mKind->addItem(tr("Direkt"));
  mKind->addItem(tr("Über Vermittlungsdienst"));
  mKind->setCurrentIndex(item.isRelay() ? cRelayIndex : cDirectIndex);
  mKind->setToolTip(tr("Direkt: das Studio wählt die Steuerung an.\n"
                       "Über Vermittlungsdienst: beide treffen sich bei einem Rechner im Internet."));
  mName =
      addChecked(form, tr("&Name:"), tr("Wie die Verbindung heißt, 1 bis %1 Zeichen").arg(Connection_Edits::cTextLimit),
                 item.mName, Field::Name);
  form.addRow(tr("Ar&t:"), mKind);
  connect(mKind, &QComboBox::currentIndexChanged, this, &Main_Connection_Edit::onKindChanged);
  mAddress = addChecked(form, tr("A&dresse:"),
                        tr("IP-Adresse oder Rechnername, bei Bedarf mit \":\" und Port 1 bis 65535; ohne Port 10001"),
                        item.mAddress, Field::Address);
  mUser = addLine(form, tr("&Benutzer:"), tr("Mit diesem Namen meldet sich das Studio an"), item.mUser);
  mPassword = addPassword(form, tr("&Passwort:"), tr("Mit diesem Passwort meldet sich das Studio an"), item.mPassword);
  mSerialNumber =
      addLine(form, tr("&Seriennummer:"), tr("Steht auf der Steuerung; leer, wenn nicht bekannt"), item.mSerialNumber);
  mDescription = new QPlainTextEdit(item.mDescription);
  mDescription->setTabChangesFocus(true);
  mDescription->setToolTip(tr("Wo die Steuerung steht, wer sie betreut"));
  mDescription->setFixedHeight(mDescription->fontMetrics().lineSpacing() * (cDescriptionLines + 1));
  form.addRow(tr("B&eschreibung:"), mDescription);
  return box;
}

QWidget* Main_Connection_Edit::makeRelay(const Item& item) {
  mRelay = new QGroupBox(tr("Vermittlungsdienst"));
  QFormLayout& form = *makeForm(mRelay);
  mRelayDns = addChecked(form, tr("DNS-Na&me:"), tr("Unter diesem Namen ist die Steuerung beim Dienst bekannt"),
                         item.mRelayDns, Field::RelayDns);
  mRelayMail =
      addChecked(form, tr("E-Mai&l:"), tr("Konto beim Dienst, NAME@ANBIETER"), item.mRelayMail, Field::RelayMail);
  mRelayPassword = addPassword(form, tr("Pass&wort:"), tr("Passwort des Kontos"), item.mRelayPassword);
  mRelayHost = addChecked(form, tr("Re&chner:"), tr("Rechner des Dienstes, ohne Port; leer für den üblichen"),
                          item.mRelayHost, Field::RelayHost);
  mRelayHost->setPlaceholderText(Connection_Defaults::relayHost());
  return mRelay;
}

QWidget* Main_Connection_Edit::makeButtons() {
  auto* const buttons = new QDialogButtonBox;
  mTest = buttons->addButton(tr("&Verbindung testen"), QDialogButtonBox::ActionRole);
  mAccept = buttons->addButton(tr("&Übernehmen"), QDialogButtonBox::AcceptRole);
  buttons->addButton(tr("&Abbrechen"), QDialogButtonBox::RejectRole);
  mTest->setAutoDefault(false);
  mAccept->setDefault(true);
  connect(mTest, &QPushButton::clicked, this, &Main_Connection_Edit::onTest);
  connect(buttons, &QDialogButtonBox::accepted, this, &Main_Connection_Edit::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &Main_Connection_Edit::reject);
  return buttons;
}

Item Main_Connection_Edit::connection() const {
  Item item = mItem;
  const bool isRelay = mKind->currentIndex() == cRelayIndex;
  if (isRelay != item.isRelay()) {
    item.mKind = isRelay ? Item::cRelay : 0;
  }
  item.mName = mName->text();
  item.mAddress = mAddress->text().trimmed();
  item.mUser = mUser->text();
  item.mPassword = mPassword->text();
  item.mSerialNumber = mSerialNumber->text();
  item.mDescription = mDescription->toPlainText();
  item.mRelayDns = mRelayDns->text().trimmed();
  item.mRelayMail = mRelayMail->text().trimmed();
  item.mRelayPassword = mRelayPassword->text();
  item.mRelayHost = mRelayHost->text().trimmed();
  return item;
}

/// What a kind does not use keeps its text, so that trying the other one loses nothing.
void Main_Connection_Edit::onKindChanged() {
  const bool isRelay = mKind->currentIndex() == cRelayIndex;
  mAddress->setEnabled(!isRelay);
  mRelay->setEnabled(isRelay);
  for (Checked_Line_Edit* const field : mChecked) {
    field->recheck();
  }
  updateState();
}

void Main_Connection_Edit::updateState() {
  const bool isRight =
      std::all_of(mChecked.begin(), mChecked.end(), [](const Checked_Line_Edit* field) { return field->isValid(); });
  mAccept->setEnabled(isRight);
  mTest->setEnabled(isRight);
}

void Main_Connection_Edit::onTest() {
  Dev_Connection_Test_Dlg dialog(mLink, connection(), this);
  dialog.exec();
}

void Main_Connection_Edit::accept() {
  if (mIsOutdated) {
    Message_Box::showMessage(this, tr("Die Verbindungen des Projekts wurden inzwischen an anderer Stelle geändert. Was "
                                      "hier steht, lässt sich nicht mehr übernehmen."));
    return;
  }
  const Edit_Result edit = mIndex == cNew ? Connection_Edits::add(mSession, connection())
                                          : Connection_Edits::change(mSession, mIndex, connection());
  if (!edit) {
    Message_Box::showMessage(this, edit.mError);
    return;
  }
  QDialog::accept();
}
