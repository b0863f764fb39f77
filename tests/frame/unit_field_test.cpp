// Fields with unit lists: every unit of every list has a mask in every tool,
// conversions go both ways, and numbers no single can hold are refused.

#include "units/field_kinds.h"
#include "forms/store/global_units.h"
#include "forms/model/scripted_user_interface.h"
#include "units/unit_field.h"
#include "tools/orifice/model/orifice_model.h"
#include "tools/pump_network/model/pump_network_model.h"
#include "units/basLoadUnits.h"
#include "numeric/display_mask.h"
#include "numeric/numeric_fault.h"

#include <gtest/gtest.h>

using namespace kestrova;

TEST(UnitField, SharedKindsHaveAMaskForEveryUnitOfTheirList)
{
    namespace k = field_kinds;
    for (const FieldKind* kind : {&k::flow, &k::density, &k::viscosity, &k::diameter, &k::roughness, &k::length,
                                  &k::velocity, &k::pressure, &k::temperature, &k::surfaceTension}) {
        const size_t units = unitList(kind->tag).size();
        ASSERT_GT(units, 0u) << kind->tag;
        for (size_t u = 0; u < units; ++u) {
            ASSERT_NE(kind->masks[u], nullptr) << kind->tag << " unit " << u;
            EXPECT_FALSE(unitFieldText(*kind, 1, static_cast<UnitIndex>(u)).empty()) << kind->tag << " unit " << u;
        }
        EXPECT_EQ(unitFieldText(*kind, 1, static_cast<UnitIndex>(units)), ""); // beyond the list
        EXPECT_EQ(unitFieldText(*kind, 1, -1), "");
    }
}

TEST(UnitField, TypedTextsComeBackAsTheyWereTyped)
{
    Single value = unitFieldValue(field_kinds::temperature, "100", 1); // °C
    EXPECT_NEAR(value, 212, 1e-4);
    EXPECT_EQ(unitFieldText(field_kinds::temperature, value, 1), "100.00");
    value = unitFieldValue(field_kinds::diameter, "1,000", 3); // mm, with a grouping sign
    EXPECT_NEAR(value, 1000 / 25.4, 1e-4);
    EXPECT_EQ(unitFieldText(field_kinds::diameter, value, 3), "1,000.00");
}

TEST(UnitField, ATextThatNoSingleCanHoldReadsAsZero)
{
    // Beyond the double range, beyond the single range, and within the single
    // range before the conversion but beyond it after: each reads as 0, which
    // the field then shows; no earlier value is kept behind the user's back.
    EXPECT_EQ(unitFieldValue(field_kinds::length, "1e400", 1), 0.0);
    EXPECT_EQ(unitFieldValue(field_kinds::length, "1e39", 1), 0.0); // ft
    EXPECT_EQ(unitFieldValue(field_kinds::flow, "3e38", 3), 0.0); // kg/h: 6.6e38 lb/h
    EXPECT_EQ(unitFieldValue(field_kinds::flow, "1e38", 3), Single(1e38 / 0.4535923644));
    EXPECT_EQ(unitFieldValue(field_kinds::length, "abc", 0), 0.0);
}

TEST(UnitField, EveryOrificeFieldShowsInEveryUnitOfItsList)
{
    globalUnits() = GlobalUnits{};
    ScriptedUserInterface ui;
    OrificeModel tool(ui);
    tool.Form_Load();
    OrificeData ones{};
    for (Single* field : ones.fields())
        *field = 1;
    tool.useRecord(ones);
    for (int i = 0; i < OrificeModel::kFields; ++i) {
        const FieldKind& kind = *orificeField(i).kind;
        for (size_t u = 0; u < unitList(kind.tag).size(); ++u) {
            tool.setUnit(i, static_cast<UnitIndex>(u));
            const std::string expected = unitFieldText(kind, 1, static_cast<UnitIndex>(u));
            EXPECT_FALSE(expected.empty()) << "txtData(" << i << ") unit " << u;
            EXPECT_EQ(tool.view().txtData[static_cast<size_t>(i)].text, expected) << "txtData(" << i << ") unit " << u;
        }
    }
}

TEST(UnitField, EveryNetworkFieldAndGridRowShowsInEveryUnitOfItsList)
{
    globalUnits() = GlobalUnits{};
    ScriptedUserInterface ui;
    PumpNetworkModel tool(ui);
    tool.Form_Load();
    NetworkState network{};
    SegmentData segments{};
    for (size_t line = 1; line <= 11; ++line) {
        network.NetFlow[line] = network.NetPDest[line] = network.NetHeight[line] = 1;
        segments.SegID[line] = segments.SegDensity[line] = 1;
    }
    network.PumpHead = network.MotorSize = network.NPSHa = 1;
    tool.useNetwork(network, segments);
    for (int list = 0; list < PumpNetworkModel::kUnitLists; ++list)
        for (size_t u = 0; u < unitList(PumpNetworkModel::unitTagOf(list)).size(); ++u) {
            tool.setUnit(list, static_cast<UnitIndex>(u));
            if (list < PumpNetworkModel::kFields) {
                EXPECT_FALSE(tool.view().txtData[static_cast<size_t>(list)].text.empty())
                    << "txtData(" << list << ") unit " << u;
            }
        }
    // Back in lbm/hr the flow row shows line 3 again; in kg/s it was a zero of
    // its mask, which the grid shows empty.
    tool.setUnit(34, 5);
    EXPECT_EQ(tool.view().grid[1][4], "");
    tool.setUnit(34, 0);
    EXPECT_EQ(tool.view().grid[1][4], "1");
}

// The shown texts are kept by list, conversion, mask, unit and value: asked
// again in any order, by kinds whose masks are alike, each text is its own
// value's conversion through its own mask, as formatted afresh.
TEST(UnitField, KeptTextsAreEachValuesOwnText)
{
    namespace k = field_kinds;
    const FieldKind* kinds[] = {&k::flow, &k::pressure, &k::temperature, &k::density, &k::viscosity, &k::diameter};
    const Single values[] = {0.0, 16.04, 0.85, -40, 100, 1e30};
    for (int pass = 0; pass < 3; ++pass)
        for (const FieldKind* kind : kinds)
            for (size_t u = 0; u < unitList(kind->tag).size(); ++u)
                for (const Single value : values) {
                    const auto unit = static_cast<UnitIndex>(pass == 1 ? unitList(kind->tag).size() - 1 - u : u);
                    std::string afresh;
                    try {
                        afresh = formatMask(kind->toUnit(value, unit), kind->masks[static_cast<size_t>(unit)]);
                    } catch (const NumericFault&) {
                    }
                    EXPECT_EQ(unitFieldText(*kind, value, unit), afresh) << kind->tag << " unit " << unit << " " << value;
                }
    EXPECT_EQ(unitFieldText(k::temperature, 212, 1), "100.00");
    EXPECT_EQ(unitFieldText(k::temperature, 212, 0), "212.00");
    EXPECT_EQ(unitFieldText(k::temperature, 212, 1), "100.00");
}
