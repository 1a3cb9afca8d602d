#pragma once

#include <QLineEdit>
#include <QTimer>

/// The search field of a list. What is typed is handed over when the keys pause, or at once by `apply`; Escape clears
/// the field while there is something in it, Return and the down key lead into the list.
class Filter_Edit : public QLineEdit {
  Q_OBJECT

public:
  /// Milliseconds that a key waits for the next one. 0: several keys that wait already are one filtering.
  explicit Filter_Edit(int delay, QWidget* parent = nullptr);

  /// Hands the text over if that is still to be done.
  void apply();

signals:
  /// The text is another one, and is to be searched for now.
  void filterChanged(const QString& text);
  /// The text is handed over.
  void listWanted();

protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

private:
  [[nodiscard]] bool isClearing(const QKeyEvent& event) const;

  QTimer mDelay;
};
