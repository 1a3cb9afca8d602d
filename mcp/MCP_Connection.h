#pragma once

#include "mcp/Http_Request.h"

#include <QJsonObject>
#include <QObject>

#include <optional>

class MCP_Server;
class QTcpSocket;

/// One accepted connection of the assistant's server: reads one request, answers it and closes; or hands its socket to
/// an event stream. A child of the server.
class MCP_Connection : public QObject {
  Q_OBJECT

public:
  MCP_Connection(qintptr descriptor, MCP_Server& server);

private slots:
  void onReadyRead();
  void onDisconnected();

private:
  void route();
  void openStream();
  void onMcp();
  void onMessages();
  /// None when the connection was closed meanwhile; it is to go then.
  [[nodiscard]] std::optional<QJsonObject> dispatch(const QJsonObject& request);
  void answer(int status, const QByteArray& body);
  void log(const QString& text) const;

  MCP_Server& mServer;
  QTcpSocket* mSocket;
  Http_Request mRequest;
  bool mIsTaken = false; ///< the request is whole and is being answered, or is answered
  bool mIsDispatching = false;
  bool mIsClosedInDispatch = false;
};
