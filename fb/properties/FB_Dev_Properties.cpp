#include "fb/properties/FB_Dev_Properties.h"

#include "fb/properties/FB_Dev_Properties_Address.h"
#include "fb/properties/FB_Dev_Properties_Page.h"
#include "ui/Empty_Hint.h"

#include <QSplitter>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {
constexpr int cPageShare = 5;
constexpr int cAddressShare = 2;
constexpr int cAnyHeight = 1000; // the splitter keeps the ratio only
} // namespace

FB_Dev_Properties::FB_Dev_Properties(Project_Session& session, App_Settings& settings, QWidget* parent)
    : QWidget(parent),
      mStack(new QStackedWidget),
      mSplitter(new QSplitter(Qt::Vertical)),
      mPage(new FB_Dev_Properties_Page(session)),
      mAddress(new FB_Dev_Properties_Address(session, settings)) {
  auto* const hint = new Empty_Hint;
  hint->setText(
      tr("Hier stehen Name, Parameter und Verknüpfungen der Bausteine, die auf einer Programmseite ausgewählt "
         "sind.\n\nEinen Baustein anklicken, oder mehrere mit einem Rahmen umfassen."));
  hint->setStep(tr("Baustein &einfügen"));
  mSplitter->setObjectName(QStringLiteral("FB_Dev_Properties::ui->mSplitter"));
  mSplitter->addWidget(mPage);
  mSplitter->addWidget(mAddress);
  mSplitter->setChildrenCollapsible(false);
  mSplitter->setStretchFactor(0, cPageShare);
  mSplitter->setStretchFactor(1, cAddressShare);
  mSplitter->setSizes({cPageShare * cAnyHeight, cAddressShare * cAnyHeight});
  mStack->addWidget(hint);
  mStack->addWidget(mSplitter);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(mStack);
  connect(hint, &Empty_Hint::stepRequested, this, &FB_Dev_Properties::catalogueRequested);
  connect(mPage, &FB_Dev_Properties_Page::pagePropertiesRequested, this, &FB_Dev_Properties::pagePropertiesRequested);
  connect(mPage, &FB_Dev_Properties_Page::editorRequested, this, &FB_Dev_Properties::editorRequested);
  connect(mPage, &FB_Dev_Properties_Page::emptyChanged, this,
          [this] { mStack->setCurrentIndex(mPage->isEmpty() ? 0 : 1); });
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
