#include "db/Ets_Reader.h"

#include "db/Ets_Collector.h"
#include "db/Ets_Csv_Reader.h"
#include "db/Ets_Esf_Reader.h"
#include "db/Ets_Text.h"
#include "db/Ets_Xml_Reader.h"

#include <QCoreApplication>
#include <QIODevice>

namespace {

constexpr qint64 cLookedAt = qint64(64) * 1024;

QString tr(const char* text) {
  return QCoreApplication::translate("Ets_Reader", text);
}

/// Why a file that begins so is none of the formats, where the first bytes tell; else empty.
QString refusalOf(const QByteArray& beginning) {
  if (beginning.isEmpty()) {
    return tr("Die Datei ist leer.");
  }
  if (beginning.startsWith("PK\x03\x04")) {
    if (beginning.contains("[Content_Types].xml") || beginning.contains("application/vnd.oasis.opendocument")) {
      return tr("Die Datei ist ein Dokument einer Tabellenkalkulation. Die Tabelle zuerst dort als CSV speichern.");
    }
    return tr("Das ist eine ETS-Projektdatei (.knxproj) oder ein anderes Archiv, keine Ausgabe von Gruppenadressen. In "
              "der ETS die Gruppenadressen als XML, CSV oder ESF (OPC) exportieren und diese Datei wählen.");
  }
  const bool isWide = beginning.startsWith("\xff\xfe") || beginning.startsWith("\xfe\xff");
  if (isWide || !beginning.contains('\0')) {
    // A project in an ESF may be called "GIF8".
    return {};
  }
  if (beginning.startsWith("\x89PNG") || beginning.startsWith("\xff\xd8\xff") || beginning.startsWith("GIF8") ||
      beginning.startsWith("BM")) {
    return tr("Die Datei ist ein Bild, keine Ausgabe von Gruppenadressen.");
  }
  return tr("Die Datei ist keine Textdatei und keine Ausgabe von Gruppenadressen der ETS.");
}

std::optional<Ets_Groups::Format> formatOf(const QByteArray& beginning) {
  const QString text = Ets_Text::preview(beginning);
  // A project in an ESF may be called "<Haus>".
  if (Ets_Esf_Reader::isLikely(text)) {
    return Ets_Groups::Format::Esf;
  }
  if (QStringView(text).trimmed().startsWith(u'<')) {
    return Ets_Groups::Format::Xml;
  }
  return Ets_Csv_Reader::isLikely(text) ? std::optional(Ets_Groups::Format::Csv) : std::nullopt;
}

bool readAs(Ets_Groups::Format format, QIODevice& device, Ets_Collector& collector) {
  switch (format) {
  case Ets_Groups::Format::Esf:
    return Ets_Esf_Reader::read(device, collector);
  case Ets_Groups::Format::Xml:
    return Ets_Xml_Reader::read(device, collector);
  case Ets_Groups::Format::Csv:
    return Ets_Csv_Reader::read(device, collector);
  }
  return false;
}

bool readChecked(QIODevice& device, Ets_Collector& collector) {
  if (!collector.checkSize(device.size())) {
    return false;
  }
  const QByteArray beginning = device.peek(cLookedAt);
  if (const QString refusal = refusalOf(beginning); !refusal.isEmpty()) {
    collector.setError(refusal);
    return false;
  }
  const Ets_Reader::Options& options = collector.options();
  const std::optional<Ets_Groups::Format> format = options.mFormat ? options.mFormat : formatOf(beginning);
  if (!format) {
    collector.setError(
        tr("Die Datei ist keine Ausgabe von Gruppenadressen der ETS. Gelesen werden XML, CSV und ESF (OPC)."));
    return false;
  }
  collector.groups().mFormat = *format;
  if (!readAs(*format, device, collector)) {
    return false;
  }
  if (collector.groups().mAddresses.empty() && collector.groups().mRanges.empty()) {
    // Else the whole project would be told as vanished.
    collector.refuseIfAllFaulty();
    collector.setError(tr("Die Datei nennt weder Gruppenadressen noch Gruppen."));
    return false;
  }
  return collector.progress(1, 1);
}

} // namespace

bool Ets_Reader::read(QIODevice& device, const Options& options, Ets_Groups& groups, QString& error) {
  groups = {};
  Ets_Collector collector(options, groups);
  const bool isOk = readChecked(device, collector);
  error = collector.error();
  if (!isOk) {
    groups = {};
  }
  return isOk;
}
