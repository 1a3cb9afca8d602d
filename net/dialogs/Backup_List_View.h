#pragma once

#include "net/dialogs/Backup_List_Model.h"
#include "net/dialogs/Request_Queue.h"

#include <QWidget>

#include <optional>

class Filter_Edit;
class QLabel;
class Result_List;

/// The backups that the controller keeps: read from it, filtered, sorted, copied, counted; one can be chosen.
class Backup_List_View : public QWidget {
  Q_OBJECT

public:
  /// Asks through the queue, which outlives the view.
  Backup_List_View(const Controller_Access& access, Request_Queue& queue, QWidget* parent = nullptr);
  ~Backup_List_View() override;

  /// Adds the request to the queue.
  void read();
  /// Empty unless exactly one is selected.
  [[nodiscard]] std::optional<DB_Backup_List::Backup> selected() const;
  /// As soon as the list has been read.
  void selectWhenRead(const QString& id) { mWanted = id; }

signals:
  /// Another one is selected, or none.
  void selectionChanged();

private:
  void onRead(DB_Backup_List list);
  void onFailed();
  void updateCount();

  Controller_Access mAccess;
  Request_Queue& mQueue;
  Backup_List_Model mModel;
  QString mWanted;
  Filter_Edit* mFilter;
  Result_List* mList;
  QLabel* mCount;
};
