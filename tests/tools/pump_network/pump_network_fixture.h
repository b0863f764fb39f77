#pragma once
// A pump network tool loaded and activated with the default global units,
// driven as a user would: fields typed and left, unit lists picked, the
// segment dialog opened from the grid or the drawing and worked through its
// controls.

#include "cooling_water_network.h"

#include "forms/model/scripted_user_interface.h"
#include "forms/store/global_units.h"
#include "tools/piping/model/minor_loss_store.h"
#include "tools/pump_network/model/pump_network_model.h"
#include "tools/pump_network/model/pump_segment_input_model.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

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
