#pragma once

#include <QPointer>
#include <QUuid>
#include <QWidget>

class App_Settings;
class FB_Dev_Properties_Address;
class FB_Dev_Properties_Page;
class FB_Page;
class Project_Session;
class QSplitter;
class QStackedWidget;

/// The property panel: what there is to set of the blocks that are selected on a logic page, above their general fields
/// and parameters, below their inputs and outputs with what these are bound to. Session and settings outlive it.
class FB_Dev_Properties : public QWidget {
  Q_OBJECT

public:
  FB_Dev_Properties(Project_Session& session, App_Settings& settings, QWidget* parent = nullptr);

  /// The selection of that page; clears the panel when nothing is selected there.
  void showBlocks(FB_Page& page);
  void clear();

  /// Between the two parts; its object name is the key of its state.
  [[nodiscard]] QSplitter* splitter() { return mSplitter; }
  [[nodiscard]] FB_Dev_Properties_Page& page() { return *mPage; }
  [[nodiscard]] FB_Dev_Properties_Address& address() { return *mAddress; }

signals:
  void pagePropertiesRequested(const QUuid& page);
  /// The window in which the block is edited.
  void editorRequested(const QUuid& block);
  /// Nothing is selected, and the user wants to insert a block.
  void catalogueRequested();
  /// The block at the other end of a binding shall be shown.
  void blockChosen(const QUuid& page, const QUuid& block);
  void statusText(const QString& text);

private:
  QStackedWidget* mStack;
  QSplitter* mSplitter;
  FB_Dev_Properties_Page* mPage;
  FB_Dev_Properties_Address* mAddress;
};
