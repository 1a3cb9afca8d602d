#pragma once

#include "net/dialogs/Controller_Access.h"
#include "net/dialogs/Exchange_Dialog.h"

class Session_State;

/// Writes the open project to the controller and tells that it is saved there. Whoever wants no window runs
/// `Project_Transfer` itself.
class Dev_Write_Persistent_Project_Dlg : public Exchange_Dialog {
  Q_OBJECT

public:
  Dev_Write_Persistent_Project_Dlg(const Controller_Access& access, QWidget* parent);

  /// Whether the user is asked first: when the setting says so and no assistant is at work. `nowMs` is milliseconds
  /// since 1970 (UTC).
  [[nodiscard]] static bool mustAsk(const App_Settings& settings, const Session_State& state, qint64 nowMs);
  /// What is asked.
  [[nodiscard]] static QString question();

protected:
  void onSucceeded() override;
  void onCancelled() override;

private:
  /// False when the dialog has gone meanwhile.
  [[nodiscard]] bool tell(const QString& text);

  Controller_Access mAccess;
};
