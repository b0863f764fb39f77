#pragma once
// The widgets of a form bound to its model, control by control. Each field,
// list, label, frame, button and option is made here under its program name
// ("txtData(5)"); what the user does with it goes to the model through the
// narrow way (commit, click, choose, keyTyped, textEdited); render() copies
// each control's state from the model and touches only the widgets whose
// state changed since they were last shown. The field conventions of the
// program live here once, for the document windows and the dialogs alike:
// the keys a field takes by its role, Enter as Tab, a field committed as it
// is left, its text selected as it is entered, the status texts. Everything
// the model does for an event runs under the exception barrier.

#include "forms/model/form_model.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

#include <functional>
#include <map>
#include <optional>
#include <vector>

class QAbstractButton;
class QCheckBox;
class QComboBox;
class QColor;
class QGroupBox;
class QKeyEvent;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QWidget;

namespace kestrova {

class UserInterface;

// The one tint of the program: results and solved quantities, red 192,
// green 192, blue 255.
const QColor& tintColour();

// True when the key would put a character into the field that its rule
// refuses; the caller swallows the key. Keys that put no character
// (Backspace, the arrows) are never refused.
bool keyRefused(const QLineEdit& field, const QKeyEvent& key, KeyRule rule);

// The property of a window that names its help topic by context number;
// F1 opens the topic of the nearest window that has one.
inline constexpr const char* kHelpContextProperty = "helpContext";

class FormView : public QObject {
public:
    // `form` is the window; `step` names what fails in a barrier's message.
    FormView(FormModel& model, UserInterface& ui, QWidget& form);

    QLineEdit* field(const Control& control);
    // A text that the user only reads, wrapped over as many lines as it needs
    // (a tool's message): a field's state, shown in a framed label.
    QLabel* message(const Control& control);
    QComboBox* unitList(const Control& control, const char* tag);
    QComboBox* list(const Control& control, const QStringList& entries);
    QLabel* label(const Control& control, const QString& caption);
    QGroupBox* frame(const Control& control, const QString& caption);
    QPushButton* button(const Control& control, const QString& caption);
    QRadioButton* option(const Control& control, const QString& caption);
    QCheckBox* check(const Control& control, const QString& caption);
    // A tab strip whose tab in front is the list control's entry.
    QTabWidget* tabs(const Control& control);
    // The status panel's text while the pointer is over the widget.
    void status(QWidget* widget, const QString& text);
    // Enter walks through the fields as Tab does (the document windows).
    void setEnterAsTab(bool on) { enterAsTab_ = on; }
    // The arrow keys walk too: down as Tab, up as Shift+Tab.
    void setArrowsWalk(bool on) { arrowsWalk_ = on; }

    // Every grid of the form, once laid out, takes close spacing: a row is a
    // field's height and two pixels, so that a full form fits 800 by 600.
    void compactLayouts();

    // Copies what changed onto the widgets; then the focus goes where the model asks.
    void render();
    QWidget* widgetOf(const Control& control) const;
    bool rendering() const { return rendering_; }

    // The window is going: nothing more reaches the model, neither the focus
    // its fields lose as they are destroyed nor any other event.
    void detach();

    // The exception barrier around one of the user's steps on this form.
    void guard(const std::function<void()>& step);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    template <typename Widget, typename State>
    struct Bound {
        Control control;
        Widget* widget;
        std::optional<State> shown;
    };
    bool filterEvent(QObject* watched, QEvent* event);
    bool refusesKey(const QLineEdit& field, const Control& control, const QKeyEvent& key) const;
    const Control* controlOf(const QObject* widget) const;
    template <typename Widget>
    Widget* bind(Widget* widget, const Control& control);
    void renderFields();
    void renderMessages();
    void renderLists();
    void renderCaptions();
    void renderButtons();
    // Names each input for a screen reader from the captions around it and
    // describes it by its tool tip or its status text.
    void nameAndDescribeInputs();
    void describe(QWidget& input) const;

    FormModel& model_;
    UserInterface& ui_;
    QWidget& form_;
    bool enterAsTab_ = false;
    bool arrowsWalk_ = false;
    bool rendering_ = false;
    bool detached_ = false;
    bool namesStale_ = true; // a caption changed since the inputs were named
    std::map<const QObject*, Control> controls_;
    std::vector<Bound<QLineEdit, TextControl>> fields_;
    std::vector<Bound<QLabel, TextControl>> messages_;
    std::vector<Bound<QComboBox, ListControl>> lists_;
    std::vector<Bound<QTabWidget, ListControl>> tabs_;
    std::vector<Bound<QLabel, LabelControl>> labels_;
    std::vector<Bound<QGroupBox, FrameControl>> frames_;
    std::vector<Bound<QAbstractButton, ButtonControl>> buttons_;
    std::map<const QObject*, QString> statusTexts_;
    QPointer<QLineEdit> selectOnRelease_; // a field entered by a click selects its text as the button comes up
};

} // namespace kestrova
