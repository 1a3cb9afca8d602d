#include "net/dialogs/Assistant_Test_Page.h"

#include "net/dialogs/Connection_Test_View.h"

#include <QAbstractButton>
#include <QVBoxLayout>

#include <utility>

Assistant_Test_Page::Assistant_Test_Page(Controller_Link& link, QWidget* parent)
    : QWizardPage(parent),
      mView(new Connection_Test_View(link)) {
  setTitle(tr("Verbindung testen"));
  setSubTitle(tr("Der Test zeigt, ob die Steuerung antwortet. Er kann übersprungen werden."));
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(mView);
  connect(mView, &Connection_Test_View::stateChanged, this, &Assistant_Test_Page::onStateChanged);
}

void Assistant_Test_Page::onStateChanged() {
  emit completeChanged();
  const bool wasRunning = std::exchange(mIsRunning, mView->isRunning());
  if (wasRunning && !mIsRunning && wizard()) {
    wizard()->button(QWizard::NextButton)->setFocus(); // it could not have it while the test ran
  }
}

bool Assistant_Test_Page::isComplete() const {
  return !mView->isRunning();
}
