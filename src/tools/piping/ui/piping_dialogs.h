#pragma once
// The windows of the piping data tools: pipe sizes, roughness, minor losses,
// contractions and enlargements.

#include "forms/ui/tool_dialog.h"
#include "tools/piping/model/minor_losses_model.h"
#include "tools/piping/model/pipe_model.h"
#include "tools/piping/model/reducer_model.h"
#include "tools/piping/model/roughness_model.h"

#include <array>

class QGroupBox;
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
    void renderDrawing() override;

private:
    QWidget* buildClass(int pipeClass);
    QTableWidget* buildGrid(int pipeClass);
    void fillGrid(int pipeClass);
    void copySelection();
    PipeModel& model_;
    std::array<QListWidget*, 2> lstMaterial_{};
    std::array<QTableWidget*, 2> grid_{};
    std::array<PipeTable, 2> shownGrid_{};
    std::array<std::vector<std::string>, 2> shownMaterials_{};
    bool drawing_ = false; // the lists and grids are being drawn: their signals are not the user's
};

class frmRoughness : public ToolDialog {
public:
    frmRoughness(RoughnessModel& model, UserInterface& ui, QWidget* parent);

protected:
    void renderDrawing() override; // Enter selects while Select is enabled

private:
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

private:
    QTabWidget* fittingTabs();
    QGroupBox* reducerFrame();
    QGroupBox* totalsFrame();
};

class frmReducer : public ToolDialog {
public:
    frmReducer(ReducerModel& model, UserInterface& ui, QWidget* parent);
};

} // namespace kestrova
