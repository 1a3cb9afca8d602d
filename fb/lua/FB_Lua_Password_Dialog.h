#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

/// Asks for the password of a script file: once for reading one, twice for writing one, where none is possible too.
class FB_Lua_Password_Dialog : public QDialog {
  Q_OBJECT

public:
  enum class Purpose { Read, Write };

  FB_Lua_Password_Dialog(Purpose purpose, QWidget* parent);

  [[nodiscard]] QString password() const;

private:
  void check();

  Purpose mPurpose;
  QLineEdit* mPassword;
  QLineEdit* mRepeated;
  QLabel* mNote;
  QPushButton* mAccept;
};
