#include "tools/pressure_drop/pressure_drop_fixture.h"
#include "frame/reopen.h"

#include "frame/model/frame_model.h"
#include "forms/store/project_file.h"
#include "frame/file_bytes.h"
#include "forms/store/settings_store.h"

#include <QFile>
#include <QTemporaryDir>

using namespace kestrova;

class PressureDropFileTest : public PressureDropTest {
protected:
    std::string path(const char* name) const { return dir.filePath(name).toStdString(); }
    bool save(const std::string& file)
    {
        tool.setStrFileName(file);
        return tool.OpenSaveData("Save As");
    }
    QTemporaryDir dir;
};

TEST_F(PressureDropFileTest, TheRecordIsLaidOutByteForByte)
{
    enterWaterLine();
    tool.commit(pressure_drop::txtProject(0), "Cooling water");
    tool.commit(pressure_drop::txtTag(0), "L-101");
    tool.commit(pressure_drop::txtLiquid, "Water \xC3\xA9t\xC3\xA9"); // "Water été"
    ASSERT_TRUE(save(path("water.ksv")));
    const QByteArray bytes = bytesOf(dir.filePath("water.ksv"));

    RecordReader in(bytes);
    EXPECT_EQ(in.integer16(), 2);  // kind
    EXPECT_EQ(in.integer16(), 0);  // tab
    EXPECT_EQ(in.integer16(), 0);  // cross section
    EXPECT_EQ(in.integer16(), 0);  // calculation type
    EXPECT_EQ(in.integer16(), 0);  // orientation
    // K sums, other K, then 840 + 720 + 24 + 720 + 24 bytes of tables, two K values.
    const qsizetype recordAt = 10 + 16 + 840 + 720 + 24 + 720 + 24 + 8;
    RecordReader record(bytes.mid(recordAt));
    EXPECT_EQ(record.single(), 36000); // LiquidFlow
    record.single();
    EXPECT_EQ(record.single(), Single(62.4)); // LiquidDensity
    RecordReader texts(bytes.mid(recordAt + 124));
    EXPECT_EQ(texts.text(), "Cooling water");
    EXPECT_EQ(texts.text(), "L-101");
    // A variant string: type word 8, length, single-byte text.
    EXPECT_EQ(bytes.mid(recordAt + 124, 4), QByteArray("\x08\x00\x0d\x00", 4));
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(texts.text(), "");
    const qsizetype nameAt = recordAt + 124 + (4 + 13) + (4 + 5) + 4 * 4;
    EXPECT_EQ(bytes.mid(nameAt + 4, 9), QByteArray("Water \xE9t\xE9"));
    EXPECT_EQ(bytes.size(), nameAt + 4 + 9 + 4 + 20);
}

TEST_F(PressureDropFileTest, SaveAndReopenGivesTheSameFiguresAndBytes)
{
    enterWaterLine();
    minorLossStore().SegK2[0] = 0.75;
    tool.cmdTable_Click(2); // the minor loss tool hands back its sums
    minorLossStore().hasData[0] = true;
    tool.cmdTable_Click(2);
    EXPECT_EQ(display(12), "0.75");
    ASSERT_TRUE(save(path("line.ksv")));
    EXPECT_FALSE(tool.view().DirtyFlag);
    EXPECT_EQ(tool.view().caption, "Pressure Drop: line.ksv");
    const QByteArray first = bytesOf(dir.filePath("line.ksv"));

    ScriptedUserInterface otherUi;
    PressureDropModel reopened(otherUi);
    ASSERT_TRUE(reopenIn(reopened, path("line.ksv")));
    EXPECT_FALSE(reopened.view().failed);
    EXPECT_EQ(reopened.view().txtData[10].text, data(10));
    EXPECT_EQ(reopened.view().txtData[9].text, data(9));
    EXPECT_EQ(reopened.view().txtDisplay[1].text, display(1));
    EXPECT_FALSE(reopened.view().DirtyFlag);
    EXPECT_EQ(reopened.view().caption, "Pressure Drop: line.ksv");

    // Saved again in other units, the record bytes are the same.
    reopened.setUnit(0, 3);
    reopened.setUnit(8, 4);
    reopened.setStrFileName(path("again.ksv"));
    ASSERT_TRUE(reopened.OpenSaveData("Save"));
    EXPECT_EQ(bytesOf(dir.filePath("again.ksv")), first);
}

TEST_F(PressureDropFileTest, KSumsComeFromTheMinorLossItems)
{
    enterWaterLine();
    typeDisplay(0, "800"); // typed by hand: not saved
    minorLossStore().SegK1[0] = 1500;
    minorLossStore().SegK2[0] = 4;
    ASSERT_TRUE(save(path("k.ksv")));
    minorLossStore() = MinorLossStore{};
    tool.setStrFileName(path("k.ksv"));
    ASSERT_TRUE(tool.OpenSaveData("Open"));
    EXPECT_EQ(display(0), "1,500");
    EXPECT_EQ(display(12), "4.00");
    EXPECT_EQ(display(7), "1,500");
    EXPECT_TRUE(minorLossStore().hasData[0]);
}

TEST_F(PressureDropFileTest, OtherKindsAndDamagedFilesChangeNothing)
{
    enterWaterLine();
    const PressureDropData before = tool.view().record;
    const std::string drop = data(10);

    writeBytes(dir.filePath("orifice.ksv"), QByteArray("\x01\x00rest", 6));
    tool.setStrFileName(path("orifice.ksv"));
    EXPECT_FALSE(tool.OpenSaveData("Open"));
    EXPECT_EQ(ui.messages.back().text, "This is not a Pressure Drop data file.");
    EXPECT_EQ(ui.messages.back().title, "Pressure Drop");
    EXPECT_EQ(ui.messages.back().icon, MessageIcon::Stop);

    ASSERT_TRUE(save(path("whole.ksv")));
    const QByteArray whole = bytesOf(dir.filePath("whole.ksv"));
    for (qsizetype cut : {qsizetype(2), qsizetype(11), qsizetype(500), whole.size() - 1}) {
        writeBytes(dir.filePath("short.ksv"), whole.left(cut));
        tool.setStrFileName(path("short.ksv"));
        EXPECT_FALSE(tool.OpenSaveData("Open")) << cut;
        EXPECT_NE(ui.messages.back().text.find("damaged"), std::string::npos);
        EXPECT_EQ(tool.view().record.LiquidFlow, before.LiquidFlow);
        EXPECT_EQ(data(10), drop);
    }
}

TEST_F(PressureDropFileTest, AFailedSaveLeavesTheOldFileAndTheData)
{
    enterWaterLine();
    ASSERT_TRUE(save(path("keep.ksv")));
    const QByteArray kept = bytesOf(dir.filePath("keep.ksv"));
    tool.Form_KeyPress();
    tool.setStrFileName(dir.filePath("no/such/folder/keep.ksv").toStdString());
    EXPECT_FALSE(tool.OpenSaveData("Save"));
    EXPECT_TRUE(tool.view().DirtyFlag);
    EXPECT_EQ(ui.messages.back().icon, MessageIcon::Stop);
    EXPECT_EQ(bytesOf(dir.filePath("keep.ksv")), kept);
}

TEST_F(PressureDropFileTest, ARefusedFileNeverBecomesTheToolsFile)
{
    SettingsStore store(dir.filePath("Kestrova.ini"));
    FrameModel frame(ui, store);
    frame.MDIForm_Load();
    const auto opener = [this](int) -> DocumentTool* { return &tool; };
    enterWaterLine();
    ASSERT_TRUE(save(path("good.ksv")));
    const QByteArray good = bytesOf(dir.filePath("good.ksv"));
    writeBytes(dir.filePath("damaged.ksv"), good.left(40));

    // Open a damaged file over the good case: the message, and the tool keeps
    // the good case under its own name.
    frame.openFile("damaged.ksv", path("damaged.ksv"), opener);
    EXPECT_NE(ui.messages.back().text.find("damaged"), std::string::npos);
    EXPECT_EQ(tool.strFileName(), path("good.ksv"));
    EXPECT_EQ(tool.view().caption, "Pressure Drop: good.ksv");

    // Save then writes the good file, and the refused one stays as it was.
    type(8, "250");
    ASSERT_TRUE(frame.mnuFileSave_Click(&tool, [](const std::string&) -> std::string {
        ADD_FAILURE() << "Save asked for a name";
        return {};
    }));
    EXPECT_EQ(bytesOf(dir.filePath("damaged.ksv")), good.left(40));
    EXPECT_NE(bytesOf(dir.filePath("good.ksv")), good);
}

TEST_F(PressureDropFileTest, ASaveAsThatFailsKeepsTheCaseWithItsOwnFile)
{
    SettingsStore store(dir.filePath("Kestrova.ini"));
    FrameModel frame(ui, store);
    frame.MDIForm_Load();
    enterWaterLine();
    ASSERT_TRUE(save(path("good.ksv")));
    type(8, "250");
    tool.Form_KeyPress();
    const std::string nowhere = dir.filePath("no/such/folder/case.ksv").toStdString();
    EXPECT_FALSE(frame.mnuFileSaveAs_Click(&tool, [&](const std::string&) { return nowhere; }));
    EXPECT_EQ(ui.messages.back().icon, MessageIcon::Stop);
    EXPECT_EQ(tool.strFileName(), path("good.ksv"));
    EXPECT_TRUE(tool.view().DirtyFlag);
    EXPECT_TRUE(ui.toolbar["Save"]);
    for (const RecentFile& recent : frame.recentFiles.entries())
        EXPECT_NE(recent.path, nowhere);
}
