#include "db/Ets_Csv_Reader.h"

#include "db/DB_Text.h"
#include "db/Delimited_Text.h"
#include "db/Ets_Collector.h"
#include "db/Ets_Csv_Layout.h"
#include "db/Ets_Text.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace {

constexpr qsizetype cLookedAt = 200;
constexpr int cLinesPerProgress = 1000;

QString tr(const char* text) {
  return QCoreApplication::translate("Ets_Reader", text);
}

bool isEmpty(const QStringList& fields) {
  return std::all_of(fields.begin(), fields.end(), [](const QString& field) { return field.trimmed().isEmpty(); });
}

struct Dialect {
  QChar mSeparator;
  Ets_Csv_Layout mLayout;
};

/// The separator with which the most of the first rows name addresses or groups, and the columns then.
std::optional<Dialect> dialectOf(QStringView text) {
  std::optional<Dialect> best;
  qsizetype most = -1;
  for (const QChar separator : {u'\t', u';', u','}) {
    std::vector<QStringList> rows;
    Delimited_Text reader(text, separator);
    for (Delimited_Text::Row row; rows.size() < cLookedAt && reader.next(row);) {
      if (!isEmpty(row.mFields)) {
        rows.push_back(row.mFields);
      }
    }
    const std::optional<Ets_Csv_Layout> layout = Ets_Csv_Layout::of(rows);
    if (!layout) {
      continue;
    }
    const auto places = std::count_if(rows.begin(), rows.end(), [&layout](const QStringList& fields) {
      return fields.size() > 1 && layout->placeOf(fields).has_value();
    });
    // A header alone is an export without addresses.
    if (places > most && (places > 0 || layout->mHasHeader)) {
      most = places;
      best = Dialect{separator, *layout};
    }
  }
  return best;
}

class Row_Reader {
public:
  Row_Reader(const Ets_Csv_Layout& layout, Ets_Collector& collector) : mLayout(layout), mCollector(collector) {}

  void read(const Delimited_Text::Row& row) {
    const QStringList& fields = row.mFields;
    const std::optional<Ets_Csv_Layout::Place> place = mLayout.placeOf(fields);
    if (!place) {
      mCollector.fault(row.mLine, tr("Die Zeile nennt keine Gruppenadresse und keine Gruppe: \"%1\".")
                                      .arg(DB_Text::singleLine(fields.join(u' ')).left(40)));
      return;
    }
    if (row.mOpenQuoteField >= 0 && mLayout.isOfAddress(row.mOpenQuoteField)) {
      mCollector.fault(row.mLine, tr("Die Zeile bricht in der Adresse ab."));
      return;
    }
    if (row.mOpenQuoteLine > 0) {
      mCollector.fault(row.mOpenQuoteLine, tr("Ein Anführungszeichen hat kein Ende; es wird als Text gelesen."));
    }
    if (place->mAddress.isEmpty()) {
      group(*place, fields);
    } else {
      address(*place, row);
    }
  }

private:
  [[nodiscard]] static QString line(const QStringList& fields, int column) {
    return DB_Text::singleLine(fields.value(column));
  }

  /// Its own column's name, else what the row has in that of the addresses.
  void group(const Ets_Csv_Layout::Place& place, const QStringList& fields) {
    const QString own = line(fields, place.mMiddle < 0 ? mLayout.mMain : mLayout.mMiddle);
    const QString name = own.isEmpty() ? line(fields, mLayout.mName) : own;
    nameGroup(place.mMain, place.mMiddle, name, description(fields));
  }

  void address(const Ets_Csv_Layout::Place& place, const Delimited_Text::Row& row) {
    const QStringList& fields = row.mFields;
    Ets_Groups::Address address;
    address.mLine = row.mLine;
    address.mText = place.mAddress;
    address.mName = line(fields, mLayout.mName);
    address.mDescription = description(fields);
    address.mDpts = line(fields, mLayout.mDpt);
    address.mCentral = isTrue(line(fields, mLayout.mCentral));
    address.mUnfiltered = isTrue(line(fields, mLayout.mUnfiltered));
    address.mSecurity = line(fields, mLayout.mSecurity);
    // Without rows of their own the groups are named beside each address.
    if (const QString main = line(fields, mLayout.mMain); !main.isEmpty()) {
      nameGroup(place.mMain, -1, main);
    }
    if (const QString middle = line(fields, mLayout.mMiddle); !middle.isEmpty()) {
      nameGroup(place.mMain, place.mMiddle, middle);
    }
    mCollector.addAddress(std::move(address));
  }

  void nameGroup(int main, int middle, const QString& name, const QString& description = {}) {
    if (middle < 0) {
      mCollector.nameGroup(main, name, description);
    } else {
      mCollector.nameGroup(main, middle, name, description);
    }
  }

  [[nodiscard]] QString description(const QStringList& fields) const {
    return DB_Text::clean(fields.value(mLayout.mDescription)).trimmed();
  }

  [[nodiscard]] static bool isTrue(const QString& text) {
    static const QStringList words = {QStringLiteral("true"), QStringLiteral("1"),    QStringLiteral("x"),
                                      QStringLiteral("yes"),  QStringLiteral("wahr"), QStringLiteral("ja")};
    return words.contains(text, Qt::CaseInsensitive);
  }

  const Ets_Csv_Layout& mLayout;
  Ets_Collector& mCollector;
};

} // namespace

bool Ets_Csv_Reader::isLikely(QStringView beginning) {
  return dialectOf(beginning).has_value();
}

bool Ets_Csv_Reader::read(QIODevice& device, Ets_Collector& collector) {
  constexpr int cHalf = 50;
  const std::optional<QString> text = Ets_Text::read(device, collector);
  if (!text) {
    return false;
  }
  const std::optional<Dialect> dialect = dialectOf(*text);
  if (!dialect) {
    collector.setError(tr("Die Datei ist keine CSV-Ausgabe von Gruppenadressen: keine Spalte enthält Adressen."));
    return false;
  }
  Row_Reader reader(dialect->mLayout, collector);
  Delimited_Text rows(*text, dialect->mSeparator);
  bool isHeader = dialect->mLayout.mHasHeader;
  int count = 0;
  for (Delimited_Text::Row row; collector.isOk() && rows.next(row) && collector.countElement();) {
    if (!isEmpty(row.mFields) && !std::exchange(isHeader, false)) {
      reader.read(row);
    }
    if (++count % cLinesPerProgress == 0) {
      collector.progress(rows.position(), text->size(), cHalf);
    }
  }
  collector.finishGroups();
  collector.refuseIfAllFaulty();
  return collector.isOk();
}
