#include "forms/model/document_file.h"

#include "forms/model/user_interface.h"

namespace kestrova {

bool saveProjectFile(UserInterface& ui, const std::string& title, const std::string& path, const QByteArray& bytes)
{
    const std::string error = writeFileSafely(QString::fromStdString(path), bytes);
    if (error.empty())
        return true;
    ui.ask(title, "The file could not be saved: " + error + "\nThe data on screen are unchanged.", MessageIcon::Stop,
           MessageButtons::Ok, MessageAnswer::Ok);
    return false;
}

bool saveProjectFile(UserInterface& ui, const DocumentTool& tool, const QByteArray& bytes)
{
    return saveProjectFile(ui, tool.toolTitle(), tool.strFileName(), bytes);
}

bool readProjectFileBytes(UserInterface& ui, const std::string& title, const std::string& path, std::int16_t kind,
                          const std::string& wrongKind, QByteArray& bytes)
{
    if (!readWholeFile(QString::fromStdString(path), bytes)) {
        ui.ask(title, "The file could not be read.", MessageIcon::Stop, MessageButtons::Ok, MessageAnswer::Ok);
        return false;
    }
    if (fileKindOf(bytes) != kind) {
        ui.ask(title, wrongKind, MessageIcon::Stop, MessageButtons::Ok, MessageAnswer::Ok);
        return false;
    }
    return true;
}

void reportDamagedFile(UserInterface& ui, const std::string& title)
{
    ui.ask(title, "This " + title + " data file is damaged or incomplete and could not be opened.", MessageIcon::Stop,
           MessageButtons::Ok, MessageAnswer::Ok);
}

} // namespace kestrova
