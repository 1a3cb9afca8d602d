#pragma once

#include "fb/model/FB_Binding_Search.h"
#include "ui/Checked_Line_Edit.h"

#include <functional>

class QStringListModel;

/// A field for what a pin is bound to: a group address by number or name, or an internal variable. What fits is offered
/// while one types; what may not be is marked with the reason.
class FB_Binding_Edit : public Checked_Line_Edit {
  Q_OBJECT

public:
  /// Gives the search over the project as it is now; asked anew for each key.
  using Search = std::function<FB_Binding_Search()>;

  explicit FB_Binding_Edit(Search search, QWidget* parent = nullptr);

signals:
  /// The text in the field, perhaps one of those offered, is to be taken over.
  void chosen();
  /// The button behind the text: to choose from all addresses.
  void pickerRequested();

protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  [[nodiscard]] bool mayShowReason() const override;

private:
  void search(const QString& text);

  Search mSearch;
  QStringListModel* mFound;
};
