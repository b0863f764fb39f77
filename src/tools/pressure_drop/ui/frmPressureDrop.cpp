#include "tools/pressure_drop/ui/frmPressureDrop.h"

#include "tools/pressure_drop/model/pressure_drop_model.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace kestrova {

using namespace pressure_drop;

namespace {

constexpr const char* kCrossSectionStatus = "Circular Cross Section";
const std::array<const char*, 3> kSectionCaptions{"&Circular", "&Rectangular", "A&nnular"};
const std::array<const char*, 3> kSectionStatuses{kCrossSectionStatus, "Rectangular Cross Section",
                                                  "Annular Cross Section"};

QWidget* column(std::initializer_list<QWidget*> boxes)
{
    auto* holder = new QWidget;
    auto* layout = new QVBoxLayout(holder);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget* box : boxes)
        layout->addWidget(box);
    layout->addStretch();
    return holder;
}

QWidget* tabPage(QWidget* left, QWidget* right)
{
    auto* page = new QWidget;
    auto* layout = new QHBoxLayout(page);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(4);
    layout->addWidget(left, 1);
    layout->addWidget(right, 1);
    return page;
}

QWidget* buttonRow(std::initializer_list<QWidget*> widgets)
{
    auto* holder = new QWidget;
    auto* layout = new QHBoxLayout(holder);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget* w : widgets)
        layout->addWidget(w);
    layout->addStretch();
    return holder;
}

} // namespace

frmPressureDrop::frmPressureDrop(PressureDropModel& model, UserInterface& ui, QWidget* parent)
    : DocumentForm(model, ui, parent)
{
    setObjectName("frmPressureDrop");
    setWindowTitle(PressureDropModel::kTitle);
    QTabWidget* tabs = view().tabs(SSTab1);
    tabs->setParent(this);
    tabs->addTab(buildLiquidTab(), "&Liquid");
    tabs->addTab(buildGasTab(), "&Gas/Vapor");
    tabs->addTab(buildTwoPhaseTab(), "&Two-Phase");
    view().status(tabs, PressureDropModel::kStatusTitle);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(tabs);
    setMouseTracking(true);
    view().status(this, PressureDropModel::kStatusTitle);
    compactLayouts();
    render();
}

QGroupBox* frmPressureDrop::frame(int index, const QString& caption)
{
    QGroupBox* box = view().frame(Frame1(index), caption);
    const int kind = index % 3;
    view().status(box, kind == 0 ? "Fluid Data Input" : kind == 1 ? "Pipe/Tube Data Input" : "Calculated Results");
    return box;
}

QPushButton* frmPressureDrop::tableButton(int index)
{
    QPushButton* button = view().button(cmdTable(index), "...");
    button->setFixedWidth(32);
    return button;
}

void frmPressureDrop::fieldRow(QGridLayout* grid, int row, const QString& label, int field, int button, int labelIndex)
{
    QLabel* caption = labelIndex >= 0 ? view().label(Label1(labelIndex), label) : new QLabel(label);
    QLineEdit* edit = view().field(txtData(field));
    caption->setBuddy(edit);
    grid->addWidget(caption, row, 0);
    grid->addWidget(edit, row, 1);
    grid->addWidget(view().unitList(cboUnits(field), pressureDropField(field).kind->tag), row, 2);
    if (button >= 0)
        grid->addWidget(tableButton(button), row, 3);
}

void frmPressureDrop::displayRow(QGridLayout* grid, int row, const QString& label, int display, int button)
{
    QLineEdit* edit = view().field(txtDisplay(display));
    auto* caption = new QLabel(label);
    caption->setBuddy(edit);
    grid->addWidget(caption, row, 0);
    grid->addWidget(edit, row, 1, 1, 2); // a plain number has no unit list: it takes that column too
    if (button >= 0)
        grid->addWidget(tableButton(button), row, 3);
}

void frmPressureDrop::kRow(QGridLayout* grid, int row, int labelIndex, const std::array<int, 3>& fields, int button)
{
    QLabel* caption = view().label(Label1(labelIndex), "K1, K2, K3:");
    auto* box = new QHBoxLayout;
    for (size_t i = 0; i < fields.size(); ++i) {
        QLineEdit* edit = view().field(txtDisplay(fields[i]));
        edit->setAccessibleName(QString("K%1").arg(i + 1)); // the caption names all three
        box->addWidget(edit);
    }
    grid->addWidget(caption, row, 0);
    grid->addLayout(box, row, 1, 1, 2);
    grid->addWidget(tableButton(button), row, 3);
}

// The fluid's name, and below it the button that takes it from the
// physical properties tool.
void frmPressureDrop::fluidRow(QGridLayout* grid, int row, int tab)
{
    QLineEdit* name = view().field(tab == LiquidTab ? txtLiquid : txtGas);
    auto* caption = new QLabel("Fluid:");
    caption->setBuddy(name);
    grid->addWidget(caption, row, 0);
    grid->addWidget(name, row, 1, 1, 3);
    grid->addWidget(view().button(cmdProperties(tab), "Get Physical Properties"), row + 1, 1, 1, 3);
}

// The project and tag of the case, beside the reset button.
QWidget* frmPressureDrop::projectRows(int tab)
{
    auto* holder = new QWidget;
    auto* grid = new QGridLayout(holder);
    grid->addWidget(new QLabel("Project:"), 0, 0);
    grid->addWidget(view().field(txtProject(tab)), 0, 1);
    grid->addWidget(new QLabel("Tag/Line No.:"), 1, 0);
    grid->addWidget(view().field(txtTag(tab)), 1, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(view().button(cmdHelp(tab), "Help with Equations"));
    buttons->addWidget(resetButton(tab));
    grid->addLayout(buttons, 2, 1);
    return holder;
}

QWidget* frmPressureDrop::optionRow(const char* family, int first, const std::array<const char*, 3>& captions,
                                    const std::array<const char*, 3>& statuses, int count)
{
    auto* holder = new QWidget;
    auto* layout = new QHBoxLayout(holder);
    layout->setContentsMargins(0, 0, 0, 0);
    for (int i = 0; i < count; ++i) {
        QWidget* option = view().option({family, first + i}, captions[static_cast<size_t>(i)]);
        view().status(option, statuses[static_cast<size_t>(i)]);
        layout->addWidget(option);
    }
    layout->addStretch();
    return holder;
}

QPushButton* frmPressureDrop::resetButton(int tab)
{
    return view().button(cmdReset(tab), "Reset Input Fields");
}

QWidget* frmPressureDrop::buildLiquidTab()
{
    QGroupBox* fluid = frame(LiquidFluidFrame, "Fluid Data");
    auto* f = new QGridLayout(fluid);
    fieldRow(f, 0, "Flow Rate:", LiquidFlow, LiquidFlowConversion);
    fieldRow(f, 1, "Density (at T && P):", LiquidDensity);
    fieldRow(f, 2, "Viscosity (at T && P):", LiquidViscosity);
    fieldRow(f, 3, "Flowing Temperature:", LiquidTemperature);
    fluidRow(f, 4, LiquidTab);

    QGroupBox* pipe = frame(1, "Pipe/Tube Data");
    auto* p = new QGridLayout(pipe);
    p->addWidget(optionRow("optCrossSection", 0, kSectionCaptions, kSectionStatuses), 0, 0, 1, 4);
    fieldRow(p, 1, "Pipe/Tube Diameter:", LiquidDiameter, LiquidPipeTable, 3);
    fieldRow(p, 2, "Width of Conduit:", LiquidConduitWidth, LiquidOuterTable, 4);
    fieldRow(p, 3, "Height of Conduit:", LiquidConduitHeight, LiquidInnerTable, 7);
    fieldRow(p, 4, "Absolute Roughness:", LiquidRoughness, LiquidRoughnessTable);
    fieldRow(p, 5, "Elevation Change:", ElevationChange);
    fieldRow(p, 6, "Straight Length:", LiquidLength);
    kRow(p, 7, 9, {LiquidK1, LiquidK2, LiquidK3}, LiquidMinorLossTable);

    QGroupBox* results = frame(LiquidResultsFrame, "Calculated Results");
    auto* r = new QGridLayout(results);
    fieldRow(r, 0, "Flow Velocity:", LiquidVelocity);
    fieldRow(r, 1, "Pressure Drop:", LiquidPressureDrop);
    displayRow(r, 2, "Reynold's Number (Re):", LiquidReynolds);
    displayRow(r, 3, "Fluid Flow Regime:", LiquidRegime);
    displayRow(r, 4, "Friction Factor (fd):", LiquidFriction);
    return tabPage(column({fluid, pipe}), column({results, projectRows(LiquidTab)}));
}

QWidget* frmPressureDrop::buildGasTab()
{
    QGroupBox* fluid = frame(GasFluidFrame, "Fluid Data");
    auto* f = new QGridLayout(fluid);
    fieldRow(f, 0, "Flow Rate:", GasFlow, GasFlowConversion);
    fieldRow(f, 1, "Inlet Pressure:", InletPressure);
    fieldRow(f, 2, "Inlet Temperature:", InletTemperature);
    fieldRow(f, 3, "Viscosity (at T && P):", GasViscosity);
    displayRow(f, 4, "Molecular Weight:", MolecularWeight);
    displayRow(f, 5, "Compressibility, Z:", Compressibility, CompressibilityTool);
    displayRow(f, 6, "k, Cp/Cv:", HeatCapacityRatio, HeatCapacityRatioTool);
    fluidRow(f, 7, GasTab);

    auto* calcType = new QGroupBox("Calculation Type");
    calcType->setObjectName("Frame2(0)");
    view().status(calcType, "Calculation Type");
    auto* c = new QHBoxLayout(calcType);
    c->addWidget(optionRow("optCalcType", 0, {"A&diabatic", "&Isothermal", ""},
                           {"Generally for short, insulated lines", "Generally for long, uninsulated lines", ""}, 2));

    QGroupBox* pipe = frame(4, "Pipe/Tube Data");
    auto* p = new QGridLayout(pipe);
    p->addWidget(optionRow("optCrossSection", 3, kSectionCaptions, kSectionStatuses), 0, 0, 1, 4);
    fieldRow(p, 1, "Pipe/Tube Diameter:", GasDiameter, GasPipeTable, 19);
    fieldRow(p, 2, "Width:", GasConduitWidth, GasOuterTable, 43);
    fieldRow(p, 3, "Height:", GasConduitHeight, GasInnerTable, 52);
    fieldRow(p, 4, "Absolute Roughness:", GasRoughness, GasRoughnessTable);
    fieldRow(p, 5, "Straight Length:", GasLength);
    kRow(p, 6, 28, {GasK1, GasK2, GasK3}, GasMinorLossTable);

    QGroupBox* results = frame(GasResultsFrame, "Calculated Results");
    auto* r = new QGridLayout(results);
    fieldRow(r, 0, "Inlet Density:", InletDensity);
    fieldRow(r, 1, "Exit Density:", ExitDensity);
    fieldRow(r, 2, "Inlet Velocity:", InletVelocity);
    fieldRow(r, 3, "Exit Velocity:", ExitVelocity);
    fieldRow(r, 4, "Sonic Velocity:", SonicVelocity);
    fieldRow(r, 5, "Exit Pressure:", ExitPressure);
    fieldRow(r, 6, "Exit Temperature:", ExitTemperature);
    fieldRow(r, 7, "Pressure Drop:", GasPressureDrop);
    displayRow(r, 8, "Reynold's Number (Re):", GasReynolds);
    displayRow(r, 9, "Friction Factor (fd):", GasFriction);
    displayRow(r, 10, "Mach Number, Inlet:", InletMach);
    displayRow(r, 11, "Mach Number, Outlet:", OutletMach);
    return tabPage(column({fluid, pipe}), column({calcType, results, projectRows(GasTab)}));
}

QWidget* frmPressureDrop::buildTwoPhaseTab()
{
    QGroupBox* fluid = frame(6, "Fluid Data");
    auto* f = new QGridLayout(fluid);
    f->addWidget(new QLabel("<b>Liquid</b>"), 0, 0);
    fieldRow(f, 1, "Flow Rate:", TwoPhaseLiquidFlow, TwoPhaseLiquidFlowConversion);
    fieldRow(f, 2, "Density:", TwoPhaseLiquidDensity);
    fieldRow(f, 3, "Viscosity (at T && P):", TwoPhaseLiquidViscosity);
    fieldRow(f, 4, "Surface Tension:", SurfaceTension);
    f->addWidget(new QLabel("<b>Vapor</b>"), 5, 0);
    fieldRow(f, 6, "Flow Rate:", TwoPhaseVaporFlow, TwoPhaseVaporFlowConversion);
    fieldRow(f, 7, "Density:", TwoPhaseVaporDensity, GasDensityTool);
    fieldRow(f, 8, "Viscosity (at T && P):", TwoPhaseVaporViscosity);
    fieldRow(f, 9, "Flowing Temperature:", TwoPhaseTemperature);
    // The liquid's rows and the vapor's have the same captions: a screen reader says whose.
    const std::pair<int, const char*> phaseRows[] = {
        {TwoPhaseLiquidFlow, "Liquid Flow Rate"}, {TwoPhaseLiquidDensity, "Liquid Density"},
        {TwoPhaseLiquidViscosity, "Liquid Viscosity (at T & P)"}, {TwoPhaseVaporFlow, "Vapor Flow Rate"},
        {TwoPhaseVaporDensity, "Vapor Density"}, {TwoPhaseVaporViscosity, "Vapor Viscosity (at T & P)"}};
    for (const auto& [field, name] : phaseRows)
        view().widgetOf(txtData(field))->setAccessibleName(name);
    f->addWidget(view().label(lblTwoPhaseFluids, QString()), 10, 0, 1, 2);
    QPushButton* liquidProps = view().button(cmdProperties(2), "Liquid Properties");
    liquidProps->setToolTip("Get Physical Properties");
    QPushButton* gasProps = view().button(cmdProperties(3), "Vapor Properties");
    gasProps->setToolTip("Get Physical Properties");
    f->addWidget(buttonRow({liquidProps, gasProps}), 11, 0, 1, 4);

    QGroupBox* pipe = frame(7, "Pipe/Tube Data");
    auto* p = new QGridLayout(pipe);
    auto* orientation = new QGroupBox("Pipe Orientation");
    orientation->setObjectName("Frame2(1)");
    view().status(orientation, "Pipe Orientation");
    auto* o = new QHBoxLayout(orientation);
    o->addWidget(optionRow("optOrientation", 0, {"&Horizontal", "&Upflow", "&Downflow"},
                           {"Pipe Orientation", "Pipe Orientation", "Pipe Orientation"}));
    p->addWidget(orientation, 0, 0, 1, 4);
    fieldRow(p, 1, "Straight Length:", TwoPhaseLength);
    fieldRow(p, 2, "Absolute Roughness:", TwoPhaseRoughness, TwoPhaseRoughnessTable);
    fieldRow(p, 3, "Pipe/Tube Diameter:", TwoPhaseDiameter, TwoPhasePipeTable);

    QGroupBox* results = frame(TwoPhaseResultsFrame, "Calculated Results");
    auto* r = new QGridLayout(results);
    fieldRow(r, 0, "Liquid Velocity:", TwoPhaseLiquidVelocity);
    fieldRow(r, 1, "Vapor Velocity:", TwoPhaseVaporVelocity);
    fieldRow(r, 2, "Avg Density:", AverageDensity);
    fieldRow(r, 3, "Avg Viscosity:", AverageViscosity);
    fieldRow(r, 4, "Avg Velocity:", AverageVelocity);
    fieldRow(r, 5, "Pressure Drop:", TwoPhasePressureDrop);
    displayRow(r, 6, "Liquid Reynold's No.:", TwoPhaseLiquidReynolds);
    displayRow(r, 7, "Vapor Reynold's No.:", TwoPhaseVaporReynolds);
    displayRow(r, 8, "Liquid Flow Regime:", TwoPhaseLiquidRegime);
    displayRow(r, 9, "Vapor Flow Regime:", TwoPhaseVaporRegime);
    displayRow(r, 10, "Flow Regime:", TwoPhaseRegime, RegimeMap);
    return tabPage(column({fluid, projectRows(TwoPhaseTab)}), column({pipe, results}));
}

} // namespace kestrova
