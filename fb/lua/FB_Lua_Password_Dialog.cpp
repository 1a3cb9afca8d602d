#include "fb/lua/FB_Lua_Password_Dialog.h"

#include "ui/Theme.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

constexpr int cFieldWidth = 260;

QLineEdit* makeField(const QString& name) {
  auto* const field = new QLineEdit;
  field->setObjectName(name);
  field->setEchoMode(QLineEdit::Password);
  field->setMinimumWidth(cFieldWidth);
  return field;
}

} // namespace

FB_Lua_Password_Dialog::FB_Lua_Password_Dialog(Purpose purpose, QWidget* parent)
    : QDialog(parent),
      mPurpose(purpose),
      mPassword(makeField(QStringLiteral("mPassword"))),
      mRepeated(makeField(QStringLiteral("mRepeated"))),
      mNote(new QLabel) {
  const bool isWriting = purpose == Purpose::Write;
  setWindowTitle(isWriting ? tr("Script exportieren") : tr("Script importieren"));
  auto* const buttons = new QDialogButtonBox;
  mAccept = buttons->addButton(isWriting ? tr("&Exportieren") : tr("&Importieren"), QDialogButtonBox::AcceptRole);
  buttons->addButton(tr("&Abbrechen"), QDialogButtonBox::RejectRole);
  mAccept->setDefault(true);

  auto* const explanation = new QLabel(
      isWriting ? tr("Mit einem Passwort ist das Script in der Datei verschlüsselt. Ohne kann es jeder lesen.")
                : tr("Die Datei ist durch ein Passwort geschützt."));
  explanation->setWordWrap(true);
  auto* const form = new QFormLayout(this);
  form->addRow(explanation);
  form->addRow(tr("&Passwort"), mPassword);
  if (isWriting) {
    form->addRow(tr("&Wiederholen"), mRepeated);
  } else {
    mRepeated->setParent(this);
    mRepeated->hide();
  }
  form->addRow(QString(), mNote);
  form->addRow(buttons);
  Theme::setTextRole(*mNote, Theme::Role::ErrorText);

  connect(mPassword, &QLineEdit::textChanged, this, &FB_Lua_Password_Dialog::check);
  connect(mRepeated, &QLineEdit::textChanged, this, &FB_Lua_Password_Dialog::check);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  check();
}

QString FB_Lua_Password_Dialog::password() const {
  return mPassword->text();
}

void FB_Lua_Password_Dialog::check() {
  const bool isWriting = mPurpose == Purpose::Write;
  const bool isDifferent = isWriting && mPassword->text() != mRepeated->text();
  mNote->setText(isDifferent ? tr("Die Passwörter sind verschieden.") : QString());
  mAccept->setEnabled(isWriting ? !isDifferent : !mPassword->text().isEmpty());
}
