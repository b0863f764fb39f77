// Writes the example project files of examples/ by driving the pressure drop,
// orifice and pump network tools as a user would: typing texts, choosing
// options, entering each line's pipe data in the segment dialog, and saving.
// Usage: kestrova-make-examples OUTPUT_FOLDER

#include "forms/model/scripted_user_interface.h"
#include "frame/model/shared_stores.h"
#include "tools/orifice/model/orifice_model.h"
#include "tools/piping/model/minor_loss_store.h"
#include "tools/piping/model/pipe_data.h"
#include "tools/pressure_drop/model/pressure_drop_model.h"
#include "tools/pump_network/model/pump_network_model.h"
#include "tools/pump_network/model/pump_segment_input_model.h"

#include <QCoreApplication>
#include <QDir>

#include <array>

#include <iostream>
#include <map>
#include <string>

namespace {

using namespace kestrova;

struct Case {
    const char* file;
    int tab;
    std::map<int, std::string> fields;   // txtData texts, in the default units
    std::map<int, std::string> displays; // txtDisplay texts
    std::array<double, 3> kSums{};       // K1, K2, K3 as the minor loss tool hands them back
    std::map<int, std::string> project;  // txtProject / txtTag of the tab: 0 project, 1 tag
    int option = -1;                     // optCalcType for gas, optOrientation for two-phase
};

bool save(const Case& c, const QDir& folder)
{
    resetSharedStores();
    ScriptedUserInterface ui;
    PressureDropModel tool(ui);
    tool.Form_Load();
    tool.Form_Activate();
    tool.SSTab1_Click(c.tab);
    minorLossStore().SegK1[0] = c.kSums[0];
    minorLossStore().SegK2[0] = c.kSums[1];
    minorLossStore().SegK3[0] = c.kSums[2];
    minorLossStore().hasData[0] = true;
    if (c.tab < 2)
        tool.cmdTable_Click(c.tab == 0 ? 2 : 8);
    for (const auto& [index, text] : c.fields)
        tool.commit(pressure_drop::txtData(index), text);
    for (const auto& [index, text] : c.displays)
        tool.commit(pressure_drop::txtDisplay(index), text);
    if (c.option >= 0) {
        if (c.tab == 1)
            tool.optCalcType_Click(c.option);
        else
            tool.optOrientation_Click(c.option);
    }
    tool.commit(pressure_drop::txtProject(c.tab), c.project.at(0));
    tool.commit(pressure_drop::txtTag(c.tab), c.project.at(1));
    tool.setStrFileName(folder.filePath(c.file).toStdString());
    if (!tool.OpenSaveData("Save As") || tool.view().failed) {
        std::cerr << "could not save " << c.file << '\n';
        return false;
    }
    std::cout << c.file << ": pressure drop " << tool.view().txtData[c.tab == 0 ? 10 : c.tab == 1 ? 24 : 41].text << " psi\n";
    return true;
}

} // namespace

// Water through a beta 0.5 flange-tapped plate in 4 in pipe, solved for the flow.
bool saveOrificeExample(const QDir& folder)
{
    resetSharedStores();
    ScriptedUserInterface ui;
    OrificeModel tool(ui);
    tool.Form_Load();
    tool.Form_Activate();
    for (const auto& [field, text] : std::map<int, std::string>{
             {1, "10"}, {2, "2.013"}, {3, "68"}, {4, "62.4"}, {5, "1"}, {9, "4.026"}})
        tool.commit(orifice::txtData(field), text);
    tool.commit(orifice::txtProject(0), "Cooling water meter");
    tool.commit(orifice::txtTag(0), "FE-110");
    tool.setStrFileName(folder.filePath("orifice-water-4in.ksv").toStdString());
    if (tool.OpenSaveData("Save"))
        return true;
    std::cerr << "orifice-water-4in.ksv could not be written\n";
    return false;
}

// The inside diameter of a schedule 40 carbon steel pipe, as the pipe data base beside the program gives it.
std::string schedule40ID(const PipeTable& steel, const std::string& nominal)
{
    for (const auto& row : steel.rows)
        if (row.at(0) == nominal && row.at(2) == "40/STD")
            return row.at(4);
    throw DataFileError("no schedule 40 pipe of " + nominal + " in");
}

// A cooling water loop: the pump draws from the cooling tower basin and feeds
// five exchangers through control valves, with a bypass back to the basin.
// Water at 85 °F; schedule 40 steel; the exchangers as added losses.
bool savePumpNetworkExample(const QDir& folder)
{
    struct Line {
        const char* nominal;
        const char *length, *added;
    };
    // Lines 1 to 11: suction, discharge, bypass, header, then the branches and their risers.
    const Line lines[] = {{"8", "30", "0"},  {"6", "40", "3"},   {"2", "120", "0"}, {"6", "250", "0"},
                          {"3", "150", "8"}, {"3", "100", "6"},  {"4", "80", "0"},  {"4", "120", "10"},
                          {"4", "60", "0"},  {"2", "90", "4"},   {"2", "110", "5"}};
    // Lines 5, 6, 8, 10, 11 and 3: flow in lbm/hr, pressure in psia, height in ft.
    const std::array<std::array<const char*, 3>, 6> ends{{{"60,000", "25", "40"},
                                                          {"45,000", "30", "25"},
                                                          {"90,000", "25", "15"},
                                                          {"20,000", "20", "5"},
                                                          {"15,000", "35", "30"},
                                                          {"10,000", "14.7", "12"}}};
    try {
        const PipeTable steel =
            readPipeTable(QDir(QCoreApplication::applicationDirPath()).filePath("pipeastm.sqlite"), "ECarbon Steel");
        resetSharedStores();
        ScriptedUserInterface ui;
        PumpNetworkModel tool(ui);
        tool.Form_Load();
        tool.Form_Activate();
        ui.segmentInputSteps.push_back([&](FormModel& form) {
            using namespace pump_segment;
            auto& dialog = dynamic_cast<PumpSegmentInputModel&>(form);
            for (int list : {Length, Roughness})
                dialog.choose(cboUnits(list), 1); // ft
            dialog.choose(cboUnits(Diameter), 0); // in
            dialog.choose(cboUnits(Density), 0);  // lbm/ft³
            dialog.choose(cboUnits(Viscosity), 0); // cP
            for (int line = 1; line <= 11; ++line) {
                const Line& l = lines[line - 1];
                dialog.commit(txtData(Length), l.length);
                dialog.commit(txtData(Diameter), schedule40ID(steel, l.nominal));
                dialog.commit(txtData(Roughness), "0.00015");
                dialog.commit(txtData(Density), "62.2");
                dialog.commit(txtData(Viscosity), "0.8");
                dialog.commit(txtData(AddedLosses), l.added);
                if (line < 11)
                    dialog.choose(scrLineNumber, -(line + 1));
            }
            dialog.click(cmdOK);
        });
        tool.grdSummary_DblClick(2);
        for (size_t t = 0; t < ends.size(); ++t) {
            const int first = static_cast<int>(3 * t);
            tool.choose(pump_network::cboUnits(first + 2), 1); // ft
            for (int k = 0; k < 3; ++k)
                tool.commit(pump_network::txtData(first + k), ends[t][static_cast<size_t>(k)]);
        }
        tool.choose(pump_network::cboUnits(pump_network::SourceHeight), 1);
        tool.commit(pump_network::txtData(pump_network::SourceHeight), "10");
        tool.commit(pump_network::txtHydraulicEff, "75");
        tool.commit(pump_network::txtDescription, "Cooling water loop, unit 2");
        tool.setStrFileName(folder.filePath("pump-network-cooling-water.ksv").toStdString());
        if (!tool.OpenSaveData("Save As"))
            throw DataFileError("the file could not be written");
        const auto& shown = tool.view().txtData;
        std::cout << "pump-network-cooling-water.ksv: pump head " << shown[pump_network::PumpHead].text
                  << " ft, motor " << shown[pump_network::MotorSize].text << " hp\n";
        return true;
    } catch (const std::exception& error) {
        std::cerr << "pump-network-cooling-water.ksv: " << error.what() << '\n';
        return false;
    }
}

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    if (argc != 2) {
        std::cerr << "usage: kestrova-make-examples OUTPUT_FOLDER\n";
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    const Case cases[] = {
        {"liquid-water-6in.ksv", 0,
         {{0, "36000"}, {1, "62.4"}, {2, "0.9"}, {5, "6.065"}, {6, "0.00015"}, {7, "15"}, {8, "350"}},
         {}, {800, 3.5, 1}, {{0, "Cooling water return"}, {1, "L-101"}}},
        {"gas-steam-4in.ksv", 1,
         {{11, "10000"}, {12, "150"}, {13, "400"}, {14, "0.015"}, {15, "4.026"}, {16, "0.00015"}, {17, "200"}},
         {{4, "18.015"}, {5, "0.95"}, {6, "1.3"}}, {500, 2, 0.5}, {{0, "Steam header"}, {1, "S-204"}}, 0},
        {"two-phase-air-water-4in.ksv", 2,
         {{28, "40000"}, {27, "62.3"}, {26, "0.9"}, {29, "0.004934"}, {30, "2000"}, {31, "0.25"}, {32, "0.018"},
          {33, "200"}, {34, "0.00015"}, {35, "4.026"}},
         {}, {}, {{0, "Separator feed"}, {1, "TP-7"}}, 0},
    };
    bool ok = true;
    for (const Case& c : cases)
        ok = save(c, folder) && ok;
    ok = saveOrificeExample(folder) && ok;
    ok = savePumpNetworkExample(folder) && ok;
    return ok ? 0 : 1;
}
