#pragma once

#include <QAction>
#include <QObject>
#include <QPointF>

class FB_Page;

/// Cut, copy, paste, duplicate, delete and select all on a page: actions of the page with their usual keys, enabled as
/// long as there is something to be done. The page owns it.
class FB_Page_Commands : public QObject {
  Q_OBJECT

public:
  explicit FB_Page_Commands(FB_Page& page);

  [[nodiscard]] QAction* cut() const { return mCut; }
  [[nodiscard]] QAction* copy() const { return mCopy; }
  [[nodiscard]] QAction* paste() const { return mPaste; }
  [[nodiscard]] QAction* duplicate() const { return mDuplicate; }
  [[nodiscard]] QAction* remove() const { return mRemove; }
  [[nodiscard]] QAction* selectAll() const { return mSelectAll; }

  /// Brings all of them up to date.
  void update();
  /// What is pasted comes to that point of the canvas.
  void pasteAt(const QPointF& point);

private:
  QAction* add(const QString& text, const QString& icon, const QKeySequence& keys, void (FB_Page_Commands::*run)());
  void onCut();
  void onCopy();
  /// False, and told, when the clipboard cannot take the selected blocks.
  bool copySelected();
  void onPaste();
  void onDuplicate();
  void onRemove();
  void onSelectAll();

  FB_Page& mPage;
  QAction* mCut;
  QAction* mCopy;
  QAction* mPaste;
  QAction* mDuplicate;
  QAction* mRemove;
  QAction* mSelectAll;
  QPointF mPasted;      ///< where the last paste was asked for
  int mPastedAgain = 0; ///< how often at the same place
};
