#pragma once

#include "fb/properties/FB_Dev_Properties_Editor.h"

#include <QComboBox>

#include <optional>

/// The drop-down list of a parameter; stored is the value that belongs to the entry, never its place in the list. A
/// stored value that no entry has is shown as it is.
class FB_Dev_Properties_ComboBox : public QComboBox, public FB_Dev_Properties_Editor {
  Q_OBJECT

public:
  explicit FB_Dev_Properties_ComboBox(int index, QWidget* parent = nullptr);

  struct Entry {
    QString mText;
    QString mValue; ///< as it is stored
    friend bool operator==(const Entry&, const Entry&) = default;
  };
  /// The value that is shown stays. The same entries again cost nothing.
  void setEntries(const QList<Entry>& entries);

  [[nodiscard]] QWidget& widget() override { return *this; }
  void showValue(const FB_Shared_Value& value) override;
  [[nodiscard]] QString storedText() const override;

signals:
  void valueChanged(FB_Dev_Properties_ComboBox* editor);

protected:
  void wheelEvent(QWheelEvent* event) override;

private slots:
  void onCurrentIndexChanged(int index);
  void onCurrentTextChanged(const QString& text);

private:
  void report();

  QList<Entry> mEntries;
  FB_Shared_Value mValue;
};
