// Numbers too large for a single, typed into every field of every tool and
// left as a user leaves them: nothing is thrown out of a tool, nothing shows
// "nan" or "inf", and a unit field shows the 0 it took in place of the number.

#include "forms/store/global_units.h"
#include "forms/model/scripted_user_interface.h"
#include "tools/flow/model/flow_conversions_model.h"
#include "tools/flow/model/gas_density_model.h"
#include "tools/orifice/model/orifice_model.h"
#include "tools/piping/model/minor_loss_store.h"
#include "tools/piping/model/minor_losses_model.h"
#include "tools/piping/model/reducer_model.h"
#include "tools/piping/model/roughness_model.h"
#include "tools/pressure_drop/model/pressure_drop_model.h"
#include "tools/properties/model/compress_factor_model.h"
#include "tools/properties/model/heat_cap_ratio_model.h"
#include "tools/pump_network/model/pump_network_model.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace kestrova;

namespace {

// Texts that no single can hold: past its range, past the double's, and a
// string of nines as a user might lean on the key.
const std::vector<std::string> kTooLarge{"1e39", "-3.5e38", "1e400", std::string(40, '9')};

void expectShowable(const std::vector<std::string>& texts, const std::string& where)
{
    for (const std::string& text : texts)
        for (const char* bad : {"nan", "inf", "NaN", "INF", "e+39"})
            EXPECT_EQ(text.find(bad), std::string::npos) << where << " shows " << text;
}

class TypedOverflowTest : public testing::Test {
protected:
    TypedOverflowTest()
    {
        globalUnits() = GlobalUnits{};
        minorLossStore() = MinorLossStore{};
        CurrentLine() = 0;
    }
    ScriptedUserInterface ui;
};

} // namespace

TEST_F(TypedOverflowTest, PressureDropFields)
{
    PressureDropModel tool(ui);
    tool.Form_Load();
    tool.Form_Activate();
    for (int tab = 0; tab < 3; ++tab) {
        tool.SSTab1_Click(tab);
        for (const std::string& typed : kTooLarge) {
            const PressureDropState& form = tool.view();
            for (int i = 0; i < kPressureDropFields; ++i) {
                ASSERT_NO_THROW(tool.commit(pressure_drop::txtData(i), typed)) << "txtData(" << i << ") " << typed;
                // The field shows the value the tool now holds, whatever it was before.
                const auto& field = pressureDropField(i);
                EXPECT_EQ(form.txtData[static_cast<size_t>(i)].text,
                          unitFieldText(*field.kind, field.of(form.record), form.cboUnits[static_cast<size_t>(i)].listIndex))
                    << "txtData(" << i << ")";
            }
            for (int i = 0; i < PressureDropModel::kDisplays; ++i)
                ASSERT_NO_THROW(tool.commit(pressure_drop::txtDisplay(i), typed)) << "txtDisplay(" << i << ") " << typed;
            std::vector<std::string> texts;
            for (const auto& field : form.txtData)
                texts.push_back(field.text);
            expectShowable(texts, "Pressure Drop");
        }
    }
}

TEST_F(TypedOverflowTest, OrificeFields)
{
    OrificeModel tool(ui);
    tool.Form_Load();
    tool.Form_Activate();
    for (int tab = 0; tab < 2; ++tab) {
        tool.SSTab1_Click(tab);
        for (const std::string& typed : kTooLarge) {
            const OrificeState& form = tool.view();
            for (int i = 0; i < OrificeModel::kFields; ++i)
                ASSERT_NO_THROW(tool.commit(orifice::txtData(i), typed)) << "txtData(" << i << ") " << typed;
            ASSERT_NO_THROW(tool.commit(orifice::txtDisplay(orifice::HeatCapacityRatio), typed));
            EXPECT_EQ(form.record.heatCapacityRatio, 0.0);
            std::vector<std::string> texts;
            for (const auto& field : form.txtData)
                texts.push_back(field.text);
            for (const auto& display : form.txtDisplay)
                texts.push_back(display.text);
            expectShowable(texts, "Orifice Plates");
        }
    }
}

TEST_F(TypedOverflowTest, PumpNetworkFields)
{
    PumpNetworkModel tool(ui);
    tool.Form_Load();
    tool.Form_Activate();
    const PumpNetworkState& form = tool.view();
    for (const std::string& typed : kTooLarge) {
        for (int i = 0; i < PumpNetworkModel::kFields; ++i)
            ASSERT_NO_THROW(tool.commit(pump_network::txtData(i), typed)) << "txtData(" << i << ") " << typed;
        // A percent that no single holds keeps the value the field had.
        ASSERT_NO_THROW(tool.commit(pump_network::txtHydraulicEff, typed));
        EXPECT_EQ(form.txtHydraulicEff.text, "100");
        ASSERT_NO_THROW(tool.commit(pump_network::txtMinValvePercentdP, typed));
        EXPECT_EQ(form.txtMinValvePercentdP.text, "30");
        std::vector<std::string> texts;
        for (const TextControl& field : form.txtData)
            texts.push_back(field.text);
        for (const auto& row : form.grid)
            texts.insert(texts.end(), row.begin(), row.end());
        expectShowable(texts, "Pump System");
    }
}

TEST_F(TypedOverflowTest, DialogToolFields)
{
    for (const std::string& typed : kTooLarge) {
        FlowConversionsModel flow(nullptr);
        flow.Form_Load();
        for (int conversion = 0; conversion < 6; ++conversion) {
            flow.optConversion_Click(conversion);
            for (int i = 0; i < 8; ++i)
                ASSERT_NO_THROW(flow.commit(flow_conversions::txtData(i), typed));
        }
        GasDensityModel density(ui);
        density.Form_Load();
        CompressFactorModel z(ui, nullptr);
        z.Form_Load();
        HeatCapRatioModel ratio(ui);
        std::vector<std::string> texts;
        for (FormModel* tool : std::initializer_list<FormModel*>{&density, &z, &ratio})
            for (int i = 0; i < 6; ++i) {
                ASSERT_NO_THROW(tool->commit(unit_field_dialog::txtData(i), typed));
                if (const TextControl* field = tool->textOf(unit_field_dialog::txtData(i)))
                    texts.push_back(field->text);
            }
        RoughnessModel roughness(ui, nullptr);
        roughness.Form_Load();
        ASSERT_NO_THROW(roughness.commit(roughness::txtData, typed));
        const RoughnessState& picked = roughness.view();
        EXPECT_EQ(picked.txtData.text, roughnessText(picked.roughness, picked.cboUnits.listIndex));
        texts.push_back(picked.txtData.text);
        for (const auto& field : flow.view().txtData)
            texts.push_back(field.text);
        expectShowable(texts, "a dialog tool");
    }
}

TEST_F(TypedOverflowTest, MinorLossQuantitiesAndReducerRows)
{
    // Thirty-seven nines in a fitting quantity, then Apply: the quantity is
    // no 16-bit count and counts as 0; the other fittings still sum.
    using namespace minor_losses;
    MinorLossesModel losses(ui);
    losses.Form_Load();
    losses.commit(txtQuantity(4), std::string(37, '9'));
    ASSERT_NO_THROW(losses.commit(txtQuantity(23), "1")); // a swing check valve: K1 1500, K2 1.5
    EXPECT_EQ(losses.view().txtTotalK1.text, "1,500");
    EXPECT_EQ(losses.view().txtTotalK2.text, "1.50");
    losses.commit(txtQuantity(5), "40000");
    ASSERT_NO_THROW(losses.commit(txtKValue(OtherLosses), "1e39"));
    ASSERT_NO_THROW(losses.click(cmdApply));
    EXPECT_EQ(minorLossStore().quantities[0][4], 0);
    EXPECT_EQ(minorLossStore().quantities[0][5], 0);
    EXPECT_EQ(minorLossStore().quantities[0][23], 1);
    EXPECT_EQ(minorLossStore().otherK[0], 0.0);

    for (ReducerKind kind : {ReducerKind::Contraction, ReducerKind::Enlargement}) {
        ReducerModel reducing(kind, ui);
        reducing.Form_Load();
        for (const std::string& typed : kTooLarge) {
            ASSERT_NO_THROW(reducing.commit(reducer::txtAngle(0), typed));
            ASSERT_NO_THROW(reducing.commit(reducer::txtBeta(5), typed));
            EXPECT_EQ(reducing.view().txtKValue[5].text, "");
        }
    }
}
