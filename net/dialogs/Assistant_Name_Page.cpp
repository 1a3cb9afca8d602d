#include "net/dialogs/Assistant_Name_Page.h"

#include "db/Connection_Edits.h"
#include "ui/Checked_Line_Edit.h"

#include <QFormLayout>
#include <QLabel>

namespace {

constexpr int cGap = 8;

QString nameFault(const QString& text) {
  DB_Connections::ITEM item;
  item.mName = text;
  return Connection_Edits::faultOf(item, Connection_Edits::Field::Name);
}

} // namespace

Assistant_Name_Page::Assistant_Name_Page(QWidget* parent)
    : QWizardPage(parent),
      mAddress(new QLabel),
      mSerialNumber(new QLabel),
      mName(new Checked_Line_Edit(nameFault)),
      mUser(new QLineEdit),
      mPassword(new QLineEdit) {
  setTitle(tr("Verbindung übernehmen"));
  setSubTitle(tr("Die Verbindung kommt in das Projekt und ist dort ausgewählt."));
  mAddress->setTextFormat(Qt::PlainText);
  mSerialNumber->setTextFormat(Qt::PlainText);
  mName->setToolTip(tr("Wie die Verbindung heißt, 1 bis %1 Zeichen").arg(Connection_Edits::cTextLimit));
  mUser->setToolTip(tr("Mit diesem Namen meldet sich das Studio an"));
  mPassword->setToolTip(tr("Mit diesem Passwort meldet sich das Studio an"));
  mPassword->setEchoMode(QLineEdit::Password);
  for (QLineEdit* const line : {mUser, mPassword}) {
    line->setMaxLength(static_cast<int>(Connection_Edits::cTextLimit));
  }
  auto* const form = new QFormLayout(this);
  form->setSpacing(cGap);
  form->setLabelAlignment(Qt::AlignLeft);
  form->addRow(tr("Adresse:"), mAddress);
  form->addRow(tr("Seriennummer:"), mSerialNumber);
  form->addRow(tr("&Name:"), mName);
  form->addRow(tr("&Benutzer:"), mUser);
  form->addRow(tr("&Passwort:"), mPassword);
  connect(mName, &QLineEdit::textChanged, this, &QWizardPage::completeChanged);
}

void Assistant_Name_Page::setConnection(const DB_Connections::ITEM& connection) {
  if (connection.mAddress == mConnection.mAddress && connection.mSerialNumber == mConnection.mSerialNumber) {
    return; // who went back for a test finds here what was typed
  }
  mConnection = connection;
  mAddress->setText(connection.mAddress);
  mSerialNumber->setText(connection.mSerialNumber.isEmpty() ? tr("nicht bekannt") : connection.mSerialNumber);
  mName->setText(connection.mName);
  mUser->setText(connection.mUser);
  mPassword->setText(connection.mPassword);
}

DB_Connections::ITEM Assistant_Name_Page::connection() const {
  DB_Connections::ITEM connection = mConnection;
  connection.mName = mName->text();
  connection.mUser = mUser->text();
  connection.mPassword = mPassword->text();
  return connection;
}

bool Assistant_Name_Page::isComplete() const {
  return mName->isValid() && !mName->text().trimmed().isEmpty();
}
