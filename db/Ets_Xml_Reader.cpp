#include "db/Ets_Xml_Reader.h"

#include "base/Decimal_Text.h"
#include "db/DB_Text.h"
#include "db/Ets_Collector.h"

#include <QCoreApplication>
#include <QIODevice>
#include <QXmlStreamReader>

namespace {

constexpr QStringView cNamespace = u"http://knx.org/xml/ga-export/01";
constexpr int cAttributeLimit = 100;
constexpr int cElementsPerProgress = 1000;

QString tr(const char* text) {
  return QCoreApplication::translate("Ets_Reader", text);
}

bool isTrue(QStringView text) {
  return text.compare(u"true", Qt::CaseInsensitive) == 0 || text == u"1";
}

/// Hands the file to the parser and ends it early where a single token has no end: the parser would gather it whole.
class Guarded_Device : public QIODevice {
public:
  Guarded_Device(QIODevice& source, Ets_Collector& collector) : mSource(source), mCollector(collector) {
    open(ReadOnly | Unbuffered);
  }

  [[nodiscard]] bool isSequential() const override { return true; }
  void onToken() { mInToken = 0; }
  /// So many bytes are handed out.
  [[nodiscard]] qint64 position() const { return mPosition; }

protected:
  qint64 readData(char* data, qint64 size) override {
    if (mInToken > Ets_Xml_Reader::cTokenLimit) {
      mCollector.setError(tr("Ein einzelnes Element der Datei ist länger als %1 Byte.")
                              .arg(Decimal_Text::count(Ets_Xml_Reader::cTokenLimit)));
    }
    if (!mCollector.isOk()) {
      return -1;
    }
    const qint64 count = mSource.read(data, size);
    mCollector.checkRead(mSource, count);
    mInToken += qMax(count, qint64(0));
    mPosition += qMax(count, qint64(0));
    mCollector.checkSize(mPosition);
    return count;
  }
  qint64 writeData(const char* /*data*/, qint64 /*size*/) override { return -1; }

private:
  QIODevice& mSource;
  Ets_Collector& mCollector;
  qint64 mInToken = 0;
  qint64 mPosition = 0;
};

/// Walks the elements of one file.
class Walker {
public:
  Walker(QIODevice& device, Ets_Collector& collector)
      : mFile(device),
        mDevice(device, collector),
        mXml(&mDevice),
        mCollector(collector) {}

  bool run() {
    while (!mXml.atEnd() && mCollector.isOk()) {
      const QXmlStreamReader::TokenType token = mXml.readNext();
      mDevice.onToken();
      if (token == QXmlStreamReader::StartElement) {
        startElement();
      } else if (token == QXmlStreamReader::EndElement) {
        mPaths.removeLast();
      } else if (token == QXmlStreamReader::DTD) {
        // No export has one, and entities are the way to blow a small file up.
        mCollector.setError(tr("Die Datei enthält eine Dokumenttyp-Deklaration und wird nicht gelesen."));
      }
    }
    if (mXml.hasError()) {
      mCollector.setError(errorText());
    }
    return mCollector.isOk();
  }

private:
  [[nodiscard]] QString errorText() const {
    const qint64 line = mXml.lineNumber();
    if (mXml.error() == QXmlStreamReader::PrematureEndOfDocumentError) {
      return tr("Die Datei ist nicht vollständig: sie endet in Zeile %1 mitten im XML.").arg(line);
    }
    return tr("Die Datei ist kein lesbares XML: Zeile %1 ist fehlerhaft oder falsch kodiert.").arg(line);
  }

  void startElement() {
    if (!mCollector.countElement() ||
        (mElements++ % cElementsPerProgress == 0 && !mCollector.progress(mDevice.position(), mFile.size()))) {
      return;
    }
    const QStringView name = mXml.name();
    const qsizetype depth = mPaths.size();
    QString path = mPaths.value(depth - 1);
    if (depth == 0) {
      const bool isOurs =
          name == u"GroupAddress-Export" && (mXml.namespaceUri().isEmpty() || mXml.namespaceUri() == cNamespace);
      if (!isOurs) {
        mCollector.setError(tr("Die Datei ist kein ETS-Export von Gruppenadressen."));
      }
    } else if (depth > Ets_Xml_Reader::cDepthLimit) {
      mCollector.setError(tr("Die Elemente sind tiefer als %1-fach verschachtelt (Zeile %2).")
                              .arg(Ets_Xml_Reader::cDepthLimit)
                              .arg(mXml.lineNumber()));
    } else if (name == u"GroupRange") {
      range(static_cast<int>(depth) - 1, path);
    } else if (name == u"GroupAddress") {
      address(path);
    } else {
      mCollector.fault(mXml.lineNumber(), tr("Das Element \"%1\" ist unbekannt.").arg(name.left(40).toString()));
    }
    mPaths.append(path);
  }

  void range(int depth, QString& path) {
    Ets_Groups::Range range;
    range.mDepth = depth;
    bool isStartOk = false;
    bool isEndOk = false;
    for (const QXmlStreamAttribute& attribute : attributes()) {
      const QStringView name = attribute.name();
      const QStringView value = attribute.value();
      if (name == u"Name") {
        range.mName = DB_Text::singleLine(value.toString());
      } else if (name == u"Description") {
        range.mDescription = DB_Text::clean(value.toString());
      } else if (name == u"RangeStart") {
        range.mStart = value.toInt(&isStartOk);
      } else if (name == u"RangeEnd") {
        range.mEnd = value.toInt(&isEndOk);
      }
    }
    path = path.isEmpty() ? range.mName : path + QStringLiteral(" / ") + range.mName;
    // Every address below may keep it, and of nested long names it grows faster than the file.
    if (!mCollector.countText(path.size())) {
      return;
    }
    if (!isStartOk || !isEndOk || range.mStart < 0 || range.mEnd > Group_Address::cNumberMax ||
        range.mStart > range.mEnd) {
      mCollector.fault(mXml.lineNumber(),
                       tr("Der Bereich \"%1\" hat keine gültigen Grenzen (0..65535).").arg(range.mName.left(40)));
      return;
    }
    mCollector.addRange(range);
  }

  void address(const QString& path) {
    Ets_Groups::Address address;
    address.mLine = static_cast<int>(mXml.lineNumber());
    address.mRangePath = path;
    for (const QXmlStreamAttribute& attribute : attributes()) {
      const QStringView name = attribute.name();
      const QStringView value = attribute.value();
      if (name == u"Name") {
        address.mName = DB_Text::singleLine(value.toString());
      } else if (name == u"Address") {
        address.mText = DB_Text::singleLine(value.toString());
      } else if (name == u"Description") {
        address.mDescription = DB_Text::clean(value.toString());
      } else if (name == u"DPTs") {
        address.mDpts = DB_Text::singleLine(value.toString());
      } else if (name == u"Central") {
        address.mCentral = isTrue(value);
      } else if (name == u"Unfiltered") {
        address.mUnfiltered = isTrue(value);
      } else if (name == u"Security") {
        address.mSecurity = DB_Text::singleLine(value.toString());
      }
    }
    mCollector.addAddress(std::move(address));
  }

  QXmlStreamAttributes attributes() {
    QXmlStreamAttributes attributes = mXml.attributes();
    // The parser compares each with each: of many such elements reading would take for ever.
    if (attributes.size() > cAttributeLimit) {
      mCollector.setError(
          tr("Ein Element hat mehr als %1 Attribute (Zeile %2).").arg(cAttributeLimit).arg(mXml.lineNumber()));
    }
    return attributes;
  }

  QIODevice& mFile;
  Guarded_Device mDevice;
  QXmlStreamReader mXml;
  Ets_Collector& mCollector;
  int mElements = 0;
  QStringList mPaths; ///< of each open element, the names of the ranges down to it
};

} // namespace

bool Ets_Xml_Reader::read(QIODevice& device, Ets_Collector& collector) {
  return Walker(device, collector).run();
}
