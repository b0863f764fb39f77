#pragma once
// The main frame: an MDI window holding the tools, with the menus, the
// toolbar, the status bar, the recent files and the dispatch of Open, Save
// and Print to the tool in front.

#include "frame/model/frame_model.h"
#include "frame/ui/gui_user_interface.h"

#include <QMainWindow>
#include <QPrinter>
#include <QPointer>

#include <functional>
#include <map>
#include <memory>

class QAction;
class QLabel;
class QMdiArea;
class QMdiSubWindow;
class QMenu;
class QToolBar;

namespace kestrova {

class SettingsStore;
class frmPressureDrop;
class PressureDropModel;
class OrificeModel;

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

    void setStatusText(const QString& text);
    void setToolbarButtonEnabled(const std::string& key, bool enabled);
    void showRegimeMap(bool horizontal);
    void placeFromSettings();

    // Menu handlers that other parts call.
    PressureDropModel* mnuToolsPressureDrop_Click();
    OrificeModel* mnuToolsRestrictionOrifices_Click();
    bool mnuFileSaveAs_Click();
    void openFile(const QString& path);
    void clipboard(const QString& word);

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool filterEvent(QObject* watched, QEvent* event); // true swallows the event
    void buildActions();
    void activateDocument();
    DocumentTool* openerOf(int kind);
    QMdiSubWindow* showDocumentWindow(QPointer<QMdiSubWindow>& window, const std::function<QWidget*()>& create);
    void buildMenus();
    void buildToolbar();
    void buildStatusBar();
    QAction* addAction(const QString& name, const QString& caption, void (frmMain::*slot)());
    void showRecentFiles();
    void syncMenus();
    DocumentTool* activeDocument() const;
    void onSubWindowActivated(QMdiSubWindow* window);
    std::string chooseSaveFile(const std::string& initial);
    void commitFocusedField();

    void mnuFileOpen_Click();
    void mnuFileSave_Click();
    void mnuFileSaveAsMenu_Click() { mnuFileSaveAs_Click(); }
    void mnuFilePrintDataSheet_Click();
    void mnuFilePrintScreen_Click();
    void mnuFilePrintSetup_Click();
    void mnuFileLocateDataBase_Click();
    void mnuFileExit_Click();
    void mnuEditCut_Click() { clipboard("Cut"); }
    void mnuEditCopy_Click() { clipboard("Copy"); }
    void mnuEditPaste_Click() { clipboard("Paste"); }
    void mnuEditCompanyInfo_Click();
    void mnuViewDisclaimer_Click();
    void mnuView2PhaseHorizontal_Click() { showRegimeMap(true); }
    void mnuView2PhaseVertical_Click() { showRegimeMap(false); }
    void mnuViewCalculator_Click();
    void mnuViewUnitsofMeasure_Click();
    void mnuToolsPressureDropMenu_Click() { mnuToolsPressureDrop_Click(); }
    void mnuToolsPumpNetwork_Click();
    void mnuToolsRestrictionOrificesMenu_Click() { mnuToolsRestrictionOrifices_Click(); }
    void mnuToolsDialog_Click();
    void mnuHelpContents_Click();
    void mnuHelpAbout_Click();

    SettingsStore& store_;
    GuiUserInterface ui_;
    FrameModel model_;
    QMdiArea* mdi_ = nullptr;
    QToolBar* toolbar_ = nullptr;
    QLabel* statusText_ = nullptr;
    QMenu* recentMenuSeparatorHolder_ = nullptr;
    QAction* recentSeparator_ = nullptr;
    std::map<QString, QAction*> actions_;
    std::map<QString, QAction*> toolbarButtons_;
    QPointer<QMdiSubWindow> pressureDropWindow_;
    std::unique_ptr<PressureDropModel> pressureDrop_;
    QPointer<QMdiSubWindow> orificeWindow_;
    std::unique_ptr<OrificeModel> orifice_;
    QPointer<QMdiSubWindow> mapWindows_[2];
    bool closing_ = false;
    QPrinter printer_; // the printer set-up chosen stays for the run
};

} // namespace kestrova
