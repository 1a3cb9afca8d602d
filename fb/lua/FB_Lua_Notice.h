#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

/// A strip with a text that the user should see, and perhaps a button for what to do; hidden without a text.
class FB_Lua_Notice : public QWidget {
  Q_OBJECT

public:
  explicit FB_Lua_Notice(QWidget* parent = nullptr);

  /// Without a button when its text is empty.
  void showText(const QString& text, const QString& button = {});

signals:
  void pressed();

private:
  QLabel* mText;
  QPushButton* mButton;
};
