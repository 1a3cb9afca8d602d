#pragma once

#include <QString>
#include <QWidget>

class Elided_Label;
class QHBoxLayout;
class QToolButton;
class QVBoxLayout;

/// What stands beside the name of a property: its editor, buttons behind it, and below what is wrong with the value.
class FB_Property_Row : public QWidget {
  Q_OBJECT

public:
  /// Takes the editor over.
  explicit FB_Property_Row(QWidget& editor, QWidget* parent = nullptr);

  /// A button with an icon behind the editor. It leaves the keyboard focus where it is.
  QToolButton& addButton(const QString& icon, const QString& text, const QString& toolTip);
  /// What resetting does (German); empty where there is nothing to reset.
  void setReset(const QString& text);
  /// Empty for none. Tells `heightChanged` when the row gets or loses that line.
  void setFault(const QString& text);
  [[nodiscard]] QString fault() const { return mFaultText; }

signals:
  void resetRequested();
  void heightChanged();

private:
  QVBoxLayout* mLines;
  QHBoxLayout* mFirst;
  QToolButton* mReset = nullptr;
  Elided_Label* mFault = nullptr;
  QString mFaultText;
};
