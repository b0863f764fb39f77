// The pump network's project file, byte for byte, and its data sheet row.

#include "pump_network_fixture.h"

#include "datasheets/model/data_sheet.h"
#include "forms/store/project_file.h"
#include "frame/file_bytes.h"
#include "forms/store/settings_store.h"
#include "tools/properties/model/phys_props.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace kestrova;
using namespace kestrova::pump_network;

namespace {

// Where the parts of the record begin, counted from the table of the record:
// the kind, five line arrays, the three unused, the added losses, the four K
// tables, the quantities and flags of the fittings, the two reducer tables
// with their flags, the two reducer K values, then the tool block.
constexpr qsizetype kSegIDAt = 2 + 44;
constexpr qsizetype kUnusedArraysAt = 2 + 5 * 44;
constexpr qsizetype kSegDpAddAt = kUnusedArraysAt + 132;
constexpr qsizetype kSegK1At = kSegDpAddAt + 44;
constexpr qsizetype kQuantitiesAt = kSegK1At + 4 * 48;
constexpr qsizetype kContractionsAt = kQuantitiesAt + 840 + 24;
constexpr qsizetype kToolBlockAt = kContractionsAt + 2 * (720 + 24) + 8;
constexpr qsizetype kUnusedSinglesAt = kToolBlockAt + 9 * 48 + 7 * 4;
constexpr qsizetype kDescriptionAt = kUnusedSinglesAt + 48;

} // namespace

class PumpNetworkFileTest : public PumpNetworkTest {
protected:
    std::string path(const char* name) const { return dir.filePath(name).toStdString(); }
    bool save(const char* name)
    {
        tool.setStrFileName(path(name));
        return tool.OpenSaveData("Save As");
    }
    bool open(PumpNetworkModel& into, const char* name)
    {
        into.setStrFileName(path(name));
        return into.OpenSaveData("Open");
    }
    QTemporaryDir dir;
};

TEST_F(PumpNetworkFileTest, TheRecordIsLaidOutByteForByte)
{
    enterCoolingWaterNetwork();
    minorLossStore().quantities[4][2] = 3; // three fittings of the third kind on line 4
    minorLossStore().hasData[4] = true;
    minorLossStore().SegK1[4] = 900;
    contractionStore().values[2][1] = 0.5f;
    physProps().temperature = 77;
    tool.commit(txtDescription, "Loop \xC3\xA9t\xC3\xA9"); // "Loop été"
    ASSERT_TRUE(save("loop.ksv"));
    const QByteArray bytes = bytesOf(dir.filePath("loop.ksv"));

    EXPECT_EQ(RecordReader(bytes).integer16(), 3);
    EXPECT_EQ(RecordReader(bytes.mid(2)).single(), 20);                   // SegLength(1)
    EXPECT_EQ(RecordReader(bytes.mid(kSegIDAt + 4)).single(), Single(6.065)); // SegID(2)
    EXPECT_EQ(RecordReader(bytes.mid(kSegDpAddAt + 4)).single(), 5);       // SegDpAdd(2)
    EXPECT_EQ(RecordReader(bytes.mid(kSegK1At + 4 * 4)).single(), 900);    // SegK1, slot 4
    EXPECT_EQ(RecordReader(bytes.mid(kQuantitiesAt + 2 * (2 * 12 + 4))).integer16(), 3); // slot fastest
    EXPECT_EQ(RecordReader(bytes.mid(kQuantitiesAt + 840 + 2 * 4)).integer16(), -1);    // has data, slot 4
    EXPECT_EQ(RecordReader(bytes.mid(kContractionsAt + 4 * (1 * 12 + 2))).single(), Single(0.5f));
    RecordReader block(bytes.mid(kToolBlockAt + 4 * 5)); // NetFlow(5)
    EXPECT_EQ(block.single(), 30000);
    RecordReader scalars(bytes.mid(kToolBlockAt + 9 * 48));
    EXPECT_EQ(scalars.single(), network().PumpHead);
    EXPECT_EQ(scalars.single(), 0);  // VaporPress
    EXPECT_EQ(scalars.single(), 10); // MinValveDp
    scalars.single();
    scalars.single();
    EXPECT_EQ(scalars.single(), 30);  // LinePercentDp
    EXPECT_EQ(scalars.single(), 100); // PumpEff
    // The description as a variant string: type word 8, length, single-byte text.
    EXPECT_EQ(bytes.mid(kDescriptionAt, 4), QByteArray("\x08\x00\x08\x00", 4));
    EXPECT_EQ(bytes.mid(kDescriptionAt + 4, 8), QByteArray("Loop \xE9t\xE9"));
    EXPECT_EQ(RecordReader(bytes.mid(kDescriptionAt + 12)).single(), 77);
    EXPECT_EQ(bytes.size(), kDescriptionAt + 12 + 4);
    EXPECT_EQ(tool.view().caption, "Pump System: loop.ksv");
    EXPECT_FALSE(tool.view().modified);
}

TEST_F(PumpNetworkFileTest, SavedAndReopenedGivesTheSameTextsGridAndBytes)
{
    enterCoolingWaterNetwork();
    minorLossStore().SegK1[5] = 500;
    minorLossStore().hasData[5] = true;
    type(Line5Flow, "31,500"); // a pass with the constants
    tool.commit(txtMinValvePercentdP, "25");
    tool.commit(txtDescription, "Cooling water loop");
    ASSERT_TRUE(save("loop.ksv"));
    const QByteArray first = bytesOf(dir.filePath("loop.ksv"));
    const PumpNetworkState before = tool.view();

    minorLossStore() = MinorLossStore{};
    ScriptedUserInterface otherUi;
    PumpNetworkModel reopened(otherUi);
    reopened.Form_Load();
    reopened.Form_Activate();
    ASSERT_TRUE(open(reopened, "loop.ksv"));
    for (size_t i = 0; i < kFields; ++i)
        EXPECT_EQ(reopened.view().txtData[i].text, before.txtData[i].text) << i;
    EXPECT_EQ(reopened.view().grid, before.grid);
    EXPECT_EQ(reopened.view().txtDescription.text, "Cooling water loop");
    EXPECT_EQ(reopened.view().txtMinValvePercentdP.text, "25");
    // The discharge and suction pressures come back through the pass.
    EXPECT_EQ(reopened.view().network.PDischarge, before.network.PDischarge);
    EXPECT_NE(reopened.view().network.PDischarge, 0);
    EXPECT_EQ(reopened.view().caption, "Pump System: loop.ksv");

    reopened.setStrFileName(path("again.ksv"));
    ASSERT_TRUE(reopened.OpenSaveData("Save"));
    EXPECT_EQ(bytesOf(dir.filePath("again.ksv")), first);
}

// What the tool never reads goes back to the file as it came.
TEST_F(PumpNetworkFileTest, TheUnusedArraysAndSinglesGoBackAsTheyStand)
{
    enterCoolingWaterNetwork();
    ASSERT_TRUE(save("plain.ksv"));
    QByteArray bytes = bytesOf(dir.filePath("plain.ksv"));
    for (qsizetype at : {kUnusedArraysAt, kUnusedArraysAt + 70, kUnusedArraysAt + 128, kUnusedSinglesAt,
                         kUnusedSinglesAt + 44})
        bytes.replace(at, 4, QByteArray("\x00\x00\x80\x3f", 4)); // 1.0
    writeBytes(dir.filePath("marked.ksv"), bytes);
    ASSERT_TRUE(open(tool, "marked.ksv"));
    ASSERT_TRUE(save("back.ksv"));
    EXPECT_EQ(bytesOf(dir.filePath("back.ksv")), bytes);
    // A reset clears the unused arrays.
    ui.answers = {MessageAnswer::Ok};
    tool.click(cmdReset);
    ASSERT_TRUE(save("reset.ksv"));
    EXPECT_EQ(bytesOf(dir.filePath("reset.ksv")).mid(kUnusedArraysAt, 132), QByteArray(132, '\0'));
}

TEST_F(PumpNetworkFileTest, OtherKindsAndDamagedFilesLeaveTheWindowAsItWas)
{
    enterCoolingWaterNetwork();
    ASSERT_TRUE(save("whole.ksv"));
    const QByteArray whole = bytesOf(dir.filePath("whole.ksv"));
    type(Line5Flow, "40,000");
    const PumpNetworkState before = tool.view();

    writeBytes(dir.filePath("drop.ksv"), QByteArray("\x02\x00rest", 6));
    EXPECT_FALSE(open(tool, "drop.ksv"));
    EXPECT_EQ(ui.messages.back().text, "This is not a Pump System data file.");
    EXPECT_EQ(ui.messages.back().title, "Pump System");
    EXPECT_EQ(ui.messages.back().icon, MessageIcon::Stop);
    EXPECT_EQ(tool.view().txtData[Line5Flow].text, "40,000");

    writeBytes(dir.filePath("empty.ksv"), QByteArray());
    EXPECT_FALSE(open(tool, "empty.ksv")); // no kind at all
    EXPECT_EQ(ui.messages.back().text, "This is not a Pump System data file.");
    for (qsizetype cut : {qsizetype(2), qsizetype(100), kToolBlockAt + 10, kDescriptionAt + 6,
                          whole.size() - 1}) {
        writeBytes(dir.filePath("short.ksv"), whole.left(cut));
        EXPECT_FALSE(open(tool, "short.ksv")) << cut;
        EXPECT_NE(ui.messages.back().text.find("damaged"), std::string::npos) << ui.messages.back().text;
        EXPECT_EQ(tool.view().grid, before.grid) << cut;
        EXPECT_EQ(tool.view().txtData[Line5Flow].text, "40,000");
        EXPECT_EQ(tool.view().segments.SegID, before.segments.SegID);
    }
    // A description whose length runs past the end of the file.
    QByteArray lying = whole;
    lying[kDescriptionAt + 2] = '\xff';
    lying[kDescriptionAt + 3] = '\x7f';
    writeBytes(dir.filePath("lying.ksv"), lying);
    EXPECT_FALSE(open(tool, "lying.ksv"));
    EXPECT_EQ(tool.view().grid, before.grid);
}

TEST_F(PumpNetworkFileTest, AFailedSaveKeepsTheOldFileAndTheModifiedFlag)
{
    enterCoolingWaterNetwork();
    ASSERT_TRUE(save("keep.ksv"));
    const QByteArray kept = bytesOf(dir.filePath("keep.ksv"));
    tool.keyTyped(txtData(Line5Flow));
    tool.setStrFileName(dir.filePath("no/such/folder/keep.ksv").toStdString());
    EXPECT_FALSE(tool.OpenSaveData("Save"));
    EXPECT_TRUE(tool.view().modified);
    EXPECT_EQ(ui.messages.back().icon, MessageIcon::Stop);
    EXPECT_EQ(bytesOf(dir.filePath("keep.ksv")), kept);
}

class PumpNetworkSheetTest : public PumpNetworkFileTest {
protected:
    PumpNetworkSheetTest() : store(dir.filePath("Kestrova.ini")), printer(ui, store, dir.path(), dir.filePath("data"))
    {
        store.save("Settings", "Company", "Hydro Works");
    }
    std::string column(const std::string& name) const
    {
        for (const auto& [column, text] : ui.reports.back().row.value())
            if (column == name)
                return text;
        ADD_FAILURE() << "no column " << name;
        return {};
    }
    SettingsStore store;
    DataSheetPrinter printer;
};

TEST_F(PumpNetworkSheetTest, TheRowHoldsTheTextsAsShown)
{
    enterCoolingWaterNetwork();
    tool.commit(txtDescription, "Cooling water loop");
    tool.setUnit(kFields + 1, 3); // the ID row in mm
    tool.PrintDataSheet(printer);
    ASSERT_FALSE(ui.reports.empty());
    ASSERT_TRUE(ui.reports.back().row.has_value());
    EXPECT_EQ(ui.reports.back().table, "PumpNetwork");
    EXPECT_EQ(column("Project"), "Cooling water loop");
    EXPECT_EQ(column("Company"), "Hydro Works");
    EXPECT_EQ(column("PipeIDU"), "mm");
    EXPECT_EQ(column("PipeID3"), cell(DiameterRow, 3));
    EXPECT_EQ(column("PipeID3"), "52.50");
    EXPECT_EQ(column("Flowrate1"), "94,000");
    EXPECT_EQ(column("DPL1"), cell(LineDropRow, 1));
    EXPECT_EQ(column("dPL2"), cell(LineDropRow, 2));
    EXPECT_EQ(column("TDH"), data(PumpHead));
    EXPECT_EQ(column("SuctPress"), "psia"); // the unit, written over the value
    EXPECT_EQ(column("CV1"), data(Valve3Drop));
    EXPECT_EQ(column("CV4"), data(Valve8Drop));
    EXPECT_EQ(column("PumpEff"), "100");
    EXPECT_EQ(column("SourceH"), "8.00");
    EXPECT_EQ(column("SourceHU"), "ft");
    EXPECT_EQ(stagedRowCount(printer.stagingPath(), "PumpNetwork"), 0); // the row is gone afterwards
}

TEST_F(PumpNetworkSheetTest, TheShippedLayoutNamesOnlyColumnsTheToolWrites)
{
    enterCoolingWaterNetwork();
    tool.PrintDataSheet(printer);
    const auto layout = readReportTemplate(QDir(KESTROVA_DATA_DIR).filePath("pumpnetwork.rpt"));
    ASSERT_TRUE(layout.has_value());
    const auto html = dataSheetHtml(*layout, ui.reports.back().row.value());
    ASSERT_TRUE(html.has_value());
    EXPECT_TRUE(html->contains("Hydro Works"));
    EXPECT_TRUE(html->contains(QString::fromStdString(data(PumpHead))));
}
