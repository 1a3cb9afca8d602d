#pragma once

#include <QUuid>
#include <QWidget>

class App_Settings;
class FB_Page;
class Project_Session;

/// The lower part of the property panel: inputs and outputs of the selected block with what they are bound to. Session
/// and settings outlive it.
class FB_Dev_Properties_Address : public QWidget {
  Q_OBJECT

public:
  FB_Dev_Properties_Address(Project_Session& session, App_Settings& settings, QWidget* parent = nullptr);

  void showBlocks(FB_Page& page);
  void clear();

signals:
  void blockChosen(const QUuid& page, const QUuid& block);
  void statusText(const QString& text);
};
