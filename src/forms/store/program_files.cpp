#include "forms/store/program_files.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace kestrova {

namespace {

// A file every layout of the program holds: the folder that has it is the one.
constexpr const char* kMarker = "pipeastm.sqlite";

} // namespace

QString programDataFolderFor(const QString& executableFolder)
{
    const QDir beside(executableFolder);
    if (QFileInfo::exists(beside.filePath(kMarker)))
        return beside.absolutePath();
    const QString installed = QDir::cleanPath(beside.absoluteFilePath("../share/kestrova"));
    if (QFileInfo::exists(QDir(installed).filePath(kMarker)))
        return installed;
    return beside.absolutePath();
}

QString programDataFolder()
{
    static const QString folder = programDataFolderFor(QCoreApplication::applicationDirPath());
    return folder;
}

QString programFile(const QString& name) { return QDir(programDataFolder()).filePath(name); }

} // namespace kestrova
