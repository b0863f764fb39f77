#include "frame/model/frame_model.h"

#include "datasheets/model/data_sheet.h"
#include "forms/model/document_tool.h"
#include "forms/store/global_units.h"
#include "forms/store/program_files.h"
#include "forms/store/project_file.h"
#include "forms/store/settings_store.h"
#include "forms/model/user_interface.h"
#include "numeric/field_text.h"
#include "numeric/numeric_fault.h"
#include "tools/properties/model/compound_data_base.h"

#include <QFileInfo>

namespace kestrova {

namespace {

std::string fileTitle(const std::string& path)
{
    return QFileInfo(QString::fromStdString(path)).fileName().toStdString();
}

} // namespace

bool isValidDataBaseFile(const std::string& path)
{
    return isCompoundDataBase(QString::fromStdString(path));
}

std::string defaultDataBaseLocation()
{
    return programFile("compounds.sqlite").toStdString();
}

FrameModel::~FrameModel()
{
    store_.setWriteFailureHandler(nullptr);
}

void FrameModel::MDIForm_Load()
{
    store_.setWriteFailureHandler([this](const std::string& file) {
        ui_.ask("Kestrova",
                "The settings could not be written to " + file +
                    ".\nKestrova keeps them for this run and writes them again with the next change.",
                MessageIcon::Warning, MessageButtons::Ok, MessageAnswer::Ok);
    });
    globalUnits().load(store_);
    toolbar = {{"Open", true}, {"Save", false}, {"Print", false}, {"Cut", true}, {"Copy", true}, {"Paste", true}};
    recentFiles.load(store_);
}

void FrameModel::MDIForm_Activate()
{
    dataBaseValid_ = isValidDataBaseFile(dataBaseLocation());
    if (!firstActivationDone_) {
        ui_.setBusyPointer(false);
        firstActivationDone_ = true;
    }
}

void FrameModel::MDIForm_Unload(const FramePlacement& placement, bool minimised)
{
    if (minimised)
        return;
    store_.save("Settings", "MainLeft", std::to_string(placement.left));
    store_.save("Settings", "MainTop", std::to_string(placement.top));
    store_.save("Settings", "MainWidth", std::to_string(placement.width));
    store_.save("Settings", "MainHeight", std::to_string(placement.height));
    store_.sync();
}

FramePlacement FrameModel::placement() const
{
    // Each key is read as a single. A text that is none, or a place no screen
    // has (beyond a million twips, or a size below zero), gives its default:
    // a store edited by hand never stops the start.
    constexpr double kFarthest = 1e6;
    const FramePlacement defaults;
    const auto read = [this](const char* key, double fallback, double least) {
        const std::string text = store_.get("Settings", key, "");
        if (!isFieldNumber(text))
            return fallback;
        try {
            const double value = fieldSingle(text);
            return value >= least && value <= kFarthest ? value : fallback;
        } catch (const NumericFault&) {
            return fallback; // beyond the range of a single
        }
    };
    return {read("MainLeft", defaults.left, -kFarthest), read("MainTop", defaults.top, -kFarthest),
            read("MainWidth", defaults.width, 0), read("MainHeight", defaults.height, 0)};
}

bool FrameModel::disclaimerShow() const
{
    const std::string flag = store_.get("Settings", "Disclaimer Show", "True");
    return flag != "False" && flag != "false" && flag != "0";
}

std::string FrameModel::dataBaseLocation() const
{
    return store_.get("Settings", "DataBaseLocation", defaultDataBaseLocation());
}

bool FrameModel::menuEnabled(const std::string& menuName) const
{
    static const std::map<std::string, std::string> copies{
        {"mnuFileOpen", "Open"}, {"mnuFileSave", "Save"}, {"mnuFilePrint", "Print"},
        {"mnuEditCut", "Cut"},   {"mnuEditCopy", "Copy"}, {"mnuEditPaste", "Paste"}};
    const auto copy = copies.find(menuName);
    if (copy == copies.end())
        return true;
    const auto state = toolbar.find(copy->second);
    return state != toolbar.end() && state->second;
}

void FrameModel::openFile(const std::string& title, const std::string& path, const ToolOpener& open)
{
    const QFileInfo info(QString::fromStdString(path));
    if (path.empty() || !info.exists() || !info.isFile()) {
        ui_.ask("Open", "File does not exist.", MessageIcon::Stop, MessageButtons::Ok, MessageAnswer::Ok);
        return;
    }
    QByteArray bytes;
    const std::int16_t kind = readWholeFile(info.absoluteFilePath(), bytes) ? fileKindOf(bytes) : 0;
    if (kind < 1 || kind > 3) {
        ui_.ask("Kestrova Open File", "This is not a Kestrova data file.", MessageIcon::Warning, MessageButtons::Ok,
                MessageAnswer::Ok);
        return;
    }
    recentFiles.add(title, path, store_);
    DocumentTool* tool = open(kind);
    if (!tool)
        return;
    // A refused file does not become the tool's file: a later Save must not
    // write over it without a question.
    const std::string previous = tool->strFileName();
    tool->setStrFileName(path);
    if (!tool->OpenSaveData("Open"))
        tool->setStrFileName(previous);
}

void FrameModel::mnuFileMRU_Click(int place, const ToolOpener& open)
{
    if (place < 1 || place > static_cast<int>(recentFiles.entries().size()))
        return;
    const RecentFile file = recentFiles.entries()[static_cast<size_t>(place - 1)];
    openFile(file.title, file.path, open);
}

bool FrameModel::mnuFileSave_Click(DocumentTool* active, const std::function<std::string(const std::string&)>& chooseFile)
{
    if (!active)
        return false;
    if (active->strFileName().empty())
        return mnuFileSaveAs_Click(active, chooseFile);
    return active->OpenSaveData("Save");
}

bool FrameModel::mnuFileSaveAs_Click(DocumentTool* active, const std::function<std::string(const std::string&)>& chooseFile)
{
    if (!active)
        return false;
    const std::string previous = active->strFileName();
    const std::string path = chooseFile(previous);
    if (path.empty())
        return false;
    active->setStrFileName(path);
    if (!active->OpenSaveData("Save As")) {
        active->setStrFileName(previous); // the case stays with the file it came from
        return false;
    }
    recentFiles.add(fileTitle(path), path, store_);
    return true;
}

bool FrameModel::locateDataBase(const std::string& path)
{
    if (!isValidDataBaseFile(path)) {
        ui_.ask("Locate Data Base", "Not a valid physical properties data base file.", MessageIcon::Stop,
                MessageButtons::Ok, MessageAnswer::Ok);
        return false;
    }
    store_.save("Settings", "DataBaseLocation", path);
    store_.sync();
    dataBaseValid_ = true;
    return true;
}

void FrameModel::mnuFilePrintDataSheet_Click(DocumentTool* active)
{
    ui_.setStatusText("Print Data Sheet");
    if (active)
        active->PrintDataSheet(DataSheetPrinter(ui_, store_, programDataFolder(), userDataFolder()));
}

} // namespace kestrova
