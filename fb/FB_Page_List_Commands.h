#pragma once

#include "db/Edit_Result.h"

#include <QObject>
#include <QUuid>

class App_Settings;
class Project_Session;
class QWidget;

/// The commands of the list of logic pages as a user gives them, in a menu or in the tree of pages: asks what is to be
/// asked, edits, and tells what came of it.
class FB_Page_List_Commands : public QObject {
  Q_OBJECT

public:
  /// All outlive the object; `window` is the parent of what is asked.
  FB_Page_List_Commands(Project_Session& session, const App_Settings& settings, QWidget* window);

public slots:
  /// Behind that logic page, at the end when there is no such page.
  void onNewPage(const QUuid& after);
  void onDuplicate(const QUuid& page);
  void onRemove(const QUuid& page);
  void onProperties(const QUuid& page);
  void onMove(const QUuid& page, qsizetype place);

signals:
  /// A page was made and shall be shown.
  void pageMade(const QUuid& page);
  /// A command was not done; the German text tells why.
  void refused(const QString& text);

private:
  bool tell(const Edit_Result& result);
  /// Nothing is asked when the answer could not be carried out.
  [[nodiscard]] bool mayAsk(const QUuid& page);

  Project_Session& mSession;
  const App_Settings& mSettings;
  QWidget* mWindow;
};
