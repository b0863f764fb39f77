#include "frame/ui/frmMain.h"

#include "frame/ui/help_system.h"
#include "frame/ui/program_icon.h"

#include "forms/store/settings_store.h"
#include "forms/ui/exception_barrier.h"
#include "frame/model/company_info_model.h"
#include "frame/ui/auxiliary_dialogs.h"
#include "frame/ui/basPrint.h"
#include "frame/ui/document_tools.h"
#include "frame/ui/frame_commands.h"
#include "frame/ui/frmUnitOptions.h"
#include "tools/pressure_drop/ui/frmRegimeMap.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QEventLoop>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QProcess>
#include <QScreen>
#include <QStandardPaths>
#include <QTimer>
#include <QToolBar>

#include <map>

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
    setWindowIcon(programIcon());
    mdi_ = new QMdiArea(this);
    mdi_->setObjectName("frmMainClient");
    mdi_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    mdi_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    mdi_->setBackground(QColor(0x80, 0x80, 0x80));
    mdi_->viewport()->setMouseTracking(true);
    mdi_->viewport()->installEventFilter(this);
    setCentralWidget(mdi_);
    documents_ = std::make_unique<OpenDocuments>(*mdi_, ui_, *this);
    connect(mdi_, &QMdiArea::subWindowActivated, this,
            guarded("the activation of a window", ui_, [this](QMdiSubWindow*) { activateDocument(); }));

    help_ = new HelpSystem(ui_, HelpSystem::defaultHelpFile(), HelpSystem::defaultCollectionFile(), this);
    commands_ = new FrameCommands(*this, ui_, [this](const QString& name) { runCommand(name); });
    commands_->toolbar()->installEventFilter(this);

    model_.MDIForm_Load();
    placeFromSettings();
    syncMenus();
    showRecentFiles();
}

frmMain::~frmMain() = default;

QAction* frmMain::action(const QString& name) const
{
    return commands_->action(name);
}

QAction* frmMain::toolbarButton(const QString& key) const
{
    return commands_->toolbarButton(key);
}

// A menu entry or button, by its name.
void frmMain::runCommand(const QString& name)
{
    static const std::map<QString, void (frmMain::*)()> handlers{
        {"mnuFileOpen", &frmMain::mnuFileOpen_Click},
        {"mnuFileSave", &frmMain::mnuFileSave_Click},
        {"mnuFilePrintSetup", &frmMain::mnuFilePrintSetup_Click},
        {"mnuFilePrintDataSheet", &frmMain::mnuFilePrintDataSheet_Click},
        {"mnuFilePrintScreen", &frmMain::mnuFilePrintScreen_Click},
        {"mnuFileLocateDataBase", &frmMain::mnuFileLocateDataBase_Click},
        {"mnuFileExit", &frmMain::mnuFileExit_Click},
        {"mnuEditCompanyInfo", &frmMain::mnuEditCompanyInfo_Click},
        {"mnuViewDisclaimer", &frmMain::mnuViewDisclaimer_Click},
        {"mnuViewCalculator", &frmMain::mnuViewCalculator_Click},
        {"mnuViewUnitsofMeasure", &frmMain::mnuViewUnitsofMeasure_Click},
        {"mnuHelpContents", &frmMain::mnuHelpContents_Click},
        {"mnuHelpSearchForHelpOn", &frmMain::mnuHelpSearchForHelpOn_Click},
        {"mnuHelpAbout", &frmMain::mnuHelpAbout_Click},
        {"mnuWindowTileVertical", &frmMain::tileVertically},
        {"mnuWindowArrangeIcons", &frmMain::arrangeIcons},
        {"mnuFile.aboutToShow", &frmMain::syncMenus},
        {"mnuEdit.aboutToShow", &frmMain::syncMenus},
    };
    if (const auto handler = handlers.find(name); handler != handlers.end())
        (this->*handler->second)();
    else if (name == "mnuFileSaveAs")
        mnuFileSaveAs_Click();
    else if (name.startsWith("mnuFileMRU("))
        mnuFileMRU_Click(name.mid(11, name.size() - 12).toInt());
    else if (name.startsWith("mnuEdit"))
        clipboard(name.mid(7)); // "Cut", "Copy" or "Paste"
    else if (name == "mnuView2PhaseHorizontal" || name == "mnuView2PhaseVertical")
        showRegimeMap(name == "mnuView2PhaseHorizontal");
    else if (name == "mnuWindowCascade")
        mdi_->cascadeSubWindows();
    else if (name == "mnuWindowTileHorizontal")
        mdi_->tileSubWindows();
    else if (name.startsWith("mnuTools"))
        openTool(name);
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
    commands_->setStatusText(text);
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
    commands_->recentSeparator()->setVisible(!entries.empty());
}

void frmMain::activateDocument()
{
    if (DocumentTool* active = documents_->active())
        active->Form_Activate();
}

DocumentTool* frmMain::openDocumentTool(std::int16_t fileKind)
{
    if (DocumentTool* tool = documents_->show(fileKind))
        return tool;
    ui_.ask("Kestrova", "The tool of this file is not available in this version of Kestrova.", MessageIcon::Information,
            MessageButtons::Ok, MessageAnswer::Ok);
    return nullptr;
}

// A Tools menu entry: a document tool, a dialog tool, or a tool this version lacks.
void frmMain::openTool(const QString& menuAction)
{
    if (documents_->showFromMenu(menuAction.toStdString()))
        return;
    if (menuAction == "mnuToolsPP") {
        model_.MDIForm_Activate();
        if (!model_.dataBaseFileValid())
            return; // without a valid data base the entry does nothing at all
    }
    if (!ui_.showTool(menuAction.toStdString()))
        ui_.toolNotAvailable(commands_->plainCaption(menuAction).toStdString());
}

void frmMain::tileVertically()
{
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
}

void frmMain::arrangeIcons()
{
    int x = 0;
    for (QMdiSubWindow* window : mdi_->subWindowList())
        if (window->isMinimized()) {
            window->move(x, mdi_->viewport()->height() - window->height());
            x += window->width();
        }
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

void frmMain::mnuFileMRU_Click(int place)
{
    model_.mnuFileMRU_Click(place, [this](int kind) { return openDocumentTool(static_cast<std::int16_t>(kind)); });
    showRecentFiles();
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
                    [this](int kind) { return openDocumentTool(static_cast<std::int16_t>(kind)); });
    showRecentFiles();
}

void frmMain::mnuFileSave_Click()
{
    commitFocusedField();
    model_.mnuFileSave_Click(documents_->active(), [this](const std::string& initial) { return chooseSaveFile(initial); });
    showRecentFiles();
}

bool frmMain::mnuFileSaveAs_Click()
{
    commitFocusedField();
    const bool saved = model_.mnuFileSaveAs_Click(documents_->active(), [this](const std::string& initial) {
        return chooseSaveFile(initial);
    });
    showRecentFiles();
    return saved;
}

void frmMain::mnuFilePrintDataSheet_Click()
{
    model_.mnuFilePrintDataSheet_Click(documents_->active());
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
    QWidget* form = active ? OpenDocuments::formOf(*active) : nullptr;
    if (!form)
        return;
    const QPixmap picture = captureForm(*form); // before the dialog can stand in it
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
        printed = printCopies(printer_, picture, copies, form->logicalDpiX());
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
    help_->showContents();
}

void frmMain::mnuHelpSearchForHelpOn_Click()
{
    help_->showIndex();
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
    } else if (watched == commands_->toolbar() && event->type() == QEvent::HoverMove) {
        const QPoint at = static_cast<QHoverEvent*>(event)->position().toPoint();
        if (QAction* hit = commands_->toolbar()->actionAt(at); hit && !hit->isSeparator())
            setStatusText(hit->toolTip());
    } else if (event->type() == QEvent::Close) {
        DocumentTool* tool = documents_->ofWindow(watched);
        if (tool && !tool->Form_QueryUnload()) {
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
    help_->close(); // the help goes with the frame
    const QRect g = normalGeometry();
    runGuarded("the saving of the frame's placement", [&] {
        model_.MDIForm_Unload({g.x() * 15.0, g.y() * 15.0, g.width() * 15.0, g.height() * 15.0}, isMinimized());
    }, &ui_);
    event->accept();
}

} // namespace kestrova
