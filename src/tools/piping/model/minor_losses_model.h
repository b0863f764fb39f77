#pragma once
// The minor losses tool (frmMinorLosses) without its window: a count of each
// of 35 fittings and the K of enlargements, contractions and other losses,
// summed into K1, K2 and K3, and remembered per slot.

#include "forms/model/help_contexts.h"
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

namespace minor_losses {
inline constexpr int kFittings = 35;
enum KValue : int { Enlargements = 0, Contractions = 1, OtherLosses = 2 };
inline Control txtQuantity(int n) { return {"txtQuantity", n}; }
inline Control txtKValue(int i) { return {"txtKValue", i}; }
inline const Control txtTotalK1{"txtTotalK1"};
inline const Control txtTotalK2{"txtTotalK2"};
inline const Control txtTotalK{"txtTotalK"};
inline const Control cmdEnlargementTable{"cmdEnlargementTable"};
inline const Control cmdContractionTable{"cmdContractionTable"};
inline const Control cmdApply{"cmdApply"};
inline const Control cmdReset{"cmdReset"};
inline const Control cmdClose{"cmdClose"};
} // namespace minor_losses

// Everything the minor losses window shows, as the tool holds it.
struct MinorLossesState {
    std::array<TextControl, minor_losses::kFittings> txtQuantity;
    std::array<TextControl, 3> txtKValue;
    TextControl txtTotalK1, txtTotalK2, txtTotalK;
    Single K1Sum, K2Sum, K3Sum;
    bool cancelled = false;
};

class MinorLossesModel : public FormModel, private MinorLossesState {
    Q_OBJECT

public:
    int helpTopic() const override { return help::MinorLosses; }
    explicit MinorLossesModel(UserInterface& ui, QObject* parent = nullptr);

    const MinorLossesState& view() const { return *this; }

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

    // The headless companion's way in: the texts of the fields as they stand, then the sums.
    void showTexts(const std::array<std::string, minor_losses::kFittings>& quantities,
                   const std::array<std::string, 3>& kValues);

    void commit(const Control& field, const std::string& text) override;
    void textEdited(const Control& field, const std::string& text) override;
    void click(const Control& control) override;

private:
    void apply(bool hide);
    UserInterface& ui_;
    bool loaded_ = false;
};

} // namespace kestrova
