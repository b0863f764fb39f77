#pragma once
// The Units of Measure dialog over its model.

#include "frame/model/unit_options_model.h"

#include <QDialog>

#include <vector>

class QComboBox;

namespace kestrova {

class frmUnitOptions : public QDialog {
public:
    frmUnitOptions(UserInterface& ui, SettingsStore& store, QWidget* parent);
    UnitOptionsModel& model() { return model_; }

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void render();
    UnitOptionsModel model_;
    UserInterface& ui_;
    std::vector<QComboBox*> combos_;
};

} // namespace kestrova
