#pragma once

#include "db/Address_Clipboard.h"

/// Brings a table of text, as spreadsheets put it on the clipboard, into the address tree.
///
/// Columns are divided by tabs (by semicolons when there is no tab). A first row with titles ("Adresse", "Name",
/// "Beschreibung", "Datenpunkttyp", "Lesen Start", "Lesen zyklisch", "Schreiben", "Aktiv") tells what they are; without
/// one they are address, name, description, datapoint type, or without addresses name, description, datapoint type.
/// Rows with an address change what is there, in the columns that the table has, and make what is missing; rows without
/// one become new addresses in the middle group of the target. "1/*" and "1/2/*" name groups.
namespace Address_Table_Paste {

/// One undo step. A row that cannot be is told with its number and the others are pasted; refuses a table of which
/// nothing can be.
Edit_Result paste(Project_Session& session, const QString& text, const QUuid& target,
                  Address_Clipboard::Result& result);

} // namespace Address_Table_Paste
