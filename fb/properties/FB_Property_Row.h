#pragma once

#include <QString>
#include <QWidget>

class QHBoxLayout;
class QLabel;
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
  /// What is wrong with the value, and what it would do; empty for none. The row grows with the text.
  void setRemark(const QString& fault, const QString& warning);
  [[nodiscard]] QString fault() const { return mFault; }
  [[nodiscard]] QString warning() const { return mWarning; }

signals:
  void resetRequested();
  void heightChanged();

protected:
  void resizeEvent(QResizeEvent* event) override;

private:
  void fitRemark();

  QVBoxLayout* mLines;
  QHBoxLayout* mFirst;
  QToolButton* mReset = nullptr;
  QWidget* mLast; ///< of the first line
  QLabel* mRemark = nullptr;
  int mRemarkHeight = 0;
  QString mFault;
  QString mWarning;
};
