#include "app/Logic_Page_Tab.h"

#include "db/Project_Session.h"
#include "fb/FB_Page.h"
#include "fb/FB_Page_Parent_ScrollView.h"
#include "fb/FB_Session_Values.h"

#include <QVBoxLayout>

Logic_Page_Tab::Logic_Page_Tab(Project_Session& session, App_Settings& settings, const QUuid& page, QWidget* parent)
    : QWidget(parent),
      mCanvas(new FB_Page(session, settings, page)),
      mScroll(new FB_Page_Parent_ScrollView(mCanvas)) {
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(mScroll);
  setFocusProxy(mCanvas);
  mCanvas->setValueSource(
      [&session](const DB_Address_Binding& binding) { return FB_Session_Values::of(session, binding); });
  connect(&session.values(), &Address_Values::changed, mCanvas, qOverload<const QSet<QUuid>&>(&FB_Page::valuesChanged));
}

QUuid Logic_Page_Tab::page() const {
  return mCanvas->pageGuid();
}

void Logic_Page_Tab::showChild(const QUuid& guid) {
  mCanvas->showBlock(guid);
}

void Logic_Page_Tab::setConnectedController(std::optional<int> number) {
  mScroll->setConnectedController(number);
}

void Logic_Page_Tab::enter() {
  mCanvas->setFocus(Qt::ShortcutFocusReason);
}
