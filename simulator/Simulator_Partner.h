#pragma once

#include "simulator/Simulator_Frame_Reader.h"
#include "simulator/Simulator_Options.h"

#include <QObject>
#include <QString>
#include <QTimer>

class QTcpSocket;

/// Passes a number on to another controller of the group: dials it, logs on as this one is logged on to, sets or clears
/// its number. Other machines are not contacted, only stand-ins on this one. Deletes itself when it is done.
class Simulator_Partner : public QObject {
  Q_OBJECT

public:
  /// `text` as commands 1465 ("ADDRESS#NUMBER") and 1475 ("ADDRESS") have it.
  Simulator_Partner(const Simulator_Options& options, quint32 command, const QString& text, QObject* parent);

  void start();

signals:
  /// Once; German, empty after success. Comes from the event loop.
  void finished(const QString& fault);

private:
  void onReadyRead();
  void end(const QString& fault);

  QString mUser;
  QString mPassword;
  QString mAddress;
  QString mNumber; ///< empty: is cleared
  QTcpSocket* mSocket;
  Simulator_Frame_Reader mReader;
  QTimer mTimeout;
  bool mIsDone = false;
};
