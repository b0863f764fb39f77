#pragma once
// A pump network tool loaded and activated with the default global units,
// driven as a user would: fields typed and left, unit lists picked, the
// segment dialog opened from the grid or the drawing and worked through its
// controls. The pipe data of a cooling water network, for the tests that
// need one.

#include "forms/model/scripted_user_interface.h"
#include "forms/store/global_units.h"
#include "tools/piping/model/minor_loss_store.h"
#include "tools/pump_network/model/pump_network_model.h"
#include "tools/pump_network/model/pump_segment_input_model.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

// One line's pipe data as typed in the segment dialog: ID in inches, length
// in feet, roughness in feet, density in lbm/ft³, viscosity in kg/m-s,
// additional losses in psi. Each text survives its mask unchanged.
struct TypedPipe {
    const char *id, *length, *roughness, *density, *viscosity, *added;
};

// A cooling water loop: a 6 in header and suction, 3 in and 2 in branches
// of schedule 40 steel, a strainer on the discharge.
inline const std::vector<TypedPipe>& coolingWaterPipes()
{
    static const std::vector<TypedPipe> pipes{
        {"6.065", "20", "0.00015", "62.4", "0.001", "0"},    // 1 suction
        {"6.065", "50", "0.00015", "62.4", "0.001", "5"},    // 2 discharge, strainer
        {"2.067", "150", "0.00015", "62.4", "0.001", "0"},   // 3 recycle
        {"6.065", "200", "0.00015", "62.4", "0.001", "0"},   // 4 header
        {"3.068", "120", "0.00015", "62.4", "0.001", "2.5"}, // 5 exchanger
        {"3.068", "90", "0.00015", "62.4", "0.001", "0"},    // 6
        {"4.026", "60", "0.00015", "62.4", "0.001", "0"},    // 7
        {"3.068", "110", "0.00015", "62.4", "0.001", "4"},   // 8 exchanger
        {"4.026", "40", "0.00015", "62.4", "0.001", "0"},    // 9
        {"2.067", "80", "0.00015", "62.4", "0.001", "0"},    // 10
        {"2.067", "70", "0.00015", "62.4", "0.001", "1.5"},  // 11
    };
    return pipes;
}

// The destinations of lines 5, 6, 8, 10, 11 and 3: flow in lbm/hr, pressure
// in psia, height in feet; then the fluid height of the source in feet.
struct TypedDestination {
    int line;
    const char *flow, *pressure, *height;
};
inline const std::vector<TypedDestination>& coolingWaterDestinations()
{
    static const std::vector<TypedDestination> ends{
        {5, "30,000", "45", "40"}, {6, "20,000", "30", "25"}, {8, "25,000", "60", "60"},
        {10, "8,000", "25", "15"}, {11, "6,000", "20", "10"},  {3, "5,000", "14.7", "12"},
    };
    return ends;
}
inline constexpr const char* kCoolingWaterSourceHeight = "8";

class PumpNetworkTest : public testing::Test {
protected:
    using Step = std::function<void(kestrova::PumpSegmentInputModel&)>;

    PumpNetworkTest() : tool(ui)
    {
        kestrova::globalUnits() = kestrova::GlobalUnits{};
        kestrova::minorLossStore() = kestrova::MinorLossStore{};
        tool.Form_Load();
        tool.Form_Activate();
    }

    void type(int field, const std::string& text) { tool.commit(kestrova::pump_network::txtData(field), text); }
    const std::string& data(int field) const { return tool.view().txtData[static_cast<size_t>(field)].text; }
    const std::string& cell(int row, int line) const
    {
        return tool.view().grid[static_cast<size_t>(row)][static_cast<size_t>(line + 1)];
    }
    const kestrova::NetworkState& network() const { return tool.view().network; }
    const kestrova::SegmentData& segments() const { return tool.view().segments; }

    // What the user does in the segment dialog the next time it opens.
    void inDialog(Step step)
    {
        ui.segmentInputSteps.push_back(
            [step](kestrova::FormModel& form) { step(dynamic_cast<kestrova::PumpSegmentInputModel&>(form)); });
    }

    // Types a line's pipe data into the dialog in the units of TypedPipe.
    static void typePipe(kestrova::PumpSegmentInputModel& dialog, const TypedPipe& pipe)
    {
        using namespace kestrova::pump_segment;
        dialog.choose(cboUnits(Length), 1);    // ft
        dialog.choose(cboUnits(Diameter), 0);  // in
        dialog.choose(cboUnits(Roughness), 1); // ft
        dialog.choose(cboUnits(Density), 0);   // lbm/ft³
        dialog.choose(cboUnits(Viscosity), 2); // kg/m-s
        dialog.commit(txtData(Length), pipe.length);
        dialog.commit(txtData(Diameter), pipe.id);
        dialog.commit(txtData(Roughness), pipe.roughness);
        dialog.commit(txtData(Density), pipe.density);
        dialog.commit(txtData(Viscosity), pipe.viscosity);
        dialog.commit(txtData(AddedLosses), pipe.added);
    }

    // The eleven lines through one opening of the dialog from the grid's
    // column of line 1, moving down with the scroll bar.
    void enterPipesThroughTheDialog(const std::vector<TypedPipe>& pipes)
    {
        inDialog([&pipes](kestrova::PumpSegmentInputModel& dialog) {
            for (size_t line = 1; line <= pipes.size(); ++line) {
                typePipe(dialog, pipes[line - 1]);
                if (line < pipes.size())
                    dialog.choose(kestrova::pump_segment::scrLineNumber, -static_cast<int>(line + 1));
            }
            dialog.click(kestrova::pump_segment::cmdOK);
        });
        tool.grdSummary_DblClick(2);
    }

    void enterDestinations(const std::vector<TypedDestination>& ends, const char* sourceHeight)
    {
        using namespace kestrova::pump_network;
        for (size_t t = 0; t < kTerminals.size(); ++t) {
            tool.choose(cboUnits(static_cast<int>(3 * t + 2)), 1); // heights in ft
            const TypedDestination& end = ends[t];
            type(static_cast<int>(3 * t), end.flow);
            type(static_cast<int>(3 * t + 1), end.pressure);
            type(static_cast<int>(3 * t + 2), end.height);
        }
        tool.choose(cboUnits(SourceHeight), 1);
        type(SourceHeight, sourceHeight);
    }

    void enterCoolingWaterNetwork()
    {
        enterPipesThroughTheDialog(coolingWaterPipes());
        enterDestinations(coolingWaterDestinations(), kCoolingWaterSourceHeight);
    }

    kestrova::ScriptedUserInterface ui;
    kestrova::PumpNetworkModel tool;
};
