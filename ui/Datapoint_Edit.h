#pragma once

#include "base/Datapoint_Id.h"
#include "ui/Checked_Line_Edit.h"

class QStringListModel;

/// A field for a datapoint type: its number, or some words of its name with the list of types that hold them. Empty is
/// no type.
class Datapoint_Edit : public Checked_Line_Edit {
  Q_OBJECT

public:
  explicit Datapoint_Edit(QWidget* parent = nullptr);

  /// None while the text is no type.
  [[nodiscard]] Datapoint_Id type() const;

protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  [[nodiscard]] bool mayShowReason() const override;

private:
  void search(const QString& text);

  QStringListModel* mFound; ///< the types that the list shows
};
