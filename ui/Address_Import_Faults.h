#pragma once

#include <QWidget>

struct Ets_Groups;
class QLabel;
class QPlainTextEdit;

/// What of a file was not to be read, line by line; not seen while there is nothing to tell.
class Address_Import_Faults : public QWidget {
  Q_OBJECT

public:
  explicit Address_Import_Faults(QWidget* parent = nullptr);

  /// Null for no file.
  void setGroups(const Ets_Groups* groups);

private:
  QLabel* mCount;
  QPlainTextEdit* mTexts;
};
