#pragma once

#include <QIconEngine>
#include <QString>

/// The pictures of one icon, ":/icons/NAME.png" and its other sizes, 16 to 48 device pixels. Each is read when it is
/// first shown, and one that fits exactly is never scaled. In one colour where two would not be seen: that of disabled
/// text when disabled, white on the coloured grounds of what is selected, checked or under the pointer.
class Theme_Icon : public QIconEngine {
public:
  /// `name` without path and ending; see exists().
  explicit Theme_Icon(const QString& name);

  [[nodiscard]] static bool exists(const QString& name);

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;

  /// Square, never above the largest picture.
  [[nodiscard]] QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
  [[nodiscard]] QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;

  /// `size` in device pixels, already scaled.
  [[nodiscard]] QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal scale) override;
  [[nodiscard]] QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override;
  [[nodiscard]] QString key() const override;
  [[nodiscard]] QIconEngine* clone() const override;

private:
  QString mName;
};
