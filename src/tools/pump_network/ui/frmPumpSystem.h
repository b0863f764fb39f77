#pragma once
// The pump network tool's window: the network drawing with its destination
// and valve fields laid out on it, the pump results, and the summary grid,
// in two splitters; each control bound by its program name to
// PumpNetworkModel. The segment dialog frmPumpSystemInput belongs here too.

#include "forms/ui/document_form.h"
#include "forms/ui/tool_dialog.h"

#include <array>
#include <vector>

class QGridLayout;
class QLineEdit;
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
    void showEvent(QShowEvent* event) override;

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
    bool panesPlaced_ = false;
    int listColumnWidth_ = 0; // the widest unit list of the grid
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
    std::vector<QLineEdit*> narrowFields_; // the constants and the line number: no wider than their texts
    bool drawing_ = false;
};

} // namespace kestrova
