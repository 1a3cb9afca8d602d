#pragma once

#include <QPointF>
#include <QRectF>

#include <optional>
#include <vector>

/// A few rows and columns on which one wire may run, and the search for its best way on them: short, with few bends,
/// through none of the obstacles that were told.
class FB_Wire_Grid {
public:
  /// The way begins rightwards or up or down, and ends rightwards or up or down. It keeps within `reach` of the
  /// rectangle around both points, and `margin` away from obstacles.
  FB_Wire_Grid(const QPointF& start, const QPointF& goal, double reach, double margin);

  void addRow(double y);
  /// With a line at that distance on each of its sides.
  void addObstacle(const QRectF& obstacle, double distance);

  /// From start to goal, with every crossing on the way; nothing when the obstacles leave no way.
  [[nodiscard]] std::optional<std::vector<QPointF>> search();

private:
  static constexpr int cRow = 0;    ///< came along a row
  static constexpr int cColumn = 1; ///< came along a column

  struct Node {
    int mX = 0;
    int mY = 0;
    int mCame = cRow;
  };
  struct State {
    double mCost = -1; ///< from the start; negative: not reached
    int mFrom = -1;
    bool mIsDone = false;
  };
  struct Open {
    double mEstimate;
    int mNode;
    /// The smallest first; among equals the older, for the same ways on every machine.
    friend bool operator<(const Open& a, const Open& b) {
      return a.mEstimate != b.mEstimate ? a.mEstimate > b.mEstimate : a.mNode > b.mNode;
    }
  };

  void addColumn(double x);
  void markObstacles();
  [[nodiscard]] QPointF pointOf(const Node& node) const;
  [[nodiscard]] size_t place(int x, int y) const;
  [[nodiscard]] size_t indexOf(const Node& node) const;
  [[nodiscard]] Node nodeOf(int index) const;
  [[nodiscard]] bool isFree(const Node& from, const Node& to) const;
  [[nodiscard]] double estimate(const Node& node) const;
  void step(int from, const Node& to);
  [[nodiscard]] std::vector<QPointF> wayTo(int node) const;

  QPointF mStart;
  QPointF mGoal;
  QRectF mBounds;
  double mMargin;
  std::vector<QRectF> mObstacles; ///< with the margin
  std::vector<double> mColumns;
  std::vector<double> mRows;
  std::vector<char> mIsRowBlocked;    ///< from a crossing to the next one on the right
  std::vector<char> mIsColumnBlocked; ///< from a crossing to the next one below
  std::vector<State> mStates;
  std::vector<Open> mOpen; ///< a heap
};
