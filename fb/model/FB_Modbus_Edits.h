#pragma once

#include "db/Edit_Result.h"
#include "fb/model/FB_Modbus_Fields.h"

#include <QList>
#include <QUuid>

#include <vector>

class Project_Session;

/// The edits of the registers of a Modbus master block, each one undo step. The block's pins follow; a register that
/// stays keeps the bindings of its pins wherever it goes, as long as it is read or written as before. All of them
/// refuse in the operating mode, blocks of other types, registers that are not there, values out of range and more pins
/// than a block can have. Registers are counted from 0.
namespace FB_Modbus_Edits {

using Registers = std::vector<DB_Modbus_Register>;

/// All of them. A register that is there already (by its name, else by its function's direction and address) keeps its
/// bindings.
Edit_Result setRegisters(Project_Session& session, const QUuid& block, const Registers& registers);
/// Before the register of that index; at the end for an index behind the last.
Edit_Result insertRegisters(Project_Session& session, const QUuid& block, int before, const Registers& registers);
Edit_Result addRegister(Project_Session& session, const QUuid& block, const DB_Modbus_Register& item);
/// All of its fields. What is out of range already may stay so.
Edit_Result updateRegister(Project_Session& session, const QUuid& block, int index, const DB_Modbus_Register& item);
/// One field of several, as it was typed.
Edit_Result setField(Project_Session& session, const QUuid& block, const QList<int>& indexes,
                     FB_Modbus_Fields::Field field, const QString& text);
Edit_Result removeRegisters(Project_Session& session, const QUuid& block, const QList<int>& indexes);
/// Behind the last of them: with unused names, at the addresses that follow, nothing bound.
Edit_Result duplicate(Project_Session& session, const QUuid& block, const QList<int>& indexes);
/// By one place, towards the end with a positive step; those at the edge stay.
Edit_Result move(Project_Session& session, const QUuid& block, const QList<int>& indexes, int step);

} // namespace FB_Modbus_Edits
