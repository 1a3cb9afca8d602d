#pragma once

#include "ui/Shown_Page.h"

#include <QWidget>

class App_Settings;
class FB_Page;
class Project_Session;

/// The tab of a logic page: its canvas, which scrolls. Session and settings outlive the tab.
class Logic_Page_Tab : public QWidget, public Shown_Page {
  Q_OBJECT

public:
  Logic_Page_Tab(Project_Session& session, App_Settings& settings, const QUuid& page, QWidget* parent = nullptr);

  [[nodiscard]] FB_Page& canvas() const { return *mCanvas; }
  [[nodiscard]] QUuid page() const override;
  void showChild(const QUuid& guid) override;
  void enter() override;

private:
  FB_Page* mCanvas;
};
