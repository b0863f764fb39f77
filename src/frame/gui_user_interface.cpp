#include "frame/gui_user_interface.h"

#include "frame/frmMain.h"
#include "tools/properties/phys_props.h"

#include <QApplication>
#include <QMessageBox>

namespace kestrova {

namespace {

QMessageBox::Icon boxIcon(MessageIcon icon)
{
    switch (icon) {
    case MessageIcon::Warning: return QMessageBox::Warning;
    case MessageIcon::Stop: return QMessageBox::Critical;
    case MessageIcon::Information: return QMessageBox::Information;
    case MessageIcon::Question: return QMessageBox::Question;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButton boxButton(MessageAnswer answer)
{
    switch (answer) {
    case MessageAnswer::Ok: return QMessageBox::Ok;
    case MessageAnswer::Cancel: return QMessageBox::Cancel;
    case MessageAnswer::Yes: return QMessageBox::Yes;
    case MessageAnswer::No: return QMessageBox::No;
    }
    return QMessageBox::Ok;
}

QMessageBox::StandardButtons boxButtons(MessageButtons buttons)
{
    switch (buttons) {
    case MessageButtons::Ok: return QMessageBox::Ok;
    case MessageButtons::OkCancel: return QMessageBox::Ok | QMessageBox::Cancel;
    case MessageButtons::YesNo: return QMessageBox::Yes | QMessageBox::No;
    case MessageButtons::YesNoCancel: return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    }
    return QMessageBox::Ok;
}

} // namespace

MessageAnswer GuiUserInterface::ask(const std::string& title, const std::string& text, MessageIcon icon,
                                    MessageButtons buttons, MessageAnswer defaultAnswer)
{
    const bool wasBusy = busy_;
    if (wasBusy)
        setBusyPointer(false);
    QMessageBox box(boxIcon(icon), QString::fromStdString(title), QString::fromStdString(text), boxButtons(buttons),
                    &frame_);
    box.setDefaultButton(boxButton(defaultAnswer));
    const int chosen = box.exec();
    if (wasBusy)
        setBusyPointer(true);
    switch (chosen) {
    case QMessageBox::Cancel: return MessageAnswer::Cancel;
    case QMessageBox::Yes: return MessageAnswer::Yes;
    case QMessageBox::No: return MessageAnswer::No;
    case QMessageBox::Ok: return MessageAnswer::Ok;
    default: return buttons == MessageButtons::Ok ? MessageAnswer::Ok : MessageAnswer::Cancel;
    }
}

void GuiUserInterface::beep()
{
    QApplication::beep();
}

void GuiUserInterface::setStatusText(const std::string& text)
{
    frame_.setStatusText(QString::fromStdString(text));
}

void GuiUserInterface::setBusyPointer(bool busy)
{
    if (busy == busy_)
        return;
    busy_ = busy;
    if (busy)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void GuiUserInterface::setToolbarButtonEnabled(const std::string& key, bool enabled)
{
    frame_.setToolbarButtonEnabled(key, enabled);
}

bool GuiUserInterface::runSaveAs()
{
    return frame_.mnuFileSaveAs_Click();
}

void GuiUserInterface::toolNotAvailable(const std::string& tool)
{
    ask("Kestrova", "The " + tool + " tool is not available in this version of Kestrova.", MessageIcon::Information,
        MessageButtons::Ok, MessageAnswer::Ok);
}

Single GuiUserInterface::SelectPipeID(const std::string&)
{
    toolNotAvailable("Pipe Size Data");
    return 0.0;
}

Single GuiUserInterface::SelectRoughness()
{
    toolNotAvailable("Pipe Roughness");
    return 0.0;
}

void GuiUserInterface::GetKValue()
{
    toolNotAvailable("Minor Pipe Losses");
}

Single GuiUserInterface::GetContractionK()
{
    toolNotAvailable("Contractions");
    return 1.0;
}

Single GuiUserInterface::GetEnlargementK()
{
    toolNotAvailable("Enlargements");
    return 1.0;
}

Single GuiUserInterface::GetZValue(Single, Single)
{
    toolNotAvailable("Compressibility Factor");
    return 0.0;
}

Single GuiUserInterface::GetHeatCapRatioValue(Single, Single)
{
    toolNotAvailable("Heat Capacity Ratio");
    return 0.0;
}

Single GuiUserInterface::GetFlowrateConversion(int)
{
    toolNotAvailable("Flow Conversions");
    return 0.0;
}

Single GuiUserInterface::GetGasDensity(Single, Single)
{
    toolNotAvailable("Gas/Vapor Density");
    return 0.0;
}

void GuiUserInterface::GetPhysicalProperties(FluidKind, Single)
{
    toolNotAvailable("Physical Properties");
    propertiesCancelled() = true;
}

void GuiUserInterface::showRegimeMap(const std::string& orientation)
{
    frame_.showRegimeMap(orientation == "Horizontal");
}

} // namespace kestrova
