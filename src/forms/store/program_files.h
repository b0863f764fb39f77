#pragma once
// Where the program's own files are (the data bases, roughness files, report
// layouts, disclaimer and help): beside the executable, as in the build
// folder, or else in ../share/kestrova/ relative to it, as installed. The
// program never writes there; what it writes goes to the user's folders.

#include <QString>

namespace kestrova {

// The folder of the program's own files for a program in `executableFolder`.
QString programDataFolderFor(const QString& executableFolder);

// The same for this program.
QString programDataFolder();

// A file of the program's own, by name.
QString programFile(const QString& name);

} // namespace kestrova
