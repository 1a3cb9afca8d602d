#pragma once

#include "db/Page_Content_Model.h"
#include "ui/Shown_Page.h"

#include <QTimer>
#include <QUuid>
#include <QWidget>

class App_Settings;
class Filter_Edit;
class Project_Session;
class QLabel;
class Result_List;

/// What stands on one page, as a list: a filter field, the blocks or elements, a line that counts. Follows every change
/// while it is seen. Session and settings outlive the view.
class Page_Content_View : public QWidget, public Shown_Page {
  Q_OBJECT

public:
  Page_Content_View(Project_Session& session, App_Settings& settings, const QUuid& page, QWidget* parent = nullptr);
  ~Page_Content_View() override;

  [[nodiscard]] QUuid page() const override { return mPage; }
  /// Selects a block or element; a filter that hides it is cleared.
  void showChild(const QUuid& guid) override;
  /// Takes the keyboard focus.
  void enter() override;

protected:
  void showEvent(QShowEvent* event) override;

private:
  void refreshSoon();
  void refresh();
  void updateCount();

  Project_Session& mSession;
  App_Settings& mSettings;
  QUuid mPage;
  Page_Content_Model mModel;
  QTimer mTimer; ///< many changes of one turn are shown once
  Filter_Edit* mFilter;
  Result_List* mList;
  QLabel* mCount;
};
