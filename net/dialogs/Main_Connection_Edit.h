#pragma once

#include "db/Connection_Edits.h"

#include <QDialog>

#include <functional>
#include <vector>

class Checked_Line_Edit;
class Controller_Link;
class Project_Session;
class QComboBox;
class QFormLayout;
class QGroupBox;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

/// The editor of one connection. What may not be is marked while it is typed; only the fields of the chosen kind can be
/// used. Accepting changes the project, as one undo step, unless the list was changed elsewhere meanwhile.
/// Passwords are typed blind. Closes with the project.
class Main_Connection_Edit : public QDialog {
  Q_OBJECT

public:
  static constexpr int cNew = -1;

  /// The connection with that index, or a new one. Session and link outlive the dialog.
  Main_Connection_Edit(Project_Session& session, Controller_Link& link, int index, QWidget* parent);

  /// What the fields say now.
  [[nodiscard]] DB_Connections::ITEM connection() const;
  void accept() override;

private:
  [[nodiscard]] QWidget* makeController(const DB_Connections::ITEM& item);
  [[nodiscard]] QWidget* makeRelay(const DB_Connections::ITEM& item);
  [[nodiscard]] QWidget* makeButtons();
  Checked_Line_Edit* addChecked(QFormLayout& form, const QString& label, const QString& toolTip, const QString& text,
                                Connection_Edits::Field field);
  QLineEdit* addLine(QFormLayout& form, const QString& label, const QString& toolTip, const QString& text);
  QLineEdit* addPassword(QFormLayout& form, const QString& label, const QString& toolTip, const QString& text);
  void onKindChanged();
  void updateState();
  void onTest();

  Project_Session& mSession;
  Controller_Link& mLink;
  int mIndex;
  DB_Connections::ITEM mItem; ///< as it was
  bool mIsOutdated = false;   ///< the list was changed elsewhere since
  std::vector<Checked_Line_Edit*> mChecked;
  QComboBox* mKind = nullptr;
  Checked_Line_Edit* mName = nullptr;
  Checked_Line_Edit* mAddress = nullptr;
  QLineEdit* mUser = nullptr;
  QLineEdit* mPassword = nullptr;
  QLineEdit* mSerialNumber = nullptr;
  QPlainTextEdit* mDescription = nullptr;
  QGroupBox* mRelay = nullptr;
  Checked_Line_Edit* mRelayMail = nullptr;
  QLineEdit* mRelayPassword = nullptr;
  Checked_Line_Edit* mRelayDns = nullptr;
  Checked_Line_Edit* mRelayHost = nullptr;
  QPushButton* mTest = nullptr;
  QPushButton* mAccept = nullptr;
};
