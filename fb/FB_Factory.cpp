#include "fb/FB_Factory.h"

#include "fb/FB_Comment.h"
#include "fb/family/FB_Block_Rows.h"
#include "fb/model/FB_Normaliser.h"

#include <QHash>

namespace {

using FB_Block_Rows::Row;

QHash<int, Row> allRows() {
  QHash<int, Row> rows;
  for (const auto family :
       {FB_Block_Rows::hardware(), FB_Block_Rows::general(), FB_Block_Rows::logic(), FB_Block_Rows::time(),
        FB_Block_Rows::compare(), FB_Block_Rows::mathematics(), FB_Block_Rows::telegram(), FB_Block_Rows::control(),
        FB_Block_Rows::counter(), FB_Block_Rows::energy(), FB_Block_Rows::function(), FB_Block_Rows::alarm(),
        FB_Block_Rows::network(), FB_Block_Rows::device(), FB_Block_Rows::mqtt(), FB_Block_Rows::shelly(),
        FB_Block_Rows::buildingBlock(), FB_Block_Rows::buildingHs(), FB_Block_Rows::older()}) {
    for (const Row& row : family) {
      Q_ASSERT_X(!rows.contains(row.mType), "FB_Factory", "two classes for one type");
      rows.insert(row.mType, row);
    }
  }
  return rows;
}

const QHash<int, Row>& rows() {
  static const auto cRows = allRows();
  return cRows;
}

FB_Base* createStandIn(const DB_FB_Control& record, FB_Block_Host& host, QWidget* canvas) {
  DB_FB_Control standIn = record;
  FB_Normaliser::makeStandIn(standIn);
  return new FB_Comment(canvas, host, standIn);
}

} // namespace

FB_Base* FB_Factory::create(const DB_FB_Control& record, FB_Block_Host& host, QWidget* canvas) {
  const auto row = rows().constFind(record.mType);
  FB_Base* const block =
      row == rows().constEnd() ? createStandIn(record, host, canvas) : row->mMake(canvas, host, record);
  block->refreshBindings();
  return block;
}

QList<int> FB_Factory::types() {
  return rows().keys();
}
