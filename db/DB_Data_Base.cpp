#include "db/DB_Data_Base.h"

#include <typeinfo>

DB_Data_Base::~DB_Data_Base() = default;

QByteArray DB_Data_Base::toData() const {
  // The one list of fields serves reading too, so it cannot be const; writing changes nothing.
  return DB_Fields::write(const_cast<DB_Data_Base&>(*this), mUnknownItems);
}

void DB_Data_Base::fromData() {
  DB_Fields::read(*this, mData, mUnknownItems);
}

void DB_Data_Base::setData(const QByteArray& data) {
  mData = data;
  fromData();
}

void DB_Data_Base::setData(const QByteArray& data, DB_Text_Pool& texts) {
  mData = data;
  DB_Fields::read(*this, mData, mUnknownItems, &texts);
}

void DB_Data_Base::clearData() {
  mData.clear();
  fromData();
}

bool DB_Data_Base::isEqual(const DB_Data_Base& other) const {
  return typeid(*this) == typeid(other) && toData() == other.toData();
}
