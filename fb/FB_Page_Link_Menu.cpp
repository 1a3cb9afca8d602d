// Where a page leads to the other pages that use the same addresses and variables.
#include "fb/FB_Page.h"
#include "fb/model/FB_Page_Links.h"

#include <QMenu>

QString FB_Page::linkedPages(const FB_Pin_Ref& pin) const {
  return mLinks->text(pin);
}

/// Pages that are `known` stand in the menu already.
void FB_Page::addLinks(QMenu& menu, const FB_Pin_Ref& pin, QSet<QUuid>& known) {
  for (const FB_Page_Links::Target& target : mLinks->targets(pin)) {
    if (known.contains(target.mPage)) {
      continue;
    }
    known.insert(target.mPage);
    QString caption = target.mCaption;
    menu.addAction(tr("Zur Seite: %1").arg(caption.replace('&', QLatin1String("&&"))), this,
                   [this, target] { emit linkActivated(target.mPage, target.mPin.mBlock); });
  }
}

void FB_Page::followLink(const FB_Pin_Ref& pin) {
  const QList<FB_Page_Links::Target> targets = mLinks->targets(pin);
  if (!targets.isEmpty()) {
    emit linkActivated(targets.constFirst().mPage, targets.constFirst().mPin.mBlock);
  }
}
