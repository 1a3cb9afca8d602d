#pragma once

#include "db/Ets_Reader.h"

#include <QMap>

/// Takes what the reader of a format finds in an export: keeps the limits that all formats share, notes faults, and
/// tells how far the reading is.
///
/// An error ends the reading; the first one stays. Faults do not.
class Ets_Collector {
public:
  /// Elements or lines. A bus has 65,536 addresses and some tools repeat them; far more is an attack on the memory.
  static constexpr int cElementLimit = 1'000'000;
  /// Characters of all texts together.
  static constexpr qsizetype cTextLimit = 100'000'000;

  Ets_Collector(const Ets_Reader::Options& options, Ets_Groups& groups) : mOptions(options), mGroups(groups) {}

  [[nodiscard]] const Ets_Reader::Options& options() const { return mOptions; }
  [[nodiscard]] Ets_Groups& groups() { return mGroups; }
  [[nodiscard]] bool isOk() const { return mError.isEmpty(); }
  [[nodiscard]] const QString& error() const { return mError; }

  void setError(const QString& error);
  void fault(qint64 line, const QString& text);

  /// Tells that the part `done` of `all` is read, within the stretch from `first` to `last` percent. False when the
  /// reading must end, as for the four below.
  bool progress(qint64 done, qint64 all, int first = 0, int last = 100);
  /// Tells a failure of `device`, which has answered `count` to a call of `read`.
  bool checkRead(const QIODevice& device, qint64 count);
  /// Refuses a file of more than so many bytes.
  bool checkSize(qint64 bytes);
  /// Counts one more element or line.
  bool countElement();
  /// Counts the characters of a text that is kept.
  bool countText(qsizetype size);

  /// Takes an address over whose `mText` and `mLine` are set: finds number and style, and the type where `mDpts` tells
  /// one as ETS writes it. A text that is no address is a fault.
  void addAddress(Ets_Groups::Address address);
  void addRange(const Ets_Groups::Range& range);

  /// For formats without ranges: what a main or middle group is called; the first name counts.
  void nameGroup(int main, const QString& name, const QString& description = {});
  void nameGroup(int main, int middle, const QString& name, const QString& description = {});
  /// Makes the ranges of the named groups, and the range paths of all addresses.
  void finishGroups();

  /// An error when there are faults and not one address.
  void refuseIfAllFaulty();

  /// The type of "DPST-9-1", "DPT-9" or "9.001", the last of a list divided by commas or blanks; none for other texts.
  [[nodiscard]] static Datapoint_Id typeOf(const QString& dpts);

private:
  struct Name {
    QString mName;
    QString mDescription;
  };

  const Ets_Reader::Options& mOptions;
  Ets_Groups& mGroups;
  QString mError;
  int mElements = 0;
  qsizetype mCharacters = 0;
  QMap<int, Name> mMain;   ///< by main
  QMap<int, Name> mMiddle; ///< by main * 8 + middle
};
