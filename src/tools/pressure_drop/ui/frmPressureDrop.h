#pragma once
// The pressure drop tool's window: three tabs of controls laid out in code,
// each bound by its program name ("txtData(5)", "cboUnits(5)") to
// PressureDropModel, which says what each shows and takes what the user does.

#include "forms/ui/document_form.h"

#include <array>

class QGridLayout;
class QGroupBox;
class QPushButton;

namespace kestrova {

class PressureDropModel;
class UserInterface;

class frmPressureDrop : public DocumentForm {
    Q_OBJECT

public:
    frmPressureDrop(PressureDropModel& model, UserInterface& ui, QWidget* parent = nullptr);

private:
    QWidget* buildLiquidTab();
    QWidget* buildGasTab();
    QWidget* buildTwoPhaseTab();
    QGroupBox* frame(int index, const QString& caption);
    // A row: label, field, unit list and an optional data button.
    void fieldRow(QGridLayout* grid, int row, const QString& label, int field, int button = -1, int labelIndex = -1);
    void displayRow(QGridLayout* grid, int row, const QString& label, int display, int button = -1);
    void kRow(QGridLayout* grid, int row, int labelIndex, const std::array<int, 3>& fields, int button);
    void fluidRow(QGridLayout* grid, int row, int tab);
    QWidget* projectRows(int tab);
    QPushButton* tableButton(int index);
    QWidget* optionRow(const char* family, int first, const std::array<const char*, 3>& captions,
                       const std::array<const char*, 3>& statuses, int count = 3);
    QPushButton* resetButton(int tab);
};

} // namespace kestrova
