#pragma once

#include <QUuid>

/// A page of the project as a tab shows it: implemented by the widget of the tab.
class Shown_Page {
public:
  Shown_Page() = default;
  Shown_Page(const Shown_Page&) = delete;
  Shown_Page& operator=(const Shown_Page&) = delete;
  virtual ~Shown_Page() = default;

  [[nodiscard]] virtual QUuid page() const = 0;
  /// Selects a block or element, if it is there, and makes it seen.
  virtual void showChild(const QUuid& guid) = 0;
  /// Takes the keyboard focus.
  virtual void enter() = 0;
};
