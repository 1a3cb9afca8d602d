#pragma once

#include <QObject>

class QCoreApplication;
class QLineEdit;

/// Which keys text fields leave alone, besides those that the toolkit says:
///
/// - Letters together with Alt are access keys, also where nothing answers to them at the moment; AltGr still types.
/// - Undo and redo are the window's while the field has nothing to take back or to do again.
/// - Going from word to word is the window's going from page to page while the field is empty.
class Field_Keys : public QObject {
  Q_OBJECT

public:
  /// Works for the whole application as long as it lives.
  Field_Keys(QCoreApplication& application, QObject* parent);

  /// The field itself, or the one in a number field or a drop-down list, which hold the focus for it; null without.
  [[nodiscard]] static QLineEdit* lineOf(QObject* object);

protected:
  bool eventFilter(QObject* object, QEvent* event) override;
};
