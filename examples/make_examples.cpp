// Writes the example project files of examples/ by driving the pressure drop
// and orifice tools as a user would: typing texts, choosing options, and saving.
// Usage: kestrova-make-examples OUTPUT_FOLDER

#include "forms/store/global_units.h"
#include "forms/model/scripted_user_interface.h"
#include "tools/orifice/model/orifice_model.h"
#include "tools/piping/model/minor_loss_store.h"
#include "tools/pressure_drop/model/pressure_drop_model.h"

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
    globalUnits() = GlobalUnits{};
    minorLossStore() = MinorLossStore{};
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
    globalUnits() = GlobalUnits{};
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
         {{28, "40000"}, {27, "62.3"}, {26, "0.9"}, {29, "0.072"}, {30, "2000"}, {31, "0.25"}, {32, "0.018"},
          {33, "200"}, {34, "0.00015"}, {35, "4.026"}},
         {}, {}, {{0, "Separator feed"}, {1, "TP-7"}}, 0},
    };
    bool ok = true;
    for (const Case& c : cases)
        ok = save(c, folder) && ok;
    ok = saveOrificeExample(folder) && ok;
    return ok ? 0 : 1;
}
