// Kestrova: the start of the desktop program. One instance per user; the
// splash while the frame loads; the disclaimer while its flag is set; then
// the project files named on the command line, each in the tool of its kind.
// A second start hands its files to the first and ends.

#include "frame/ui/auxiliary_dialogs.h"
#include "frame/ui/frmMain.h"
#include "frame/ui/program_icon.h"
#include "forms/store/settings_store.h"
#include "forms/ui/exception_barrier.h"
#include "platform/single_instance.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QMessageBox>
#include <QTimer>

namespace {

constexpr int kSplashMilliseconds = 3250;

// Waits while the splash is shown, painting as the time passes.
void waitShowing(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

// The files named on the command line (Qt's own options are taken out by then).
QStringList filesToOpen()
{
    QStringList files;
    for (const QString& argument : QApplication::arguments().mid(1))
        if (!argument.startsWith('-'))
            files << argument;
    return files;
}

} // namespace

int main(int argc, char** argv)
{
    kestrova::GuardedApplication app(argc, argv);
    QApplication::setApplicationName("Kestrova");
    QApplication::setOrganizationName("Kestrova");
    QApplication::setApplicationVersion(KESTROVA_VERSION);
    QApplication::setWindowIcon(kestrova::programIcon());

    const QStringList files = filesToOpen();
    kestrova::SingleInstance instance("kestrova-" + qEnvironmentVariable("USER", "user"), files);
    if (instance.anotherIsRunning())
        return 0;
    if (instance.anotherIsSilent()) {
        QMessageBox::warning(nullptr, "Kestrova", "A previous instance of Kestrova is currently running.");
        return 0;
    }

    kestrova::SettingsStore& store = kestrova::SettingsStore::user();
    const bool showDisclaimer = store.get("Settings", "Disclaimer Show", "True") != "False";

    QApplication::setOverrideCursor(Qt::WaitCursor);
    kestrova::frmSplash splash;
    splash.show();
    app.processEvents();
    kestrova::frmMain frame(store);
    waitShowing(kSplashMilliseconds);
    splash.close();
    frame.show();
    QApplication::beep();
    QObject::connect(&instance, &kestrova::SingleInstance::raiseRequested, &frame, [&frame] {
        frame.showNormal();
        frame.raise();
        frame.activateWindow();
    });
    // Files handed over while the disclaimer stands wait for it.
    bool started = false;
    QStringList waiting = files;
    const auto openFiles = [&frame](const QStringList& files) {
        for (const QString& file : files)
            frame.openFile(file);
    };
    QObject::connect(&instance, &kestrova::SingleInstance::filesRequested, &frame,
                     [&](const QStringList& files) { started ? openFiles(files) : void(waiting << files); });

    if (showDisclaimer) {
        kestrova::frmReadDisclaimer disclaimer(frame.userInterface(), store, showDisclaimer, &frame);
        QApplication::restoreOverrideCursor();
        if (disclaimer.exec() != QDialog::Accepted || !disclaimer.agreed())
            return 0; // disagreeing ends the program at once, saving nothing
    } else {
        QApplication::restoreOverrideCursor();
    }
    started = true;
    openFiles(waiting);
    return app.exec();
}
