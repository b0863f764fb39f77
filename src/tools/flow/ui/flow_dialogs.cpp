#include "tools/flow/ui/flow_dialogs.h"

#include "forms/ui/exception_barrier.h"

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
    : ToolDialog(model, ui, "frmFlowConversions", "Flow Conversions", parent), model_(model)
{
    status(this, "Common Flow Conversions");
    auto* conversions = new QGroupBox("Conversion", this);
    status(conversions, "Flow Conversion to Perform");
    auto* c = new QGridLayout(conversions);
    for (int i = 0; i < 6; ++i) {
        optConversion_[static_cast<size_t>(i)] = new QRadioButton(conversions);
        optConversion_[static_cast<size_t>(i)]->setObjectName(QString("optConversion(%1)").arg(i));
        connect(optConversion_[static_cast<size_t>(i)], &QRadioButton::clicked, this, guarded(windowTitle().toStdString(), ui_, [this, i] { model_.optConversion_Click(i); }));
        c->addWidget(optConversion_[static_cast<size_t>(i)], i / 2, i % 2);
    }

    auto* data = new QGroupBox("Input and Output Data", this);
    status(data, "Input and Output Data");
    auto* d = new QGridLayout(data);
    const char* labels[] = {"Specific Gravity:", "Molecular Weight:", "Flowing Temperature:", "Flowing Pressure:",
                            "Standard Volume Flow:", "Actual Volume Flow:", "Liquid Volume Flow:", "Mass Flow:"};
    const char* unitNames[] = {nullptr, nullptr, "lblUnitsFT", "lblUnitsFP", "lblUnitsSCFM", "lblUnitsACFM", "lblUnitsGPM",
                               "lblUnitsLBHR"};
    for (int i = 0; i < 8; ++i) {
        txtData_[static_cast<size_t>(i)] = field(QString("txtData(%1)").arg(i), [this, i](const QString& text) {
            if (model_.txtData[static_cast<size_t>(i)].role != ConversionRole::Input)
                return;
            model_.txtData[static_cast<size_t>(i)].text = text.toStdString();
            model_.txtData_LostFocus(i);
        });
        d->addWidget(new QLabel(labels[i], data), i, 0);
        d->addWidget(txtData_[static_cast<size_t>(i)], i, 1);
        if (unitNames[i]) {
            auto* unit = new QLabel(data);
            unit->setObjectName(unitNames[i]);
            unitLabels_[unitNames[i]] = unit;
            d->addWidget(unit, i, 2);
        }
    }

    stpFrame_ = new QGroupBox("Standard Temperature/Pressure", this);
    stpFrame_->setObjectName("Frame1(2)");
    status(stpFrame_, "STP Condition to Use");
    auto* s = new QVBoxLayout(stpFrame_);
    const char* stpCaptions[] = {"STP:  60 °F, 1 atm", "NTP:  0 °C (32 °F), 1 atm", "API:  15 °C  (59 °F), 1 atm"};
    for (int i = 0; i < 3; ++i) {
        optSTP_[static_cast<size_t>(i)] = new QRadioButton(stpCaptions[i], stpFrame_);
        optSTP_[static_cast<size_t>(i)]->setObjectName(QString("optSTP(%1)").arg(i));
        connect(optSTP_[static_cast<size_t>(i)], &QRadioButton::clicked, this, guarded(windowTitle().toStdString(), ui_, [this, i] { model_.optSTP_Click(i); }));
        s->addWidget(optSTP_[static_cast<size_t>(i)]);
    }
    auto* units = new QGroupBox("Units", this);
    status(units, "System of Units to Use");
    auto* u = new QVBoxLayout(units);
    const char* unitCaptions[] = {"American Engineering Units", "Metric Units"};
    for (int i = 0; i < 2; ++i) {
        optUnits_[static_cast<size_t>(i)] = new QRadioButton(unitCaptions[i], units);
        optUnits_[static_cast<size_t>(i)]->setObjectName(QString("optUnits(%1)").arg(i));
        connect(optUnits_[static_cast<size_t>(i)], &QRadioButton::clicked, this, guarded(windowTitle().toStdString(), ui_, [this, i] { model_.optUnits_Click(i); }));
        u->addWidget(optUnits_[static_cast<size_t>(i)]);
    }

    apply_ = button("cmdApply", "&Apply", [this] { model_.cmdApply_Click(); });
    auto* close = button("cmdCancel", "&Close", [this] { model_.cmdCancel_Click(); });
    onCancel = [this] { model_.cmdCancel_Click(); };
    auto* right = new QVBoxLayout;
    right->addWidget(stpFrame_);
    right->addWidget(units);
    right->addStretch();
    right->addWidget(apply_);
    right->addWidget(close);
    auto* left = new QVBoxLayout;
    left->addWidget(conversions);
    left->addWidget(data);
    auto* layout = new QHBoxLayout(this);
    layout->addLayout(left);
    layout->addLayout(right);
}

void frmFlowConversions::render()
{
    for (int i = 0; i < 6; ++i) {
        optConversion_[static_cast<size_t>(i)]->setText(QString::fromStdString(model_.conversionCaption(i)));
        optConversion_[static_cast<size_t>(i)]->setEnabled(model_.conversionEnabled[static_cast<size_t>(i)]);
    }
    optConversion_[static_cast<size_t>(model_.conversion)]->setChecked(true);
    optSTP_[static_cast<size_t>(model_.stp)]->setChecked(true);
    optUnits_[static_cast<size_t>(model_.units)]->setChecked(true);
    stpFrame_->setEnabled(model_.stpEnabled);
    for (auto& [name, label] : unitLabels_)
        label->setText(QString::fromStdString(model_.unitLabel(name.toStdString())));
    for (int i = 0; i < 8; ++i) {
        QLineEdit* edit = txtData_[static_cast<size_t>(i)];
        const auto& f = model_.txtData[static_cast<size_t>(i)];
        setText(edit, f.text);
        edit->setReadOnly(f.role != ConversionRole::Input);
        edit->setEnabled(f.role != ConversionRole::NotUsed);
        edit->setFocusPolicy(f.role == ConversionRole::NotUsed ? Qt::NoFocus : Qt::StrongFocus);
        QPalette p = palette();
        if (f.role == ConversionRole::Output)
            p.setColor(QPalette::Base, QColor(192, 192, 255));
        edit->setPalette(p);
    }
    apply_->setEnabled(model_.applyEnabled);
}

frmGasDensity::frmGasDensity(GasDensityModel& model, UserInterface& ui, QWidget* parent)
    : ToolDialog(model, ui, "frmGasDensity", "Gas/Vapor Density", parent), model_(model)
{
    status(this, "Compute Vapor/Gas Density");
    auto* grid = new QGridLayout;
    const char* labels[] = {"Temperature:", "Pressure:", "Gas/Vapor Density:", "Molecular Weight:", "Compressibility, Z:"};
    const char* tags[] = {"Temperature", "Pressure", "Density"};
    const int rowOf[] = {0, 1, 4, 2, 3};
    for (int i = 0; i < 5; ++i) {
        QLineEdit* edit = i == 2 ? output("txtData(2)") : field(QString("txtData(%1)").arg(i), [this, i](const QString& text) {
            model_.txtData[static_cast<size_t>(i)] = text.toStdString();
            model_.txtData_LostFocus(i);
        }, true, i < 2);
        txtData_[static_cast<size_t>(i)] = edit;
        grid->addWidget(new QLabel(labels[i], this), rowOf[i], 0);
        grid->addWidget(edit, rowOf[i], 1);
        if (i < 3) {
            cboUnits_[static_cast<size_t>(i)] = unitList(QString("cboUnits(%1)").arg(i), tags[i], [this, i](int unit) {
                model_.setUnit(i, static_cast<UnitIndex>(unit));
            });
            grid->addWidget(cboUnits_[static_cast<size_t>(i)], rowOf[i], 2);
        }
    }
    grid->addWidget(button("cmdTable", "Compute Compressibility, Z", [this] { model_.cmdTable_Click(); }), 3, 2);
    apply_ = button("cmdApply", "Apply Results", [this] { model_.cmdApply_Click(); });
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(button("cmdReset", "Reset Input Fields", [this] { model_.cmdReset_Click(); }));
    buttons->addStretch();
    buttons->addWidget(apply_);
    buttons->addWidget(button("cmdClose", "&Close", [this] { model_.cmdClose_Click(); }));
    onCancel = [this] { model_.cmdClose_Click(); };
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addLayout(buttons);
}

void frmGasDensity::render()
{
    for (int i = 0; i < 5; ++i)
        setText(txtData_[static_cast<size_t>(i)], model_.txtData[static_cast<size_t>(i)]);
    for (int i = 0; i < 3; ++i)
        cboUnits_[static_cast<size_t>(i)]->setCurrentIndex(model_.cboUnits[static_cast<size_t>(i)]);
    apply_->setEnabled(model_.applyEnabled);
}

} // namespace kestrova
