#include "frame/ui/frame_commands.h"

#include "forms/ui/exception_barrier.h"
#include "frame/model/recent_files.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QDateTime>
#include <QIcon>
#include <QKeySequence>
#include <QLabel>
#include <QLocale>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QStyle>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

#include <vector>

namespace kestrova {

namespace {

struct Entry {
    const char* name; // nullptr: a separator
    const char* caption = "";
    QKeySequence::StandardKey shortcut = QKeySequence::UnknownKey;
    bool checkable = false;
};

const std::vector<Entry> kEntries{
    {"mnuFileOpen", "&Open...", QKeySequence::Open},
    {"mnuFileSave", "&Save", QKeySequence::Save},
    {"mnuFileSaveAs", "Save &As...", QKeySequence::SaveAs},
    {"mnuFilePrintSetup", "Print Set&up..."},
    {"mnuFilePrintDataSheet", "&Data Sheet..."},
    {"mnuFilePrintScreen", "&Screen Shot...", QKeySequence::Print},
    {"mnuFileLocateDataBase", "&Locate Data Base..."},
    {"mnuFileExit", "E&xit", QKeySequence::Quit},
    {"mnuEditCut", "Cu&t", QKeySequence::Cut},
    {"mnuEditCopy", "&Copy", QKeySequence::Copy},
    {"mnuEditPaste", "&Paste", QKeySequence::Paste},
    {"mnuEditCompanyInfo", "&Company Info..."},
    {"mnuViewToolbar", "&Toolbar", QKeySequence::UnknownKey, true},
    {"mnuViewStatusBar", "Status &Bar", QKeySequence::UnknownKey, true},
    {"mnuViewDisclaimer", "View Disclai&mer"},
    {"mnuView2PhaseHorizontal", "2-Phase &Horizontal Flow Map"},
    {"mnuView2PhaseVertical", "2-Phase &Vertical Flow Map"},
    {"mnuViewCalculator", "&Calculator"},
    {"mnuViewUnitsofMeasure", "&Units of Measure"},
    {"mnuToolsPressureDrop", "&Pressure Drop"},
    {"mnuToolsPumpNetwork", "Pump &Network"},
    {"mnuToolsRestrictionOrifices", "&Orifice Plates"},
    {"mnuToolsCompressFactor", "&Compressibility Factors"},
    {"mnuToolsFlowConversions", "&Flow Conversions"},
    {"mnuToolsGasDensity", "&Gas Density"},
    {"mnuToolsHeatCapRatio", "&Heat Capacity Ratios"},
    {"mnuToolsMinorLosses", "&Minor Pipe Losses"},
    {"mnuToolsPP", "&Physical Properties"},
    {"mnuToolsRoughness", "Pipe &Roughness"},
    {"mnuToolsPipeData", "Pipe &Sizes"},
    {"mnuWindowCascade", "&Cascade"},
    {"mnuWindowTileHorizontal", "Tile &Horizontal"},
    {"mnuWindowTileVertical", "Tile &Vertical"},
    {"mnuWindowArrangeIcons", "&Arrange Icons"},
    {"mnuHelpContents", "&Contents", QKeySequence::HelpContents},
    {"mnuHelpSearchForHelpOn", "&Search For Help On..."},
    {"mnuHelpAbout", "&About "},
};

// The menus, their entries in order; nullptr a separator. "mnuFilePrint"
// is the Print submenu, "mnuFileMRU" the places of the recent files.
struct Menu {
    const char* name;
    const char* title;
    std::vector<const char*> entries;
};

const std::vector<Menu> kMenus{
    {"mnuFile", "&File",
     {"mnuFileOpen", "mnuFileSave", "mnuFileSaveAs", nullptr, "mnuFilePrintSetup", "mnuFilePrint", nullptr,
      "mnuFileLocateDataBase", "mnuFileMRU", nullptr, "mnuFileExit"}},
    {"mnuEdit", "&Edit", {"mnuEditCut", "mnuEditCopy", "mnuEditPaste", nullptr, "mnuEditCompanyInfo"}},
    {"mnuView", "&View",
     {"mnuViewToolbar", "mnuViewStatusBar", nullptr, "mnuViewDisclaimer", "mnuView2PhaseHorizontal",
      "mnuView2PhaseVertical", nullptr, "mnuViewCalculator", "mnuViewUnitsofMeasure"}},
    {"mnuTools", "&Tools",
     {"mnuToolsPressureDrop", "mnuToolsPumpNetwork", "mnuToolsRestrictionOrifices", nullptr, "mnuToolsCompressFactor",
      "mnuToolsFlowConversions", "mnuToolsGasDensity", "mnuToolsHeatCapRatio", "mnuToolsMinorLosses", "mnuToolsPP",
      "mnuToolsRoughness", "mnuToolsPipeData"}},
    {"mnuWindow", "&Window",
     {"mnuWindowCascade", "mnuWindowTileHorizontal", "mnuWindowTileVertical", "mnuWindowArrangeIcons"}},
    {"mnuHelp", "&Help", {"mnuHelpContents", "mnuHelpSearchForHelpOn", nullptr, "mnuHelpAbout"}},
};

// The toolbar, left to right; a null key is a separator. A button without a
// picture of the desktop's theme shows a short label.
struct Button {
    const char* key;
    const char* tip;
    const char* menuAction;
    const char* theme; // the picture's name in the desktop's icon theme
    QStyle::StandardPixmap standard;
    const char* label;
};

constexpr auto kNoPixmap = QStyle::SP_CustomBase;

const std::vector<Button> kButtons{
    {"Open", "Open", "mnuFileOpen", nullptr, QStyle::SP_DialogOpenButton, ""},
    {"Save", "Save", "mnuFileSave", nullptr, QStyle::SP_DialogSaveButton, ""},
    {nullptr, nullptr, nullptr, nullptr, kNoPixmap, ""},
    {"Cut", "Cut", "mnuEditCut", "edit-cut", kNoPixmap, "Cut"},
    {"Copy", "Copy", "mnuEditCopy", "edit-copy", kNoPixmap, "Copy"},
    {"Paste", "Paste", "mnuEditPaste", "edit-paste", kNoPixmap, "Paste"},
    {nullptr, nullptr, nullptr, nullptr, kNoPixmap, ""},
    {"Print", "Print", "mnuFilePrintScreen", "document-print", kNoPixmap, "Print"},
    {nullptr, nullptr, nullptr, nullptr, kNoPixmap, ""},
    {"Calculator", "Calculator", "mnuViewCalculator", "accessories-calculator", kNoPixmap, "Calc"},
    {"Units", "Units of Measure", "mnuViewUnitsofMeasure", nullptr, kNoPixmap, "Units"},
    {nullptr, nullptr, nullptr, nullptr, kNoPixmap, ""},
    {"PressureDrop", "Pressure Drop", "mnuToolsPressureDrop", nullptr, kNoPixmap, "\u0394P"},
    {"Network", "Pump Network", "mnuToolsPumpNetwork", nullptr, kNoPixmap, "Pump"},
    {"Orifices", "Orifices", "mnuToolsRestrictionOrifices", nullptr, kNoPixmap, "Orifice"},
    {nullptr, nullptr, nullptr, nullptr, kNoPixmap, ""},
    {"PhysicalProperties", "Physical Properties", "mnuToolsPP", nullptr, kNoPixmap, "Props"},
    {"Density", "Gas/Vapor Density", "mnuToolsGasDensity", nullptr, kNoPixmap, "\u03C1"},
    {"Z", "Compressibility Factor", "mnuToolsCompressFactor", nullptr, kNoPixmap, "Z"},
    {"Conversions", "Flow Conversions", "mnuToolsFlowConversions", nullptr, kNoPixmap, "Flow"},
    {"CpCv", "Heat Capcity Ratio", "mnuToolsHeatCapRatio", nullptr, kNoPixmap, "k"},
    {"MinorLoss", "Minor Pipe Losses", "mnuToolsMinorLosses", nullptr, kNoPixmap, "K"},
    {"PipeSizes", "Pipe Size Data", "mnuToolsPipeData", nullptr, kNoPixmap, "Pipe"},
    {"Roughness", "Pipe Roughness", "mnuToolsRoughness", nullptr, kNoPixmap, "\u03B5"},
    {nullptr, nullptr, nullptr, nullptr, kNoPixmap, ""},
    {"Exit", "Exit", "mnuFileExit", nullptr, QStyle::SP_DialogCloseButton, ""},
    {"Help", "Help", "mnuHelpContents", nullptr, QStyle::SP_DialogHelpButton, ""},
};

} // namespace

FrameCommands::FrameCommands(QMainWindow& frame, UserInterface& ui, Run run)
    : QObject(&frame), frame_(frame), ui_(ui), run_(std::move(run))
{
    buildActions();
    buildMenus();
    buildToolbar();
    buildStatusBar();
    qApp->installEventFilter(this);
}

QAction* FrameCommands::addAction(const QString& name, const QString& caption)
{
    auto* act = new QAction(caption, &frame_);
    act->setObjectName(name);
    actions_[name] = act;
    return act;
}

void FrameCommands::buildActions()
{
    for (const Entry& e : kEntries) {
        QAction* act = addAction(e.name, e.caption);
        act->setShortcut(e.shortcut);
        act->setCheckable(e.checkable);
        if (!e.checkable)
            connect(act, &QAction::triggered, this,
                    guarded("the menu entry " + QString(e.caption).remove('&').toStdString(), ui_,
                            [this, name = QString(e.name)] { run_(name); }));
    }
    for (int i = 1; i <= RecentFiles::kMenuPlaces; ++i) {
        const QString name = QString("mnuFileMRU(%1)").arg(i);
        QAction* recent = addAction(name, QString());
        recent->setVisible(false);
        connect(recent, &QAction::triggered, this,
                guarded("the opening of a recent file", ui_, [this, name] { run_(name); }));
    }
}

QAction* FrameCommands::action(const QString& name) const
{
    const auto found = actions_.find(name);
    return found == actions_.end() ? nullptr : found->second;
}

QAction* FrameCommands::toolbarButton(const QString& key) const
{
    const auto found = toolbarButtons_.find(key);
    return found == toolbarButtons_.end() ? nullptr : found->second;
}

QString FrameCommands::plainCaption(const QString& name) const
{
    const QAction* act = action(name);
    return act ? act->text().remove('&') : name;
}

bool FrameCommands::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Shortcut || watched == frame_.menuBar())
        return QObject::eventFilter(watched, event);
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (!widget || widget->window() != &frame_)
        return QObject::eventFilter(watched, event); // a dialog's own captions keep their letters
    const QKeySequence key = static_cast<QShortcutEvent*>(event)->key();
    for (QAction* menu : frame_.menuBar()->actions())
        if (menu->isVisible() && menu->isEnabled() && QKeySequence::mnemonic(menu->text()) == key) {
            frame_.menuBar()->setActiveAction(menu);
            return true;
        }
    return QObject::eventFilter(watched, event);
}

void FrameCommands::buildMenus()
{
    for (const Menu& m : kMenus) {
        QMenu* menu = frame_.menuBar()->addMenu(m.title);
        menu->setObjectName(m.name);
        for (const char* entry : m.entries) {
            if (!entry) {
                menu->addSeparator();
            } else if (QString(entry) == "mnuFilePrint") {
                QMenu* print = menu->addMenu("&Print");
                print->setObjectName("mnuFilePrint");
                actions_["mnuFilePrint"] = print->menuAction();
                print->addActions({action("mnuFilePrintDataSheet"), action("mnuFilePrintScreen")});
            } else if (QString(entry) == "mnuFileMRU") {
                recentSeparator_ = menu->addSeparator();
                for (int i = 1; i <= RecentFiles::kMenuPlaces; ++i)
                    menu->addAction(action(QString("mnuFileMRU(%1)").arg(i)));
            } else {
                menu->addAction(action(entry));
            }
        }
        // The File and Edit menus copy the toolbar's state as they open.
        if (QString(m.name) == "mnuFile" || QString(m.name) == "mnuEdit")
            connect(menu, &QMenu::aboutToShow, this, [this, name = QString(m.name)] { run_(name + ".aboutToShow"); });
    }
}

void FrameCommands::buildToolbar()
{
    toolbar_ = frame_.addToolBar("Toolbar");
    toolbar_->setObjectName("tbToolBar");
    toolbar_->setMovable(false);
    for (const Button& b : kButtons) {
        if (!b.key) {
            toolbar_->addSeparator();
            continue;
        }
        const QIcon icon = b.standard != kNoPixmap ? frame_.style()->standardIcon(b.standard)
                                                   : (b.theme ? QIcon::fromTheme(b.theme) : QIcon());
        auto* button = new QAction(icon, icon.isNull() ? b.label : b.tip, &frame_);
        button->setObjectName(QString("tb") + b.key);
        button->setToolTip(b.tip);
        button->setData(QString(b.key));
        connect(button, &QAction::triggered, action(b.menuAction), &QAction::trigger);
        toolbarButtons_[b.key] = button;
        toolbar_->addAction(button);
    }
    // The Print button drops down a menu of its two kinds of print.
    auto* printMenu = new QMenu(&frame_);
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

void FrameCommands::buildStatusBar()
{
    QStatusBar* bar = frame_.statusBar();
    bar->setObjectName("sbStatusBar");
    statusText_ = new QLabel(&frame_);
    statusText_->setObjectName("Status");
    statusText_->setToolTip("Status Panel");
    bar->addWidget(statusText_, 1);
    auto* caps = new QLabel("CAPS", &frame_);
    caps->setToolTip("Caps Lock State");
    auto* num = new QLabel("NUM", &frame_);
    num->setToolTip("NUM Lock State");
    auto* date = new QLabel(&frame_);
    auto* time = new QLabel(&frame_);
    for (QLabel* panel : {caps, num, date, time}) {
        panel->setFrameStyle(QFrame::Panel | QFrame::Sunken);
        bar->addPermanentWidget(panel);
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
    connect(action("mnuViewStatusBar"), &QAction::toggled, bar, &QStatusBar::setVisible);
}

void FrameCommands::setStatusText(const QString& text)
{
    if (statusText_->text() != text)
        statusText_->setText(text);
}

QString FrameCommands::statusText() const
{
    return statusText_->text();
}

} // namespace kestrova
