#pragma once
// The orifice plate tool's window: a liquid and a gas tab of fields built in
// code, each control named as the program knows it. It forwards the user's
// events to OrificeModel and shows what the model holds.

#include "forms/ui/document_form.h"

#include <QDialog>

#include <array>
#include <map>

class QComboBox;
class QGridLayout;
class QGroupBox;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTabWidget;

namespace kestrova {

class OrificeModel;
class TapSketch;

class frmOrificePlates : public DocumentForm {
    Q_OBJECT

public:
    frmOrificePlates(OrificeModel& model, UserInterface& ui, QWidget* parent = nullptr);

    void render() override;

protected:
    void commit(QLineEdit* field) override;
    bool numericField(const QLineEdit& field, bool& minusAllowed) const override;

private:
    QWidget* buildTab(int tab);
    QGroupBox* frame(int index, const QString& caption, const QString& status);
    void fieldRow(QGridLayout* grid, int row, const QString& label, int field, QWidget* button = nullptr);
    void displayRow(QGridLayout* grid, int row, const QString& label, int display, QWidget* button = nullptr);
    QComboBox* materialList(const QString& name, int tab, bool element);
    QPushButton* command(const QString& name, const QString& caption, const std::function<void()>& click);

    OrificeModel& model_;
    QTabWidget* tabs_ = nullptr;
    std::map<int, QLineEdit*> txtData_, txtDisplay_;
    std::map<int, QComboBox*> cboUnits_;
    std::map<int, QGroupBox*> frames_;
    std::array<QRadioButton*, 6> optCompute_{}, optMeterTap_{};
    std::array<QComboBox*, 2> cboElementMaterial_{}, cboPipeMaterial_{};
    std::array<QLineEdit*, 2> txtProject_{}, txtTag_{}, txtError_{};
    std::array<TapSketch*, 2> imgMeter_{};
};

// frmOrificeGuides: typical plate thicknesses and drain or vent hole sizes.
class frmOrificeGuides : public QDialog {
public:
    frmOrificeGuides(UserInterface& ui, QWidget* parent);
};

} // namespace kestrova
