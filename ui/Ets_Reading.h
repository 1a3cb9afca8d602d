#pragma once

#include "db/Ets_Reader.h"

#include <QObject>

#include <memory>

class QThread;

/// Reads an export of ETS from a file in a thread of its own, one at a time. The window stays live meanwhile.
class Ets_Reading : public QObject {
  Q_OBJECT

public:
  explicit Ets_Reading(QObject* parent = nullptr);
  ~Ets_Reading() override;

  /// A reading that still runs is given up. `options.mProgress` is not used.
  void start(const QString& path, const Ets_Reader::Options& options);
  /// Waits for the thread; `finished` does not follow.
  void stop();

  [[nodiscard]] bool isRunning() const { return mWork != nullptr; }
  /// Of the reading that runs, 0..100.
  [[nodiscard]] int percent() const;

signals:
  /// `error` (German) is empty when the file was read.
  void finished(const std::shared_ptr<const Ets_Groups>& groups, const QString& error);

private:
  struct Work;

  void onThreadFinished(const std::shared_ptr<Work>& work);

  std::shared_ptr<Work> mWork; ///< null when nothing runs
  std::unique_ptr<QThread> mThread;
};
