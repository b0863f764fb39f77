#include "units/basConversions.h"
#include "units/basLoadUnits.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace kestrova;

TEST(TemperatureConversions, FixedPointsOfTheScales)
{
    EXPECT_EQ(TemperatureToUnit(32, 1), 0);
    EXPECT_EQ(TemperatureFromUnit(0, 1), 32);
    EXPECT_EQ(TemperatureToUnit(0, 2), 459.69);      // the display offset is 459.69
    EXPECT_EQ(TemperatureFromUnit(273.15, 3), 32);
    EXPECT_DOUBLE_EQ(TemperatureToUnit(212, 3), 373.15);
    EXPECT_DOUBLE_EQ(TemperatureToUnit(-40, 1), -40);
    EXPECT_EQ(TemperatureToUnit(77, 4), 0);
    EXPECT_EQ(TemperatureFromUnit(77, -1), 0);
}

TEST(PressureConversions, AtmospheresAndPascals)
{
    EXPECT_EQ(PressureToUnit(14.696, 1), 1);          // exactly one atmosphere
    EXPECT_EQ(PascalToUnit(101325, 1), 1);
    EXPECT_DOUBLE_EQ(PascalToUnit(101325, 0), 14.69597535);
    EXPECT_DOUBLE_EQ(PressureToUnit(1, 5), 6.894733261);
    EXPECT_DOUBLE_EQ(PressureFromUnit(100, 5), 100 / 6.894733261);
    EXPECT_EQ(PressureToUnit(14.7, 8), 0);            // beyond the list
    EXPECT_EQ(PascalToUnit(1, 8), 0);
}

TEST(OneWayConversions, PowerHeadAndDensityProduct)
{
    EXPECT_EQ(PowerToUnit(1, 1), 0.745712);
    EXPECT_EQ(HeadToUnit(3.2808, 1), 1);
    EXPECT_EQ(HeadToUnit(3.2808, 2), 0);
    // The head path keeps its own constant: 1 ft is not 0.3048 m here.
    EXPECT_NE(HeadToUnit(1, 1), LengthToUnit(1, 4));
    EXPECT_DOUBLE_EQ(DensityProductToUnit(55.3, 18.015, 2), 55.3 * 18.015);
    EXPECT_DOUBLE_EQ(DensityProductToUnit(1000, 1, 0), 62.428181);
    EXPECT_EQ(DensityProductToUnit(1, 1, 4), 0);
}

TEST(Conversions, IndicesOutsideAListGiveZero)
{
    EXPECT_EQ(SurfaceTensionToUnit(0.072, 3), 0);
    EXPECT_EQ(SurfaceTensionFromUnit(72, 3), 0);
    EXPECT_EQ(FlowToUnit(100, 6), 0);
    EXPECT_EQ(DiameterFromUnit(1, -1), 0);
    EXPECT_EQ(ExpansionToUnit(1, 2), 0);
    EXPECT_EQ(HeatCapacityToUnit(1, 3), 0);
}

TEST(Conversions, TheKgPerSecondFactorStaysRoundedHard)
{
    EXPECT_DOUBLE_EQ(FlowToUnit(3600, 5), 3600 * 0.000126);
    EXPECT_DOUBLE_EQ(FlowToUnit(100, 2), 100.0 / 3600);
    EXPECT_DOUBLE_EQ(FlowToUnit(1, 3), 0.4535923644);
}

// Each pair goes there and back with the same constant, for every index of
// its list, so that a unit change never accumulates rounding.
struct ConversionPair {
    const char* tag;
    double (*to)(double, UnitIndex);
    double (*from)(double, UnitIndex);
};

class ConversionPairs : public testing::TestWithParam<ConversionPair> {};

TEST_P(ConversionPairs, RoundTripEveryUnitOfTheList)
{
    const ConversionPair& pair = GetParam();
    const auto& units = unitList(pair.tag);
    ASSERT_FALSE(units.empty()) << pair.tag;
    for (UnitIndex i = 0; i < static_cast<UnitIndex>(units.size()); ++i) {
        for (double x : {0.0, 1.0, 123.456, -7.25, 1e-6}) {
            EXPECT_NEAR(pair.from(pair.to(x, i), i), x, 1e-12 * (1 + std::abs(x))) << pair.tag << " unit " << i;
        }
        EXPECT_NE(pair.to(1.0, i), 0.0) << pair.tag << " unit " << i << " has no conversion";
    }
    EXPECT_EQ(pair.to(1.0, static_cast<UnitIndex>(units.size())), 0.0) << pair.tag;
}

INSTANTIATE_TEST_SUITE_P(AllQuantities, ConversionPairs, testing::Values(
    ConversionPair{"Temperature", TemperatureToUnit, TemperatureFromUnit},
    ConversionPair{"Pressure", PressureToUnit, PressureFromUnit},
    ConversionPair{"Density", DensityToUnit, DensityFromUnit},
    ConversionPair{"Viscosity", ViscosityToUnit, ViscosityFromUnit},
    ConversionPair{"Surface Tension", SurfaceTensionToUnit, SurfaceTensionFromUnit},
    ConversionPair{"Roughness", RoughnessToUnit, RoughnessFromUnit},
    ConversionPair{"Flow Rate", FlowToUnit, FlowFromUnit},
    ConversionPair{"Velocity", VelocityToUnit, VelocityFromUnit},
    ConversionPair{"Length", LengthToUnit, LengthFromUnit},
    ConversionPair{"Diameter", DiameterToUnit, DiameterFromUnit},
    ConversionPair{"Heat Capacity", HeatCapacityToUnit, HeatCapacityFromUnit},
    ConversionPair{"Expansion Coef", ExpansionToUnit, ExpansionFromUnit}),
    [](const testing::TestParamInfo<ConversionPair>& info) {
        std::string name = info.param.tag;
        std::erase(name, ' ');
        return name;
    });

// Physical checks of the constants against independent definitions:
// 1 in = 25.4 mm, 1 lb = 0.45359237 kg, 1 psi = 6894.757 Pa, 1 cP = 1 mPa s.
TEST(Conversions, ConstantsAgreeWithTheDefinitionsOfTheUnits)
{
    EXPECT_NEAR(DiameterToUnit(1, 3), 25.4, 1e-12);
    EXPECT_NEAR(LengthToUnit(1, 4), 0.3048, 1e-12);
    EXPECT_NEAR(FlowToUnit(1, 3), 0.45359237, 1e-8);
    EXPECT_NEAR(FlowToUnit(3600, 5), 0.45359237, 1e-3);
    EXPECT_NEAR(DensityToUnit(1, 2), 0.45359237 / 0.028316846592, 1e-6);
    EXPECT_NEAR(PressureToUnit(1, 6), 6894.757, 0.03);
    EXPECT_NEAR(ViscosityToUnit(0.001, 0), 1.0, 1e-12);
    EXPECT_NEAR(ViscosityToUnit(1, 1), 3600 / 1.48816394, 0.2); // the program rounds to 2419.2
    EXPECT_NEAR(VelocityToUnit(1, 2), 18.288, 1e-12);
}

TEST(UnitLists, OrderIsTheMeaningOfTheIndex)
{
    EXPECT_EQ(unitList("Temperature"), (std::vector<std::string>{"°F", "°C", "°R", "K"}));
    EXPECT_EQ(unitList("Pressure"), unitList("Vapor Pressure"));
    EXPECT_EQ(unitList("Pressure")[5], "kPaa");
    EXPECT_EQ(unitList("Pressure Drop")[5], "kPa");
    EXPECT_EQ(unitList("Flow Rate").back(), "kg/s");
    EXPECT_EQ(unitList("Density")[0], "lbm/ft³");
    EXPECT_EQ(unitList("Viscosity")[3], "N-s/m²");
    EXPECT_EQ(unitList("Heat Capacity")[0], "BTU/lbmol-°R");
    EXPECT_EQ(unitList("Expansion Coef"), (std::vector<std::string>{"1/°F", "1/°C"}));
    EXPECT_EQ(unitList("Head"), (std::vector<std::string>{"ft", "m"}));
    EXPECT_EQ(unitList("Power"), (std::vector<std::string>{"hp", "kW"}));
    EXPECT_TRUE(unitList("Mass").empty());
    EXPECT_TRUE(unitList("temperature").empty()); // the tag is matched exactly
    EXPECT_EQ(unitTags().size(), 16u);
}
