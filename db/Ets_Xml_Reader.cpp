#include "db/Ets_Xml_Reader.h"

#include "db/DB_Text.h"

#include <QCoreApplication>
#include <QXmlStreamReader>

namespace {

constexpr QStringView cNamespace = u"http://knx.org/xml/ga-export/01";
constexpr int cNumberMax = 65535;

QString tr(const char* text) {
  return QCoreApplication::translate("Ets_Xml_Reader", text);
}

QString attribute(const QXmlStreamAttributes& attributes, QStringView name) {
  return DB_Text::singleLine(attributes.value(name.toString()).toString());
}

bool isTrue(const QString& text) {
  return text.compare(u"true", Qt::CaseInsensitive) == 0 || text == u"1";
}

Ets_Groups::Style styleOf(const QString& text) {
  const qsizetype slashes = text.count(u'/');
  if (slashes == 2) {
    return Ets_Groups::Style::ThreeLevel;
  }
  return slashes == 1 ? Ets_Groups::Style::TwoLevel : Ets_Groups::Style::Free;
}

/// "DPST-9-1" or "DPT-9"; the last of a list divided by commas or blanks.
void readDpts(Ets_Groups::Address& address) {
  QString list = address.mDpts;
  const QStringList types = list.replace(u',', u' ').split(u' ', Qt::SkipEmptyParts);
  if (!types.isEmpty() && types.last().startsWith(u"DP", Qt::CaseInsensitive)) {
    address.mDpt = Datapoint_Id::parse(types.last()).value_or(Datapoint_Id());
  }
}

/// Walks the elements of one file.
class Walker {
public:
  Walker(QIODevice& device, Ets_Groups& groups) : mXml(&device), mGroups(groups) {}

  bool run(QString& error) {
    while (!mXml.atEnd() && mError.isEmpty()) {
      const QXmlStreamReader::TokenType token = mXml.readNext();
      if (token == QXmlStreamReader::StartElement) {
        startElement();
      } else if (token == QXmlStreamReader::EndElement) {
        mPaths.removeLast();
      } else if (token == QXmlStreamReader::DTD) {
        // No export has one, and entities are the way to blow a small file up.
        mError = tr("Die Datei enthält eine Dokumenttyp-Deklaration und wird nicht gelesen.");
      }
    }
    if (mError.isEmpty() && mXml.hasError()) {
      mError = tr("Die Datei ist kein lesbares XML (Zeile %1): %2").arg(mXml.lineNumber()).arg(mXml.errorString());
    }
    error = mError;
    return mError.isEmpty();
  }

private:
  void startElement() {
    const QStringView name = mXml.name();
    const qsizetype depth = mPaths.size();
    QString path = mPaths.value(depth - 1);
    if (depth == 0) {
      const bool isOurs =
          name == u"GroupAddress-Export" && (mXml.namespaceUri().isEmpty() || mXml.namespaceUri() == cNamespace);
      if (!isOurs) {
        mError = tr("Die Datei ist kein ETS-Export von Gruppenadressen.");
      }
    } else if (depth > Ets_Xml_Reader::cDepthLimit) {
      mError = tr("Die Elemente sind tiefer als %1-fach verschachtelt (Zeile %2).")
                   .arg(Ets_Xml_Reader::cDepthLimit)
                   .arg(mXml.lineNumber());
    } else if (name == u"GroupRange") {
      const QString rangeName = attribute(mXml.attributes(), u"Name");
      path = path.isEmpty() ? rangeName : path + QStringLiteral(" / ") + rangeName;
      range(static_cast<int>(depth) - 1);
    } else if (name == u"GroupAddress") {
      address();
    } else {
      fault(tr("unbekanntes Element \"%1\"").arg(name.left(40).toString()));
    }
    mPaths.append(path);
  }

  void range(int depth) {
    const QXmlStreamAttributes attributes = mXml.attributes();
    Ets_Groups::Range range;
    range.mName = attribute(attributes, u"Name");
    range.mDescription = attribute(attributes, u"Description");
    bool isStartOk = false;
    bool isEndOk = false;
    range.mStart = attributes.value(QStringLiteral("RangeStart")).toInt(&isStartOk);
    range.mEnd = attributes.value(QStringLiteral("RangeEnd")).toInt(&isEndOk);
    range.mDepth = depth;
    if (!isStartOk || !isEndOk || range.mStart < 0 || range.mEnd > cNumberMax || range.mStart > range.mEnd) {
      fault(tr("der Bereich \"%1\" hat keine gültigen Grenzen (0..65535)").arg(range.mName.left(40)));
      return;
    }
    mGroups.mRanges.push_back(range);
  }

  void address() {
    const QXmlStreamAttributes attributes = mXml.attributes();
    Ets_Groups::Address address;
    address.mText = attribute(attributes, u"Address");
    QString error;
    const std::optional<Group_Address> parsed = Group_Address::parse(address.mText, &error);
    if (!parsed) {
      fault(error);
      return;
    }
    address.mAddress = *parsed;
    address.mLine = static_cast<int>(mXml.lineNumber());
    address.mStyle = styleOf(address.mText);
    address.mRangePath = mPaths.last();
    address.mName = attribute(attributes, u"Name");
    address.mDescription = attribute(attributes, u"Description");
    address.mDpts = attribute(attributes, u"DPTs");
    readDpts(address);
    address.mCentral = isTrue(attribute(attributes, u"Central"));
    address.mUnfiltered = isTrue(attribute(attributes, u"Unfiltered"));
    address.mSecurity = attribute(attributes, u"Security");
    mGroups.mAddresses.push_back(address);
  }

  void fault(const QString& text) {
    ++mGroups.mFaultCount;
    if (mGroups.mFaults.size() < Ets_Xml_Reader::cFaultLimit) {
      mGroups.mFaults.append(tr("Zeile %1: %2").arg(mXml.lineNumber()).arg(text));
    }
  }

  QXmlStreamReader mXml;
  Ets_Groups& mGroups;
  QString mError;
  QStringList mPaths; ///< of each open element, the names of the ranges down to it
};

} // namespace

bool Ets_Xml_Reader::read(QIODevice& device, Ets_Groups& groups, QString& error) {
  groups = {};
  const bool isOk = Walker(device, groups).run(error);
  if (!isOk) {
    groups = {};
  }
  return isOk;
}
