#pragma once
// The skeleton of the small dialog tools of unit fields (gas density,
// compressibility factor, heat capacity ratio): txtData(i) are values of the
// tool's record, each with its unit list cboUnits(i) or a plain number; a
// result field the tool computes after each commit; Apply hands the result
// to the tool that asked, Close hands nothing, Reset asks first. A tool
// gives its table of fields, its computation, its reset and its messages.

#include "forms/model/form_model.h"
#include "forms/model/unit_fields.h"
#include "forms/model/user_interface.h"
#include "numeric/display_mask.h"
#include "numeric/field_text.h"

#include <array>
#include <cstddef>
#include <functional>
#include <string>

namespace kestrova::unit_field_dialog {

inline Control txtData(int i) { return {"txtData", i}; }
inline Control cboUnits(int i) { return {"cboUnits", i}; }
inline const Control cmdApply{"cmdApply"};
inline const Control cmdClose{"cmdClose"};
inline const Control cmdReset{"cmdReset"};
inline const Control cmdHelp{"cmdHelp"};

} // namespace kestrova::unit_field_dialog

namespace kestrova {

// A field of a unit field dialog: a value with a unit list (a kind), or a
// plain number (no kind), and its role.
template <typename Record>
struct DialogField {
    FieldBinding<Record> binding; // kind nullptr: a number without a unit list
    FieldRole role;
};

// The look of a result that a dialog computes: no typing, the tint.
inline constexpr FieldRole kDialogResult{false, KeyRule::Number, FieldShade::Tinted};
inline constexpr FieldRole kDialogInput{true, KeyRule::SignedNumber, FieldShade::Normal};
inline constexpr FieldRole kDialogUnsigned{true, KeyRule::Number, FieldShade::Normal};

template <typename Record, std::size_t N>
class UnitFieldDialogModel : public FormModel {
public:
    using Fields = std::array<DialogField<Record>, N>;

    const Record& record() const { return record_; }
    // The record taken whole, every field of it shown again (a plain number
    // as its plain text); nothing is computed.
    void useRecord(const Record& record)
    {
        ChangeNotice notice(*this);
        record_ = record;
        for (std::size_t i = 0; i < N; ++i) {
            const FieldBinding<Record>& binding = fields_[i].binding;
            if (binding.kind)
                showField(static_cast<int>(i));
            else if (binding.member || binding.element)
                txtData[i].text = plainNumberText(binding.of(record_));
        }
    }
    // A text put into a field and stored as leaving it does, without the computation.
    void commitText(int index, const std::string& text)
    {
        if (index < 0 || static_cast<std::size_t>(index) >= N)
            return;
        ChangeNotice notice(*this);
        txtData[static_cast<std::size_t>(index)].text = text;
        store(index);
    }

    void txtData_LostFocus(int index)
    {
        if (index < 0 || static_cast<std::size_t>(index) >= N)
            return;
        ChangeNotice notice(*this);
        store(index);
        compute();
    }
    void setUnit(int index, UnitIndex unit)
    {
        if (index < 0 || static_cast<std::size_t>(index) >= N || !fields_[static_cast<std::size_t>(index)].binding.kind)
            return;
        ChangeNotice notice(*this);
        cboUnits[static_cast<std::size_t>(index)].listIndex = unit;
        showField(index);
    }
    // Apply: the result goes to the tool that asked, if there is one.
    void cmdApply_Click()
    {
        ChangeNotice notice(*this);
        if (txtData[resultField_].text.empty()) {
            ui_.ask(title_, notComputed_, MessageIcon::Warning, MessageButtons::Ok, MessageAnswer::Ok);
            return;
        }
        applied_ = true;
        closeRequested = true;
    }
    void cmdClose_Click()
    {
        ChangeNotice notice(*this);
        applied_ = false;
        closeRequested = true;
    }
    virtual void cmdReset_Click() = 0;

    void commit(const Control& field, const std::string& text) override
    {
        if (field.family != "txtData" || !elementOf(txtData, field) || txtData[static_cast<std::size_t>(field.index)].locked)
            return;
        txtData[static_cast<std::size_t>(field.index)].text = text;
        txtData_LostFocus(field.index);
    }
    void choose(const Control& list, int entry) override
    {
        if (list.family == "cboUnits")
            setUnit(list.index, static_cast<UnitIndex>(entry));
    }
    void click(const Control& control) override
    {
        if (control == unit_field_dialog::cmdApply)
            cmdApply_Click();
        else if (control == unit_field_dialog::cmdClose)
            cmdClose_Click();
        else if (control == unit_field_dialog::cmdReset)
            cmdReset_Click();
        else if (control == unit_field_dialog::cmdHelp)
            ui_.showHelp(helpTopic());
        else
            clickOther(control);
    }

protected:
    UnitFieldDialogModel(UserInterface& ui, const Fields& fields, std::size_t resultField, std::string title,
                         std::string notComputed, QObject* parent)
        : FormModel(parent), ui_(ui), fields_(fields), resultField_(resultField), title_(std::move(title)),
          notComputed_(std::move(notComputed))
    {
        for (std::size_t i = 0; i < N; ++i) {
            txtData[i] = controlOf(fields_[i].role);
            if (fields_[i].binding.kind)
                txtData[i].widest = widestText(*fields_[i].binding.kind);
        }
        controls().family("txtData", txtData);
        controls().family("cboUnits", cboUnits);
    }

    virtual void compute() = 0;
    virtual void clickOther(const Control&) {}

    // The modal entry of a tool that asks for the result: `setUp` fills the
    // form, the dialog is shown, and the result comes back if it was applied.
    Single runForResult(const std::function<void()>& setUp, const std::function<void()>& showModal)
    {
        {
            ChangeNotice notice(*this);
            applied_ = false;
            setUp();
        }
        showModal();
        return applied_ ? appliedValue() : Single(0.0);
    }
    virtual Single appliedValue() const { return fieldSingleOr0(txtData[resultField_].text); }

    // A unit field shows its value in its list's unit; a plain number keeps its text.
    void showField(int index)
    {
        const auto i = static_cast<std::size_t>(index);
        if (fields_[i].binding.kind)
            showUnitField(fields_[i].binding, record_, cboUnits[i], txtData[i]);
    }
    void showFields()
    {
        for (std::size_t i = 0; i < N; ++i)
            showField(static_cast<int>(i));
    }
    // Every unit list takes the unit of its global quantity.
    void takeGlobalUnits()
    {
        for (std::size_t i = 0; i < N; ++i)
            if (fields_[i].binding.kind)
                cboUnits[i].listIndex = globalUnits()[fields_[i].binding.setup];
    }
    bool askReset(const std::string& title)
    {
        return ui_.ask(title, "Reset all input fields?", MessageIcon::Question, MessageButtons::OkCancel,
                       MessageAnswer::Ok) != MessageAnswer::Cancel;
    }

    UserInterface& ui_;
    Record record_{};
    std::array<TextControl, N> txtData;
    std::array<ListControl, N> cboUnits;

private:
    // The typed text taken into the record: a unit field through its list, a
    // plain number as it reads.
    void store(int index)
    {
        const auto i = static_cast<std::size_t>(index);
        const DialogField<Record>& f = fields_[i];
        if (f.binding.kind)
            commitUnitField(f.binding, record_, cboUnits[i], txtData[i]);
        else if (f.binding.member || f.binding.element)
            f.binding.of(record_) = fieldSingleOr0(txtData[i].text);
    }

    Fields fields_;
    std::size_t resultField_;
    std::string title_, notComputed_;
    bool applied_ = false;
};

} // namespace kestrova
