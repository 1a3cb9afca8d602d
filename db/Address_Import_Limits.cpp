#include "db/Address_Import_Limits.h"

#include "base/Decimal_Text.h"
#include "db/Address_Edits.h"
#include "db/Address_Import_Notes.h"

#include <QCoreApplication>

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("Address_Import", text);
}

/// True when the text says something else than `present` and had to be cut for it.
bool cut(QString& text, const QString& present, qsizetype limit) {
  if (text.size() <= limit || text == present) {
    return false;
  }
  // Half a character would not survive the project's file.
  text.truncate(text.at(limit - 1).isHighSurrogate() ? limit - 1 : limit);
  while (!text.isEmpty() && text.back().isSpace()) {
    text.chop(1);
  }
  return text != present;
}

} // namespace

QString Address_Import_Limits::shorten(Address_Import_Row::Values& incoming,
                                       const Address_Import_Row::Values& present) {
  using namespace Address_Edits;
  QString note;
  if (cut(incoming.mName, present.mName, cNameLimit)) {
    Address_Import_Notes::add(note, tr("Der Name wurde auf %1 Zeichen gekürzt.").arg(Decimal_Text::count(cNameLimit)));
  }
  if (cut(incoming.mDescription, present.mDescription, cDescriptionLimit)) {
    Address_Import_Notes::add(
        note, tr("Die Beschreibung wurde auf %1 Zeichen gekürzt.").arg(Decimal_Text::count(cDescriptionLimit)));
  }
  return note;
}
