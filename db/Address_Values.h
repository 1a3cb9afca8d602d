#pragma once

#include "base/Datapoint_Value.h"

#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QString>
#include <QTimer>
#include <QUuid>

#include <optional>

/// What was last heard of a group address, or last sent to it.
struct Address_Value {
  QByteArray mPayload; ///< as it travelled
  std::optional<Datapoint_Value>
      mValue;            ///< decoded as the address's type says; none without a type or a fitting payload
  qint64 mTime = 0;      ///< milliseconds since 1970 (UTC)
  QString mSource;       ///< physical address "1.1.20", or a German word for studio and controller
  bool mIsStale = false; ///< the link was lost since
};

/// The live values of the open project's addresses, by their keys. Nothing of it is stored. Thousands of values a
/// second may come in; what changed is told at most ten times a second.
class Address_Values : public QObject {
  Q_OBJECT

public:
  static constexpr int cTellMs = 100;

  explicit Address_Values(QObject* parent = nullptr);

  /// Null for an address of which nothing is known. Valid until the next change.
  [[nodiscard]] const Address_Value* find(const QUuid& key) const;
  [[nodiscard]] qsizetype count() const { return mValues.size(); }

  void set(const QUuid& key, Address_Value value);
  /// The link is gone: what is known may have changed since.
  void setAllStale();
  void remove(const QUuid& key);
  void clear();
  /// Of all that are known.
  [[nodiscard]] QList<QUuid> keys() const { return mValues.keys(); }

signals:
  /// Those that came, changed or went since it was last told.
  void changed(const QSet<QUuid>& keys);

private:
  void note(const QUuid& key);

  QHash<QUuid, Address_Value> mValues;
  QSet<QUuid> mChanged;
  QTimer mTell;
};
