#include "fb/FB_Page_Commands.h"

#include "db/Project_Session.h"
#include "fb/FB_Base.h"
#include "fb/FB_Page.h"
#include "fb/FB_Page_Picture.h"
#include "fb/model/FB_Clipboard.h"
#include "fb/model/FB_Geometry.h"
#include "fb/model/FB_Snap.h"
#include "ui/Theme.h"

#include <QClipboard>
#include <QCursor>
#include <QGuiApplication>
#include <QMimeData>

#include <memory>

FB_Page_Commands::FB_Page_Commands(FB_Page& page)
    : QObject(&page),
      mPage(page),
      mCut(add(tr("Auss&chneiden"), QStringLiteral("cut_white"), QKeySequence::Cut, &FB_Page_Commands::onCut)),
      mCopy(add(tr("&Kopieren"), QStringLiteral("copy-white"), QKeySequence::Copy, &FB_Page_Commands::onCopy)),
      mPaste(add(tr("&Einfügen"), QStringLiteral("paste_white"), QKeySequence::Paste, &FB_Page_Commands::onPaste)),
      mDuplicate(add(tr("&Duplizieren"), QStringLiteral("duplicate_white"), QKeySequence(Qt::CTRL | Qt::Key_D),
                     &FB_Page_Commands::onDuplicate)),
      mRemove(add(tr("&Löschen"), QStringLiteral("trash-white"), QKeySequence::Delete, &FB_Page_Commands::onRemove)),
      mSelectAll(add(tr("&Alles auswählen"), QStringLiteral("select_all_white"), QKeySequence::SelectAll,
                     &FB_Page_Commands::onSelectAll)) {
  connect(&page, &FB_Page::selectionChanged, this, &FB_Page_Commands::update);
  connect(&page, &FB_Page::pageChanged, this, &FB_Page_Commands::update);
  connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, &FB_Page_Commands::update);
  connect(&page.session().state(), &Session_State::operatingModeChanged, this, &FB_Page_Commands::update);
  update();
}

QAction* FB_Page_Commands::add(const QString& text, const QString& icon, const QKeySequence& keys,
                               void (FB_Page_Commands::*run)()) {
  auto* const action = new QAction(text, &mPage);
  action->setShortcut(keys);
  action->setShortcutContext(Qt::WidgetShortcut);
  if (!icon.isEmpty()) {
    action->setIcon(Theme::icon(icon));
  }
  connect(action, &QAction::triggered, this, run);
  mPage.addAction(action);
  return action;
}

void FB_Page_Commands::update() {
  const bool mayEdit = mPage.mayEdit();
  const bool isSelected = !mPage.selectedBlocks().isEmpty();
  const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
  mCut->setEnabled(isSelected && mayEdit);
  mCopy->setEnabled(isSelected);
  mPaste->setEnabled(mayEdit && data && data->hasFormat(FB_Clipboard::mimeType()));
  mDuplicate->setEnabled(isSelected && mayEdit);
  mRemove->setEnabled(isSelected && mayEdit);
  mSelectAll->setEnabled(mayEdit && mPage.blocks().count() > 0);
}

void FB_Page_Commands::onCut() {
  if (copySelected()) {
    onRemove();
  }
}

void FB_Page_Commands::onCopy() {
  copySelected();
}

bool FB_Page_Commands::copySelected() {
  const QList<QUuid> blocks = mPage.selectedBlocks();
  const QByteArray packed = FB_Clipboard::pack(mPage.session(), blocks);
  if (packed.isEmpty()) {
    mPage.tellLater(FB_Clipboard::limitRefusal());
    return false;
  }
  QStringList titles;
  for (const QUuid& block : blocks) {
    titles.append(FB_Geometry::title(mPage.blocks().find(block)->record()));
  }
  auto data = std::make_unique<QMimeData>();
  data->setData(FB_Clipboard::mimeType(), packed);
  data->setText(titles.join('\n'));
  if (const QImage picture = FB_Page_Picture::of(mPage, blocks); !picture.isNull()) {
    data->setImageData(picture);
  }
  mPastedAgain = 0;
  QGuiApplication::clipboard()->setMimeData(data.release());
  return true;
}

/// At the mouse when it is over the page, else in the middle of what is seen.
void FB_Page_Commands::onPaste() {
  const QPoint mouse = mPage.mapFromGlobal(QCursor::pos());
  const QRect part = mPage.visiblePart();
  pasteAt(mPage.underMouse() && part.contains(mouse) ? mouse : part.center());
}

void FB_Page_Commands::pasteAt(const QPointF& point) {
  const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
  if (!data || !data->hasFormat(FB_Clipboard::mimeType())) {
    return;
  }
  mPastedAgain = point == mPasted ? mPastedAgain + 1 : 0;
  mPasted = point;
  const int grid = mPage.snapGrid();
  const QPointF place = point / mPage.zoom();
  const double shift = FB_Geometry::cGrid * mPastedAgain; // copies at the same place would hide each other
  mPage.paste(data->data(FB_Clipboard::mimeType()),
              QPointF(FB_Snap::toGrid(place.x(), grid) + shift, FB_Snap::toGrid(place.y(), grid) + shift));
}

void FB_Page_Commands::onDuplicate() {
  mPage.duplicate(mPage.selectedBlocks(), QPointF(FB_Geometry::cGrid, FB_Geometry::cGrid));
}

void FB_Page_Commands::onRemove() {
  mPage.removeSelected();
}

void FB_Page_Commands::onSelectAll() {
  mPage.selectAll();
}
