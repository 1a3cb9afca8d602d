#pragma once

#include "fb/model/FB_Modbus_Fields.h"

#include <QAbstractTableModel>
#include <QUuid>

#include <vector>

class Project_Session;

/// The registers of a Modbus master block, one a row, a column for each field. What is typed goes to the project at
/// once; what is out of range is marked in its cell, with its reason.
class FB_Modbus_Model : public QAbstractTableModel {
  Q_OBJECT

public:
  using Registers = std::vector<DB_Modbus_Register>;
  using Field = FB_Modbus_Fields::Field;

  /// The session outlives the model.
  FB_Modbus_Model(Project_Session& session, const QUuid& block, QObject* parent = nullptr);

  [[nodiscard]] const Registers& registers() const { return mRegisters; }
  /// Reads the record anew.
  void refresh();
  void setReadOnly(bool isReadOnly);
  [[nodiscard]] bool isReadOnly() const { return mIsReadOnly; }

  /// Empty when the cell is right.
  [[nodiscard]] QString faultOf(const QModelIndex& cell) const;
  /// The same; where the cell is right, what is wrong in another one of its row, with the name of the field.
  [[nodiscard]] QString faultNear(const QModelIndex& cell) const;
  /// Registers with a fault.
  [[nodiscard]] int faultyCount() const;
  [[nodiscard]] static Field fieldOf(const QModelIndex& index) { return static_cast<Field>(index.column()); }

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

signals:
  /// What was typed may not be (German).
  void refused(const QString& reason);

private:
  [[nodiscard]] QString toolTip(const QModelIndex& index) const;
  [[nodiscard]] const DB_Modbus_Register& item(const QModelIndex& index) const {
    return mRegisters[static_cast<size_t>(index.row())];
  }

  Project_Session& mSession;
  QUuid mBlock;
  Registers mRegisters;
  std::vector<QList<FB_Modbus_Fields::Fault>> mFaults; ///< of each register
  bool mIsReadOnly = false;
};
