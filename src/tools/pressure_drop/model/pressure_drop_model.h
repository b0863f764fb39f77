#pragma once
// The single line pressure drop tool (frmPressureDrop) without its window: the
// record, the state of every control the user sees, and the form's event
// routines under their own names. frmPressureDrop only mirrors it.

#include "forms/model/document_tool.h"
#include "forms/model/form_model.h"
#include "forms/store/staging.h"
#include "tools/pressure_drop/model/pressure_drop_controls.h"
#include "tools/pressure_drop/model/pressure_drop_record.h"

#include <array>
#include <map>
#include <string>

namespace kestrova {

class UserInterface;

// Everything the pressure drop window shows, as the tool holds it. Read it
// through PressureDropModel::view(); only the tool's event routines change it.
struct PressureDropState {
    PressureDropData record;
    std::array<TextControl, pressure_drop::kFields> txtData;
    std::array<ListControl, pressure_drop::kFields> cboUnits;
    std::array<TextControl, pressure_drop::kDisplays> txtDisplay;
    std::array<TextControl, 3> txtProject, txtTag;
    TextControl txtLiquid, txtGas;
    LabelControl twoPhaseFluids; // the names of both fluids on the two-phase tab
    std::map<int, LabelControl> Label1; // the labels whose look changes
    std::array<FrameControl, 9> Frame1;
    std::array<ButtonControl, pressure_drop::kTables> cmdTable;
    std::array<ButtonControl, 6> optCrossSection;
    std::array<ButtonControl, 2> optCalcType;
    std::array<ButtonControl, 3> optOrientation;
    ListControl SSTab1; // the tab in front
    int tab = 0;
    int crossSectionLiquid = 0; // optCrossSection(0) to (2)
    int crossSectionGas = 3;    // optCrossSection(3) to (5)
    int calcType = 0;           // optCalcType
    int orientation = 0;        // optOrientation
    int helpContext = 1190;
    std::string caption = "Pressure Drop";
    std::string liquidName, gasName; // the fluid names that the data sheet reads
    bool DirtyFlag = false;
    bool failed = false;             // the last run ended in the failure handler
    std::string lastMapCoordinates;  // the map coordinates line of the last two-phase run
};

class PressureDropModel : public FormModel, public DocumentTool, private PressureDropState {
    Q_OBJECT

public:
    static constexpr int kDisplays = pressure_drop::kDisplays;
    static constexpr int kButtons = pressure_drop::kTables;
    static constexpr const char* kTitle = "Pressure Drop";
    static constexpr const char* kStatusTitle = "Single Line Pressure Drop Calculations";

    explicit PressureDropModel(UserInterface& ui, QObject* parent = nullptr);

    const PressureDropState& view() const { return *this; }

    // --- event routines ------------------------------------------------------
    void Form_Load() override;
    void Form_Activate() override;
    bool Form_QueryUnload() override; // false keeps the form open
    bool isDirty() const override { return DirtyFlag; }
    void SSTab1_Click(int tab);
    void txtData_LostFocus(int index);
    void txtDisplay_LostFocus(int index);
    void setUnit(int index, UnitIndex listIndex); // the user picks a unit
    void optCrossSection_Click(int index);
    void optCalcType_Click(int index);
    void optOrientation_Click(int index);
    void cmdTable_Click(int index);
    void cmdProperties_Click(int index);
    void cmdReset_Click(int index);
    void Form_KeyPress(); // any key typed in the form marks the data as changed
    void CalculateResults();

    // --- the window's way in ----------------------------------------------------
    void commit(const Control& field, const std::string& text) override;
    void click(const Control& control) override;
    void choose(const Control& list, int entry) override;
    void keyTyped(const Control& field) override;
    std::string windowCaption() const override { return caption; }
    int helpTopic() const override { return helpContext; }

    // --- the headless companion's way in: a case set up without running ----------
    // An option or a tab set without its click routine: the form follows, nothing runs.
    void selectTab(int tab);
    void selectCrossSection(int index);
    void selectCalcType(int index);
    void selectOrientation(int index);
    // The record taken whole, every field shown again.
    void useRecord(const PressureDropData& record);
    // A text put into a field and stored as leaving it does, without the calculation.
    void commitFieldText(int index, const std::string& text);
    void commitDisplayText(int index, const std::string& text);

    // --- DocumentTool ---------------------------------------------------------
    std::string strFileName() const override { return fileName_; }
    void setStrFileName(const std::string& path) override { fileName_ = path; }
    bool OpenSaveData(const std::string& operation) override;
    void PrintDataSheet(const DataSheetPrinter& printer) override; // the data sheet of the tab in front
    std::string toolTitle() const override { return kTitle; }
    std::int16_t fileKind() const override { return 2; }

    int crossSectionOfShownTab() const { return tab == 0 ? crossSectionLiquid : crossSectionGas; }

private:
    void registerControls();
    void showField(int index);
    void setDirty();
    void applyGlobalUnits();
    void tabChange();
    void applyCrossSection(bool liquidSide, int section);
    void setKFieldsLook(const std::array<int, 3>& fields, int labelIndex, bool enabled);
    void showOptions();
    void showKSums();
    void showFluidNames();
    void calculateLiquid();
    void calculateGas();
    void calculateTwoPhase();
    void failureHandler();
    Single totalK(int k1Field, int k2Field, int k3Field, Single re, Single diameter) const;
    Single startPipeLength() const;
    void resetLiquidCase();
    void resetGasCase();
    void resetTwoPhaseCase();
    void closeDocument();
    bool openFile();
    bool saveFile();
    void finishFileOperation();
    void liquidDataSheet(DataSheetColumns& row) const;
    void gasDataSheet(DataSheetColumns& row) const;
    void twoPhaseDataSheet(DataSheetColumns& row) const;

    UserInterface& ui_;
    std::string fileName_;
    bool active_ = false;
};

} // namespace kestrova
