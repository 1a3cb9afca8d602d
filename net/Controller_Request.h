#pragma once

#include "net/Controller_Exchange.h"

#include <QByteArray>

/// One command with one reply: clock, information, comparison, restart and the like.
class Controller_Request : public Controller_Exchange {
  Q_OBJECT

public:
  /// `label` tells the user what is waited for.
  Controller_Request(Main_Network_Client& client, quint32 command, QByteArray payload, quint32 replyCommand,
                     QString label, QObject* parent = nullptr);
  /// With a text and its zero byte as payload.
  [[nodiscard]] static QByteArray textPayload(const QString& text);

  /// The reply's payload, once it is done.
  [[nodiscard]] const QByteArray& reply() const { return mReply; }
  [[nodiscard]] QString replyText() const { return text(mReply); }
  /// The reply as a record.
  template <class Record>
  [[nodiscard]] Record replyRecord() const {
    Record record;
    record.setData(mReply);
    record.fromData();
    return record;
  }

protected:
  void begin() override;
  bool take(quint32 command, QByteArrayView payload) override;

private:
  quint32 mCommand;
  QByteArray mPayload;
  quint32 mReplyCommand;
  QString mLabel;
  QByteArray mReply;
};
