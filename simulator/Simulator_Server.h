#pragma once

#include "simulator/Simulator_Controller.h"
#include "simulator/Simulator_Cycle.h"
#include "simulator/Simulator_Discovery.h"
#include "simulator/Simulator_Faults.h"
#include "simulator/Simulator_Scripts.h"

#include <QList>
#include <QObject>
#include <QTcpServer>
#include <QTimer>

class Simulator_Session;

/// A stand-in controller that is listening: takes connections and has what they ask for answered. Usable inside
/// another process, as tests do:
///
///     Simulator_Options options;
///     options.mPort = 0;
///     options.mDiscovers = false;
///     Simulator_Server server(options);
///     QVERIFY(server.listen());
///     connection.mAddress = QStringLiteral("127.0.0.1:%1").arg(server.port());
class Simulator_Server : public QObject {
  Q_OBJECT

public:
  static constexpr int cMostSessions = 200; ///< at once; more connections are ended as they come

  explicit Simulator_Server(const Simulator_Options& options, QObject* parent = nullptr);
  ~Simulator_Server() override;

  /// False with a German error.
  bool listen(QString* error = nullptr);
  [[nodiscard]] quint16 port() const { return mListener.serverPort(); }

  /// UDP; 0 when it answers no searches.
  [[nodiscard]] quint16 discoveryPort() const { return mDiscovery.port(); }

  [[nodiscard]] Simulator_Controller& controller() { return mController; }
  [[nodiscard]] const Simulator_Controller& controller() const { return mController; }
  /// May be changed at any time; concerns what is sent from then on.
  [[nodiscard]] Simulator_Faults& faults() { return mFaults; }
  [[nodiscard]] QList<Simulator_Session*> sessions() const { return mSessions; }

  /// Ends all connections, as a controller that loses its power does.
  void closeSessions();
  /// The same, and takes new ones only when it is up again, with what is kept.
  void restart();

  [[nodiscard]] Simulator_Scripts& scripts() { return mScripts; }
  /// Period of telegrams by itself, in milliseconds; 0 for none.
  void setCycle(int ms) { mCycle.setPeriod(ms); }
  /// Whether telegrams are logged, too.
  void setLoggingAll(bool isOn) { mIsLoggingAll = isOn; }

  /// For a session: one message that came.
  void answer(Simulator_Session& session, quint32 command, QByteArrayView payload);
  /// To everyone who is logged on; nothing while the controller is stopped.
  void tell(const DB_Address_Network_Telegram& telegram);
  void log(bool isIncoming, quint32 command, qsizetype length) const;

  /// Project writes that have started their project can send no more resources.
  void forgetStarted();
  /// The session whose project write has stopped the controller; null for none.
  [[nodiscard]] Simulator_Session* writer() const { return mWriter; }
  void setWriter(Simulator_Session* session) { mWriter = session; }

signals:
  /// What happens, a line each, when options ask for it.
  void logged(const QString& line) const;

private:
  void tellWatching(const QUuid& block, quint32 command, const QByteArray& payload);
  void onNewConnection();
  void onClosed(Simulator_Session* session);

  Simulator_Controller mController;
  Simulator_Faults mFaults;
  QTcpServer mListener;
  QList<Simulator_Session*> mSessions;
  Simulator_Session* mWriter = nullptr;
  Simulator_Cycle mCycle;
  Simulator_Discovery mDiscovery;
  Simulator_Scripts mScripts;
  QTimer mRestarting;
  bool mIsLoggingAll = true;
  quint16 mPort = 0;
};
