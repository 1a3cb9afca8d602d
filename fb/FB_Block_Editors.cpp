#include "fb/FB_Block_Editors.h"

#include "db/Project_Session.h"
#include "fb/FB_Page_Follower.h"
#include "fb/formula/FB_Formula_Editor.h"
#include "fb/lua/FB_Lua_Script_Editor.h"
#include "fb/modbus/FB_Modbus_Register_Editor.h"

#include <algorithm>
#include <array>

namespace {

using Make = FB_Block_Editor* (*)(Project_Session&, App_Settings&, const QUuid&, QWidget*);

struct Row {
  int mType = 0;
  const char* mCommand = ""; ///< German, with its access key
  Make mMake = nullptr;
};

template <class Editor>
FB_Block_Editor* make(Project_Session& session, App_Settings& settings, const QUuid& block, QWidget* parent) {
  return new Editor(session, settings, block, parent);
}

constexpr std::array cRows = {
    Row{1393, QT_TRANSLATE_NOOP("FB_Block_Editors", "Formel &bearbeiten"), &make<FB_Formula_Editor>},
    Row{1917, QT_TRANSLATE_NOOP("FB_Block_Editors", "Modbus Register &bearbeiten"), &make<FB_Modbus_Register_Editor>},
    Row{900, QT_TRANSLATE_NOOP("FB_Block_Editors", "Script &bearbeiten"), &make<FB_Lua_Script_Editor>},
};

const Row* find(int type) {
  const auto at = std::ranges::find(cRows, type, &Row::mType);
  return at == cRows.end() ? nullptr : at;
}

} // namespace

FB_Block_Editors::FB_Block_Editors(Project_Session& session, App_Settings& settings, QWidget* windows)
    : QObject(windows),
      mSession(session),
      mSettings(settings),
      mWindows(windows) {
  auto* const follower = new FB_Page_Follower(mSession.database().mFbPages, this);
  connect(follower, &FB_Page_Follower::changed, this, &FB_Block_Editors::follow);
  connect(&mSession, &Project_Session::closed, this, &FB_Block_Editors::follow);
}

bool FB_Block_Editors::has(int type) {
  return find(type) != nullptr;
}

QString FB_Block_Editors::commandText(int type) {
  const Row* const row = find(type);
  return row ? tr(row->mCommand) : QString();
}

FB_Block_Editor* FB_Block_Editors::open(const QUuid& block) {
  QPointer<FB_Block_Editor>& editor = mOpen[block];
  if (!editor) {
    const DB_FB_Control* const record = std::as_const(mSession).database().mFbPages.child(block);
    const Row* const row = record ? find(record->mType) : nullptr;
    if (!row) {
      mOpen.remove(block);
      return nullptr;
    }
    editor = row->mMake(mSession, mSettings, block, mWindows);
    connect(editor, &FB_Block_Editor::helpRequested, this, &FB_Block_Editors::helpRequested);
    connect(editor, &FB_Block_Editor::statusText, this, &FB_Block_Editors::statusText);
    if (FB_Lua_Script_Editor* const ofScript = script(block)) {
      connectScript(*ofScript);
    }
  }
  editor->show();
  editor->raise();
  editor->activateWindow();
  return editor;
}

void FB_Block_Editors::connectScript(FB_Lua_Script_Editor& editor) {
  connect(&editor, &FB_Lua_Script_Editor::runWanted, this, &FB_Block_Editors::runWanted);
  connect(&editor, &FB_Lua_Script_Editor::keepAliveWanted, this, &FB_Block_Editors::keepAliveWanted);
  editor.setConnected(mIsConnected);
}

FB_Lua_Script_Editor* FB_Block_Editors::script(const QUuid& block) const {
  return qobject_cast<FB_Lua_Script_Editor*>(mOpen.value(block).data());
}

void FB_Block_Editors::setConnected(bool isConnected) {
  mIsConnected = isConnected;
  const auto blocks = mOpen.keys();
  for (const QUuid& block : blocks) {
    if (FB_Lua_Script_Editor* const editor = script(block)) {
      editor->setConnected(isConnected);
    }
  }
}

void FB_Block_Editors::showRun(const QUuid& block, const QString& error) {
  if (FB_Lua_Script_Editor* const editor = script(block)) {
    editor->showRun(error);
  }
}

void FB_Block_Editors::addTrace(const QUuid& block, const QDateTime& time, const QString& text) {
  if (FB_Lua_Script_Editor* const editor = script(block)) {
    editor->addTrace(time, text);
  }
}

void FB_Block_Editors::setVariable(const QUuid& block, const QString& name, const QString& value) {
  if (FB_Lua_Script_Editor* const editor = script(block)) {
    editor->setVariable(name, value);
  }
}

bool FB_Block_Editors::finishAll() {
  const auto open = mOpen.values();
  return std::ranges::all_of(open, [](const auto& editor) { return !editor || editor->finish(); });
}

void FB_Block_Editors::follow() {
  const auto open = mOpen;
  for (auto it = open.begin(); it != open.end(); ++it) {
    if (!it.value()) {
      mOpen.remove(it.key());
    } else if (std::as_const(mSession).database().mFbPages.child(it.key()) ||
               (mSession.isOpen() && it.value()->isUnsaved())) {
      it.value()->follow();
    } else {
      it.value()->close();
    }
  }
}
