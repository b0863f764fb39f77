#include "tools/pressure_drop/ui/frmPressureDrop.h"

#include "forms/model/user_interface.h"
#include "forms/ui/exception_barrier.h"
#include "tools/pressure_drop/model/pressure_drop_model.h"
#include "units/basLoadUnits.h"

#include <QApplication>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

#include <set>

namespace kestrova {

namespace {

constexpr const char* kResultsStatus = "Calculated Results";
const QColor kTint(192, 192, 255);

bool isResultField(int index)
{
    static const std::set<int> results{9, 10, 18, 19, 20, 21, 22, 23, 24, 25, 36, 37, 38, 39, 40, 41};
    return results.count(index) > 0;
}

} // namespace

frmPressureDrop::frmPressureDrop(PressureDropModel& model, UserInterface& ui, QWidget* parent)
    : DocumentForm(ui, parent, [&model] { model.Form_KeyPress(); }, QSize(900, 560)), model_(model)
{
    setObjectName("frmPressureDrop");
    setWindowTitle(PressureDropModel::kTitle);
    tabs_ = new QTabWidget(this);
    tabs_->setObjectName("SSTab1");
    tabs_->addTab(buildLiquidTab(), "&Liquid");
    tabs_->addTab(buildGasTab(), "&Gas/Vapor");
    tabs_->addTab(buildTwoPhaseTab(), "&Two-Phase");
    connect(tabs_, &QTabWidget::currentChanged, this, guarded("the last action in Pressure Drop", ui_, [this](int tab) {
        if (!rendering_)
            model_.SSTab1_Click(tab);
    }));
    watchStatus(tabs_, PressureDropModel::kStatusTitle);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(tabs_);
    setMouseTracking(true);
    watchStatus(this, PressureDropModel::kStatusTitle);
    connect(&model_, &FormModel::changed, this, guarded("showing " + windowTitle().toStdString(), ui_, [this] { render(); }));
    render();
}

QGroupBox* frmPressureDrop::frame(int index, const QString& caption)
{
    auto* box = new QGroupBox(caption);
    box->setObjectName(QString("Frame1(%1)").arg(index));
    frames_[index] = box;
    const int kind = index % 3;
    watchStatus(box, kind == 0 ? "Fluid Data Input" : kind == 1 ? "Pipe/Tube Data Input" : kResultsStatus);
    return box;
}

QPushButton* frmPressureDrop::tableButton(int index)
{
    auto* button = new QPushButton("...");
    button->setObjectName(QString("cmdTable(%1)").arg(index));
    button->setFixedWidth(32);
    button->setToolTip(QString::fromStdString(model_.cmdTable[static_cast<size_t>(index)].caption));
    button->setFocusPolicy(Qt::NoFocus);
    connect(button, &QPushButton::clicked, this, guarded("the last action in Pressure Drop", ui_, [this, index] { model_.cmdTable_Click(index); }));
    buttons_[index] = button;
    return button;
}

void frmPressureDrop::fieldRow(QGridLayout* grid, int row, const QString& label, int field, int button, int labelIndex)
{
    auto* caption = new QLabel(label);
    if (labelIndex >= 0) {
        caption->setObjectName(QString("Label1(%1)").arg(labelIndex));
        labels_[labelIndex] = caption;
    }
    QLineEdit* edit = lineEdit(QString("txtData(%1)").arg(field), isResultField(field));
    txtData_[field] = edit;
    caption->setBuddy(edit);
    QComboBox* units = unitList(QString("cboUnits(%1)").arg(field), pressureDropField(field).kind->tag,
                                [this, field](int index) { model_.setUnit(field, static_cast<UnitIndex>(index)); });
    cboUnits_[field] = units;
    grid->addWidget(caption, row, 0);
    grid->addWidget(edit, row, 1);
    grid->addWidget(units, row, 2);
    if (button >= 0)
        grid->addWidget(tableButton(button), row, 3);
}

void frmPressureDrop::displayRow(QGridLayout* grid, int row, const QString& label, int display, int button)
{
    const bool readOnly = display != 4 && display != 5 && display != 6;
    QLineEdit* edit = lineEdit(QString("txtDisplay(%1)").arg(display), readOnly);
    txtDisplay_[display] = edit;
    auto* caption = new QLabel(label);
    caption->setBuddy(edit);
    grid->addWidget(caption, row, 0);
    grid->addWidget(edit, row, 1);
    if (button >= 0)
        grid->addWidget(tableButton(button), row, 3);
}

void frmPressureDrop::kRow(QGridLayout* grid, int row, int labelIndex, const std::array<int, 3>& fields, int button)
{
    auto* caption = new QLabel("K1, K2, K3:");
    caption->setObjectName(QString("Label1(%1)").arg(labelIndex));
    labels_[labelIndex] = caption;
    auto* box = new QHBoxLayout;
    for (int k : fields) {
        QLineEdit* edit = lineEdit(QString("txtDisplay(%1)").arg(k), false);
        edit->setMinimumWidth(50);
        txtDisplay_[k] = edit;
        box->addWidget(edit);
    }
    grid->addWidget(caption, row, 0);
    grid->addLayout(box, row, 1, 1, 2);
    grid->addWidget(tableButton(button), row, 3);
}

void frmPressureDrop::projectRows(QGridLayout* grid, int row, int tab)
{
    txtProject_[tab] = lineEdit(QString("txtProject(%1)").arg(tab), false);
    txtProject_[tab]->setAlignment(Qt::AlignLeft);
    txtTag_[tab] = lineEdit(QString("txtTag(%1)").arg(tab), false);
    txtTag_[tab]->setAlignment(Qt::AlignLeft);
    grid->addWidget(new QLabel("Project:"), row, 0);
    grid->addWidget(txtProject_[tab], row, 1, 1, 3);
    grid->addWidget(new QLabel("Tag/Line No.:"), row + 1, 0);
    grid->addWidget(txtTag_[tab], row + 1, 1, 1, 3);
}

QRadioButton* frmPressureDrop::option(const QString& family, int index, const QString& caption, const QString& status)
{
    auto* button = new QRadioButton(caption);
    const QString name = QString("%1(%2)").arg(family).arg(index);
    button->setObjectName(name);
    options_[name] = button;
    watchStatus(button, status);
    connect(button, &QRadioButton::clicked, this, guarded("the last action in Pressure Drop", ui_, [this, family, index] {
        if (family == "optCrossSection")
            model_.optCrossSection_Click(index);
        else if (family == "optCalcType")
            model_.optCalcType_Click(index);
        else
            model_.optOrientation_Click(index);
    }));
    return button;
}

namespace {
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

QWidget* frmPressureDrop::buildLiquidTab()
{
    QGroupBox* fluid = frame(0, "Fluid Data");
    auto* f = new QGridLayout(fluid);
    fieldRow(f, 0, "Flow Rate:", 0, 15);
    fieldRow(f, 1, "Density (at T && P):", 1);
    fieldRow(f, 2, "Viscosity (at T && P):", 2);
    fieldRow(f, 3, "Flowing Temperature:", 44);
    txtLiquid_ = lineEdit("txtLiquid", false);
    txtLiquid_->setAlignment(Qt::AlignLeft);
    f->addWidget(new QLabel("Fluid:"), 4, 0);
    f->addWidget(txtLiquid_, 4, 1, 1, 2);
    auto* props = new QPushButton("Get Physical Properties");
    props->setObjectName("cmdProperties(0)");
    connect(props, &QPushButton::clicked, this, guarded("the last action in Pressure Drop", ui_, [this] { model_.cmdProperties_Click(0); }));
    f->addWidget(props, 4, 3);
    projectRows(f, 5, 0);

    QGroupBox* pipe = frame(1, "Pipe/Tube Data");
    auto* p = new QGridLayout(pipe);
    auto* sections = new QHBoxLayout;
    sections->addWidget(option("optCrossSection", 0, "&Circular", "Circular Cross Section"));
    sections->addWidget(option("optCrossSection", 1, "&Rectangular", "Rectangular Cross Section"));
    sections->addWidget(option("optCrossSection", 2, "A&nnular", "Annular Cross Section"));
    p->addLayout(sections, 0, 0, 1, 4);
    fieldRow(p, 1, "Pipe/Tube Diameter:", 5, 0, 3);
    fieldRow(p, 2, "Width of Conduit:", 3, 3, 4);
    fieldRow(p, 3, "Height of Conduit:", 4, 4, 7);
    fieldRow(p, 4, "Absolute Roughness:", 6, 1);
    fieldRow(p, 5, "Elevation Change:", 7);
    fieldRow(p, 6, "Straight Length:", 8);
    kRow(p, 7, 9, {0, 12, 18}, 2);

    QGroupBox* results = frame(2, "Calculated Results");
    auto* r = new QGridLayout(results);
    fieldRow(r, 0, "Flow Velocity:", 9);
    fieldRow(r, 1, "Pressure Drop:", 10);
    displayRow(r, 2, "Reynold's Number (Re):", 1);
    displayRow(r, 3, "Fluid Flow Regime:", 2);
    displayRow(r, 4, "Friction Factor (fd):", 3);
    auto* reset = new QPushButton("Reset Input Fields");
    reset->setObjectName("cmdReset(0)");
    connect(reset, &QPushButton::clicked, this, guarded("the last action in Pressure Drop", ui_, [this] { model_.cmdReset_Click(0); }));
    return tabPage(column({fluid, pipe}), column({results, buttonRow({reset})}));
}

QWidget* frmPressureDrop::buildGasTab()
{
    QGroupBox* fluid = frame(3, "Fluid Data");
    auto* f = new QGridLayout(fluid);
    fieldRow(f, 0, "Flow Rate:", 11, 16);
    fieldRow(f, 1, "Inlet Pressure:", 12);
    fieldRow(f, 2, "Inlet Temperature:", 13);
    fieldRow(f, 3, "Viscosity (at T && P):", 14);
    displayRow(f, 4, "Molecular Weight:", 4);
    displayRow(f, 5, "Compressibility, Z:", 5, 5);
    displayRow(f, 6, "k, Cp/Cv:", 6, 9);
    txtGas_ = lineEdit("txtGas", false);
    txtGas_->setAlignment(Qt::AlignLeft);
    f->addWidget(new QLabel("Fluid:"), 7, 0);
    f->addWidget(txtGas_, 7, 1, 1, 2);
    auto* props = new QPushButton("Get Physical Properties");
    props->setObjectName("cmdProperties(1)");
    connect(props, &QPushButton::clicked, this, guarded("the last action in Pressure Drop", ui_, [this] { model_.cmdProperties_Click(1); }));
    f->addWidget(props, 7, 3);
    projectRows(f, 8, 1);

    auto* calcType = new QGroupBox("Calculation Type");
    calcType->setObjectName("Frame2(0)");
    watchStatus(calcType, "Calculation Type");
    auto* c = new QHBoxLayout(calcType);
    c->addWidget(option("optCalcType", 0, "A&diabatic", "Generally for short, insulated lines"));
    c->addWidget(option("optCalcType", 1, "&Isothermal", "Generally for long, uninsulated lines"));

    QGroupBox* pipe = frame(4, "Pipe/Tube Data");
    auto* p = new QGridLayout(pipe);
    auto* sections = new QHBoxLayout;
    sections->addWidget(option("optCrossSection", 3, "&Circular", "Circular Cross Section"));
    sections->addWidget(option("optCrossSection", 4, "&Rectangular", "Rectangular Cross Section"));
    sections->addWidget(option("optCrossSection", 5, "A&nnular", "Annular Cross Section"));
    p->addLayout(sections, 0, 0, 1, 4);
    fieldRow(p, 1, "Pipe/Tube Diameter:", 15, 6, 19);
    fieldRow(p, 2, "Width:", 43, 14, 43);
    fieldRow(p, 3, "Height:", 42, 10, 52);
    fieldRow(p, 4, "Absolute Roughness:", 16, 7);
    fieldRow(p, 5, "Straight Length:", 17);
    kRow(p, 6, 28, {7, 19, 20}, 8);

    QGroupBox* results = frame(5, "Calculated Results");
    auto* r = new QGridLayout(results);
    fieldRow(r, 0, "Inlet Density:", 20);
    fieldRow(r, 1, "Exit Density:", 21);
    fieldRow(r, 2, "Inlet Velocity:", 18);
    fieldRow(r, 3, "Exit Velocity:", 19);
    fieldRow(r, 4, "Sonic Velocity:", 22);
    fieldRow(r, 5, "Exit Pressure:", 25);
    fieldRow(r, 6, "Exit Temperature:", 23);
    fieldRow(r, 7, "Pressure Drop:", 24);
    displayRow(r, 8, "Reynold's Number (Re):", 8);
    displayRow(r, 9, "Friction Factor (fd):", 9);
    displayRow(r, 10, "Mach Number, Inlet:", 10);
    displayRow(r, 11, "Mach Number, Outlet:", 11);
    auto* reset = new QPushButton("Reset Input Fields");
    reset->setObjectName("cmdReset(1)");
    connect(reset, &QPushButton::clicked, this, guarded("the last action in Pressure Drop", ui_, [this] { model_.cmdReset_Click(1); }));
    return tabPage(column({fluid, calcType, pipe}), column({results, buttonRow({reset})}));
}

QWidget* frmPressureDrop::buildTwoPhaseTab()
{
    QGroupBox* fluid = frame(6, "Fluid Data");
    auto* f = new QGridLayout(fluid);
    f->addWidget(new QLabel("<b>Liquid</b>"), 0, 0);
    fieldRow(f, 1, "Flow Rate:", 28, 17);
    fieldRow(f, 2, "Density:", 27);
    fieldRow(f, 3, "Viscosity (at T && P):", 26);
    fieldRow(f, 4, "Surface Tension:", 29);
    f->addWidget(new QLabel("<b>Vapor</b>"), 5, 0);
    fieldRow(f, 6, "Flow Rate:", 30, 18);
    fieldRow(f, 7, "Density:", 31, 19);
    fieldRow(f, 8, "Viscosity (at T && P):", 32);
    fieldRow(f, 9, "Flowing Temperature:", 45);
    twoPhaseNames_ = new QLabel;
    f->addWidget(twoPhaseNames_, 10, 0, 1, 2);
    auto* liquidProps = new QPushButton("Liquid Properties");
    liquidProps->setObjectName("cmdProperties(2)");
    liquidProps->setToolTip("Get Physical Properties");
    connect(liquidProps, &QPushButton::clicked, this, guarded("the last action in Pressure Drop", ui_, [this] { model_.cmdProperties_Click(2); }));
    auto* gasProps = new QPushButton("Vapor Properties");
    gasProps->setObjectName("cmdProperties(3)");
    gasProps->setToolTip("Get Physical Properties");
    connect(gasProps, &QPushButton::clicked, this, guarded("the last action in Pressure Drop", ui_, [this] { model_.cmdProperties_Click(3); }));
    f->addWidget(buttonRow({liquidProps, gasProps}), 11, 0, 1, 4);
    projectRows(f, 12, 2);

    QGroupBox* pipe = frame(7, "Pipe/Tube Data");
    auto* p = new QGridLayout(pipe);
    auto* orientation = new QGroupBox("Pipe Orientation");
    orientation->setObjectName("Frame2(1)");
    watchStatus(orientation, "Pipe Orientation");
    auto* o = new QHBoxLayout(orientation);
    o->addWidget(option("optOrientation", 0, "&Horizontal", "Pipe Orientation"));
    o->addWidget(option("optOrientation", 1, "&Upflow", "Pipe Orientation"));
    o->addWidget(option("optOrientation", 2, "&Downflow", "Pipe Orientation"));
    p->addWidget(orientation, 0, 0, 1, 4);
    fieldRow(p, 1, "Straight Length:", 33);
    fieldRow(p, 2, "Absolute Roughness:", 34, 11);
    fieldRow(p, 3, "Pipe/Tube Diameter:", 35, 12);

    QGroupBox* results = frame(8, "Calculated Results");
    auto* r = new QGridLayout(results);
    fieldRow(r, 0, "Liquid Velocity:", 36);
    fieldRow(r, 1, "Vapor Velocity:", 37);
    fieldRow(r, 2, "Avg Density:", 38);
    fieldRow(r, 3, "Avg Viscosity:", 39);
    fieldRow(r, 4, "Avg Velocity:", 40);
    fieldRow(r, 5, "Pressure Drop:", 41);
    displayRow(r, 6, "Liquid Reynold's No.:", 16);
    displayRow(r, 7, "Vapor Reynold's No.:", 13);
    displayRow(r, 8, "Liquid Flow Regime:", 14);
    displayRow(r, 9, "Vapor Flow Regime:", 15);
    displayRow(r, 10, "Flow Regime:", 17, 13);
    auto* reset = new QPushButton("Reset Input Fields");
    reset->setObjectName("cmdReset(2)");
    connect(reset, &QPushButton::clicked, this, guarded("the last action in Pressure Drop", ui_, [this] { model_.cmdReset_Click(2); }));
    return tabPage(column({fluid}), column({pipe, results, buttonRow({reset})}));
}

void frmPressureDrop::render()
{
    rendering_ = true;
    const PressureDropModel& m = model_;
    setWindowTitle(QString::fromStdString(m.caption));
    if (parentWidget())
        parentWidget()->setWindowTitle(windowTitle());
    tabs_->setCurrentIndex(m.tab);
    const auto showControl = [](QLineEdit* edit, const TextControl& control) {
        showText(edit, control.text); // a field that the user is typing in keeps what is typed
        edit->setEnabled(control.enabled);
        QPalette p = edit->palette();
        if (control.shade == FieldShade::Tinted)
            p.setColor(QPalette::Base, kTint);
        else if (!edit->isReadOnly())
            p.setColor(QPalette::Base, QApplication::palette().color(QPalette::Base));
        edit->setPalette(p);
        if (!control.toolTip.empty())
            edit->setToolTip(QString::fromStdString(control.toolTip));
    };
    for (auto& [index, edit] : txtData_)
        showControl(edit, m.txtData[static_cast<size_t>(index)]);
    for (auto& [index, edit] : txtDisplay_)
        showControl(edit, m.txtDisplay[static_cast<size_t>(index)]);
    for (int t = 0; t < 3; ++t) {
        showControl(txtProject_[t], m.txtProject[static_cast<size_t>(t)]);
        showControl(txtTag_[t], m.txtTag[static_cast<size_t>(t)]);
    }
    showControl(txtLiquid_, m.txtLiquid);
    showControl(txtGas_, m.txtGas);
    twoPhaseNames_->setText(QString("Liquid: %1    Vapor: %2")
                                .arg(QString::fromStdString(m.txtLiquid.text), QString::fromStdString(m.txtGas.text)));
    for (auto& [index, units] : cboUnits_) {
        units->setCurrentIndex(m.cboUnits[static_cast<size_t>(index)].listIndex);
        units->setEnabled(m.cboUnits[static_cast<size_t>(index)].enabled);
    }
    for (auto& [index, label] : labels_) {
        const auto found = m.Label1.find(index);
        if (found == m.Label1.end())
            continue;
        label->setText(QString::fromStdString(found->second.caption));
        label->setEnabled(!found->second.grey);
    }
    for (auto& [index, box] : frames_) {
        const FrameControl& f = m.Frame1[static_cast<size_t>(index)];
        box->setTitle(QString::fromStdString(f.caption));
        QFont font = box->font();
        font.setBold(f.bold);
        box->setFont(font);
        for (QWidget* child : box->findChildren<QWidget*>())
            child->setFont(QApplication::font(child)); // only the caption takes the bold font
        box->setStyleSheet(f.red ? QString("QGroupBox#%1::title { color: rgb(255, 0, 0); }").arg(box->objectName())
                                 : QString());
    }
    for (auto& [index, button] : buttons_) {
        const ButtonControl& b = m.cmdTable[static_cast<size_t>(index)];
        button->setEnabled(b.enabled);
        if (index == 13)
            button->setText(QString::fromStdString(b.caption));
    }
    options_[QString("optCrossSection(%1)").arg(m.crossSectionLiquid)]->setChecked(true);
    options_[QString("optCrossSection(%1)").arg(m.crossSectionGas)]->setChecked(true);
    options_[QString("optCalcType(%1)").arg(m.calcType)]->setChecked(true);
    options_[QString("optOrientation(%1)").arg(m.orientation)]->setChecked(true);
    // Only the shown tab's input fields are in the tab order.
    const auto tabOrder = [](QLineEdit* edit, bool tabStop) {
        if (!edit->isReadOnly())
            edit->setFocusPolicy(tabStop ? Qt::StrongFocus : Qt::ClickFocus);
    };
    for (auto& [index, edit] : txtData_)
        tabOrder(edit, m.txtData[static_cast<size_t>(index)].tabStop);
    for (int i : {4, 5, 6})
        tabOrder(txtDisplay_[i], m.txtDisplay[static_cast<size_t>(i)].tabStop);
    for (int t = 0; t < 3; ++t) {
        tabOrder(txtProject_[t], m.txtProject[static_cast<size_t>(t)].tabStop);
        tabOrder(txtTag_[t], m.txtTag[static_cast<size_t>(t)].tabStop);
    }
    if (!model_.focusRequest.empty()) {
        const int tab = indexOf(QString::fromStdString(model_.focusRequest));
        model_.focusRequest.clear();
        if (tab >= 0 && tab < 3 && isVisible())
            txtProject_[tab]->setFocus();
    }
    rendering_ = false;
}

void frmPressureDrop::commit(QLineEdit* field)
{
    const QString name = field->objectName();
    const int index = indexOf(name);
    const std::string text = field->text().toStdString();
    if (name.startsWith("txtData(")) {
        model_.txtData[static_cast<size_t>(index)].text = text;
        model_.txtData_LostFocus(index);
    } else if (name.startsWith("txtDisplay(")) {
        model_.txtDisplay[static_cast<size_t>(index)].text = text;
        model_.txtDisplay_LostFocus(index);
    } else if (name.startsWith("txtProject(")) {
        model_.txtProject[static_cast<size_t>(index)].text = text;
    } else if (name.startsWith("txtTag(")) {
        model_.txtTag[static_cast<size_t>(index)].text = text;
    } else if (name == "txtLiquid") {
        model_.txtLiquid.text = model_.liquidName = text;
    } else if (name == "txtGas") {
        model_.txtGas.text = model_.gasName = text;
    }
}

// The numeric fields: digits, one point, one comma, and one minus sign where
// the field takes negative numbers.
bool frmPressureDrop::numericField(const QLineEdit& field, bool& minusAllowed) const
{
    const QString name = field.objectName();
    minusAllowed = name.startsWith("txtData(");
    return name.startsWith("txtData(") || name.startsWith("txtDisplay(");
}

} // namespace kestrova
