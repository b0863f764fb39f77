// Data sheets of the pressure drop tool: the staged row is what the screen
// shows, the report finds it, and the staging table is empty afterwards.

#include "datasheets/model/data_sheet.h"
#include "forms/store/settings_store.h"
#include "forms/store/sqlite_session.h"
#include "tools/pressure_drop/pressure_drop_fixture.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlQuery>
#include <QTemporaryDir>

using namespace kestrova;

namespace {

std::string column(const DataSheetColumns& row, const std::string& name)
{
    for (const auto& entry : row)
        if (entry.first == name)
            return entry.second;
    ADD_FAILURE() << "no column " << name;
    return {};
}

} // namespace

class DataSheetTest : public PressureDropTest {
protected:
    DataSheetTest() : store(dir.filePath("Kestrova.ini")), printer(ui, store, dir.path(), dir.filePath("data"))
    {
        store.save("Settings", "Company", "Hydro Works");
        store.save("Settings", "City", "Leeds");
    }

    // Prints the tab in front and returns the row the report found.
    DataSheetColumns print()
    {
        tool.PrintDataSheet(printer);
        EXPECT_FALSE(ui.reports.empty());
        EXPECT_TRUE(ui.reports.back().row.has_value());
        return ui.reports.back().row.value_or(DataSheetColumns{});
    }
    int stagedRows(const char* table) const { return stagedRowCount(printer.stagingPath(), table); }

    QTemporaryDir dir;
    SettingsStore store;
    DataSheetPrinter printer;
};

TEST_F(DataSheetTest, LiquidSheetTakesTheTextsAsShownAndTheCompanyBlock)
{
    enterWaterLine();
    tool.commit(pressure_drop::txtProject(0), "Cooling water");
    tool.commit(pressure_drop::txtLiquid, "Water");
    const DataSheetColumns row = print();
    const auto& run = ui.reports.back();
    EXPECT_EQ(run.title, "Liquid Pressure Drop");
    EXPECT_EQ(run.table, "PDLiquid");
    EXPECT_EQ(run.reportFile, QDir(dir.path()).filePath("pdliquid.rpt").toStdString());
    EXPECT_EQ(row.front().first, "Project");
    EXPECT_EQ(column(row, "Project"), "Cooling water");
    EXPECT_EQ(column(row, "Fluid"), "Water");
    EXPECT_EQ(column(row, "Flowrate"), "36,000.00");
    EXPECT_EQ(column(row, "FUnits"), "lbm/hr");
    EXPECT_EQ(column(row, "Temp"), "77.00");
    EXPECT_EQ(column(row, "CrossSection"), "Circular");
    EXPECT_EQ(column(row, "Diameter"), data(5));
    EXPECT_EQ(column(row, "Width"), "0"); // a circular section has no width or height
    EXPECT_EQ(column(row, "WidthU"), "ft");
    EXPECT_EQ(column(row, "Regime"), "Turbulent");
    EXPECT_EQ(column(row, "PD"), data(10));
    EXPECT_EQ(column(row, "PdU"), "psi");
    EXPECT_EQ(column(row, "Company"), "Hydro Works");
    EXPECT_EQ(column(row, "City"), "Leeds");
    EXPECT_EQ(column(row, "Country"), "");
    EXPECT_EQ(stagedRows("PDLiquid"), 0);
    EXPECT_TRUE(ui.messages.empty());
}

TEST_F(DataSheetTest, AFieldBeingTypedIsPrintedAsItStandsAndNothingIsRecalculated)
{
    enterWaterLine();
    const float drop = tool.view().record.PressureDrop;
    const std::string shownDrop = data(10);
    tool.textEdited(pressure_drop::txtData(5), "8"); // typed, the field not yet left
    const DataSheetColumns row = print();
    EXPECT_EQ(column(row, "Diameter"), "8");
    EXPECT_EQ(column(row, "PD"), shownDrop);
    EXPECT_EQ(tool.view().record.PressureDrop, drop);
    EXPECT_EQ(tool.view().record.Diameter, 6.065f);
}

TEST_F(DataSheetTest, GasAndTwoPhaseSheetsNameTheirOptions)
{
    tool.SSTab1_Click(1);
    tool.optCrossSection_Click(4); // rectangular
    tool.optCalcType_Click(1);
    DataSheetColumns row = print();
    EXPECT_EQ(ui.reports.back().table, "PDGas");
    EXPECT_EQ(ui.reports.back().title, "Gas/Vapor Pressure Drop");
    EXPECT_EQ(column(row, "CalcType"), "Isothermal");
    EXPECT_EQ(column(row, "CrossSection"), "Rectangular");
    EXPECT_EQ(column(row, "Diameter"), "0");
    EXPECT_EQ(column(row, "Width"), data(43));

    tool.SSTab1_Click(2);
    tool.optOrientation_Click(1);
    row = print();
    EXPECT_EQ(ui.reports.back().table, "PD2P");
    EXPECT_EQ(ui.reports.back().reportFile, QDir(dir.path()).filePath("pd2p.rpt").toStdString());
    EXPECT_EQ(column(row, "PipeOrient"), "Upflow");
    EXPECT_EQ(stagedRows("PDGas") + stagedRows("PD2P"), 0);
}

TEST_F(DataSheetTest, AFailedReportSaysSoAndStillEmptiesTheTable)
{
    enterWaterLine();
    ASSERT_FALSE(tool.view().DirtyFlag);
    ui.reportResult = 1;
    print();
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].title, "Report Generation Error");
    EXPECT_EQ(ui.messages[0].text, "An error has occurred while Kestrova was building\r"
                                   "the data sheet.  Make sure that all *.rpt files are \r"
                                   "present in the directory where Kestrova was installed\r"
                                   "or re-install Kestrova.");
    EXPECT_EQ(stagedRows("PDLiquid"), 0);
    EXPECT_FALSE(tool.view().DirtyFlag);
}

TEST_F(DataSheetTest, ShippedLayoutsNameOnlyColumnsTheToolWrites)
{
    for (int tab = 0; tab < 3; ++tab) {
        tool.SSTab1_Click(tab);
        const DataSheetColumns row = print();
        const std::string file = QFileInfo(QString::fromStdString(ui.reports.back().reportFile)).fileName().toStdString();
        const auto layout = readReportTemplate(QDir(KESTROVA_DATA_DIR).filePath(QString::fromStdString(file)));
        ASSERT_TRUE(layout.has_value()) << file;
        const auto html = dataSheetHtml(*layout, row);
        ASSERT_TRUE(html.has_value()) << file;
        EXPECT_TRUE(html->contains("Hydro Works"));
    }
}

TEST(ReportTemplates, LinesAreReadOrRefused)
{
    QTemporaryDir dir;
    const auto write = [&](const char* text) {
        QFile file(dir.filePath("sheet.rpt"));
        file.open(QIODevice::WriteOnly | QIODevice::Truncate);
        file.write(text);
        file.close();
        return readReportTemplate(file.fileName());
    };
    const auto layout = write("# a comment\n\nheading Title\nsection Data\nfield Flow | Flowrate | FUnits\nfield Re | rE\n");
    ASSERT_TRUE(layout.has_value());
    ASSERT_EQ(layout->lines.size(), 4u);
    EXPECT_EQ(layout->lines[2].column, "Flowrate");
    EXPECT_EQ(layout->lines[2].unitColumn, "FUnits");
    EXPECT_EQ(layout->lines[3].unitColumn, "");
    EXPECT_FALSE(write("chart Flow\n").has_value());
    EXPECT_FALSE(write("field Flow\n").has_value());
    EXPECT_FALSE(readReportTemplate(dir.filePath("missing.rpt")).has_value());

    // A column the row lacks makes the sheet fail; texts are escaped.
    const DataSheetColumns row{{"Flowrate", "1 < 2"}, {"FUnits", "lbm/hr"}};
    EXPECT_FALSE(dataSheetHtml(*layout, row).has_value());
    const auto fits = write("field Flow | Flowrate | FUnits\n");
    EXPECT_TRUE(dataSheetHtml(*fits, row)->contains("1 &lt; 2"));
}

TEST(DataSheetLayout, CompanyBlockHeadsTheSheetAndSectionsHoldTheirFields)
{
    QTemporaryDir dir;
    QFile file(dir.filePath("sheet.rpt"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("heading Orifice Plate\nsection Output\nfield Beta Ratio | BetaRatio\nfield Velocity | V | VU\n"
               "section Pipe Data\nfield Pipe ID | ID | IDU\n");
    file.close();
    const auto layout = readReportTemplate(file.fileName());
    ASSERT_TRUE(layout.has_value());
    const DataSheetColumns row{{"BetaRatio", "0.5000"}, {"V", "6.019"}, {"VU", "ft/s"},   {"ID", "4.0260"},
                               {"IDU", "in"},           {"Company", "Hydro Works"},      {"Address", ""},
                               {"City", "Leeds"},       {"State", ""},  {"Zip", "LS1 4AP"}, {"Country", "UK"}};
    const QString html = dataSheetHtml(*layout, row).value();
    // City, state and postal code share a line; empty lines are left out.
    EXPECT_TRUE(html.contains("<b>Hydro Works<br>Leeds LS1 4AP<br>UK</b>"));
    EXPECT_TRUE(html.contains("<h2>Orifice Plate</h2>"));
    // Each section opens its own table, closed before the next one.
    EXPECT_EQ(html.count("<table"), 2);
    EXPECT_EQ(html.count("</table>"), 2);
    EXPECT_LT(html.indexOf("Output"), html.indexOf("Beta Ratio"));
    EXPECT_LT(html.indexOf("Velocity"), html.indexOf("Pipe Data"));
    EXPECT_TRUE(html.contains(">6.019</td><td width=\"25%\">ft/s<"));

    // Without any company text there is no block at all.
    DataSheetColumns bare = row;
    for (auto& [name, text] : bare)
        if (name == "Company" || name == "City" || name == "Zip" || name == "Country")
            text.clear();
    EXPECT_FALSE(dataSheetHtml(*layout, bare).value().contains("<p align=\"right\">"));
}

TEST(DataSheetLayout, OptionCaptionsLoseOnlyTheirLeadingSign)
{
    EXPECT_EQ(captionWithoutAccelerator("&Circular"), "Circular");
    EXPECT_EQ(captionWithoutAccelerator("&D and D/2 Taps"), "D and D/2 Taps");
    EXPECT_EQ(captionWithoutAccelerator(""), "");
}

TEST(DataSheetStaging, ARowThatCannotBeStagedIsReportedAndNothingIsPrinted)
{
    QTemporaryDir dir;
    SettingsStore store(dir.filePath("Kestrova.ini"));
    QFile blocker(dir.filePath("file"));
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    blocker.close();
    ASSERT_TRUE(QDir(dir.path()).mkdir("busy"));
    ASSERT_TRUE(QDir(dir.filePath("busy")).mkdir(DataSheetPrinter::kStagingFile)); // a folder where the file would be
    // A folder that cannot be made (below a file), and a staging file that
    // cannot be opened: each gives the message, and no report runs at all.
    for (const QString& folder : {dir.filePath("file/deeper"), dir.filePath("busy")}) {
        ScriptedUserInterface ui;
        DataSheetPrinter printer(ui, store, dir.path(), folder);
        printer.print({"PDLiquid", "pdliquid.rpt", "Liquid Pressure Drop"}, {{"Project", "x"}});
        EXPECT_TRUE(ui.reports.empty()) << folder.toStdString();
        ASSERT_EQ(ui.messages.size(), 1u) << folder.toStdString();
        EXPECT_EQ(ui.messages[0].title, "Report Generation Error");
        EXPECT_NE(ui.messages[0].text.find("Nothing was printed."), std::string::npos);
    }
}

TEST(DataSheetStaging, ARowLeftByAnEarlierRunIsNeverPrinted)
{
    // A run that ended between staging and deleting leaves its row, and an
    // older program may have left the table with other columns: the next
    // sheet makes the table afresh and shows only its own case.
    QTemporaryDir dir;
    SettingsStore store(dir.filePath("Kestrova.ini"));
    ScriptedUserInterface ui;
    DataSheetPrinter printer(ui, store, dir.path(), dir.filePath("data"));
    ASSERT_TRUE(QDir().mkpath(dir.filePath("data")));
    withSqlite(printer.stagingPath(), SqliteAccess::ReadWrite, [](QSqlDatabase& db) {
        QSqlQuery query(db);
        query.exec("CREATE TABLE PDLiquid (Project TEXT)");
        query.exec("INSERT INTO PDLiquid VALUES ('the earlier case')");
    });
    ASSERT_EQ(stagedRowCount(printer.stagingPath(), "PDLiquid"), 1);
    printer.print({"PDLiquid", "pdliquid.rpt", "Liquid Pressure Drop"}, {{"Project", "this case"}, {"Tag", "P-101"}});
    ASSERT_EQ(ui.reports.size(), 1u);
    const DataSheetColumns row = ui.reports[0].row.value();
    EXPECT_EQ(column(row, "Project"), "this case");
    EXPECT_EQ(column(row, "Tag"), "P-101");
    EXPECT_EQ(stagedRowCount(printer.stagingPath(), "PDLiquid"), 0);
    EXPECT_TRUE(ui.messages.empty());
}
