#include "db/Page_Content_Model.h"

#include "db/DB_Bindings.h"
#include "db/Model_Roles.h"

#include <QStringList>

#include <cmath>

namespace {

/// Each binding once, in the order of the pins.
template <class Owner>
QString bindingsOf(Owner& owner) {
  QStringList texts;
  DB_Bindings::visitOwner(owner, [&texts](const DB_Address_Binding& binding) {
    if (binding.mKind == DB_Address_Binding::Kind::None) {
      return;
    }
    const QString text = binding.mKind == DB_Address_Binding::Kind::Internal
                             ? binding.mName.simplified()
                             : Group_Address(binding.mMain, binding.mMiddle, binding.mSub).toString();
    if (!texts.contains(text)) {
      texts.append(text);
    }
  });
  return texts.join(QStringLiteral(", "));
}

/// Positions one below the other, and in a line from left to right.
qint64 sortKey(const Page_Content_Model::Row& row) {
  return qint64(row.mY) * (qint64(1) << 32) + row.mX;
}

} // namespace

Page_Content_Model::Rows Page_Content_Model::rowsOf(const ProjectDatabase& database, const QUuid& page,
                                                    const Address_Usage::Type_Name& blockType) {
  Rows rows;
  if (const DB_FB_Page* const logicPage = database.mFbPages.page(page)) {
    for (const auto& block : logicPage->mChildren) {
      const QString name = block->ownTitle().isEmpty() ? block->mName : block->ownTitle();
      rows.push_back({block->mGuid, blockType(block->mType), name.simplified(),
                      static_cast<int>(std::lround(block->mX)), static_cast<int>(std::lround(block->mY)),
                      bindingsOf(*block), block->mComment.simplified()});
    }
  } else if (const DB_Widget_Page* const visuPage = database.mWidgetPages.page(page)) {
    for (const auto& element : visuPage->mChildren) {
      rows.push_back({element->mGuid, tr("Element %1").arg(element->mType), element->mName.simplified(), element->mX,
                      element->mY, bindingsOf(*element), element->mComment.simplified()});
    }
  }
  return rows;
}

QString Page_Content_Model::textOf(const Row& row, int column) {
  switch (column) {
  case cKind:
    return row.mKind;
  case cName:
    return row.mName;
  case cPosition:
    return QStringLiteral("%1, %2").arg(row.mX).arg(row.mY);
  case cBindings:
    return row.mBindings;
  default:
    return row.mComment;
  }
}

QVariant Page_Content_Model::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) {
    return {};
  }
  const Row& shown = row(index.row());
  switch (role) {
  case Qt::DisplayRole:
    return textOf(shown, index.column());
  case Qt::ToolTipRole:
    return Model_Roles::toolTip(textOf(shown, index.column()));
  case Model_Roles::cSortKey:
    return index.column() == cPosition ? QVariant(sortKey(shown)) : textOf(shown, index.column());
  case Model_Roles::cIdentity:
    return shown.mGuid;
  default:
    return {};
  }
}

QVariant Page_Content_Model::titleOf(int column) const {
  switch (column) {
  case cKind:
    return tr("Typ");
  case cName:
    return tr("Name");
  case cPosition:
    return tr("Position");
  case cBindings:
    return tr("Verknüpfungen");
  case cComment:
    return tr("Kommentar");
  default:
    return {};
  }
}
