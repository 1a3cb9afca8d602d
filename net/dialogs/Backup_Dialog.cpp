#include "net/dialogs/Backup_Dialog.h"

#include "net/dialogs/Backup_List_View.h"
#include "net/dialogs/Controller_Questions.h"
#include "ui/Theme.h"

#include <QDir>
#include <QHBoxLayout>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int cGap = 8;
constexpr QSize cSize(900, 460);

/// "Haus 2026-11-22 14.03"
QString fileName(const DB_Backup_List::Backup& backup) {
  return backup.mProjectName + u' ' +
         QDateTime::fromSecsSinceEpoch(backup.mTime).toString(QStringLiteral("yyyy-MM-dd HH.mm"));
}

} // namespace

Backup_Dialog::Backup_Dialog(const Controller_Access& access, const QString& title, const QString& name,
                             QWidget* parent)
    : Controller_Dialog(access, title, name, cSize, parent),
      mList(new Backup_List_View(access, queue())),
      mCommands(new QVBoxLayout) {
  auto* const row = new QHBoxLayout;
  row->setSpacing(cGap);
  row->addWidget(mList, 1);
  mCommands->setSpacing(cGap);
  mCommands->addStretch();
  row->addLayout(mCommands);
  rows().addLayout(row, 1);
  connect(mList, &Backup_List_View::selectionChanged, this, [this] { updateState(); });
}

void Backup_Dialog::addCommand(const QString& text, const QString& icon,
                               const std::function<void(const Backup&)>& run) {
  auto* const button = new QPushButton(Theme::icon(icon), text);
  button->setAutoDefault(false);
  mCommands->insertWidget(mCommands->count() - 1, button);
  mButtons.push_back(button);
  connect(button, &QPushButton::clicked, this, [this, run] {
    const std::optional<Backup> backup = mList->selected();
    if (backup && runner().isReady()) {
      run(*backup);
    }
  });
}

void Backup_Dialog::loadToFile(const Backup& backup, const Stream_Load::What& what, const Controller_File::Kind& kind,
                               const std::function<void(const QString&, const QByteArray&)>& store) {
  const QPointer<Backup_Dialog> self(this);
  const QString path = Controller_File::chooseToSave(access(), this, kind, fileName(backup));
  if (self && !path.isEmpty()) {
    setNote({});
    runner().load(kind.mTitle, what, [path, store](const QByteArray& bytes) { store(path, bytes); });
  }
}

void Backup_Dialog::storeBytes(const QString& path, const QByteArray& bytes) {
  QString error;
  if (Controller_File::write(path, bytes, &error)) {
    setNote(tr("Gespeichert: %1").arg(QDir::toNativeSeparators(path)));
  } else {
    setFailure(error);
  }
}

bool Backup_Dialog::ask(const QString& text) {
  const QPointer<Backup_Dialog> self(this);
  return access().mQuestions.askYesNo(this, text) && self;
}

void Backup_Dialog::read() {
  mList->read();
}

void Backup_Dialog::updateState() {
  const bool isUsed = isUsable() && mList->selected();
  for (QPushButton* const button : mButtons) {
    button->setEnabled(isUsed);
  }
}
