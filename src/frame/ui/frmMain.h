#pragma once
// The main frame: an MDI window holding the tools, with the menus, the
// toolbar and the status bar of its commands, the recent files, and Open,
// Save and Print dispatched to the document tool in front.

#include "frame/model/frame_model.h"
#include "frame/ui/gui_user_interface.h"

#include <QMainWindow>
#include <QPointer>
#include <QPrinter>

#include <memory>

class QAction;
class QMdiArea;
class QMdiSubWindow;

namespace kestrova {

class FrameCommands;
class HelpSystem;
class OpenDocuments;
class SettingsStore;

class frmMain : public QMainWindow {
    Q_OBJECT

public:
    explicit frmMain(SettingsStore& store, QWidget* parent = nullptr);
    ~frmMain() override;

    UserInterface& userInterface() { return ui_; }
    FrameModel& model() { return model_; }
    SettingsStore& settings() { return store_; }
    QPrinter& printer() { return printer_; }
    QMdiArea* mdiArea() const { return mdi_; }
    QAction* action(const QString& name) const; // by control name, e.g. "mnuFileSave"
    QAction* toolbarButton(const QString& key) const;
    HelpSystem& help() const { return *help_; }

    void setStatusText(const QString& text);
    void setToolbarButtonEnabled(const std::string& key, bool enabled);
    void showRegimeMap(bool horizontal);
    void placeFromSettings();

    // The document tool of a file kind, loaded and in front; nullptr when no tool reads the kind.
    DocumentTool* openDocumentTool(std::int16_t fileKind);
    bool mnuFileSaveAs_Click();
    void openFile(const QString& path);
    void clipboard(const QString& word);

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void runCommand(const QString& name);
    void openTool(const QString& menuAction);
    bool filterEvent(QObject* watched, QEvent* event); // true swallows the event
    void showRecentFiles();
    void syncMenus();
    void activateDocument();
    std::string chooseSaveFile(const std::string& initial);
    void commitFocusedField();
    void tileVertically();
    void arrangeIcons();

    void mnuFileOpen_Click();
    void mnuFileSave_Click();
    void mnuFilePrintDataSheet_Click();
    void mnuFilePrintScreen_Click();
    void mnuFilePrintSetup_Click();
    void mnuFileLocateDataBase_Click();
    void mnuFileMRU_Click(int place);
    void mnuFileExit_Click();
    void mnuEditCompanyInfo_Click();
    void mnuViewDisclaimer_Click();
    void mnuViewCalculator_Click();
    void mnuViewUnitsofMeasure_Click();
    void mnuHelpContents_Click();
    void mnuHelpSearchForHelpOn_Click();
    void mnuHelpAbout_Click();

    SettingsStore& store_;
    GuiUserInterface ui_;
    FrameModel model_;
    QMdiArea* mdi_ = nullptr;
    FrameCommands* commands_ = nullptr;
    std::unique_ptr<OpenDocuments> documents_;
    QPointer<QMdiSubWindow> mapWindows_[2];
    HelpSystem* help_ = nullptr;
    QPrinter printer_; // the printer set-up chosen stays for the run
};

} // namespace kestrova
