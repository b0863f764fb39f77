#include "tools/piping/ui/piping_dialogs.h"

#include "forms/model/user_interface.h"
#include "forms/ui/accessible_names.h"
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
    using namespace pipe_sizes;
    QTabWidget* tabs = view().tabs(tabPipeClass);
    view().status(tabs, "Pipe Standards");
    for (int c = 0; c < 2; ++c)
        tabs->addTab(buildClass(c), PipeModel::classCaption(c));
    auto* copy = new QPushButton("C&opy to Clipboard", this);
    copy->setObjectName("cmdCopy");
    copy->setAutoDefault(false);
    connect(copy, &QPushButton::clicked, this, [this] { view().guard([this] { copySelection(); }); });
    onCancel = [this] { model_.cmdClose_Click(); };
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(copy);
    buttons->addStretch();
    buttons->addWidget(view().button(cmdSelect, "Use the Selected Size and Roughness"));
    buttons->addWidget(view().button(cmdClose, "&Close"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(tabs);
    layout->addLayout(buttons);
    resize(780, 560);
}

// The selected cells of the grid in front, as text, onto the clipboard.
void frmPipe::copySelection()
{
    const auto ranges = grid_[static_cast<size_t>(model_.view().pipeClass)]->selectedRanges();
    if (ranges.isEmpty())
        return;
    const auto& r = ranges.front();
    QApplication::clipboard()->clear();
    QApplication::clipboard()->setText(
        QString::fromStdString(model_.copyText(r.topRow(), r.leftColumn(), r.bottomRow(), r.rightColumn())));
}

QWidget* frmPipe::buildClass(int c)
{
    using namespace pipe_sizes;
    auto* page = new QWidget;
    auto* kinds = new QGroupBox("Material", page);
    view().status(kinds, "Piping Material Listing");
    auto* k = new QVBoxLayout(kinds);
    for (int i = 0; i < 3; ++i)
        k->addWidget(view().option(optMaterial(c, i), PipeModel::kindCaption(i)));
    auto* list = new QListWidget(kinds);
    list->setAccessibleName("Material");
    list->setObjectName(QString::fromStdString(lstMaterial(c).name()));
    view().status(list, "Piping Material Listing");
    connect(list, &QListWidget::currentRowChanged, this, [this, c](int row) {
        if (!drawing_ && row >= 0)
            view().guard([&] { model_.choose(lstMaterial(c), row); });
    });
    lstMaterial_[static_cast<size_t>(c)] = list;
    k->addWidget(list);

    auto* condition = new QGroupBox("Condition", page);
    view().status(condition, "Condition/Age of the Pipe");
    auto* cl = new QHBoxLayout(condition);
    const char* captions[] = {"&New", "&Used (x 3)"};
    for (int i = 0; i < 2; ++i)
        cl->addWidget(view().option(optCondition(c, i), captions[i]));
    auto* roughness = new QHBoxLayout;
    roughness->addWidget(new QLabel("Absolute Roughness:", page));
    roughness->addWidget(view().field(txtRoughness(c)));
    roughness->addWidget(view().unitList(cboUnits(c), "Roughness"));

    auto* left = new QVBoxLayout;
    left->addWidget(kinds, 1);
    left->addWidget(condition);
    left->addLayout(roughness);
    auto* layout = new QHBoxLayout(page);
    layout->addLayout(left);
    layout->addWidget(buildGrid(c), 3);
    return page;
}

QTableWidget* frmPipe::buildGrid(int c)
{
    auto* grid = new QTableWidget;
    grid->setObjectName(QString::fromStdString(pipe_sizes::grdPipeSize(c).name()));
    grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid->verticalHeader()->setVisible(false);
    grid->verticalHeader()->setDefaultSectionSize(grid->fontMetrics().height() + 8);
    grid->horizontalHeader()->setStretchLastSection(true);
    grid->horizontalHeader()->setDefaultAlignment(Qt::AlignCenter);
    // The marked cell: yellow text on blue.
    QPalette marked = grid->palette();
    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        marked.setColor(group, QPalette::Highlight, QColor(0, 0, 255));
        marked.setColor(group, QPalette::HighlightedText, QColor(255, 255, 0));
    }
    grid->setPalette(marked);
    view().status(grid, "Pipe Data");
    connect(grid, &QTableWidget::currentCellChanged, this, [this, c](int row, int column) {
        if (!drawing_)
            view().guard([&] { model_.setCurrentCell(c, row, column); });
    });
    connect(grid, &QTableWidget::cellDoubleClicked, this,
            [this, c] { view().guard([&] { model_.doubleClick(pipe_sizes::grdPipeSize(c)); }); });
    grid_[static_cast<size_t>(c)] = grid;
    return grid;
}

// The grid of a material: every column, centred headings, equal neighbours
// merged, odd rows tinted.
void frmPipe::fillGrid(int c)
{
    const PipeTable& table = model_.view().classes[static_cast<size_t>(c)].grid;
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
                item->setBackground(tintColour());
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

// The material lists and the grids: each drawn again only when what it
// shows has changed.
void frmPipe::renderDrawing()
{
    drawing_ = true;
    for (int c = 0; c < 2; ++c) {
        const PipeClassState& s = model_.view().classes[static_cast<size_t>(c)];
        QListWidget* list = lstMaterial_[static_cast<size_t>(c)];
        if (shownMaterials_[static_cast<size_t>(c)] != s.materials) {
            list->clear();
            for (const std::string& m : s.materials)
                list->addItem(QString::fromStdString(m));
            shownMaterials_[static_cast<size_t>(c)] = s.materials;
        }
        list->setCurrentRow(s.material);
        if (shownGrid_[static_cast<size_t>(c)] != s.grid) {
            fillGrid(c);
            shownGrid_[static_cast<size_t>(c)] = s.grid;
        }
    }
    drawing_ = false;
    const bool selecting = model_.view().cmdSelect.enabled;
    if (auto* select = findChild<QPushButton*>("cmdSelect"))
        select->setDefault(selecting);
}

// --- Roughness ------------------------------------------------------------------

frmRoughness::frmRoughness(RoughnessModel& model, UserInterface& ui, QWidget* parent)
    : ToolDialog(model, ui, "frmRoughness", RoughnessModel::kTitle, parent)
{
    using namespace roughness;
    view().status(this, "Absolute Material Roughness");
    auto* materials = new QGroupBox("Material Roughness", this);
    view().status(materials, "Absolute Material Roughness");
    auto* m = new QGridLayout(materials);
    m->addWidget(new QLabel("<b>Absolute Roughness, ft (mm)</b>", materials), 0, 1);
    for (int i = 0; i < 9; ++i) {
        const RoughnessMaterial& entry = roughnessMaterials()[static_cast<size_t>(i)];
        m->addWidget(view().option(optPipeRoughness(i), entry.caption), i + 1, 0);
        m->addWidget(new QLabel(entry.label, materials), i + 1, 1);
    }
    auto* condition = new QGroupBox("Condition", this);
    view().status(condition, "Condition/Age of Pipe");
    auto* c = new QHBoxLayout(condition);
    c->addWidget(view().option(optPipeCondition(0), "&New"));
    c->addWidget(view().option(optPipeCondition(1), "Used (x3)"));
    auto* value = new QHBoxLayout;
    value->addWidget(new QLabel("Absolute Roughness:", this));
    value->addWidget(view().field(txtData));
    value->addWidget(view().unitList(cboUnits, "Roughness"));
    select_ = view().button(cmdSelect, "Apply Roughness");
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(view().button(cmdReset, "Reset Input Fields"));
    buttons->addStretch();
    buttons->addWidget(select_);
    buttons->addWidget(view().button(cmdExit, "&Close"));
    onCancel = [&model] { model.cmdExit_Click(); };
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(materials);
    layout->addWidget(condition);
    layout->addLayout(value);
    layout->addLayout(buttons);
}

void frmRoughness::renderDrawing()
{
    select_->setDefault(select_->isEnabled());
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
    : ToolDialog(model, ui, "frmMinorLosses", "Minor Pipe Losses", parent)
{
    using namespace minor_losses;
    view().setEnterAsTab(true);
    view().setArrowsWalk(true);
    QTabWidget* tabs = fittingTabs(); // before the sketch, which watches the quantities
    auto* right = new QVBoxLayout;
    right->addWidget(reducerFrame());
    right->addWidget(totalsFrame());
    right->addWidget(new FittingSketch(this));
    right->addStretch();
    auto* top = new QHBoxLayout;
    top->addWidget(tabs, 2);
    top->addLayout(right, 1);
    QPushButton* apply = view().button(cmdApply, "Apply Results");
    apply->setDefault(true);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(view().button(cmdReset, "Reset Input Fields"));
    buttons->addStretch();
    buttons->addWidget(apply);
    buttons->addWidget(view().button(cmdClose, "&Close"));
    onCancel = [&model] { model.cmdClose_Click(); };
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addLayout(buttons);
    view().compactLayouts();
}

namespace {

// A fitting as a screen reader names it: its group, then its caption; a
// caption that continues the heading of a caption above it in its group
// ("Stub-in Type Branch:" under "Tee, Branch Flow:  Standard, Screwed:") is
// read with that heading, so that no two fittings are read alike.
QString spokenFitting(const QString& group, const QString& caption, QString& heading)
{
    QString spoken = spokenCaption(caption);
    if (const qsizetype colon = spoken.indexOf(':'); colon >= 0) {
        heading = spoken.left(colon);
        spoken = spoken.mid(colon + 1).trimmed();
    }
    return group + ", " + (heading.isEmpty() ? spoken : heading + ": " + spoken);
}

} // namespace

// The fittings on three tabs, each group of like fittings in a frame of its own.
QTabWidget* frmMinorLosses::fittingTabs()
{
    auto* tabs = new QTabWidget(this);
    std::map<QString, QGridLayout*> pages;
    for (const char* tab : {"Piping", "Elbows", "Valves"}) {
        auto* page = new QWidget;
        pages[tab] = new QGridLayout(page);
        tabs->addTab(page, QString("  &") + tab);
    }
    const std::map<QString, QString> groupStatus{{"Valve Types", "Define Valve Losses"},
                                                 {"Check Valves", "Define Check Valve Losses"},
                                                 {"Entrance / Exit", "Entrance and Exit Losses"},
                                                 {"Tees", "Piping Tee Losses"}};
    std::map<QString, QGroupBox*> groups;
    QString heading; // of the captions that continue it, within a group
    for (int n = 0; n < minor_losses::kFittings; ++n) {
        const Fitting& f = fittings()[static_cast<size_t>(n)];
        const QString groupName = QString::fromUtf8(f.group);
        QGroupBox*& group = groups[groupName];
        if (!group) {
            heading.clear();
            group = new QGroupBox(groupName);
            group->setLayout(new QGridLayout);
            if (groupStatus.count(groupName))
                view().status(group, groupStatus.at(groupName));
            QGridLayout* page = pages[f.tab];
            page->addWidget(group, page->rowCount(), 0);
        }
        auto* layout = static_cast<QGridLayout*>(group->layout());
        QLineEdit* quantity = view().field(minor_losses::txtQuantity(n));
        quantity->setMaximumWidth(70);
        quantity->setProperty("fittingGroup", groupName);
        const int row = layout->rowCount();
        const QString caption = QString::fromUtf8(f.label);
        quantity->setAccessibleName(spokenFitting(groupName, caption, heading));
        layout->addWidget(new QLabel(caption), row, 0);
        layout->addWidget(quantity, row, 1);
    }
    QGridLayout* elbows = pages["Elbows"];
    auto* note = new QLabel("** Note:  Use R/D=1.5 values for R/D=5 bends for 45°, 90°, and 180° elbows. **");
    note->setWordWrap(true);
    elbows->addWidget(note, elbows->rowCount(), 0);
    for (auto& [name, page] : pages)
        page->setRowStretch(page->rowCount(), 1);
    return tabs;
}

QGroupBox* frmMinorLosses::reducerFrame()
{
    using namespace minor_losses;
    auto* reducers = new QGroupBox("Enlargements and Contractions", this);
    view().status(reducers, "Enlargement and Contraction Losses");
    auto* r = new QGridLayout(reducers);
    const char* labels[] = {"Enlargements:", "Contractions:", "Other Losses, K3:"};
    for (int i = 0; i < 3; ++i) {
        r->addWidget(new QLabel(labels[i]), i, 0);
        r->addWidget(view().field(txtKValue(i)), i, 1);
    }
    r->addWidget(view().button(cmdEnlargementTable, "Compute Enlargements"), 0, 2);
    r->addWidget(view().button(cmdContractionTable, "Compute Contractions"), 1, 2);
    return reducers;
}

QGroupBox* frmMinorLosses::totalsFrame()
{
    using namespace minor_losses;
    auto* totals = new QGroupBox("Totals", this);
    auto* t = new QGridLayout(totals);
    const Control fields[] = {txtTotalK1, txtTotalK2, txtTotalK};
    const char* labels[] = {"K1:", "K2:", "K3:"};
    for (int i = 0; i < 3; ++i) {
        t->addWidget(new QLabel(labels[i]), i, 0);
        t->addWidget(view().field(fields[i]), i, 1);
    }
    return totals;
}

// --- Contractions and enlargements ------------------------------------------------------

frmReducer::frmReducer(ReducerModel& model, UserInterface& ui, QWidget* parent)
    : ToolDialog(model, ui, model.title() == "Contractions" ? "frmContractions" : "frmEnlargements",
                 QString::fromStdString(model.title() == "Contractions" ? "Contractions" : "Enlargements"), parent)
{
    using namespace reducer;
    const bool contraction = model.title() == "Contractions";
    view().status(this, contraction ? "Compute Contraction Losses" : "Compute Enlargement Losses");
    auto* grid = new QGridLayout;
    grid->addWidget(new QLabel(QString::fromStdString(model.gradualLabel())), 0, 0);
    grid->addWidget(new QLabel("Angle"), 0, 1);
    grid->addWidget(new QLabel("Beta"), 0, 2);
    grid->addWidget(new QLabel("K"), 0, 3);
    for (int row = 0; row < kRows; ++row) {
        const bool gradual = row < kGradualRows;
        const int line = gradual ? row + 1 : row + 2;
        if (row == kGradualRows)
            grid->addWidget(new QLabel(QString::fromStdString(model.suddenLabel())), line - 1, 0);
        // A screen reader names each row's fields by its kind and number.
        const QString rowName = QString("%1 %2 ").arg(
            spokenCaption(QString::fromStdString(gradual ? model.gradualLabel() : model.suddenLabel())),
            QString::number(gradual ? row + 1 : row - kGradualRows + 1));
        if (gradual) {
            QLineEdit* angle = view().field(txtAngle(row));
            angle->setProperty("fittingGroup", "Gradual");
            angle->setAccessibleName(rowName + "Angle");
            view().status(angle, "Valid angles:  0 < Angle < 180");
            grid->addWidget(angle, line, 1);
        }
        QLineEdit* beta = view().field(txtBeta(row));
        beta->setProperty("fittingGroup", gradual ? "Gradual" : "Sudden");
        beta->setAccessibleName(rowName + "Beta");
        view().status(beta, contraction ? "Valid Beta:  0 < Beta < 1" : "Valid angles:  0 < Angle < 180");
        grid->addWidget(beta, line, 2);
        QLineEdit* k = view().field(txtKValue(row));
        k->setAccessibleName(rowName + "K");
        grid->addWidget(k, line, 3);
    }
    grid->addWidget(new QLabel("Total K:"), kRows + 2, 2);
    grid->addWidget(view().field(txtTotalK), kRows + 2, 3);

    QPushButton* apply = view().button(cmdApply, "Apply Results");
    apply->setDefault(true);
    QPushButton* help = view().button(reducer::cmdHelp, "Help with Equations");
    help->setAutoDefault(false);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(view().button(cmdReset, "Reset All Input Data"));
    buttons->addWidget(help);
    buttons->addStretch();
    buttons->addWidget(apply);
    buttons->addWidget(view().button(cmdClose, "&Close"));
    onCancel = [&model] { model.cmdClose_Click(); };
    auto* top = new QHBoxLayout;
    top->addLayout(grid);
    top->addWidget(new FittingSketch(this), 0, Qt::AlignTop);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addLayout(buttons);
}

} // namespace kestrova
