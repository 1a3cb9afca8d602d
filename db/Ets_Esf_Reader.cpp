#include "db/Ets_Esf_Reader.h"

#include "db/DB_Text.h"
#include "db/Delimited_Text.h"
#include "db/Ets_Collector.h"
#include "db/Ets_Esf_Names.h"
#include "db/Ets_Esf_Types.h"
#include "db/Ets_Text.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace {

constexpr QChar cTab = u'\t';
constexpr int cLinesPerProgress = 1000;

QString tr(const char* text) {
  return QCoreApplication::translate("Ets_Reader", text);
}

/// The address stands behind the last point; names may hold points and slashes.
QStringView addressIn(QStringView groups) {
  return groups.mid(groups.lastIndexOf(u'.') + 1).trimmed();
}

bool isAddress(QStringView text) {
  return text.contains(u'/') && Group_Address::parse(text);
}

class Line_Reader {
public:
  explicit Line_Reader(Ets_Collector& collector) : mCollector(collector) {}

  void read(Delimited_Text::Row& row) {
    QStringList& fields = row.mFields;
    if (fields.first().startsWith(u'#')) {
      return;
    }
    while (fields.size() > cConnected + 1 && fields.last().trimmed().isEmpty()) {
      fields.removeLast();
    }
    if (std::exchange(mIsFirst, false) && isProject(fields)) {
      mCollector.groups().mProjectName = DB_Text::singleLine(fields.first());
      return;
    }
    if (fields.size() == 1 && fields.first().trimmed().isEmpty()) {
      return;
    }
    if (fields.size() < cConnected || fields.size() > cConnected + 1) {
      mCollector.fault(row.mLine, tr("Die Zeile hat %1 statt 5 Spalten.").arg(fields.size()));
      return;
    }
    addAddress(row);
  }

  void nameGroups() {
    for (auto main = mGroups.constBegin(); main != mGroups.constEnd(); ++main) {
      const Ets_Esf_Names::Split split = Ets_Esf_Names::split(main->values());
      mCollector.nameGroup(main.key(), DB_Text::singleLine(split.mMain));
      const QList<int> middles = main->keys();
      for (qsizetype i = 0; i < middles.size(); ++i) {
        mCollector.nameGroup(main.key(), middles[i], DB_Text::singleLine(split.mMiddle[i]));
      }
    }
    for (auto main = mTwoLevelGroups.constBegin(); main != mTwoLevelGroups.constEnd(); ++main) {
      mCollector.nameGroup(main.key(), *main);
    }
    mCollector.finishGroups();
  }

private:
  enum Column { cGroups, cName, cType, cPriority, cConnected };

  /// Also with empty cells behind it, as a spreadsheet leaves them.
  [[nodiscard]] static bool isProject(const QStringList& fields) {
    const bool isAlone =
        std::all_of(fields.begin() + 1, fields.end(), [](const QString& f) { return f.trimmed().isEmpty(); });
    return isAlone && (fields.size() == 1 || !isAddress(addressIn(fields.first())));
  }

  void addAddress(const Delimited_Text::Row& row) {
    const QString& groups = row.mFields[cGroups];
    const QStringView text = addressIn(groups);
    if (!isAddress(text)) {
      mCollector.fault(row.mLine,
                       tr("Die erste Spalte endet nicht mit einer Gruppenadresse: \"%1\".").arg(groups.right(40)));
      return;
    }
    Ets_Groups::Address address;
    address.mLine = row.mLine;
    address.mText = text.toString();
    address.mName = DB_Text::singleLine(row.mFields[cName]);
    address.mDpts = DB_Text::singleLine(row.mFields[cType]);
    address.mDpt = Ets_Esf_Types::typeOf(address.mDpts, mCollector.options());
    address.mDptGuessed = !address.mDpt.isNone();
    address.mConnected = DB_Text::singleLine(row.mFields.value(cConnected)).split(u' ', Qt::SkipEmptyParts);
    nameOf(*Group_Address::parse(text), text.count(u'/') == 1, groups);
    mCollector.addAddress(std::move(address));
  }

  void nameOf(const Group_Address& address, bool isTwoLevel, const QString& groups) {
    const QString name = DB_Text::singleLine(groups.left(qMax(groups.lastIndexOf(u'.'), qsizetype(0))));
    if (isTwoLevel) {
      if (!mTwoLevelGroups.contains(address.main())) {
        mTwoLevelGroups.insert(address.main(), name);
      }
    } else if (QMap<int, QString>& middles = mGroups[address.main()]; !middles.contains(address.middle())) {
      middles.insert(address.middle(), name);
    }
  }

  Ets_Collector& mCollector;
  bool mIsFirst = true;                  ///< no line is read but comments
  QMap<int, QMap<int, QString>> mGroups; ///< "Main.Middle" by their numbers
  QMap<int, QString> mTwoLevelGroups;    ///< "Main" by its number
};

} // namespace

bool Ets_Esf_Reader::isLikely(QStringView beginning) {
  for (const QStringView line : beginning.tokenize(u'\n')) {
    const qsizetype tab = line.indexOf(cTab);
    const qsizetype point = line.first(qMax(tab, qsizetype(0))).lastIndexOf(u'.');
    if (point >= 0 && isAddress(addressIn(line.first(tab)))) {
      return true;
    }
  }
  return false;
}

bool Ets_Esf_Reader::read(QIODevice& device, Ets_Collector& collector) {
  constexpr int cHalf = 50;
  const std::optional<QString> text = Ets_Text::read(device, collector);
  if (!text) {
    return false;
  }
  Line_Reader lines(collector);
  Delimited_Text rows(*text, cTab, Delimited_Text::Quotes::None);
  Delimited_Text::Row row;
  int count = 0;
  while (collector.isOk() && rows.next(row) && collector.countElement()) {
    lines.read(row);
    if (++count % cLinesPerProgress == 0) {
      collector.progress(rows.position(), text->size(), cHalf);
    }
  }
  lines.nameGroups();
  collector.refuseIfAllFaulty();
  if (collector.isOk() && collector.groups().mAddresses.empty() && text->trimmed().startsWith(u'<')) {
    collector.setError(tr("Die Datei ist keine ESF-Ausgabe von Gruppenadressen; sie sieht nach XML aus."));
  }
  return collector.isOk();
}
