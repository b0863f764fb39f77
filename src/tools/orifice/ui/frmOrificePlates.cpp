#include "tools/orifice/ui/frmOrificePlates.h"

#include "forms/model/user_interface.h"
#include "tools/orifice/model/orifice_model.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>

namespace kestrova {

using namespace orifice;

// A sketch of the plate in its pipe with the two pressure taps of the style.
class TapSketch : public QWidget {
public:
    explicit TapSketch(QWidget* parent = nullptr) : QWidget(parent) { setMinimumSize(110, 52); }
    void setTap(int tap)
    {
        tap_ = tap;
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter p(this);
        p.setRenderHint(QPainter::Antialiasing);
        // The pipe between its walls, the plate across its middle, and the
        // two taps above it at their distances from the plate.
        const int w = width(), h = height();
        const int top = h / 3, bottom = h - 4, mid = w / 2, D = bottom - top;
        p.setPen(QPen(QColor(40, 60, 90), 2));
        p.drawLine(4, top, w - 4, top);
        p.drawLine(4, bottom, w - 4, bottom);
        p.fillRect(QRect(mid - 2, top, 4, D / 3), QColor(40, 60, 90));
        p.fillRect(QRect(mid - 2, bottom - D / 3, 4, D / 3), QColor(40, 60, 90));
        // Tap positions upstream and downstream, as a share of the pipe diameter.
        const double spacing[3][2] = {{0.5, 0.5}, {1.0, 0.5}, {0.08, 0.08}};
        p.setPen(QPen(QColor(200, 40, 40), 2));
        for (int side = 0; side < 2; ++side) {
            const int x = mid + static_cast<int>((side == 0 ? -1 : 1) * (spacing[tap_][side] * D + 3));
            p.drawLine(x, top, x, top - h / 4);
        }
    }

private:
    int tap_ = 0;
};

frmOrificePlates::frmOrificePlates(OrificeModel& model, UserInterface& ui, QWidget* parent)
    : DocumentForm(model, ui, parent), model_(model)
{
    setObjectName("frmOrificePlates");
    setWindowTitle(OrificeModel::kTitle);
    QTabWidget* tabs = view().tabs(SSTab1);
    tabs->addTab(buildTab(LiquidTab), "&Liquid Flow");
    tabs->addTab(buildTab(GasTab), "&Vapor/Gas Flow");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(tabs);
    setMouseTracking(true);
    view().status(this, "Orifice Plate Pressure Drop Calculations");
    view().status(tabs, "Orifice Plate Pressure Drop Calculations");
    compactLayouts();
    render();
}

void frmOrificePlates::renderDrawing()
{
    for (int t = 0; t < 2; ++t)
        imgMeter_[static_cast<size_t>(t)]->setTap(model_.view().meterTap[static_cast<size_t>(t)]);
}

QGroupBox* frmOrificePlates::frame(int index, const QString& caption, const QString& status)
{
    QGroupBox* box = view().frame(Frame1(index), caption);
    view().status(box, status);
    return box;
}

QLineEdit* frmOrificePlates::fieldRow(QGridLayout* grid, int row, const QString& label, int field, QWidget* button)
{
    QLineEdit* edit = view().field(txtData(field));
    auto* caption = new QLabel(label);
    caption->setBuddy(edit);
    grid->addWidget(caption, row, 0);
    grid->addWidget(edit, row, 1);
    grid->addWidget(view().unitList(cboUnits(field), orificeField(field).kind->tag), row, 2);
    if (button)
        grid->addWidget(button, row, 3);
    return edit;
}

QLineEdit* frmOrificePlates::displayRow(QGridLayout* grid, int row, const QString& label, int display, QWidget* button)
{
    QLineEdit* edit = view().field(txtDisplay(display));
    auto* caption = new QLabel(label);
    caption->setBuddy(edit);
    grid->addWidget(caption, row, 0);
    grid->addWidget(edit, row, 1, 1, 2); // a plain number has no unit list: it takes that column too
    if (button)
        grid->addWidget(button, row, 3);
    return edit;
}

QComboBox* frmOrificePlates::materialList(const Control& control)
{
    QStringList names;
    for (const OrificeModel::Material& m : OrificeModel::materials())
        names << m.name;
    return view().list(control, names);
}

QPushButton* frmOrificePlates::tableButton(int index, const QString& tip)
{
    QPushButton* button = view().button(cmdTable(index), "...");
    button->setToolTip(tip);
    button->setFixedWidth(32);
    return button;
}

// Properties: flow, differential pressure, temperature, the gas tab's inlet
// pressure, density, viscosity, the gas tab's k, the properties button,
// project and tag.
QGroupBox* frmOrificePlates::propertiesFrame(int t)
{
    const bool gas = t == GasTab;
    const int g = kFirstField[static_cast<size_t>(t)];
    const int p = gas ? GasDensity : LiquidDensity;
    QGroupBox* props = frame(kPropertiesFrame[static_cast<size_t>(t)], "Properties", "Fluid Data Input");
    auto* pr = new QGridLayout(props);
    fieldRow(pr, 0, "&Flow Rate:", g);
    fieldRow(pr, 1, "&Differential Pressure:", g + 1);
    fieldRow(pr, 2, "Temperature:", g + 3);
    int row = 3;
    if (gas)
        fieldRow(pr, row++, "Pressure:", InletPressure);
    fieldRow(pr, row++, gas ? "Density:" : "Density (at T&& P):", p,
             gas ? tableButton(GasDensityTool, "Compute Vapor/Gas Desity") : nullptr);
    fieldRow(pr, row++, "Viscosity (at T && P):", p + 1);
    if (gas)
        displayRow(pr, row++, "k, Cp/Cv:", HeatCapacityRatio, tableButton(HeatCapacityRatioTool, "Compute k"))
            ->setToolTip("Average Cp / Cv (Inlet)");
    pr->addWidget(view().button(cmdProperties(t), "Get Physical Properties"), row++, 1, 1, 2);
    pr->addWidget(new QLabel("Project:"), row, 0);
    pr->addWidget(view().field(txtProject(t)), row++, 1, 1, 3);
    pr->addWidget(new QLabel("Tag/Line No.:"), row, 0);
    pr->addWidget(view().field(txtTag(t)), row++, 1, 1, 3);
    return props;
}

// Compute and Pressure Taps: the options of the tab, with the sketch of the taps.
QWidget* frmOrificePlates::optionFrames(int t)
{
    const bool gas = t == GasTab;
    QGroupBox* compute = frame(gas ? 7 : 3, "Compute", "Computation Method");
    auto* c = new QVBoxLayout(compute);
    const char* computeTips[] = {"Solve for Flow Rate", "Solve for Orifice Differential Pressure", "Solve for Orifice Diameter"};
    for (int i = 0; i < 3; ++i) {
        QRadioButton* option = view().option(optCompute(3 * t + i), OrificeModel::computeCaptions()[static_cast<size_t>(i)]);
        option->setToolTip(computeTips[i]);
        c->addWidget(option);
    }
    // The sketch of the taps under their options, so that both frames stand side by side.
    QGroupBox* taps = frame(gas ? 6 : 2, "Pressure Taps", "Pressure Tap Style");
    auto* tp = new QVBoxLayout(taps);
    for (int i = 0; i < 3; ++i)
        tp->addWidget(view().option(optMeterTap(3 * t + i), OrificeModel::tapCaptions()[static_cast<size_t>(i)]));
    auto* sketch = new TapSketch;
    sketch->setObjectName(QString("imgMeter(%1)").arg(t));
    imgMeter_[static_cast<size_t>(t)] = sketch;
    tp->addWidget(sketch, 1);
    auto* holder = new QWidget;
    auto* options = new QHBoxLayout(holder);
    options->setContentsMargins(0, 0, 0, 0);
    options->addWidget(compute);
    options->addWidget(taps, 1);
    return holder;
}

QGroupBox* frmOrificePlates::elementFrame(int t)
{
    const bool gas = t == GasTab;
    const int p = gas ? GasDensity : LiquidDensity;
    QGroupBox* element = frame(gas ? 8 : 4, "Element Data", "Orifice Data Input");
    auto* el = new QGridLayout(element);
    fieldRow(el, 0, "&Orifice Diameter:", kFirstField[static_cast<size_t>(t)] + 2);
    fieldRow(el, 1, "Temp Ref:", p + 2)->setToolTip("T at which Orifice Diameter Measured");
    fieldRow(el, 2, gas ? "Drain Hole:" : "Vent Hole:", p + 3);
    el->addWidget(new QLabel("Material:"), 3, 0);
    el->addWidget(materialList(cboElementMaterial(t)), 3, 1, 1, 2);
    fieldRow(el, 4, "Expan Coef:", kElementExpansionField[static_cast<size_t>(t)])->setToolTip("Material Expansion Coefficient");
    return element;
}

QGroupBox* frmOrificePlates::pipeFrame(int t)
{
    const bool gas = t == GasTab;
    QGroupBox* pipe = frame(gas ? 9 : 1, "Pipe Data", "Pipe/Tube Data Input");
    auto* pi = new QGridLayout(pipe);
    fieldRow(pi, 0, "Pipe ID:", gas ? GasPipeID : LiquidPipeID,
             tableButton(gas ? GasPipeTable : LiquidPipeTable, "Pipe/Tube Diameter Table"))
        ->setToolTip("Inside Diameter");
    pi->addWidget(new QLabel("Material:"), 1, 0);
    pi->addWidget(materialList(cboPipeMaterial(t)), 1, 1, 1, 2);
    fieldRow(pi, 2, "Expan Coef:", kPipeExpansionField[static_cast<size_t>(t)]);
    return pipe;
}

QGroupBox* frmOrificePlates::outputFrame(int t)
{
    const bool gas = t == GasTab;
    const int p = gas ? GasDensity : LiquidDensity;
    const int d = gas ? GasBeta : LiquidBeta;
    QGroupBox* output = frame(gas ? 11 : 5, "Output", "Calculated Results");
    auto* out = new QGridLayout(output);
    QLineEdit* beta = displayRow(out, 0, "Beta Ratio, d / D:", d);
    if (!gas)
        beta->setToolTip("Generally:  0.1 <= Beta (d/D) <= 0.75");
    displayRow(out, 1, "Discharge Coefficient, C:", d + 1);
    displayRow(out, 2, "Reynold's Number, D:", d + 2)->setToolTip("Re in the Pipe");
    displayRow(out, 3, "Reynold's Number, d:", d + 3)->setToolTip("Re through the Orifice");
    int row = 4;
    if (gas) {
        displayRow(out, row++, "Gas Expansion Factor:", ExpansionFactor);
        displayRow(out, row++, "Pressure Ratio:", PressureRatio)->setToolTip("P2/P1");
    }
    displayRow(out, row++, "Minor Loss, K:", gas ? GasMinorLoss : LiquidMinorLoss)
        ->setToolTip("Minor fitting loss Coefficient");
    fieldRow(out, row++, "Velocity, D:", p + 7);
    fieldRow(out, row++, "Velocity, d:", p + 8);
    fieldRow(out, row++, "Pressure Loss:", p + 9)->setToolTip("Permanent Pressure Loss");
    QLabel* message = view().message(gas ? txtErrorGas : txtErrorLiquid); // a long warning wraps
    message->setToolTip("Computation Errors");
    out->addWidget(new QLabel("Message:"), row, 0);
    out->addWidget(message, row, 1, 1, 3);
    return output;
}

QLayout* frmOrificePlates::commandRow(int t)
{
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(view().button(cmdReset(t), "Reset Input Fields"));
    auto* guides = new QPushButton("&Guidelines");
    guides->setObjectName(QString("cmdGuidelines(%1)").arg(t));
    guides->setAutoDefault(false);
    guides->setToolTip("View Orifice Plate Guidelines");
    connect(guides, &QPushButton::clicked, this, [this] {
        view().guard([this] {
            frmOrificeGuides dialog(ui_, this);
            dialog.exec();
        });
    });
    buttons->addWidget(guides);
    QPushButton* help = view().button(cmdHelp(t), "Help with Equations");
    help->setAutoDefault(false);
    buttons->addWidget(help);
    buttons->addStretch();
    return buttons;
}

QWidget* frmOrificePlates::buildTab(int t)
{
    auto* left = new QVBoxLayout;
    left->addWidget(propertiesFrame(t));
    left->addWidget(elementFrame(t));
    left->addWidget(pipeFrame(t));
    left->addStretch();
    auto* right = new QVBoxLayout;
    right->addWidget(optionFrames(t));
    right->addWidget(outputFrame(t));
    right->addLayout(commandRow(t));
    right->addStretch();
    auto* page = new QWidget;
    auto* layout = new QHBoxLayout(page);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(4);
    layout->addLayout(left, 1);
    layout->addLayout(right, 1);
    return page;
}

// --- Guidelines ----------------------------------------------------------------------------

namespace {

QTableWidget* guideTable(const QStringList& headings, const std::vector<QStringList>& rows)
{
    auto* table = new QTableWidget(static_cast<int>(rows.size()), static_cast<int>(headings.size()));
    table->setHorizontalHeaderLabels(headings);
    table->verticalHeader()->setVisible(false);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionMode(QAbstractItemView::NoSelection);
    table->setFocusPolicy(Qt::NoFocus);
    for (int r = 0; r < static_cast<int>(rows.size()); ++r)
        for (int c = 0; c < headings.size(); ++c) {
            auto* item = new QTableWidgetItem(rows[static_cast<size_t>(r)][c]);
            item->setTextAlignment(Qt::AlignCenter);
            table->setItem(r, c, item);
        }
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 8);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const int height = table->horizontalHeader()->sizeHint().height() + table->verticalHeader()->length() +
                       2 * table->frameWidth();
    table->setFixedHeight(height);
    return table;
}

} // namespace

frmOrificeGuides::frmOrificeGuides(UserInterface& ui, QWidget* parent) : QDialog(parent)
{
    setObjectName("frmOrificeGuides");
    setWindowTitle("Orifice Plate Guidelines");
    ui.setStatusText("Typical Orifice Plate Data");
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel("<b>Minimum Orifice Plate Thickness</b>"));
    layout->addWidget(guideTable({"Pipe Size, in (mm)", "Minimum Plate Thickness, in (mm)"},
                                 {{"Up to 4 (100)", "1/16 (1.6)"},
                                  {"4 to 16 (100 to 400)", "1/8 (3.2)"},
                                  {"16 and Greater (400)", "1/4 (6.4)"}}));
    layout->addWidget(new QLabel("<b>Recommended Orifice Plate Thickness</b>"));
    layout->addWidget(guideTable({"Pipe Size, in (mm)", "Thickness, in (mm) below 600 F (315 C)",
                                  "Thickness, in (mm) above 600 F (315 C)"},
                                 {{"Up to 3 (76)", "3/32 (2.4)", "1/4 (6.4)"},
                                  {"4 to 6 (100 to 150)", "5/32 (4)", "3/8 (9.5)"},
                                  {"6 to 8 (150 to 200)", "1/4 (6.4)", "1/2 (12.7)"},
                                  {"8 and Greater (200)", "3/8 (9.5)", "1/2 to 3/4 (12.7 to 19)"}}));
    layout->addWidget(new QLabel("<b>Recommended Drain/Vent Hole Sizes</b>"));
    layout->addWidget(guideTable({"Orifice Diameter, in (mm)", "Hole Diameter, in (mm)"},
                                 {{"1 - 3 1/2 (25 - 89)", "3/32 (2.4)"},
                                  {"3 1/2 - 4 1/8 (89 - 105)", "1/8 (3.2)"},
                                  {"4 1/8 - 5 (105 - 127)", "5/32 (4)"},
                                  {"5 - 6 (127 - 152)", "3/16 (4.8)"},
                                  {"6 - 6 3/4 (152 - 171)", "7/32 (5.6)"},
                                  {"6 3/4 - 7 1/2 (171 - 191)", "1/4 (6.4)"},
                                  {"7 1/2 - 8 3/8 (191 - 213)", "9/32 (7.1)"},
                                  {"8 3/8 - 9 1/4 (213 - 235)", "5/16 (7.9)"},
                                  {"9 1/4 - 10 (235 - 254)", "11/32 (8.7)"},
                                  {"10 - 10 7/8 (254 - 276)", "3/8 (9.5)"},
                                  {"10 7/8 - 11 5/8 (276 - 295)", "13/32 (10.3)"},
                                  {"11 5/8 - 12 1/2 (295 - 318)", "7/16 (11.1)"},
                                  {"12 1/2 - 13 1/4 (318 - 337)", "15/32 (11.9)"},
                                  {"13 1/4 and Up (337 +)", "1/2 (12.7)"}}));
    auto* ok = new QPushButton("OK");
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    layout->addWidget(ok, 0, Qt::AlignRight);
    resize(760, sizeHint().height());
}

} // namespace kestrova
