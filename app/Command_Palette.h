#pragma once

#include "app/Palette_Search.h"

#include <QFrame>

#include <functional>
#include <vector>

class Project_Session;
class QLineEdit;
class QTreeWidget;

/// A field above the window that finds any command, page or group address by typing: arrow keys choose, Enter takes,
/// Escape or a click elsewhere closes. Commands that cannot be used now are greyed and say why.
class Command_Palette : public QFrame {
  Q_OBJECT

public:
  /// The session outlives the palette. `state` tells what can be used now.
  Command_Palette(Project_Session& session, std::function<Action_State()> state, QWidget* window);

  /// Above the middle of its window, empty.
  void bringUp();

signals:
  /// One of these, from the event loop, when the palette is closed and the focus is back.
  void actionChosen(const QString& slot);
  void pageChosen(const QUuid& guid);
  void addressChosen(const QUuid& key);

protected:
  bool eventFilter(QObject* object, QEvent* event) override;

private:
  void search();
  void take(int row);
  void choose(const Palette_Entry& entry);

  Project_Session& mSession;
  std::function<Action_State()> mStateNow;
  Action_State mState;
  std::vector<Palette_Entry> mEntries;
  QLineEdit* mField;
  QTreeWidget* mList;
};
