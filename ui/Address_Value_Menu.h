#pragma once

#include <QList>
#include <QMenu>
#include <QUuid>

#include <functional>

class Project_Session;

/// The menu "Wert senden/lesen" of a view that shows group addresses: asks the controller for the values of what is
/// selected, or sends one. While that is not possible its entries tell in their tool tips why.
class Address_Value_Menu : public QMenu {
  Q_OBJECT

public:
  using Keys = std::function<QList<QUuid>()>;

  /// `keys` are the addresses that are selected when the menu is opened. The session outlives the menu.
  Address_Value_Menu(Project_Session& session, Keys keys, QWidget* parent);

signals:
  /// What a command did, in a sentence.
  void info(const QString& text);
  /// A command was not done; the German text tells why.
  void refused(const QString& text);

private:
  void updateEntries();
  void onServiceChanged();
  void onRead();
  void onSend();
  void onProgress(qsizetype done, qsizetype all);

  Project_Session& mSession;
  Keys mKeysOf;
  QList<QUuid> mKeys;
  QAction* mRead;
  QAction* mSend;
  QAction* mCancel;
  bool mIsReading = false; ///< what this menu began
  qsizetype mTold = 0;     ///< of the progress
};
