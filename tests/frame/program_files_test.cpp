// The program's own files are found beside the executable (the build folder)
// or in ../share/kestrova/ relative to it (an installed program), the first
// that holds them winning.

#include "forms/store/program_files.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using kestrova::programDataFolderFor;

namespace {

void makeFile(const QString& path)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
}

} // namespace

TEST(ProgramFiles, BesideTheExecutableThenInTheInstalledShareFolder)
{
    QTemporaryDir root;
    const QString bin = root.filePath("bin");
    QDir().mkpath(bin);
    // Nothing anywhere: beside the executable, where a missing file is reported.
    EXPECT_EQ(programDataFolderFor(bin), QDir(bin).absolutePath());
    // Installed: share/kestrova beside bin.
    makeFile(root.filePath("share/kestrova/pipeastm.sqlite"));
    EXPECT_EQ(programDataFolderFor(bin), QDir(root.filePath("share/kestrova")).absolutePath());
    // A build folder holds its files beside the programs, and they win.
    makeFile(root.filePath("bin/pipeastm.sqlite"));
    EXPECT_EQ(programDataFolderFor(bin), QDir(bin).absolutePath());
}
