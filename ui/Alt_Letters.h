#pragma once

#include <QObject>

class QCoreApplication;

/// Keeps letters that are pressed together with Alt out of text fields: they are access keys, also where nothing
/// answers to them at the moment, and the toolkit would type them. AltGr still types.
class Alt_Letters : public QObject {
  Q_OBJECT

public:
  /// Works for the whole application as long as it lives.
  Alt_Letters(QCoreApplication& application, QObject* parent);

protected:
  bool eventFilter(QObject* object, QEvent* event) override;
};
