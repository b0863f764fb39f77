#pragma once
// The minor losses tool (frmMinorLosses) without its window: a count of each
// of 35 fittings and the K of enlargements, contractions and other losses,
// summed into K1, K2 and K3, and remembered per slot.

#include "forms/model/form_model.h"
#include "numeric/single.h"

#include <array>
#include <functional>
#include <string>

namespace kestrova {

class UserInterface;

struct Fitting {
    const char* tab;   // "Elbows", "Valves" or "Piping"
    const char* group;
    const char* label;
    double K1, K2;
};
const std::array<Fitting, 35>& fittings();

class MinorLossesModel : public FormModel {
    Q_OBJECT

public:
    explicit MinorLossesModel(UserInterface& ui, QObject* parent = nullptr);

    void Form_Load();
    void Sum();
    void txtKValue_LostFocus(int index);
    void cmdApply_Click();
    void cmdReset_Click();
    void cmdContractionTable_Click();
    void cmdEnlargementTable_Click();
    void cmdClose_Click();

    // GetKValue: unless the user closed, the sums go to the slot's SegK1, SegK2, SegK3.
    void GetKValue(const std::function<void()>& showModal);

    std::array<std::string, 35> txtQuantity;
    std::array<std::string, 3> txtKValue;
    std::string txtTotalK1, txtTotalK2, txtTotalK;
    Single K1Sum, K2Sum, K3Sum;
    bool cancelled = false;

private:
    void apply(bool hide);
    UserInterface& ui_;
    bool loaded_ = false;
};

} // namespace kestrova
