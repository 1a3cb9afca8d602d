#pragma once

#include <QTimer>
#include <QWidget>

class Ets_Reading;
class QLabel;
class QProgressBar;
class QPushButton;

/// How far the reading of a file is, and a button that ends it.
class Address_Import_Progress : public QWidget {
  Q_OBJECT

public:
  /// The reading is asked between `start` and `stop` only.
  explicit Address_Import_Progress(const Ets_Reading& reading, QWidget* parent = nullptr);

  void start(const QString& fileName);
  /// True when the button had the keyboard.
  bool stop();

signals:
  /// It takes so long that it is worth showing.
  void worthShowing();
  void cancelRequested();

private:
  const Ets_Reading& mReading;
  QLabel* mText;
  QProgressBar* mBar;
  QPushButton* mCancel;
  QTimer mDelay;
  QTimer mTick;
};
