#include "db/Ets_Write_Result.h"

#include "base/Decimal_Text.h"
#include "db/DB_Address_Groups.h"

#include <QCoreApplication>

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("Ets_Write_Result", text);
}

} // namespace

void Ets_Write_Result::add(const DB_Address_Sub_Group& group) {
  const DB_Address_Sub_Group usual;
  const bool isUsual = group.mReadAtStart == usual.mReadAtStart && group.mReadCyclic == usual.mReadCyclic &&
                       group.mWrite == usual.mWrite && group.mActive == usual.mActive;
  mFlags += isUsual ? 0 : 1;
  ++mAddresses;
}

void Ets_Write_Result::tellLosses() {
  QStringList losses;
  const auto lose = [&losses](qsizetype count, const QString& sentence) {
    if (count > 0) {
      losses.append(sentence.arg(Decimal_Text::count(count)));
    }
  };
  lose(mDescriptions, tr("Beschreibungen: %1."));
  lose(mTypes, tr("Genaue Datenpunkttypen: %1; die Datei nennt nur ihre Größe."));
  lose(mGuesses, tr("Vermutete Datenpunkttypen: %1; die Datei nennt nur bestätigte."));
  lose(mEtsAttributes, tr("Gesetzte Angaben zu Zentral, Ungefiltert und Sicherheit, Gruppenadressen: %1."));
  lose(mFlags, tr("Eigene Angaben zu Lesen Start, Lesen zyklisch, Schreiben und Aktiv, Gruppenadressen: %1."));
  mOmitted = losses + mOmitted;
}

void Ets_Write_Result::omit(const DB_Address_MainGroup& group) {
  qsizetype addresses = 0;
  for (const auto& middle : group.mMiddleGroups) {
    addresses += middle->mSubGroups.size();
  }
  mLeftOut += static_cast<int>(addresses);
  tell(tr("Hauptgruppe %1 \"%2\" (Gruppenadressen: %3): auf dem Bus gibt es nur die Hauptgruppen 0 bis 31.")
           .arg(group.mNumber)
           .arg(group.mName)
           .arg(addresses));
}

void Ets_Write_Result::omit(int main, const DB_Address_Middle_Group& group) {
  mLeftOut += static_cast<int>(group.mSubGroups.size());
  tell(tr("Mittelgruppe %1/%2 \"%3\" (Gruppenadressen: %4): auf dem Bus gibt es nur die Mittelgruppen 0 bis 7.")
           .arg(main)
           .arg(group.mNumber)
           .arg(group.mName)
           .arg(group.mSubGroups.size()));
}

void Ets_Write_Result::omit(const Group_Address& address, const DB_Address_Sub_Group& group) {
  ++mLeftOut;
  tell(tr("%1 \"%2\": auf dem Bus gibt es nur die Untergruppen 0 bis 255.").arg(address.toString(), group.mName));
}

void Ets_Write_Result::omitRepeated(const Group_Address& address, const DB_Address_Sub_Group& group) {
  ++mLeftOut;
  tell(tr("%1 \"%2\": die Adresse ist im Projekt mehrfach vorhanden, die erste zählt.")
           .arg(address.toString(), group.mName));
}

void Ets_Write_Result::omitEmpty(const QString& groupText, const QString& name) {
  tell(tr("Gruppe %1 \"%2\": ohne Gruppenadressen kann dieses Format sie nicht nennen.").arg(groupText, name));
}

void Ets_Write_Result::tell(const QString& sentence) {
  if (mOmitted.size() < cListLimit) {
    mOmitted.append(sentence);
  }
}
