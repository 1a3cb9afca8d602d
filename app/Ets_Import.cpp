#include "app/Ets_Import.h"

#include "base/Decimal_Text.h"
#include "db/Address_Import.h"
#include "db/Ets_Reader.h"
#include "db/Project_Session.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr qsizetype cShownFaults = 10;

QString tr(const char* text) {
  return QCoreApplication::translate("Ets_Import", text);
}

QString report(const QString& name, const Address_Import::Result& result, const Ets_Groups& groups) {
  QStringList lines{tr("Aus \"%1\": %2.").arg(name, result.toString())};
  if (groups.mFaultCount > 0) {
    lines.append({QString(), tr("Nicht übernommen: %1.").arg(Decimal_Text::count(groups.mFaultCount))});
    lines.append(groups.mFaults.first(qMin(groups.mFaults.size(), cShownFaults)));
    if (groups.mFaultCount > cShownFaults) {
      lines.append(tr("… und %1 weitere.").arg(Decimal_Text::count(groups.mFaultCount - cShownFaults)));
    }
  }
  return lines.join(u'\n');
}

} // namespace

Ets_Import::Outcome Ets_Import::run(Project_Session& session, const QString& path) {
  const QString name = QFileInfo(path).fileName();
  const auto failed = [&name](const QString& reason) {
    return Outcome{false, tr("Die Datei \"%1\" wurde nicht importiert.").arg(name) + u'\n' + reason};
  };
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    return failed(file.errorString());
  }
  Ets_Groups groups;
  QString error;
  if (!Ets_Reader::read(file, {}, groups, error)) {
    return failed(error);
  }
  Address_Import::Result result;
  if (const Edit_Result edit =
          Address_Import::apply(session, Address_Import::compare(session.database(), groups), result);
      !edit) {
    return failed(edit.mError);
  }
  return {true, report(name, result, groups)};
}
