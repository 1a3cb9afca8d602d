#pragma once

#include "db/Address_Usage.h"

#include <QObject>
#include <QTimer>

class DB_Page_List_Signals;
class Project_Session;

/// Keeps the picture of where addresses are used true while the project is edited. The session outlives the watch.
class Address_Usage_Watch : public QObject {
  Q_OBJECT

public:
  explicit Address_Usage_Watch(Project_Session& session, QObject* parent = nullptr);

  /// As the project is now; made anew when something changed since. Valid until then.
  [[nodiscard]] const Address_Usage& usage();

signals:
  /// Addresses, pages or bindings changed; once for all changes of a turn of the event loop.
  void changed();

private:
  void listenTo(const DB_Page_List_Signals& list);
  void onChange();

  Project_Session& mSession;
  Address_Usage mUsage;
  bool mIsStale = true;
  QTimer mTimer;
};
