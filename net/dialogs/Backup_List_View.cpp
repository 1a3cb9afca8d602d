#include "net/dialogs/Backup_List_View.h"

#include "base/Decimal_Text.h"
#include "db/Project_Session.h"
#include "net/Controller_Command.h"
#include "ui/Filter_Edit.h"
#include "ui/Result_List.h"
#include "ui/Theme.h"

#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int cGap = 8;
constexpr int cTimeWidth = 150;
constexpr int cDescriptionWidth = 230;
constexpr int cProjectWidth = 140;
constexpr int cSizeWidth = 90;

} // namespace

Backup_List_View::Backup_List_View(const Controller_Access& access, Request_Queue& queue, QWidget* parent)
    : QWidget(parent),
      mAccess(access),
      mQueue(queue),
      mFilter(new Filter_Edit(0)),
      mList(new Result_List(mModel, -1, access.mSession.state())),
      mCount(new QLabel) {
  mFilter->setPlaceholderText(tr("Filtern"));
  mFilter->setAccessibleName(tr("Filtern"));
  mFilter->setClearButtonEnabled(true);
  mList->setNames(tr("Sicherungen"), QStringLiteral("net:mBackupHeader"));
  mList->header().resizeSection(Backup_List_Model::cTime, cTimeWidth);
  mList->header().resizeSection(Backup_List_Model::cDescription, cDescriptionWidth);
  mList->header().resizeSection(Backup_List_Model::cProject, cProjectWidth);
  mList->header().resizeSection(Backup_List_Model::cSize, cSizeWidth);
  mList->restoreState(access.mSettings);
  Theme::setTextRole(*mCount, Theme::Role::SecondaryText);

  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(cGap);
  layout->addWidget(mFilter);
  layout->addWidget(mList, 1);
  layout->addWidget(mCount);

  connect(mFilter, &Filter_Edit::filterChanged, this, [this](const QString& text) {
    mList->setFilter(text);
    updateCount();
    emit selectionChanged();
  });
  connect(mFilter, &Filter_Edit::listWanted, this, [this] { mList->enter(); });
  connect(mList, &Result_List::selectionChanged, this, &Backup_List_View::selectionChanged);
  connect(&mQueue, &Request_Queue::failed, this, &Backup_List_View::onFailed);
  updateCount();
}

Backup_List_View::~Backup_List_View() {
  mList->saveState(mAccess.mSettings);
}

void Backup_List_View::read() {
  mList->setHint(tr("Die Sicherungen werden gelesen…"));
  mQueue.add({{}, Controller_Command::Backup_List, {}, Controller_Command::Backup_List_Reply},
             [this](Controller_Request& request) { onRead(request.replyRecord<DB_Backup_List>()); });
}

/// What stood there is no longer known to be true; the dialog says why.
void Backup_List_View::onFailed() {
  mModel.setRows({});
  mList->setHint(tr("Die Sicherungen sind nicht bekannt. \"Aktualisieren\" liest sie."));
  updateCount();
  emit selectionChanged();
}

void Backup_List_View::onRead(DB_Backup_List list) {
  mList->setHint(tr("Auf der Steuerung liegt keine Sicherung."));
  // The newest first, until a header says otherwise.
  std::stable_sort(list.mBackups.begin(), list.mBackups.end(),
                   [](const auto& a, const auto& b) { return a.mTime > b.mTime; });
  mModel.setRows(std::move(list.mBackups));
  for (int row = 0; !mWanted.isEmpty() && row < mModel.rowCount(); ++row) {
    if (mModel.row(row).mId == mWanted) {
      mList->showRow(row);
    }
  }
  mWanted.clear();
  updateCount();
}

std::optional<DB_Backup_List::Backup> Backup_List_View::selected() const {
  const std::vector<int> rows = mList->selectedRows();
  if (rows.size() != 1) {
    return {};
  }
  return mModel.row(rows.front());
}

void Backup_List_View::updateCount() {
  const QString all = Decimal_Text::count(mModel.rowCount());
  if (mList->isFiltered()) {
    mCount->setText(tr("%1 von %2 Sicherungen").arg(Decimal_Text::count(mList->shownCount()), all));
  } else {
    mCount->setText(mModel.rowCount() == 1 ? tr("1 Sicherung") : tr("%1 Sicherungen").arg(all));
  }
}
