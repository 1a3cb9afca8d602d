#pragma once

#include <QByteArrayView>
#include <QObject>
#include <QString>
#include <QUuid>

class Main_Network_Client;
class QDateTime;
struct Network_Message;

/// The scripts that run on the controller, by their blocks: hands one over, has the controller tell of one, and passes
/// on what they write and the values that they watch.
class Script_Debug : public QObject {
  Q_OBJECT

public:
  /// The client outlives it.
  explicit Script_Debug(Main_Network_Client& client, QObject* parent = nullptr);

  /// Ends with `ran`.
  void run(const QUuid& block, const QString& script);
  /// Has the controller tell of that script for the next 10 s; nothing without a link.
  void watch(const QUuid& block);

signals:
  /// The controller runs the script, or the German `error` says why it does not. Comes from the event loop.
  void ran(const QUuid& block, const QString& error);
  /// Inside a delivery of the link, as the next one.
  void lineWritten(const QUuid& block, const QDateTime& time, const QString& line);
  void variableTold(const QUuid& block, const QString& name, const QString& value);

private:
  void onRead(Network_Message* message, uchar* data);

  Main_Network_Client& mClient;
};
