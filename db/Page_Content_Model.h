#pragma once

#include "db/Address_Usage.h"
#include "db/Row_Table_Model.h"

#include <QString>
#include <QUuid>

class ProjectDatabase;

/// A block or element of a page.
struct Page_Content_Row {
  QUuid mGuid;
  QString mKind;
  QString mName;
  int mX = 0; ///< pixels, as the one below
  int mY = 0;
  QString mBindings;
  QString mComment;

  friend bool operator==(const Page_Content_Row&, const Page_Content_Row&) = default;
};

/// What stands on a page, one block or element a row, in the page's order. A picture of the moment in which the rows
/// were made.
class Page_Content_Model : public Row_Table_Model<Page_Content_Row> {
  Q_OBJECT

public:
  static constexpr int cKind = 0; ///< the block's type
  static constexpr int cName = 1;
  static constexpr int cPosition = 2; ///< "120, 80", pixels of the unzoomed page
  static constexpr int cBindings = 3; ///< "1/2/3, 1/2/4", and names of variables
  static constexpr int cComment = 4;
  static constexpr int cColumnCount = 5;

  using Row = Page_Content_Row;

  explicit Page_Content_Model(QObject* parent = nullptr) : Row_Table_Model(cColumnCount, parent) {}

  /// Of a logic or visualisation page; none when there is no such page.
  [[nodiscard]] static Rows rowsOf(const ProjectDatabase& database, const QUuid& page,
                                   const Address_Usage::Type_Name& blockType);

  [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

protected:
  [[nodiscard]] QVariant titleOf(int column) const override;

private:
  [[nodiscard]] static QString textOf(const Row& row, int column);
};
