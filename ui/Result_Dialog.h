#pragma once

#include "db/Address_Usage_Watch.h"

#include <QDialog>
#include <QList>
#include <QUuid>

class App_Settings;
class Project_Session;
class QBoxLayout;
class QLabel;
class QPushButton;
class Filter_Edit;
class QSplitter;
class QVBoxLayout;
class Result_List;

/// A window that lists something about the open project and stays open beside the work: a filter field, the lists, a
/// line that counts. What it lists stays true while the project is edited; it closes with the project.
class Result_Dialog : public QDialog {
  Q_OBJECT

public:
  ~Result_Dialog() override;

  /// Shows the window, or brings it to the front.
  void bringUp();

signals:
  void addressChosen(const QUuid& key);
  void pageChosen(const QUuid& guid);
  /// A block or element, and the page that it stands on.
  void childChosen(const QUuid& pageGuid, const QUuid& guid);

protected:
  /// Session and settings outlive the window. Its place is remembered under `name`.
  Result_Dialog(Project_Session& session, App_Settings& settings, const QString& name, const QSize& size,
                QWidget* parent);

  /// Reads the project anew.
  virtual void refresh() = 0;
  /// The text of the filter field is another one.
  virtual void applyFilter() = 0;
  /// The list that Enter and the down key in the filter field lead to.
  [[nodiscard]] virtual Result_List& mainList() = 0;

  /// Below the others, the columns as last left; `share` of the height, as against that of the others.
  void addList(Result_List& list, int share);
  /// Which of the lists are seen, in the order of adding.
  void showLists(const QList<bool>& seen);
  void setCountText(const QString& text);
  /// What the filter field is called, says while it is empty, and tells in its tool tip.
  void setFilterTexts(const QString& label, const QString& placeholder, const QString& toolTip);
  [[nodiscard]] QBoxLayout& top() { return *mTop; }
  /// All of the window, one below the other: `top`, the lists, the line that counts.
  [[nodiscard]] QVBoxLayout& rows() { return *mRows; }
  [[nodiscard]] QLabel& filterLabel() const { return *mFilterLabel; }
  [[nodiscard]] Filter_Edit& filter() const { return *mFilter; }
  [[nodiscard]] const ProjectDatabase& database() const;
  [[nodiscard]] const Address_Usage& usage() { return mWatch.usage(); }

  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

  Project_Session& mSession;

private:
  void makeFilter();
  void placeBesideTabs();
  void remember();

  App_Settings& mSettings;
  Address_Usage_Watch mWatch;
  QVBoxLayout* mRows;
  QBoxLayout* mTop;
  QLabel* mFilterLabel;
  Filter_Edit* mFilter;
  QSplitter* mBody;
  QLabel* mCount;
  QPushButton* mClose;
  QList<Result_List*> mLists;
  QList<int> mShares; ///< of the height, while all lists are seen
};
