#pragma once
// A pressure drop tool loaded and activated with the default global units,
// driven as a user would: type a text in a field and leave it.

#include "forms/store/global_units.h"
#include "forms/model/scripted_user_interface.h"
#include "tools/piping/model/minor_loss_store.h"
#include "tools/pressure_drop/model/pressure_drop_model.h"

#include <gtest/gtest.h>

#include <string>

class PressureDropTest : public testing::Test {
protected:
    PressureDropTest() : tool(ui)
    {
        kestrova::globalUnits() = kestrova::GlobalUnits{};
        kestrova::minorLossStore() = kestrova::MinorLossStore{};
        tool.Form_Load();
        tool.Form_Activate();
    }

    void type(int field, const std::string& text) { tool.commit(kestrova::pressure_drop::txtData(field), text); }
    void typeDisplay(int field, const std::string& text)
    {
        tool.commit(kestrova::pressure_drop::txtDisplay(field), text);
    }
    const std::string& data(int field) const { return tool.view().txtData[static_cast<size_t>(field)].text; }
    const std::string& display(int field) const { return tool.view().txtDisplay[static_cast<size_t>(field)].text; }

    // 36,000 lbm/hr of water in a 6.065 in steel pipe, 100 ft.
    void enterWaterLine()
    {
        type(0, "36,000");
        type(1, "62.4");
        tool.setUnit(2, 0); // cP
        type(2, "1");
        type(5, "6.065");
        type(6, "0.00015");
        type(8, "100");
    }

    kestrova::ScriptedUserInterface ui;
    kestrova::PressureDropModel tool;
};
