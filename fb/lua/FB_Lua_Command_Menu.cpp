#include "fb/lua/FB_Lua_Command_Menu.h"

#include "fb/model/FB_Lua_Functions.h"

#include <QMenu>

namespace {

/// "&" would be an access key.
QString shown(QString text) {
  return text.replace(u'&', QStringLiteral("&&"));
}

void add(QMenu& menu, const QString& label, const QString& inserted, const QString& tip,
         const std::function<void(const QString&)>& insert) {
  QAction* const action = menu.addAction(shown(label));
  action->setToolTip(tip);
  QObject::connect(action, &QAction::triggered, &menu, [insert, inserted] { insert(inserted); });
}

} // namespace

void FB_Lua_Command_Menu::fill(QMenu& menu, const std::function<void(const QString&)>& insert) {
  for (const FB_Lua_Group& group : FB_Lua_Functions::groups()) {
    QMenu* const entries = menu.addMenu(shown(QString::fromUtf8(group.mTitle)));
    entries->setToolTipsVisible(true);
    for (const FB_Lua_Function& function : group.mFunctions) {
      const QString text = QString::fromUtf8(function.mInserted);
      add(*entries, text, text, FB_Lua_Functions::toolTip(QString::fromUtf8(function.mName)), insert);
    }
  }
  QMenu* const callbacks = menu.addMenu(FB_Lua_Functions::callbackTitle());
  callbacks->setToolTipsVisible(true);
  for (const FB_Lua_Callback& callback : FB_Lua_Functions::callbacks()) {
    add(*callbacks, FB_Lua_Functions::label(callback), FB_Lua_Functions::inserted(callback),
        FB_Lua_Functions::toolTip(FB_Lua_Functions::name(callback)), insert);
  }
}
