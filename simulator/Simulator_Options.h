#pragma once

#include <QHostAddress>
#include <QString>
#include <QStringList>

/// What a stand-in controller is asked to be. The defaults are those of a controller as it leaves the factory.
struct Simulator_Options {
  static constexpr quint16 cPort = 10001;
  static constexpr quint16 cRelayPort = 10003;
  static constexpr quint16 cDiscoveryPort = 10011;

  QHostAddress mListen = QHostAddress(QHostAddress::LocalHost);
  quint16 mPort = cPort; ///< 0: any that is free
  QString mName = QStringLiteral("RZ8800 Simulator");
  QString mUser;         ///< empty: that of Connection_Defaults
  QString mPassword;     ///< null: that of Connection_Defaults
  QString mFolder;       ///< what is kept lies there; empty: in memory only
  bool mIsRelay = false; ///< stands for the relay service and the controller behind it
  QString mRelayName;    ///< of the controller behind the relay service; empty: any is right
  bool mIsLogging = false;
  int mCycleMs = 0;       ///< period of telegrams by itself; 0 for none
  int mRestartMs = 1000;  ///< how long it takes no connections while it restarts
  bool mDiscovers = true; ///< answers searches
  quint16 mDiscoveryPort = cDiscoveryPort;
  bool mAnswersRemoteSearch = false; ///< also searches that come from other machines
  QStringList mFaults;               ///< see Simulator_Faults::add
};
