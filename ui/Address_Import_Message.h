#pragma once

#include <QWidget>

class QLabel;

/// Why an import does not go on, in a line of its own; not seen while there is nothing to tell.
class Address_Import_Message : public QWidget {
  Q_OBJECT

public:
  explicit Address_Import_Message(QWidget* parent = nullptr);

  /// Empty for none.
  void setError(const QString& text);
  /// Nothing is wrong: the user wanted it so.
  void setNotice(const QString& text);

private:
  QLabel* mIcon;
  QLabel* mText;
};
