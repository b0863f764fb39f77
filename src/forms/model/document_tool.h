#pragma once
// What the frame knows of a document tool: its file, its load, activation
// and close question, and the two operations it calls by name on the active
// one. The frame holds every document tool through this face alone.

#include <cstdint>
#include <string>

namespace kestrova {

class DataSheetPrinter;

class DocumentTool {
public:
    virtual ~DocumentTool() = default;
    virtual void Form_Load() = 0;
    virtual void Form_Activate() = 0; // the window comes to the front
    // The close question; false keeps the window open.
    virtual bool Form_QueryUnload() = 0;
    virtual bool isDirty() const = 0; // unsaved changes

    virtual std::string strFileName() const = 0;
    virtual void setStrFileName(const std::string& path) = 0;
    // "Open", "Save" or "Save As"; false when the file was refused or not written.
    virtual bool OpenSaveData(const std::string& operation) = 0;
    virtual void PrintDataSheet(const DataSheetPrinter& printer) = 0;
    virtual std::string toolTitle() const = 0;
    virtual std::int16_t fileKind() const = 0;
};

} // namespace kestrova
