#include "fb/FB_Block_Editor.h"

#include "db/Project_Session.h"
#include "fb/model/FB_Geometry.h"
#include "ui/Message_Box.h"

#include <QCloseEvent>

FB_Block_Editor::FB_Block_Editor(Project_Session& session, App_Settings& settings, const QUuid& block, QWidget* parent)
    : QMainWindow(parent),
      mSession(session),
      mSettings(settings),
      mBlock(block) {
  setAttribute(Qt::WA_DeleteOnClose);
}

const DB_FB_Control* FB_Block_Editor::record() const {
  return std::as_const(mSession).database().mFbPages.child(mBlock);
}

void FB_Block_Editor::showTitle(const QString& what) {
  const DB_FB_Control* const block = record();
  if (!block) {
    return;
  }
  const DB_FB_Page* const page = std::as_const(mSession).database().mFbPages.page(block->mPageGuid);
  QString name = FB_Geometry::title(*block).simplified();
  if (page && !page->mCaption.isEmpty()) {
    name += QStringLiteral(" (%1)").arg(page->mCaption.simplified());
  }
  const QString mark = QStringLiteral("[*]"); // doubled it stands for itself
  setWindowTitle(name.replace(mark, mark + mark) + QStringLiteral(" – ") + what + mark);
}

void FB_Block_Editor::closeEvent(QCloseEvent* event) {
  event->setAccepted(!mSession.isOpen() || finish());
}

QString FB_Block_Editor::goneText() {
  return tr(
      "Den Baustein gibt es nicht mehr. \"Rückgängig\" bringt ihn zurück; bis dahin bleibt hier, was getippt wurde.");
}

bool FB_Block_Editor::mayDiscard() {
  raise();
  return Message_Box::askYesNo(this, tr("Den Baustein gibt es nicht mehr. Verwerfen, was für ihn getippt wurde?"));
}
