#pragma once

#include "db/Edit_Result.h"
#include "db/History.h"
#include "fb/FB_Block_Host.h"
#include "fb/FB_Gesture.h"
#include "fb/FB_Page_Blocks.h"
#include "fb/model/FB_Page_Edits.h"

#include <QPointer>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

class App_Settings;
class FB_Auto_Scroll;
class FB_Inline_Edit;
class FB_Page_Commands;
class FB_Page_Follower;
class FB_Page_Links;
class FB_Page_Overlay;
class Project_Session;
class QMenu;
class QScrollArea;

/// The canvas of a logic page: its blocks are its children, the wires lie under them. It shows the records and follows
/// them; every edit goes through the edits of the page's model. Points are pixels of the canvas where nothing else is
/// said, positions in records pixels of the unzoomed page. Session and settings outlive it.
class FB_Page : public QWidget, public FB_Block_Host {
  Q_OBJECT

public:
  static constexpr double cZoomMinimum = 0.5;
  static constexpr double cZoomMaximum = 4.0;

  FB_Page(Project_Session& session, App_Settings& settings, const QUuid& page, QWidget* parent = nullptr);
  ~FB_Page() override;

  [[nodiscard]] QUuid pageGuid() const { return mGuid; }
  [[nodiscard]] Project_Session& session() const { return mSession; }
  [[nodiscard]] App_Settings& settings() const { return mSettings; }
  [[nodiscard]] FB_Page_Blocks& blocks() { return mBlocks; }
  [[nodiscard]] const FB_Page_Blocks& blocks() const { return mBlocks; }
  /// Cut, copy, paste and the others, with their keys.
  [[nodiscard]] FB_Page_Commands& commands() const { return *mCommands; }

  // The zoom, in steps of 0.1; while the page is not visible the first three do nothing.
  void zoomIn();
  void zoomOut();
  void zoomReset();
  /// Rounded to a whole step; the point of the canvas stays where it is on the screen.
  void setZoom(double zoom, const QPointF& anchor);
  void zoomToFit();
  void zoomToSelection();

  // What is seen.
  [[nodiscard]] QRect visiblePart() const;
  [[nodiscard]] QPoint scrollPosition() const;
  void scrollTo(const QPoint& position);
  /// Selects the block and brings it into the visible part.
  void showBlock(const QUuid& block);
  /// The same with several; those that are not on this page do not count.
  void showBlocks(const QList<QUuid>& blocks);
  /// A rectangle of the unzoomed page; when it does not fit, its upper left corner.
  void bringIntoView(const QRectF& rect);
  /// The visible part is another one.
  void viewChanged();
  void showExecutionOrder(bool isShown);
  [[nodiscard]] bool isShowingExecutionOrder() const { return mShowsOrder; }
  using Value_Source = std::function<FB_Live_Value(const DB_Address_Binding&)>;
  void setValueSource(Value_Source source);
  /// At the pins, and by the colours of the wires.
  void showValues(bool isShown);
  /// All values may be others.
  void valuesChanged();
  /// There are new values of these addresses and variables: only what shows them is drawn anew.
  void valuesChanged(const QSet<QUuid>& keys);

  // The selection.
  [[nodiscard]] QList<QUuid> selectedBlocks() const;
  void select(const QList<QUuid>& blocks);
  void selectAll();
  /// Null for none.
  void selectOnly(FB_Base* block);
  /// Without telling yet, while a gesture is under way.
  void showSelection(const QSet<QUuid>& blocks);
  void tellSelection();

  // The edits; each tells the user when it is refused.
  bool insertBlock(int type);
  /// The point is rounded to whole pixels, beyond the page's edge it comes to 5 pixels before that.
  bool dropBlock(int type, const QPointF& point);
  /// A block type of the catalogue, also from beside the page; the point is of the canvas.
  void takeDrop(QDropEvent& event, const QPointF& point);
  bool moveBlocks(const QHash<QUuid, QPointF>& positions);
  bool nudge(const QPointF& offset);
  void alignToGrid();
  bool align(FB_Page_Edits::Edge edge);
  bool distribute(Qt::Orientation orientation);
  /// `from` is the pin at which drawing the wire began.
  /// The first block is the one at whose pin the drag began.
  bool connectPins(const FB_Base& source, FB_Side sourceSide, int sourcePin, const FB_Base& target, FB_Side targetSide,
                   int targetPin);
  bool connectPins(const FB_Pin_Ref& from, const FB_Pin_Ref& to);
  bool removeConnection(const FB_Connection& connection);
  bool moveConnection(const FB_Connection& connection, FB_Side end, const FB_Pin_Ref& to);
  /// Makes group addresses for the pins of these blocks; asks block by block what of those that are bound, and tells
  /// what was done. False when nothing was.
  bool generateVariables(const QList<QUuid>& blocks);
  bool removeSelected();
  bool duplicate(const QList<QUuid>& blocks, const QPointF& offset);
  bool paste(const QByteArray& packed, const QPointF& position);
  /// Opens the text of a comment, or the value of a constant, for typing; nothing for other blocks.
  void editText(const QUuid& guid);
  /// Tells a refusal; the page follows at once what was changed.
  bool finish(const Edit_Result& result);
  bool finish(const FB_Page_Edits::Result& result);

  void cancelConnectionDrag();
  void cancelGesture();
  void rebuildConnections();
  void setModified();

  /// While the operating mode is on nothing may be edited.
  [[nodiscard]] bool mayEdit() const;
  /// 0 when blocks do not come to rest on the grid.
  [[nodiscard]] int snapGrid() const;
  /// Tells the text in a box when the present event is done with.
  void tellLater(const QString& text);

  // For gestures.
  /// Makes the page larger, if need be, for a rectangle of the unzoomed page.
  void growTo(const QRectF& rect);
  void updateSize();
  /// Wires, and what lies over the blocks.
  void updateCanvas();
  void updateOverlay();
  void showCursor(Qt::CursorShape shape);
  [[nodiscard]] const FB_Gesture* gesture() const { return mGesture.get(); }

  // FB_Block_Host
  [[nodiscard]] const ProjectDatabase& database() const override;
  [[nodiscard]] bool isOperatingMode() const override { return !mayEdit(); }
  [[nodiscard]] double zoom() const override { return mTenths / 10.0; }
  [[nodiscard]] bool isDebugToolTip() const override;
  [[nodiscard]] bool isShowingValues() const override { return mShowsValues; }
  [[nodiscard]] FB_Live_Value valueOf(const DB_Address_Binding& binding) const override;
  [[nodiscard]] QString linkedPages(const FB_Pin_Ref& pin) const override;
  [[nodiscard]] double labelRoom(const FB_Pin_Ref& pin) const override;
  void blockPressed(FB_Base& block, const FB_Pin_Ref* pin, QMouseEvent& event) override;
  void blockMoved(FB_Base& block, QMouseEvent& event) override;
  void blockReleased(FB_Base& block, QMouseEvent& event) override;
  void blockDoubleClicked(FB_Base& block, const FB_Pin_Ref* pin, QMouseEvent& event) override;
  void pinHovered(FB_Base& block, const FB_Pin_Ref* pin) override;
  void addressDropped(const FB_Pin_Ref& pin, const QUuid& address) override;
  void blockSelected(FB_Base& block) override;
  bool generateVariables(FB_Base& block) override;
  void openBlockEditor(FB_Base& block) override;
  void sendValue(const DB_Address_Binding& binding, const QString& typed) override;

signals:
  /// Also when a block of the selection came or went.
  void selectionChanged();
  /// An edit was made on this page.
  void modified();
  void zoomChanged(double zoom);
  /// The other page was chosen that uses what a pin is bound to; the block there.
  void linkActivated(const QUuid& page, const QUuid& block);
  void propertiesRequested(const QUuid& page);
  /// A block was chosen whose properties shall be seen.
  void blockPropertiesRequested();
  /// The window of that block shall open.
  void editorRequested(const QUuid& block);
  /// Of an address or a variable.
  void usagesRequested(const QUuid& key);
  void typeUsagesRequested(int type);
  /// The help page of that file name.
  void helpRequested(const QString& page);
  void statusText(const QString& text);
  /// The page's record is another one, or it is gone.
  void pageChanged();

protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

private:
  void tellInserted();
  [[nodiscard]] QScrollArea* scrollArea() const;
  [[nodiscard]] FB_Pointer pointerOf(const QMouseEvent& event) const;
  [[nodiscard]] bool startsPan(const QMouseEvent& event) const;
  [[nodiscard]] bool isBusy() const;
  void begin(std::unique_ptr<FB_Gesture> gesture);
  void followMouse(const QMouseEvent& event);
  void releaseGesture(const FB_Pointer& pointer);
  void endGesture();
  void onScrolled();
  void followLink(const FB_Pin_Ref& pin);
  void leaveSpace();
  void closeEditor();
  void askToSeparate(int wire);
  [[nodiscard]] std::optional<FB_Side> wireEndAt(int wire, const QPointF& point) const;
  void hover(const QList<int>& net);
  void setTenths(int tenths, const QPointF& anchor);
  void zoomTo(const QRectF& rect);
  void follow(const QSet<QUuid>& changed, bool arePagesChanged);
  void refreshBindings();
  void onStepApplied(const std::vector<History::Applied>& records);
  void onSettingChanged();
  void openPageMenu(const QPoint& screen);
  void openBlockMenu(FB_Base& block, const FB_Pin_Ref* pin, const QPoint& screen);
  void paintLabels(QPainter& painter, const QRectF& region, int index) const;
  /// The wires look as the values say.
  void lightWires();
  [[nodiscard]] FB_Wires::Light lightOf(int wire) const;
  void addAlignment(QMenu& menu);
  void addUses(QMenu& menu, const FB_Base& block, const FB_Pin_Ref* pin);
  void addVariable(QMenu& menu, const DB_Address_Binding& binding);
  void renameVariable(const QUuid& key, const QString& name);
  void addLinks(QMenu& menu, const FB_Pin_Ref& pin, QSet<QUuid>& known);
  void pressBlock(FB_Base& block, const FB_Pin_Ref* pin, const FB_Pointer& pointer);
  [[nodiscard]] QPointF visibleCentre() const;

  Project_Session& mSession;
  App_Settings& mSettings;
  QUuid mGuid;
  int mTenths = 10; ///< the zoom in steps, so that it never drifts
  FB_Page_Blocks mBlocks;
  QSet<QUuid> mLastMade; ///< blocks that came with the last changes of the records
  FB_Page_Follower* mFollower;
  FB_Page_Overlay* mOverlay;
  FB_Page_Commands* mCommands;
  FB_Auto_Scroll* mAutoScroll;
  FB_Page_Links* mLinks;
  std::unique_ptr<FB_Gesture> mGesture;
  QPointer<FB_Inline_Edit> mEditor;
  FB_Pointer mLastPointer; ///< of the gesture
  QSet<int> mNet;          ///< wires that are lit
  Value_Source mValues;
  bool mShowsValues = false;
  bool mShowsOrder = false;
  bool mIsSpaceHeld = false;
  bool mHasCursor = false;
  bool mIsSelecting = false; ///< what the blocks tell of their selection is known
};
