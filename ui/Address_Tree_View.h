#pragma once

#include "ui/Project_Tree_View.h"

#include <QSet>
#include <QUuid>

class Address_Tree_Model;

/// The tree of group addresses. What is expanded, the current row and the part that is seen survive a new building of
/// the model; while a filter is set every hit is seen, and afterwards the tree is expanded as it was before.
class Address_Tree_View : public Project_Tree_View {
  Q_OBJECT

public:
  /// Model and state outlive the view.
  Address_Tree_View(Address_Tree_Model& model, const Session_State& state, QWidget* parent = nullptr);

private:
  void onAboutToBeReset();
  void onReset();

  Address_Tree_Model& mModel;
  QSet<QUuid> mExpanded; ///< without a filter
  QUuid mCurrent;
  bool mWasFiltered = false;
  int mScroll = 0; ///< without a filter
};
