#pragma once

#include <QTextDocument>
#include <QTimer>
#include <QWidget>

class FB_Lua_Code_Edit;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

/// The strip in which a script is searched, and its texts are replaced. Escape hides it.
class FB_Lua_Find_Bar : public QWidget {
  Q_OBJECT

public:
  FB_Lua_Find_Bar(FB_Lua_Code_Edit& edit, QWidget* parent);

  /// Shows it with what is selected in the script; with the second line for what is put in its place.
  void bringUp(bool isReplacing);
  /// From the cursor; goes on at the other end of the script.
  void findNext();
  void findPrevious();
  void replaceOne();
  void replaceAll();

protected:
  void keyPressEvent(QKeyEvent* event) override;
  void hideEvent(QHideEvent* event) override;

private:
  [[nodiscard]] QTextDocument::FindFlags flags() const;
  [[nodiscard]] bool isMatch(const QTextCursor& cursor) const;
  void find(bool isBackward);
  void refresh();

  FB_Lua_Code_Edit& mEdit;
  QLineEdit* mText;
  QLineEdit* mReplacement;
  QCheckBox* mCase;
  QCheckBox* mWords;
  QLabel* mCount;
  QPushButton* mReplace;
  QPushButton* mReplaceAll;
  QWidget* mReplaceRow;
  QTimer mLater;
};
