#pragma once
// The window skeleton of the small dialog tools of unit fields: a frame of
// rows (caption, txtData(i), and cboUnits(i) where the field has units) and
// the row of buttons "Get Physical Properties", "Reset Input Fields",
// "Apply Results", "Close". Escape closes as Close does.

#include "forms/ui/tool_dialog.h"

#include <initializer_list>

class QGridLayout;
class QGroupBox;
class QHBoxLayout;

namespace kestrova {

class UnitFieldDialog : public ToolDialog {
    Q_OBJECT

protected:
    // A row of the frame: its caption, its field, the tag of its unit list
    // (nullptr: a plain number).
    struct Row {
        const char* caption;
        int field;
        const char* unitTag = nullptr;
    };

    UnitFieldDialog(FormModel& model, UserInterface& ui, const QString& name, const QString& title, QWidget* parent);

    // The frame of rows; `frame` names it where the model sets its caption.
    QGroupBox* fieldRows(const QString& title, std::initializer_list<Row> rows, const Control& frame = {});
    QGridLayout* grid(QGroupBox* rows) const;
    // The calculators of a gas take its properties from the physical
    // properties tool, and Enter applies their result.
    QHBoxLayout* buttonRow(bool gasCalculator);

private:
    FormModel& model_;
};

} // namespace kestrova
