#include "tools/properties/ui/property_dialogs.h"

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

namespace {

QColor shadeColour(PropertyShade shade)
{
    switch (shade) {
    case PropertyShade::Missing: return QColor(0, 0, 255);
    case PropertyShade::OutOfRange: return QColor(255, 0, 0);
    default: return QColor(255, 255, 0x80); // 0x80FFFF in blue-green-red order
    }
}

void paint(QLineEdit* edit, const QColor& colour)
{
    QPalette p = edit->palette();
    p.setColor(QPalette::Base, colour);
    p.setColor(QPalette::Text, qGray(colour.rgb()) < 128 ? Qt::white : Qt::black); // readable on blue and red
    edit->setPalette(p);
}

} // namespace

// --- Physical properties ------------------------------------------------------------

frmPhysicalProperties::frmPhysicalProperties(PhysicalPropertiesModel& model, UserInterface& ui, QWidget* parent)
    : ToolDialog(model, ui, "frmPhysicalProperties", "Physical Properties", parent), model_(model)
{
    search_ = field("txtSearch", [](const QString&) {}, false);
    search_->setPlaceholderText("Type to find a compound");
    dbcComp_ = new QListWidget(this);
    dbcComp_->setObjectName("dbcComp");
    dbcComp_->setUniformItemSizes(true);
    for (const Compound& c : model.compounds())
        dbcComp_->addItem(QString::fromStdString(c.name));
    connect(dbcComp_, &QListWidget::currentRowChanged, this, guarded(windowTitle().toStdString(), ui_, [this](int row) {
        if (row >= 0 && row != model_.position)
            model_.dbcComp_Click(row);
    }));
    connect(search_, &QLineEdit::textEdited, this, guarded(windowTitle().toStdString(), ui_, [this](const QString& text) {
        const auto found = dbcComp_->findItems(text, Qt::MatchStartsWith);
        const auto anywhere = found.isEmpty() ? dbcComp_->findItems(text, Qt::MatchContains) : found;
        if (!anywhere.isEmpty())
            dbcComp_->setCurrentItem(anywhere.front());
    }));
    auto* left = new QVBoxLayout;
    left->addWidget(new QLabel("Compound:"));
    left->addWidget(search_);
    left->addWidget(dbcComp_);

    frame_ = new QGroupBox("Physical Properties", this);
    frame_->setObjectName("Frame1(3)");
    auto* grid = new QGridLayout(frame_);
    grid->addWidget(new QLabel("Low T"), 0, 3);
    grid->addWidget(new QLabel("High T"), 0, 4);
    for (int row = 0; row < PhysicalPropertiesModel::kRows; ++row) {
        const bool typed = row >= 6;
        QLineEdit* edit = typed ? field(QString("txtPhysProp(%1)").arg(row), [this, row](const QString& text) {
            model_.txtPhysProp[static_cast<size_t>(row)] = text.toStdString();
            model_.txtPhysProp_LostFocus(row);
        }) : output(QString("txtPhysProp(%1)").arg(row));
        txtPhysProp_[static_cast<size_t>(row)] = edit;
        cboPPUnits_[static_cast<size_t>(row)] = unitList(QString("cboPPUnits(%1)").arg(row), PhysicalPropertiesModel::rowUnitTag(row),
                                                         [this, row](int unit) { model_.setUnit(row, static_cast<UnitIndex>(unit)); });
        grid->addWidget(new QLabel(PhysicalPropertiesModel::rowCaption(row)), row + 1, 0);
        grid->addWidget(edit, row + 1, 1);
        grid->addWidget(cboPPUnits_[static_cast<size_t>(row)], row + 1, 2);
        if (row < 6) {
            txtLTL_[static_cast<size_t>(row)] = output(QString("txtLTL(%1)").arg(row));
            txtUTL_[static_cast<size_t>(row)] = output(QString("txtUTL(%1)").arg(row));
            txtLTL_[static_cast<size_t>(row)]->setMinimumWidth(60);
            txtUTL_[static_cast<size_t>(row)]->setMinimumWidth(60);
            grid->addWidget(txtLTL_[static_cast<size_t>(row)], row + 1, 3);
            grid->addWidget(txtUTL_[static_cast<size_t>(row)], row + 1, 4);
        }
    }
    txtMW_ = output("txtMW");
    txtAF_ = output("txtAF");
    grid->addWidget(new QLabel("Molecular Weight:"), 11, 0);
    grid->addWidget(txtMW_, 11, 1);
    grid->addWidget(new QLabel("Acentric Factor:"), 12, 0);
    grid->addWidget(txtAF_, 12, 1);
    grid->setRowStretch(13, 1);

    select_ = button("cmdSelect", "&Select", [this] { model_.cmdSelect_Click(); });
    select_->setToolTip("Apply Results");
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(select_);
    buttons->addWidget(button("cmdClose", "&Close", [this] { model_.cmdClose_Click(); }));
    onCancel = [this] { model_.cmdClose_Click(); };
    onShow = [this] {
        model_.Form_Activate();
        search_->setFocus();
    };
    auto* right = new QVBoxLayout;
    right->addWidget(frame_);
    right->addLayout(buttons);
    auto* layout = new QHBoxLayout(this);
    layout->addLayout(left, 1);
    layout->addLayout(right, 2);
    resize(880, 480);
}

void frmPhysicalProperties::render()
{
    {
        const QSignalBlocker block(dbcComp_);
        dbcComp_->setCurrentRow(model_.position);
    }
    dbcComp_->scrollToItem(dbcComp_->currentItem());
    frame_->setTitle(QString::fromStdString(model_.frameCaption));
    for (int row = 0; row < PhysicalPropertiesModel::kRows; ++row) {
        QLineEdit* edit = txtPhysProp_[static_cast<size_t>(row)];
        setText(edit, model_.txtPhysProp[static_cast<size_t>(row)]);
        cboPPUnits_[static_cast<size_t>(row)]->setCurrentIndex(model_.cboPPUnits[static_cast<size_t>(row)]);
        if (row < 8) {
            cboPPUnits_[static_cast<size_t>(row)]->setEnabled(row >= 6 ? model_.unitEnabled[static_cast<size_t>(row)]
                                                                      : model_.unitEnabled[static_cast<size_t>(row)]);
            paint(edit, shadeColour(model_.shade[static_cast<size_t>(row)]));
        }
        if (row < 6) {
            setText(txtLTL_[static_cast<size_t>(row)], model_.txtLTL[static_cast<size_t>(row)]);
            setText(txtUTL_[static_cast<size_t>(row)], model_.txtUTL[static_cast<size_t>(row)]);
            paint(txtLTL_[static_cast<size_t>(row)], shadeColour(model_.shade[static_cast<size_t>(row)]));
            paint(txtUTL_[static_cast<size_t>(row)], shadeColour(model_.shade[static_cast<size_t>(row)]));
        }
    }
    setText(txtMW_, model_.txtMW);
    setText(txtAF_, model_.txtAF);
    select_->setEnabled(model_.selectEnabled);
    select_->setDefault(model_.selectEnabled);
}

// --- The real-gas calculators' common frame ---------------------------------------------

template <class Model>
QGroupBox* GasCalculatorDialog::dataRows(Model& model, const QString& title, const std::array<const char*, 6>& labels,
                                         const std::vector<const char*>& unitTags)
{
    auto* box = new QGroupBox(title, this);
    auto* grid = new QGridLayout(box);
    for (int i = 0; i < 6; ++i) {
        QLineEdit* edit = i == 5 ? output("txtData(5)") : field(QString("txtData(%1)").arg(i), [&model, i](const QString& text) {
            model.txtData[static_cast<size_t>(i)] = text.toStdString();
            model.txtData_LostFocus(i);
        });
        txtData_[static_cast<size_t>(i)] = edit;
        grid->addWidget(new QLabel(labels[static_cast<size_t>(i)]), i, 0);
        grid->addWidget(edit, i, 1);
    }
    for (int i = 0; i < static_cast<int>(unitTags.size()); ++i) {
        cboUnits_.push_back(unitList(QString("cboUnits(%1)").arg(i), unitTags[static_cast<size_t>(i)],
                                     [&model, i](int unit) { model.setUnit(i, static_cast<UnitIndex>(unit)); }));
        grid->addWidget(cboUnits_.back(), i, 2);
    }
    return box;
}

template <class Model>
QHBoxLayout* GasCalculatorDialog::calculatorButtons(Model& model, bool dataBaseValid)
{
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(button("cmdPhysProps", "Get Physical Properties", [&model, dataBaseValid] {
        model.cmdPhysProps_Click(dataBaseValid);
    }));
    buttons->addWidget(button("cmdReset", "Reset Input Fields", [&model] { model.cmdReset_Click(); }));
    buttons->addStretch();
    auto* apply = button("cmdApply", "Apply Results", [&model] { model.cmdApply_Click(); });
    apply->setDefault(true);
    buttons->addWidget(apply);
    buttons->addWidget(button("cmdClose", "&Close", [&model] { model.cmdClose_Click(); }));
    onCancel = [&model] { model.cmdClose_Click(); };
    onShow = [&model] { model.Form_Activate(); };
    return buttons;
}

template <class Model>
void GasCalculatorDialog::renderRows(const Model& model)
{
    for (int i = 0; i < 6; ++i)
        setText(txtData_[static_cast<size_t>(i)], model.txtData[static_cast<size_t>(i)]);
    for (size_t i = 0; i < cboUnits_.size(); ++i)
        cboUnits_[i]->setCurrentIndex(model.cboUnits[i]);
}

// --- Compressibility factor -----------------------------------------------------------

frmCompressFactor::frmCompressFactor(CompressFactorModel& model, UserInterface& ui, bool dataBaseValid, QWidget* parent)
    : GasCalculatorDialog(model, ui, "frmCompressFactor", "Compressibility Factor", parent), model_(model)
{
    inputs_ = dataRows(model_, "Inputs",
                       {"System Temperature:", "System Pressure:", "Critical Temperature:", "Critical Pressure:",
                        "Acentric Factor:", "Compressibility, Z:"},
                       {"Temperature", "Pressure", "Temperature", "Pressure"});
    inputs_->setObjectName("Frame1(1)");
    auto* eos = new QGroupBox("Equation of State", this);
    auto* e = new QVBoxLayout(eos);
    const char* captions[] = {"Redlich-Kwong", "Soave-Redlich-Kwong", "Peng-Robinson"};
    for (int i = 0; i < 3; ++i) {
        optEOS_[static_cast<size_t>(i)] = new QRadioButton(captions[i], eos);
        optEOS_[static_cast<size_t>(i)]->setObjectName(QString("optEOS(%1)").arg(i));
        connect(optEOS_[static_cast<size_t>(i)], &QRadioButton::clicked, this, guarded(windowTitle().toStdString(), ui_, [this, i] { model_.optEOS_Click(i); }));
        e->addWidget(optEOS_[static_cast<size_t>(i)]);
    }
    chkHydrogen_ = new QCheckBox("Hydrogen", eos);
    chkHydrogen_->setObjectName("chkHydrogen");
    chkHydrogen_->setToolTip("Used only for S-R-K");
    connect(chkHydrogen_, &QCheckBox::clicked, this, guarded(windowTitle().toStdString(), ui_, [this](bool on) { model_.chkHydrogen_Click(on); }));
    e->addWidget(chkHydrogen_);

    QHBoxLayout* buttons = calculatorButtons(model_, dataBaseValid);
    auto* top = new QHBoxLayout;
    top->addWidget(inputs_);
    top->addWidget(eos);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addLayout(buttons);
}

void frmCompressFactor::render()
{
    inputs_->setTitle(QString::fromStdString(model_.inputsCaption));
    renderRows(model_);
    txtData_[4]->setEnabled(model_.acentricEnabled);
    optEOS_[static_cast<size_t>(model_.eos)]->setChecked(true);
    chkHydrogen_->setChecked(model_.hydrogen);
}

// --- Heat capacity ratio ----------------------------------------------------------------

frmHeatCapRatio::frmHeatCapRatio(HeatCapRatioModel& model, UserInterface& ui, bool dataBaseValid, QWidget* parent)
    : GasCalculatorDialog(model, ui, "frmHeatCapRatio", "Heat Capacity Ratio", parent), model_(model)
{
    realGas_ = dataRows(model_, "Real Gas Calculation",
                        {"System Temperature:", "System Pressure:", "Critical Temperature:", "Critical Pressure:",
                         "Heat Capacity, Cpv:", "k = Cp/Cv:"},
                        {"Temperature", "Pressure", "Temperature", "Pressure", "Heat Capacity"});
    auto* grid = static_cast<QGridLayout*>(realGas_->layout());
    txtData_[5]->setToolTip("Specific Heat Ratio");
    lblError_ = new QLabel("(Check Input)", realGas_);
    lblError_->setObjectName("lblError");
    lblError_->setStyleSheet("color: rgb(255, 0, 0);");
    grid->addWidget(lblError_, 5, 2);

    auto* typical = new QGroupBox("Approximate k = Cp/Cv Values at Standard Temperature / Pressure", this);
    auto* t = new QGridLayout(typical);
    for (int i = 0; i < 18; ++i) {
        const TypicalRatio& r = typicalRatios()[static_cast<size_t>(i)];
        auto* option = new QRadioButton(r.caption, typical);
        option->setObjectName(QString("Option1(%1)").arg(i));
        option->setToolTip(r.formula);
        connect(option, &QRadioButton::clicked, this, guarded(windowTitle().toStdString(), ui_, [this, i] { model_.Option1_Click(i); }));
        option->installEventFilter(this);
        options_[static_cast<size_t>(i)] = option;
        t->addWidget(option, i % 9, i / 9);
    }

    QHBoxLayout* buttons = calculatorButtons(model_, dataBaseValid);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(realGas_);
    layout->addWidget(typical);
    layout->addLayout(buttons);
}

void frmHeatCapRatio::render()
{
    realGas_->setTitle(QString::fromStdString(model_.frameCaption));
    renderRows(model_);
    lblError_->setVisible(model_.errorShown);
    QPalette p = txtData_[5]->palette();
    p.setColor(QPalette::Text, model_.errorShown ? QColor(255, 0, 0) : palette().color(QPalette::Text));
    txtData_[5]->setPalette(p);
    if (model_.option >= 0)
        options_[static_cast<size_t>(model_.option)]->setChecked(true);
}

} // namespace kestrova
