#pragma once

#include <QtGlobal>

/// The commands between studio and controller; docs/protocol.md tells payloads and order. "text" is UTF-8 with its
/// terminating zero byte, "record" the text of a record (net/Controller_Records.h), "stream" see net/Byte_Stream.h,
/// "none" a message without payload. Numbers from 7000 on and those of replies are this system's own.
namespace Controller_Command {

enum Number : quint32 {
  Refused = 6,                       ///< from the controller: DB_Refusal, in place of the reply to a request
  Reset = 7,                         ///< none: forget project and persistent values
  Network_Settings = 8,              ///< none
  Network_Settings_Reply = 80,       ///< DB_Network_Settings
  Reset_Reply = 70,                  ///< none
  Connection_Check = 9,              ///< text: host; direct
  Connection_Check_Reply = 90,       ///< text: empty, or what is wrong
  Log_On = 10,                       ///< DB_Log_On; direct
  Log_On_Accepted = 11,              ///< DB_Controller_Informations
  Log_On_Refused = 12,               ///< text: the reason
  Telegram = 13,                     ///< DB_Address_Network_Telegram; both ways
  Project_Begin = 14,                ///< none: stop, a project follows
  Project_Start = 15,                ///< none: what was sent is the project now; start
  Project_Started = 16,              ///< text: the controller's DB_Project record
  Project_Clear = 17,                ///< none: before 14, forget resources of the project that goes
  Resource = 21,                     ///< 255 bytes of file name, zero-filled, then the file
  Resource_Stored = 22,              ///< text: the file name
  Resources_Begin = 23,              ///< none: all resources of the project follow
  Persistent_Load = 25,              ///< text: empty for all
  Persistent_Load_Begin = 26,        ///< stream, begin
  Persistent_Load_Data = 27,         ///< stream, data
  Persistent_Store = 31,             ///< none: bring the values to the disk
  Persistent_Stored = 32,            ///< none
  Compare = 33,                      ///< none
  Compare_Reply = 34,                ///< DB_Controller_Project
  Telegram_Batch = 36,               ///< from the controller: Telegram_Batch records
  Debug_Level = 58,                  ///< text: "0" or "1"
  Debug_Level_Reply = 59,            ///< none
  Compact = 64,                      ///< text: "VACUUM"
  Compacted = 65,                    ///< none
  Record_Project = 103,              ///< text: DB_Project
  Record_Style = 104,                ///< text: DB_Style
  Record_Connections = 105,          ///< text: DB_Connections
  Record_Statistic = 106,            ///< text: DB_Statistic
  Record_TgmMon = 107,               ///< text: DB_TgmMon
  Record_Mail = 210,                 ///< text: DB_SMTP_Mail
  Record_M8800 = 350,                ///< text: DB_M8800
  Project_Closed = 650,              ///< none: the write is complete
  Relay_Dns_Check = 1000,            ///< text: host name
  Relay_Dns_Reply = 1002,            ///< text: "ok;ADDRESS" or what is wrong
  Relay_Log_On = 1001,               ///< DB_Log_On; through the relay; replies 11 and 12
  Relay_Check = 1008,                ///< text: host
  Relay_Check_Reply = 1009,          ///< text: empty, or what is wrong
  Backup_List = 1344,                ///< none
  Backup_List_Reply = 1345,          ///< DB_Backup_List
  Backup_Make = 1346,                ///< text: a description
  Backup_Made = 1347,                ///< DB_Backup_List of the one new backup
  Backup_Fetch = 1348,               ///< text: id
  Backup_Fetch_Begin = 1349,         ///< stream, begin
  Backup_Fetch_Data = 1350,          ///< stream, data
  Backup_Restore = 1431,             ///< text: "ID#WHAT", WHAT is project, persistent or all
  Backup_Restored = 1432,            ///< none
  Backup_Delete = 1434,              ///< text: id
  Backup_Deleted = 1435,             ///< none
  Load = 1437,                       ///< text: "project", "persistent", or "project#ID" and "persistent#ID" of a backup
  Load_Begin = 1438,                 ///< stream, begin
  Load_Data = 1439,                  ///< stream, data
  Number_Get = 1456,                 ///< none
  Number_Get_Reply = 1457,           ///< text: number, 0 for none
  Number_Set = 1458,                 ///< text: number
  Number_Set_Reply = 1459,           ///< text: number
  Number_Clear = 1460,               ///< none
  Number_Clear_Reply = 1461,         ///< none
  Group_Status = 1462,               ///< none
  Group_Status_Reply = 1463,         ///< DB_Group_Status
  Partner_Number_Set = 1465,         ///< text: "ADDRESS#NUMBER", passed on to a partner
  Partner_Number_Set_Reply = 1466,   ///< text: "ADDRESS#NUMBER"
  Partner_Number_Clear = 1475,       ///< text: address of a partner
  Partner_Number_Clear_Reply = 1476, ///< none

  Program_Begin = 7000,         ///< stream, begin: a Project_Image of the program follows, staged
  Program_Data = 7001,          ///< stream, data
  Program_End = 7002,           ///< none
  Program_Staged = 7003,        ///< none: whole and unharmed
  Program_Start = 7004,         ///< none: what is staged runs from now on, without a project write
  Program_Started = 7005,       ///< DB_Controller_Project
  Transfer_Abort = 7009,        ///< none: forget what is staged, run the old project again
  Transfer_Aborted = 7010,      ///< none
  Information = 7020,           ///< none
  Information_Reply = 7021,     ///< DB_Controller_Informations
  Clock_Get = 7022,             ///< none
  Clock_Set = 7024,             ///< text: milliseconds since 1970 (UTC)
  Clock_Reply = 7023,           ///< text: milliseconds since 1970 (UTC)
  Restart = 7026,               ///< none
  Restarting = 7027,            ///< none: the controller closes the link next
  Persistent_Send_Begin = 7030, ///< stream, begin
  Persistent_Send_Data = 7031,  ///< stream, data
  Persistent_Taken = 7032,      ///< text: number of values taken over
  Cycle = 7040,                 ///< text: period in ms of telegrams of all addresses, "0" for none
  Cycle_Reply = 7041,           ///< none
  Values_Get = 7042,            ///< none: the kept values come as 36, then 7043
  Values_Sent = 7043,           ///< text: number of values
  Script_Run = 7050,            ///< 16 bytes of GUID, UTF-8 script
  Script_Run_Reply = 7051,      ///< 16 bytes of GUID, UTF-8: empty, or what is wrong
  Script_Watch = 7052,          ///< 16 bytes of GUID: tell of that script for the next 10 s
  Script_Console = 7053,        ///< from the controller: GUID, time (i64, ms since 1970), UTF-8 line
  Script_Variable = 7054,       ///< from the controller: GUID, UTF-8 name, a zero byte, UTF-8 value
};

} // namespace Controller_Command
