#include "app/Language_Menu.h"

#include "base/App_Settings.h"
#include "base/Language_Catalogues.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>

Language_Menu::Language_Menu(QMenu& menu, const App_Settings& settings)
    : QObject(&menu),
      mGroup(new QActionGroup(this)) {
  const auto languages = Language_Catalogues::available(Language_Catalogues::folders());
  int number = 0;
  for (const Language_Catalogues::Language& language : languages) {
    QAction* const action = menu.addAction(QStringLiteral("&%1 %2").arg(++number).arg(language.mName));
    action->setCheckable(true);
    action->setData(language.mCode);
    action->setIconText(language.mName);
    action->setStatusTip(tr("Zeigt Menüs und Texte des Studios in dieser Sprache, ab dem nächsten Start"));
    mGroup->addAction(action);
    // A chosen language whose catalogue is gone is shown as German, which is the first.
    action->setChecked(mGroup->actions().size() == 1 || language.mCode == settings.languageDev());
  }
}
