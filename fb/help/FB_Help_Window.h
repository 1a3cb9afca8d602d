#pragma once

#include "fb/model/FB_Help_Search.h"

#include <QWidget>

class App_Settings;
class Empty_Hint;
class FB_Help_Browser;
class FB_Help_Contents;
class FB_Help_Find_Bar;
class FB_Help_Hits;
class Filter_Edit;
class QLabel;
class QSplitter;
class QStackedWidget;

/// The window of the help, which stays open beside the work:
///
///     search field                | back, forward, overview, find
///     contents, or pages found    | page
///
/// The settings, which remember its place and size, outlive it.
class FB_Help_Window : public QWidget {
  Q_OBJECT

public:
  FB_Help_Window(App_Settings& settings, QWidget* parent);
  ~FB_Help_Window() override;

  /// Each brings the window to the front.
  void showPage(const QString& page);
  /// The page seen last, the overview at first; the keyboard in the contents.
  void showContents();
  /// The same, the keyboard in the search field.
  void showSearch();
  /// File name of the page that is shown.
  [[nodiscard]] QString page() const;

protected:
  void hideEvent(QHideEvent* event) override;

private:
  [[nodiscard]] QWidget* makeLeft();
  [[nodiscard]] QWidget* makeRight();
  void makeKeys();
  void bringUp();
  void placeBesideParent();
  void onPageChanged(const QString& page);
  void onSearch(const QString& text);
  void showHit(const QString& page);
  void onEscape();
  void remember();

  App_Settings& mSettings;
  FB_Help_Search mSearch;
  QSplitter* mSplitter;
  Filter_Edit* mFilter;
  QStackedWidget* mLists; ///< contents, pages found, none found
  FB_Help_Contents* mContents;
  FB_Help_Hits* mHits;
  Empty_Hint* mNone;
  QLabel* mCount;
  FB_Help_Browser* mBrowser;
  FB_Help_Find_Bar* mFind;
};
