#pragma once

#include <QPointF>
#include <QWidget>

class QPainter;

/// Where the mouse is, and which keys are held.
struct FB_Pointer {
  QPointF mPage;   ///< in pixels of the canvas
  QPointF mScreen; ///< in pixels of the screen
  Qt::KeyboardModifiers mModifiers;
};

/// What the mouse does on a page between a press and its release. Exactly one of `release` and `cancel` ends it, as the
/// last call; until then nothing of the project has changed.
class FB_Gesture {
public:
  FB_Gesture() = default;
  FB_Gesture(const FB_Gesture&) = delete;
  FB_Gesture& operator=(const FB_Gesture&) = delete;
  virtual ~FB_Gesture() = default;

  virtual void move(const FB_Pointer& pointer) = 0;
  virtual void release(const FB_Pointer& pointer) = 0;
  /// Puts everything back.
  virtual void cancel() = 0;

  /// Above the blocks, in pixels of the canvas.
  virtual void paint(QPainter& /*painter*/) const {}
  /// Whether the page scrolls when the pointer comes to the edge of its visible part.
  [[nodiscard]] virtual bool scrollsAtEdge() const { return true; }
  /// A wire is being drawn, or one of its ends is carried.
  [[nodiscard]] virtual bool isConnecting() const { return false; }
};
