#pragma once

#include "base/Datapoint_Id.h"

#include <QByteArray>
#include <QDialog>
#include <QUuid>

#include <optional>

class Checked_Line_Edit;
class Project_Session;
class QComboBox;
class QHBoxLayout;
class QLabel;
class QPushButton;

/// Sends values to a group address: a field as its datapoint type needs it, checked while it is typed, and beside it
/// what is known of the address, live. It stays open, so that one value can be sent after another. The session outlives
/// it.
class Address_Value_Dialog : public QDialog {
  Q_OBJECT

public:
  Address_Value_Dialog(Project_Session& session, const QUuid& key, QWidget* parent = nullptr);

private:
  void addEditor(QHBoxLayout& row);
  void addChoices();
  /// Empty when what is typed is no value.
  [[nodiscard]] std::optional<QByteArray> payload(QString* error = nullptr) const;
  void updateValue();
  void updateState();
  void onSend();

  Project_Session& mSession;
  QUuid mKey;
  Datapoint_Id mType;
  QComboBox* mChoice = nullptr; ///< one of both
  Checked_Line_Edit* mEdit = nullptr;
  QLabel* mValue;  ///< the last that is known
  QLabel* mResult; ///< of the last sending
  QPushButton* mSend = nullptr;
};
