#pragma once
// The single line pressure drop tool (frmPressureDrop) without its window: the
// record, the state of every control the user sees, and the form's event
// routines under their own names. frmPressureDrop only mirrors it.

#include "forms/model/document_tool.h"
#include "forms/model/form_model.h"
#include "tools/pressure_drop/model/pressure_drop_record.h"

#include <array>
#include <map>
#include <string>

namespace kestrova {

class UserInterface;

// How a field's background looks: the window colour, the system's grey of a
// disabled field, or the light blue tint of an enabled K field.
enum class FieldShade { Normal, Disabled, Tinted };

struct TextControl {
    std::string text;
    bool enabled = true;
    bool tabStop = false;
    FieldShade shade = FieldShade::Normal;
    std::string toolTip;
};

struct UnitListControl {
    UnitIndex listIndex = 0;
    bool enabled = true;
};

struct LabelControl {
    std::string caption;
    bool grey = false;
};

struct FrameControl {
    std::string caption;
    bool bold = false;
    bool red = false;
};

struct ButtonControl {
    std::string caption;
    bool enabled = true;
};

class PressureDropModel : public FormModel, public DocumentTool {
    Q_OBJECT

public:
    static constexpr int kDisplays = 21;  // txtDisplay(0) to txtDisplay(20)
    static constexpr int kButtons = 20;   // cmdTable(0) to cmdTable(19)
    static constexpr const char* kTitle = "Pressure Drop";
    static constexpr const char* kStatusTitle = "Single Line Pressure Drop Calculations";

    explicit PressureDropModel(UserInterface& ui, QObject* parent = nullptr);

    // --- event routines ------------------------------------------------------
    void Form_Load() override;
    void Form_Activate() override;
    bool Form_QueryUnload() override; // false keeps the form open
    bool isDirty() const override { return DirtyFlag; }
    void SSTab1_Click(int tab);
    void txtData_LostFocus(int index);
    void txtDisplay_LostFocus(int index);
    void cboUnits_Click(int index);
    void setUnit(int index, UnitIndex listIndex); // the user picks a unit
    void optCrossSection_Click(int index);
    void optCalcType_Click(int index);
    void optOrientation_Click(int index);
    void cmdTable_Click(int index);
    void cmdProperties_Click(int index);
    void cmdReset_Click(int index);
    void Form_KeyPress(); // any key typed in the form marks the data as changed
    // An option set without its click routine: the form follows, nothing runs.
    void selectCrossSection(int index);
    void selectOrientation(int index);
    // The storing part of leaving a field, without the calculation that follows.
    void commitFieldText(int index);
    void commitDisplayText(int index);
    void CalculateResults();

    // --- DocumentTool ---------------------------------------------------------
    std::string strFileName() const override { return fileName_; }
    void setStrFileName(const std::string& path) override { fileName_ = path; }
    bool OpenSaveData(const std::string& operation) override;
    void PrintDataSheet(const DataSheetPrinter& printer) override; // the data sheet of the tab in front
    std::string toolTitle() const override { return kTitle; }
    std::int16_t fileKind() const override { return 2; }

    // --- what the form shows ----------------------------------------------------
    PressureDropData record;
    std::array<TextControl, kPressureDropFields> txtData;
    std::array<UnitListControl, kPressureDropFields> cboUnits;
    std::array<TextControl, kDisplays> txtDisplay;
    std::array<TextControl, 3> txtProject, txtTag;
    TextControl txtLiquid, txtGas;
    std::map<int, LabelControl> Label1; // the labels whose look changes
    std::array<FrameControl, 9> Frame1;
    std::array<ButtonControl, kButtons> cmdTable;
    int tab = 0;
    int crossSectionLiquid = 0; // optCrossSection(0) to (2)
    int crossSectionGas = 3;    // optCrossSection(3) to (5)
    int calcType = 0;           // optCalcType
    int orientation = 0;        // optOrientation
    std::array<bool, 6> crossSectionTabStop{}, calcTypeTabStop{}, orientationTabStop{};
    int helpContext = 1190;
    std::string caption = kTitle;
    std::string liquidName, gasName; // the fluid names that the data sheet reads
    bool DirtyFlag = false;
    bool failed = false;        // the last run ended in the failure handler
    std::string lastMapCoordinates; // the map coordinates line of the last two-phase run
    std::string focusRequest;   // a control that is to take the focus, e.g. "txtProject(1)"

    bool isActive() const { return active_; }
    int crossSectionOfShownTab() const { return tab == 0 ? crossSectionLiquid : crossSectionGas; }

private:
    void showField(int index);
    void setDirty();
    void applyGlobalUnits();
    void tabChange();
    void applyCrossSection(bool liquidSide, int section);
    void setKFieldsLook(const std::array<int, 3>& fields, int labelIndex, bool enabled);
    void showKSums();
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

    UserInterface& ui_;
    std::string fileName_;
    bool active_ = false;
};

} // namespace kestrova
