#pragma once
// frmPumpSystemInput without its window: the pipe data of one line of the
// pump network (length, inside diameter, roughness, density, viscosity,
// additional losses) through a working copy, the fitting constants of the
// line, the move from line to line, the data tools it calls, and the
// requests it leaves for the network tool (copies down the network, a
// vapour pressure for line 1).

#include "forms/model/help_contexts.h"
#include "forms/model/form_model.h"
#include "forms/model/unit_fields.h"
#include "tools/pump_network/calc/net_calc.h"

#include <array>
#include <functional>

namespace kestrova {

class UserInterface;
struct SegmentRequests;

namespace pump_segment {
// txtData(i), each with its unit list cboUnits(i).
enum Field : int { Length = 0, Diameter = 1, Roughness = 2, Density = 3, Viscosity = 4, AddedLosses = 5 };
inline constexpr int kFields = 6;
// cmdTable(i).
enum Table : int { PipeTable = 0, RoughnessTable = 1, PhysicalProperties = 2, MinorLossTable = 3 };
inline Control txtData(int i) { return {"txtData", i}; }
inline Control cboUnits(int i) { return {"cboUnits", i}; }
inline Control txtDisplay(int i) { return {"txtDisplay", i}; } // K1, K2, K3 of the line
inline Control cmdTable(int i) { return {"cmdTable", i}; }
inline Control Label1(int i) { return {"Label1", i}; }       // 2, 3 and 4 copy their value down on a double click
inline const Control txtLineNumber{"txtLineNumber"};
inline const Control scrLineNumber{"scrLineNumber"}; // -11 to -1: the arrow up raises the line
inline const Control cmdReset{"cmdReset"};
inline const Control cmdOK{"cmdOK"};
} // namespace pump_segment

// The working copy of the line shown, in internal units.
struct SegmentInputValues {
    Single density, viscosity, roughness, diameter, length, addedLosses;
};

// Everything the segment dialog shows, as the dialog holds it.
struct PumpSegmentInputState {
    SegmentInputValues values;
    std::array<TextControl, pump_segment::kFields> txtData;
    std::array<ListControl, pump_segment::kFields> cboUnits;
    std::array<TextControl, 3> txtDisplay;
    std::array<ButtonControl, 4> cmdTable; // each named by its tool tip
    TextControl txtLineNumber;
    int scrollValue = -1; // scrLineNumber: minus the line
};

class PumpSegmentInputModel : public FormModel, private PumpSegmentInputState {
    Q_OBJECT

public:
    int helpTopic() const override { return help::PumpSegmentInput; }
    static constexpr const char* kTitle = "Pump Network Input Data";

    // `segments` are the network's pipe data, edited in place; `passOnMove`
    // runs the network's pass when the dialog moves to another line.
    PumpSegmentInputModel(UserInterface& ui, SegmentData& segments, SegmentRequests& requests,
                          std::function<void()> passOnMove, QObject* parent = nullptr);

    const PumpSegmentInputState& view() const { return *this; }

    void Form_Load();     // the line of CurrentLine
    void Form_Activate(); // the unit set-up
    void txtData_LostFocus(int field);
    void setUnit(int field, UnitIndex unit);
    void scrLineNumber_Change(int value);
    void cmdTable_Click(int index);
    void Label1_DblClick(int index);
    void cmdReset_Click();
    void cmdOK_Click();

    void commit(const Control& field, const std::string& text) override;
    void click(const Control& control) override;
    void choose(const Control& list, int entry) override;
    void doubleClick(const Control& control) override;

private:
    void loadLine();
    void storeLine();
    void showField(int field);
    void commitField(int field);
    void showConstants(bool masked);
    UserInterface& ui_;
    SegmentData& segments_;
    SegmentRequests& requests_;
    std::function<void()> passOnMove_;
    bool loaded_ = false;
};

} // namespace kestrova
