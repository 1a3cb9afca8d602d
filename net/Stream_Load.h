#pragma once

#include "net/Byte_Stream.h"
#include "net/Controller_Exchange.h"

/// Asks for bytes that come as a stream: the project, persistent values, a backup.
class Stream_Load : public Controller_Exchange {
  Q_OBJECT

public:
  /// The labels tell the user that it waits, and that data comes.
  struct What {
    quint32 mCommand = 0;
    QString mText; ///< the command's text
    quint32 mBeginReply = 0;
    quint32 mDataReply = 0;
    QString mWaitLabel;
    QString mLoadLabel;
  };
  Stream_Load(Main_Network_Client& client, What what, QObject* parent = nullptr);

  /// Whole and unharmed once it is done.
  [[nodiscard]] const QByteArray& bytes() const { return mStream.bytes(); }

protected:
  void begin() override;
  bool take(quint32 command, QByteArrayView payload) override;

private:
  What mWhat;
  Byte_Stream mStream;
};
