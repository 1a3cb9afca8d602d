#pragma once

#include "net/Controller_Exchange.h"

#include <QUuid>

/// Hands a block's script to the controller, which runs it in place of the one that it has, until it starts its project
/// anew. Several may be on their way at once: a reply names its block.
class Script_Run : public Controller_Exchange {
  Q_OBJECT

public:
  Script_Run(Main_Network_Client& client, const QUuid& block, QString script, QObject* parent = nullptr);

  [[nodiscard]] QUuid block() const { return mBlock; }

protected:
  void begin() override;
  bool take(quint32 command, QByteArrayView payload) override;

private:
  QUuid mBlock;
  QString mScript;
};
