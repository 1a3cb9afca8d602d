#pragma once

#include "db/Project_Search.h"

#include <QAbstractTableModel>

/// What a search found, one hit a row. Only the places are kept; the texts of a row are read when they are shown, so a
/// row tells what the project holds now.
class Project_Search_Model : public QAbstractTableModel {
  Q_OBJECT

public:
  static constexpr int cKind = 0;
  static constexpr int cPlace = 1;
  static constexpr int cField = 2;
  static constexpr int cText = 3; ///< in one line, beginning near the first match; the tool tip holds the whole
  static constexpr int cColumnCount = 4;

  using Hit = Project_Search::Hit;
  using Matches = QList<Text_Search::Match>;

  /// The database outlives the model. `typeName` tells what types of blocks are called.
  Project_Search_Model(const ProjectDatabase& database, Address_Usage::Type_Name typeName, QObject* parent = nullptr);

  /// Searches the project as it is now. The same hits change no row, but are shown anew.
  void search(const Address_Usage& usage, const Project_Search::Query& query);
  [[nodiscard]] const Project_Search::Result& result() const { return mResult; }
  [[nodiscard]] const Hit& hit(int row) const { return mResult.mHits[static_cast<size_t>(row)]; }

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  /// Of the text column also `Model_Roles::cMatches`, as `Matches` in the shown text.
  [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

signals:
  /// The rows are those of before; texts in them may be others.
  void textsChanged();

private:
  struct Excerpt {
    QString mText;
    Matches mMatches;
  };

  [[nodiscard]] QString wholeText(const Hit& hit) const;
  [[nodiscard]] Excerpt excerptOf(const Hit& hit) const;
  [[nodiscard]] QString textOf(const Hit& hit, int column) const;
  [[nodiscard]] QVariant sortKeyOf(const Hit& hit, int column) const;

  const ProjectDatabase& mDatabase;
  Address_Usage::Type_Name mTypeName;
  Text_Search mSearch;
  Project_Search::Result mResult;
};
