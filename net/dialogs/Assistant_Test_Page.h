#pragma once

#include <QWizardPage>

class Connection_Test_View;
class Controller_Link;

/// Second page of the assistant: tests the connection when asked to. Going on needs no successful test, but none that
/// runs.
class Assistant_Test_Page : public QWizardPage {
  Q_OBJECT

public:
  /// The link outlives the page.
  explicit Assistant_Test_Page(Controller_Link& link, QWidget* parent = nullptr);

  [[nodiscard]] Connection_Test_View& view() { return *mView; }
  [[nodiscard]] bool isComplete() const override;

private:
  void onStateChanged();

  Connection_Test_View* mView;
  bool mIsRunning = false;
};
