#pragma once

#include <QPointF>
#include <QTimer>

class QScrollArea;

/// Scrolls as long as the pointer of a gesture is at, or beyond, the edge of the visible part: the farther, the faster.
class FB_Auto_Scroll : public QObject {
  Q_OBJECT

public:
  explicit FB_Auto_Scroll(QObject* parent = nullptr);

  /// The pointer came there, in pixels of the screen. The area lives until `stop`.
  void track(QScrollArea& area, const QPointF& screen);
  void stop();

signals:
  void scrolled();

private:
  void onTimeout();

  QTimer mTimer;
  QScrollArea* mArea = nullptr;
  QPoint mStep; ///< pixels each time
};
