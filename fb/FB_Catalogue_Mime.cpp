#include "fb/FB_Catalogue_Mime.h"

#include "fb/FB_Catalogue_Tree.h"
#include "fb/model/FB_Types.h"

#include <QDropEvent>
#include <QMimeData>

QString FB_Catalogue_Mime::mimeType() {
  return QStringLiteral("application/x-quarna-studio-block-type");
}

void FB_Catalogue_Mime::fill(QMimeData& data, int type) {
  data.setData(mimeType(), QByteArray::number(type));
}

std::optional<int> FB_Catalogue_Mime::typeOf(const QMimeData* data) {
  if (!data || !data->hasFormat(mimeType())) {
    return std::nullopt;
  }
  bool isNumber = false;
  const int type = data->data(mimeType()).toInt(&isNumber);
  return isNumber && FB_Types::find(type) ? std::optional(type) : std::nullopt;
}

std::optional<int> FB_Catalogue_Mime::typeOf(const QDropEvent& event) {
  const auto* const tree = qobject_cast<const FB_Catalogue_Tree*>(event.source());
  return tree ? tree->currentType() : typeOf(event.mimeData());
}
