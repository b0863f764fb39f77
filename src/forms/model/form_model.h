#pragma once
// The base of every presentation model: the narrow way in from the window
// (a text committed, a control clicked, a list entry chosen, a key typed,
// each by control), the read-only way out (the state of each control), and
// a change signal that the window redraws on, sent once when the outermost
// event routine ends.

#include "forms/model/controls.h"
#include "forms/model/help_contexts.h"

#include <QObject>

#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

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
    virtual int helpTopic() const { return help::Contents; }

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
        // The states of one control array, or of a single control as an
        // array of one under its index.
        template <typename State>
        struct Family {
            std::string_view name;
            int first;
            State* states;
            size_t count;
        };
        template <typename State>
        using Table = std::vector<Family<State>>;

        template <typename State>
        void add(const Control& control, State& state) { table<State>().push_back({control.family, control.index, &state, 1}); }
        template <typename Array>
        void family(std::string_view name, Array& states, int first = 0)
        {
            table<typename Array::value_type>().push_back({name, first, states.data(), states.size()});
        }
        // The latest registration of a control wins.
        template <typename State>
        static State* find(const Control& control, const Table<State>& in)
        {
            for (auto f = in.rbegin(); f != in.rend(); ++f)
                if (f->name == control.family && control.index >= f->first &&
                    static_cast<size_t>(control.index - f->first) < f->count)
                    return f->states + (control.index - f->first);
            return nullptr;
        }

        Table<TextControl> texts;
        Table<ListControl> lists;
        Table<LabelControl> labels;
        Table<FrameControl> frames;
        Table<ButtonControl> buttons;

    private:
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
