#pragma once

#include <QUuid>
#include <QWidget>

class Empty_Hint;
class Page_Tree_Model;
class Session_State;
class QFormLayout;
class QLabel;
class QLineEdit;
class QStackedLayout;

/// What there is to say about one page: its name, which can be edited here, kind, size, content, executing controller
/// and GUID; a hint while no page is chosen. The model outlives the view.
class Page_Details_View : public QWidget {
  Q_OBJECT

public:
  Page_Details_View(Page_Tree_Model& model, const Session_State& state, QWidget* parent = nullptr);

  /// Null for none.
  void setPage(const QUuid& guid);
  /// Reads the page's record again, and keeps what is being typed.
  void refresh();
  void setHint(const QString& text);

private:
  [[nodiscard]] QWidget* makeForm();
  [[nodiscard]] QLabel* addRow(const QString& text);
  void onNameEdited();

  Page_Tree_Model& mModel;
  const Session_State& mState;
  QUuid mGuid;
  QStackedLayout* mPages;
  Empty_Hint* mHint;
  QFormLayout* mForm;
  QLineEdit* mName;
  QLabel* mKind = nullptr;
  QLabel* mSize = nullptr;
  QLabel* mContent = nullptr;
  QLabel* mController = nullptr;
  QLineEdit* mGuidText;
};
