#include "forms/ui/exception_barrier.h"

#include "forms/model/user_interface.h"

#include <QMessageBox>

#include <cstdio>
#include <exception>

namespace kestrova {

namespace {

FailureReporter& installedReporter()
{
    static FailureReporter reporter;
    return reporter;
}

// Shows the message on the program's own message box, or writes it to the
// error stream when there is no screen to show it on.
void reportWithoutFrame(const std::string& text)
{
    if (qobject_cast<QApplication*>(QCoreApplication::instance())) {
        QMessageBox::critical(nullptr, "Kestrova", QString::fromStdString(text));
        return;
    }
    std::fputs((text + "\n").c_str(), stderr);
}

void report(const std::string& text, UserInterface* ui) noexcept
{
    // A failure while a failure is being shown is written to the error
    // stream only: one message at a time, never a cascade of boxes.
    static bool reporting = false;
    if (reporting) {
        std::fputs((text + "\n").c_str(), stderr);
        return;
    }
    reporting = true;
    try {
        if (ui) {
            ui->setBusyPointer(false);
            ui->ask("Kestrova", text, MessageIcon::Stop, MessageButtons::Ok, MessageAnswer::Ok);
        } else if (installedReporter()) {
            installedReporter()(text);
        } else {
            reportWithoutFrame(text);
        }
    } catch (...) {
        std::fputs((text + "\n").c_str(), stderr);
    }
    reporting = false;
}

} // namespace

std::string failureText(const std::string& step, const std::string& what)
{
    return "Kestrova could not complete " + step + ":\n" + what +
           "\n\nThe open windows and their data are kept.";
}

bool runGuarded(const std::string& step, const std::function<void()>& work, UserInterface* ui) noexcept
{
    try {
        work();
        return true;
    } catch (const std::exception& error) {
        report(failureText(step, error.what()), ui);
    } catch (...) {
        report(failureText(step, "an unknown error"), ui);
    }
    return false;
}

FailureReporter setFailureReporter(FailureReporter reporter)
{
    return std::exchange(installedReporter(), std::move(reporter));
}

bool GuardedApplication::notify(QObject* receiver, QEvent* event)
{
    bool handled = false;
    runGuarded("the last action", [&] { handled = QApplication::notify(receiver, event); });
    return handled;
}

} // namespace kestrova
