#pragma once
// frmOrificePlates without its window: the record, the texts of every field
// on both tabs, the unit lists, the Compute and Pressure Taps options, the
// materials, and the calculation run after each change.

#include "forms/model/document_tool.h"
#include "forms/model/form_model.h"
#include "tools/orifice/calc/compute_orifice.h"
#include "units/basConversions.h"

#include <array>
#include <string>

namespace kestrova {

class UserInterface;

class OrificeModel : public FormModel, public DocumentTool {
    Q_OBJECT

public:
    static constexpr const char* kTitle = "Orifice Plates";
    static constexpr int kFields = 29;   // txtData(0) to txtData(28): liquid 0-13, gas 14-28
    static constexpr int kDisplays = 13; // txtDisplay(0) to txtDisplay(12)
    static constexpr int kMaterials = 20; // the last, "Other!", has no coefficient

    struct Material {
        const char* name;
        double coefficient; // per °F
    };
    static const std::array<Material, kMaterials>& materials();

    explicit OrificeModel(UserInterface& ui, QObject* parent = nullptr);

    void Form_Load() override;
    void Form_Activate() override; // takes the global unit set
    void SSTab1_Click(int tab);
    void setUnit(int field, UnitIndex unit); // a unit list choice: the field is shown again
    void txtData_LostFocus(int field);       // commits the typed text, then calculates
    void txtDisplay_LostFocus(int index);    // txtDisplay(5), k
    void optCompute_Click(int option);       // 0-2 liquid tab, 3-5 gas tab
    void optMeterTap_Click(int option);
    void cboElementMaterial_Click(int tabIndex, int material);
    void cboPipeMaterial_Click(int tabIndex, int material);
    void ComputeOrifice();
    void Form_KeyPress() { setDirty(); } // any key typed in a field
    void cmdProperties_Click(int index); // 0 liquid tab, 1 gas tab: the physical properties tool
    void cmdTable_Click(int index);      // 0, 1 pipe sizes; 2 the heat capacity ratio; 3 the gas density
    void cmdReset_Click();    // asks first
    bool Form_QueryUnload() override; // the close question; false keeps the form
    bool isDirty() const override { return dirty; }

    // The frame's side: file name, the kind 1 file, the data sheet.
    std::string strFileName() const override { return fileName_; }
    void setStrFileName(const std::string& path) override { fileName_ = path; }
    bool OpenSaveData(const std::string& operation) override;
    void PrintDataSheet(const DataSheetPrinter& printer) override; // the data sheet of the tab in front
    std::string toolTitle() const override { return kTitle; }
    std::int16_t fileKind() const override { return 1; }

    // The captions of the options, accelerator sign first.
    static const std::array<const char*, 3>& computeCaptions();
    static const std::array<const char*, 3>& tapCaptions();

    // Commits a field's text to the record and shows it again, without calculating.
    void commitFieldText(int field);
    void showField(int field);
    bool fieldLocked(int field) const; // the solved quantity of its tab
    static const char* unitTagOf(int field); // the unit list of cboUnits(field)

    OrificeData record{};
    std::array<std::string, kFields> txtData;
    std::array<UnitIndex, kFields> cboUnits{};
    std::array<std::string, kDisplays> txtDisplay;
    std::string txtErrorLiquid, txtErrorGas;
    int tab = 0;
    // Each tab has its own option groups, optCompute(0..2) and (3..5), and
    // optMeterTap likewise: per tab the position of the set option.
    std::array<int, 2> compute{};  // flow, differential pressure, orifice diameter
    std::array<int, 2> meterTap{}; // flange, D and D/2, corner
    std::array<int, 2> elementMaterial{1, 1}, pipeMaterial{0, 0};
    bool dirty = false;
    std::array<std::string, 2> txtProject, txtTag; // liquid tab, gas tab
    std::string liquidName, gasName;
    std::array<std::string, 2> propertiesCaption{"Properties", "Properties"}; // Frame1(0), Frame1(10)
    std::string caption = kTitle;
    std::string focusRequest; // a field that is to take the focus, e.g. "txtData(8)"

private:
    void setDirty();
    void selectDefaultMaterials();
    void reset();
    void chooseMaterial(int tabIndex, int material, std::array<int, 2>& chosen, Single& coefficient,
                        const std::array<int, 2>& coefficientFields);
    bool saveFile();
    bool openFile();
    UserInterface& ui_;
    std::string fileName_;
};

} // namespace kestrova
