#pragma once
// The main frame (frmMain) without its window: the toolbar state that the
// menus copy, the settings it keeps, the recent files, the data base test,
// and File Open / Save / Save As / Print Data Sheet dispatched to the active
// document tool.

#include "frame/model/recent_files.h"

#include <functional>
#include <map>
#include <string>

namespace kestrova {

class DocumentTool;
class SettingsStore;
class UserInterface;

struct FramePlacement {
    double left = 1000, top = 1000, width = 6500, height = 6500;
};

class FrameModel {
public:
    // Opens (or brings forward) the document tool for a file kind.
    using ToolOpener = std::function<DocumentTool*(int kind)>;

    FrameModel(UserInterface& ui, SettingsStore& store) : ui_(ui), store_(store) {}
    ~FrameModel();
    FrameModel(const FrameModel&) = delete;
    FrameModel& operator=(const FrameModel&) = delete;

    void MDIForm_Load();
    void MDIForm_Activate();
    // Saves the placement unless the frame is minimised.
    void MDIForm_Unload(const FramePlacement& placement, bool minimised);

    FramePlacement placement() const;
    bool disclaimerShow() const;
    std::string dataBaseLocation() const;
    bool dataBaseFileValid() const { return dataBaseValid_; }

    // The toolbar owns the enabled state; the menus copy it when they open.
    std::map<std::string, bool> toolbar;
    void setToolbarButtonEnabled(const std::string& key, bool enabled) { toolbar[key] = enabled; }
    bool menuEnabled(const std::string& menuName) const;

    // File Open on a chosen file; the tool comes from `open`.
    void openFile(const std::string& title, const std::string& path, const ToolOpener& open);
    void mnuFileMRU_Click(int place, const ToolOpener& open);
    // Save: with no file name it is Save As, and `chooseFile` asks for one.
    bool mnuFileSave_Click(DocumentTool* active, const std::function<std::string(const std::string&)>& chooseFile);
    bool mnuFileSaveAs_Click(DocumentTool* active, const std::function<std::string(const std::string&)>& chooseFile);
    void mnuFilePrintDataSheet_Click(DocumentTool* active);
    // Takes a chosen file as the compound data base if it passes the file test.
    bool locateDataBase(const std::string& path);

    RecentFiles recentFiles;

private:
    UserInterface& ui_;
    SettingsStore& store_;
    bool dataBaseValid_ = false;
    bool firstActivationDone_ = false;
};

// The file test of the compound data base (Locate Data Base, each activation).
bool isValidDataBaseFile(const std::string& path);
// Where the compound data base lies when no location has been set: beside the program.
std::string defaultDataBaseLocation();

} // namespace kestrova
