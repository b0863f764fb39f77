#pragma once
// Everything that leaves a form goes through this interface: message boxes,
// beeps, the status panel, the busy pointer, the frame's toolbar state and
// the modal entry points of the dialog tools. The GUI shows real dialogs;
// tests and kestrova-calc use a scripted implementation.

#include "hydraulics/user_feedback.h"
#include "numeric/single.h"

#include <string>

namespace kestrova {

class FormModel;

enum class MessageButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class MessageAnswer { Ok, Cancel, Yes, No };

// The fluid kind handed to the physical properties tool.
enum class FluidKind { Liquid, Gas };

class UserInterface : public UserFeedback {
public:
    // Shows a message box and returns the button chosen.
    virtual MessageAnswer ask(const std::string& title, const std::string& text, MessageIcon icon,
                              MessageButtons buttons, MessageAnswer defaultAnswer) = 0;
    void showMessage(const std::string& title, const std::string& text, MessageIcon icon) override
    {
        ask(title, text, icon, MessageButtons::Ok, MessageAnswer::Ok);
    }
    virtual void setStatusText(const std::string& text) = 0;
    virtual void setBusyPointer(bool busy) = 0;

    // The frame's toolbar buttons by key ("Save", "Print", ...), which the
    // document tools enable and disable.
    virtual void setToolbarButtonEnabled(const std::string& key, bool enabled) = 0;
    // The frame's Save As for the active tool; false when the user cancelled.
    virtual bool runSaveAs() = 0;

    // The dialog tools. Each returns 0 when the user cancels.
    virtual Single SelectPipeID(const std::string& selector) = 0; // "ID" or "OD"; inches
    virtual Single SelectRoughness() = 0;                         // feet
    virtual void GetKValue() = 0;                                 // fills the minor loss store
    virtual Single GetContractionK() = 0;                         // 1 when the user cancels
    virtual Single GetEnlargementK() = 0;                         // 1 when the user cancels
    virtual Single GetZValue(Single temperature, Single pressure) = 0;
    virtual Single GetHeatCapRatioValue(Single temperature, Single pressure) = 0;
    virtual Single GetFlowrateConversion(int fluid) = 0; // 1 liquid, 2 gas; lbm/hr
    virtual Single GetGasDensity(Single temperature, Single pressure) = 0;
    // Fills the shared physical properties record; false when the user closed
    // the tool without applying.
    virtual bool GetPhysicalProperties(FluidKind fluid, Single temperature) = 0;
    // Shows the pump network's segment dialog over its model, modally.
    virtual void PumpSystemData(FormModel& segmentInput) = 0;
    // Shows a two-phase flow regime map form: "Horizontal" or "Vertical Up".
    virtual void showRegimeMap(const std::string& orientation) = 0;
    // The help system at a topic by its context number (help_contexts.h); a
    // number without a topic opens the contents.
    virtual void showHelp(int context) = 0;
    // The report engine: runs the report template over the last row of a
    // staging table under a window title; 0 when all went well.
    virtual int runReport(const std::string& title, const std::string& reportFile, const std::string& stagingPath,
                          const std::string& table) = 0;
};

// The busy pointer for as long as this lives, given back on every way out
// of the step, an exception included.
class BusyPointer {
public:
    explicit BusyPointer(UserInterface& ui) : ui_(ui) { ui_.setBusyPointer(true); }
    ~BusyPointer() { ui_.setBusyPointer(false); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;

private:
    UserInterface& ui_;
};

} // namespace kestrova
