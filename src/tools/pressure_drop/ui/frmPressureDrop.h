#pragma once
// The pressure drop tool's window: three tabs of fields built in code, each
// control named as the program knows it ("txtData(5)", "cboUnits(5)"). It
// forwards the user's events to PressureDropModel and shows what the model holds.

#include "forms/ui/document_form.h"

#include <array>
#include <map>

class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QGridLayout;

namespace kestrova {

class PressureDropModel;
class UserInterface;

class frmPressureDrop : public DocumentForm {
    Q_OBJECT

public:
    frmPressureDrop(PressureDropModel& model, UserInterface& ui, QWidget* parent = nullptr);

    void render() override;

protected:
    void commit(QLineEdit* field) override;
    bool numericField(const QLineEdit& field, bool& minusAllowed) const override;

private:
    QWidget* buildLiquidTab();
    QWidget* buildGasTab();
    QWidget* buildTwoPhaseTab();
    QGroupBox* frame(int index, const QString& caption);
    // A row: label, field, unit list and an optional data button.
    void fieldRow(QGridLayout* grid, int row, const QString& label, int field, int button = -1, int labelIndex = -1);
    void displayRow(QGridLayout* grid, int row, const QString& label, int display, int button = -1);
    void kRow(QGridLayout* grid, int row, int labelIndex, const std::array<int, 3>& fields, int button);
    void projectRows(QGridLayout* grid, int row, int tab);
    QPushButton* tableButton(int index);
    QRadioButton* option(const QString& family, int index, const QString& caption, const QString& status);

    PressureDropModel& model_;
    QTabWidget* tabs_ = nullptr;
    std::map<int, QLineEdit*> txtData_, txtDisplay_;
    std::map<int, QComboBox*> cboUnits_;
    std::map<int, QLabel*> labels_;
    std::map<int, QGroupBox*> frames_;
    std::map<int, QPushButton*> buttons_;
    std::map<QString, QRadioButton*> options_;
    QLineEdit* txtProject_[3]{};
    QLineEdit* txtTag_[3]{};
    QLineEdit* txtLiquid_ = nullptr;
    QLineEdit* txtGas_ = nullptr;
    QLabel* twoPhaseNames_ = nullptr;
};

} // namespace kestrova
