#pragma once

#include "net/Controller_Exchange.h"
#include "net/Paced_Sender.h"
#include "net/Stream_Out.h"

#include <QByteArray>

/// Sends bytes as a stream and waits for the reply that they are taken over. What is not sent yet waits here, not in
/// the socket: so cancelling stops it, and its progress is what really went out.
class Stream_Send : public Controller_Exchange {
  Q_OBJECT

public:
  struct What {
    quint32 mBeginCommand = 0;
    quint32 mDataCommand = 0;
    quint32 mReply = 0;
    QString mName;  ///< of the stream, may be empty
    QString mLabel; ///< tells the user what is sent
  };
  Stream_Send(Main_Network_Client& client, What what, QByteArray bytes, QObject* parent = nullptr);

  [[nodiscard]] QString replyText() const { return mReplyText; }

protected:
  void begin() override;
  bool take(quint32 command, QByteArrayView payload) override;
  void abort() override;

private:
  What mWhat;
  Stream_Out mStream;
  Paced_Sender mSender;
  QString mReplyText;
};
