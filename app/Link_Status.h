#pragma once

#include "net/Controller_Link.h"

#include <QWidget>

class QLabel;

/// How the link to the controller stands, in the status bar: a sign, a word and the connection. A link that was lost is
/// told until the next one is dialled or the user ends it.
class Link_Status : public QWidget {
  Q_OBJECT

public:
  explicit Link_Status(QWidget* parent = nullptr);

  /// `connection` is its name and address; for a lost link that of the one that stood.
  void showState(Controller_Link::State state, const QString& connection, bool isLost);
  /// What is shown: "Verbunden: Demo-Steuerung (127.0.0.1)".
  [[nodiscard]] QString text() const { return mFull; }

protected:
  void changeEvent(QEvent* event) override;

private:
  void showText();

  QLabel* mIcon;
  QLabel* mText;
  QString mFull;
};
