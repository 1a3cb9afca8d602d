#pragma once

#include "net/Main_Network_Client.h"

#include <QPointer>

/// Whoever is called by the client may close the link, dial anew or delete the client. Asked after each such call.
class Main_Network_Client::Same_Link {
public:
  explicit Same_Link(Main_Network_Client* client) : mClient(client), mLinkCount(client->mLinkCount) {}
  [[nodiscard]] bool isGone() const { return !mClient || mClient->mLinkCount != mLinkCount; }

private:
  QPointer<Main_Network_Client> mClient;
  quint64 mLinkCount;
};

/// While one lives the socket must not be destroyed: it is on the stack.
class Main_Network_Client::In_Socket {
public:
  explicit In_Socket(Main_Network_Client* client) : mClient(client) { ++client->mInSocket; }
  ~In_Socket() {
    if (mClient && --mClient->mInSocket == 0 && !mClient->mCalls.isEmpty()) {
      mClient->mCallNext->start();
    }
  }
  Q_DISABLE_COPY_MOVE(In_Socket)

private:
  QPointer<Main_Network_Client> mClient;
};
