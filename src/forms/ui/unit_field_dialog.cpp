#include "forms/ui/unit_field_dialog.h"

#include "forms/model/unit_field_dialog_model.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace kestrova {

using namespace unit_field_dialog;

UnitFieldDialog::UnitFieldDialog(FormModel& model, UserInterface& ui, const QString& name, const QString& title,
                                 QWidget* parent)
    : ToolDialog(model, ui, name, title, parent), model_(model)
{
    onCancel = [this] { model_.click(cmdClose); };
}

QGroupBox* UnitFieldDialog::fieldRows(const QString& title, std::initializer_list<Row> rows, const Control& frame)
{
    QGroupBox* box = frame.family.empty() ? new QGroupBox(title) : view().frame(frame, title);
    auto* layout = new QGridLayout(box);
    int line = 0;
    for (const Row& row : rows) {
        QLineEdit* field = view().field(txtData(row.field));
        auto* caption = new QLabel(row.caption);
        caption->setBuddy(field);
        layout->addWidget(caption, line, 0);
        layout->addWidget(field, line, 1);
        if (row.unitTag)
            layout->addWidget(view().unitList(cboUnits(row.field), row.unitTag), line, 2);
        ++line;
    }
    return box;
}

QGridLayout* UnitFieldDialog::grid(QGroupBox* rows) const
{
    return static_cast<QGridLayout*>(rows->layout());
}

QHBoxLayout* UnitFieldDialog::buttonRow(bool gasCalculator)
{
    auto* buttons = new QHBoxLayout;
    if (gasCalculator)
        buttons->addWidget(view().button({"cmdPhysProps"}, "Get Physical Properties"));
    buttons->addWidget(view().button(cmdReset, "Reset Input Fields"));
    buttons->addWidget(view().button(cmdHelp, "&Help"));
    buttons->addStretch();
    QPushButton* apply = view().button(cmdApply, "Apply Results");
    apply->setDefault(gasCalculator);
    buttons->addWidget(apply);
    buttons->addWidget(view().button(cmdClose, "&Close"));
    return buttons;
}

} // namespace kestrova
