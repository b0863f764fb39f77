#include "tools/pump_network/ui/frmPumpSystem.h"

#include "forms/model/user_interface.h"
#include "tools/pump_network/model/pump_network_model.h"
#include "tools/pump_network/model/pump_segment_input_model.h"
#include "tools/pump_network/ui/network_drawing.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QTableWidget>
#include <QVBoxLayout>

namespace kestrova {

using namespace pump_network;

namespace {

// The splitters' positions when the grid does not fill the window: the
// drawing takes 74 parts of the height, the pump and the grid halve the rest.
constexpr int kDrawingShare = 74, kPumpShare = 50;

// A row of the pump pane, in the pane's left or right half: caption, field
// and, where it has one, its unit list.
void pumpRow(FormView& view, QGridLayout* grid, int row, int half, const QString& caption, const Control& field,
             const char* unitTag = nullptr, const Control& units = {})
{
    const int column = 4 * half;
    QLineEdit* edit = view.field(field);
    auto* label = new QLabel(caption);
    label->setBuddy(edit);
    grid->addWidget(label, row, column);
    grid->addWidget(edit, row, column + 1);
    if (unitTag)
        grid->addWidget(view.unitList(units, unitTag), row, column + 2);
}

} // namespace

frmPumpSystem::frmPumpSystem(PumpNetworkModel& model, UserInterface& ui, QWidget* parent)
    : DocumentForm(model, ui, parent), model_(model)
{
    setObjectName("frmPumpSystem");
    setWindowTitle(PumpNetworkModel::kTitle);
    vSplitter_ = new QSplitter(Qt::Horizontal);
    vSplitter_->setObjectName("VSplitter");
    vSplitter_->addWidget(pumpPane());
    vSplitter_->addWidget(summaryPane());
    hSplitter_ = new QSplitter(Qt::Vertical);
    hSplitter_->setObjectName("HSplitter");
    hSplitter_->addWidget(networkPane());
    hSplitter_->addWidget(vSplitter_);
    hSplitter_->setStretchFactor(0, kDrawingShare);
    hSplitter_->setStretchFactor(1, 100 - kDrawingShare);
    // A drag is the user's own size: the window takes it as shown before the model hears of it.
    connect(hSplitter_, &QSplitter::splitterMoved, this, [this](int position) {
        gridFillsWindow_ = position == 0;
        view().guard([&] { model_.HSplitter_Moved(position); });
    });
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->addWidget(hSplitter_);
    setMouseTracking(true);
    view().setEnterAsTab(true);
    compactLayouts();
    render();
}

// The drawing whole above the pump pane whole, as far as the frame allows.
QSize frmPumpSystem::sizeHint() const
{
    const QSize drawing = drawing_->minimumSizeHint();
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    return {drawing.width() + scrollBar + 8, drawing.height() + pumpPane_->sizeHint().height() + scrollBar + 16};
}

// At its first showing the drawing takes what it needs, up to its share
// of the height; the pump pane takes its width and the grid the rest.
void frmPumpSystem::showEvent(QShowEvent* event)
{
    DocumentForm::showEvent(event);
    if (panesPlaced_)
        return;
    panesPlaced_ = true;
    const int height = hSplitter_->height(), width = vSplitter_->width();
    const int drawing = std::min(drawing_->minimumSizeHint().height() + 4,
                                 std::max(height * kDrawingShare / 100, height - pumpPane_->sizeHint().height()));
    hSplitter_->setSizes({drawing, height - drawing});
    const int pump = std::min(pumpPane_->sizeHint().width() + 20, width * 2 / 3);
    vSplitter_->setSizes({pump, width - pump});
}

QWidget* frmPumpSystem::networkPane()
{
    drawing_ = new NetworkDrawing(model_, view());
    auto* pane = new QScrollArea;
    pane->setObjectName("panNetworkPane");
    pane->setWidget(drawing_);
    pane->setWidgetResizable(true);
    pane->setFrameShape(QFrame::NoFrame);
    view().status(drawing_, "Enter Pipe Segment Destination Data");
    return pane;
}

QWidget* frmPumpSystem::pumpPane()
{
    auto* pane = new QGroupBox("Pump");
    pumpPane_ = pane;
    pane->setObjectName("panPumpInfo");
    view().status(pane, "Pump Design Data");
    auto* grid = new QGridLayout(pane);
    FormView& v = view();
    const auto tag = [](int field) { return PumpNetworkModel::unitTagOf(field); };
    const auto row = [&](int at, int column, const QString& caption, int field) {
        pumpRow(v, grid, at, column, caption, txtData(field), tag(field), cboUnits(field));
    };
    // The pump's figures on the left, the valve sizing and the project on the right.
    row(0, 0, "Flow Rate:", PumpFlow);
    row(1, 0, "Pump Head:", PumpHead);
    row(2, 0, "Pressure Increase:", PressureIncrease);
    row(3, 0, "P, Discharge:", DischargePressure);
    row(4, 0, "P, Suction:", SuctionPressure);
    row(5, 0, "NPSHa:", NPSHa);
    row(6, 0, "Vapor Pressure:", VaporPressure);
    pumpRow(v, grid, 0, 1, "Pump Efficiency (%):", txtHydraulicEff);
    row(1, 1, "Motor Size:", MotorSize);
    grid->addWidget(new QLabel("<b>Size Control Valves by:</b>"), 2, 4, 1, 3);
    row(3, 1, "Minimum dP:", MinimumValveDrop);
    pumpRow(v, grid, 4, 1, "% of Line dP:", txtMinValvePercentdP);
    auto* project = new QLabel("Project:");
    QLineEdit* description = v.field(txtDescription);
    project->setBuddy(description);
    grid->addWidget(project, 5, 4);
    grid->addWidget(description, 5, 5, 1, 2);
    grid->addWidget(v.button(cmdReset, "Reset all Input Fields"), 6, 4, 1, 3);
    grid->setColumnMinimumWidth(3, 12);
    grid->setRowStretch(7, 1);
    grid->setColumnStretch(7, 1);
    auto* scroller = new QScrollArea;
    scroller->setWidget(pane);
    scroller->setWidgetResizable(true);
    scroller->setFrameShape(QFrame::NoFrame);
    return scroller;
}

// The grid: row 0 the line numbers, column 0 the row names, column 1 the
// unit lists of the rows that have one; the cells of the lines that have no
// value in a row take the button face.
QWidget* frmPumpSystem::summaryPane()
{
    grid_ = new QTableWidget(kGridRows, kGridColumns);
    grid_->setObjectName(QString::fromStdString(grdSummary.name()));
    grid_->horizontalHeader()->setVisible(false);
    grid_->verticalHeader()->setVisible(false);
    grid_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid_->setSelectionMode(QAbstractItemView::SingleSelection);
    grid_->setMouseTracking(true);
    view().status(grid_, "Current Network Design Data");
    for (int r = 0; r < kGridRows; ++r)
        for (int c = 0; c < kGridColumns; ++c) {
            auto* item = new QTableWidgetItem;
            item->setTextAlignment((c == 1 && r == 0) ? Qt::AlignCenter
                                   : c == 0          ? Qt::AlignLeft | Qt::AlignVCenter
                                                     : Qt::AlignRight | Qt::AlignVCenter);
            item->setToolTip(QString::fromStdString(PumpNetworkModel::gridToolTip(r, c)));
            if (!PumpNetworkModel::gridCellUsed(r, c))
                item->setBackground(palette().color(QPalette::Button));
            if (r == 0 || c == 0)
                item->setBackground(palette().color(QPalette::Window));
            grid_->setItem(r, c, item);
        }
    // cboUnits(34 + k) over column 1 of its row; cmdSizeGrid over the corner cell.
    const int rowsWithLists[] = {FlowRow,     DiameterRow,  LengthRow,   RoughnessRow, ViscosityRow, DensityRow,
                                 VelocityRow, AddedDropRow, LineDropRow, ValveDropRow, DestinationRow};
    for (int k = 0; k < 11; ++k)
        grid_->setCellWidget(rowsWithLists[k], 1, view().unitList(cboUnits(kFields + k),
                                                                   PumpNetworkModel::unitTagOf(kFields + k)));
    // Each row as tall as the unit lists laid over it.
    grid_->verticalHeader()->setMinimumSectionSize(1);
    grid_->verticalHeader()->setDefaultSectionSize(grid_->cellWidget(FlowRow, 1)->sizeHint().height());
    QPushButton* size = view().button(cmdSizeGrid, QString());
    size->setIcon(style()->standardIcon(QStyle::SP_TitleBarMaxButton));
    size->setToolTip("Resize the Summary Grid");
    grid_->setCellWidget(0, 0, size);
    connect(grid_, &QTableWidget::cellDoubleClicked, this,
            [this](int, int column) { view().guard([&] { model_.grdSummary_DblClick(column); }); });
    auto* pane = new QWidget;
    pane->setObjectName("panSummary");
    view().status(pane, "Network Summary");
    auto* layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(grid_);
    return pane;
}

void frmPumpSystem::fillGridCells()
{
    const auto& texts = model_.view().grid;
    for (int r = 0; r < kGridRows; ++r)
        for (int c = 0; c < kGridColumns; ++c) {
            if (c == 1 && r > 0)
                continue; // the unit lists stand here
            QTableWidgetItem* item = grid_->item(r, c);
            const QString text = QString::fromStdString(texts[static_cast<size_t>(r)][static_cast<size_t>(c)]);
            if (item->text() != text)
                item->setText(text);
        }
}

// Each column as wide as its widest text and 200 twips more; column 1 as
// wide as its unit lists. Measured with the grid's own font, cell by cell,
// which costs far less than asking each item for its size.
void frmPumpSystem::sizeGridColumns()
{
    const QFontMetrics metrics(grid_->font());
    const int margin = 200 / 15 + 2 * grid_->style()->pixelMetric(QStyle::PM_FocusFrameHMargin);
    const auto& texts = model_.view().grid;
    for (int c = 0; c < kGridColumns; ++c) {
        if (c == 1) {
            if (listColumnWidth_ == 0)
                for (int r = 1; r < kGridRows; ++r)
                    if (QWidget* list = grid_->cellWidget(r, 1))
                        listColumnWidth_ = std::max(listColumnWidth_, list->sizeHint().width());
            grid_->setColumnWidth(1, listColumnWidth_);
            continue;
        }
        int widest = 0;
        for (int r = 0; r < kGridRows; ++r)
            widest = std::max(widest, metrics.horizontalAdvance(
                                          QString::fromStdString(texts[static_cast<size_t>(r)][static_cast<size_t>(c)])));
        if (c == 0)
            widest = std::max(widest, grid_->cellWidget(0, 0)->sizeHint().width());
        if (grid_->columnWidth(c) != widest + margin)
            grid_->setColumnWidth(c, widest + margin);
    }
}

void frmPumpSystem::renderDrawing()
{
    fillGridCells();
    sizeGridColumns();
    const bool fills = model_.view().gridFillsWindow;
    if (fills != gridFillsWindow_) {
        const int height = std::max(hSplitter_->height(), 100);
        const int width = std::max(vSplitter_->width(), 100);
        hSplitter_->setSizes(fills ? QList<int>{0, height}
                                   : QList<int>{height * kDrawingShare / 100, height * (100 - kDrawingShare) / 100});
        vSplitter_->setSizes(fills ? QList<int>{0, width} : QList<int>{width * kPumpShare / 100, width * kPumpShare / 100});
        gridFillsWindow_ = fills;
    }
}

// --- the segment dialog ----------------------------------------------------------------------

frmPumpSystemInput::frmPumpSystemInput(PumpSegmentInputModel& model, UserInterface& ui, QWidget* parent)
    : ToolDialog(model, ui, "frmPumpSystemInput", PumpSegmentInputModel::kTitle, parent), model_(model)
{
    namespace seg = pump_segment;
    view().setEnterAsTab(true);
    view().setArrowsWalk(true);
    auto* grid = new QGridLayout;
    const char* captions[] = {"Pipe / Tube Length:", "Pipe / Tube ID:", "Absolute Roughness:", "Density:", "Viscosity",
                              "Additional Losses:"};
    const char* tags[] = {"Length", "Diameter", "Roughness", "Density", "Viscosity", "Pressure Drop"};
    for (int i = 0; i < seg::kFields; ++i) {
        QLabel* caption = view().label(seg::Label1(i), captions[i]);
        if (i >= seg::Roughness && i <= seg::Viscosity)
            caption->setToolTip("Dbl-Click Here to Apply Value to Remaining Segments");
        QLineEdit* field = view().field(seg::txtData(i));
        caption->setBuddy(field);
        grid->addWidget(caption, i, 0);
        grid->addWidget(field, i, 1);
        grid->addWidget(view().unitList(seg::cboUnits(i), tags[i]), i, 2);
    }
    const auto tableButton = [this](int index) {
        QPushButton* button = view().button(seg::cmdTable(index), "...");
        button->setFixedWidth(32);
        return button;
    };
    grid->addWidget(tableButton(seg::PipeTable), seg::Diameter, 3);
    grid->addWidget(tableButton(seg::RoughnessTable), seg::Roughness, 3);
    auto* constants = new QHBoxLayout;
    // The constants and the line number as wide as their texts, no wider.
    const auto narrow = [this](QLineEdit* field) {
        narrowFields_.push_back(field);
        return field;
    };
    for (int k = 0; k < 3; ++k) {
        QLineEdit* constant = narrow(view().field(seg::txtDisplay(k)));
        constant->setAccessibleName(QString("K%1").arg(k + 1)); // the caption names all three
        constants->addWidget(constant);
    }
    constants->addStretch();
    grid->addWidget(new QLabel("K1, K2, K3:"), seg::kFields, 0);
    grid->addLayout(constants, seg::kFields, 1, 1, 2);
    grid->addWidget(tableButton(seg::MinorLossTable), seg::kFields, 3);
    QPushButton* properties = view().button(seg::cmdTable(seg::PhysicalProperties), "Get Physical Properties");
    grid->addWidget(properties, seg::kFields + 1, 1, 1, 2);

    auto* lineRow = new QHBoxLayout;
    auto* lineCaption = new QLabel("Pipe / Tube Number:");
    QLineEdit* line = narrow(view().field(seg::txtLineNumber));
    lineCaption->setBuddy(line);
    scroll_ = new QScrollBar(Qt::Vertical, this);
    scroll_->setObjectName(QString::fromStdString(seg::scrLineNumber.name()));
    scroll_->setRange(-11, -1);
    scroll_->setPageStep(1);
    scroll_->setFixedHeight(line->sizeHint().height() + 10);
    connect(scroll_, &QScrollBar::valueChanged, this, [this](int value) {
        if (!drawing_)
            view().guard([&] { model_.choose(seg::scrLineNumber, value); });
    });
    lineRow->addWidget(lineCaption);
    lineRow->addWidget(line);
    lineRow->addWidget(scroll_);
    lineRow->addStretch();

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(view().button(seg::cmdReset, "Reset Pipe Segment Input Fields"));
    buttons->addStretch();
    QPushButton* ok = view().button(seg::cmdOK, "OK");
    ok->setDefault(true);
    buttons->addWidget(ok);
    onCancel = [&model] { model.cmdOK_Click(); };
    onShow = [&model] { model.Form_Activate(); };
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(lineRow);
    layout->addLayout(grid);
    layout->addLayout(buttons);
    view().compactLayouts();
}

void frmPumpSystemInput::renderDrawing()
{
    if (!narrowFields_.empty()) {
        for (QLineEdit* field : narrowFields_)
            field->setMaximumWidth(field->minimumWidth()); // known once the view has shown the field
        narrowFields_.clear();
        layout()->activate();
        adjustSize();
    }
    drawing_ = true;
    scroll_->setValue(model_.view().scrollValue);
    drawing_ = false;
}

} // namespace kestrova
