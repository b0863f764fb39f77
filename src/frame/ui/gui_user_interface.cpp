#include "frame/ui/gui_user_interface.h"

#include "datasheets/model/data_sheet.h"
#include "frame/ui/frmMain.h"
#include "frame/ui/help_system.h"

#include <QCoreApplication>

#include <QApplication>
#include <QMessageBox>
#include <QPrintPreviewDialog>
#include <QTextDocument>

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
    // Lines joined by carriage returns alone break as lines on screen too.
    const QString shown = QString::fromStdString(text).replace("\r\n", "\n").replace('\r', '\n');
    QMessageBox box(boxIcon(icon), QString::fromStdString(title), shown, boxButtons(buttons), &frame_);
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

void GuiUserInterface::showHelp(int context)
{
    frame_.help().showTopic(context);
}

void GuiUserInterface::showRegimeMap(const std::string& orientation)
{
    frame_.showRegimeMap(orientation == "Horizontal");
}

int GuiUserInterface::runReport(const std::string& title, const std::string& reportFile, const std::string& stagingPath,
                                const std::string& table)
{
    const auto layout = readReportTemplate(QString::fromStdString(reportFile));
    if (!layout)
        return 1;
    const auto row = stagedRow(QString::fromStdString(stagingPath), table);
    if (!row)
        return 2;
    const auto html = dataSheetHtml(*layout, *row);
    if (!html)
        return 3;
    QTextDocument sheet;
    sheet.setHtml(*html);
    QPrintPreviewDialog preview(&frame_.printer(), &frame_);
    preview.setWindowTitle(QString::fromStdString(title));
    QObject::connect(&preview, &QPrintPreviewDialog::paintRequested, &preview,
                     [&sheet](QPrinter* printer) { sheet.print(printer); });
    const bool wasBusy = busy_;
    if (wasBusy)
        setBusyPointer(false);
    preview.resize(frame_.size() * 0.8);
    preview.exec();
    if (wasBusy)
        setBusyPointer(true);
    return 0;
}

} // namespace kestrova
