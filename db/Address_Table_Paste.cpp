#include "db/Address_Table_Paste.h"

#include "base/Datapoint_Types.h"
#include "db/Address_Edits.h"
#include "db/Address_Type_Text.h"
#include "db/DB_Text.h"
#include "db/Delimited_Text.h"
#include "db/Edit_Scope.h"
#include "db/Project_Session.h"
#include "db/Table_Titles.h"

#include <QCoreApplication>
#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <map>
#include <optional>
#include <type_traits>

namespace {

using Field = Address_Edits::Field;
using Result = Address_Clipboard::Result;
using Rows = std::vector<Delimited_Text::Row>;

QString tr(const char* text) {
  return QCoreApplication::translate("Address_Table_Paste", text);
}

/// The field that a column fills; none for columns that a paste does not take.
std::optional<Field> fieldOf(Table_Titles::Column column) {
  using Table_Titles::Column;
  switch (column) {
  case Column::Name:
    return Field::Name;
  case Column::Description:
    return Field::Description;
  case Column::Type:
    return Field::Type;
  case Column::ReadAtStart:
    return Field::ReadAtStart;
  case Column::ReadCyclic:
    return Field::ReadCyclic;
  case Column::Write:
    return Field::Write;
  case Column::Active:
    return Field::Active;
  default:
    return std::nullopt;
  }
}

/// Which column holds what; -1 for none.
struct Layout {
  int mAddress = -1;
  std::map<Field, int> mColumns;
  bool mHasTitles = false;
};

/// Empty for the text that stands for a type of an import that nobody knows.
QString typeIn(const QString& cell) {
  return cell == Address_Type_Text::shown({}, false, cell) ? QString() : Datapoint_Types::numberIn(cell);
}

/// Whether a cell is meant for an address or a group, be it one that there can be or not.
bool isLikeAddress(const QString& cell) {
  static const QRegularExpression form(QStringLiteral(R"(^\s*\d+\s*/\s*(\d+|\*)\s*(/\s*(\d+|\*)\s*)?$)"));
  return form.match(cell).hasMatch();
}

/// What a row of titles tells. One title alone is no row of titles: "Zentral" and "Schreiben" are names,
/// too.
std::optional<Layout> layoutOfTitles(const QStringList& cells) {
  Layout layout;
  layout.mHasTitles = true;
  for (int column = 0; column < cells.size(); ++column) {
    const std::optional<Table_Titles::Column> title = Table_Titles::columnOf(cells[column]);
    if (const std::optional<Field> field = title ? fieldOf(*title) : std::nullopt) {
      layout.mColumns.emplace(*field, column);
    } else if (title == Table_Titles::Column::Address && layout.mAddress < 0) {
      layout.mAddress = column;
    }
  }
  const bool isTitles = layout.mAddress >= 0 || layout.mColumns.size() > 1;
  return isTitles && std::none_of(cells.cbegin(), cells.cend(), isLikeAddress) ? std::optional(layout) : std::nullopt;
}

/// Whether a column tells types: "9.001", "1.001 Schalten".
bool areTypes(const Rows& rows, int column) {
  bool hasType = false;
  const bool areAll = std::all_of(rows.cbegin(), rows.cend(), [&](const Delimited_Text::Row& row) {
    const QString cell = row.mFields.value(column).trimmed();
    const std::optional<Datapoint_Id> type = Datapoint_Id::parse(typeIn(cell));
    hasType = hasType || (type && type->hasSub());
    return cell.isEmpty() || type;
  });
  return areAll && hasType;
}

/// Without titles: name, description and type, behind the address when any row begins with one.
Layout layoutOf(const Rows& rows) {
  if (const std::optional<Layout> titled = layoutOfTitles(rows.front().mFields)) {
    return *titled;
  }
  Layout layout;
  int column = 0;
  if (std::any_of(rows.cbegin(), rows.cend(),
                  [](const Delimited_Text::Row& row) { return isLikeAddress(row.mFields.value(0)); })) {
    layout.mAddress = column++;
  }
  layout.mColumns.emplace(Field::Name, column++);
  if (!areTypes(rows, column)) {
    layout.mColumns.emplace(Field::Description, column++);
  }
  layout.mColumns.emplace(Field::Type, column);
  return layout;
}

bool isFlag(Field field) {
  return field >= Field::ReadAtStart;
}

/// "ja", "x", "1", "ein", "wahr"; anything else is no.
bool isYes(const QString& cell) {
  static const QStringList yes{QStringLiteral("ja"),   QStringLiteral("yes"), QStringLiteral("x"),
                               QStringLiteral("1"),    QStringLiteral("ein"), QStringLiteral("wahr"),
                               QStringLiteral("true"), QStringLiteral("on")};
  return yes.contains(cell.trimmed().toLower());
}

/// Whether the cell says of the group what it says already. Line breaks do not survive a spreadsheet.
template <class Group>
bool isSame(const Group& group, Field field, const QString& cell) {
  if constexpr (std::is_same_v<Group, DB_Address_Sub_Group>) {
    if (field == Field::Type) {
      const bool isUntold = !cell.isEmpty() && typeIn(cell).isEmpty();
      return isUntold || group.mDpt == Datapoint_Id::parse(typeIn(cell)).value_or(Datapoint_Id());
    }
  }
  return (field == Field::Name && DB_Text::isSameLine(group.mName, cell)) ||
         (field == Field::Description && DB_Text::isSameLine(group.mDescription, cell));
}

class Paster {
public:
  Paster(Project_Session& session, const Layout& layout, const QUuid& target, Result& result)
      : mSession(session),
        mTree(session.database().mAddresses),
        mLayout(layout),
        mTarget(target),
        mResult(result) {}

  void paste(const Delimited_Text::Row& row) {
    mLine = row.mLine;
    const Edit_Result edit = pasteRow(row.mFields);
    if (!edit) {
      mResult.mFaults.append(tr("Zeile %1: %2").arg(row.mLine).arg(edit.mError));
    }
  }

private:
  [[nodiscard]] QString cell(const QStringList& cells, int column) const {
    return column < 0 ? QString() : cells.value(column).trimmed();
  }

  Edit_Result pasteRow(const QStringList& cells) {
    for (const auto& [field, column] : mLayout.mColumns) {
      const QString text = cell(cells, column);
      Edit_Result check = Address_Edits::check(field, field == Field::Type ? typeIn(text) : text);
      if (!check) {
        return check;
      }
    }
    const QString address = cell(cells, mLayout.mAddress);
    if (address.isEmpty()) {
      return pasteBeside(cells);
    }
    if (const auto main = Group_Address::parseMainGroup(address); main && address.endsWith(u'*')) {
      return pasteAt(cells, mTree.mainGroup(main->main()),
                     [&](QUuid* key) { return Address_Edits::addMainGroup(mSession, main->main(), {}, key); });
    }
    if (const auto middle = Group_Address::parseMiddleGroup(address); middle && address.endsWith(u'*')) {
      return pasteAt(cells, mTree.middleGroup(middle->main(), middle->middle()), [&](QUuid* key) {
        return Address_Edits::addMiddleGroup(mSession, middle->main(), middle->middle(), {}, key);
      });
    }
    QString error;
    const std::optional<Group_Address> sub = Group_Address::parse(address, &error);
    return sub ? pasteAt(cells, mTree.subGroup(*sub),
                         [&](QUuid* key) { return Address_Edits::add(mSession, *sub, {}, key); })
               : Edit_Result::refused(error);
  }

  /// A row without an address: the next free one of the target's middle group.
  Edit_Result pasteBeside(const QStringList& cells) {
    const DB_Address_Sub_Group* const sub = mTree.subGroup(mTarget);
    const DB_Address_Middle_Group* const middle = mTree.middleGroup(sub ? sub->mMiddleKey : mTarget);
    const DB_Address_MainGroup* const main = middle ? mTree.mainGroup(middle->mMainKey) : nullptr;
    if (!main) {
      return Edit_Result::refused(
          tr("Sie nennt keine Adresse, und es ist keine Mittelgruppe ausgewählt, in die sie gehören könnte."));
    }
    const int number = Address_Edits::freeSub(mSession, main->mNumber, middle->mNumber, mNext);
    if (number < 0) {
      return Edit_Result::refused(tr("In der Mittelgruppe %1 ist keine Adresse mehr frei.")
                                      .arg(Group_Address::middleGroupText(main->mNumber, middle->mNumber)));
    }
    mNext = number + 1;
    const Group_Address address(main->mNumber, middle->mNumber, number);
    return pasteAt(cells, static_cast<const DB_Address_Sub_Group*>(nullptr),
                   [&](QUuid* key) { return Address_Edits::add(mSession, address, {}, key); });
  }

  template <class Group, class Add>
  Edit_Result pasteAt(const QStringList& cells, const Group* present, Add&& add) {
    QUuid key = present ? present->mKey : QUuid();
    if (const auto earlier = mLines.constFind(key); present && earlier != mLines.cend()) {
      return Edit_Result::refused(tr("Von derselben Adresse ist schon Zeile %1.").arg(*earlier));
    }
    if (!present) {
      if (Edit_Result edit = add(&key); !edit) {
        return edit;
      }
    }
    bool isChanged = false;
    for (const auto& [field, column] : mLayout.mColumns) {
      const QString text = cell(cells, column);
      const bool isOfAddress = field != Field::Name && field != Field::Description;
      // A short row, or one of a table without titles, does not empty what it does not tell.
      const bool isTold = column < cells.size() && (mLayout.mHasTitles || !text.isEmpty());
      if (!isTold || (isOfAddress && !mTree.subGroup(key)) || (isFlag(field) && text.isEmpty()) ||
          (present && isSame(*present, field, text))) {
        continue;
      }
      const QVariant value = isFlag(field) ? QVariant(isYes(text)) : field == Field::Type ? typeIn(text) : text;
      Address_Edits::set(mSession, {key}, field, value);
      isChanged = true;
    }
    mResult.mAdded += present ? 0 : 1;
    mResult.mChanged += present && isChanged ? 1 : 0;
    mResult.mKeys.append(key);
    mLines.insert(key, mLine);
    return Edit_Result::done();
  }

  Project_Session& mSession;
  Address_Tree& mTree;
  const Layout& mLayout;
  QUuid mTarget;
  Result& mResult;
  QHash<QUuid, int> mLines; ///< of what was pasted
  int mLine = 0;
  int mNext = 0;
};

} // namespace

Edit_Result Address_Table_Paste::paste(Project_Session& session, const QString& text, const QUuid& target,
                                       Result& result) {
  result = {};
  Rows rows;
  const QChar separator = text.contains(u'\t') ? u'\t' : u';';
  Delimited_Text table(text, separator);
  for (Delimited_Text::Row row; table.next(row);) {
    const bool isEmpty = std::all_of(row.mFields.cbegin(), row.mFields.cend(),
                                     [](const QString& cell) { return cell.trimmed().isEmpty(); });
    if (!isEmpty) {
      rows.push_back(row);
    }
  }
  if (rows.empty()) {
    return Edit_Result::refused(tr("Die Zwischenablage enthält weder Adressen noch eine Tabelle."));
  }
  Edit_Scope scope(session.history(), tr("Einfügen"), Edit_Scope::Grouping::Own);
  if (!scope) {
    return Edit_Result::refused(scope.refusal());
  }
  const Layout layout = layoutOf(rows);
  Paster paster(session, layout, target, result);
  Address_Tree& tree = session.database().mAddresses;
  tree.beginChange();
  for (size_t i = layout.mHasTitles ? 1 : 0; i < rows.size(); ++i) {
    paster.paste(rows[i]);
  }
  tree.endChange();
  const bool isNothing = result.mKeys.isEmpty();
  return isNothing ? Edit_Result::refused(result.mFaults.value(0, tr("Die Tabelle hat keine Zeilen.")))
                   : Edit_Result::done();
}
