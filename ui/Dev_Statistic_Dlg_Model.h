#pragma once

#include "db/Statistic_Edits.h"

#include <QAbstractTableModel>
#include <QHash>

#include <utility>
#include <vector>

class ProjectDatabase;

/// The recordings while they are edited, one a row. Every cell tells what is wrong with it; what was typed and cannot
/// be understood stays to be corrected.
class Dev_Statistic_Dlg_Model : public QAbstractTableModel {
  Q_OBJECT

public:
  static constexpr int cName = 0;
  static constexpr int cAddress = 1; ///< its number or its name is typed
  static constexpr int cTab = 2;
  static constexpr int cTrigger = 3;    ///< edited by its number
  static constexpr int cCondition = 4;  ///< least change, or interval; what the trigger has
  static constexpr int cController = 5; ///< edited by its number
  static constexpr int cActive = 6;
  static constexpr int cWriteOnly = 7;
  static constexpr int cColumnCount = 8;

  struct Fault {
    int mRow = 0;
    int mColumn = 0;
    QString mText;
  };
  /// A value that can be chosen, with its text.
  using Choice = std::pair<int, QString>;

  /// The database outlives the model.
  explicit Dev_Statistic_Dlg_Model(const ProjectDatabase& database, QObject* parent = nullptr);

  [[nodiscard]] std::vector<Statistic_Edits::Recording> recordings() const;
  /// In the order of the rows.
  [[nodiscard]] const std::vector<Fault>& faults() const { return mFaults; }
  /// Empty when the cell is right.
  [[nodiscard]] QString faultOf(const QModelIndex& cell) const;
  /// Of trigger and controller; empty for other columns.
  [[nodiscard]] QList<Choice> choices(int column) const;
  [[nodiscard]] const ProjectDatabase& database() const { return mDatabase; }

  /// Each answers the row where the recording stands then; -1 when there is none.
  int add();
  int duplicate(int row);
  int move(int row, int step);
  void remove(int row);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

public slots:
  /// Addresses or controllers of the project are other ones.
  void update();

signals:
  /// The list or its faults are other ones.
  void edited();

private:
  struct Row {
    Statistic_Edits::Recording mRecording;
    QHash<int, QString> mTyped; ///< by column, what cannot be understood
  };

  [[nodiscard]] bool has(int row) const { return row >= 0 && row < rowCount(); }
  [[nodiscard]] QString faultOf(const Row& row, int column) const;
  [[nodiscard]] QString textOf(const Row& row, int column, bool isEdit) const;
  [[nodiscard]] QString addressText(const Statistic_Edits::Recording& recording) const;
  void takeAddress(Row& row, const QString& text);
  void takeCondition(Row& row, const QString& text);

  const ProjectDatabase& mDatabase;
  std::vector<Row> mRows;
  std::vector<Fault> mFaults;
};
