#include "ui/Theme_Icon.h"

#include "ui/Theme.h"

#include <QFile>
#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>

#include <algorithm>
#include <utility>

namespace {

/// Sizes in device pixels and what their file names end with, smallest first.
constexpr std::pair<int, const char*> cPictures[]{
    {16, "_16"}, {20, "_20"}, {24, ""}, {32, "_32"}, {48, "@2x"},
};
constexpr int cLargest = std::rbegin(cPictures)->first;

QString fileOf(const QString& name, const char* suffix) {
  return QStringLiteral(":/icons/%1%2.png").arg(name, QLatin1String(suffix));
}

QPixmap load(const QString& name, int size) {
  const auto* found = std::find_if(std::begin(cPictures), std::end(cPictures),
                                   [size](const auto& picture) { return picture.first >= size; });
  QPixmap result(fileOf(name, found->second));
  result.setDevicePixelRatio(1);
  if (found->first != size) {
    result = result.scaled(size, size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  }
  return result;
}

enum class Look { Plain, Disabled, White };

Look lookOf(QIcon::Mode mode, QIcon::State state) {
  if (mode == QIcon::Disabled) {
    return Look::Disabled;
  }
  // Pressed in, selected or under the pointer: the ground has the accent's colour or comes too close to it.
  return mode == QIcon::Normal && state == QIcon::Off ? Look::Plain : Look::White;
}

QPixmap coloured(const QPixmap& pixmap, Look look) {
  QPixmap result = pixmap;
  if (look != Look::Plain) {
    using Theme::Role;
    QPainter painter(&result);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(result.rect(), Theme::color(look == Look::Disabled ? Role::DisabledText : Role::AccentText));
  }
  return result;
}

} // namespace

Theme_Icon::Theme_Icon(const QString& name) : mName(name) {}

bool Theme_Icon::exists(const QString& name) {
  return QFile::exists(fileOf(name, ""));
}

void Theme_Icon::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) {
  const qreal ratio = painter->device()->devicePixelRatio();
  painter->drawPixmap(rect, scaledPixmap(rect.size() * ratio, mode, state, ratio));
}

QSize Theme_Icon::actualSize(const QSize& size, QIcon::Mode /*mode*/, QIcon::State /*state*/) {
  const int side = std::min({size.width(), size.height(), cLargest});
  return {side, side};
}

QPixmap Theme_Icon::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) {
  return scaledPixmap(size, mode, state, 1);
}

QPixmap Theme_Icon::scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal /*scale*/) {
  const int side = actualSize(size, mode, state).width();
  if (side <= 0) {
    return {};
  }
  const Look look = lookOf(mode, state);
  const QString cacheKey = QStringLiteral("Theme_Icon/%1/%2/%3").arg(mName).arg(side).arg(int(look));
  QPixmap result;
  if (!QPixmapCache::find(cacheKey, &result)) {
    result = coloured(load(mName, side), look);
    QPixmapCache::insert(cacheKey, result);
  }
  return result;
}

QList<QSize> Theme_Icon::availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/) {
  QList<QSize> result;
  for (const auto& [size, suffix] : cPictures) {
    result.append({size, size});
  }
  return result;
}

QString Theme_Icon::key() const {
  return QStringLiteral("Theme_Icon");
}

QIconEngine* Theme_Icon::clone() const {
  return new Theme_Icon(*this);
}
