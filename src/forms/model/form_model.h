#pragma once
// The base of every presentation model: the narrow way in from the window
// (a text committed, a control clicked, a list entry chosen, a key typed,
// each by control), the read-only way out (the state of each control), and
// a change signal that the window redraws on, sent once when the outermost
// event routine ends.

#include "forms/model/controls.h"

#include <QObject>

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace kestrova {

class FormModel : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    // The user's ways into the form. A text field is committed as it is
    // left; a button, option or check box is clicked; a list's entry is
    // chosen; any key typed in a field is told as well.
    virtual void commit(const Control& /*field*/, const std::string& /*text*/) {}
    virtual void click(const Control& /*control*/) {}
    virtual void choose(const Control& /*list*/, int /*entry*/) {}
    virtual void keyTyped(const Control& /*field*/) {}
    virtual void doubleClick(const Control& /*control*/) {}
    // A field's text as the user types it, key by key: the field holds it as
    // it stands, so that what reads the form meanwhile (a data sheet) sees
    // what is on screen; the value is taken when the field is left.
    virtual void textEdited(const Control& field, const std::string& text)
    {
        if (TextControl* shown = registry_.find(field, registry_.texts); shown && !shown->locked)
            shown->text = text;
    }

    // What each control shows; nullptr for a control the form lacks. A
    // model registers its controls' states once, and these find them.
    virtual const TextControl* textOf(const Control& control) const { return registry_.find(control, registry_.texts); }
    virtual const ListControl* listOf(const Control& control) const { return registry_.find(control, registry_.lists); }
    virtual const LabelControl* labelOf(const Control& control) const { return registry_.find(control, registry_.labels); }
    virtual const FrameControl* frameOf(const Control& control) const { return registry_.find(control, registry_.frames); }
    virtual const ButtonControl* buttonOf(const Control& control) const { return registry_.find(control, registry_.buttons); }
    // The window's caption; empty keeps the one it has.
    virtual std::string windowCaption() const { return {}; }
    // The context number of the form's help topic (help_contexts.h), which F1 opens.
    virtual int helpTopic() const { return 1000; }

    // The control that is to take the focus next, handed over once.
    std::optional<Control> takeFocusRequest() { return std::exchange(focusRequest_, std::nullopt); }
    const std::optional<Control>& focusRequest() const { return focusRequest_; }

    // A dialog model asks its window to close (hide) through this flag.
    bool closeRequested = false;

signals:
    void changed();

protected:
    // The states of the model's controls by control: a single control, or a
    // control array by its family name, each element under its index. The
    // states stay where the model keeps them.
    class ControlRegistry {
    public:
        template <typename State>
        void add(const Control& control, State& state) { table<State>()[key(control)] = &state; }
        template <typename Array>
        void family(std::string_view name, Array& states, int first = 0)
        {
            for (size_t i = 0; i < states.size(); ++i)
                add(Control{name, first + static_cast<int>(i)}, states[i]);
        }
        template <typename State>
        static State* find(const Control& control, const std::map<std::pair<std::string_view, int>, State*>& in)
        {
            const auto found = in.find(key(control));
            return found == in.end() ? nullptr : found->second;
        }

        std::map<std::pair<std::string_view, int>, TextControl*> texts;
        std::map<std::pair<std::string_view, int>, ListControl*> lists;
        std::map<std::pair<std::string_view, int>, LabelControl*> labels;
        std::map<std::pair<std::string_view, int>, FrameControl*> frames;
        std::map<std::pair<std::string_view, int>, ButtonControl*> buttons;

    private:
        static std::pair<std::string_view, int> key(const Control& control) { return {control.family, control.index}; }
        template <typename State>
        auto& table()
        {
            if constexpr (std::is_same_v<State, TextControl>) return texts;
            else if constexpr (std::is_same_v<State, ListControl>) return lists;
            else if constexpr (std::is_same_v<State, LabelControl>) return labels;
            else if constexpr (std::is_same_v<State, FrameControl>) return frames;
            else return buttons;
        }
    };
    ControlRegistry& controls() { return registry_; }

    void requestFocus(const Control& control) { focusRequest_ = control; }
    void clearFocusRequest() { focusRequest_.reset(); }

    // Put at the top of each event routine.
    class ChangeNotice {
    public:
        explicit ChangeNotice(FormModel& model) : model_(model) { ++model_.eventDepth_; }
        ~ChangeNotice()
        {
            if (--model_.eventDepth_ == 0)
                emit model_.changed();
        }
        ChangeNotice(const ChangeNotice&) = delete;
        ChangeNotice& operator=(const ChangeNotice&) = delete;

    private:
        FormModel& model_;
    };

private:
    int eventDepth_ = 0;
    std::optional<Control> focusRequest_;
    ControlRegistry registry_;
};

// The element of a control array that a control names, or nullptr.
template <typename Array>
auto* elementOf(Array& controls, const Control& control)
{
    return control.index >= 0 && static_cast<size_t>(control.index) < controls.size()
               ? &controls[static_cast<size_t>(control.index)]
               : nullptr;
}

} // namespace kestrova
