#pragma once
// The pipe size tool (frmPipe) without its window: the ANSI/ASTM and ISO/DIN
// classes, the materials of each kind from the data bases, the size grid of
// the chosen material, its roughness new or used, and SelectPipeID.

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

class PipeModel : public FormModel {
    Q_OBJECT

public:
    static constexpr const char* kTitle = "Pipe and Tubing Sizes";

    // The data bases and roughness files are looked for in `dataFolder`.
    PipeModel(UserInterface& ui, SettingsStore* store, QString dataFolder, QObject* parent = nullptr);

    void Form_Load();
    void Form_Activate();
    void tabPipeClass_Click(int pipeClass);
    void optMaterial_Click(int pipeClass, int kind);
    void lstMaterial_Click(int pipeClass, int index);
    void optCondition_Click(int pipeClass, int condition);
    void setUnit(int pipeClass, UnitIndex unit);
    void setCurrentCell(int pipeClass, int row, int column);
    void cmdSelect_Click();
    void cmdClose_Click();
    // The selected cells of the current grid as text, tab between cells.
    std::string copyText(int firstRow, int firstColumn, int lastRow, int lastColumn) const;

    // selector "ID" or "OD"; 0 when cancelled.
    Single SelectPipeID(const std::string& selector, const std::function<void()>& showModal);

    struct ClassState {
        int kind = 0;
        std::vector<std::string> materials;
        int material = 0;
        int condition = 0;
        UnitIndex unit = 0;
        Single roughness;
        std::string roughnessText;
        PipeTable grid;
        int currentRow = 0;    // in grid.rows
        int currentColumn = 0; // in grid.headings
    };
    std::array<ClassState, 2> classes;
    int pipeClass = 0;
    bool selectEnabled = false;
    std::string selector = "ID";
    Single selectedDiameter;
    bool cancelled = false;

    static const char* classCaption(int pipeClass);
    static const char* kindCaption(int kind);

private:
    QString dataBasePath(int pipeClass) const;
    void computeRoughness(int pipeClass);
    void showRoughness(int pipeClass);
    void report(const DataFileError& error);
    UserInterface& ui_;
    SettingsStore* store_;
    QString folder_;
    bool loaded_ = false;
};

} // namespace kestrova
