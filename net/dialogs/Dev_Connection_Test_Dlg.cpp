#include "net/dialogs/Dev_Connection_Test_Dlg.h"

#include "net/Controller_Link.h"
#include "net/dialogs/Connection_Test_View.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace {
constexpr int cGroupGap = 12;
constexpr QSize cSize(480, 280);
} // namespace

Dev_Connection_Test_Dlg::Dev_Connection_Test_Dlg(Controller_Link& link, const DB_Connections::ITEM& connection,
                                                 QWidget* parent)
    : QDialog(parent),
      mView(new Connection_Test_View(link)) {
  setWindowTitle(tr("Teste Verbindung"));
  mView->setConnection(connection);
  Main_Network_Client& client = link.client();
  connect(&client, qOverload<Network_Message*, uchar*>(&Main_Network_Client::onProcessNetworkRead), mView,
          &Connection_Test_View::onNetworkRead);
  connect(&client, &Main_Network_Client::onProcessNetworkConnect, mView, &Connection_Test_View::onNetworkConnect);

  auto* const buttons = new QDialogButtonBox;
  buttons->addButton(tr("&Schließen"), QDialogButtonBox::RejectRole)->setDefault(true);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(this, &QDialog::finished, mView, &Connection_Test_View::cancel);
  auto* const layout = new QVBoxLayout(this);
  layout->setSpacing(cGroupGap);
  layout->addWidget(mView, 1);
  layout->addWidget(buttons);
  resize(cSize);
  // The question whether the link may go belongs above the dialog.
  QTimer::singleShot(0, this, [this] { mView->start(); });
}
