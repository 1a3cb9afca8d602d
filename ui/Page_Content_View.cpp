#include "ui/Page_Content_View.h"

#include "base/Decimal_Text.h"
#include "db/Project_Session.h"
#include "fb/model/FB_Types.h"
#include "ui/Filter_Edit.h"
#include "ui/Result_List.h"
#include "ui/Theme.h"

#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

namespace {
constexpr int cGap = 4;
constexpr int cFilterDelayMs = 0;
constexpr int cKindWidth = 160;
constexpr int cNameWidth = 200;
constexpr int cPositionWidth = 90;
constexpr int cBindingsWidth = 180;
} // namespace

Page_Content_View::Page_Content_View(Project_Session& session, App_Settings& settings, const QUuid& page,
                                     QWidget* parent)
    : QWidget(parent),
      mSession(session),
      mSettings(settings),
      mPage(page),
      mFilter(new Filter_Edit(cFilterDelayMs)),
      mList(new Result_List(mModel, Page_Content_Model::cBindings, session.state())),
      mCount(new QLabel) {
  mFilter->setAccessibleName(tr("Auf dieser Seite suchen"));
  mFilter->setToolTip(tr("Zeigt die Zeilen, in denen jedes Wort vorkommt. Escape leert das Feld."));
  mList->setNames(tr("Inhalt der Seite"), QStringLiteral("ui:mPageContentColumns"));
  mList->header().resizeSection(Page_Content_Model::cKind, cKindWidth);
  mList->header().resizeSection(Page_Content_Model::cName, cNameWidth);
  mList->header().resizeSection(Page_Content_Model::cPosition, cPositionWidth);
  mList->header().resizeSection(Page_Content_Model::cBindings, cBindingsWidth);
  mList->restoreState(mSettings);
  Theme::setTextRole(*mCount, Theme::Role::SecondaryText);
  mCount->setTextFormat(Qt::PlainText);
  mCount->setIndent(cGap);

  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(cGap);
  layout->addWidget(mFilter);
  layout->addWidget(mList, 1);
  layout->addWidget(mCount);

  mTimer.setSingleShot(true);
  mTimer.setInterval(0);
  connect(&mTimer, &QTimer::timeout, this, &Page_Content_View::refresh);
  connect(mFilter, &Filter_Edit::listWanted, mList, &Result_List::enter);
  connect(mFilter, &Filter_Edit::filterChanged, this, [this](const QString& text) {
    mList->setFilter(text);
    updateCount();
  });
  connect(&session.history(), &History::changed, this, &Page_Content_View::refreshSoon);
  refresh();
}

Page_Content_View::~Page_Content_View() {
  mList->saveState(mSettings);
}

void Page_Content_View::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  refresh();
}

void Page_Content_View::refreshSoon() {
  if (isVisible()) {
    mTimer.start();
  }
}

void Page_Content_View::refresh() {
  mTimer.stop();
  mModel.setRows(Page_Content_Model::rowsOf(mSession.database(), mPage, FB_Types::name));
  updateCount();
}

void Page_Content_View::updateCount() {
  const bool isLogic = mSession.database().mFbPages.page(mPage) != nullptr;
  const qsizetype count = mModel.rowCount();
  mList->setHint(count > 0 ? tr("Keine Zeile enthält \"%1\".").arg(mFilter->text().simplified())
                 : isLogic ? tr("Diese Seite hat keine Bausteine.")
                           : tr("Diese Seite hat keine Elemente."));
  const QString all = count == 1 ? (isLogic ? tr("1 Baustein") : tr("1 Element"))
                                 : (isLogic ? tr("%1 Bausteine") : tr("%1 Elemente")).arg(Decimal_Text::count(count));
  mCount->setText(mList->isFiltered() ? tr("%1 von %2").arg(Decimal_Text::count(mList->shownCount()), all) : all);
}

void Page_Content_View::showChild(const QUuid& guid) {
  refresh();
  for (int row = 0; row < mModel.rowCount(); ++row) {
    if (mModel.row(row).mGuid == guid) {
      if (!mList->showRow(row)) {
        mFilter->clear();
        mFilter->apply();
        mList->showRow(row);
      }
      return;
    }
  }
}

void Page_Content_View::enter() {
  if (mModel.rowCount() > 0) {
    mList->enter();
  } else {
    mFilter->setFocus(Qt::ShortcutFocusReason);
  }
}
