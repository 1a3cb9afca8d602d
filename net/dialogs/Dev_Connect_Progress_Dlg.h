#pragma once

#include "net/Controller_Link.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QTimer>

class QLabel;
class QProgressBar;
class QPushButton;

/// Shows how an attempt to connect goes: which one it is, when the next follows, the log-on. Closes when the link is
/// up and when the attempt is ended elsewhere; a refusal stays with its reason until it is closed, so nobody else needs
/// to tell it. Closing before ends the attempt. The parent's commands keep their keys.
class Dev_Connect_Progress_Dlg : public QDialog {
  Q_OBJECT

public:
  /// Made after the link was told to connect; the link outlives the dialog.
  Dev_Connect_Progress_Dlg(Controller_Link& link, QWidget* parent);

  /// Shows a dialog, without waiting for it, while the link is on its way up; it deletes itself.
  static void follow(Controller_Link& link, QWidget* parent);
  /// One is shown: it tells a refusal, so nobody else does.
  [[nodiscard]] static bool isShown();

  void reject() override;

private:
  void onState(Controller_Link::State state);
  void onRefused(const QString& text);
  void updateText();

  Controller_Link& mLink;
  QTimer mTimer;
  QElapsedTimer mClock;
  QString mTarget;
  bool mIsOver = false;
  QLabel* mTitle;
  QLabel* mDetail;
  QProgressBar* mProgress;
  QPushButton* mButton = nullptr;
};
