#pragma once

#include <QByteArray>
#include <QEventLoop>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

#include <thread>
#include <utility>

/// A blocking client on the loopback interface, for a thread beside the event loop in which the server lives: it sends
/// exactly what it is told to, in exactly these segments, and can leave as rudely as real clients do.
class Raw_Client {
public:
  explicit Raw_Client(quint16 port, int patienceSeconds = 20) : mSocket(::socket(AF_INET, SOCK_STREAM, 0)) {
    const int on = 1;
    ::setsockopt(mSocket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    const timeval patience{patienceSeconds, 0};
    ::setsockopt(mSocket, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    mIsConnected = ::connect(mSocket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
  }
  ~Raw_Client() { leave(); }
  Raw_Client(const Raw_Client&) = delete;
  Raw_Client& operator=(const Raw_Client&) = delete;
  Raw_Client(Raw_Client&& other) noexcept
      : mSocket(std::exchange(other.mSocket, -1)),
        mIsConnected(other.mIsConnected) {}
  Raw_Client& operator=(Raw_Client&&) = delete;

  [[nodiscard]] bool isConnected() const { return mIsConnected; }

  /// False when the other side has gone.
  bool send(const QByteArray& bytes) const {
    for (qsizetype at = 0; at < bytes.size();) {
      const ssize_t sent = ::send(mSocket, bytes.constData() + at, size_t(bytes.size() - at), MSG_NOSIGNAL);
      if (sent <= 0) {
        return false;
      }
      at += sent;
    }
    return true;
  }
  /// No more comes from here; the answer is still awaited.
  void endSending() const { ::shutdown(mSocket, SHUT_WR); }

  /// Until the other side closes. "RESET" or "TIMEOUT" at the end tell that it did not.
  [[nodiscard]] QByteArray readAll() const { return readTo({}); }
  /// Until it has sent that.
  [[nodiscard]] QByteArray readTo(const QByteArray& end) const {
    QByteArray all;
    char piece[65536];
    while (end.isEmpty() || !all.endsWith(end)) {
      const ssize_t count = ::recv(mSocket, piece, sizeof piece, 0);
      if (count < 0) {
        return all + (errno == EAGAIN || errno == EWOULDBLOCK ? "TIMEOUT" : "RESET");
      }
      if (count == 0) {
        break;
      }
      all.append(piece, count);
    }
    return all;
  }

  void leave() {
    if (mSocket >= 0) {
      ::close(std::exchange(mSocket, -1));
    }
  }
  /// With a reset in place of an end.
  void leaveRudely() {
    const linger none{1, 0};
    ::setsockopt(mSocket, SOL_SOCKET, SO_LINGER, &none, sizeof none);
    leave();
  }

  /// Runs `talk` in a thread while the caller's event loop goes on, and returns what it returned.
  template <class Talk>
  static auto beside(Talk&& talk) {
    decltype(talk()) result{};
    QEventLoop loop;
    std::thread thread([&] {
      result = talk();
      QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    loop.exec();
    thread.join();
    return result;
  }

  [[nodiscard]] static QByteArray post(const QByteArray& path, const QByteArray& body) {
    return "POST " + path + " HTTP/1.1\r\nHost: localhost\r\nContent-Length: " + QByteArray::number(body.size()) +
           "\r\n\r\n" + body;
  }

private:
  int mSocket;
  bool mIsConnected = false;
};
