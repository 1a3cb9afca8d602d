#pragma once

#include "db/DB_FB_Control.h"
#include "fb/model/FB_Pin_Ref.h"

#include <QWidget>

#include <optional>

class FB_Block_Host;
class FB_Property_Editors;
class FB_Texts;
class QMenu;

/// A function block on a logic page: the common base of all block widgets, one class per type.
///
/// It draws from a copy of its record, which the page replaces when the record changed, and never writes the project:
/// what the mouse does goes to the host, and every edit through the page's model. Coordinates are pixels of the widget
/// where nothing else is said; the widget is a child of the page's canvas, which owns it.
class FB_Base : public QWidget {
  Q_OBJECT

public:
  FB_Base(QWidget* canvas, FB_Block_Host& host, const DB_FB_Control& record);
  ~FB_Base() override;

protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dragLeaveEvent(QDragLeaveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

public:
  // The operations of a block, in a fixed order. What a type does not override holds for it as said here.

  /// The user has just put the block on the page: a type may show what it needs first.
  virtual void inserted();
  /// Takes over a record of the same block: it draws from that from now on.
  virtual void setRecord(const DB_FB_Control& record);
  [[nodiscard]] virtual const DB_FB_Control& record() const;
  /// Another record was taken over: a type brings up to date what it has worked out from it.
  virtual void recordChanged();
  /// Makes the editors of the block's parameters, as its type declares them.
  virtual void setupProperties(FB_Property_Editors& editors) const;
  /// The parameters of the copy were changed: makes its pins anew and measures the block.
  virtual void applyProperties();
  /// The user changed that parameter: a type enables the editors that depend on it.
  virtual void parameterEdited(FB_Property_Editors& editors, int index) const;
  /// Draws the block as far as the painter's clip reaches: body, title, pins and what its type adds.
  virtual void paintBlock(QPainter& painter) const;
  /// Binds a pin of the copy, or with an empty binding unbinds it. Does nothing when there is no such pin.
  virtual void setBinding(FB_Side side, int index, const DB_Address_Binding& binding);
  /// Makes group addresses for the pins, asks what of those that are bound, and tells what was done; false when nothing
  /// was. Only of blocks that `offersVariables`.
  virtual bool generateVariables();
  /// Whether it stands for an element of a visualisation page.
  [[nodiscard]] virtual bool belongsToElement() const;
  /// Whether a double click opens a window of its own: a script, a table of switching times.
  [[nodiscard]] virtual bool hasEditor() const;
  /// Opens that window; false when there is none.
  virtual bool openEditor();
  /// Adds what only this type can do to the context menu; true when it added something.
  virtual bool fillContextMenu(QMenu& menu);
  /// Whether the controller can rest it: not of a block that is never executed.
  [[nodiscard]] virtual bool canBeDisabled() const;
  /// Whether variables can be made for its pins.
  [[nodiscard]] virtual bool offersVariables() const;
  /// Brings the addresses cached at the pins of the copy up to date, inputs first.
  virtual void refreshBindings();
  /// New values are known for what the pins are bound to: a type that shows one inside repaints.
  virtual void valuesChanged();
  /// Places and sizes the widget after the zoom of the page changed. The position in the record stays.
  virtual void applyZoom();
  /// Rich text for the pins that are hovered.
  [[nodiscard]] virtual QString toolTipText() const;
  /// Addresses, variables, values and page links beside the pins, in coordinates of the canvas.
  virtual void paintLabels(QPainter& painter) const;
  /// Draws what the type shows inside of its body.
  virtual void paintContent(QPainter& painter) const;
  /// The file name of the type's help page: "fb_and.html".
  [[nodiscard]] virtual QString helpFileName() const;
  /// Tells the host when it is selected. No pin is hovered when it is no longer.
  virtual void setSelected(bool isSelected);
  /// The text of the title band, of one or more lines.
  [[nodiscard]] virtual QString title() const;
  /// A short text that stands in the middle of the body, such as a constant's value; empty for none.
  [[nodiscard]] virtual QString bodyText() const;
  /// Whether it stands in for a block of a type that this studio does not know.
  [[nodiscard]] virtual bool isStandIn() const;
  /// Makes the pins of the copy anew from its parameters.
  virtual void rebuildPins();

  [[nodiscard]] QUuid guid() const { return mRecord.mGuid; }
  [[nodiscard]] int type() const { return mRecord.mType; }
  [[nodiscard]] bool isSelected() const { return mIsSelected; }
  /// Pixels of one pitch of the page's grid at the present zoom.
  [[nodiscard]] double grid() const { return mGrid; }

  /// Its host's, in the font for the present zoom.
  [[nodiscard]] FB_Texts& texts() const;
  /// What its type's body looks like.
  [[nodiscard]] FB_Body body() const;
  /// The pin that is hit at that point: half a grid around it, at least 6 pixels.
  [[nodiscard]] std::optional<FB_Pin_Ref> pinAt(const QPointF& point) const;
  /// Where a wire ends, in coordinates of the canvas.
  [[nodiscard]] QPointF pinPoint(FB_Side side, int index) const;
  /// Lights up a pin, as when a wire is dragged over it; null for none.
  void setHoveredPin(const FB_Pin_Ref* pin);
  /// By their indices, -1 for none.
  void setHoveredPins(int input, int output);
  [[nodiscard]] int hoveredInput() const { return mHoveredInput; }
  [[nodiscard]] int hoveredOutput() const { return mHoveredOutput; }

  /// What `paintLabels` may paint on, in coordinates of the canvas; never smaller, sometimes larger than that.
  [[nodiscard]] QRectF labelRect() const;
  /// The pin whose page link stands at that point of the canvas.
  [[nodiscard]] std::optional<FB_Pin_Ref> linkAt(const QPointF& canvasPoint) const;

protected:
  bool event(QEvent* event) override;
  [[nodiscard]] FB_Block_Host& host() const { return mHost; }
  /// The copy, for what a type works out in it.
  [[nodiscard]] DB_FB_Control& copy() { return mRecord; }

private:
  void measure();
  /// The mouse is there, with no button held.
  void hoverAt(const QPointF& point);
  void leave();

  FB_Block_Host& mHost;
  DB_FB_Control mRecord;
  double mGrid = 0;
  QSizeF mBaseSize; ///< at zoom 1
  int mHoveredInput = -1;
  int mHoveredOutput = -1;
  bool mIsSelected = false;
  QUuid mDraggedAddress; ///< of the drag that is above the block; null for others
};
