#include "db/Ets_Collector.h"

#include "base/Decimal_Text.h"

#include <QCoreApplication>
#include <QHash>
#include <QIODevice>
#include <QLocale>

namespace {

constexpr int cMiddles = Group_Address::cMiddleMax + 1;

QString tr(const char* text) {
  return QCoreApplication::translate("Ets_Reader", text);
}

Ets_Groups::Style styleOf(const QString& text) {
  const qsizetype slashes = text.count(u'/');
  if (slashes == 2) {
    return Ets_Groups::Style::ThreeLevel;
  }
  return slashes == 1 ? Ets_Groups::Style::TwoLevel : Ets_Groups::Style::Free;
}

QString pathOf(const QString& main, const QString& middle) {
  return main.isEmpty() || middle.isEmpty() ? main + middle : main + QStringLiteral(" / ") + middle;
}

} // namespace

void Ets_Collector::setError(const QString& error) {
  if (mError.isEmpty()) {
    mError = error;
  }
}

void Ets_Collector::fault(qint64 line, const QString& text) {
  ++mGroups.mFaultCount;
  if (mGroups.mFaults.size() < Ets_Reader::cFaultLimit) {
    mGroups.mFaults.append(tr("Zeile %1: %2").arg(line).arg(text));
  }
}

bool Ets_Collector::progress(qint64 done, qint64 all, int first, int last) {
  const qint64 part = all > 0 ? qBound(qint64(0), done, all) * (last - first) / all : 0;
  if (mOptions.mProgress && !mOptions.mProgress(first + static_cast<int>(part))) {
    setError(tr("Das Lesen wurde abgebrochen."));
  }
  return isOk();
}

bool Ets_Collector::checkRead(const QIODevice& device, qint64 count) {
  if (count < 0 && !device.atEnd()) {
    setError(tr("Die Datei ist nicht lesbar: %1").arg(device.errorString()));
  }
  return isOk();
}

bool Ets_Collector::checkSize(qint64 bytes) {
  if (bytes > Ets_Reader::cSizeLimit) {
    setError(tr("Die Datei ist größer als %1 und wird nicht gelesen.")
                 .arg(QLocale().formattedDataSize(Ets_Reader::cSizeLimit, 0)));
  }
  return isOk();
}

bool Ets_Collector::countElement() {
  if (++mElements > cElementLimit) {
    setError(tr("Die Datei hat mehr als %1 Einträge; so viele hat keine Ausgabe von Gruppenadressen.")
                 .arg(Decimal_Text::count(cElementLimit)));
  }
  return isOk();
}

bool Ets_Collector::countText(qsizetype size) {
  mCharacters += size;
  if (mCharacters > cTextLimit) {
    setError(tr("Die Namen und Beschreibungen der Datei haben zusammen mehr als %1 Zeichen.")
                 .arg(Decimal_Text::count(cTextLimit)));
  }
  return isOk();
}

void Ets_Collector::addAddress(Ets_Groups::Address address) {
  QString error;
  const std::optional<Group_Address> parsed = Group_Address::parse(address.mText, &error);
  if (!parsed) {
    fault(address.mLine, error);
    return;
  }
  const qsizetype connected = address.mConnected.size() * qsizetype(sizeof(QString));
  const qsizetype texts = address.mName.size() + address.mDescription.size() + address.mDpts.size() +
                          address.mSecurity.size() + address.mText.size();
  if (!countText(texts + connected)) {
    return;
  }
  address.mAddress = *parsed;
  address.mStyle = styleOf(address.mText);
  if (address.mDpt.isNone()) {
    address.mDpt = typeOf(address.mDpts);
  }
  mGroups.mAddresses.push_back(std::move(address));
}

void Ets_Collector::addRange(const Ets_Groups::Range& range) {
  if (countText(range.mName.size() + range.mDescription.size())) {
    mGroups.mRanges.push_back(range);
  }
}

void Ets_Collector::nameGroup(int main, const QString& name, const QString& description) {
  if (!mMain.contains(main)) {
    mMain.insert(main, {name, description});
  }
}

void Ets_Collector::nameGroup(int main, int middle, const QString& name, const QString& description) {
  const int number = main * cMiddles + middle;
  if (!mMiddle.contains(number)) {
    mMiddle.insert(number, {name, description});
  }
}

void Ets_Collector::finishGroups() {
  for (int main = 0; main <= Group_Address::cMainMax; ++main) {
    if (const auto named = mMain.constFind(main); named != mMain.constEnd()) {
      const int start = Group_Address(main, 0, 0).number();
      addRange({named->mName, named->mDescription, start, start + Group_Address::cMainSpan - 1, 0});
    }
    for (int number = main * cMiddles; number < (main + 1) * cMiddles; ++number) {
      if (const auto named = mMiddle.constFind(number); named != mMiddle.constEnd()) {
        const int start = number * Group_Address::cMiddleSpan;
        addRange({named->mName, named->mDescription, start, start + Group_Address::cMiddleSpan - 1, 1});
      }
    }
  }
  QHash<int, QString> paths;
  for (Ets_Groups::Address& address : mGroups.mAddresses) {
    const int number = address.mAddress.main() * cMiddles + address.mAddress.middle();
    auto path = paths.find(number);
    if (path == paths.end()) {
      path = paths.insert(number, pathOf(mMain.value(address.mAddress.main()).mName, mMiddle.value(number).mName));
    }
    address.mRangePath = *path;
  }
}

void Ets_Collector::refuseIfAllFaulty() {
  if (mGroups.mAddresses.empty() && mGroups.mFaultCount > 0) {
    setError(tr("Kein Eintrag der Datei nennt eine Gruppenadresse. %1").arg(mGroups.mFaults.first()));
  }
}

Datapoint_Id Ets_Collector::typeOf(const QString& dpts) {
  QString list = dpts;
  const QStringList types = list.replace(u',', u' ').split(u' ', Qt::SkipEmptyParts);
  if (types.isEmpty() || !(types.last().startsWith(u"DP", Qt::CaseInsensitive) || types.last().contains(u'.'))) {
    return {};
  }
  return Datapoint_Id::parse(types.last()).value_or(Datapoint_Id());
}
