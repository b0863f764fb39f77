#include "tools/flow/ui/flow_dialogs.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace kestrova {

frmFlowConversions::frmFlowConversions(FlowConversionsModel& model, UserInterface& ui, QWidget* parent)
    : ToolDialog(model, ui, "frmFlowConversions", "Flow Conversions", parent)
{
    using namespace flow_conversions;
    view().status(this, "Common Flow Conversions");
    auto* conversions = new QGroupBox("Conversion", this);
    view().status(conversions, "Flow Conversion to Perform");
    auto* c = new QGridLayout(conversions);
    for (int i = 0; i < 6; ++i)
        c->addWidget(view().option(optConversion(i), QString()), i / 2, i % 2);

    auto* data = new QGroupBox("Input and Output Data", this);
    view().status(data, "Input and Output Data");
    auto* d = new QGridLayout(data);
    const char* captions[] = {"Specific Gravity:", "Molecular Weight:", "Flowing Temperature:", "Flowing Pressure:",
                              "Standard Volume Flow:", "Actual Volume Flow:", "Liquid Volume Flow:", "Mass Flow:"};
    for (int i = 0; i < kFields; ++i) {
        QLineEdit* field = view().field(txtData(i));
        auto* caption = new QLabel(captions[i], data);
        caption->setBuddy(field);
        d->addWidget(caption, i, 0);
        d->addWidget(field, i, 1);
        if (i >= FlowingTemperature)
            d->addWidget(view().label(Control{kUnitLabels[static_cast<size_t>(i - FlowingTemperature)]}, QString()), i, 2);
    }

    QGroupBox* stp = view().frame(stpFrame, "Standard Temperature/Pressure");
    view().status(stp, "STP Condition to Use");
    auto* s = new QVBoxLayout(stp);
    const char* stpCaptions[] = {"STP:  60 °F, 1 atm", "NTP:  0 °C (32 °F), 1 atm", "API:  15 °C  (59 °F), 1 atm"};
    for (int i = 0; i < 3; ++i)
        s->addWidget(view().option(optSTP(i), stpCaptions[i]));
    auto* units = new QGroupBox("Units", this);
    view().status(units, "System of Units to Use");
    auto* u = new QVBoxLayout(units);
    const char* unitCaptions[] = {"American Engineering Units", "Metric Units"};
    for (int i = 0; i < 2; ++i)
        u->addWidget(view().option(optUnits(i), unitCaptions[i]));

    onCancel = [&model] { model.cmdCancel_Click(); };
    auto* right = new QVBoxLayout;
    right->addWidget(stp);
    right->addWidget(units);
    right->addStretch();
    right->addWidget(view().button(cmdApply, "&Apply"));
    right->addWidget(view().button(cmdCancel, "&Close"));
    auto* left = new QVBoxLayout;
    left->addWidget(conversions);
    left->addWidget(data);
    auto* layout = new QHBoxLayout(this);
    layout->addLayout(left);
    layout->addLayout(right);
}

frmGasDensity::frmGasDensity(GasDensityModel& model, UserInterface& ui, QWidget* parent)
    : UnitFieldDialog(model, ui, "frmGasDensity", "Gas/Vapor Density", parent)
{
    using namespace gas_density;
    view().status(this, "Compute Vapor/Gas Density");
    QGroupBox* rows = fieldRows(QString(),
                                {{"Temperature:", Temperature, "Temperature"},
                                 {"Pressure:", Pressure, "Pressure"},
                                 {"Molecular Weight:", MolecularWeight},
                                 {"Compressibility, Z:", Compressibility},
                                 {"Gas/Vapor Density:", Density, "Density"}});
    rows->setFlat(true);
    grid(rows)->addWidget(view().button(cmdTable, "Compute Compressibility, Z"), 3, 2);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(rows);
    layout->addLayout(buttonRow(false));
}

} // namespace kestrova
