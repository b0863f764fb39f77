#include "frame/ui/frmMain.h"

#include "frame/ui/auxiliary_dialogs.h"
#include "frame/ui/basPrint.h"
#include "frame/model/company_info_model.h"
#include "frame/ui/frmUnitOptions.h"
#include "forms/store/settings_store.h"
#include "forms/ui/exception_barrier.h"
#include "tools/orifice/ui/frmOrificePlates.h"
#include "tools/orifice/model/orifice_model.h"
#include "tools/pressure_drop/ui/frmPressureDrop.h"
#include "tools/pressure_drop/ui/frmRegimeMap.h"
#include "tools/pressure_drop/model/pressure_drop_model.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QDateTime>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPageSetupDialog>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QEventLoop>
#include <QProcess>
#include <QScreen>
#include <QGuiApplication>
#include <QStandardPaths>
#include <QStatusBar>
#include <QStyle>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

namespace kestrova {

namespace {

constexpr const char* kFileFilter = "All Files (*.*);;Kestrova (*.ksv)";
constexpr const char* kKestrovaFilter = "Kestrova (*.ksv)";

} // namespace

frmMain::frmMain(SettingsStore& store, QWidget* parent)
    : QMainWindow(parent), store_(store), ui_(*this), model_(ui_, store)
{
    setObjectName("frmMain");
    setWindowTitle("Kestrova - Hydraulic Calculation Workbench");
    mdi_ = new QMdiArea(this);
    mdi_->setObjectName("frmMainClient");
    mdi_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    mdi_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    mdi_->setBackground(QColor(0x80, 0x80, 0x80));
    mdi_->viewport()->setMouseTracking(true);
    mdi_->viewport()->installEventFilter(this);
    setCentralWidget(mdi_);
    connect(mdi_, &QMdiArea::subWindowActivated, this,
            guarded("the activation of a window", ui_, [this](QMdiSubWindow* window) { onSubWindowActivated(window); }));

    buildActions();
    buildMenus();
    buildToolbar();
    buildStatusBar();

    model_.MDIForm_Load();
    placeFromSettings();
    syncMenus();
    showRecentFiles();
}

frmMain::~frmMain()
{
    // The tool windows go before the models they show.
    for (QMdiSubWindow* window : mdi_->subWindowList())
        delete window;
}

QAction* frmMain::addAction(const QString& name, const QString& caption, void (frmMain::*slot)())
{
    auto* act = new QAction(caption, this);
    act->setObjectName(name);
    if (slot)
        connect(act, &QAction::triggered, this,
                guarded("the menu entry " + QString(caption).remove('&').toStdString(), ui_, [this, slot] { (this->*slot)(); }));
    actions_[name] = act;
    return act;
}

QAction* frmMain::action(const QString& name) const
{
    const auto found = actions_.find(name);
    return found == actions_.end() ? nullptr : found->second;
}

QAction* frmMain::toolbarButton(const QString& key) const
{
    const auto found = toolbarButtons_.find(key);
    return found == toolbarButtons_.end() ? nullptr : found->second;
}

void frmMain::buildActions()
{
    addAction("mnuFileOpen", "&Open...", &frmMain::mnuFileOpen_Click)->setShortcut(QKeySequence::Open);
    addAction("mnuFileSave", "&Save", &frmMain::mnuFileSave_Click)->setShortcut(QKeySequence::Save);
    addAction("mnuFileSaveAs", "Save &As...", &frmMain::mnuFileSaveAsMenu_Click)->setShortcut(QKeySequence::SaveAs);
    addAction("mnuFilePrintSetup", "Print Set&up...", &frmMain::mnuFilePrintSetup_Click);
    addAction("mnuFilePrintDataSheet", "&Data Sheet...", &frmMain::mnuFilePrintDataSheet_Click);
    addAction("mnuFilePrintScreen", "&Screen Shot...", &frmMain::mnuFilePrintScreen_Click)->setShortcut(QKeySequence::Print);
    addAction("mnuFileLocateDataBase", "&Locate Data Base...", &frmMain::mnuFileLocateDataBase_Click);
    for (int i = 1; i <= RecentFiles::kMenuPlaces; ++i) {
        QAction* recent = addAction(QString("mnuFileMRU(%1)").arg(i), QString(), nullptr);
        recent->setVisible(false);
        connect(recent, &QAction::triggered, this, guarded("the opening of a recent file", ui_, [this, i] {
            model_.mnuFileMRU_Click(i, [this](int kind) -> DocumentTool* {
                return openerOf(kind);
            });
            showRecentFiles();
        }));
    }
    addAction("mnuFileExit", "E&xit", &frmMain::mnuFileExit_Click)->setShortcut(QKeySequence::Quit);
    addAction("mnuEditCut", "Cu&t", &frmMain::mnuEditCut_Click)->setShortcut(QKeySequence::Cut);
    addAction("mnuEditCopy", "&Copy", &frmMain::mnuEditCopy_Click)->setShortcut(QKeySequence::Copy);
    addAction("mnuEditPaste", "&Paste", &frmMain::mnuEditPaste_Click)->setShortcut(QKeySequence::Paste);
    addAction("mnuEditCompanyInfo", "&Company Info...", &frmMain::mnuEditCompanyInfo_Click);
    addAction("mnuViewToolbar", "&Toolbar", nullptr)->setCheckable(true);
    addAction("mnuViewStatusBar", "Status &Bar", nullptr)->setCheckable(true);
    addAction("mnuViewDisclaimer", "View Disclai&mer", &frmMain::mnuViewDisclaimer_Click);
    addAction("mnuView2PhaseHorizontal", "2-Phase &Horizontal Flow Map", &frmMain::mnuView2PhaseHorizontal_Click);
    addAction("mnuView2PhaseVertical", "2-Phase &Vertical Flow Map", &frmMain::mnuView2PhaseVertical_Click);
    addAction("mnuViewCalculator", "&Calculator", &frmMain::mnuViewCalculator_Click);
    addAction("mnuViewUnitsofMeasure", "&Units of Measure", &frmMain::mnuViewUnitsofMeasure_Click);
    addAction("mnuToolsPressureDrop", "&Pressure Drop", &frmMain::mnuToolsPressureDropMenu_Click);
    addAction("mnuToolsPumpNetwork", "Pump &Network", &frmMain::mnuToolsPumpNetwork_Click);
    addAction("mnuToolsRestrictionOrifices", "&Orifice Plates", &frmMain::mnuToolsRestrictionOrificesMenu_Click);
    const std::pair<const char*, const char*> dialogs[] = {
        {"mnuToolsCompressFactor", "&Compressibility Factors"}, {"mnuToolsFlowConversions", "&Flow Conversions"},
        {"mnuToolsGasDensity", "&Gas Density"},                 {"mnuToolsHeatCapRatio", "&Heat Capacity Ratios"},
        {"mnuToolsMinorLosses", "&Minor Pipe Losses"},          {"mnuToolsPP", "&Physical Properties"},
        {"mnuToolsRoughness", "Pipe &Roughness"},               {"mnuToolsPipeData", "Pipe &Sizes"}};
    for (const auto& [name, caption] : dialogs)
        addAction(name, caption, &frmMain::mnuToolsDialog_Click);
    addAction("mnuWindowCascade", "&Cascade", nullptr);
    addAction("mnuWindowTileHorizontal", "Tile &Horizontal", nullptr);
    addAction("mnuWindowTileVertical", "Tile &Vertical", nullptr);
    addAction("mnuWindowArrangeIcons", "&Arrange Icons", nullptr);
    connect(action("mnuWindowCascade"), &QAction::triggered, mdi_, &QMdiArea::cascadeSubWindows);
    connect(action("mnuWindowTileHorizontal"), &QAction::triggered, mdi_, &QMdiArea::tileSubWindows);
    connect(action("mnuWindowTileVertical"), &QAction::triggered, this, guarded("Tile Vertical", ui_, [this] {
        // Side by side: each window the full height, one column each.
        const auto windows = mdi_->subWindowList();
        if (windows.isEmpty())
            return;
        const int width = mdi_->viewport()->width() / static_cast<int>(windows.size());
        int x = 0;
        for (QMdiSubWindow* window : windows) {
            window->showNormal();
            window->setGeometry(x, 0, width, mdi_->viewport()->height());
            x += width;
        }
    }));
    connect(action("mnuWindowArrangeIcons"), &QAction::triggered, mdi_, guarded("Arrange Icons", ui_, [this] {
        int x = 0;
        for (QMdiSubWindow* window : mdi_->subWindowList())
            if (window->isMinimized()) {
                window->move(x, mdi_->viewport()->height() - window->height());
                x += window->width();
            }
    }));
    addAction("mnuHelpContents", "&Contents", &frmMain::mnuHelpContents_Click)->setShortcut(QKeySequence::HelpContents);
    addAction("mnuHelpSearchForHelpOn", "&Search For Help On...", &frmMain::mnuHelpContents_Click);
    addAction("mnuHelpAbout", "&About ", &frmMain::mnuHelpAbout_Click);
}

void frmMain::buildMenus()
{
    QMenu* file = menuBar()->addMenu("&File");
    file->setObjectName("mnuFile");
    file->addActions({action("mnuFileOpen"), action("mnuFileSave"), action("mnuFileSaveAs")});
    file->addSeparator();
    file->addAction(action("mnuFilePrintSetup"));
    QMenu* print = file->addMenu("&Print");
    print->setObjectName("mnuFilePrint");
    actions_["mnuFilePrint"] = print->menuAction();
    print->addActions({action("mnuFilePrintDataSheet"), action("mnuFilePrintScreen")});
    file->addSeparator();
    file->addAction(action("mnuFileLocateDataBase"));
    recentSeparator_ = file->addSeparator();
    for (int i = 1; i <= RecentFiles::kMenuPlaces; ++i)
        file->addAction(action(QString("mnuFileMRU(%1)").arg(i)));
    file->addSeparator();
    file->addAction(action("mnuFileExit"));
    connect(file, &QMenu::aboutToShow, this, &frmMain::syncMenus);

    QMenu* edit = menuBar()->addMenu("&Edit");
    edit->setObjectName("mnuEdit");
    edit->addActions({action("mnuEditCut"), action("mnuEditCopy"), action("mnuEditPaste")});
    edit->addSeparator();
    edit->addAction(action("mnuEditCompanyInfo"));
    connect(edit, &QMenu::aboutToShow, this, &frmMain::syncMenus);

    QMenu* view = menuBar()->addMenu("&View");
    view->setObjectName("mnuView");
    view->addActions({action("mnuViewToolbar"), action("mnuViewStatusBar")});
    view->addSeparator();
    view->addActions({action("mnuViewDisclaimer"), action("mnuView2PhaseHorizontal"), action("mnuView2PhaseVertical")});
    view->addSeparator();
    view->addActions({action("mnuViewCalculator"), action("mnuViewUnitsofMeasure")});

    QMenu* tools = menuBar()->addMenu("&Tools");
    tools->setObjectName("mnuTools");
    tools->addActions({action("mnuToolsPressureDrop"), action("mnuToolsPumpNetwork"), action("mnuToolsRestrictionOrifices")});
    tools->addSeparator();
    for (const char* name : {"mnuToolsCompressFactor", "mnuToolsFlowConversions", "mnuToolsGasDensity",
                             "mnuToolsHeatCapRatio", "mnuToolsMinorLosses", "mnuToolsPP", "mnuToolsRoughness",
                             "mnuToolsPipeData"})
        tools->addAction(action(name));

    QMenu* window = menuBar()->addMenu("&Window");
    window->setObjectName("mnuWindow");
    window->addActions({action("mnuWindowCascade"), action("mnuWindowTileHorizontal"), action("mnuWindowTileVertical"),
                        action("mnuWindowArrangeIcons")});

    QMenu* help = menuBar()->addMenu("&Help");
    help->setObjectName("mnuHelp");
    help->addActions({action("mnuHelpContents"), action("mnuHelpSearchForHelpOn")});
    help->addSeparator();
    help->addAction(action("mnuHelpAbout"));
}

void frmMain::buildToolbar()
{
    toolbar_ = addToolBar("Toolbar");
    toolbar_->setObjectName("tbToolBar");
    toolbar_->setMovable(false);
    toolbar_->installEventFilter(this);
    QStyle* s = style();
    struct Button {
        const char* key;
        const char* tip;
        const char* menuAction;
        QIcon icon;
        const char* label;
    };
    const std::vector<Button> buttons{
        {"Open", "Open", "mnuFileOpen", s->standardIcon(QStyle::SP_DialogOpenButton), ""},
        {"Save", "Save", "mnuFileSave", s->standardIcon(QStyle::SP_DialogSaveButton), ""},
        {nullptr, nullptr, nullptr, {}, ""},
        {"Cut", "Cut", "mnuEditCut", QIcon::fromTheme("edit-cut"), "Cut"},
        {"Copy", "Copy", "mnuEditCopy", QIcon::fromTheme("edit-copy"), "Copy"},
        {"Paste", "Paste", "mnuEditPaste", QIcon::fromTheme("edit-paste"), "Paste"},
        {nullptr, nullptr, nullptr, {}, ""},
        {"Print", "Print", "mnuFilePrintScreen", QIcon::fromTheme("document-print"), "Print"},
        {nullptr, nullptr, nullptr, {}, ""},
        {"Calculator", "Calculator", "mnuViewCalculator", QIcon::fromTheme("accessories-calculator"), "Calc"},
        {"Units", "Units of Measure", "mnuViewUnitsofMeasure", {}, "Units"},
        {nullptr, nullptr, nullptr, {}, ""},
        {"PressureDrop", "Pressure Drop", "mnuToolsPressureDrop", {}, "\u0394P"},
        {"Network", "Pump Network", "mnuToolsPumpNetwork", {}, "Pump"},
        {"Orifices", "Orifices", "mnuToolsRestrictionOrifices", {}, "Orifice"},
        {nullptr, nullptr, nullptr, {}, ""},
        {"PhysicalProperties", "Physical Properties", "mnuToolsPP", {}, "Props"},
        {"Density", "Gas/Vapor Density", "mnuToolsGasDensity", {}, "\u03C1"},
        {"Z", "Compressibility Factor", "mnuToolsCompressFactor", {}, "Z"},
        {"Conversions", "Flow Conversions", "mnuToolsFlowConversions", {}, "Flow"},
        {"CpCv", "Heat Capcity Ratio", "mnuToolsHeatCapRatio", {}, "k"},
        {"MinorLoss", "Minor Pipe Losses", "mnuToolsMinorLosses", {}, "K"},
        {"PipeSizes", "Pipe Size Data", "mnuToolsPipeData", {}, "Pipe"},
        {"Roughness", "Pipe Roughness", "mnuToolsRoughness", {}, "\u03B5"},
        {nullptr, nullptr, nullptr, {}, ""},
        {"Exit", "Exit", "mnuFileExit", s->standardIcon(QStyle::SP_DialogCloseButton), ""},
        {"Help", "Help", "mnuHelpContents", s->standardIcon(QStyle::SP_DialogHelpButton), ""},
    };
    for (const Button& b : buttons) {
        if (!b.key) {
            toolbar_->addSeparator();
            continue;
        }
        auto* button = new QAction(b.icon.isNull() ? QIcon() : b.icon, b.icon.isNull() ? b.label : b.tip, this);
        button->setObjectName(QString("tb") + b.key);
        button->setToolTip(b.tip);
        button->setData(QString(b.key));
        QAction* menuAction = action(b.menuAction);
        connect(button, &QAction::triggered, menuAction, &QAction::trigger);
        toolbarButtons_[b.key] = button;
        toolbar_->addAction(button);
    }
    // The Print button drops down a menu of its two kinds of print.
    auto* printMenu = new QMenu(this);
    QAction* dataSheet = printMenu->addAction("Data Sheet");
    dataSheet->setData(QString("Datasheet"));
    connect(dataSheet, &QAction::triggered, action("mnuFilePrintDataSheet"), &QAction::trigger);
    QAction* screenShot = printMenu->addAction("Screen Shot");
    screenShot->setData(QString("Screenshot"));
    connect(screenShot, &QAction::triggered, action("mnuFilePrintScreen"), &QAction::trigger);
    toolbarButtons_["Print"]->setMenu(printMenu);
    if (auto* printButton = qobject_cast<QToolButton*>(toolbar_->widgetForAction(toolbarButtons_["Print"])))
        printButton->setPopupMode(QToolButton::MenuButtonPopup);
    toolbar_->setToolButtonStyle(Qt::ToolButtonIconOnly);
    for (auto& [key, button] : toolbarButtons_)
        if (button->icon().isNull())
            if (auto* widget = qobject_cast<QToolButton*>(toolbar_->widgetForAction(button)))
                widget->setToolButtonStyle(Qt::ToolButtonTextOnly);

    action("mnuViewToolbar")->setChecked(true);
    connect(action("mnuViewToolbar"), &QAction::toggled, toolbar_, &QToolBar::setVisible);
}

void frmMain::buildStatusBar()
{
    statusBar()->setObjectName("sbStatusBar");
    statusText_ = new QLabel(this);
    statusText_->setObjectName("Status");
    statusText_->setToolTip("Status Panel");
    statusBar()->addWidget(statusText_, 1);
    auto* caps = new QLabel("CAPS", this);
    caps->setToolTip("Caps Lock State");
    auto* num = new QLabel("NUM", this);
    num->setToolTip("NUM Lock State");
    auto* date = new QLabel(this);
    auto* time = new QLabel(this);
    for (QLabel* panel : {caps, num, date, time}) {
        panel->setFrameStyle(QFrame::Panel | QFrame::Sunken);
        statusBar()->addPermanentWidget(panel);
    }
    const auto tick = [date, time] {
        const QDateTime now = QDateTime::currentDateTime();
        date->setText(QLocale().toString(now.date(), QLocale::ShortFormat));
        time->setText(QLocale().toString(now.time(), QLocale::ShortFormat));
    };
    tick();
    auto* clock = new QTimer(this);
    connect(clock, &QTimer::timeout, this, tick);
    clock->start(10000);
    action("mnuViewStatusBar")->setChecked(true);
    connect(action("mnuViewStatusBar"), &QAction::toggled, statusBar(), &QStatusBar::setVisible);
}

void frmMain::placeFromSettings()
{
    // The placement keys hold twips, fifteen to a pixel. Until a placement has
    // been saved, the frame takes most of the screen rather than the small
    // default window of the keys.
    if (store_.get("Settings", "MainWidth", "").empty()) {
        if (QScreen* screen = QGuiApplication::primaryScreen()) {
            const QRect free = screen->availableGeometry();
            const QSize size(free.width() * 9 / 10, free.height() * 9 / 10);
            setGeometry(QRect(free.center() - QPoint(size.width() / 2, size.height() / 2), size));
        }
        return;
    }
    const FramePlacement p = model_.placement();
    const auto px = [](double twips) { return static_cast<int>(twips / 15.0); };
    setGeometry(px(p.left), px(p.top), std::max(px(p.width), 480), std::max(px(p.height), 360));
}

void frmMain::setStatusText(const QString& text)
{
    if (statusText_->text() != text)
        statusText_->setText(text);
}

void frmMain::setToolbarButtonEnabled(const std::string& key, bool enabled)
{
    model_.setToolbarButtonEnabled(key, enabled);
    if (QAction* button = toolbarButton(QString::fromStdString(key)))
        button->setEnabled(enabled);
    syncMenus();
}

void frmMain::syncMenus()
{
    for (const char* name : {"mnuFileOpen", "mnuFileSave", "mnuFilePrint", "mnuEditCut", "mnuEditCopy", "mnuEditPaste"})
        action(name)->setEnabled(model_.menuEnabled(name));
    for (const auto& [key, enabled] : model_.toolbar)
        if (QAction* button = toolbarButton(QString::fromStdString(key)))
            button->setEnabled(enabled);
}

void frmMain::showRecentFiles()
{
    const auto& entries = model_.recentFiles.entries();
    for (int i = 1; i <= RecentFiles::kMenuPlaces; ++i) {
        QAction* place = action(QString("mnuFileMRU(%1)").arg(i));
        const bool used = i <= static_cast<int>(entries.size());
        place->setVisible(used);
        if (used)
            place->setText(QString::fromStdString(model_.recentFiles.menuCaption(i)));
    }
    recentSeparator_->setVisible(!entries.empty());
}

DocumentTool* frmMain::activeDocument() const
{
    QMdiSubWindow* window = mdi_->activeSubWindow();
    if (window && window == pressureDropWindow_)
        return pressureDrop_.get();
    if (window && window == orificeWindow_)
        return orifice_.get();
    return nullptr;
}

void frmMain::activateDocument()
{
    DocumentTool* active = activeDocument();
    if (active && active == pressureDrop_.get())
        pressureDrop_->Form_Activate();
    else if (active && active == orifice_.get())
        orifice_->Form_Activate();
}

void frmMain::onSubWindowActivated(QMdiSubWindow*)
{
    activateDocument();
}

// The document tool that opens a file of a kind, brought forward.
DocumentTool* frmMain::openerOf(int kind)
{
    if (kind == 2)
        return mnuToolsPressureDrop_Click();
    if (kind == 1)
        return mnuToolsRestrictionOrifices_Click();
    ui_.toolNotAvailable("Pump Network");
    return nullptr;
}

QMdiSubWindow* frmMain::showDocumentWindow(QPointer<QMdiSubWindow>& window, const std::function<QWidget*()>& create)
{
    if (!window) {
        QWidget* form = create();
        window = mdi_->addSubWindow(form);
        window->setAttribute(Qt::WA_DeleteOnClose);
        window->setWindowIcon(QIcon());
        window->installEventFilter(this);
        window->resize(form->sizeHint());
    }
    window->show();
    mdi_->setActiveSubWindow(window);
    window->widget()->setFocus();
    return window;
}

PressureDropModel* frmMain::mnuToolsPressureDrop_Click()
{
    showDocumentWindow(pressureDropWindow_, [this] {
        pressureDrop_ = std::make_unique<PressureDropModel>(ui_);
        auto* form = new frmPressureDrop(*pressureDrop_, ui_);
        pressureDrop_->Form_Load();
        return form;
    });
    return pressureDrop_.get();
}

void frmMain::mnuToolsPumpNetwork_Click()
{
    ui_.toolNotAvailable("Pump Network");
}

OrificeModel* frmMain::mnuToolsRestrictionOrifices_Click()
{
    showDocumentWindow(orificeWindow_, [this] {
        orifice_ = std::make_unique<OrificeModel>(ui_);
        auto* form = new frmOrificePlates(*orifice_, ui_);
        orifice_->Form_Load();
        return form;
    });
    return orifice_.get();
}

void frmMain::mnuToolsDialog_Click()
{
    auto* sent = qobject_cast<QAction*>(sender());
    if (!sent)
        return;
    if (sent->objectName() == "mnuToolsPP") {
        model_.MDIForm_Activate();
        if (!model_.dataBaseFileValid())
            return; // without a valid data base the entry does nothing at all
    }
    ui_.showTool(sent->objectName().toStdString());
}

void frmMain::showRegimeMap(bool horizontal)
{
    QPointer<QMdiSubWindow>& window = mapWindows_[horizontal ? 0 : 1];
    if (!window) {
        auto* form = new frmRegimeMap(horizontal, ui_);
        window = mdi_->addSubWindow(form);
        window->setAttribute(Qt::WA_DeleteOnClose);
    }
    window->showMaximized();
    mdi_->setActiveSubWindow(window);
}

std::string frmMain::chooseSaveFile(const std::string& initial)
{
    QFileDialog dialog(this, "Save As", QString::fromStdString(initial));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters({"All Files (*.*)", kKestrovaFilter});
    dialog.selectNameFilter(kKestrovaFilter);
    dialog.setDefaultSuffix("ksv");
    if (!initial.empty())
        dialog.selectFile(QString::fromStdString(initial));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    return dialog.selectedFiles().front().toStdString();
}

void frmMain::commitFocusedField()
{
    // The field with the focus goes through its leaving step first.
    if (QWidget* focused = QApplication::focusWidget())
        focused->clearFocus();
}

void frmMain::mnuFileOpen_Click()
{
    QFileDialog dialog(this, "Open", QCoreApplication::applicationDirPath());
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters({"All Files (*.*)", kKestrovaFilter});
    dialog.selectNameFilter(kKestrovaFilter);
    dialog.setDefaultSuffix("ksv");
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return;
    openFile(dialog.selectedFiles().front());
}

void frmMain::openFile(const QString& path)
{
    model_.openFile(QFileInfo(path).fileName().toStdString(), path.toStdString(),
                    [this](int kind) { return openerOf(kind); });
    showRecentFiles();
}

void frmMain::mnuFileSave_Click()
{
    commitFocusedField();
    model_.mnuFileSave_Click(activeDocument(), [this](const std::string& initial) { return chooseSaveFile(initial); });
    showRecentFiles();
}

bool frmMain::mnuFileSaveAs_Click()
{
    commitFocusedField();
    const bool saved = model_.mnuFileSaveAs_Click(activeDocument(), [this](const std::string& initial) {
        return chooseSaveFile(initial);
    });
    showRecentFiles();
    return saved;
}

void frmMain::mnuFilePrintDataSheet_Click()
{
    model_.mnuFilePrintDataSheet_Click(activeDocument());
}

// The print dialog may offer printing to a file only where no printer is
// installed, so that a machine without one can still put a page on paper
// as PDF.
static void offerPrinting(QPrintDialog& dialog)
{
    dialog.setOption(QAbstractPrintDialog::PrintToFile, QPrinterInfo::availablePrinters().isEmpty());
}

void frmMain::mnuFilePrintScreen_Click()
{
    QMdiSubWindow* active = mdi_->activeSubWindow();
    if (!active || !active->widget())
        return;
    const QPixmap picture = captureForm(*active->widget()); // before the dialog can stand in it
    QPrintDialog dialog(&printer_, this);
    dialog.setWindowTitle("Print");
    offerPrinting(dialog);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const int copies = std::max(printer_.copyCount(), 1);
    bool printed = false;
    {
        const BusyPointer busy(ui_);
        QEventLoop repaint; // let the dialog's place on screen be repainted
        QTimer::singleShot(200, &repaint, &QEventLoop::quit);
        repaint.exec();
        printed = printCopies(printer_, picture, copies, active->widget()->logicalDpiX());
    }
    if (!printed) {
        ui_.ask("Kestrova", "The printer could not be started.", MessageIcon::Stop, MessageButtons::Ok,
                MessageAnswer::Ok);
        return;
    }
    active->showMaximized();
}

void frmMain::mnuFilePrintSetup_Click()
{
    QPageSetupDialog dialog(&printer_, this);
    dialog.exec(); // nothing is stored: the choice stays with the printer for the run
}

void frmMain::mnuFileLocateDataBase_Click()
{
    setStatusText("Locate Data Base");
    const QString current = QString::fromStdString(model_.dataBaseLocation());
    const QString chosen = QFileDialog::getOpenFileName(this, "Locate Data Base", QFileInfo(current).absolutePath(),
                                                        "Data bases (*.sqlite *.db);;All Files (*.*)");
    if (chosen.isEmpty())
        return; // cancelled: the old location stays
    model_.locateDataBase(chosen.toStdString());
}

void frmMain::mnuEditCompanyInfo_Click()
{
    CompanyInfoModel model(ui_, store_);
    model.Form_Load();
    frmCompanyInfo dialog(model, ui_, this);
    dialog.exec();
}

void frmMain::mnuFileExit_Click()
{
    close();
}

void frmMain::clipboard(const QString& word)
{
    QWidget* focused = QApplication::focusWidget();
    auto* field = qobject_cast<QLineEdit*>(focused);
    const auto fail = [this](const char* text) {
        ui_.ask("Kestrova", text, MessageIcon::Stop, MessageButtons::Ok, MessageAnswer::Ok);
    };
    QClipboard* board = QApplication::clipboard();
    if (word == "Paste") {
        if (!field || field->isReadOnly())
            return fail("Could not paste from clipboard.");
        field->insert(board->text());
        return;
    }
    if (!field)
        return fail("Could not clear clipboard.");
    board->clear();
    board->setText(field->selectedText());
    if (word == "Cut" && !field->isReadOnly())
        field->del();
}

void frmMain::mnuViewDisclaimer_Click()
{
    frmDisclaimer dialog(ui_, this);
    dialog.exec();
}

void frmMain::mnuViewCalculator_Click()
{
    for (const char* program : {"gnome-calculator", "kcalc", "galculator", "mate-calc", "qalculate-gtk", "xcalc"}) {
        const QString path = QStandardPaths::findExecutable(program);
        if (!path.isEmpty() && QProcess::startDetached(path, {}))
            return;
    }
    ui_.ask("Kestrova", "No calculator program is installed on this computer.", MessageIcon::Information,
            MessageButtons::Ok, MessageAnswer::Ok);
}

void frmMain::mnuViewUnitsofMeasure_Click()
{
    frmUnitOptions dialog(ui_, store_, this);
    dialog.exec();
    activateDocument();
}

void frmMain::mnuHelpContents_Click()
{
    showHelpUnavailable(ui_);
}

void frmMain::mnuHelpAbout_Click()
{
    frmAbout dialog(ui_, this);
    dialog.exec();
}

bool frmMain::eventFilter(QObject* watched, QEvent* event)
{
    bool swallowed = false;
    runGuarded("the last action", [&] { swallowed = filterEvent(watched, event); }, &ui_);
    return swallowed || QMainWindow::eventFilter(watched, event);
}

bool frmMain::filterEvent(QObject* watched, QEvent* event)
{
    if (watched == mdi_->viewport() && event->type() == QEvent::MouseMove) {
        setStatusText("Select a menu item");
    } else if (watched == toolbar_ && event->type() == QEvent::HoverMove) {
        const QPoint at = static_cast<QHoverEvent*>(event)->position().toPoint();
        if (QAction* hit = toolbar_->actionAt(at); hit && !hit->isSeparator())
            setStatusText(hit->toolTip());
    } else if (event->type() == QEvent::Close) {
        const bool kept = (watched == pressureDropWindow_ && pressureDrop_ && !pressureDrop_->Form_QueryUnload()) ||
                          (watched == orificeWindow_ && orifice_ && !orifice_->Form_QueryUnload());
        if (kept) {
            event->ignore();
            return true;
        }
    }
    return false;
}

void frmMain::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        runGuarded("the activation of the frame", [this] { model_.MDIForm_Activate(); }, &ui_);
    QMainWindow::changeEvent(event);
}

void frmMain::closeEvent(QCloseEvent* event)
{
    // Every form is unloaded in turn; a tool may keep the frame open.
    for (QMdiSubWindow* window : mdi_->subWindowList()) {
        if (!window->close()) {
            event->ignore();
            return;
        }
    }
    const QRect g = normalGeometry();
    runGuarded("the saving of the frame's placement", [&] {
        model_.MDIForm_Unload({g.x() * 15.0, g.y() * 15.0, g.width() * 15.0, g.height() * 15.0}, isMinimized());
    }, &ui_);
    event->accept();
}

} // namespace kestrova
