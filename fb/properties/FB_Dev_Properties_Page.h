#pragma once

#include <QUuid>
#include <QWidget>

class App_Settings;
class FB_Page;
class Project_Session;

/// The upper part of the property panel: general fields and parameters of the selected blocks. Session and settings
/// outlive it.
class FB_Dev_Properties_Page : public QWidget {
  Q_OBJECT

public:
  FB_Dev_Properties_Page(Project_Session& session, App_Settings& settings, QWidget* parent = nullptr);

  void showBlocks(FB_Page& page);
  void clear();

signals:
  void pagePropertiesRequested(const QUuid& page);
  void editorRequested(const QUuid& block);
  void statusText(const QString& text);
};
