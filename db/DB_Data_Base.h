#pragma once

#include "db/DB_Fields.h"

#include <QByteArray>

#include <memory>

/// Base of every project record.
///
/// A record holds its persistent state twice: as typed fields of its class and as its DATA text, the form in which it
/// is stored. The text is what was last set; the fields are the truth while a project is edited.
class DB_Data_Base {
public:
  virtual ~DB_Data_Base();

  /// The fields as DATA text; items that the record does not declare follow behind its own.
  [[nodiscard]] virtual QByteArray toData() const;
  /// Reads the fields from the DATA text held; an empty text yields the defaults.
  virtual void fromData();
  virtual void setData(const QByteArray& data);
  /// The same for one of many records that share their texts.
  void setData(const QByteArray& data, DB_Text_Pool& texts);
  virtual void clearData();

  /// Names every field once. Reading, writing, defaults, comparison and the list of keys follow from it.
  virtual void fields(DB_Fields& fields) = 0;

  [[nodiscard]] virtual std::unique_ptr<DB_Data_Base> clone() const = 0;
  /// Takes over everything from a record of the same class; false when `other` is of another one.
  virtual bool assign(const DB_Data_Base& other) = 0;

  [[nodiscard]] const QByteArray& data() const { return mData; }

  /// True when both are of one class and would be stored alike.
  [[nodiscard]] bool isEqual(const DB_Data_Base& other) const;

protected:
  DB_Data_Base() = default;
  DB_Data_Base(const DB_Data_Base&) = default;
  DB_Data_Base& operator=(const DB_Data_Base&) = default;

private:
  QByteArray mData;
  QByteArray mUnknownItems;
};

/// What every concrete record shares: a copy of itself. `Record` is the deriving class.
template <class Record>
class DB_Record : public DB_Data_Base {
public:
  [[nodiscard]] std::unique_ptr<DB_Data_Base> clone() const override {
    return std::make_unique<Record>(static_cast<const Record&>(*this));
  }

  bool assign(const DB_Data_Base& other) override {
    const auto* const same = dynamic_cast<const Record*>(&other);
    if (same) {
      static_cast<Record&>(*this) = *same;
    }
    return same != nullptr;
  }
};
