#pragma once
// The contraction and enlargement tools (frmContractions, frmEnlargements)
// without their windows: ten rows of gradual and sudden reducers, each with
// its K, and their total for the minor losses tool. The two are twins that
// differ in the gradual formula and in their words.

#include "forms/model/help_contexts.h"
#include "forms/model/form_model.h"
#include "numeric/single.h"

#include <array>
#include <functional>
#include <string>

namespace kestrova {

class UserInterface;
struct ReducerStore;

enum class ReducerKind { Contraction, Enlargement };

namespace reducer {
inline constexpr int kRows = 10;       // rows 0 to 4 gradual, 5 to 9 sudden
inline constexpr int kGradualRows = 5;
inline Control txtAngle(int row) { return {"txtAngle", row}; }
inline Control txtBeta(int row) { return {"txtBeta", row}; }
inline Control txtKValue(int row) { return {"txtKValue", row}; }
inline const Control txtTotalK{"txtTotalK"};
inline const Control cmdApply{"cmdApply"};
inline const Control cmdReset{"cmdReset"};
inline const Control cmdHelp{"cmdHelp"}; // "Help with Equations"
inline const Control cmdClose{"cmdClose"};
} // namespace reducer

// Everything a reducer window shows, as the tool holds it.
struct ReducerState {
    std::array<TextControl, reducer::kGradualRows> txtAngle;
    std::array<TextControl, reducer::kRows> txtBeta, txtKValue;
    TextControl txtTotalK;
    bool cancelled = false;
};

class ReducerModel : public FormModel, private ReducerState {
    Q_OBJECT

public:
    static constexpr int kRows = reducer::kRows;
    static constexpr int kGradualRows = reducer::kGradualRows;

    ReducerModel(ReducerKind kind, UserInterface& ui, QObject* parent = nullptr);

    const ReducerState& view() const { return *this; }

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

    void commit(const Control& field, const std::string& text) override;
    void click(const Control& control) override;
    int helpTopic() const override
    {
        return kind_ == ReducerKind::Contraction ? help::Contractions : help::Enlargements;
    }

private:
    ReducerStore& store() const;
    void total();
    bool refused(const Control& control, int row, const char* message);
    ReducerKind kind_;
    UserInterface& ui_;
    bool loaded_ = false;
};

} // namespace kestrova
