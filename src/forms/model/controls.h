#pragma once
// The controls of a form as its model holds them. A control is named as the
// program knows it, its family (the control array, or a single control) and
// its index; each kind of control has a state that says all the user sees
// of it. A window only copies these states onto its widgets, and two equal
// states look the same, so that a window redraws only what changed.

#include <string>
#include <string_view>

namespace kestrova {

struct Control {
    std::string_view family; // "txtData", "cmdReset", "txtLiquid"
    int index = -1;          // -1 for a control that is no array

    // "txtData(5)", or "txtLiquid" for a single control.
    std::string name() const;
    bool operator==(const Control&) const = default;
};

// Which keys a text field takes: any, a number's (digits, one point, one
// comma), a number's with one minus sign, or digits alone.
enum class KeyRule { Text, Number, SignedNumber, Digits };

// A field's background: the window's colour, the system's grey of a disabled
// field, the light blue tint (red 192, green 192, blue 255), the pale colour
// of a result; and the three that say how far a value can be trusted: pale
// yellow (a value in range), blue (none known), red (beyond a limit), the
// last two with white text.
enum class FieldShade { Normal, Disabled, Tinted, Result, PaleYellow, Blue, Red };

struct TextControl {
    std::string text;
    bool enabled = true;
    bool tabStop = true;
    bool locked = false; // takes no typing: a result, or a quantity being solved for
    FieldShade shade = FieldShade::Normal;
    KeyRule keys = KeyRule::Text;
    bool red = false; // the text in pure red, as a warning
    std::string toolTip;
    std::string widest; // the widest text the field shows, which sets its least width
    bool operator==(const TextControl&) const = default;
};

struct ListControl {
    int listIndex = 0;
    bool enabled = true;
    FieldShade shade = FieldShade::Normal;
    bool tabStop = true;
    bool operator==(const ListControl&) const = default;
};

struct LabelControl {
    std::string caption;
    bool grey = false;
    bool visible = true;
    bool operator==(const LabelControl&) const = default;
};

struct FrameControl {
    std::string caption;
    bool bold = false; // the caption only
    bool red = false;  // pure red caption
    bool enabled = true; // a frame disabled greys all it holds
    bool operator==(const FrameControl&) const = default;
};

// A button, an option or a check box.
struct ButtonControl {
    std::string caption; // empty: the caption the window gave it stays
    bool enabled = true;
    bool checked = false;
    bool tabStop = true;
    std::string toolTip;
    bool operator==(const ButtonControl&) const = default;
};

// The role of a text field in a form's table of roles: an input that takes
// the keys of its rule, or a result that takes none and is skipped by Tab.
struct FieldRole {
    bool input = true;
    KeyRule keys = KeyRule::SignedNumber;
    FieldShade shade = FieldShade::Normal;
};
inline constexpr FieldRole kResult{false, KeyRule::Number, FieldShade::Result};

// A text control as its role makes it.
inline TextControl controlOf(const FieldRole& role)
{
    TextControl control;
    control.locked = !role.input;
    control.tabStop = role.input;
    control.keys = role.keys;
    control.shade = role.shade;
    return control;
}

} // namespace kestrova
