#pragma once
// The user interface of the desktop program: real message boxes, the frame's
// status panel and toolbar, and the dialog tools shown over the frame.

#include "forms/model/user_interface.h"

#include <functional>

class QWidget;

namespace kestrova {

class frmMain;

class GuiUserInterface : public UserInterface {
public:
    explicit GuiUserInterface(frmMain& frame) : frame_(frame) {}

    MessageAnswer ask(const std::string& title, const std::string& text, MessageIcon icon, MessageButtons buttons,
                      MessageAnswer defaultAnswer) override;
    void beep() override;
    void setStatusText(const std::string& text) override;
    void setBusyPointer(bool busy) override;
    void setToolbarButtonEnabled(const std::string& key, bool enabled) override;
    bool runSaveAs() override;

    // The dialog tools, each shown modally over the frame on its own model.
    Single SelectPipeID(const std::string& selector) override;
    Single SelectRoughness() override;
    void GetKValue() override;
    Single GetContractionK() override;
    Single GetEnlargementK() override;
    Single GetZValue(Single temperature, Single pressure) override;
    Single GetHeatCapRatioValue(Single temperature, Single pressure) override;
    Single GetFlowrateConversion(int fluid) override;
    Single GetGasDensity(Single temperature, Single pressure) override;
    bool GetPhysicalProperties(FluidKind fluid, Single temperature) override;
    void PumpSystemData(FormModel& segmentInput) override;
    void showRegimeMap(const std::string& orientation) override;
    void showHelp(int context) override;
    // Lays the data sheet out from its template and the staged row, in a
    // print preview from which it is printed or saved as PDF.
    int runReport(const std::string& title, const std::string& reportFile, const std::string& stagingPath,
                  const std::string& table) override;

    void toolNotAvailable(const std::string& tool);
    // A dialog tool shown by itself from the Tools menu, by its menu entry's
    // name; false when the name is no dialog tool's.
    bool showTool(const std::string& menuName);

    frmMain& frame() const { return frame_; }

private:
    frmMain& frame_;
    bool busy_ = false;
};

} // namespace kestrova
