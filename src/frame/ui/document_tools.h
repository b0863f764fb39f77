#pragma once
// The document tools of the frame, in one table: for each the file kind it
// reads, the Tools menu entry that opens it, and how its model and its
// window are made. The frame asks the table and the open documents below;
// it names no tool itself, so a new document tool is one line of the table.

#include "forms/model/document_tool.h"

#include <QPointer>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class QMdiArea;
class QMdiSubWindow;
class QObject;
class QPoint;
class QSize;
class QWidget;

namespace kestrova {

class UserInterface;

struct DocumentToolKind {
    std::int16_t fileKind;
    const char* menuAction; // "mnuToolsPressureDrop"
    std::function<std::unique_ptr<DocumentTool>(UserInterface&)> makeModel;
    std::function<QWidget*(DocumentTool&, UserInterface&)> makeWindow;
};

// The document tools in the order of the Tools menu.
const std::vector<DocumentToolKind>& documentToolKinds();

// The one instance of each document tool in the frame: its model, and while
// it is open its window in the MDI area. A window that closes goes first,
// its model when the tool is opened again.
class OpenDocuments {
public:
    // `watcher` gets the events of every tool window (the close question).
    OpenDocuments(QMdiArea& area, UserInterface& ui, QObject& watcher);
    ~OpenDocuments();
    OpenDocuments(const OpenDocuments&) = delete;
    OpenDocuments& operator=(const OpenDocuments&) = delete;

    // The tool of a file kind, or of a Tools menu entry, loaded when its
    // window is not open and shown in front; nullptr when no tool has it.
    DocumentTool* show(std::int16_t fileKind);
    DocumentTool* showFromMenu(const std::string& menuAction);

    // The tool whose window is in front, or whose window this is.
    DocumentTool* active() const;
    // The tool's form in its window.
    static QWidget* formOf(const QMdiSubWindow& window);
    DocumentTool* ofWindow(const QObject* subWindow) const;

private:
    struct Slot {
        const DocumentToolKind* kind;
        std::unique_ptr<DocumentTool> model;
        QPointer<QMdiSubWindow> window;
    };
    DocumentTool* show(Slot& slot);
    QSize defaultSize(const QMdiSubWindow& window, const QWidget& form) const;
    QPoint defaultPlace(const QMdiSubWindow& window) const;

    QMdiArea& area_;
    UserInterface& ui_;
    QObject& watcher_;
    std::vector<Slot> slots_;
};

} // namespace kestrova
