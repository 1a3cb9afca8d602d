#pragma once

#include "net/Controller_Records.h"
#include "net/Project_Digests.h"

#include <QString>

#include <vector>

/// What the user sees when the open project is held against the controller's: row by row what both say of it, and
/// whether they are the same. Pure.
///
/// Same are two whose identification, program, records and resources are. What each write and each save changes (time,
/// generation) is shown and decides nothing.
class Project_Comparison {
public:
  struct Row {
    QString mWhat;
    QString mLocal;
    QString mController;
    bool mIsSame = false;
  };
  enum class Verdict { Same, Different, NoProject };

  Project_Comparison(const DB_Project& local, const Project_Digests& digests, const DB_Controller_Project& controller);

  [[nodiscard]] const std::vector<Row>& rows() const { return mRows; }
  [[nodiscard]] Verdict verdict() const { return mVerdict; }
  /// The verdict as a sentence.
  [[nodiscard]] QString text() const;

private:
  void add(const char* what, const QString& local, const QString& controller);
  /// True when equal.
  bool addDigest(const char* what, const QString& local, const QString& controller);

  std::vector<Row> mRows;
  Verdict mVerdict;
};
