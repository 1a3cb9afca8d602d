#include "ui/Result_Dialog.h"

#include "base/App_Settings.h"
#include "db/Project_Session.h"
#include "ui/Filter_Edit.h"
#include "ui/Result_List.h"
#include "ui/Theme.h"

#include <QHBoxLayout>
#include <QHideEvent>
#include <QLabel>
#include <QPushButton>
#include <QShowEvent>
#include <QSplitter>

#include <algorithm>

namespace {
constexpr int cGap = 8;
constexpr int cFilterDelayMs = 120;
constexpr int cAnyHeight = 1000; // the splitter keeps the ratio only
constexpr int cFrameHeight = 40;
} // namespace

Result_Dialog::Result_Dialog(Project_Session& session, App_Settings& settings, const QString& name, const QSize& size,
                             QWidget* parent)
    : QDialog(parent),
      mSession(session),
      mSettings(settings),
      mWatch(session),
      mRows(new QVBoxLayout(this)),
      mTop(new QHBoxLayout),
      mFilterLabel(new QLabel),
      mFilter(new Filter_Edit(cFilterDelayMs)),
      mBody(new QSplitter(Qt::Vertical)),
      mCount(new QLabel),
      mClose(new QPushButton(tr("S&chließen"))) {
  setObjectName(name);
  makeFilter();
  mBody->setChildrenCollapsible(false);
  mCount->setObjectName(QStringLiteral("ui:mCount"));
  Theme::setTextRole(*mCount, Theme::Role::SecondaryText);
  mCount->setTextFormat(Qt::PlainText);
  mClose->setAutoDefault(false); // Enter belongs to the lists
  connect(mClose, &QPushButton::clicked, this, &QDialog::close);

  auto* const bottom = new QHBoxLayout;
  bottom->addWidget(mCount, 1);
  bottom->addWidget(mClose);
  mRows->setSpacing(cGap);
  mRows->addLayout(mTop);
  mRows->addWidget(mBody, 1);
  mRows->addLayout(bottom);

  connect(&session, &Project_Session::closed, this, &QDialog::close);
  connect(&mWatch, &Address_Usage_Watch::changed, this, [this] {
    if (isVisible()) {
      refresh();
    }
  });
  connect(mBody, &QSplitter::splitterMoved, this, [this] { mShares = mBody->sizes(); });
  resize(size);
  if (!restoreGeometry(mSettings.viewState(name))) {
    placeBesideTabs();
  }
}

Result_Dialog::~Result_Dialog() {
  if (isVisible()) {
    remember();
  }
}

/// Over the left lower part of the window: what the results lead to is shown at the right.
void Result_Dialog::placeBesideTabs() {
  if (const QWidget* const window = parentWidget()) {
    const QRect around = window->geometry();
    move(around.left() + cGap, std::max(around.top(), around.bottom() - height() - cFrameHeight));
  }
}

void Result_Dialog::makeFilter() {
  setFilterTexts(tr("&Suchen:"), tr("1/2/3, 1/2/*, 1/* oder Wörter"),
                 tr("Zeigt die Zeilen, in denen jedes Wort vorkommt. 1/2/3 ist genau diese Adresse, 1/2/* und 1/* "
                    "sind alle der Gruppe. Escape leert das Feld."));
  connect(mFilter, &Filter_Edit::filterChanged, this, &Result_Dialog::applyFilter);
  connect(mFilter, &Filter_Edit::listWanted, this, [this] { mainList().enter(); });
  mFilterLabel->setBuddy(mFilter);
  mTop->setSpacing(cGap);
  mTop->addWidget(mFilterLabel);
  mTop->addWidget(mFilter, 1);
}

void Result_Dialog::setFilterTexts(const QString& label, const QString& placeholder, const QString& toolTip) {
  mFilterLabel->setText(label);
  mFilter->setPlaceholderText(placeholder);
  mFilter->setToolTip(toolTip);
}

const ProjectDatabase& Result_Dialog::database() const {
  return mSession.database();
}

void Result_Dialog::addList(Result_List& list, int share) {
  mBody->addWidget(&list);
  setTabOrder(&list.view(), mClose);
  mLists.push_back(&list);
  mShares.push_back(share * cAnyHeight);
  list.restoreState(mSettings);
}

void Result_Dialog::showLists(const QList<bool>& seen) {
  for (int i = 0; i < mLists.size(); ++i) {
    mLists[i]->setVisible(seen[i]);
  }
  mBody->setSizes(mShares);
}

void Result_Dialog::setCountText(const QString& text) {
  mCount->setText(text);
}

void Result_Dialog::bringUp() {
  show();
  raise();
  activateWindow();
}

void Result_Dialog::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (!event->spontaneous()) {
    refresh();
    mFilter->setFocus(Qt::OtherFocusReason);
    mFilter->selectAll();
  }
}

void Result_Dialog::hideEvent(QHideEvent* event) {
  QDialog::hideEvent(event);
  if (!event->spontaneous()) {
    remember();
  }
}

void Result_Dialog::remember() {
  mSettings.setViewState(objectName(), saveGeometry());
  for (const Result_List* const list : mLists) {
    list->saveState(mSettings);
  }
}
