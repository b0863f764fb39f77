#include "tools/piping/ui/piping_dialogs.h"

#include "forms/model/user_interface.h"
#include "forms/ui/exception_barrier.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>

namespace kestrova {

// --- Pipe sizes -----------------------------------------------------------------

frmPipe::frmPipe(PipeModel& model, UserInterface& ui, QWidget* parent)
    : ToolDialog(model, ui, "frmPipe", PipeModel::kTitle, parent), model_(model)
{
    tabs_ = new QTabWidget(this);
    tabs_->setObjectName("tabPipeClass");
    status(tabs_, "Pipe Standards");
    for (int c = 0; c < 2; ++c)
        tabs_->addTab(buildClass(c), PipeModel::classCaption(c));
    connect(tabs_, &QTabWidget::currentChanged, this, guarded(windowTitle().toStdString(), ui_, [this](int c) { model_.tabPipeClass_Click(c); }));
    select_ = button("cmdSelect", "Use the Selected Size and Roughness", [this] { model_.cmdSelect_Click(); });
    auto* copy = button("cmdCopy", "C&opy to Clipboard", [this] {
        QTableWidget* grid = grid_[static_cast<size_t>(model_.pipeClass)];
        const auto ranges = grid->selectedRanges();
        if (ranges.isEmpty())
            return;
        const auto& r = ranges.front();
        QApplication::clipboard()->clear();
        QApplication::clipboard()->setText(QString::fromStdString(
            model_.copyText(r.topRow(), r.leftColumn(), r.bottomRow(), r.rightColumn())));
    });
    auto* close = button("cmdClose", "&Close", [this] { model_.cmdClose_Click(); });
    onCancel = [this] { model_.cmdClose_Click(); };
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(copy);
    buttons->addStretch();
    buttons->addWidget(select_);
    buttons->addWidget(close);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(tabs_);
    layout->addLayout(buttons);
    resize(900, 600);
}

QWidget* frmPipe::buildClass(int c)
{
    auto* page = new QWidget;
    auto* kinds = new QGroupBox("Material", page);
    status(kinds, "Piping Material Listing");
    auto* k = new QVBoxLayout(kinds);
    const QString family = c == 0 ? "optASTMMaterial" : "optDINMaterial";
    for (int i = 0; i < 3; ++i) {
        auto* option = new QRadioButton(PipeModel::kindCaption(i), kinds);
        option->setObjectName(QString("%1(%2)").arg(family).arg(i));
        connect(option, &QRadioButton::clicked, this, guarded(windowTitle().toStdString(), ui_, [this, c, i] { model_.optMaterial_Click(c, i); }));
        optMaterial_[static_cast<size_t>(c)][static_cast<size_t>(i)] = option;
        k->addWidget(option);
    }
    auto* list = new QListWidget(kinds);
    list->setObjectName(QString("lstMaterial(%1)").arg(c));
    status(list, "Piping Material Listing");
    connect(list, &QListWidget::currentRowChanged, this, guarded(windowTitle().toStdString(), ui_, [this, c](int row) {
        if (row >= 0 && row != model_.classes[static_cast<size_t>(c)].material)
            model_.lstMaterial_Click(c, row);
    }));
    lstMaterial_[static_cast<size_t>(c)] = list;
    k->addWidget(list);

    auto* condition = new QGroupBox("Condition", page);
    status(condition, "Condition/Age of the Pipe");
    auto* cl = new QHBoxLayout(condition);
    const QString conditionFamily = c == 0 ? "optASTMCondition" : "optDINCondition";
    const char* captions[] = {"&New", "&Used (x 3)"};
    for (int i = 0; i < 2; ++i) {
        auto* option = new QRadioButton(captions[i], condition);
        option->setObjectName(QString("%1(%2)").arg(conditionFamily).arg(i));
        connect(option, &QRadioButton::clicked, this, guarded(windowTitle().toStdString(), ui_, [this, c, i] { model_.optCondition_Click(c, i); }));
        optCondition_[static_cast<size_t>(c)][static_cast<size_t>(i)] = option;
        cl->addWidget(option);
    }
    auto* roughness = new QHBoxLayout;
    txtRoughness_[static_cast<size_t>(c)] = output(QString("txtRoughness(%1)").arg(c));
    cboUnits_[static_cast<size_t>(c)] = unitList(QString("cboUnits(%1)").arg(c), "Roughness",
                                                 [this, c](int unit) { model_.setUnit(c, static_cast<UnitIndex>(unit)); });
    roughness->addWidget(new QLabel("Absolute Roughness:", page));
    roughness->addWidget(txtRoughness_[static_cast<size_t>(c)]);
    roughness->addWidget(cboUnits_[static_cast<size_t>(c)]);

    auto* grid = new QTableWidget(page);
    grid->setObjectName(QString("grdPipeSize(%1)").arg(c));
    grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid->verticalHeader()->setVisible(false);
    grid->verticalHeader()->setDefaultSectionSize(grid->fontMetrics().height() + 8);
    grid->horizontalHeader()->setStretchLastSection(true);
    grid->horizontalHeader()->setDefaultAlignment(Qt::AlignCenter);
    grid->setStyleSheet("QTableWidget::item:focus { background-color: rgb(255, 255, 0); color: rgb(0, 0, 255); }");
    status(grid, "Pipe Data");
    connect(grid, &QTableWidget::currentCellChanged, this, guarded(windowTitle().toStdString(), ui_, [this, c](int row, int column) {
        model_.setCurrentCell(c, row, column);
    }));
    connect(grid, &QTableWidget::cellDoubleClicked, this, guarded(windowTitle().toStdString(), ui_, [this] {
        if (model_.selectEnabled)
            model_.cmdSelect_Click();
    }));
    grid_[static_cast<size_t>(c)] = grid;

    auto* left = new QVBoxLayout;
    left->addWidget(kinds, 1);
    left->addWidget(condition);
    left->addLayout(roughness);
    auto* layout = new QHBoxLayout(page);
    layout->addLayout(left);
    layout->addWidget(grid, 3);
    return page;
}

// The grid of a material: every column, centred headings, equal neighbours
// merged, odd rows tinted.
void frmPipe::fillGrid(int c)
{
    const PipeTable& table = model_.classes[static_cast<size_t>(c)].grid;
    QTableWidget* grid = grid_[static_cast<size_t>(c)];
    grid->clearSpans();
    grid->clear();
    grid->setColumnCount(static_cast<int>(table.headings.size()));
    grid->setRowCount(static_cast<int>(table.rows.size()));
    QStringList headings;
    for (const std::string& h : table.headings)
        headings << " " + QString::fromStdString(h) + " ";
    grid->setHorizontalHeaderLabels(headings);
    for (int r = 0; r < static_cast<int>(table.rows.size()); ++r)
        for (int col = 0; col < static_cast<int>(table.headings.size()); ++col) {
            auto* item = new QTableWidgetItem(QString::fromStdString(table.rows[static_cast<size_t>(r)][static_cast<size_t>(col)]));
            item->setTextAlignment(Qt::AlignCenter);
            if ((r + 1) % 2 == 1)
                item->setBackground(QColor(0xC0, 0xC0, 0xFF));
            grid->setItem(r, col, item);
        }
    for (int col = 0; col < static_cast<int>(table.headings.size()); ++col) {
        int start = 0;
        for (int r = 1; r <= static_cast<int>(table.rows.size()); ++r) {
            const bool same = r < static_cast<int>(table.rows.size()) &&
                              table.rows[static_cast<size_t>(r)][static_cast<size_t>(col)] ==
                                  table.rows[static_cast<size_t>(start)][static_cast<size_t>(col)];
            if (!same) {
                if (r - start > 1)
                    grid->setSpan(start, col, r - start, 1);
                start = r;
            }
        }
    }
    grid->resizeColumnsToContents();
}

void frmPipe::render()
{
    tabs_->setCurrentIndex(model_.pipeClass);
    for (int c = 0; c < 2; ++c) {
        const PipeModel::ClassState& s = model_.classes[static_cast<size_t>(c)];
        optMaterial_[static_cast<size_t>(c)][static_cast<size_t>(s.kind)]->setChecked(true);
        optCondition_[static_cast<size_t>(c)][static_cast<size_t>(s.condition)]->setChecked(true);
        QListWidget* list = lstMaterial_[static_cast<size_t>(c)];
        if (shownMaterials_[static_cast<size_t>(c)] != s.materials) {
            const QSignalBlocker block(list);
            list->clear();
            for (const std::string& m : s.materials)
                list->addItem(QString::fromStdString(m));
            shownMaterials_[static_cast<size_t>(c)] = s.materials;
        }
        {
            const QSignalBlocker block(list);
            list->setCurrentRow(s.material);
        }
        if (shownGrid_[static_cast<size_t>(c)] != &s.grid || grid_[static_cast<size_t>(c)]->columnCount() != static_cast<int>(s.grid.headings.size()) ||
            grid_[static_cast<size_t>(c)]->rowCount() != static_cast<int>(s.grid.rows.size()) ||
            (s.grid.rows.size() && grid_[static_cast<size_t>(c)]->item(0, 0)->text().toStdString() != s.grid.rows[0][0])) {
            fillGrid(c);
            shownGrid_[static_cast<size_t>(c)] = &s.grid;
        }
        setText(txtRoughness_[static_cast<size_t>(c)], s.roughnessText);
        cboUnits_[static_cast<size_t>(c)]->setCurrentIndex(s.unit);
    }
    select_->setEnabled(model_.selectEnabled);
    select_->setDefault(model_.selectEnabled);
}

// --- Roughness ------------------------------------------------------------------

frmRoughness::frmRoughness(RoughnessModel& model, UserInterface& ui, QWidget* parent)
    : ToolDialog(model, ui, "frmRoughness", RoughnessModel::kTitle, parent), model_(model)
{
    status(this, "Absolute Material Roughness");
    auto* materials = new QGroupBox("Material Roughness", this);
    status(materials, "Absolute Material Roughness");
    auto* m = new QGridLayout(materials);
    m->addWidget(new QLabel("<b>Absolute Roughness, ft (mm)</b>", materials), 0, 1);
    for (int i = 0; i < 9; ++i) {
        const RoughnessMaterial& entry = roughnessMaterials()[static_cast<size_t>(i)];
        auto* option = new QRadioButton(entry.caption, materials);
        option->setObjectName(QString("optPipeRoughness(%1)").arg(i));
        connect(option, &QRadioButton::clicked, this, guarded(windowTitle().toStdString(), ui_, [this, i] { model_.optPipeRoughness_Click(i); }));
        option->installEventFilter(this);
        optPipeRoughness_[static_cast<size_t>(i)] = option;
        m->addWidget(option, i + 1, 0);
        m->addWidget(new QLabel(entry.label, materials), i + 1, 1);
    }
    auto* condition = new QGroupBox("Condition", this);
    status(condition, "Condition/Age of Pipe");
    auto* c = new QHBoxLayout(condition);
    const char* captions[] = {"&New", "Used (x3)"};
    const char* tips[] = {"New Pipe", "Used Pipe (new roughness x 3)"};
    for (int i = 0; i < 2; ++i) {
        auto* option = new QRadioButton(captions[i], condition);
        option->setObjectName(QString("optPipeCondition(%1)").arg(i));
        option->setToolTip(tips[i]);
        connect(option, &QRadioButton::clicked, this, guarded(windowTitle().toStdString(), ui_, [this, i] { model_.optPipeCondition_Click(i); }));
        optPipeCondition_[static_cast<size_t>(i)] = option;
        c->addWidget(option);
    }
    txtData_ = field("txtData", [this](const QString& text) {
        model_.txtData = text.toStdString();
        model_.txtData_LostFocus();
    }, true, false);
    cboUnits_ = unitList("cboUnits", "Roughness", [this](int unit) { model_.setUnit(static_cast<UnitIndex>(unit)); });
    auto* value = new QHBoxLayout;
    value->addWidget(new QLabel("Absolute Roughness:", this));
    value->addWidget(txtData_);
    value->addWidget(cboUnits_);
    select_ = button("cmdSelect", "Apply Roughness", [this] { model_.cmdSelect_Click(); });
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(button("cmdReset", "Reset Input Fields", [this] { model_.cmdReset_Click(); }));
    buttons->addStretch();
    buttons->addWidget(select_);
    buttons->addWidget(button("cmdExit", "&Close", [this] { model_.cmdExit_Click(); }));
    onCancel = [this] { model_.cmdExit_Click(); };
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(materials);
    layout->addWidget(condition);
    layout->addLayout(value);
    layout->addLayout(buttons);
}

void frmRoughness::render()
{
    optPipeRoughness_[static_cast<size_t>(model_.material)]->setChecked(true);
    optPipeCondition_[static_cast<size_t>(model_.condition)]->setChecked(true);
    setText(txtData_, model_.txtData);
    cboUnits_->setCurrentIndex(model_.unit);
    select_->setEnabled(model_.selectEnabled);
    select_->setDefault(model_.selectEnabled);
}

// --- Fitting sketches -------------------------------------------------------------

// Made after the form's fields, so that it can watch those that carry a group.
FittingSketch::FittingSketch(QWidget* form) : QWidget(form)
{
    setObjectName("imgFitting");
    setMinimumSize(140, 110);
    for (QLineEdit* field : form->findChildren<QLineEdit*>())
        if (field->property("fittingGroup").isValid())
            field->installEventFilter(this);
}

bool FittingSketch::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn)
        show(watched->property("fittingGroup").toString());
    else if (event->type() == QEvent::FocusOut)
        show(QString());
    return QWidget::eventFilter(watched, event);
}

void FittingSketch::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.fillRect(rect(), palette().color(QPalette::Base));
    p.setPen(QPen(QColor(40, 60, 100), 3));
    const QRectF r = QRectF(rect()).adjusted(15, 15, -15, -15);
    const double cx = r.center().x(), cy = r.center().y();
    QPainterPath path;
    if (group_ == "45°" || group_ == "90°" || group_ == "180°") {
        const double sweep = group_ == "45°" ? 45 : group_ == "90°" ? 90 : 180;
        QRectF arc(cx - 35, cy - 35, 70, 70);
        path.arcMoveTo(arc, 180);
        path.arcTo(arc, 180, -sweep);
        p.drawPath(path);
        p.drawText(rect().adjusted(0, 0, 0, -4), Qt::AlignBottom | Qt::AlignHCenter, group_ + " elbow");
    } else if (group_ == "Valve Types" || group_ == "Check Valves") {
        p.drawLine(QPointF(r.left(), cy), QPointF(cx - 20, cy));
        p.drawLine(QPointF(cx + 20, cy), QPointF(r.right(), cy));
        QPolygonF bowtie{{cx - 20, cy - 15}, {cx + 20, cy + 15}, {cx + 20, cy - 15}, {cx - 20, cy + 15}};
        p.drawPolygon(bowtie);
        if (group_ == "Check Valves")
            p.drawLine(QPointF(cx - 30, cy - 25), QPointF(cx + 30, cy - 25));
    } else if (group_ == "Tees") {
        p.drawLine(QPointF(r.left(), cy), QPointF(r.right(), cy));
        p.drawLine(QPointF(cx, cy), QPointF(cx, r.top()));
    } else if (group_ == "Entrance / Exit") {
        p.drawLine(QPointF(r.left() + 20, r.top()), QPointF(r.left() + 20, r.bottom()));
        p.drawLine(QPointF(r.left() + 20, cy - 12), QPointF(r.right(), cy - 12));
        p.drawLine(QPointF(r.left() + 20, cy + 12), QPointF(r.right(), cy + 12));
    } else if (group_ == "Gradual" || group_ == "Sudden") {
        const double step = group_ == "Gradual" ? 30 : 0;
        p.drawLine(QPointF(r.left(), cy - 25), QPointF(cx - step / 2, cy - 25));
        p.drawLine(QPointF(cx - step / 2, cy - 25), QPointF(cx + step / 2, cy - 10));
        p.drawLine(QPointF(cx + step / 2, cy - 10), QPointF(r.right(), cy - 10));
        p.drawLine(QPointF(r.left(), cy + 25), QPointF(cx - step / 2, cy + 25));
        p.drawLine(QPointF(cx - step / 2, cy + 25), QPointF(cx + step / 2, cy + 10));
        p.drawLine(QPointF(cx + step / 2, cy + 10), QPointF(r.right(), cy + 10));
    }
}

// --- Minor losses -------------------------------------------------------------------

frmMinorLosses::frmMinorLosses(MinorLossesModel& model, UserInterface& ui, QWidget* parent)
    : ToolDialog(model, ui, "frmMinorLosses", "Minor Pipe Losses", parent), model_(model)
{
    auto* tabs = new QTabWidget(this);
    std::map<QString, QGridLayout*> pages;
    std::map<QString, QGroupBox*> groups;
    for (const char* tab : {"Piping", "Elbows", "Valves"}) {
        auto* page = new QWidget;
        pages[tab] = new QGridLayout(page);
        tabs->addTab(page, QString("  &") + tab);
    }
    const std::map<QString, QString> groupStatus{{"Valve Types", "Define Valve Losses"},
                                                 {"Check Valves", "Define Check Valve Losses"},
                                                 {"Entrance / Exit", "Entrance and Exit Losses"},
                                                 {"Tees", "Piping Tee Losses"}};
    std::map<QString, int> rows;
    for (int n = 0; n < 35; ++n) {
        const Fitting& f = fittings()[static_cast<size_t>(n)];
        const QString groupName = QString::fromUtf8(f.group);
        QGroupBox*& group = groups[groupName];
        if (!group) {
            group = new QGroupBox(groupName);
            group->setLayout(new QGridLayout);
            if (groupStatus.count(groupName))
                status(group, groupStatus.at(groupName));
            QGridLayout* page = pages[f.tab];
            page->addWidget(group, page->rowCount(), 0);
        }
        auto* layout = static_cast<QGridLayout*>(group->layout());
        QLineEdit* edit = field(QString("txtQuantity(%1)").arg(n), [this, n](const QString& text) {
            model_.txtQuantity[static_cast<size_t>(n)] = text.toStdString();
            model_.Sum();
        }, true, false);
        edit->setMaximumWidth(70);
        edit->setToolTip(QString("K1 = %1, K2 = %2").arg(f.K1).arg(f.K2));
        edit->setProperty("fittingGroup", groupName);
        connect(edit, &QLineEdit::textEdited, this, guarded(windowTitle().toStdString(), ui_, [this, n](const QString& text) {
            model_.txtQuantity[static_cast<size_t>(n)] = text.toStdString();
            model_.Sum();
        }));
        txtQuantity_[static_cast<size_t>(n)] = edit;
        const int row = rows[groupName]++;
        layout->addWidget(new QLabel(QString::fromUtf8(f.label)), row, 0);
        layout->addWidget(edit, row, 1);
    }
    auto* note = new QLabel("** Note:  Use R/D=1.5 values for R/D=5 bends for 45°, 90°, and 180° elbows. **");
    pages["Elbows"]->addWidget(note, pages["Elbows"]->rowCount(), 0);
    for (auto& [name, page] : pages)
        page->setRowStretch(page->rowCount(), 1);

    auto* reducers = new QGroupBox("Enlargements and Contractions", this);
    status(reducers, "Enlargement and Contraction Losses");
    auto* r = new QGridLayout(reducers);
    const char* labels[] = {"Enlargements:", "Contractions:", "Other Losses, K3:"};
    for (int i = 0; i < 3; ++i) {
        QLineEdit* edit = i == 2 ? field("txtKValue(2)", [this](const QString& text) {
            model_.txtKValue[2] = text.toStdString();
            model_.txtKValue_LostFocus(2);
        }, true, false) : output(QString("txtKValue(%1)").arg(i));
        if (i == 2)
            connect(edit, &QLineEdit::textEdited, this, guarded(windowTitle().toStdString(), ui_, [this](const QString& text) {
                model_.txtKValue[2] = text.toStdString();
                model_.Sum();
            }));
        txtKValue_[static_cast<size_t>(i)] = edit;
        r->addWidget(new QLabel(labels[i]), i, 0);
        r->addWidget(edit, i, 1);
    }
    r->addWidget(button("cmdEnlargementTable", "Compute Enlargements", [this] { model_.cmdEnlargementTable_Click(); }), 0, 2);
    r->addWidget(button("cmdContractionTable", "Compute Contractions", [this] { model_.cmdContractionTable_Click(); }), 1, 2);

    auto* totals = new QGroupBox("Totals", this);
    auto* t = new QGridLayout(totals);
    const char* totalNames[] = {"txtTotalK1", "txtTotalK2", "txtTotalK"};
    const char* totalLabels[] = {"K1:", "K2:", "K3:"};
    for (int i = 0; i < 3; ++i) {
        totals_[i] = output(totalNames[i]);
        totals_[i]->setToolTip(i < 2 ? "Total, 2-K Method" : "Total Resistance Coeficient, K");
        t->addWidget(new QLabel(totalLabels[i]), i, 0);
        t->addWidget(totals_[i], i, 1);
    }
    imgFitting_ = new FittingSketch(this);

    auto* apply = button("cmdApply", "Apply Results", [this] { model_.cmdApply_Click(); });
    apply->setDefault(true);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(button("cmdReset", "Reset Input Fields", [this] { model_.cmdReset_Click(); }));
    buttons->addStretch();
    buttons->addWidget(apply);
    buttons->addWidget(button("cmdClose", "&Close", [this] { model_.cmdClose_Click(); }));
    onCancel = [this] { model_.cmdClose_Click(); };
    auto* right = new QVBoxLayout;
    right->addWidget(reducers);
    right->addWidget(totals);
    right->addWidget(imgFitting_);
    right->addStretch();
    auto* top = new QHBoxLayout;
    top->addWidget(tabs, 2);
    top->addLayout(right, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addLayout(buttons);
}

void frmMinorLosses::render()
{
    for (int n = 0; n < 35; ++n)
        setText(txtQuantity_[static_cast<size_t>(n)], model_.txtQuantity[static_cast<size_t>(n)]);
    for (int i = 0; i < 3; ++i)
        setText(txtKValue_[static_cast<size_t>(i)], model_.txtKValue[static_cast<size_t>(i)]);
    setText(totals_[0], model_.txtTotalK1);
    setText(totals_[1], model_.txtTotalK2);
    setText(totals_[2], model_.txtTotalK);
}


// --- Contractions and enlargements ------------------------------------------------------

frmReducer::frmReducer(ReducerModel& model, UserInterface& ui, QWidget* parent)
    : ToolDialog(model, ui, model.title() == "Contractions" ? "frmContractions" : "frmEnlargements",
                 QString::fromStdString(model.title() == "Contractions" ? "Contractions" : "Enlargements"), parent),
      model_(model)
{
    const bool contraction = model.title() == "Contractions";
    status(this, contraction ? "Compute Contraction Losses" : "Compute Enlargement Losses");
    auto* grid = new QGridLayout;
    grid->addWidget(new QLabel(QString::fromStdString(model.gradualLabel())), 0, 0);
    grid->addWidget(new QLabel("Angle"), 0, 1);
    grid->addWidget(new QLabel("Beta"), 0, 2);
    grid->addWidget(new QLabel("K"), 0, 3);
    for (int row = 0; row < ReducerModel::kRows; ++row) {
        const int line = row < ReducerModel::kGradualRows ? row + 1 : row + 2;
        if (row == ReducerModel::kGradualRows)
            grid->addWidget(new QLabel(QString::fromStdString(model.suddenLabel())), line - 1, 0);
        if (row < ReducerModel::kGradualRows) {
            QLineEdit* angle = field(QString("txtAngle(%1)").arg(row), [this, row](const QString& text) {
                model_.txtAngle[static_cast<size_t>(row)] = text.toStdString();
                model_.txtAngle_LostFocus(row);
            }, true, false);
            angle->setToolTip("Angle in Degrees");
            angle->setProperty("fittingGroup", "Gradual");
            status(angle, "Valid angles:  0 < Angle < 180");
            txtAngle_[static_cast<size_t>(row)] = angle;
            grid->addWidget(angle, line, 1);
        }
        QLineEdit* beta = field(QString("txtBeta(%1)").arg(row), [this, row](const QString& text) {
            model_.txtBeta[static_cast<size_t>(row)] = text.toStdString();
            model_.txtBeta_LostFocus(row);
        }, true, false);
        beta->setToolTip("d / D");
        beta->setProperty("fittingGroup", row < ReducerModel::kGradualRows ? "Gradual" : "Sudden");
        status(beta, contraction ? "Valid Beta:  0 < Beta < 1" : "Valid angles:  0 < Angle < 180");
        txtBeta_[static_cast<size_t>(row)] = beta;
        txtKValue_[static_cast<size_t>(row)] = output(QString("txtKValue(%1)").arg(row));
        grid->addWidget(beta, line, 2);
        grid->addWidget(txtKValue_[static_cast<size_t>(row)], line, 3);
    }
    txtTotalK_ = output("txtTotalK");
    grid->addWidget(new QLabel("Total K:"), ReducerModel::kRows + 2, 2);
    grid->addWidget(txtTotalK_, ReducerModel::kRows + 2, 3);
    imgFitting_ = new FittingSketch(this);

    auto* apply = button("cmdApply", "Apply Results", [this] { model_.cmdApply_Click(); });
    apply->setDefault(true);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(button("cmdReset", "Reset All Input Data", [this] { model_.cmdReset_Click(); }));
    buttons->addWidget(button("cmdHelp", "Help with Equations", [this] {
        showHelpUnavailable(ui_);
    }));
    buttons->addStretch();
    buttons->addWidget(apply);
    buttons->addWidget(button("cmdClose", "&Close", [this] { model_.cmdClose_Click(); }));
    onCancel = [this] { model_.cmdClose_Click(); };
    auto* top = new QHBoxLayout;
    top->addLayout(grid);
    top->addWidget(imgFitting_, 0, Qt::AlignTop);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addLayout(buttons);
}

void frmReducer::render()
{
    for (int row = 0; row < ReducerModel::kRows; ++row) {
        if (row < ReducerModel::kGradualRows)
            setText(txtAngle_[static_cast<size_t>(row)], model_.txtAngle[static_cast<size_t>(row)]);
        setText(txtBeta_[static_cast<size_t>(row)], model_.txtBeta[static_cast<size_t>(row)]);
        setText(txtKValue_[static_cast<size_t>(row)], model_.txtKValue[static_cast<size_t>(row)]);
    }
    setText(txtTotalK_, model_.txtTotalK);
    if (!model_.focusRequest.empty()) {
        if (QWidget* target = findChild<QWidget*>(QString::fromStdString(model_.focusRequest)))
            target->setFocus();
        model_.focusRequest.clear();
    }
}


} // namespace kestrova
