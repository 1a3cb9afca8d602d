#pragma once

#include "ui/Shown_Page.h"

#include <QWidget>

#include <optional>

class App_Settings;
class FB_Page;
class FB_Page_Parent_ScrollView;
class Project_Session;

/// The tab of a logic page: its canvas, which scrolls. Session and settings outlive the tab.
class Logic_Page_Tab : public QWidget, public Shown_Page {
  Q_OBJECT

public:
  Logic_Page_Tab(Project_Session& session, App_Settings& settings, const QUuid& page, QWidget* parent = nullptr);

  [[nodiscard]] FB_Page& canvas() const { return *mCanvas; }
  /// Number of the controller to which the studio is connected; none while it is not.
  void setConnectedController(std::optional<int> number);
  [[nodiscard]] QUuid page() const override;
  void showChild(const QUuid& guid) override;
  void enter() override;

private:
  FB_Page* mCanvas;
  FB_Page_Parent_ScrollView* mScroll;
};
