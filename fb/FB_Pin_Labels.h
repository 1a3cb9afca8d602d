#pragma once

#include "fb/model/FB_Pin_Ref.h"

#include <QRectF>

#include <optional>

class FB_Base;
class FB_Block_Host;
class FB_Texts;
class QPainter;
struct DB_Address_Binding;
struct FB_Live_Value;

/// What stands beside the pins of a block, outside of it: from the pin outwards the value that is shown, the bound
/// address or variable above the wire, and the mark of the pages to which the binding leads. Coordinates of the canvas.
class FB_Pin_Labels {
public:
  FB_Pin_Labels(const FB_Base& block, const FB_Block_Host& host);

  /// As far as the painter's clip reaches.
  void paint(QPainter& painter) const;
  /// Nothing is painted outside of that. Quick: a page asks it of all of its blocks.
  [[nodiscard]] static QRectF rect(const FB_Base& block);
  /// The pin whose page link is there.
  [[nodiscard]] std::optional<FB_Pin_Ref> linkAt(const QPointF& point) const;

private:
  struct Label {
    QString mText;
    QRectF mRect; ///< null for nothing
  };
  struct Row {
    Label mValue;
    Label mName;
    Label mLink;
    bool mIsStale = false; ///< the value
  };
  /// `column` is the width that the values of that side take, 0 when none are shown.
  [[nodiscard]] Row rowOf(FB_Side side, int index, double column) const;
  [[nodiscard]] static QString valueText(const FB_Live_Value& live);
  [[nodiscard]] double valueColumn(FB_Side side) const;
  /// Calls `onRow` with the reference and row of each pin that is bound and may be seen between these heights of the
  /// canvas; ends when that returns true.
  template <class On_Row>
  void visit(double top, double bottom, On_Row&& onRow) const;

  const FB_Base& mBlock;
  const FB_Block_Host& mHost;
  double mGrid;
  FB_Texts& mTexts;
};
