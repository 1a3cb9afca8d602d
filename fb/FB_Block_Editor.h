#pragma once

#include <QMainWindow>
#include <QUuid>

class App_Settings;
class DB_FB_Control;
class Project_Session;

/// A window of its own in which one block is edited: its script, its table of registers. It stays open beside the work
/// and closes when the project or the block is gone; with something typed that the project does not have it stays open
/// without its block, which undo may bring back. Session and settings outlive it.
class FB_Block_Editor : public QMainWindow {
  Q_OBJECT

public:
  FB_Block_Editor(Project_Session& session, App_Settings& settings, const QUuid& block, QWidget* parent);

  [[nodiscard]] QUuid block() const { return mBlock; }
  /// Whether something was typed that the project does not have.
  [[nodiscard]] virtual bool isUnsaved() const { return false; }
  /// Hands what was typed to the project, or asks whether to. False when the user wants to go on editing.
  [[nodiscard]] virtual bool finish() = 0;
  /// The records of the project changed, perhaps that of the block; it is there unless something is unsaved.
  virtual void follow() = 0;

signals:
  /// The help page of that file name: "fb_lua_script.html".
  void helpRequested(const QString& page);
  /// Something for the status bar.
  void statusText(const QString& text);

protected:
  [[nodiscard]] Project_Session& session() const { return mSession; }
  [[nodiscard]] App_Settings& settings() const { return mSettings; }
  /// Null when it is gone.
  [[nodiscard]] const DB_FB_Control* record() const;

  /// Names the window after the block, its page and what is edited there: "Zuluft (Technik) – Formel", with the mark of
  /// what is not handed over yet.
  void showTitle(const QString& what);

  /// What a window says that stays open without its block.
  [[nodiscard]] static QString goneText();
  /// Asks whether to throw away what was typed for a block that is gone.
  [[nodiscard]] bool mayDiscard();
  /// Asks `finish`, unless the project is closed.
  void closeEvent(QCloseEvent* event) override;

private:
  Project_Session& mSession;
  App_Settings& mSettings;
  QUuid mBlock;
};
