#pragma once
// A document tool's side of its project file: the bytes of its record written
// safely, or read and checked for the tool's own kind, each failure told to
// the user in a message under the tool's title.

#include "forms/model/document_tool.h"
#include "forms/store/project_file.h"

#include <cstdint>
#include <string>

namespace kestrova {

class UserInterface;

// A document tool's save: the bytes written safely, or a message under the
// tool's title saying why not, the data on screen unchanged.
bool saveProjectFile(UserInterface& ui, const std::string& title, const std::string& path, const QByteArray& bytes);
// The same for a tool's own file, under its own title.
bool saveProjectFile(UserInterface& ui, const DocumentTool& tool, const QByteArray& bytes);

// A document tool's open: the bytes after the file kind, or a message under
// the tool's title (`wrongKind` when the file belongs to another tool) and
// nothing. `read` turns the bytes into the tool's record; a file that ends
// too soon is reported as damaged.
template <typename Record, typename Read>
bool openProjectFile(UserInterface& ui, const std::string& title, const std::string& path, std::int16_t kind,
                     const std::string& wrongKind, Read read, Record& record);
bool readProjectFileBytes(UserInterface& ui, const std::string& title, const std::string& path, std::int16_t kind,
                          const std::string& wrongKind, QByteArray& bytes);
// The tool's own file, kind and title.
template <typename Record, typename Read>
bool openToolFile(UserInterface& ui, const DocumentTool& tool, const std::string& wrongKind, Read read, Record& record);
void reportDamagedFile(UserInterface& ui, const std::string& title);

template <typename Record, typename Read>
bool openProjectFile(UserInterface& ui, const std::string& title, const std::string& path, std::int16_t kind,
                     const std::string& wrongKind, Read read, Record& record)
{
    QByteArray bytes;
    if (!readProjectFileBytes(ui, title, path, kind, wrongKind, bytes))
        return false;
    try {
        RecordReader in(bytes.mid(2));
        record = read(in);
    } catch (const DamagedFileError&) {
        reportDamagedFile(ui, title);
        return false;
    }
    return true;
}

template <typename Record, typename Read>
bool openToolFile(UserInterface& ui, const DocumentTool& tool, const std::string& wrongKind, Read read, Record& record)
{
    return openProjectFile(ui, tool.toolTitle(), tool.strFileName(), tool.fileKind(), wrongKind, read, record);
}

} // namespace kestrova
