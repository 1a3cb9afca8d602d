#pragma once

#include <QWidget>

class QLabel;
class QProgressBar;

/// Something that takes its time, in the status bar: a word, how far it is, and a button that gives it up. Hidden while
/// there is nothing.
class Status_Progress : public QWidget {
  Q_OBJECT

public:
  explicit Status_Progress(QWidget* parent = nullptr);

  /// A `maximum` of 0: nobody knows how far it is.
  void showProgress(const QString& label, int value, int maximum);

signals:
  void cancelled();

private:
  QLabel* mLabel;
  QProgressBar* mBar;
};
