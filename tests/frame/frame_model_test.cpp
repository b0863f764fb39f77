#include "forms/model/document_tool.h"
#include "frame/model/frame_model.h"
#include "forms/model/scripted_user_interface.h"
#include "forms/store/settings_store.h"
#include "frame/model/unit_options_model.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace kestrova;

namespace {

// A document tool that keeps what the frame asked of it.
struct RecordingTool : DocumentTool {
    void Form_Load() override {}
    void Form_Activate() override {}
    bool Form_QueryUnload() override { return true; }
    bool isDirty() const override { return false; }
    std::string strFileName() const override { return fileName; }
    void setStrFileName(const std::string& path) override { fileName = path; }
    bool OpenSaveData(const std::string& operation) override
    {
        operations.push_back(operation);
        return true;
    }
    void PrintDataSheet(const DataSheetPrinter&) override { ++dataSheets; }
    std::string toolTitle() const override { return "Pressure Drop"; }
    std::int16_t fileKind() const override { return 2; }
    std::string fileName;
    std::vector<std::string> operations;
    int dataSheets = 0;
};

void writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

} // namespace

class FrameModelTest : public testing::Test {
protected:
    FrameModelTest() : store(dir.filePath("Kestrova.ini")), frame(ui, store) { frame.MDIForm_Load(); }
    std::string path(const char* name) const { return dir.filePath(name).toStdString(); }
    FrameModel::ToolOpener opener()
    {
        return [this](int kind) -> DocumentTool* {
            openedKinds.push_back(kind);
            return &tool;
        };
    }
    QTemporaryDir dir;
    SettingsStore store;
    ScriptedUserInterface ui;
    FrameModel frame;
    RecordingTool tool;
    std::vector<int> openedKinds;
};

TEST_F(FrameModelTest, TheMenusCopyTheToolbar)
{
    EXPECT_TRUE(frame.menuEnabled("mnuFileOpen"));
    EXPECT_FALSE(frame.menuEnabled("mnuFileSave"));
    EXPECT_FALSE(frame.menuEnabled("mnuFilePrint"));
    frame.setToolbarButtonEnabled("Save", true);
    frame.setToolbarButtonEnabled("Cut", false);
    EXPECT_TRUE(frame.menuEnabled("mnuFileSave"));
    EXPECT_FALSE(frame.menuEnabled("mnuEditCut"));
    EXPECT_TRUE(frame.menuEnabled("mnuEditCopy"));
}

TEST_F(FrameModelTest, OpeningChecksExistenceAndKindBeforeTheRecentList)
{
    frame.openFile("gone.ksv", path("gone.ksv"), opener());
    EXPECT_EQ(ui.messages.back().text, "File does not exist.");
    EXPECT_EQ(ui.messages.back().title, "Open");
    EXPECT_EQ(ui.messages.back().icon, MessageIcon::Stop);

    writeFile(dir.filePath("empty.ksv"), {});
    frame.openFile("empty.ksv", path("empty.ksv"), opener());
    EXPECT_EQ(ui.messages.back().text, "This is not a Kestrova data file.");
    EXPECT_EQ(ui.messages.back().title, "Kestrova Open File");
    EXPECT_EQ(ui.messages.back().icon, MessageIcon::Warning);
    writeFile(dir.filePath("four.ksv"), QByteArray("\x04\x00", 2));
    frame.openFile("four.ksv", path("four.ksv"), opener());
    EXPECT_EQ(ui.messages.back().text, "This is not a Kestrova data file.");
    EXPECT_TRUE(frame.recentFiles.entries().empty());
    EXPECT_TRUE(openedKinds.empty());

    writeFile(dir.filePath("line.ksv"), QByteArray("\x02\x00", 2));
    frame.openFile("line.ksv", path("line.ksv"), opener());
    EXPECT_EQ(openedKinds, std::vector<int>{2});
    EXPECT_EQ(tool.fileName, path("line.ksv"));
    EXPECT_EQ(tool.operations, std::vector<std::string>{"Open"});
    ASSERT_EQ(frame.recentFiles.entries().size(), 1u);
    EXPECT_EQ(frame.recentFiles.entries()[0].title, "line.ksv");

    // A recent file that was deleted since: the message, and the entry stays.
    QFile::remove(dir.filePath("line.ksv"));
    frame.mnuFileMRU_Click(1, opener());
    EXPECT_EQ(ui.messages.back().text, "File does not exist.");
    EXPECT_EQ(frame.recentFiles.entries().size(), 1u);
}

TEST_F(FrameModelTest, SaveWithoutAFileNameIsSaveAs)
{
    int asked = 0;
    const auto choose = [&](const std::string&) {
        ++asked;
        return path("chosen.ksv");
    };
    EXPECT_TRUE(frame.mnuFileSave_Click(&tool, choose));
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(tool.operations, std::vector<std::string>{"Save As"});
    EXPECT_EQ(frame.recentFiles.entries()[0].path, path("chosen.ksv"));
    EXPECT_TRUE(frame.mnuFileSave_Click(&tool, choose));
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(tool.operations.back(), "Save");
    // A cancelled Save As changes nothing.
    EXPECT_FALSE(frame.mnuFileSaveAs_Click(&tool, [](const std::string&) { return std::string(); }));
    EXPECT_EQ(tool.fileName, path("chosen.ksv"));
    frame.mnuFilePrintDataSheet_Click(&tool);
    EXPECT_EQ(tool.dataSheets, 1);
    EXPECT_EQ(ui.statusText, "Print Data Sheet");
}

TEST_F(FrameModelTest, PlacementDefaultsAndAMinimisedFrameSavesNothing)
{
    FramePlacement p = frame.placement();
    EXPECT_EQ(p.left, 1000);
    EXPECT_EQ(p.width, 6500);
    frame.MDIForm_Unload({1500, 1200, 9000, 7000}, false);
    EXPECT_EQ(frame.placement().width, 9000);
    frame.MDIForm_Unload({0, 0, 100, 100}, true);
    EXPECT_EQ(frame.placement().width, 9000);
    EXPECT_TRUE(frame.disclaimerShow());
    store.save("Settings", "Disclaimer Show", "False");
    EXPECT_FALSE(frame.disclaimerShow());
}

TEST_F(FrameModelTest, TheDataBaseTestOpensReadOnlyAndQueries)
{
    store.save("Settings", "DataBaseLocation", path("missing.sqlite"));
    frame.MDIForm_Activate();
    EXPECT_FALSE(frame.dataBaseFileValid());
    writeFile(dir.filePath("text.sqlite"), "this is not a data base at all, only text");
    EXPECT_FALSE(isValidDataBaseFile(path("text.sqlite")));
}

TEST_F(FrameModelTest, LocateDataBaseKeepsOnlyAFileThatPassesTheTest)
{
    const std::string before = frame.dataBaseLocation();
    writeFile(dir.filePath("text.sqlite"), "this is not a data base at all, only text");
    EXPECT_FALSE(frame.locateDataBase(path("text.sqlite")));
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].title, "Locate Data Base");
    EXPECT_EQ(ui.messages[0].text, "Not a valid physical properties data base file.");
    EXPECT_EQ(frame.dataBaseLocation(), before); // the old location stays
    // A sound SQLite file without the compound table is no properties data base either.
    EXPECT_FALSE(frame.locateDataBase(QDir(KESTROVA_DATA_DIR).filePath("pipeastm.sqlite").toStdString()));
    EXPECT_EQ(ui.messages.back().text, "Not a valid physical properties data base file.");
    EXPECT_EQ(frame.dataBaseLocation(), before);

    // The compound data base shipped beside the program passes, and is kept.
    const std::string shipped = QDir(KESTROVA_DATA_DIR).filePath("compounds.sqlite").toStdString();
    EXPECT_TRUE(frame.locateDataBase(shipped));
    EXPECT_TRUE(frame.dataBaseFileValid());
    EXPECT_EQ(store.get("Settings", "DataBaseLocation", ""), shipped);
    EXPECT_EQ(ui.messages.size(), 2u);
}

TEST_F(FrameModelTest, PrintDataSheetGoesOnlyToAToolInFront)
{
    frame.mnuFilePrintDataSheet_Click(nullptr);
    EXPECT_EQ(tool.dataSheets, 0);
    EXPECT_EQ(ui.statusText, "Print Data Sheet");
    frame.mnuFilePrintDataSheet_Click(&tool);
    frame.mnuFilePrintDataSheet_Click(&tool);
    EXPECT_EQ(tool.dataSheets, 2);
}

TEST(UnitOptions, StandardSetsAndSettingTheGlobals)
{
    QTemporaryDir dir;
    SettingsStore store(dir.filePath("Kestrova.ini"));
    ScriptedUserInterface ui;
    globalUnits() = GlobalUnits{};
    globalUnits()[Quantity::VaporPressure] = 3;
    UnitOptionsModel dialog(ui, store);
    dialog.Form_Activate();
    EXPECT_EQ(dialog.indexOf("cboPBasis"), 3); // the vapour pressure unit shows
    EXPECT_EQ(dialog.indexOf("cboSTBasis"), 1);

    dialog.Option1_Click(2); // SI
    EXPECT_EQ(dialog.indexOf("cboDenBasis"), 1);
    EXPECT_EQ(dialog.indexOf("cboCPBasis"), 1);
    EXPECT_EQ(dialog.indexOf("cboVBasis"), 3);
    EXPECT_EQ(globalUnits()[Quantity::Density], 0); // nothing set until asked

    dialog.Option1_Click(1); // Metric
    dialog.cmdSetDefault_Click();
    EXPECT_EQ(globalUnits()[Quantity::Density], 2);
    EXPECT_EQ(globalUnits()[Quantity::Pressure], 5);
    EXPECT_EQ(globalUnits()[Quantity::VaporPressure], 5);
    EXPECT_EQ(store.get("Units", "DUnits", "none"), "none");
    dialog.Option1_Click(0);
    dialog.cmdSaveDefault_Click();
    EXPECT_EQ(store.get("Units", "DUnits", "none"), "0");
    EXPECT_EQ(store.get("Units", "STUnits", "none"), "0"); // American differs from the default here
    EXPECT_EQ(store.get("Units", "PowerUnits", "none"), "0");
    globalUnits() = GlobalUnits{};
}
