#pragma once

#include "db/DB_Connections.h"

#include <QWizardPage>

class Checked_Line_Edit;
class QLabel;
class QLineEdit;

/// Last page of the assistant: what the connection is called, and who logs on.
class Assistant_Name_Page : public QWizardPage {
  Q_OBJECT

public:
  explicit Assistant_Name_Page(QWidget* parent = nullptr);

  /// What was typed for the same controller stays.
  void setConnection(const DB_Connections::ITEM& connection);
  [[nodiscard]] DB_Connections::ITEM connection() const;
  [[nodiscard]] bool isComplete() const override;

private:
  DB_Connections::ITEM mConnection;
  QLabel* mAddress;
  QLabel* mSerialNumber;
  Checked_Line_Edit* mName;
  QLineEdit* mUser;
  QLineEdit* mPassword;
};
