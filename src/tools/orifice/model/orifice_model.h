#pragma once
// frmOrificePlates without its window: the record, the state of every
// control on both tabs, and the form's event routines under their own
// names, with the calculation run after each change. frmOrificePlates only
// mirrors it.

#include "forms/model/help_contexts.h"
#include "forms/model/document_tool.h"
#include "forms/model/form_model.h"
#include "forms/model/unit_fields.h"
#include "tools/orifice/calc/compute_orifice.h"
#include "tools/orifice/model/orifice_controls.h"

#include <array>
#include <string>

namespace kestrova {

class UserInterface;

// The binding of txtData(i) and cboUnits(i) to the record.
const FieldBinding<OrificeData>& orificeField(int index);

// Everything the orifice plates window shows, as the tool holds it. Read it
// through OrificeModel::view(); only the tool's event routines change it.
struct OrificeState {
    OrificeData record{};
    std::array<TextControl, orifice::kFields> txtData;
    std::array<ListControl, orifice::kFields> cboUnits;
    std::array<TextControl, orifice::kDisplays> txtDisplay;
    TextControl txtErrorLiquid, txtErrorGas;
    std::array<ButtonControl, 6> optCompute, optMeterTap;
    std::array<ListControl, 2> cboElementMaterial, cboPipeMaterial;
    std::array<TextControl, 2> txtProject, txtTag; // liquid tab, gas tab
    std::array<FrameControl, 12> Frame1;
    ListControl SSTab1; // the tab in front
    int tab = 0;
    // Each tab has its own option groups, optCompute(0..2) and (3..5), and
    // optMeterTap likewise: per tab the position of the set option.
    std::array<int, 2> compute{};  // flow, differential pressure, orifice diameter
    std::array<int, 2> meterTap{}; // flange, D and D/2, corner
    std::array<int, 2> elementMaterial{1, 1}, pipeMaterial{0, 0};
    bool dirty = false;
    std::string liquidName, gasName;
    std::string caption = "Orifice Plates";
};

class OrificeModel : public FormModel, public DocumentTool, private OrificeState {
    Q_OBJECT

public:
    static constexpr const char* kTitle = "Orifice Plates";
    static constexpr int kFields = orifice::kFields;
    static constexpr int kDisplays = orifice::kDisplays;
    static constexpr int kMaterials = 20; // the last, "Other!", has no coefficient

    struct Material {
        const char* name;
        double coefficient; // per °F
    };
    static const std::array<Material, kMaterials>& materials();
    // The captions of the options, accelerator sign first.
    static const std::array<const char*, 3>& computeCaptions();
    static const std::array<const char*, 3>& tapCaptions();

    explicit OrificeModel(UserInterface& ui, QObject* parent = nullptr);

    const OrificeState& view() const { return *this; }

    // --- event routines ------------------------------------------------------
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

    // --- the window's way in ----------------------------------------------------
    void commit(const Control& field, const std::string& text) override;
    void click(const Control& control) override;
    void choose(const Control& list, int entry) override;
    void keyTyped(const Control& field) override;
    std::string windowCaption() const override { return caption; }
    int helpTopic() const override { return tab == 0 ? help::OrificeLiquid : help::OrificeGas; }

    // --- the headless companion's way in: a case set up without running ----------
    void useRecord(const OrificeData& record); // the record taken whole, every field shown again
    // A text put into a field and stored as leaving it does, without the calculation.
    void commitFieldText(int field, const std::string& text);
    void commitDisplayText(int index, const std::string& text);

    // --- DocumentTool ---------------------------------------------------------
    std::string strFileName() const override { return fileName_; }
    void setStrFileName(const std::string& path) override { fileName_ = path; }
    bool OpenSaveData(const std::string& operation) override;
    void PrintDataSheet(const DataSheetPrinter& printer) override; // the data sheet of the tab in front
    std::string toolTitle() const override { return kTitle; }
    std::int16_t fileKind() const override { return 1; }

    bool fieldLocked(int field) const; // the solved quantity of its tab

private:
    friend class OrificeResults;
    void showField(int field);
    void showChoices();
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
