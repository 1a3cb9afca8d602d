#pragma once

#include <QString>
#include <QStringList>

#include <functional>

/// What the arguments of the process ask for.
///
/// The arguments are walked in order by this class itself, because a project path is recognised by its text alone
/// (".zpro" anywhere in it, in any case) and not by its place among options.
class Command_Line {
public:
  /// Tells whether a file exists; a test hands in its own.
  using File_Exists = std::function<bool(const QString& path)>;

  /// `arguments` without the program's own name.
  [[nodiscard]] static Command_Line parse(const QStringList& arguments, const File_Exists& exists);

  [[nodiscard]] static QString helpText();
  [[nodiscard]] static QString versionText();

  bool mHelp = false;
  bool mVersion = false;
  bool mKiosk = false;   ///< without menus and editing, for this run
  bool mDemo = false;    ///< opens the demo project, unless a project path is given
  QString mProjectPath;  ///< the last named project file that exists; empty for none
  QString mSettingsFile; ///< settings are read from and written to this INI file; empty for the user's own
  int mMcpPort = -1;     ///< port of the assistant server for this run, 0 (off) to 65535; -1 for the setting's
  QString mError;        ///< German text of the first wrong argument; empty when all are right
};
