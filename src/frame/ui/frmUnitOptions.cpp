#include "frame/ui/frmUnitOptions.h"

#include "forms/ui/accessible_names.h"
#include "forms/ui/form_view.h"
#include "forms/model/help_contexts.h"
#include "forms/model/user_interface.h"
#include "forms/ui/exception_barrier.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace kestrova {

frmUnitOptions::frmUnitOptions(UserInterface& ui, SettingsStore& store, QWidget* parent)
    : QDialog(parent), model_(ui, store), ui_(ui)
{
    setObjectName("frmUnitOptions");
    setProperty(kHelpContextProperty, help::UnitsOfMeasure);
    setWindowTitle("Units of Measure");
    ui_.setBusyPointer(true);

    auto* form = new QFormLayout;
    for (const auto& combo : UnitOptionsModel::combos()) {
        auto* box = new QComboBox(this);
        box->setObjectName(combo.name);
        box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        for (const std::string& item : UnitOptionsModel::comboItems(combo.name))
            box->addItem(QString::fromStdString(item));
        const size_t at = combos_.size();
        connect(box, &QComboBox::activated, this, guarded("the last action in Units of Measure", ui_, [this, at](int index) {
            model_.listIndex[at] = static_cast<UnitIndex>(index);
        }));
        box->installEventFilter(this);
        combos_.push_back(box);
        form->addRow(combo.label, box);
    }

    auto* sets = new QGroupBox("Standard Unit Sets", this);
    sets->setObjectName("Frame1");
    auto* setsLayout = new QVBoxLayout(sets);
    const char* setNames[] = {"&American Engineering Units", "&Metric Units", "&SI Units"};
    for (int i = 0; i < 3; ++i) {
        auto* option = new QRadioButton(setNames[i], sets);
        option->setObjectName(QString("Option1(%1)").arg(i));
        option->setToolTip("Select a Global Unit Set to Display Data");
        connect(option, &QRadioButton::clicked, this, guarded("the last action in Units of Measure", ui_, [this, i] {
            model_.Option1_Click(i);
            render();
        }));
        option->installEventFilter(this);
        setsLayout->addWidget(option);
    }
    setsLayout->addStretch();

    auto* setDefault = new QPushButton("&Set as Default", this);
    setDefault->setObjectName("cmdSetDefault");
    setDefault->setToolTip("Set Above Units Globally");
    connect(setDefault, &QPushButton::clicked, this, guarded("the last action in Units of Measure", ui_, [this] { model_.cmdSetDefault_Click(); }));
    auto* saveDefault = new QPushButton("Save as &Default", this);
    saveDefault->setObjectName("cmdSaveDefault");
    saveDefault->setToolTip("Save Above Global Units");
    connect(saveDefault, &QPushButton::clicked, this, guarded("the last action in Units of Measure", ui_, [this] { model_.cmdSaveDefault_Click(); }));
    auto* closeButton = new QPushButton("&Close", this);
    closeButton->setObjectName("cmdClose");
    closeButton->setToolTip("Close");
    connect(closeButton, &QPushButton::clicked, this, &QDialog::accept);
    for (QPushButton* button : {setDefault, saveDefault, closeButton}) {
        button->setAutoDefault(false);
        button->installEventFilter(this);
    }

    auto* right = new QVBoxLayout;
    right->addWidget(sets);
    right->addStretch();
    right->addWidget(setDefault);
    right->addWidget(saveDefault);
    right->addWidget(closeButton);
    auto* layout = new QHBoxLayout(this);
    layout->addLayout(form);
    layout->addLayout(right);
    setMouseTracking(true);
    nameInputs(*this);
}

void frmUnitOptions::showEvent(QShowEvent* event)
{
    runGuarded("opening Units of Measure", [this] {
        model_.Form_Activate();
        render();
    }, &ui_);
    QDialog::showEvent(event);
}

void frmUnitOptions::render()
{
    for (size_t i = 0; i < combos_.size(); ++i)
        combos_[i]->setCurrentIndex(model_.listIndex[i]);
}

bool frmUnitOptions::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        // Down moves to the next control and Up to the one before.
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Down || key == Qt::Key_Up) {
            focusNextPrevChild(key == Qt::Key_Down);
            return true;
        }
    } else if (event->type() == QEvent::Enter) {
        const QString name = watched->objectName();
        ui_.setStatusText(name.startsWith("Option1") ? "Select a Global Unit Set to Display Data"
                          : name == "cmdClose"       ? "Close"
                          : name == "cmdSetDefault"  ? "Set Above Units Globally"
                          : name == "cmdSaveDefault" ? "Save Above Global Units"
                                                     : "Set the Units of Measurement");
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace kestrova
