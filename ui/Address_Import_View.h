#pragma once

#include "ui/Project_Tree_View.h"

class Address_Import_Model;

/// The rows of an import's comparison. Space and Return turn the ticks of the selected rows over.
class Address_Import_View : public Project_Tree_View {
  Q_OBJECT

public:
  /// Model and state outlive the view.
  Address_Import_View(Address_Import_Model& model, const Session_State& state, QWidget* parent = nullptr);

protected:
  void keyPressEvent(QKeyEvent* event) override;

private:
  void turnTicks();

  Address_Import_Model& mModel;
};
