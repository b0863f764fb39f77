// The record layer of the project files: little-endian numbers, variant
// strings in Windows-1252, damaged files reported, safe writing.

#include "frame/project_file.h"
#include "frame/scripted_user_interface.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

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
