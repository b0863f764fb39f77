#pragma once
// The pump network tool's window: the network drawing with its destination
// and valve fields laid out on it, the pump results, and the summary grid,
// in two splitters; each control bound by its program name to
// PumpNetworkModel. The segment dialog frmPumpSystemInput belongs here too.

#include "forms/ui/document_form.h"
#include "forms/ui/tool_dialog.h"

#include <array>

class QGridLayout;
class QPushButton;
class QScrollBar;
class QSplitter;
class QTableWidget;

namespace kestrova {

class PumpNetworkModel;
class PumpSegmentInputModel;
class NetworkDrawing;

class frmPumpSystem : public DocumentForm {
    Q_OBJECT

public:
    frmPumpSystem(PumpNetworkModel& model, UserInterface& ui, QWidget* parent = nullptr);
    QSize sizeHint() const override;

protected:
    void renderDrawing() override; // the grid's cells and the panes

private:
    QWidget* networkPane();
    QWidget* pumpPane();
    QWidget* summaryPane();
    void fillGridCells();
    void sizeGridColumns();

    PumpNetworkModel& model_;
    NetworkDrawing* drawing_ = nullptr;
    QWidget* pumpPane_ = nullptr;
    QTableWidget* grid_ = nullptr;
    QSplitter* hSplitter_ = nullptr; // the drawing over the rest
    QSplitter* vSplitter_ = nullptr; // the pump beside the grid
    bool gridFillsWindow_ = false;
};

class frmPumpSystemInput : public ToolDialog {
    Q_OBJECT

public:
    frmPumpSystemInput(PumpSegmentInputModel& model, UserInterface& ui, QWidget* parent);

protected:
    void renderDrawing() override; // the line's scroll bar

private:
    PumpSegmentInputModel& model_;
    QScrollBar* scroll_ = nullptr;
    bool drawing_ = false;
};

} // namespace kestrova
