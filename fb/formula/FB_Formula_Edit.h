#pragma once

#include "fb/model/FB_Formula_Language.h"

#include <QPlainTextEdit>

class QCompleter;

/// The field in which a formula is written: its fault is underlined, names are completed. Tab leaves it.
class FB_Formula_Edit : public QPlainTextEdit {
  Q_OBJECT

public:
  explicit FB_Formula_Edit(QWidget* parent = nullptr);

  void showFault(const FB_Formula_Language::Fault& fault);
  /// At the cursor, in place of what is selected; of a function with its bracket.
  void insertWord(const QString& word, bool isFunction);

protected:
  void keyPressEvent(QKeyEvent* event) override;

private:
  void offerNames();
  void complete(const QString& name);
  /// The name before the cursor, as far as it is written.
  [[nodiscard]] QString begunName() const;

  QCompleter* mCompleter;
};
