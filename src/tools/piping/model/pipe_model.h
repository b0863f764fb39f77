#pragma once
// The pipe size tool (frmPipe) without its window: the ANSI/ASTM and ISO/DIN
// classes, the materials of each kind from the data bases, the size grid of
// the chosen material, its roughness new or used, and SelectPipeID.

#include "forms/model/help_contexts.h"
#include "forms/model/form_model.h"
#include "tools/piping/model/pipe_data.h"
#include "units/basConversions.h"

#include <QString>

#include <array>
#include <functional>
#include <string>
#include <vector>

namespace kestrova {

class SettingsStore;
class UserInterface;

namespace pipe_sizes {
// Each control family has one array per class: ASTM (0) and DIN (1).
inline Control optMaterial(int pipeClass, int kind) { return {pipeClass == 0 ? "optASTMMaterial" : "optDINMaterial", kind}; }
inline Control optCondition(int pipeClass, int condition)
{
    return {pipeClass == 0 ? "optASTMCondition" : "optDINCondition", condition};
}
inline Control lstMaterial(int pipeClass) { return {"lstMaterial", pipeClass}; }
inline Control txtRoughness(int pipeClass) { return {"txtRoughness", pipeClass}; }
inline Control cboUnits(int pipeClass) { return {"cboUnits", pipeClass}; }
inline Control grdPipeSize(int pipeClass) { return {"grdPipeSize", pipeClass}; }
inline const Control tabPipeClass{"tabPipeClass"};
inline const Control cmdSelect{"cmdSelect"};
inline const Control cmdClose{"cmdClose"};
} // namespace pipe_sizes

// One tab of the tool: a class of pipes.
struct PipeClassState {
    int kind = 0; // metal, non-metal or lined, tubing
    std::vector<std::string> materials;
    int material = 0;
    int condition = 0; // new, used
    Single roughness;  // feet
    PipeTable grid;
    int currentRow = 0;    // in grid.rows
    int currentColumn = 0; // in grid.headings
    std::array<ButtonControl, 3> optMaterial;
    std::array<ButtonControl, 2> optCondition;
    TextControl txtRoughness;
    ListControl cboUnits;
};

// Everything the pipe size window shows, as the tool holds it.
struct PipeState {
    std::array<PipeClassState, 2> classes;
    int pipeClass = 0;
    ListControl tabPipeClass;
    ButtonControl cmdSelect;
    std::string selector = "ID";
    Single selectedDiameter;
    bool cancelled = false;
};

class PipeModel : public FormModel, private PipeState {
    Q_OBJECT

public:
    int helpTopic() const override { return help::PipeSizes; }
    static constexpr const char* kTitle = "Pipe and Tubing Sizes";

    // The data bases and roughness files are looked for in `dataFolder`.
    PipeModel(UserInterface& ui, SettingsStore* store, QString dataFolder, QObject* parent = nullptr);

    const PipeState& view() const { return *this; }

    void Form_Load();
    void Form_Activate();
    void tabPipeClass_Click(int pipeClass);
    void optMaterial_Click(int pipeClass, int kind);
    void lstMaterial_Click(int pipeClass, int index);
    void optCondition_Click(int pipeClass, int condition);
    void setUnit(int pipeClass, UnitIndex unit);
    void setCurrentCell(int pipeClass, int row, int column);
    void grdPipeSize_DblClick(); // selects the size, when a tool asks for one
    void cmdSelect_Click();
    void cmdClose_Click();
    // The selected cells of the current grid as text, tab between cells.
    std::string copyText(int firstRow, int firstColumn, int lastRow, int lastColumn) const;

    // selector "ID" or "OD"; 0 when cancelled.
    Single SelectPipeID(const std::string& selector, const std::function<void()>& showModal);

    void click(const Control& control) override;
    void choose(const Control& list, int entry) override;
    void doubleClick(const Control& control) override;

    static const char* classCaption(int pipeClass);
    static const char* kindCaption(int kind);

private:
    QString dataBasePath(int pipeClass) const;
    void computeRoughness(int pipeClass);
    void showRoughness(int pipeClass);
    void showChoices();
    void report(const DataFileError& error);
    UserInterface& ui_;
    SettingsStore* store_;
    QString folder_;
    bool loaded_ = false;
};

} // namespace kestrova
