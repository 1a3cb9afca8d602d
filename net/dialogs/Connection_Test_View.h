#pragma once

#include "net/Connection_Test.h"

#include <QWidget>

class Controller_Link;
class QLabel;
class QListWidget;
class QProgressBar;
class QPushButton;

/// Runs the test of a connection and shows its steps. It takes the link for the test: when one stands, the user is
/// asked before. Somebody who connects meanwhile ends the test.
class Connection_Test_View : public QWidget {
  Q_OBJECT

public:
  /// The link outlives the view.
  explicit Connection_Test_View(Controller_Link& link, QWidget* parent = nullptr);
  ~Connection_Test_View() override;

  void setOptions(const Connection_Test::Options& options) { mOptions = options; }
  /// What is to be tested; ends a running test and forgets what the last one has told.
  void setConnection(const DB_Connections::ITEM& connection);
  void start();
  void cancel();
  [[nodiscard]] bool isRunning() const { return mTest && mTest->isRunning(); }
  [[nodiscard]] bool isRight() const { return mIsRight; }

public slots:
  /// The owner connects the client's signals to these.
  void onNetworkRead(Network_Message* message, uchar* data);
  void onNetworkConnect(bool isConnected, const DB_Connections::ITEM& connection);

signals:
  /// A test begins or has ended.
  void stateChanged();

private:
  [[nodiscard]] bool mayTakeLink();
  void addLine(const QString& text, const QString& iconName);
  void onFinished(bool isOk);
  void updateState();

  Controller_Link& mLink;
  Connection_Test::Options mOptions;
  DB_Connections::ITEM mConnection;
  Connection_Test* mTest = nullptr;
  bool mIsRight = false; ///< the last test went well
  QLabel* mTitle;
  QListWidget* mSteps;
  QProgressBar* mProgress;
  QPushButton* mStart;
};
