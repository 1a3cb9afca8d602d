#pragma once

#include <QPlainTextEdit>
#include <QTextBlock>

class FB_Lua_Completion;
class FB_Lua_Line_Numbers;
class FB_Lua_Script_Highlight;

/// A field for a script: line numbers, the current line and matching brackets marked, indenting, commenting,
/// completion, tool tips on functions, and a place for one error. Lines count from 1.
class FB_Lua_Code_Edit : public QPlainTextEdit {
  Q_OBJECT

public:
  explicit FB_Lua_Code_Edit(QWidget* parent = nullptr);

  /// Another text in place of all; undo in the field brings the old one back.
  void replaceAll(const QString& text);
  /// Marks a line; 0 for none.
  void setError(int line, const QString& message);
  void goToLine(int line);
  /// The identifier at the cursor.
  [[nodiscard]] QString word() const;
  /// Takes the words of the script into the completion.
  void learnWords(const QString& script);
  /// Grounds of all places that were searched for.
  void setMatches(const QList<QTextCursor>& matches);
  void toggleComment();
  /// In tenths of the usual size, 5 to 30.
  void setZoom(int tenths);
  [[nodiscard]] int zoom() const { return mZoom; }
  [[nodiscard]] FB_Lua_Completion& completion() { return *mCompletion; }

  // For the margin.
  [[nodiscard]] QTextBlock firstLine() const { return firstVisibleBlock(); }
  [[nodiscard]] QRectF lineRect(const QTextBlock& block) const {
    return blockBoundingGeometry(block).translated(contentOffset());
  }
  void scrollBy(QWheelEvent& event) { wheelEvent(&event); }

protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

private:
  bool handleEditKey(const QKeyEvent& event);
  void changeLines(void (*change)(QTextCursor&));
  void offerCompletion(bool isAsked);
  void complete(const QString& word);
  void showCallTip();
  void showTip(const QPoint& globalPos, const QPoint& pos);
  void placeMargin();
  void updateMarks();

  FB_Lua_Line_Numbers* mNumbers;
  FB_Lua_Script_Highlight* mHighlight;
  FB_Lua_Completion* mCompletion;
  QList<QTextCursor> mMatches;
  QString mError;
  int mErrorLine = 0;
  int mZoom = 10;
};
