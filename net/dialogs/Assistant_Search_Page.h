#pragma once

#include "net/Controller_Discovery.h"

#include <QTimer>
#include <QWizardPage>

class Checked_Line_Edit;
class QLabel;
class QProgressBar;
class QPushButton;
class QTreeWidget;

/// First page of the assistant: the controllers that answer a search, and an address to choose or to type. Searches
/// from its making on.
class Assistant_Search_Page : public QWizardPage {
  Q_OBJECT

public:
  /// Until nothing found is told as such, in ticks of the search.
  static constexpr int cPatienceTicks = 12;

  Assistant_Search_Page(const QString& addresses, quint16 port, int tickMs, QWidget* parent = nullptr);

  /// What was found under the address, or a direct connection to it; name and serial number may be empty.
  [[nodiscard]] DB_Connections::ITEM connection() const;
  [[nodiscard]] bool isComplete() const override;
  void stopSearch();

private:
  void startSearch();
  void onFound();
  void onChosen();
  void updateState();

  Controller_Discovery* mDiscovery;
  QTimer mPatience;
  QString mFault; ///< why it cannot be searched
  QTreeWidget* mList;
  QLabel* mHint;
  QProgressBar* mProgress;
  QPushButton* mSearch;
  Checked_Line_Edit* mAddress;
};
