#pragma once

#include "db/Edit_Result.h"

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QUuid>

/// What views need of the link to the controller: values of group addresses read and sent. The room of the link
/// implements it and hands it to the session; without it nothing can be read or sent.
class Value_Service : public QObject {
  Q_OBJECT

public:
  using QObject::QObject;

  /// Whether reading and sending is possible now.
  [[nodiscard]] virtual bool isOnline() const = 0;
  /// Asks for the values of these addresses, one after another at a pace that the bus stands; the answers come as
  /// values. Those that are still to be asked for go on. Others than group addresses are left out.
  virtual void read(const QList<QUuid>& keys) = 0;
  virtual void cancelReading() = 0;
  [[nodiscard]] virtual bool isReading() const = 0;
  /// Sends the payload to the address and takes it for its value.
  virtual Edit_Result send(const QUuid& key, const QByteArray& payload) = 0;

signals:
  void onlineChanged(bool isOnline);
  /// So many of all that are to be read were asked for; at the end, and when it is given up, both are 0.
  void readProgress(qsizetype done, qsizetype all);
};
