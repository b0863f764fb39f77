#pragma once
// The gas density tool (frmGasDensity) without its window: the density of a
// real gas from temperature, pressure, molecular weight and Z.

#include "forms/model/form_model.h"
#include "units/unit_field.h"

#include <array>
#include <functional>
#include <string>

namespace kestrova {

class UserInterface;

class GasDensityModel : public FormModel {
    Q_OBJECT

public:
    static constexpr const char* kTitle = "Gas Density";

    explicit GasDensityModel(UserInterface& ui, QObject* parent = nullptr);

    void Form_Load();
    void Form_Activate();
    void txtData_LostFocus(int index);
    void commitText(int index); // the storing part of leaving a field
    void setUnit(int index, UnitIndex unit);
    void cmdApply_Click();
    void cmdTable_Click();
    void cmdReset_Click();
    void cmdClose_Click();
    void ComputeDensity();

    Single GetGasDensity(Single temperature, Single pressure, const std::function<void()>& showModal);

    // txtData(0) temperature, (1) pressure, (2) density, (3) MW, (4) Z.
    std::array<std::string, 5> txtData;
    std::array<UnitIndex, 3> cboUnits{};
    Single temperature, pressure, density, molecularWeight, compressibility;
    bool applyEnabled = false;
    bool applied = false;

    static const FieldKind& kindOf(int index);

private:
    void showField(int index);
    UserInterface& ui_;
};

} // namespace kestrova
