#include "fb/properties/FB_Dev_Properties.h"

#include "fb/properties/FB_Dev_Properties_Address.h"
#include "fb/properties/FB_Dev_Properties_Page.h"

#include <QSplitter>
#include <QVBoxLayout>

FB_Dev_Properties::FB_Dev_Properties(Project_Session& session, App_Settings& settings, QWidget* parent)
    : QWidget(parent),
      mPage(new FB_Dev_Properties_Page(session, settings)),
      mAddress(new FB_Dev_Properties_Address(session, settings)) {
  auto* const splitter = new QSplitter(Qt::Vertical);
  splitter->setObjectName(QStringLiteral("FB_Dev_Properties::ui->mSplitter"));
  splitter->addWidget(mPage);
  splitter->addWidget(mAddress);
  splitter->setChildrenCollapsible(false);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(splitter);
  connect(mPage, &FB_Dev_Properties_Page::pagePropertiesRequested, this, &FB_Dev_Properties::pagePropertiesRequested);
  connect(mPage, &FB_Dev_Properties_Page::editorRequested, this, &FB_Dev_Properties::editorRequested);
  connect(mPage, &FB_Dev_Properties_Page::statusText, this, &FB_Dev_Properties::statusText);
  connect(mAddress, &FB_Dev_Properties_Address::blockChosen, this, &FB_Dev_Properties::blockChosen);
  connect(mAddress, &FB_Dev_Properties_Address::statusText, this, &FB_Dev_Properties::statusText);
}

void FB_Dev_Properties::showBlocks(FB_Page& page) {
  mPage->showBlocks(page);
  mAddress->showBlocks(page);
}

void FB_Dev_Properties::clear() {
  mPage->clear();
  mAddress->clear();
}
