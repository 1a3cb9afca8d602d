#include "app/Recent_Projects_Menu.h"

#include "base/App_Settings.h"
#include "db/Model_Roles.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QMenu>

namespace {
/// So many have a digit as their access key.
constexpr int cDigits = 9;
constexpr int cNameWidth = 400;
} // namespace

Recent_Projects_Menu::Recent_Projects_Menu(QMenu& menu, const App_Settings& settings)
    : QObject(&menu),
      mMenu(menu),
      mSettings(settings) {
  connect(&menu, &QMenu::aboutToShow, this, &Recent_Projects_Menu::fill);
}

void Recent_Projects_Menu::fill() {
  mMenu.clear();
  int number = 0;
  for (const QString& path : mSettings.lastProjects()) {
    const QFileInfo info(path);
    QString text = mMenu.fontMetrics().elidedText(info.completeBaseName(), Qt::ElideMiddle, cNameWidth);
    text.replace(u'&', QStringLiteral("&&"));
    if (++number <= cDigits) {
      text.prepend(QStringLiteral("&%1 ").arg(number));
    }
    if (!info.exists()) {
      text = tr("%1 (fehlt)").arg(text);
    }
    QAction* const action = mMenu.addAction(text);
    action->setStatusTip(QDir::toNativeSeparators(path));
    action->setToolTip(Model_Roles::toolTip(action->statusTip()).toString());
    connect(action, &QAction::triggered, this, [this, path] { emit chosen(path); });
  }
  if (number == 0) {
    mMenu.addAction(tr("Noch keines"))->setEnabled(false);
  }
}
