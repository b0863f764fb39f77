#pragma once
// frmPumpSystem without its window: the network and the pipe data of its
// eleven lines, the state of every control the window shows (the 34 fields
// with their 45 unit lists, 34 to 44 serving the rows of the summary grid,
// the 17 x 13 texts of the grid, the two percent fields, the project), the
// events of the window and the segment dialog, the kind 3 file and the data
// sheet. frmPumpSystem only mirrors it.

#include "forms/model/help_contexts.h"
#include "forms/model/document_tool.h"
#include "forms/model/form_model.h"
#include "tools/pump_network/calc/net_calc.h"
#include "tools/pump_network/model/pump_network_controls.h"
#include "tools/pump_network/model/pump_network_drawing.h"
#include "units/basConversions.h"

#include <array>
#include <cstdint>
#include <string>

namespace kestrova {

class UserInterface;

// What the segment dialog asks of the tool besides the pipe data: the
// properties to copy down the network, and a vapour pressure fetched for line 1.
struct SegmentRequests {
    bool applyRoughness = false, applyDensity = false, applyViscosity = false;
    Single vaporPressure; // 0: none handed over
};

// Everything the pump network window shows, as the tool holds it. Read it
// through PumpNetworkModel::view(); only the tool's event routines change it.
struct PumpNetworkState {
    NetworkState network;
    SegmentData segments; // SegK1 to SegK3 are taken from the minor loss store at each pass
    std::array<TextControl, pump_network::kFields> txtData;
    std::array<ListControl, pump_network::kUnitLists> cboUnits;
    TextControl txtHydraulicEff, txtMinValvePercentdP, txtDescription;
    std::array<std::array<std::string, pump_network::kGridColumns>, pump_network::kGridRows> grid;
    bool gridFillsWindow = false; // cmdSizeGrid: the summary grid over the whole window
    SegmentRequests requests;
    // What the file carries that the tool never reads: three arrays of line
    // data and twelve singles, given back as they stand.
    std::array<std::array<Single, 11>, 3> unusedLineArrays{};
    std::array<Single, 12> unusedSingles{};
    std::string caption = "Pump System";
    bool modified = false;
};

class PumpNetworkModel : public FormModel, public DocumentTool, private PumpNetworkState {
    Q_OBJECT

public:
    int helpTopic() const override { return help::PumpNetwork; }
    static constexpr const char* kTitle = "Pump System";
    static constexpr int kFields = pump_network::kFields;
    static constexpr int kUnitLists = pump_network::kUnitLists;
    static constexpr int kGridRows = pump_network::kGridRows, kGridColumns = pump_network::kGridColumns;

    explicit PumpNetworkModel(UserInterface& ui, QObject* parent = nullptr);

    const PumpNetworkState& view() const { return *this; }

    // --- event routines ------------------------------------------------------
    void Form_Load() override;
    void Form_Activate() override; // takes the global unit set and runs a pass on line 1
    bool Form_QueryUnload() override; // the close question; false keeps the window
    bool isDirty() const override { return modified; }
    void setUnit(int list, UnitIndex unit);
    void cboUnits_Click(int index); // shows one field or grid row again from the state
    void txtData_LostFocus(int field);
    void txtHydraulicEff_LostFocus();
    void txtMinValvePercentdP_LostFocus();
    void cmdReset_Click(); // asks first
    void cmdSizeGrid_Click(); // the grid over the whole window, or back
    void HSplitter_Moved(int position); // dragged to 0, the grid fills the window
    void Form_KeyPress(); // any key typed in the window
    // A press on the drawing at a point of the canvas: the segment dialog on the line of the segment hit.
    void panNetwork_MouseDown(pump_network::CanvasPoint point);
    // A double click on the grid: the segment dialog on the line of a column from 2.
    void grdSummary_DblClick(int column);
    void NetCalc();
    void UpDateGridFromInput();
    void CleanGrid();
    void ResetNetwork();
    void ApplyToRemainingLines();

    // --- the window's way in ----------------------------------------------------
    void commit(const Control& field, const std::string& text) override;
    void click(const Control& control) override;
    void choose(const Control& list, int entry) override;
    void keyTyped(const Control& field) override;
    std::string windowCaption() const override { return caption; }

    // What the grid shows of a cell beyond its text: its tool tip, and
    // whether the cell can hold a value at all (the others take the button face).
    static std::string gridToolTip(int row, int column);
    static bool gridCellUsed(int row, int column);
    static const char* unitTagOf(int list);

    // --- the headless companion's way in: a case set up without running ----------
    void useNetwork(const NetworkState& network, const SegmentData& segments);

    // --- DocumentTool ---------------------------------------------------------
    std::string strFileName() const override { return fileName_; }
    void setStrFileName(const std::string& path) override { fileName_ = path; }
    bool OpenSaveData(const std::string& operation) override;
    void PrintDataSheet(const DataSheetPrinter& printer) override;
    std::string toolTitle() const override { return kTitle; }
    std::int16_t fileKind() const override { return 3; }

private:
    friend class NetworkResults;
    void setUpControls();
    void takeGlobalUnits();
    void storeField(int field);
    void showField(int field);
    void showGridRow(int list);
    // A value cell's new text; CleanGrid looks at it again at its next call.
    void setGridCell(int row, int column, std::string text);
    void showPercents();
    void setModified();
    void openSegmentInput(int line, bool fromDrawing);
    void afterSegmentInput();
    bool saveFile();
    bool openFile();
    void finishFileOperation();
    UserInterface& ui_;
    std::string fileName_;
    // The value cells written since CleanGrid last looked at them: a cell it
    // has looked at and left holds a text that does not read as zero, and
    // stays so until it is written again, so the next cleaning skips it.
    // One bit per column in each row's mask.
    std::array<std::uint16_t, pump_network::kGridRows> cellsToClean_{};
    static_assert(pump_network::kGridColumns <= 16);
};

} // namespace kestrova
