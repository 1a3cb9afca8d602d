#pragma once

#include <QTabWidget>
#include <QUuid>

#include <array>

class App_Settings;
class Page_Content_View;
class Project_Session;
class Project_Overview;

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
  /// The page that is seen; null for the project's tab.
  [[nodiscard]] QUuid currentPage() const;

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

protected:
  bool eventFilter(QObject* object, QEvent* event) override;
  void tabInserted(int index) override;
  void tabRemoved(int index) override;

private:
  [[nodiscard]] Page_Content_View* viewAt(int index) const;
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
  int mPressed = -1;                ///< the tab on which the middle mouse button went down
};
