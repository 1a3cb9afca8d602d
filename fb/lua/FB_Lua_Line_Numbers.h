#pragma once

#include <QWidget>

class FB_Lua_Code_Edit;

/// The margin left of a script with the numbers of its lines; the line of an error has a mark.
class FB_Lua_Line_Numbers : public QWidget {
  Q_OBJECT

public:
  explicit FB_Lua_Line_Numbers(FB_Lua_Code_Edit& edit);

  [[nodiscard]] QSize sizeHint() const override;
  /// From 1; 0 for none.
  void setErrorLine(int line);

protected:
  void paintEvent(QPaintEvent* event) override;
  /// Selects the line.
  void mousePressEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

private:
  FB_Lua_Code_Edit& mEdit;
  int mErrorLine = 0;
};
