#include "tools/orifice/ui/frmOrificePlates.h"

#include "forms/model/user_interface.h"
#include "forms/ui/exception_barrier.h"
#include "tools/orifice/model/orifice_model.h"

#include <QApplication>
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

namespace {

const QColor kLocked(192, 192, 255); // 0xFFC0C0 in blue-green-red order

// The solvable fields of each tab: flow, differential pressure, orifice diameter.
constexpr std::array<std::array<int, 3>, 2> kSolvable{{{0, 1, 2}, {14, 15, 16}}};

bool isResultField(int field)
{
    return (field >= 11 && field <= 13) || field >= 26;
}

} // namespace

// A sketch of the plate in its pipe with the two pressure taps of the style.
class TapSketch : public QWidget {
public:
    explicit TapSketch(QWidget* parent = nullptr) : QWidget(parent) { setMinimumSize(150, 70); }
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
        const int w = width(), top = 18, bottom = height() - 12, mid = w / 2, D = bottom - top;
        p.setPen(QPen(QColor(40, 60, 90), 2));
        p.drawLine(4, top, w - 4, top);
        p.drawLine(4, bottom, w - 4, bottom);
        p.fillRect(QRect(mid - 2, top, 4, D / 3), QColor(40, 60, 90));
        p.fillRect(QRect(mid - 2, bottom - D / 3, 4, D / 3), QColor(40, 60, 90));
        // Tap positions upstream and downstream, as a share of the pipe diameter.
        const double spacing[3][2] = {{0.5, 0.5}, {1.0, 0.5}, {0.08, 0.08}};
        p.setPen(QPen(QColor(200, 40, 40), 2));
        for (int side = 0; side < 2; ++side) {
            const int x = mid + static_cast<int>((side == 0 ? -1 : 1) * spacing[tap_][side] * D * 1.2);
            p.drawLine(x, top, x, top - 12);
        }
    }

private:
    int tap_ = 0;
};

frmOrificePlates::frmOrificePlates(OrificeModel& model, UserInterface& ui, QWidget* parent)
    : DocumentForm(ui, parent, [&model] { model.Form_KeyPress(); }, QSize(940, 600)), model_(model)
{
    setObjectName("frmOrificePlates");
    setWindowTitle(OrificeModel::kTitle);
    tabs_ = new QTabWidget(this);
    tabs_->setObjectName("SSTab1");
    tabs_->addTab(buildTab(0), "&Liquid Flow");
    tabs_->addTab(buildTab(1), "&Vapor/Gas Flow");
    connect(tabs_, &QTabWidget::currentChanged, this, guarded("the last action in Orifice Plates", ui_, [this](int tab) {
        if (!rendering_)
            model_.SSTab1_Click(tab);
    }));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(tabs_);
    setMouseTracking(true);
    watchStatus(this, "Orifice Plate Pressure Drop Calculations");
    watchStatus(tabs_, "Orifice Plate Pressure Drop Calculations");
    connect(&model_, &FormModel::changed, this, guarded("showing " + windowTitle().toStdString(), ui_, [this] { render(); }));
    render();
}

QGroupBox* frmOrificePlates::frame(int index, const QString& caption, const QString& status)
{
    auto* box = new QGroupBox(caption);
    box->setObjectName(QString("Frame1(%1)").arg(index));
    frames_[index] = box;
    watchStatus(box, status);
    return box;
}

void frmOrificePlates::fieldRow(QGridLayout* grid, int row, const QString& label, int field, QWidget* button)
{
    QLineEdit* edit = lineEdit(QString("txtData(%1)").arg(field), isResultField(field));
    txtData_[field] = edit;
    auto* caption = new QLabel(label);
    caption->setBuddy(edit);
    QComboBox* units = unitList(QString("cboUnits(%1)").arg(field), OrificeModel::unitTagOf(field),
                                [this, field](int index) { model_.setUnit(field, static_cast<UnitIndex>(index)); });
    cboUnits_[field] = units;
    grid->addWidget(caption, row, 0);
    grid->addWidget(edit, row, 1);
    grid->addWidget(units, row, 2);
    if (button)
        grid->addWidget(button, row, 3);
}

void frmOrificePlates::displayRow(QGridLayout* grid, int row, const QString& label, int display, QWidget* button)
{
    QLineEdit* edit = lineEdit(QString("txtDisplay(%1)").arg(display), display != 5);
    txtDisplay_[display] = edit;
    auto* caption = new QLabel(label);
    caption->setBuddy(edit);
    grid->addWidget(caption, row, 0);
    grid->addWidget(edit, row, 1);
    if (button)
        grid->addWidget(button, row, 3);
}

QComboBox* frmOrificePlates::materialList(const QString& name, int tab, bool element)
{
    auto* list = new QComboBox;
    list->setObjectName(QString("%1(%2)").arg(name).arg(tab));
    for (const OrificeModel::Material& m : OrificeModel::materials())
        list->addItem(m.name);
    connect(list, &QComboBox::activated, this, guarded("the last action in Orifice Plates", ui_, [this, tab, element](int index) {
        element ? model_.cboElementMaterial_Click(tab, index) : model_.cboPipeMaterial_Click(tab, index);
    }));
    return list;
}

QPushButton* frmOrificePlates::command(const QString& name, const QString& caption, const std::function<void()>& click)
{
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, guarded("the last action in Orifice Plates", ui_, click));
    return button;
}

QWidget* frmOrificePlates::buildTab(int t)
{
    const bool gas = t == 1;
    const int g = gas ? 14 : 0;        // first field of the tab
    const int p = gas ? g + 5 : g + 4; // the density row; the gas tab has the inlet pressure before it

    QGroupBox* props = frame(gas ? 10 : 0, "Properties", "Fluid Data Input");
    auto* pr = new QGridLayout(props);
    fieldRow(pr, 0, "&Flow Rate:", g);
    fieldRow(pr, 1, "&Differential Pressure:", g + 1);
    fieldRow(pr, 2, "Temperature:", g + 3);
    int row = 3;
    if (gas)
        fieldRow(pr, row++, "Pressure:", 18);
    QPushButton* densityButton = nullptr;
    if (gas) {
        densityButton = command("cmdTable(3)", "...", [this] { model_.cmdTable_Click(3); });
        densityButton->setToolTip("Compute Vapor/Gas Desity");
        densityButton->setFixedWidth(32);
    }
    fieldRow(pr, row++, gas ? "Density:" : "Density (at T&& P):", p, densityButton);
    fieldRow(pr, row++, "Viscosity (at T && P):", p + 1);
    if (gas) {
        QPushButton* kButton = command("cmdTable(2)", "...", [this] { model_.cmdTable_Click(2); });
        kButton->setToolTip("Compute k");
        kButton->setFixedWidth(32);
        displayRow(pr, row++, "k, Cp/Cv:", 5, kButton);
        txtDisplay_[5]->setToolTip("Average Cp / Cv (Inlet)");
    }
    pr->addWidget(command(QString("cmdProperties(%1)").arg(t), "Get Physical Properties",
                          [this, t] { model_.cmdProperties_Click(t); }),
                  row++, 1, 1, 2);
    txtProject_[static_cast<size_t>(t)] = lineEdit(QString("txtProject(%1)").arg(t), false);
    txtTag_[static_cast<size_t>(t)] = lineEdit(QString("txtTag(%1)").arg(t), false);
    for (QLineEdit* edit : {txtProject_[static_cast<size_t>(t)], txtTag_[static_cast<size_t>(t)]})
        edit->setAlignment(Qt::AlignLeft);
    pr->addWidget(new QLabel("Project:"), row, 0);
    pr->addWidget(txtProject_[static_cast<size_t>(t)], row++, 1, 1, 3);
    pr->addWidget(new QLabel("Tag/Line No.:"), row, 0);
    pr->addWidget(txtTag_[static_cast<size_t>(t)], row++, 1, 1, 3);

    QGroupBox* compute = frame(gas ? 7 : 3, "Compute", "Computation Method");
    auto* c = new QVBoxLayout(compute);
    const char* computeTips[] = {"Solve for Flow Rate", "Solve for Orifice Differential Pressure", "Solve for Orifice Diameter"};
    for (int i = 0; i < 3; ++i) {
        const int option = 3 * t + i;
        auto* button = new QRadioButton(OrificeModel::computeCaptions()[static_cast<size_t>(i)]);
        button->setObjectName(QString("optCompute(%1)").arg(option));
        button->setToolTip(computeTips[i]);
        connect(button, &QRadioButton::clicked, this, guarded("the last action in Orifice Plates", ui_, [this, option] { model_.optCompute_Click(option); }));
        optCompute_[static_cast<size_t>(option)] = button;
        c->addWidget(button);
    }

    QGroupBox* taps = frame(gas ? 6 : 2, "Pressure Taps", "Pressure Tap Style");
    auto* tp = new QHBoxLayout(taps);
    auto* tapOptions = new QVBoxLayout;
    for (int i = 0; i < 3; ++i) {
        const int option = 3 * t + i;
        auto* button = new QRadioButton(OrificeModel::tapCaptions()[static_cast<size_t>(i)]);
        button->setObjectName(QString("optMeterTap(%1)").arg(option));
        connect(button, &QRadioButton::clicked, this, guarded("the last action in Orifice Plates", ui_, [this, option] { model_.optMeterTap_Click(option); }));
        optMeterTap_[static_cast<size_t>(option)] = button;
        tapOptions->addWidget(button);
    }
    tp->addLayout(tapOptions);
    imgMeter_[static_cast<size_t>(t)] = new TapSketch;
    imgMeter_[static_cast<size_t>(t)]->setObjectName(QString("imgMeter(%1)").arg(t));
    tp->addWidget(imgMeter_[static_cast<size_t>(t)], 1);

    QGroupBox* element = frame(gas ? 8 : 4, "Element Data", "Orifice Data Input");
    auto* el = new QGridLayout(element);
    fieldRow(el, 0, "&Orifice Diameter:", g + 2);
    fieldRow(el, 1, "Temp Ref:", p + 2);
    txtData_[p + 2]->setToolTip("T at which Orifice Diameter Measured");
    fieldRow(el, 2, gas ? "Drain Hole:" : "Vent Hole:", p + 3);
    cboElementMaterial_[static_cast<size_t>(t)] = materialList("cboElementMaterial", t, true);
    el->addWidget(new QLabel("Material:"), 3, 0);
    el->addWidget(cboElementMaterial_[static_cast<size_t>(t)], 3, 1, 1, 2);
    fieldRow(el, 4, "Expan Coef:", p + 4);
    txtData_[p + 4]->setToolTip("Material Expansion Coefficient");

    QGroupBox* pipe = frame(gas ? 9 : 1, "Pipe Data", "Pipe/Tube Data Input");
    auto* pi = new QGridLayout(pipe);
    QPushButton* sizes = command(QString("cmdTable(%1)").arg(t), "...", [this, t] { model_.cmdTable_Click(t); });
    sizes->setToolTip("Pipe/Tube Diameter Table");
    sizes->setFixedWidth(32);
    fieldRow(pi, 0, "Pipe ID:", p + 5, sizes);
    txtData_[p + 5]->setToolTip("Inside Diameter");
    cboPipeMaterial_[static_cast<size_t>(t)] = materialList("cboPipeMaterial", t, false);
    pi->addWidget(new QLabel("Material:"), 1, 0);
    pi->addWidget(cboPipeMaterial_[static_cast<size_t>(t)], 1, 1, 1, 2);
    fieldRow(pi, 2, "Expan Coef:", p + 6);

    QGroupBox* output = frame(gas ? 11 : 5, "Output", "Calculated Results");
    auto* out = new QGridLayout(output);
    const int d = gas ? 6 : 0;
    displayRow(out, 0, "Beta Ratio, d / D:", d);
    if (!gas)
        txtDisplay_[0]->setToolTip("Generally:  0.1 <= Beta (d/D) <= 0.75");
    displayRow(out, 1, "Discharge Coefficient, C:", d + 1);
    displayRow(out, 2, "Reynold's Number, D:", d + 2);
    txtDisplay_[d + 2]->setToolTip("Re in the Pipe");
    displayRow(out, 3, "Reynold's Number, d:", d + 3);
    txtDisplay_[d + 3]->setToolTip("Re through the Orifice");
    row = 4;
    if (gas) {
        displayRow(out, row++, "Gas Expansion Factor:", 10);
        displayRow(out, row++, "Pressure Ratio:", 11);
        txtDisplay_[11]->setToolTip("P2/P1");
    }
    displayRow(out, row++, "Minor Loss, K:", gas ? 12 : 4);
    txtDisplay_[gas ? 12 : 4]->setToolTip("Minor fitting loss Coefficient");
    fieldRow(out, row++, "Velocity, D:", p + 7);
    fieldRow(out, row++, "Velocity, d:", p + 8);
    fieldRow(out, row++, "Pressure Loss:", p + 9);
    txtData_[p + 9]->setToolTip("Permanent Pressure Loss");
    QLineEdit* message = lineEdit(gas ? "txtErrorGas" : "txtErrorLiquid", true);
    message->setAlignment(Qt::AlignLeft);
    message->setToolTip("Computation Errors");
    txtError_[static_cast<size_t>(t)] = message;
    out->addWidget(new QLabel("Message:"), row, 0);
    out->addWidget(message, row, 1, 1, 3);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(command(QString("cmdReset(%1)").arg(t), "Reset Input Fields", [this] { model_.cmdReset_Click(); }));
    QPushButton* guides = command(QString("cmdGuidelines(%1)").arg(t), "&Guidelines", [this] {
        frmOrificeGuides dialog(ui_, this);
        dialog.exec();
    });
    guides->setToolTip("View Orifice Plate Guidelines");
    buttons->addWidget(guides);
    buttons->addWidget(command(QString("cmdHelp(%1)").arg(t), "Help with Equations", [this] { showHelpUnavailable(ui_); }));
    buttons->addStretch();

    auto* left = new QVBoxLayout;
    left->addWidget(props);
    left->addWidget(element);
    left->addWidget(pipe);
    left->addStretch();
    auto* right = new QVBoxLayout;
    auto* options = new QHBoxLayout;
    options->addWidget(compute);
    options->addWidget(taps, 1);
    right->addLayout(options);
    right->addWidget(output);
    right->addLayout(buttons);
    right->addStretch();
    auto* page = new QWidget;
    auto* layout = new QHBoxLayout(page);
    layout->addLayout(left, 1);
    layout->addLayout(right, 1);
    return page;
}

void frmOrificePlates::render()
{
    rendering_ = true;
    const OrificeModel& m = model_;
    setWindowTitle(QString::fromStdString(m.caption));
    if (parentWidget())
        parentWidget()->setWindowTitle(windowTitle());
    tabs_->setCurrentIndex(m.tab);
    for (auto& [index, edit] : txtData_)
        showText(edit, m.txtData[static_cast<size_t>(index)]);
    for (auto& [index, edit] : txtDisplay_)
        showText(edit, m.txtDisplay[static_cast<size_t>(index)]);
    for (auto& [index, units] : cboUnits_)
        units->setCurrentIndex(m.cboUnits[static_cast<size_t>(index)]);
    for (int t = 0; t < 2; ++t) {
        const auto i = static_cast<size_t>(t);
        showText(txtProject_[i], m.txtProject[i]);
        showText(txtTag_[i], m.txtTag[i]);
        cboElementMaterial_[i]->setCurrentIndex(m.elementMaterial[i]);
        cboPipeMaterial_[i]->setCurrentIndex(m.pipeMaterial[i]);
        optCompute_[static_cast<size_t>(3 * t + m.compute[i])]->setChecked(true);
        optMeterTap_[static_cast<size_t>(3 * t + m.meterTap[i])]->setChecked(true);
        imgMeter_[i]->setTap(m.meterTap[i]);
        frames_[t == 0 ? 0 : 10]->setTitle(QString::fromStdString(m.propertiesCaption[i]));
        // The solved quantity is locked and tinted, its unit list tinted but usable.
        for (int field : kSolvable[i]) {
            const bool locked = m.fieldLocked(field);
            QLineEdit* edit = txtData_[field];
            edit->setReadOnly(locked);
            edit->setFocusPolicy(locked ? Qt::NoFocus : Qt::StrongFocus);
            for (QWidget* w : {static_cast<QWidget*>(edit), static_cast<QWidget*>(cboUnits_[field])}) {
                QPalette p = w->palette();
                p.setColor(QPalette::Base, locked ? kLocked : QApplication::palette().color(QPalette::Base));
                p.setColor(QPalette::Button, locked ? kLocked : QApplication::palette().color(QPalette::Button));
                w->setPalette(p);
            }
        }
    }
    showText(txtError_[0], m.txtErrorLiquid);
    showText(txtError_[1], m.txtErrorGas);
    if (!model_.focusRequest.empty()) {
        const int field = indexOf(QString::fromStdString(model_.focusRequest));
        model_.focusRequest.clear();
        if (txtData_.count(field) && isVisible())
            txtData_[field]->setFocus();
    }
    rendering_ = false;
}

void frmOrificePlates::commit(QLineEdit* field)
{
    const QString name = field->objectName();
    const int index = indexOf(name);
    const std::string text = field->text().toStdString();
    if (name.startsWith("txtData(")) {
        model_.txtData[static_cast<size_t>(index)] = text;
        model_.txtData_LostFocus(index);
    } else if (name == "txtDisplay(5)") {
        model_.txtDisplay[5] = text;
        model_.txtDisplay_LostFocus(5);
    } else if (name.startsWith("txtProject(")) {
        model_.txtProject[static_cast<size_t>(index)] = text;
    } else if (name.startsWith("txtTag(")) {
        model_.txtTag[static_cast<size_t>(index)] = text;
    }
}

bool frmOrificePlates::numericField(const QLineEdit& field, bool& minusAllowed) const
{
    minusAllowed = true;
    return field.objectName().startsWith("txtData(") || field.objectName() == "txtDisplay(5)";
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
