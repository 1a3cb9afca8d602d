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
  [[nodiscard]] bool isForbidden() const;
  [[nodiscard]] bool opensStream() const;
  [[nodiscard]] bool needsBody() const;
  void route();
  void openStream();
  void handle(void (MCP_Connection::*handler)());
  void onMcp();
  void onMessages();
  /// The response, empty for a notification; none when the connection was closed meanwhile.
  [[nodiscard]] std::optional<QByteArray> dispatch(const QJsonObject& request);
  void answer(int status, const QByteArray& body);
  void log(const QString& text) const;

  MCP_Server& mServer;
  QTcpSocket* mSocket;
  Http_Request mRequest;
  qsizetype mUnread = 0;    ///< of a body that is answered before it has come
  bool mIsTaken = false;    ///< the request is whole and is being answered, or is answered
  bool mIsHandling = false; ///< is or will be; it stays until that is over
  bool mIsClosed = false;
};
