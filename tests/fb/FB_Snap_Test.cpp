#include "fb/model/FB_Snap.h"

#include <QtTest>

/// A block of 100 x 40 at (10, 10) with a pin's row at 30 is dragged; another stands at (200, 100).
class FB_Snap_Test : public QObject {
  Q_OBJECT

private slots:
  void comesToRest() {
    FB_Snap::Lines own;
    own.add(QRectF(10, 10, 100, 40));
    own.mRows = {30};
    FB_Snap::Lines others;
    others.add(QRectF(200, 100, 128, 64));
    others.mRows = {130};
    struct Case {
      const char* mName = nullptr;
      QPointF mOffset;
      int mGrid = 0;
      QPointF mPlace; ///< of the upper left corner
      bool mHasX = false;
      bool mHasY = false;
    };
    for (const Case& row : {Case{"free", {3.5, 7}, 0, {13.5, 17}, false, false},
                            {"grid", {3, 8}, 8, {16, 16}, false, false},
                            {"halves away from zero", {2, -14}, 8, {16, -8}, false, false},
                            {"left to left", {187, 7}, 8, {200, 16}, true, false},
                            {"right to left", {92, 7}, 8, {100, 16}, true, false},
                            {"row to row", {0, 103}, 8, {8, 110}, false, true},
                            {"the nearer of two", {0, 86}, 0, {10, 100}, false, true},
                            {"at the reach", {185, 0}, 0, {195, 10}, false, false}}) {
      const FB_Snap::Result result = FB_Snap::snap(row.mOffset, own, {10, 10}, others, 5, row.mGrid);
      QVERIFY2(QPointF(10, 10) + result.mOffset == row.mPlace, row.mName);
      QVERIFY2(result.mGuideX.has_value() == row.mHasX && result.mGuideY.has_value() == row.mHasY, row.mName);
    }
  }
};

QTEST_GUILESS_MAIN(FB_Snap_Test)
#include "FB_Snap_Test.moc"
