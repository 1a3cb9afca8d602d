#pragma once

#include "fb/model/FB_Pin_Ref.h"

#include <QHash>
#include <QPointer>
#include <QSet>
#include <QUuid>
#include <QWidget>

class Address_Usage_Watch;
class Address_Value_Menu;
class App_Settings;
class DB_FB_Control;
class Empty_Hint;
class FB_Binding_Delegate;
class FB_Page;
class FB_Page_Follower;
class Filter_Edit;
class Project_Session;
class QMenu;
class QStackedWidget;
class QTreeWidgetItem;
struct DB_Address_Binding;
struct Edit_Result;

/// The lower part of the property panel: inputs and outputs of the selected blocks with what they are bound to. They
/// are bound by dragging an address onto the row, by typing into the cell, or by choosing from all addresses. The rows
/// follow the records; a cell that is being typed in stays open. Session and settings outlive it.
class FB_Dev_Properties_Address : public QWidget {
  Q_OBJECT

public:
  class TreeWidgetIO;

  /// The pins of more blocks are not shown.
  static constexpr qsizetype cMostBlocks = 20;

  FB_Dev_Properties_Address(Project_Session& session, App_Settings& settings, QWidget* parent = nullptr);
  ~FB_Dev_Properties_Address() override;

  void showBlocks(FB_Page& page);
  void clear();

signals:
  void blockChosen(const QUuid& page, const QUuid& block);
  void statusText(const QString& text);

protected:
  void resizeEvent(QResizeEvent* event) override;

private slots:
  void onTree_itemClicked(QTreeWidgetItem* item, int column);
  void onTree_itemDoubleClicked(QTreeWidgetItem* item, int column);
  void onTree_itemChanged(QTreeWidgetItem* item, int column);
  void onTree_customContextMenuRequested(const QPoint& at);

private:
  void setUpTree(App_Settings& settings);
  [[nodiscard]] bool mayEdit() const;

  // What is shown.
  void refresh();
  void showRows(const QList<const DB_FB_Control*>& blocks);
  void syncPins(QTreeWidgetItem& parent, const DB_FB_Control& block, QSet<FB_Pin_Ref>& present);
  void fill(QTreeWidgetItem& item, const DB_FB_Control& block, const FB_Pin_Ref& pin);
  void showReason(QTreeWidgetItem& item, const QString& reason);
  void applyFilter();
  /// Gives the names of the pins the room that they need, unless the user chose another width.
  void fitPins();

  // What is done.
  [[nodiscard]] const DB_Address_Binding* bindingOf(const FB_Pin_Ref& pin) const;
  void addOtherEnds(QMenu& menu, const FB_Pin_Ref& pin);
  void bindTyped(const FB_Pin_Ref& pin, const QString& text);
  void pick(const FB_Pin_Ref& pin);
  void unbind(const QList<FB_Pin_Ref>& pins);
  [[nodiscard]] QList<FB_Pin_Ref> selectedPins() const;
  /// The group addresses that they are bound to.
  [[nodiscard]] QList<QUuid> addressesOf(const QList<FB_Pin_Ref>& pins) const;
  void finish(const Edit_Result& result);

  Project_Session& mSession;
  Address_Usage_Watch* mWatch;
  QPointer<FB_Page> mPage;
  QList<QUuid> mBlocks; ///< that are selected, in the order of the page
  QStackedWidget* mStack;
  Empty_Hint* mHint;
  Filter_Edit* mFilter;
  TreeWidgetIO* mTree;
  FB_Binding_Delegate* mDelegate;
  Address_Value_Menu* mValueMenu;
  QList<QUuid> mValueKeys; ///< that the menu works on
  QHash<FB_Pin_Ref, QTreeWidgetItem*> mRows;
  QHash<QUuid, QTreeWidgetItem*> mBranches; ///< of several blocks
  bool mIsWidthChosen = false;              ///< by the user, of the pins
  bool mIsFilling = false;                  ///< changes of items are no edits
};
