#pragma once

#include <QWidget>

class FB_Help_Browser;
class QLabel;
class QLineEdit;

/// Finds a text in the page that is shown: Enter goes to the next place, Shift+Enter to the one before. The browser
/// outlives the bar.
class FB_Help_Find_Bar : public QWidget {
  Q_OBJECT

public:
  explicit FB_Help_Find_Bar(FB_Help_Browser& browser, QWidget* parent = nullptr);

  /// Shows the bar and takes the keyboard there.
  void open();

public slots:
  void findNext() { find(false); }
  void findPrevious() { find(true); }

protected:
  /// Takes the marks from the page.
  void hideEvent(QHideEvent* event) override;

private:
  void onTextChanged();
  void find(bool isBackward);
  void tell(int places);

  FB_Help_Browser& mBrowser;
  QLineEdit* mText;
  QLabel* mPlaces;
};
