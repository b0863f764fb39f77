#pragma once
// The orifice plate tool's window: a liquid and a gas tab of controls laid
// out in code, each bound by its program name to OrificeModel, which says
// what each shows and takes what the user does.

#include "forms/ui/document_form.h"

#include <QDialog>

#include <array>

class QComboBox;
class QGridLayout;
class QGroupBox;
class QLayout;
class QLineEdit;
class QPushButton;

namespace kestrova {

class OrificeModel;
class TapSketch;

class frmOrificePlates : public DocumentForm {
    Q_OBJECT

public:
    frmOrificePlates(OrificeModel& model, UserInterface& ui, QWidget* parent = nullptr);

protected:
    void renderDrawing() override; // the sketch of the taps

private:
    QWidget* buildTab(int tab);
    QGroupBox* propertiesFrame(int tab);
    QWidget* optionFrames(int tab);
    QGroupBox* elementFrame(int tab);
    QGroupBox* pipeFrame(int tab);
    QGroupBox* outputFrame(int tab);
    QLayout* commandRow(int tab);
    QGroupBox* frame(int index, const QString& caption, const QString& status);
    QLineEdit* fieldRow(QGridLayout* grid, int row, const QString& label, int field, QWidget* button = nullptr);
    QLineEdit* displayRow(QGridLayout* grid, int row, const QString& label, int display, QWidget* button = nullptr);
    QComboBox* materialList(const Control& control);
    QPushButton* tableButton(int index, const QString& tip);

    OrificeModel& model_;
    std::array<TapSketch*, 2> imgMeter_{};
};

// frmOrificeGuides: typical plate thicknesses and drain or vent hole sizes.
class frmOrificeGuides : public QDialog {
public:
    frmOrificeGuides(UserInterface& ui, QWidget* parent);
};

} // namespace kestrova
