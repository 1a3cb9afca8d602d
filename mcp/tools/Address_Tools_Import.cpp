#include "base/Datapoint_Types.h"
#include "db/Address_Import.h"
#include "db/Ets_Reader.h"
#include "mcp/MCP_Address_Json.h"
#include "mcp/MCP_Call.h"
#include "mcp/MCP_Data_Type.h"
#include "mcp/tools/Address_Tools.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

using Format = Ets_Groups::Format;
using Kind = Address_Import_Plan::Kind;

constexpr qint64 cMebibyte = qint64(1024) * 1024;
constexpr qint64 cMostMebibytes = 64; ///< read while the window waits; the largest real exports have a third of it
constexpr qsizetype cMostTold = 20;
constexpr qsizetype cMostShown = 60; ///< characters of a wrong argument

/// Reads the arguments that say how to import; the first fault stays.
class Choices {
public:
  explicit Choices(const MCP_Call& call) : mCall(call) {
    mImport.mKeepType = yes("keep_type");
    mImport.mKeepComment = yes("keep_comment");
    mImport.mImportNewOnly = yes("import_new_only");
    mImport.mConnected = static_cast<Address_Import::Connected>(call.integer("connected_addresses"));
    readFormat();
    readType("uncertain_1byte", 1, mReader.mUncertain1Byte);
    readType("uncertain_2byte", 2, mReader.mUncertain2Byte);
    readType("uncertain_4byte", 4, mReader.mUncertain4Byte);
  }

  Address_Import::Options mImport;
  Ets_Reader::Options mReader;
  QString mFault;

private:
  void refuse(const QString& fault) { mFault = mFault.isEmpty() ? fault : mFault; }

  bool yes(const char* name) {
    if (mCall.value(name).isBool()) {
      return mCall.flag(name);
    }
    const QString word = mCall.text(name).trimmed().toLower();
    const bool isYes = QStringList{QStringLiteral("true"), QStringLiteral("1"), QStringLiteral("ja")}.contains(word);
    if (!isYes && !word.isEmpty() && word != u"false" && word != u"0" && word != u"nein") {
      refuse(QStringLiteral("%1 ungueltig: %2 (erlaubt: true, 1, ja, false, 0, nein)")
                 .arg(QLatin1String(name), word.left(cMostShown)));
    }
    return isYes;
  }

  void readFormat() {
    const QString word = mCall.text("format").trimmed().toLower();
    for (const auto& [name, format] : {std::pair("esf", Format::Esf), {"xml", Format::Xml}, {"csv", Format::Csv}}) {
      if (word == QLatin1String(name)) {
        mReader.mFormat = format;
      }
    }
    if (!word.isEmpty() && !mReader.mFormat) {
      refuse(QStringLiteral("format ungueltig: %1 (erlaubt: esf, xml, csv)").arg(word.left(cMostShown)));
    }
  }

  void readType(const char* name, int bytes, Datapoint_Id& type) {
    constexpr int cByte = 8;
    if (!mCall.has(name)) {
      return;
    }
    const int number = mCall.integer(name);
    const std::optional<Datapoint_Id> wanted = MCP_Data_Type::parse(number);
    if (!wanted) {
      refuse(MCP_Data_Type::refusal(name, number));
    } else if (!wanted->isNone() && Datapoint_Types::bitsOf(*wanted) != bytes * cByte) {
      refuse(QStringLiteral("%1: der Datenpunkttyp %2 ist nicht %3 Byte gross")
                 .arg(QLatin1String(name), wanted->toString())
                 .arg(bytes));
    }
    type = wanted.value_or(Datapoint_Id());
  }

  const MCP_Call& mCall;
};

/// Why the file is not read; empty when it can be.
QString faultOf(const QString& path) {
  const QFileInfo info(path);
  if (!info.isAbsolute()) {
    return QStringLiteral("file_path muss ein vollstaendiger Pfad sein: %1").arg(path);
  }
  if (!info.isFile()) {
    return QStringLiteral("Datei nicht gefunden: %1").arg(path);
  }
  if (info.size() > cMostMebibytes * cMebibyte) {
    return QStringLiteral("Die Datei hat %1 MB, hier werden hoechstens %2 MB gelesen. Im Studio liest "
                          "\"Adressen ODBC Import (ESF/XML)\" auch groessere.")
        .arg(info.size() / cMebibyte)
        .arg(cMostMebibytes);
  }
  return {};
}

QString readDevice(QIODevice& device, const Choices& choices, Ets_Groups& groups) {
  QString error;
  return Ets_Reader::read(device, choices.mReader, groups, error) ? QString() : error;
}

QString readFile(const QString& path, const Choices& choices, Ets_Groups& groups) {
  QString error = faultOf(path);
  QFile file(path);
  if (error.isEmpty() && !file.open(QIODevice::ReadOnly)) {
    error = QStringLiteral("Datei nicht lesbar: %1 (%2)").arg(path, file.errorString());
  }
  return error.isEmpty() ? readDevice(file, choices, groups) : error;
}

/// The text came as characters, whatever the file was encoded in: an XML that declares its encoding must not undo that,
/// and the other formats are told by the mark in front.
QString readText(QString text, const Choices& choices, Ets_Groups& groups) {
  static const QRegularExpression declared(
      QStringLiteral("^\\x{FEFF}?\\s*<\\?xml\\s[^>]{0,200}?\\bencoding\\s*=\\s*([\"'][^\"'>]{0,40}[\"'])"));
  const QRegularExpressionMatch match = declared.match(text);
  if (match.hasMatch()) {
    text.replace(match.capturedStart(1), match.capturedLength(1), QStringLiteral("\"UTF-8\""));
  }
  QByteArray bytes = text.toUtf8();
  if (!bytes.isEmpty() && !text.startsWith(QChar::ByteOrderMark)) {
    bytes.prepend("\xef\xbb\xbf");
  }
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::ReadOnly);
  return readDevice(buffer, choices, groups);
}

QString nameOf(Format format) {
  return format == Format::Esf   ? QStringLiteral("esf")
         : format == Format::Csv ? QStringLiteral("csv")
                                 : QStringLiteral("xml");
}

/// What is told of rows of one kind, or of all that are imported; so many at most.
QJsonArray notesOf(const Address_Import_Plan& plan, bool ofConflicts) {
  QJsonArray notes;
  for (const Address_Import_Row& row : plan.rows()) {
    const bool isMeant = ofConflicts ? row.mKind == Kind::Conflict : row.mTicked;
    if (isMeant && !row.mNote.isEmpty() && notes.size() < cMostTold) {
      notes.append(row.addressText() + QStringLiteral(": ") + row.mNote);
    }
  }
  return notes;
}

void addUnlessEmpty(QJsonObject& object, const QString& name, const QJsonArray& list) {
  if (!list.isEmpty()) {
    object.insert(name, list);
  }
}

QJsonObject answer(const Ets_Groups& groups, const Address_Import_Plan& plan, const Address_Import::Result& result) {
  QJsonObject object{{QStringLiteral("format"), nameOf(groups.mFormat)},
                     {QStringLiteral("summary"), result.toString()},
                     {QStringLiteral("addresses_in_file"), qint64(groups.mAddresses.size())},
                     {QStringLiteral("new"), result.mNew},
                     {QStringLiteral("changed"), result.mChanged},
                     {QStringLiteral("unchanged"), plan.unchangedCount()},
                     {QStringLiteral("repeated"), plan.repeatedCount()},
                     {QStringLiteral("conflicts"), plan.count(Kind::Conflict)},
                     {QStringLiteral("not_in_file"), plan.count(Kind::Vanished)},
                     {QStringLiteral("skipped"), result.mSkipped},
                     {QStringLiteral("groups_new"), result.mGroupsNew},
                     {QStringLiteral("groups_changed"), result.mGroupsChanged},
                     {QStringLiteral("faults"), groups.mFaultCount}};
  addUnlessEmpty(object, QStringLiteral("notes"), notesOf(plan, false));
  addUnlessEmpty(object, QStringLiteral("conflict_list"), notesOf(plan, true));
  addUnlessEmpty(object, QStringLiteral("fault_list"),
                 QJsonArray::fromStringList(groups.mFaults.first(qMin(groups.mFaults.size(), cMostTold))));
  return object;
}

void warnOf(MCP_Call& call, const Ets_Groups& groups, const Address_Import_Plan& plan) {
  if (groups.mFaultCount > 0) {
    call.warn(QStringLiteral("Fehlerhafte Stellen der Datei, die nicht oder nur teilweise gelesen wurden: %1.")
                  .arg(groups.mFaultCount));
  }
  if (plan.count(Kind::Conflict) > 0) {
    call.warn(QStringLiteral("Konflikte, die nicht uebernommen wurden: %1. Mit update_address oder im Studio "
                             "entscheiden.")
                  .arg(plan.count(Kind::Conflict)));
  }
}

MCP_Result importAddresses(MCP_Call& call) {
  if (call.has("file_path") == call.has("file_content")) {
    return MCP_Result::failed(QStringLiteral("Entweder file_path oder file_content angeben"));
  }
  const Choices choices(call);
  if (!choices.mFault.isEmpty()) {
    return MCP_Result::failed(choices.mFault);
  }
  Ets_Groups groups;
  const QString error = call.has("file_path") ? readFile(call.text("file_path"), choices, groups)
                                              : readText(call.text("file_content"), choices, groups);
  if (!error.isEmpty()) {
    return MCP_Result::failed(error);
  }
  const Address_Import_Plan plan = Address_Import::compare(call.database(), groups, choices.mImport);
  Address_Import::Result result;
  const Edit_Result applied = Address_Import::apply(call.session(), plan, result);
  warnOf(call, groups, plan);
  return MCP_Result::of(applied, answer(groups, plan, result));
}

} // namespace

MCP_Tool Address_Tools::import() {
  return {
      QStringLiteral("import_knx_addresses"),
      QStringLiteral(
          "Importiert KNX-Gruppenadressen aus einer ESF- oder XML-Datei (ETS-Export) in die Adressliste. ESF = "
          "tab-getrennte ETS4/ETS5-Exportdatei (*.esf). XML = ETS5/ETS6-XML-Export (*.xml). Eingabe: entweder "
          "file_path (lokaler Pfad auf dem Rechner des Studios) oder file_content (Inhalt der Datei als Text). Auch "
          "der CSV-Export wird gelesen. Neue und geaenderte Adressen und ihre Gruppen werden uebernommen, Adressen, "
          "die nicht in der Datei stehen (not_in_file), bleiben, Konflikte (in der Datei mehrfach oder Typ anderer "
          "Groesse bei verwendeter Adresse) auch. Verknuepfungen bleiben bestehen. data_type in uncertain_*: "
          "Haupt*1000+Unter (5001 = 5.001), 14 = 14.xxx, 0 = keiner."),
      {MCP_Parameter::text("file_path", "Vollstaendiger Pfad der Datei, hoechstens 64 MB"),
       MCP_Parameter::text("file_content", "Inhalt der Datei, statt file_path"),
       MCP_Parameter::text("format", "esf, xml oder csv. Standard: am Inhalt erkannt"),
       MCP_Parameter::text("keep_type",
                           "Datentyp vorhandener Adressen behalten: true/1/ja oder false/0/nein (Standard)")
           .orFlag(),
       MCP_Parameter::text(
           "keep_comment",
           "Bezeichnung und Beschreibung des Vorhandenen behalten: true/1/ja oder false/0/nein (Standard)")
           .orFlag(),
       MCP_Parameter::text("import_new_only", "Nur neue Adressen uebernehmen: true/1/ja oder false/0/nein (Standard)")
           .orFlag(),
       MCP_Parameter::integer("connected_addresses",
                              "Verbundene Adressen einer ESF: 0 = nicht beachten (Standard), 1 = in die Beschreibung")
           .within(0, 1),
       MCP_Parameter::integer("uncertain_1byte", "Typ fuer ESF-Adressen mit \"Uncertain (1 Byte)\". Standard 5001"),
       MCP_Parameter::integer("uncertain_2byte", "Ebenso fuer 2 Byte. Standard 9001"),
       MCP_Parameter::integer("uncertain_4byte", "Ebenso fuer 4 Byte. Standard 14 (14.xxx)")},
      importAddresses,
      QStringLiteral("Adressen importieren")};
}
