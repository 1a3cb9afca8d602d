#pragma once

#include "net/Controller_Command.h"
#include "net/Controller_Exchange.h"
#include "net/Controller_Records.h"
#include "net/Resource_Message.h"
#include "tests/db/Session_Rig.h"
#include "tests/net/Scripted_Peer.h"

/// A project that is open, linked to a peer that answers what a controller would.
class Transfer_Rig : public Session_Rig {
public:
  using List = QList<quint32>;

  Transfer_Rig() {
    if (!create()) {
      qFatal("no project");
    }
    addAddress({1, 2, 3}, QStringLiteral("Licht"));
    mPeer.mOnMessage = [this](const Scripted_Peer::Message& message) {
      if (mBefore) {
        mBefore(message);
      }
      if (!mIsSilent) {
        answer(message);
      }
    };
  }

  bool connectClient() {
    mIsSilent = false;
    mBefore = {};
    mPeer.mMessages.clear();
    const DB_Connections::ITEM connection = mPeer.connection();
    mClient.connectToController(&connection);
    return QTest::qWaitFor([this] { return mClient.isConnected() && mPeer.isConnected(); });
  }

  /// Runs it to its end.
  Controller_Exchange::End run(Controller_Exchange& exchange) {
    mLabels.clear();
    QObject::connect(&exchange, &Controller_Exchange::progress, &exchange,
                     [this](const QString& label, int value, int maximum) {
                       const QString line = QStringLiteral("%1 %2/%3").arg(label).arg(value).arg(maximum);
                       if (mLabels.isEmpty() || mLabels.constLast() != line) {
                         mLabels.append(line);
                       }
                     });
    int ends = 0;
    QObject::connect(&exchange, &Controller_Exchange::finished, &exchange, [&ends] { ++ends; });
    exchange.start();
    if (!QTest::qWaitFor([&ends] { return ends > 0; }) || ends != 1) {
      qFatal("the exchange did not end once: %s", qPrintable(mLabels.join(u'\n')));
    }
    return exchange.end();
  }

  /// Everything that the client has sent has come by now.
  [[nodiscard]] List commands() {
    if (!QTest::qWaitFor([this] { return mClient.bytesToWrite() == 0; })) {
      qFatal("not all was sent");
    }
    QTest::qWait(20);
    List list;
    for (const Scripted_Peer::Message& message : mPeer.mMessages) {
      list.append(message.mCommand);
    }
    return list;
  }

  void answer(const Scripted_Peer::Message& message) {
    using namespace Controller_Command;
    switch (message.mCommand) {
    case Compare:
      mPeer.send(Compare_Reply, mControllerProject.toData());
      break;
    case Program_End:
      mPeer.send(Program_Staged);
      break;
    case Program_Start:
      mPeer.send(Program_Started, mControllerProject.toData());
      break;
    case Project_Start: {
      DB_Project project;
      project.setData(mPeer.last(Record_Project));
      project.mControllerProjectId = QStringLiteral("K-4711");
      project.mGeneration = ++mGeneration;
      mPeer.send(Project_Started, project.toData() + '\0');
      break;
    }
    case Resource:
      mPeer.send(Resource_Stored, Resource_Message::unpack(message.mData)->mName + '\0');
      break;
    case Compact:
      mPeer.send(Compacted);
      break;
    default:
      break;
    }
  }

  Scripted_Peer mPeer;
  Main_Network_Client mClient{mSession};
  std::function<void(const Scripted_Peer::Message&)> mBefore; ///< sees each message before it is answered
  bool mIsSilent = false;
  DB_Controller_Project mControllerProject;
  int mGeneration = 0;
  QStringList mLabels; ///< "label value/maximum", without repetitions
};
