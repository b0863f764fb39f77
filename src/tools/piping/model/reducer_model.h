#pragma once
// The contraction and enlargement tools (frmContractions, frmEnlargements)
// without their windows: ten rows of gradual and sudden reducers, each with
// its K, and their total for the minor losses tool. The two are twins that
// differ in the gradual formula and in their words.

#include "forms/model/form_model.h"
#include "numeric/single.h"

#include <array>
#include <functional>
#include <string>

namespace kestrova {

class UserInterface;
struct ReducerStore;

enum class ReducerKind { Contraction, Enlargement };

class ReducerModel : public FormModel {
    Q_OBJECT

public:
    static constexpr int kRows = 10;     // rows 0 to 4 gradual, 5 to 9 sudden
    static constexpr int kGradualRows = 5;

    ReducerModel(ReducerKind kind, UserInterface& ui, QObject* parent = nullptr);

    void Form_Load();
    // The row's K from its texts, then the total.
    void ComputeRow(int row);
    // Checks the field's value and computes the row; false when refused.
    bool txtAngle_LostFocus(int row);
    bool txtBeta_LostFocus(int row);
    void cmdApply_Click();
    void cmdReset_Click();
    void cmdClose_Click();

    // GetContractionK / GetEnlargementK: 1 when the user closed, else the total.
    Single GetK(const std::function<void()>& showModal);

    std::string title() const;
    std::string gradualLabel() const;
    std::string suddenLabel() const;

    std::array<std::string, kGradualRows> txtAngle;
    std::array<std::string, kRows> txtBeta, txtKValue;
    std::string txtTotalK = "0";
    bool cancelled = false;
    std::string focusRequest; // the field the focus goes back to after a refusal

private:
    ReducerStore& store() const;
    void total();
    ReducerKind kind_;
    UserInterface& ui_;
    bool loaded_ = false;
};

} // namespace kestrova
