#pragma once
// The windows of the piping data tools: pipe sizes, roughness, minor losses,
// contractions and enlargements.

#include "forms/ui/tool_dialog.h"
#include "tools/piping/model/minor_losses_model.h"
#include "tools/piping/model/pipe_model.h"
#include "tools/piping/model/reducer_model.h"
#include "tools/piping/model/roughness_model.h"

#include <array>

class QLabel;
class QListWidget;
class QRadioButton;
class QTabWidget;
class QTableWidget;

namespace kestrova {

class frmPipe : public ToolDialog {
public:
    frmPipe(PipeModel& model, UserInterface& ui, QWidget* parent);

protected:
    void render() override;

private:
    QWidget* buildClass(int pipeClass);
    void fillGrid(int pipeClass);
    PipeModel& model_;
    QTabWidget* tabs_ = nullptr;
    std::array<QListWidget*, 2> lstMaterial_{};
    std::array<QTableWidget*, 2> grid_{};
    std::array<std::array<QRadioButton*, 3>, 2> optMaterial_{};
    std::array<std::array<QRadioButton*, 2>, 2> optCondition_{};
    std::array<QLineEdit*, 2> txtRoughness_{};
    std::array<QComboBox*, 2> cboUnits_{};
    std::array<const PipeTable*, 2> shownGrid_{};
    std::array<std::vector<std::string>, 2> shownMaterials_{};
    QPushButton* select_ = nullptr;
};

class frmRoughness : public ToolDialog {
public:
    frmRoughness(RoughnessModel& model, UserInterface& ui, QWidget* parent);

protected:
    void render() override;

private:
    RoughnessModel& model_;
    std::array<QRadioButton*, 9> optPipeRoughness_{};
    std::array<QRadioButton*, 2> optPipeCondition_{};
    QLineEdit* txtData_ = nullptr;
    QComboBox* cboUnits_ = nullptr;
    QPushButton* select_ = nullptr;
};

// A small drawing of a fitting group, shown while one of its fields has the
// focus. The fields of a form carry their group in the property "fittingGroup".
class FittingSketch : public QWidget {
public:
    explicit FittingSketch(QWidget* form);
    void show(const QString& group) { group_ = group; update(); }
    const QString& group() const { return group_; }
    QSize sizeHint() const override { return {140, 110}; }

protected:
    void paintEvent(QPaintEvent*) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QString group_;
};

class frmMinorLosses : public ToolDialog {
public:
    frmMinorLosses(MinorLossesModel& model, UserInterface& ui, QWidget* parent);

protected:
    void render() override;

private:
    MinorLossesModel& model_;
    std::array<QLineEdit*, 35> txtQuantity_{};
    std::array<QLineEdit*, 3> txtKValue_{};
    QLineEdit* totals_[3]{};
    FittingSketch* imgFitting_ = nullptr;
};

class frmReducer : public ToolDialog {
public:
    frmReducer(ReducerModel& model, UserInterface& ui, QWidget* parent);

protected:
    void render() override;

private:
    ReducerModel& model_;
    std::array<QLineEdit*, 5> txtAngle_{};
    std::array<QLineEdit*, 10> txtBeta_{};
    std::array<QLineEdit*, 10> txtKValue_{};
    QLineEdit* txtTotalK_ = nullptr;
    FittingSketch* imgFitting_ = nullptr;
};

} // namespace kestrova
