#include "ui/Address_Value_Dialog.h"

#include "base/Datapoint_Types.h"
#include "db/Address_Value_Text.h"
#include "db/Project_Session.h"
#include "ui/Checked_Line_Edit.h"
#include "ui/Theme.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr int cFieldWidth = 280;
constexpr int cWidth = 460;
constexpr int cGap = 8;
constexpr int cGroupGap = 12;
constexpr int cResultLines = 2;

using Input = Address_Value_Text::Input;

QLabel* plainLabel(const QString& text = {}) {
  auto* const label = new QLabel(text);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  return label;
}

QString rangeTip(const Datapoint_Type& type) {
  const QLocale locale;
  const QString unit = *type.mUnit ? u' ' + type.unit() : QString();
  return QCoreApplication::translate("Address_Value_Dialog", "Von %1%3 bis %2%3")
      .arg(locale.toString(type.mMin, 'g', 9), locale.toString(type.mMax, 'g', 9), unit);
}

} // namespace

Address_Value_Dialog::Address_Value_Dialog(Project_Session& session, const QUuid& key, QWidget* parent)
    : QDialog(parent),
      mSession(session),
      mKey(key),
      mValue(plainLabel()),
      mResult(plainLabel()) {
  setWindowTitle(tr("Wert senden"));
  const Address_Tree& tree = std::as_const(session).database().mAddresses;
  const DB_Address_Sub_Group* const group = tree.subGroup(key);
  mType = group ? group->mDpt : Datapoint_Id();
  auto* const form = new QFormLayout;
  form->setHorizontalSpacing(cGap);
  form->setVerticalSpacing(cGap);
  form->addRow(tr("Adresse:"), plainLabel(group ? tree.addressOf(*group).toString() : QString()));
  form->addRow(tr("Name:"), plainLabel(group ? group->mName : QString()));
  form->addRow(tr("Datenpunkttyp:"),
               plainLabel(mType.isNone() ? tr("nicht bekannt") : Datapoint_Types::describe(mType)));
  form->addRow(tr("Letzter Wert:"), mValue);
  auto* const row = new QHBoxLayout;
  row->setSpacing(cGap);
  addEditor(*row);
  auto* const caption = new QLabel(tr("&Wert:"));
  caption->setBuddy(mChoice ? static_cast<QWidget*>(mChoice) : mEdit);
  form->addRow(caption, row);

  mResult->setMinimumHeight(cResultLines * fontMetrics().lineSpacing());
  mResult->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  auto* const buttons = new QDialogButtonBox;
  mSend = buttons->addButton(tr("&Senden"), QDialogButtonBox::ActionRole);
  buttons->addButton(tr("S&chließen"), QDialogButtonBox::RejectRole)->setAutoDefault(false);
  mSend->setDefault(true);
  connect(mSend, &QPushButton::clicked, this, &Address_Value_Dialog::onSend);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* const layout = new QVBoxLayout(this);
  layout->setSpacing(cGroupGap);
  layout->addLayout(form);
  layout->addWidget(mResult);
  layout->addStretch();
  layout->addWidget(buttons);
  setMinimumWidth(cWidth);

  connect(&session.values(), &Address_Values::changed, this, [this](const QSet<QUuid>& keys) {
    if (keys.contains(mKey)) {
      updateValue();
    }
  });
  if (const Value_Service* const service = session.valueService()) {
    connect(service, &Value_Service::onlineChanged, this, &Address_Value_Dialog::updateState);
  }
  connect(&session, &Project_Session::aboutToClose, this, &QDialog::reject);
  updateValue();
  updateState();
}

void Address_Value_Dialog::addEditor(QHBoxLayout& row) {
  const Address_Value* const last = mSession.values().find(mKey);
  const Input input = Address_Value_Text::inputOf(mType);
  const std::optional<Datapoint_Type> type = Address_Value_Text::typeOf(mType);
  if (input == Input::Choice) {
    mChoice = new QComboBox;
    mChoice->setMinimumWidth(cFieldWidth);
    for (const Datapoint_Types::Value_Text& value : Datapoint_Types::valueTexts(*type)) {
      mChoice->addItem(tr("%1 (%2)").arg(value.mText).arg(value.mValue), QString::number(value.mValue));
    }
    mChoice->setCurrentIndex(qMax(0, last ? mChoice->findData(Address_Value_Text::typed(mType, *last)) : 0));
    row.addWidget(mChoice, 1);
    return;
  }
  mEdit = new Checked_Line_Edit([this](const QString& text) {
    QString error;
    const bool isValue = Address_Value_Text::parse(mType, text, &error).has_value();
    return isValue ? QString() : error.isEmpty() ? tr("\"%1\" ist kein Wert dieses Typs.").arg(text) : error;
  });
  mEdit->setMinimumWidth(cFieldWidth);
  row.addWidget(mEdit, 1);
  if (input == Input::Number) {
    mEdit->setToolTip(rangeTip(*type));
    row.addWidget(new QLabel(type->unit()));
  } else if (input == Input::Bytes) {
    mEdit->setToolTip(tr("Nutzlast, 1 bis 14 Bytes zu je zwei hexadezimalen Ziffern: 0C 1A"));
  } else {
    mEdit->setToolTip(tr("Teile als NAME=WERT mit Leerzeichen dazwischen"));
  }
  mEdit->setText(last                     ? Address_Value_Text::typed(mType, *last)
                 : input == Input::Number ? QStringLiteral("0")
                                          : QString());
  mEdit->recheck();
  mEdit->selectAll();
  connect(mEdit, &QLineEdit::textChanged, this, &Address_Value_Dialog::updateState);
}

std::optional<QByteArray> Address_Value_Dialog::payload(QString* error) const {
  return Address_Value_Text::parse(mType, mChoice ? mChoice->currentData().toString() : mEdit->text(), error);
}

void Address_Value_Dialog::updateValue() {
  const Address_Value* const value = mSession.values().find(mKey);
  mValue->setText(
      value ? tr("%1 (%2, %3)")
                  .arg(Address_Value_Text::text(mType, *value), Address_Value_Text::time(*value), value->mSource)
            : tr("noch keiner bekannt"));
}

void Address_Value_Dialog::updateState() {
  const Value_Service* const service = mSession.valueService();
  const bool isOnline = service && service->isOnline();
  mSend->setEnabled(isOnline && payload().has_value());
  mSend->setToolTip(isOnline ? QString() : tr("Keine Verbindung zur Steuerung"));
}

void Address_Value_Dialog::onSend() {
  Value_Service* const service = mSession.valueService();
  QString error;
  const std::optional<QByteArray> bytes = payload(&error);
  const Edit_Result result = !bytes     ? Edit_Result::refused(error)
                             : !service ? Edit_Result::refused(tr("Keine Verbindung zur Steuerung"))
                                        : service->send(mKey, *bytes);
  Theme::setTextRole(*mResult, result ? Theme::Role::SecondaryText : Theme::Role::ErrorText);
  const Address_Value* const sent = mSession.values().find(mKey);
  mResult->setText(
      !result ? result.mError
      : sent  ? tr("Gesendet um %1: %2").arg(Address_Value_Text::time(*sent), Address_Value_Text::text(mType, *sent))
              : tr("Gesendet."));
  if (mEdit) {
    mEdit->setFocus();
    mEdit->selectAll();
  }
}
