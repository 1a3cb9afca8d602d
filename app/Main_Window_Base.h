#pragma once

#include "app/Start_Page.h"

#include <QList>
#include <QMainWindow>

class Address_View;
class App_Settings;
class FB_Dev_New_Control;
class FB_Dev_Properties;
class Page_Tabs;
class Page_View;
class Project_Overview;
class Project_Session;
class QAction;
class QSplitter;
class QStackedWidget;
class QTabWidget;
class QUuid;

/// The frame of the main window: its parts and their layout, its title, what it remembers of its looks.
///
///     mSplitterMain   stack (start page | page tabs)   |   tabs (Navigation | Variablen)
///
/// On a kiosk it fills the screen, without menus and tool bars, and remembers nothing.
class Main_Window_Base : public QMainWindow {
  Q_OBJECT

public:
  /// Shows the window in its last place and size, a kiosk's on the whole screen.
  void showAsRemembered();
  /// In the status bar, for some seconds.
  void showInfo(const QString& text);

signals:
  /// The start page or the project is shown.
  void workChanged();

protected:
  /// Session and settings must outlive the window.
  Main_Window_Base(Project_Session& session, App_Settings& settings, bool isKiosk);

  /// What start page and project overview offer to do.
  struct Steps {
    QList<QAction*> mStart;
    QList<Start_Page::Step> mFirst;
    QList<QAction*> mNext;
  };
  /// After the menus and tool bars are there.
  void buildContents(const Steps& steps);
  /// Stores geometry, bars, splitters and headers.
  void rememberViews();

  void showStartPage();
  void showProjectPage();
  void showAddresses();
  /// Each shows its tab and selects there.
  void showAddress(const QUuid& key);
  void showPage(const QUuid& guid);
  void showChild(const QUuid& page, const QUuid& child);
  /// A panel of the tab "Navigation" comes to the front, without the keyboard.
  void showPanel(QWidget& panel);
  /// Each takes the keyboard there.
  void enterWork();
  void enterNavigation();
  void enterVariables();

  [[nodiscard]] bool isKiosk() const { return mIsKiosk; }
  [[nodiscard]] Start_Page& startPage() { return *mStartPage; }
  [[nodiscard]] Project_Overview& overview() { return *mOverview; }
  [[nodiscard]] Page_Tabs& pageTabs() const { return *mPageTabs; }
  [[nodiscard]] bool isProjectShown() const;
  [[nodiscard]] Address_View& addressView() { return *mAddressView; }
  [[nodiscard]] Page_View& pageView() { return *mPageView; }
  [[nodiscard]] FB_Dev_New_Control& catalogue() { return *mCatalogue; }
  [[nodiscard]] FB_Dev_Properties& properties() { return *mProperties; }

  Project_Session& mSession;
  App_Settings& mSettings;

private:
  void buildStack(const Steps& steps);
  void buildTabs();
  void connectParts();
  void restoreViews();
  void restoreTabs();
  void rememberTabs();
  void updateTitle();
  [[nodiscard]] QList<QSplitter*> splitters() const;

  bool mIsKiosk;
  QSplitter* mSplitterMain = nullptr;
  QStackedWidget* mStack = nullptr;
  QTabWidget* mTabs = nullptr;
  Start_Page* mStartPage = nullptr;
  Project_Overview* mOverview = nullptr;
  Page_Tabs* mPageTabs = nullptr;
  Page_View* mPageView = nullptr;
  FB_Dev_New_Control* mCatalogue = nullptr;
  FB_Dev_Properties* mProperties = nullptr;
  Address_View* mAddressView = nullptr;
};
