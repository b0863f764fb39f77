#include "tools/properties/ui/property_dialogs.h"

#include "forms/ui/accessible_names.h"
#include "forms/ui/exception_barrier.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace kestrova {

// --- Physical properties ------------------------------------------------------------

frmPhysicalProperties::frmPhysicalProperties(PhysicalPropertiesModel& model, UserInterface& ui, QWidget* parent)
    : ToolDialog(model, ui, "frmPhysicalProperties", "Physical Properties", parent), model_(model)
{
    using namespace physical_properties;
    QLineEdit* search = view().field(txtSearch);
    search->setPlaceholderText("Type to find a compound");
    dbcComp_ = new QListWidget(this);
    dbcComp_->setObjectName(QString::fromStdString(dbcComp.name()));
    dbcComp_->setUniformItemSizes(true);
    for (const Compound& c : model.compounds())
        dbcComp_->addItem(QString::fromStdString(c.name));
    connect(dbcComp_, &QListWidget::currentRowChanged, this, [this](int row) {
        if (!drawing_ && row >= 0)
            view().guard([&] { model_.choose(dbcComp, row); });
    });
    dbcComp_->setAccessibleName("Compounds");
    auto* caption = new QLabel("Compound:");
    caption->setBuddy(search);
    auto* left = new QVBoxLayout;
    left->addWidget(caption);
    left->addWidget(search);
    left->addWidget(dbcComp_);

    QHBoxLayout* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(view().button(cmdSelect, "&Select"));
    buttons->addWidget(view().button(cmdClose, "&Close"));
    onCancel = [&model] { model.cmdClose_Click(); };
    onShow = [&model, search] {
        model.Form_Activate();
        search->setFocus();
    };
    auto* right = new QVBoxLayout;
    right->addWidget(propertiesFrame());
    right->addLayout(buttons);
    auto* layout = new QHBoxLayout(this);
    layout->addLayout(left, 1);
    layout->addLayout(right, 2);
    resize(780, 460);
}

// The rows of properties, each with its unit list and, for the correlations,
// the limits of their temperature.
QGroupBox* frmPhysicalProperties::propertiesFrame()
{
    using namespace physical_properties;
    QGroupBox* frame = view().frame(physical_properties::propertiesFrame, "Physical Properties");
    auto* grid = new QGridLayout(frame);
    grid->addWidget(new QLabel("Low T"), 0, 3);
    grid->addWidget(new QLabel("High T"), 0, 4);
    for (int row = 0; row < kRows; ++row) {
        QLineEdit* field = view().field(txtPhysProp(row));
        auto* caption = new QLabel(PhysicalPropertiesModel::rowCaption(row));
        caption->setBuddy(field);
        grid->addWidget(caption, row + 1, 0);
        grid->addWidget(field, row + 1, 1);
        grid->addWidget(view().unitList(cboPPUnits(row), PhysicalPropertiesModel::rowUnitTag(row)), row + 1, 2);
        if (row < 6) {
            for (const Control& limit : {txtLTL(row), txtUTL(row)}) {
                const bool low = limit.family == "txtLTL";
                QLineEdit* edge = view().field(limit);
                edge->setAccessibleName(spokenCaption(caption->text()) + (low ? ", Low T" : ", High T"));
                grid->addWidget(edge, row + 1, low ? 3 : 4);
            }
        }
    }
    grid->addWidget(new QLabel("Molecular Weight:"), 11, 0);
    grid->addWidget(view().field(txtMW), 11, 1);
    grid->addWidget(new QLabel("Acentric Factor:"), 12, 0);
    grid->addWidget(view().field(txtAF), 12, 1);
    grid->setRowStretch(13, 1);
    return frame;
}

// The compound list follows the model's position; Select is the default
// button while a tool asks for properties.
void frmPhysicalProperties::renderDrawing()
{
    drawing_ = true;
    dbcComp_->setCurrentRow(model_.view().position);
    drawing_ = false;
    dbcComp_->scrollToItem(dbcComp_->currentItem());
    if (auto* select = findChild<QPushButton*>("cmdSelect"))
        select->setDefault(model_.view().cmdSelect.enabled);
}

// --- Compressibility factor -----------------------------------------------------------

frmCompressFactor::frmCompressFactor(CompressFactorModel& model, UserInterface& ui, QWidget* parent)
    : UnitFieldDialog(model, ui, "frmCompressFactor", "Compressibility Factor", parent)
{
    using namespace compress_factor;
    QGroupBox* inputs = fieldRows("Inputs",
                                  {{"System Temperature:", Temperature, "Temperature"},
                                   {"System Pressure:", Pressure, "Pressure"},
                                   {"Critical Temperature:", CriticalTemperature, "Temperature"},
                                   {"Critical Pressure:", CriticalPressure, "Pressure"},
                                   {"Acentric Factor:", AcentricFactor},
                                   {"Compressibility, Z:", Z}},
                                  inputsFrame);
    auto* eos = new QGroupBox("Equation of State", this);
    auto* e = new QVBoxLayout(eos);
    const char* captions[] = {"Redlich-Kwong", "Soave-Redlich-Kwong", "Peng-Robinson"};
    for (int i = 0; i < 3; ++i)
        e->addWidget(view().option(optEOS(i), captions[i]));
    e->addWidget(view().check(chkHydrogen, "Hydrogen"));

    auto* top = new QHBoxLayout;
    top->addWidget(inputs);
    top->addWidget(eos);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addLayout(buttonRow(true));
    onShow = [&model] { model.Form_Activate(); };
}

// --- Heat capacity ratio ----------------------------------------------------------------

frmHeatCapRatio::frmHeatCapRatio(HeatCapRatioModel& model, UserInterface& ui, QWidget* parent)
    : UnitFieldDialog(model, ui, "frmHeatCapRatio", "Heat Capacity Ratio", parent)
{
    using namespace heat_cap_ratio;
    QGroupBox* realGas = fieldRows("Real Gas Calculation",
                                   {{"System Temperature:", Temperature, "Temperature"},
                                    {"System Pressure:", Pressure, "Pressure"},
                                    {"Critical Temperature:", CriticalTemperature, "Temperature"},
                                    {"Critical Pressure:", CriticalPressure, "Pressure"},
                                    {"Heat Capacity, Cpv:", HeatCapacity, "Heat Capacity"},
                                    {"k = Cp/Cv:", Ratio}},
                                   realGasFrame);
    QLabel* checkInput = view().label(lblError, "(Check Input)");
    checkInput->setStyleSheet("color: rgb(255, 0, 0);");
    grid(realGas)->addWidget(checkInput, Ratio, 2);

    auto* typical = new QGroupBox("Approximate k = Cp/Cv Values at Standard Temperature / Pressure", this);
    auto* t = new QGridLayout(typical);
    for (int i = 0; i < kOptions; ++i)
        t->addWidget(view().option(Option1(i), typicalRatios()[static_cast<size_t>(i)].caption), i % 9, i / 9);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(realGas);
    layout->addWidget(typical);
    layout->addLayout(buttonRow(true));
    onShow = [&model] { model.Form_Activate(); };
}

} // namespace kestrova
