#pragma once

#include <QObject>
#include <QSet>
#include <QTimer>
#include <QUuid>

class DB_Page_List_Signals;

/// Gathers what changes in the list of pages and tells it once, when the turn of the event loop ends or when asked.
class FB_Page_Follower : public QObject {
  Q_OBJECT

public:
  /// The list outlives the follower.
  explicit FB_Page_Follower(const DB_Page_List_Signals& list, QObject* parent = nullptr);

  /// Tells now; nothing when nothing has changed.
  void flush();

signals:
  /// The blocks whose records changed, came or went, on any page, and whether pages did.
  void changed(const QSet<QUuid>& blocks, bool arePagesChanged);

private:
  void onChange();

  QSet<QUuid> mBlocks;
  bool mArePagesChanged = false;
  QTimer mTimer;
};
