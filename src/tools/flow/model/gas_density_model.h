#pragma once
// The gas density tool (frmGasDensity) without its window: the density of a
// real gas from temperature, pressure, molecular weight and Z.

#include "forms/model/help_contexts.h"
#include "forms/model/unit_field_dialog_model.h"

#include <functional>

namespace kestrova {

class UserInterface;

// The tool's values in internal units: °F, psia, lb/ft3.
struct GasDensityData {
    Single temperature, pressure, density, molecularWeight, compressibility;
};

namespace gas_density {
// txtData(i): the unit fields 0 to 2 with cboUnits(i), then two plain numbers.
enum Field : int { Temperature = 0, Pressure = 1, Density = 2, MolecularWeight = 3, Compressibility = 4 };
inline constexpr int kFields = 5;
inline const Control cmdTable{"cmdTable"}; // Z from the compressibility tool
} // namespace gas_density

class GasDensityModel : public UnitFieldDialogModel<GasDensityData, gas_density::kFields> {
public:
    int helpTopic() const override { return help::GasDensity; }
    static constexpr const char* kTitle = "Gas Density";

    explicit GasDensityModel(UserInterface& ui, QObject* parent = nullptr);

    void Form_Load();
    void Form_Activate();
    void cmdTable_Click();
    void cmdReset_Click() override;
    void ComputeDensity();

    Single GetGasDensity(Single temperature, Single pressure, const std::function<void()>& showModal);

protected:
    void compute() override { ComputeDensity(); }
    void clickOther(const Control& control) override;
    Single appliedValue() const override { return record_.density; }

private:
    ButtonControl cmdApply_;
};

} // namespace kestrova
