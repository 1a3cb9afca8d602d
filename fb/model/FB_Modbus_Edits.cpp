#include "fb/model/FB_Modbus_Edits.h"

#include "fb/model/FB_Edit.h"
#include "fb/model/FB_Pins.h"
#include "fb/model/FB_Register_Pins.h"
#include "fb/model/FB_Types.h"
#include "fb/model/FB_Variables.h"

#include <QCoreApplication>
#include <QLocale>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>

namespace {

using FB_Modbus_Edits::Registers;
using namespace FB_Modbus_Fields;
constexpr int cMostAddress = 65535;
constexpr FB_Side cSides[] = {FB_Side::Input, FB_Side::Output};

QString tr(const char* text) {
  return QCoreApplication::translate("FB_Modbus_Edits", text);
}

/// A register of the new list, and which one of the old list it was; -1 for a new one.
struct Row {
  DB_Modbus_Register mItem;
  int mOrigin = -1;
};
using Rows = std::vector<Row>;

Rows rowsOf(const DB_FB_Control& block) {
  Rows rows;
  for (const DB_Modbus_Register& item : block.mModbusRegisters) {
    rows.push_back({item, static_cast<int>(rows.size())});
  }
  return rows;
}

size_t valuesOf(const DB_Modbus_Register& item) {
  return static_cast<size_t>(std::max(1, item.mCount));
}

/// The pins of a side that the registers do not make.
size_t fixedPins(FB_Side side) {
  return FB_Pins::fixedPins(*FB_Types::find(FB_Modbus_Words::cMaster), side);
}

/// Bindings of the values of each register of the block.
std::vector<std::vector<DB_Address_Binding>> bindingsOf(const DB_FB_Control& block) {
  std::vector<std::vector<DB_Address_Binding>> bindings(block.mModbusRegisters.size());
  for (const FB_Side side : cSides) {
    const auto& pins = FB_Pins::pins(block, side);
    size_t at = fixedPins(side);
    for (size_t i = 0; i < bindings.size(); ++i) {
      const DB_Modbus_Register& item = block.mModbusRegisters[i];
      const size_t values = FB_Register_Pins::sideOf(item) == side ? valuesOf(item) : 0;
      for (size_t value = 0; value < values && at < pins.size(); ++value) {
        bindings[i].push_back(pins[at++].mBinding);
      }
    }
  }
  return bindings;
}

QSet<QUuid> variablesOf(const DB_FB_Control& block) {
  QSet<QUuid> keys;
  for (const FB_Side side : cSides) {
    for (const DB_FB_Pin& pin : FB_Pins::pins(block, side)) {
      if (pin.mBinding.mKind == DB_Address_Binding::Kind::Internal) {
        keys.insert(pin.mBinding.mKey);
      }
    }
  }
  return keys;
}

void rebuild(DB_FB_Control& block, Rows&& rows) {
  const std::vector<std::vector<DB_Address_Binding>> bindings = bindingsOf(block);
  std::vector<FB_Side> sides;
  for (const DB_Modbus_Register& item : block.mModbusRegisters) {
    sides.push_back(FB_Register_Pins::sideOf(item));
  }
  size_t next[] = {fixedPins(FB_Side::Input), fixedPins(FB_Side::Output)};
  block.mModbusRegisters.clear();
  FB_Pins::rebuild(block); // leaves the declared pins
  for (Row& row : rows) {
    block.mModbusRegisters.push_back(std::move(row.mItem));
  }
  FB_Pins::rebuild(block);
  for (size_t i = 0; i < rows.size(); ++i) {
    const DB_Modbus_Register& item = block.mModbusRegisters[i];
    const FB_Side side = FB_Register_Pins::sideOf(item);
    const auto origin = static_cast<size_t>(rows[i].mOrigin);
    const bool isKept = rows[i].mOrigin >= 0 && sides[origin] == side;
    size_t& at = next[side == FB_Side::Input ? 0 : 1];
    auto& pins = FB_Pins::pins(block, side);
    for (size_t value = 0; value < valuesOf(item) && at < pins.size(); ++value, ++at) {
      if (isKept && value < bindings[origin].size()) {
        pins[at].mBinding = bindings[origin][value];
      }
    }
  }
}

/// Refuses more pins than a block can have, but for fewer than too many.
Edit_Result checkPins(const DB_FB_Control& block, const Rows& rows) {
  const QLocale locale;
  for (const FB_Side side : cSides) {
    size_t pins = fixedPins(side);
    for (const Row& row : rows) {
      pins += FB_Register_Pins::sideOf(row.mItem) == side ? valuesOf(row.mItem) : 0;
    }
    const size_t before = fixedPins(side) + FB_Register_Pins::count(block, side, std::numeric_limits<size_t>::max());
    if (pins > std::max(before, static_cast<size_t>(FB_Pins::cMostPins))) {
      const QString text = side == FB_Side::Input ? tr("Der Baustein hätte %1 Eingänge, erlaubt sind höchstens %2.")
                                                  : tr("Der Baustein hätte %1 Ausgänge, erlaubt sind höchstens %2.");
      return Edit_Result::refused(
          text.arg(locale.toString(static_cast<qulonglong>(pins)), locale.toString(FB_Pins::cMostPins)));
    }
  }
  return Edit_Result::done();
}

/// Refuses values that are out of range, but for those that `before` has already.
Edit_Result checkRange(const DB_Modbus_Register& item, const DB_Modbus_Register* before) {
  for (const Fault& fault : faults(item)) {
    if (fault.mIsRange && !(before && isSame(item, *before, fault.mField))) {
      return Edit_Result::refused(fault.mText);
    }
  }
  return Edit_Result::done();
}

/// The frame of every edit: `change` gets the rows as they are and answers whether it may be.
template <class Change>
Edit_Result apply(Project_Session& session, const QUuid& guid, const QString& step, Change&& change) {
  FB_Edit edit(session, step);
  if (!edit) {
    return edit.refusal();
  }
  if (Edit_Result check = edit.check(guid); !check) {
    return check;
  }
  const DB_FB_Control& block = *edit.block(guid);
  if (block.mType != FB_Modbus_Words::cMaster) {
    return Edit_Result::refused(tr("Der Baustein \"%1\" hat keine Register.").arg(FB_Types::name(block.mType)));
  }
  Rows rows = rowsOf(block);
  Edit_Result result = change(rows);
  if (result) {
    result = checkPins(block, rows);
  }
  if (result) {
    const QSet<QUuid> variables = variablesOf(block);
    edit.change(guid, [&rows](DB_FB_Control& record) { rebuild(record, std::move(rows)); });
    FB_Variables::release(edit, variables - variablesOf(*edit.block(guid)));
  }
  return result;
}

Edit_Result checkIndexes(const Rows& rows, const QList<int>& indexes) {
  for (const int index : indexes) {
    if (index < 0 || static_cast<size_t>(index) >= rows.size()) {
      return Edit_Result::refused(tr("Ein Register mit der Nummer %1 gibt es nicht, der Baustein hat %2.")
                                      .arg(index)
                                      .arg(static_cast<qulonglong>(rows.size())));
    }
  }
  return indexes.isEmpty() ? Edit_Result::refused(tr("Es ist kein Register ausgewählt.")) : Edit_Result::done();
}

QList<int> inOrder(const QList<int>& indexes) {
  QList<int> sorted = indexes;
  std::sort(sorted.begin(), sorted.end());
  sorted.erase(std::unique(sorted.begin(), sorted.end()), sorted.end());
  return sorted;
}

/// "Leistung", "Leistung 2", "Leistung 3": the next that no register has.
QString freeName(const QString& name, const QSet<QString>& taken) {
  static const QRegularExpression number(QStringLiteral(" (\\d{1,6})$"));
  const QRegularExpressionMatch match = number.match(name);
  const QString stem = match.hasMatch() ? name.left(match.capturedStart()) : name;
  for (int i = match.hasMatch() ? match.captured(1).toInt() + 1 : 2;; ++i) {
    QString free = QStringLiteral("%1 %2").arg(stem.left(cNameLimit - 8)).arg(i);
    if (!taken.contains(free)) {
      return free;
    }
  }
}

/// Words, or bits, that the values of a register take.
int addressesOf(const DB_Modbus_Register& item) {
  const auto* const function = FB_Modbus_Words::function(item.mFunctionCode);
  const qint64 size =
      qint64(std::max(1, item.mCount)) * (function && function->mIsBits ? 1 : std::max(1, item.mWordCount));
  return static_cast<int>(std::min<qint64>(size, cMostAddress));
}

/// Which old register each new one is.
void findOrigins(Rows& rows, const DB_FB_Control& block) {
  std::vector<bool> isTaken(block.mModbusRegisters.size(), false);
  const auto match = [&](auto&& isSameAs) {
    for (Row& row : rows) {
      for (size_t i = 0; i < isTaken.size() && row.mOrigin < 0; ++i) {
        if (!isTaken[i] && isSameAs(row.mItem, block.mModbusRegisters[i])) {
          isTaken[i] = true;
          row.mOrigin = static_cast<int>(i);
        }
      }
    }
  };
  using Item = DB_Modbus_Register;
  match([](const Item& a, const Item& b) { return !a.mName.isEmpty() && a.mName == b.mName; });
  match([](const Item& a, const Item& b) {
    return a.mAddress == b.mAddress && FB_Register_Pins::sideOf(a) == FB_Register_Pins::sideOf(b);
  });
}

} // namespace

Edit_Result FB_Modbus_Edits::setRegisters(Project_Session& session, const QUuid& block, const Registers& registers) {
  const DB_FB_Control* const record = std::as_const(session).database().mFbPages.child(block);
  return apply(session, block, tr("Register ersetzen"), [&](Rows& rows) {
    rows.clear();
    for (const DB_Modbus_Register& item : registers) {
      if (Edit_Result check = checkRange(item, nullptr); !check) {
        return Edit_Result::refused(tr("Register %1: %2").arg(QString::number(rows.size() + 1), check.mError));
      }
      rows.push_back({item, -1});
    }
    findOrigins(rows, *record);
    return Edit_Result::done();
  });
}

Edit_Result FB_Modbus_Edits::insertRegisters(Project_Session& session, const QUuid& block, int before,
                                             const Registers& registers) {
  return apply(session, block, tr("Register einfügen"), [&](Rows& rows) {
    auto at = rows.begin() + std::clamp<qsizetype>(before, 0, static_cast<qsizetype>(rows.size()));
    for (const DB_Modbus_Register& item : registers) {
      if (Edit_Result check = checkRange(item, nullptr); !check) {
        return check;
      }
      at = rows.insert(at, {item, -1}) + 1;
    }
    return Edit_Result::done();
  });
}

Edit_Result FB_Modbus_Edits::addRegister(Project_Session& session, const QUuid& block, const DB_Modbus_Register& item) {
  return insertRegisters(session, block, std::numeric_limits<int>::max(), {item});
}

Edit_Result FB_Modbus_Edits::updateRegister(Project_Session& session, const QUuid& block, int index,
                                            const DB_Modbus_Register& item) {
  return apply(session, block, tr("Register ändern"), [&](Rows& rows) {
    Edit_Result check = checkIndexes(rows, {index});
    if (check) {
      DB_Modbus_Register& present = rows[static_cast<size_t>(index)].mItem;
      check = checkRange(item, &present);
      present = item;
    }
    return check;
  });
}

Edit_Result FB_Modbus_Edits::setField(Project_Session& session, const QUuid& block, const QList<int>& indexes,
                                      Field field, const QString& text) {
  const QString step =
      tr("Register: %1 ändern").arg(QCoreApplication::translate("FB_Modbus_Fields", info(field).mTitle));
  return apply(session, block, step, [&](Rows& rows) {
    Edit_Result check = checkIndexes(rows, indexes);
    for (qsizetype i = 0; check && i < indexes.size(); ++i) {
      check.mError = set(rows[static_cast<size_t>(indexes[i])].mItem, field, text);
    }
    return check;
  });
}

Edit_Result FB_Modbus_Edits::removeRegisters(Project_Session& session, const QUuid& block, const QList<int>& indexes) {
  return apply(session, block, tr("Register löschen"), [&](Rows& rows) {
    Edit_Result check = checkIndexes(rows, indexes);
    if (check) {
      const QSet<int> gone(indexes.begin(), indexes.end());
      std::erase_if(rows, [&gone](const Row& row) { return gone.contains(row.mOrigin); });
    }
    return check;
  });
}

Edit_Result FB_Modbus_Edits::duplicate(Project_Session& session, const QUuid& block, const QList<int>& indexes) {
  return apply(session, block, tr("Register duplizieren"), [&](Rows& rows) {
    Edit_Result check = checkIndexes(rows, indexes);
    if (!check) {
      return check;
    }
    QSet<QString> names;
    for (const Row& row : rows) {
      names.insert(row.mItem.mName);
    }
    const QList<int> sorted = inOrder(indexes);
    // The copies follow the originals as a whole: their addresses begin behind the last one.
    int first = cMostAddress;
    int end = 0;
    for (const int index : sorted) {
      const DB_Modbus_Register& item = rows[static_cast<size_t>(index)].mItem;
      first = std::min(first, item.mAddress);
      end = std::max(end, item.mAddress + addressesOf(item));
    }
    Rows copies;
    for (const int index : sorted) {
      DB_Modbus_Register copy = rows[static_cast<size_t>(index)].mItem;
      copy.mAddress = std::min(copy.mAddress + end - first, cMostAddress);
      if (!copy.mName.isEmpty()) {
        copy.mName = freeName(copy.mName, names);
        names.insert(copy.mName);
      }
      copies.push_back({std::move(copy), -1});
    }
    rows.insert(rows.begin() + sorted.last() + 1, copies.begin(), copies.end());
    return check;
  });
}

Edit_Result FB_Modbus_Edits::move(Project_Session& session, const QUuid& block, const QList<int>& indexes, int step) {
  return apply(session, block, tr("Register verschieben"), [&](Rows& rows) {
    Edit_Result check = checkIndexes(rows, indexes);
    if (!check) {
      return check;
    }
    const QSet<int> moved(indexes.begin(), indexes.end());
    const auto walk = [&moved](auto begin, auto end) {
      for (auto it = begin; it != end; ++it) {
        if (it != begin && moved.contains(it->mOrigin) && !moved.contains(std::prev(it)->mOrigin)) {
          std::iter_swap(it, std::prev(it));
        }
      }
    };
    step > 0 ? walk(rows.rbegin(), rows.rend()) : walk(rows.begin(), rows.end());
    return check;
  });
}
