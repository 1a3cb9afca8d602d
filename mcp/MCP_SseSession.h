#pragma once

#include <QObject>
#include <QString>

class QTcpSocket;

/// An open event stream of an assistant: owns the socket, and sends on it what its requests are answered. Its id is
/// valid for as long as it lives in the server's table.
class MCP_SseSession : public QObject {
  Q_OBJECT

public:
  /// Takes the socket over.
  explicit MCP_SseSession(QTcpSocket* socket, QObject* parent = nullptr);

  /// 32 lower-case hexadecimal digits.
  [[nodiscard]] const QString& id() const { return mId; }
  /// The stream's head and its first event, which tells where requests are posted.
  void open();
  /// One answer, in one line.
  void send(const QByteArray& response);

signals:
  void sessionClosed(const QString& id);

private slots:
  void onDisconnected();

private:
  QTcpSocket* mSocket;
  QString mId;
};
