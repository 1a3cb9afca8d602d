#include "ui/Address_Import_Delegate.h"

#include "db/Address_Import_Model.h"
#include "ui/Theme.h"

namespace {

Theme::Role roleOf(Address_Import_Row::Kind kind) {
  switch (kind) {
  case Address_Import_Row::Kind::New:
    return Theme::Role::Ok;
  case Address_Import_Row::Kind::Vanished:
    return Theme::Role::ErrorText;
  case Address_Import_Row::Kind::Conflict:
    return Theme::Role::Warning;
  case Address_Import_Row::Kind::Changed:
    break;
  }
  return Theme::Role::Changed;
}

bool isIncoming(int column) {
  return column == Address_Import_Model::cNameIncoming || column == Address_Import_Model::cTypeIncoming ||
         column == Address_Import_Model::cDescriptionIncoming;
}

} // namespace

void Address_Import_Delegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  Named_Icon_Delegate::initStyleOption(option, index);
  const auto kind = static_cast<Address_Import_Row::Kind>(index.data(Address_Import_Model::cKindRole).toInt());
  const bool differs = index.data(Address_Import_Model::cDiffersRole).toBool();
  option->font.setBold(differs);
  if (index.column() == Address_Import_Model::cKind || (differs && isIncoming(index.column()))) {
    option->palette.setColor(QPalette::Text, Theme::color(roleOf(kind)));
  }
}
