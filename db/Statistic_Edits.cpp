#include "db/Statistic_Edits.h"

#include "base/Decimal_Text.h"
#include "db/DB_Text.h"
#include "db/Edit_Scope.h"
#include "db/Project_Session.h"
#include "db/Statistic_Words.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <functional>

namespace {

using Statistic_Edits::Field;
using Statistic_Edits::Recording;

constexpr Field cFields[] = {Field::Name,  Field::Address,  Field::Tab,       Field::Trigger,
                             Field::Value, Field::Interval, Field::Controller};

QString tr(const char* text) {
  return QCoreApplication::translate("Statistic_Edits", text);
}

QString intervalFault(const Recording& recording) {
  const Statistic_Words::Unit* const unit = Statistic_Words::unit(recording.mTriggerTimeType);
  const int seconds = recording.mTriggerTimeSecs;
  if (!unit) {
    return tr("Die Zeiteinheit %1 gibt es nicht.").arg(recording.mTriggerTimeType);
  }
  if (seconds < 1 || seconds > Statistic_Edits::cMostSeconds) {
    return tr("Der Abstand %1 s ist nicht möglich, erlaubt sind 1 bis %2 s (365 Tage).")
        .arg(seconds)
        .arg(Decimal_Text::count(Statistic_Edits::cMostSeconds));
  }
  return seconds % unit->mSeconds == 0
             ? QString()
             : tr("Der Abstand %1 s passt nicht zur Zeiteinheit, erlaubt sind Vielfache von %2 s.")
                   .arg(seconds)
                   .arg(unit->mSeconds);
}

QString valueFault(double value) {
  return std::isfinite(value) && value >= 0 && value <= Statistic_Edits::cMostValue
             ? QString()
             : tr("Die Schwelle %1 ist nicht möglich, erlaubt sind Werte von 0 bis %2.")
                   .arg(Decimal_Text::print(value), Decimal_Text::count(qsizetype(Statistic_Edits::cMostValue)));
}

/// What is the same in both, so that it needs no check.
bool isSame(const Recording& a, const Recording& b, Field field) {
  switch (field) {
  case Field::Name:
    return a.mName == b.mName;
  case Field::Address:
    return a.mAddressKey == b.mAddressKey;
  case Field::Tab:
    return a.mTab == b.mTab;
  case Field::Trigger:
    return a.mTriggerType == b.mTriggerType;
  case Field::Value:
    return a.mTriggerType == b.mTriggerType && a.mTriggerValue == b.mTriggerValue;
  case Field::Interval:
    return a.mTriggerType == b.mTriggerType && a.mTriggerTimeType == b.mTriggerTimeType &&
           a.mTriggerTimeSecs == b.mTriggerTimeSecs;
  case Field::Controller:
    return a.mControllerIndex == b.mControllerIndex;
  }
  return false;
}

Edit_Result check(const ProjectDatabase& database, const Recording& recording, const Recording* before) {
  for (const Field field : cFields) {
    const QString fault =
        before && isSame(recording, *before, field) ? QString() : Statistic_Edits::faultOf(database, recording, field);
    if (!fault.isEmpty()) {
      return Edit_Result::refused(fault);
    }
  }
  return Edit_Result::done();
}

void tidy(const ProjectDatabase& database, Recording& recording) {
  recording.mName = DB_Text::singleLine(recording.mName);
  const Address_Tree& tree = database.mAddresses;
  if (const DB_Address_Sub_Group* const group = tree.subGroup(recording.mAddressKey);
      group && recording.mName.isEmpty()) {
    recording.mName = tree.addressOf(*group).toString();
  }
}

/// The list changes in one step of its own.
Edit_Result edit(Project_Session& session, const QString& text,
                 const std::function<void(std::vector<Recording>&)>& change) {
  Edit_Scope scope(session.history(), text, Edit_Scope::Grouping::Own);
  if (!scope) {
    return Edit_Result::refused(scope.refusal());
  }
  scope.modified(session.statisticUndo(), Single_Record_Undo::id());
  change(session.database().mStatistic.mRecordings);
  emit session.database().recordChanged(DB_Table::Statistics);
  return Edit_Result::done();
}

bool has(const Project_Session& session, int index) {
  return index >= 0 && index < static_cast<int>(session.database().mStatistic.mRecordings.size());
}

Edit_Result noSuch(int index) {
  return Edit_Result::refused(tr("Aufzeichnung #%1 gibt es nicht.").arg(index + 1));
}

} // namespace

bool Statistic_Edits::hasController(const ProjectDatabase& database, int number) {
  const std::vector<DB_Controller>& controllers = database.mProject.mControllers;
  return number == 0 || std::ranges::find(controllers, number, &DB_Controller::mNumber) != controllers.end();
}

QString Statistic_Edits::faultOf(const ProjectDatabase& database, const Recording& recording, Field field) {
  switch (field) {
  case Field::Name: {
    const qsizetype length = DB_Text::singleLine(recording.mName).size();
    return length <= cNameLimit ? QString()
                                : tr("Der Name hat %1 Zeichen, erlaubt sind höchstens %2.").arg(length).arg(cNameLimit);
  }
  case Field::Address:
    if (recording.mAddressKey.isNull()) {
      return tr("Eine Aufzeichnung braucht eine Gruppenadresse.");
    }
    return database.mAddresses.subGroup(recording.mAddressKey)
               ? QString()
               : tr("Die Gruppenadresse der Aufzeichnung gibt es im Projekt nicht mehr.");
  case Field::Tab:
    return recording.mTab >= 0 && recording.mTab <= cMostTab
               ? QString()
               : tr("Die Gruppe %1 ist nicht möglich, erlaubt sind 0 bis %2.").arg(recording.mTab).arg(cMostTab);
  case Field::Trigger:
    return Statistic_Words::trigger(recording.mTriggerType)
               ? QString()
               : tr("Den Auslöser %1 gibt es nicht.").arg(recording.mTriggerType);
  case Field::Value:
    return recording.mTriggerType == Recording::cOnChange ? valueFault(recording.mTriggerValue) : QString();
  case Field::Interval:
    return recording.mTriggerType == Recording::cPeriodically ? intervalFault(recording) : QString();
  case Field::Controller:
    return hasController(database, recording.mControllerIndex)
               ? QString()
               : tr("Die Steuerung %1 gibt es im verteilten Projekt nicht.").arg(recording.mControllerIndex);
  }
  return {};
}

std::vector<Statistic_Edits::Fault> Statistic_Edits::faultsOf(const ProjectDatabase& database,
                                                              const std::vector<Recording>& recordings) {
  std::vector<Fault> faults;
  for (size_t i = 0; i < recordings.size(); ++i) {
    for (const Field field : cFields) {
      if (const QString text = faultOf(database, recordings[i], field); !text.isEmpty()) {
        faults.push_back({static_cast<int>(i), field, text});
      }
    }
  }
  return faults;
}

QList<int> Statistic_Edits::recordingsOf(const ProjectDatabase& database, const QUuid& address) {
  QList<int> indexes;
  const std::vector<Recording>& recordings = database.mStatistic.mRecordings;
  for (int i = 0; i < static_cast<int>(recordings.size()); ++i) {
    if (recordings[static_cast<size_t>(i)].mAddressKey == address) {
      indexes.append(i);
    }
  }
  return indexes;
}

Edit_Result Statistic_Edits::add(Project_Session& session, Recording recording) {
  if (Edit_Result fault = check(session.database(), recording, nullptr); !fault) {
    return fault;
  }
  tidy(session.database(), recording);
  return edit(session, tr("Aufzeichnung hinzufügen"),
              [&recording](std::vector<Recording>& list) { list.push_back(std::move(recording)); });
}

Edit_Result Statistic_Edits::change(Project_Session& session, int index, Recording recording) {
  if (!has(session, index)) {
    return noSuch(index);
  }
  const Recording& before = session.database().mStatistic.mRecordings[static_cast<size_t>(index)];
  if (Edit_Result fault = check(session.database(), recording, &before); !fault) {
    return fault;
  }
  tidy(session.database(), recording);
  return edit(session, tr("Aufzeichnung ändern"), [&recording, index](std::vector<Recording>& list) {
    list[static_cast<size_t>(index)] = std::move(recording);
  });
}

Edit_Result Statistic_Edits::remove(Project_Session& session, const QList<int>& indexes) {
  QList<int> rows = indexes;
  std::sort(rows.begin(), rows.end(), std::greater<>());
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
  for (const int row : std::as_const(rows)) {
    if (!has(session, row)) {
      return noSuch(row);
    }
  }
  const QString text = rows.size() == 1 ? tr("Aufzeichnung löschen") : tr("Aufzeichnungen löschen");
  return edit(session, text, [&rows](std::vector<Recording>& list) {
    for (const int row : std::as_const(rows)) {
      list.erase(list.begin() + row);
    }
  });
}

Edit_Result Statistic_Edits::move(Project_Session& session, int from, int to) {
  if (!has(session, from) || !has(session, to)) {
    return noSuch(has(session, from) ? to : from);
  }
  return edit(session, tr("Aufzeichnung verschieben"), [from, to](std::vector<Recording>& list) {
    Recording recording = std::move(list[static_cast<size_t>(from)]);
    list.erase(list.begin() + from);
    list.insert(list.begin() + to, std::move(recording));
  });
}

Edit_Result Statistic_Edits::setRecordings(Project_Session& session, std::vector<Recording> recordings) {
  if (const std::vector<Fault> faults = faultsOf(session.database(), recordings); !faults.empty()) {
    return Edit_Result::refused(tr("Zeile %1: %2").arg(QString::number(faults.front().mRow + 1), faults.front().mText));
  }
  for (Recording& recording : recordings) {
    tidy(session.database(), recording);
  }
  return edit(session, tr("Aufzeichnungen ändern"),
              [&recordings](std::vector<Recording>& list) { list = std::move(recordings); });
}
