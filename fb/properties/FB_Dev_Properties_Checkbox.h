#pragma once

#include "fb/properties/FB_Dev_Properties_Editor.h"

#include <QCheckBox>

/// The check box of a parameter; stored as "0" or "1". Any number but 0 is shown checked, half checked where the blocks
/// differ.
class FB_Dev_Properties_Checkbox : public QCheckBox, public FB_Dev_Properties_Editor {
  Q_OBJECT

public:
  explicit FB_Dev_Properties_Checkbox(int index, QWidget* parent = nullptr);

  [[nodiscard]] QWidget& widget() override { return *this; }
  void showValue(const FB_Shared_Value& value) override;
  [[nodiscard]] QString storedText() const override;

signals:
  void valueChanged(FB_Dev_Properties_Checkbox* editor);

private slots:
  void onClicked();
};
