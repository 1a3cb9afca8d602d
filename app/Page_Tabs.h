#pragma once

#include <QTabWidget>
#include <QUuid>

#include <array>
#include <optional>

class App_Settings;
class FB_Page;
class Project_Session;
class Project_Overview;
class Shown_Page;

/// The open pages of the project, one tab each, behind the first tab, the project itself, which stays where it is. A
/// tab is closed by its button, by the middle mouse button or with its page; the page stays in the project. Session and
/// settings outlive the tabs.
class Page_Tabs : public QTabWidget {
  Q_OBJECT

public:
  Page_Tabs(Project_Session& session, App_Settings& settings, Project_Overview& overview, QWidget* parent = nullptr);

  /// Shows the page in its tab, which is opened when it is not; nothing when there is no such page.
  void showPage(const QUuid& guid);
  /// As `showPage`, and selects a block or element there.
  void showChild(const QUuid& page, const QUuid& child);
  /// As `showPage`, and selects these blocks there.
  void showBlocks(const QUuid& page, const QList<QUuid>& blocks);
  /// The page that is seen; null for the project's tab.
  [[nodiscard]] QUuid currentPage() const;
  /// The canvas of the logic page that is seen; null when none is.
  [[nodiscard]] FB_Page* logicPage() const;

  /// On all logic pages: the values at the pins, and the order in which the blocks are executed.
  void setValuesShown(bool areShown);
  void setOrderShown(bool isShown);
  /// Number of the controller to which the studio is connected; none while it is not. Pages tell when it is not theirs.
  void setConnectedController(std::optional<int> number);
  [[nodiscard]] bool areValuesShown() const { return mAreValuesShown; }
  [[nodiscard]] bool isOrderShown() const { return mIsOrderShown; }

  void showPrevious();
  void showNext();
  void closeCurrent();
  /// The last shown page of the other kind (logic, visualisation), or its first one; false when the project has none.
  bool showOtherKind();
  /// Takes the keyboard focus.
  void enter();

signals:
  /// Another page is seen, or there are more or fewer tabs.
  void changed();
  /// A logic page got its tab.
  void logicPageOpened(FB_Page& page);

protected:
  bool eventFilter(QObject* object, QEvent* event) override;
  void tabInserted(int index) override;
  void tabRemoved(int index) override;

private:
  [[nodiscard]] Shown_Page* viewAt(int index) const;
  [[nodiscard]] QList<FB_Page*> logicPages() const;
  [[nodiscard]] QWidget* makeView(const QUuid& guid);
  [[nodiscard]] int indexOfPage(const QUuid& page) const;
  void closeTab(int index);
  void closeAll();
  void follow();
  void onCurrentChanged();
  void onTabMoved(int from, int to);

  Project_Session& mSession;
  App_Settings& mSettings;
  Project_Overview& mOverview;
  std::array<QUuid, 2> mLastOfKind; ///< logic, visualisation
  bool mAreValuesShown = false;
  bool mIsOrderShown = false;
  std::optional<int> mController;
  int mPressed = -1; ///< the tab on which the middle mouse button went down
};
