// The record layer of the project files: little-endian numbers, variant
// strings in Windows-1252, damaged files reported, safe writing.

#include "forms/model/document_file.h"
#include "forms/store/project_file.h"
#include "forms/model/scripted_user_interface.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <functional>
#include <sys/resource.h>
#include <unistd.h>

using namespace kestrova;

TEST(ProjectFile, NumbersAndTextsLaidOutAndReadBack)
{
    RecordWriter out;
    out.integer16(-2);
    out.integer32(70000);
    out.single(1.5);
    out.text("Café");
    const QByteArray& b = out.bytes();
    ASSERT_EQ(b.size(), 2 + 4 + 4 + 4 + 4);
    EXPECT_EQ(b.mid(0, 2), QByteArray("\xfe\xff", 2));
    EXPECT_EQ(b.mid(2, 4), QByteArray("\x70\x11\x01\x00", 4)); // 70000 little-endian
    EXPECT_EQ(b.mid(6, 4), QByteArray("\x00\x00\xc0\x3f", 4)); // 1.5 as a single
    EXPECT_EQ(b.mid(10, 4), QByteArray("\x08\x00\x04\x00", 4)); // type 8, length 4
    EXPECT_EQ(b.mid(14, 4), QByteArray("Caf\xe9", 4));         // Windows-1252

    RecordReader in(b);
    EXPECT_EQ(in.integer16(), -2);
    EXPECT_EQ(in.integer32(), 70000);
    EXPECT_EQ(in.single(), 1.5);
    EXPECT_EQ(in.text(), "Café");
    EXPECT_TRUE(in.atEnd());
}

TEST(ProjectFile, OneWalkServesWritingAndReading)
{
    std::int16_t kind = 7;
    std::int32_t position = 123456;
    Single value = 2.25;
    std::string name = "Water";
    RecordWriter out;
    out.field(kind);
    out.field(position);
    out.field(value);
    out.field(name);
    RecordReader in(out.bytes());
    std::int16_t k = 0;
    std::int32_t p = 0;
    Single v;
    std::string n;
    in.field(k);
    in.field(p);
    in.field(v);
    in.field(n);
    EXPECT_EQ(k, 7);
    EXPECT_EQ(p, 123456);
    EXPECT_EQ(v, 2.25);
    EXPECT_EQ(n, "Water");
}

TEST(ProjectFile, DamagedRecordsRaiseAndNeverReadPastTheEnd)
{
    RecordReader shortNumber(QByteArray("\x01", 1));
    EXPECT_THROW(shortNumber.integer16(), DamagedFileError);
    RecordReader shortText(QByteArray("\x08\x00\x09\x00" "abc", 7)); // 9 characters promised, 3 there
    EXPECT_THROW(shortText.text(), DamagedFileError);
    RecordReader notAText(QByteArray("\x03\x00\x01\x00" "a", 5));
    EXPECT_THROW(notAText.text(), DamagedFileError);
    RecordReader notANumber(QByteArray("\x00\x00\xc0\x7f", 4)); // a NaN single
    EXPECT_THROW(notANumber.single(), DamagedFileError);
    EXPECT_EQ(fileKindOf(QByteArray("\x02", 1)), 0);
    EXPECT_EQ(fileKindOf(QByteArray("\x02\x00", 2)), 2);
}

TEST(ProjectFile, ToolsOpenOnlyTheirOwnKindAndSayWhy)
{
    QTemporaryDir dir;
    const std::string path = dir.filePath("case.ksv").toStdString();
    ScriptedUserInterface ui;
    const auto read = [](RecordReader& in) { return in.integer16(); };
    std::int16_t record = 0;

    EXPECT_FALSE(openProjectFile(ui, "Orifice Plates", path, 1, "Not mine.", read, record));
    EXPECT_EQ(ui.messages.back().text, "The file could not be read.");

    ASSERT_TRUE(saveProjectFile(ui, "Orifice Plates", path, QByteArray("\x02\x00\x05\x00", 4)));
    EXPECT_FALSE(openProjectFile(ui, "Orifice Plates", path, 1, "Not mine.", read, record));
    EXPECT_EQ(ui.messages.back().text, "Not mine.");
    EXPECT_EQ(ui.messages.back().title, "Orifice Plates");

    ASSERT_TRUE(saveProjectFile(ui, "Orifice Plates", path, QByteArray("\x01\x00\x05", 3)));
    EXPECT_FALSE(openProjectFile(ui, "Orifice Plates", path, 1, "Not mine.", read, record));
    EXPECT_EQ(ui.messages.back().text, "This Orifice Plates data file is damaged or incomplete and could not be opened.");

    ASSERT_TRUE(saveProjectFile(ui, "Orifice Plates", path, QByteArray("\x01\x00\x05\x00", 4)));
    EXPECT_TRUE(openProjectFile(ui, "Orifice Plates", path, 1, "Not mine.", read, record));
    EXPECT_EQ(record, 5);
}

TEST(ProjectFile, AFailedSaveSaysSoAndLeavesTheOldFile)
{
    QTemporaryDir dir;
    const QString path = dir.filePath("kept.ksv");
    ScriptedUserInterface ui;
    ASSERT_TRUE(saveProjectFile(ui, "Pump System", path.toStdString(), QByteArray("old", 3)));
    const std::string folderAsFile = dir.path().toStdString(); // a folder cannot be replaced by a file
    EXPECT_FALSE(saveProjectFile(ui, "Pump System", folderAsFile, QByteArray("new", 3)));
    EXPECT_EQ(ui.messages.back().title, "Pump System");
    EXPECT_NE(ui.messages.back().text.find("The data on screen are unchanged."), std::string::npos);
    QByteArray bytes;
    ASSERT_TRUE(readWholeFile(path, bytes));
    EXPECT_EQ(bytes, QByteArray("old", 3));
}

namespace {

// A limit on the size of the files this process writes stands in for a full
// disk: the write fails with an error as it does when the disk is full.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &saved_);
        previousSignal_ = std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{bytes, saved_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &saved_);
        std::signal(SIGXFSZ, previousSignal_);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit saved_{};
    void (*previousSignal_)(int) = nullptr;
};

QStringList filesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
}

// A save onto the disk that `saveDir` lies on fails, says so, and leaves the
// old file whole with nothing beside it. Shared by the file size limit and
// the real full disk below.
void expectFullDiskKeepsTheOldFile(const QString& saveDir, const std::function<bool(const QByteArray&)>& save)
{
    const QString path = QDir(saveDir).filePath("case.ksv");
    QByteArray bytes;
    ASSERT_TRUE(readWholeFile(path, bytes));
    const QByteArray old = bytes;
    EXPECT_FALSE(save(QByteArray(64 * 1024, 'n')));
    ASSERT_TRUE(readWholeFile(path, bytes));
    EXPECT_EQ(bytes, old);
    EXPECT_EQ(filesIn(saveDir), QStringList{"case.ksv"});
}

} // namespace

TEST(ProjectFile, ASaveOntoAFullDiskFailsAndKeepsTheOldFileWhole)
{
    QTemporaryDir dir;
    const QString path = dir.filePath("case.ksv");
    ScriptedUserInterface ui;
    ASSERT_TRUE(saveProjectFile(ui, "Pressure Drop", path.toStdString(), QByteArray(3000, 'o')));
    expectFullDiskKeepsTheOldFile(dir.path(), [&](const QByteArray& bytes) {
        const FileSizeLimit limit(4096);
        return saveProjectFile(ui, "Pressure Drop", path.toStdString(), bytes);
    });
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].icon, MessageIcon::Stop);
    EXPECT_NE(ui.messages[0].text.find("The file could not be saved: "), std::string::npos);
    EXPECT_NE(ui.messages[0].text.find("The data on screen are unchanged."), std::string::npos);
}

// Run by tests/frame/full_disk.sh on a tmpfs of its own, filled to the brim;
// skipped when no such disk is given.
TEST(ProjectFile, ASaveOntoARealFullDiskFailsAndKeepsTheOldFileWhole)
{
    const QString folder = qEnvironmentVariable("KESTROVA_FULL_DISK");
    if (folder.isEmpty())
        GTEST_SKIP() << "no full disk given";
    ScriptedUserInterface ui;
    expectFullDiskKeepsTheOldFile(folder, [&](const QByteArray& bytes) {
        return saveProjectFile(ui, "Pressure Drop", QDir(folder).filePath("case.ksv").toStdString(), bytes);
    });
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_NE(ui.messages[0].text.find("No space left on device"), std::string::npos) << ui.messages[0].text;
}

TEST(ProjectFile, WhatAnInterruptedSaveLeftIsRemovedAtTheNextSave)
{
    QTemporaryDir dir;
    ScriptedUserInterface ui;
    const QString path = dir.filePath("case.ksv");
    // The program's own leftovers, and files of the user's that only look alike.
    const QStringList ours{"case.ksv.kestrova-save", "case.ksv.kestrova-save.Ab12Cd"};
    const QStringList theirs{"case.ksv.backup", "case.ksv.kestrova-save.notes", "case.ksv.kestrova-save.Ab12Cd.txt",
                             "other.ksv.kestrova-save"};
    for (const QString& name : ours + theirs) {
        QFile file(dir.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("left");
    }
    ASSERT_TRUE(saveProjectFile(ui, "Pressure Drop", path.toStdString(), QByteArray("\x02\x00", 2)));
    QStringList expected = theirs + QStringList{"case.ksv"};
    expected.sort();
    EXPECT_EQ(filesIn(dir.path()), expected);
}

TEST(ProjectFile, ASaveKeepsTheFilesPermissions)
{
    QTemporaryDir dir;
    ScriptedUserInterface ui;
    const QString path = dir.filePath("case.ksv");
    ASSERT_TRUE(saveProjectFile(ui, "Orifice Plates", path.toStdString(), QByteArray("\x01\x00", 2)));
    const auto shared = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther;
    ASSERT_TRUE(QFile::setPermissions(path, shared));
    ASSERT_TRUE(saveProjectFile(ui, "Orifice Plates", path.toStdString(), QByteArray("\x01\x00\x05\x00", 4)));
    const auto ownerGroupOther = QFileDevice::Permissions::fromInt(0x7077);
    EXPECT_EQ(QFile::permissions(path) & ownerGroupOther, shared & ownerGroupOther);
}

TEST(ProjectFile, AReadOnlyFileIsNotReplaced)
{
    QTemporaryDir dir;
    ScriptedUserInterface ui;
    const QString path = dir.filePath("case.ksv");
    ASSERT_TRUE(saveProjectFile(ui, "Orifice Plates", path.toStdString(), QByteArray("\x01\x00\x05\x00", 4)));
    if (geteuid() == 0)
        GTEST_SKIP() << "every file is writable for the superuser";
    ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther));
    EXPECT_FALSE(saveProjectFile(ui, "Orifice Plates", path.toStdString(), QByteArray("\x01\x00\x06\x00", 4)));
    EXPECT_NE(ui.messages.back().text.find("The file is read-only."), std::string::npos);
    QByteArray bytes;
    ASSERT_TRUE(readWholeFile(path, bytes));
    EXPECT_EQ(bytes, QByteArray("\x01\x00\x05\x00", 4));
}
