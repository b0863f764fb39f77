#include "forms/ui/form_view.h"

#include "forms/model/user_interface.h"
#include "forms/ui/accessible_names.h"
#include "forms/ui/exception_barrier.h"
#include "units/basLoadUnits.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFocusEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTimer>

namespace kestrova {

const QColor& tintColour()
{
    static const QColor tint(192, 192, 255); // 0xFFC0C0 in blue-green-red order
    return tint;
}

bool keyRefused(const QLineEdit& field, const QKeyEvent& key, KeyRule rule)
{
    if (rule == KeyRule::Text || key.text().isEmpty() || !key.text().at(0).isPrint())
        return false; // Backspace, the arrows and other keys that put no character
    const QChar c = key.text().at(0);
    if (c.isDigit())
        return false;
    if (rule == KeyRule::Digits)
        return true;
    // The characters that stay once the typed key replaces the selection.
    QString rest = field.text();
    if (field.hasSelectedText())
        rest.remove(field.selectionStart(), field.selectedText().size());
    if ((c == '.' || c == ',') && !rest.contains(c))
        return false;
    if (c == '-' && rule == KeyRule::SignedNumber && !rest.contains('-'))
        return false;
    return true;
}

namespace {

QColor baseColour(FieldShade shade, const QWidget& form)
{
    switch (shade) {
    case FieldShade::Tinted: return tintColour();
    case FieldShade::Result: return form.palette().color(QPalette::Window).lighter(104);
    case FieldShade::PaleYellow: return QColor(255, 255, 0x80); // 0x80FFFF in blue-green-red order
    case FieldShade::Blue: return QColor(0, 0, 255);
    case FieldShade::Red: return QColor(255, 0, 0);
    default: return QApplication::palette().color(QPalette::Base);
    }
}

void paint(QWidget* widget, FieldShade shade, const QWidget& form, bool redText = false)
{
    QPalette p = widget->palette();
    p.setColor(QPalette::Base, baseColour(shade, form));
    const bool dark = shade == FieldShade::Blue || shade == FieldShade::Red;
    p.setColor(QPalette::Text, redText ? QColor(255, 0, 0) : dark ? QColor(Qt::white)
                                                                 : QApplication::palette().color(QPalette::Text));
    p.setColor(QPalette::Button, shade == FieldShade::Tinted ? tintColour() : QApplication::palette().color(QPalette::Button));
    widget->setPalette(p);
}

// Only a frame's caption is bold or red: a style sheet of the frame alone,
// which its children do not take.
void showCaptionStyle(QGroupBox* box, const FrameControl& state)
{
    if (!state.bold && !state.red) {
        box->setStyleSheet(QString());
        return;
    }
    box->setProperty("kestrovaCaption", true);
    QString sheet;
    if (state.bold)
        sheet += "QGroupBox[kestrovaCaption=\"true\"] { font-weight: bold; }";
    if (state.red)
        sheet += "QGroupBox[kestrovaCaption=\"true\"]::title { color: #ff0000; }";
    box->setStyleSheet(sheet);
}

// Selects the field's text once the event at hand is done, if the field
// still has the focus then.
void selectSoon(QLineEdit* field)
{
    QTimer::singleShot(0, field, [field] {
        if (field->hasFocus())
            field->selectAll();
    });
}

// A field is never narrower than the widest text it shows: a number is
// never cut off, whatever the window's size.
int leastWidth(const QLineEdit& edit, const TextControl& state)
{
    const QString widest = !state.widest.empty()             ? QString::fromStdString(state.widest)
                           : state.keys == KeyRule::Text     ? QString(14, 'n')
                           : state.keys == KeyRule::Digits   ? QString("88888")
                                                             : QString("-88,888,888.88");
    return edit.fontMetrics().horizontalAdvance(widest) + 14; // the frame and the inner margins
}

// A tool tip is also what a screen reader reads as the widget's description.
void showToolTip(QWidget& widget, const std::string& tip)
{
    widget.setToolTip(QString::fromStdString(tip));
    widget.setAccessibleDescription({}); // read from the tool tip
}

} // namespace

FormView::FormView(FormModel& model, UserInterface& ui, QWidget& form)
    : QObject(&form), model_(model), ui_(ui), form_(form)
{
    form_.installEventFilter(this); // the inputs are named as the window first shows
}

template <typename Widget>
Widget* FormView::bind(Widget* widget, const Control& control)
{
    widget->setObjectName(QString::fromStdString(control.name()));
    controls_[widget] = control;
    widget->installEventFilter(this);
    return widget;
}

QLineEdit* FormView::field(const Control& control)
{
    auto* edit = bind(new QLineEdit(&form_), control);
    connect(edit, &QLineEdit::textEdited, this,
            [this, control](const QString& text) { guard([&] { model_.textEdited(control, text.toStdString()); }); });
    fields_.push_back({control, edit, std::nullopt});
    return edit;
}

QLabel* FormView::message(const Control& control)
{
    auto* text = bind(new QLabel(&form_), control);
    text->setWordWrap(true);
    text->setFrameShape(QFrame::StyledPanel);
    text->setFrameShadow(QFrame::Sunken);
    text->setAutoFillBackground(true);
    text->setMinimumHeight(2 * text->fontMetrics().lineSpacing() + 6);
    text->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    messages_.push_back({control, text, std::nullopt});
    return text;
}

QComboBox* FormView::list(const Control& control, const QStringList& entries)
{
    auto* box = bind(new QComboBox(&form_), control);
    box->addItems(entries);
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    connect(box, &QComboBox::activated, this, [this, control](int entry) { guard([&] { model_.choose(control, entry); }); });
    lists_.push_back({control, box, std::nullopt});
    return box;
}

QComboBox* FormView::unitList(const Control& control, const char* tag)
{
    QStringList entries;
    for (const std::string& unit : kestrova::unitList(tag))
        entries << QString::fromStdString(unit);
    QComboBox* box = list(control, entries);
    box->setProperty(kUnitListProperty, true);
    return box;
}

QLabel* FormView::label(const Control& control, const QString& caption)
{
    auto* text = bind(new QLabel(caption, &form_), control);
    labels_.push_back({control, text, std::nullopt});
    return text;
}

QGroupBox* FormView::frame(const Control& control, const QString& caption)
{
    auto* box = bind(new QGroupBox(caption, &form_), control);
    frames_.push_back({control, box, std::nullopt});
    return box;
}

QPushButton* FormView::button(const Control& control, const QString& caption)
{
    auto* button = bind(new QPushButton(caption, &form_), control);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, control] { guard([&] { model_.click(control); }); });
    buttons_.push_back({control, button, std::nullopt});
    return button;
}

QRadioButton* FormView::option(const Control& control, const QString& caption)
{
    auto* option = bind(new QRadioButton(caption, &form_), control);
    connect(option, &QRadioButton::clicked, this, [this, control] { guard([&] { model_.click(control); }); });
    buttons_.push_back({control, option, std::nullopt});
    return option;
}

QCheckBox* FormView::check(const Control& control, const QString& caption)
{
    auto* box = bind(new QCheckBox(caption, &form_), control);
    connect(box, &QCheckBox::clicked, this, [this, control](bool on) { guard([&] { model_.choose(control, on ? 1 : 0); }); });
    buttons_.push_back({control, box, std::nullopt});
    return box;
}

QTabWidget* FormView::tabs(const Control& control)
{
    auto* strip = bind(new QTabWidget(&form_), control);
    // Only a tab the user brings to the front is told: not the first tab
    // added while the window is laid out, nor the one that render() shows.
    connect(strip, &QTabWidget::currentChanged, this, [this, control, strip](int tab) {
        if (!rendering_ && strip->isVisible())
            guard([&] { model_.choose(control, tab); });
    });
    tabs_.push_back({control, strip, std::nullopt});
    return strip;
}

void FormView::status(QWidget* widget, const QString& text)
{
    statusTexts_[widget] = text;
    widget->installEventFilter(this);
}

QWidget* FormView::widgetOf(const Control& control) const
{
    for (const auto& [widget, bound] : controls_)
        if (bound == control)
            return const_cast<QWidget*>(static_cast<const QWidget*>(widget));
    return nullptr;
}

const Control* FormView::controlOf(const QObject* widget) const
{
    const auto found = controls_.find(widget);
    return found == controls_.end() ? nullptr : &found->second;
}

void FormView::guard(const std::function<void()>& step)
{
    runGuarded("the last entry in " + form_.windowTitle().toStdString(), step, &ui_);
}

void FormView::detach()
{
    detached_ = true;
    disconnect(&model_, nullptr, this, nullptr);
    for (const auto& [widget, control] : controls_)
        QObject::disconnect(widget, nullptr, this, nullptr);
}

bool FormView::eventFilter(QObject* watched, QEvent* event)
{
    if (detached_)
        return QObject::eventFilter(watched, event);
    if (watched == &form_) {
        if (event->type() == QEvent::Show)
            guard([&] { nameAndDescribeInputs(); });
        if (!statusTexts_.count(&form_))
            return QObject::eventFilter(watched, event); // the window itself has no status text to show
    }
    bool swallowed = false;
    guard([&] { swallowed = filterEvent(watched, event); });
    return swallowed || QObject::eventFilter(watched, event);
}

bool FormView::refusesKey(const QLineEdit& field, const Control& control, const QKeyEvent& key) const
{
    const TextControl* state = model_.textOf(control);
    return state && keyRefused(field, key, state->keys);
}

bool FormView::filterEvent(QObject* watched, QEvent* event)
{
    auto* field = qobject_cast<QLineEdit*>(watched);
    const Control* control = field ? controlOf(field) : nullptr;
    const TextControl* state = control ? model_.textOf(*control) : nullptr;
    switch (event->type()) {
    case QEvent::KeyPress: {
        auto* key = static_cast<QKeyEvent*>(event);
        const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        const bool arrow = key->key() == Qt::Key_Down || key->key() == Qt::Key_Up;
        if ((enterAsTab_ && enter) || (arrowsWalk_ && field && arrow)) {
            // Enter (and the arrows where they walk) moves through the fields as Tab does.
            const bool back = key->key() == Qt::Key_Up;
            QKeyEvent tab(QEvent::KeyPress, back ? Qt::Key_Backtab : Qt::Key_Tab, back ? Qt::ShiftModifier : Qt::NoModifier);
            QCoreApplication::sendEvent(watched, &tab);
            return true;
        }
        if (state && !state->locked) {
            if (refusesKey(*field, *control, *key))
                return true;
            model_.keyTyped(*control);
        }
        break;
    }
    case QEvent::FocusOut:
        if (state && !state->locked && !rendering_) {
            field->setModified(false);
            // The field shows the model's text again even where the model keeps the text it had.
            for (auto& bound : fields_)
                if (bound.widget == field)
                    bound.shown.reset();
            model_.commit(*control, field->text().toStdString());
        }
        break;
    case QEvent::FocusIn:
        if (field && !field->isReadOnly()) {
            selectSoon(field);
            if (static_cast<const QFocusEvent*>(event)->reason() == Qt::MouseFocusReason)
                selectOnRelease_ = field;
        }
        break;
    case QEvent::MouseButtonRelease:
        if (field && field == selectOnRelease_ && !field->hasSelectedText())
            selectSoon(field); // after the field has taken the release
        selectOnRelease_ = nullptr;
        break;
    case QEvent::MouseButtonDblClick:
        // Buttons and captions take double clicks; a field keeps its own (it selects a word).
        if (const Control* clicked =
                qobject_cast<QAbstractButton*>(watched) || qobject_cast<QLabel*>(watched) ? controlOf(watched) : nullptr)
            model_.doubleClick(*clicked);
        break;
    case QEvent::Enter:
        if (const auto text = statusTexts_.find(watched); text != statusTexts_.end())
            ui_.setStatusText(text->second.toStdString());
        break;
    default:
        break;
    }
    return false;
}

void FormView::compactLayouts()
{
    for (QGridLayout* grid : form_.findChildren<QGridLayout*>()) {
        grid->setVerticalSpacing(2);
        grid->setHorizontalSpacing(4);
        grid->setContentsMargins(6, 2, 6, 4);
    }
}

void FormView::render()
{
    rendering_ = true;
    if (const std::string caption = model_.windowCaption(); !caption.empty())
        form_.setWindowTitle(QString::fromStdString(caption)); // the window that holds the form follows its title
    form_.setProperty(kHelpContextProperty, model_.helpTopic()); // what F1 opens
    renderFields();
    renderMessages();
    renderLists();
    renderCaptions();
    renderButtons();
    rendering_ = false;
    if (namesStale_ && form_.isVisible())
        nameAndDescribeInputs();
    if (const auto request = model_.takeFocusRequest())
        if (QWidget* widget = widgetOf(*request); widget && form_.isVisible())
            widget->setFocus();
}

void FormView::nameAndDescribeInputs()
{
    nameInputs(form_, [this](const QWidget& input) {
        const auto text = statusTexts_.find(&input);
        return text == statusTexts_.end() ? QString() : text->second;
    });
    for (QWidget* widget : form_.findChildren<QWidget*>())
        if (isInput(*widget))
            describe(*widget);
    namesStale_ = false;
}

void FormView::describe(QWidget& input) const
{
    if (!input.toolTip().isEmpty()) {
        input.setAccessibleDescription({}); // read from the tool tip
        return;
    }
    // Its own status text, or that of the frame it sits in.
    for (const QWidget* widget = &input; widget; widget = widget->parentWidget()) {
        if (const auto text = statusTexts_.find(widget); text != statusTexts_.end()) {
            input.setAccessibleDescription(text->second);
            return;
        }
        if (widget == &form_)
            return;
    }
}

void FormView::renderFields()
{
    for (auto& bound : fields_) {
        const TextControl* state = model_.textOf(bound.control);
        if (!state || bound.shown == *state)
            continue;
        QLineEdit* edit = bound.widget;
        const bool first = !bound.shown;
        const TextControl& was = first ? *state : *bound.shown;
        // A field the user is typing in keeps what is typed until it is left.
        const bool typing = edit->hasFocus() && edit->isModified();
        if (!typing && edit->text() != QString::fromStdString(state->text))
            edit->setText(QString::fromStdString(state->text));
        if (first || was.enabled != state->enabled)
            edit->setEnabled(state->enabled);
        if (first || was.locked != state->locked || was.tabStop != state->tabStop) {
            // A locked field takes no typing; it is still reached by Tab where its tab stop is on.
            edit->setReadOnly(state->locked);
            edit->setFocusPolicy(state->tabStop ? Qt::StrongFocus : state->locked ? Qt::NoFocus : Qt::ClickFocus);
        }
        if (first || was.keys != state->keys)
            edit->setAlignment(state->keys == KeyRule::Text ? Qt::AlignLeft : Qt::AlignRight);
        if (first || was.widest != state->widest || was.keys != state->keys)
            edit->setMinimumWidth(leastWidth(*edit, *state));
        if (first || was.shade != state->shade || was.red != state->red)
            paint(edit, state->shade, form_, state->red);
        if (!state->toolTip.empty() && (first || was.toolTip != state->toolTip))
            showToolTip(*edit, state->toolTip);
        if (!typing)
            bound.shown = *state;
    }
}

void FormView::renderMessages()
{
    for (auto& bound : messages_) {
        const TextControl* state = model_.textOf(bound.control);
        if (!state || bound.shown == *state)
            continue;
        bound.widget->setText(QString::fromStdString(state->text));
        if (!bound.shown || bound.shown->shade != state->shade) {
            QPalette p = bound.widget->palette();
            p.setColor(QPalette::Window, baseColour(state->shade, form_));
            bound.widget->setPalette(p);
        }
        if (!state->toolTip.empty())
            showToolTip(*bound.widget, state->toolTip);
        bound.shown = *state;
    }
}

void FormView::renderLists()
{
    for (auto& bound : lists_) {
        const ListControl* state = model_.listOf(bound.control);
        if (!state || bound.shown == *state)
            continue;
        if (bound.widget->currentIndex() != state->listIndex)
            bound.widget->setCurrentIndex(state->listIndex);
        bound.widget->setEnabled(state->enabled);
        bound.widget->setFocusPolicy(state->tabStop ? Qt::StrongFocus : Qt::ClickFocus);
        if (!bound.shown || bound.shown->shade != state->shade)
            paint(bound.widget, state->shade, form_);
        bound.shown = *state;
    }
    for (auto& bound : tabs_) {
        const ListControl* state = model_.listOf(bound.control);
        if (!state || bound.shown == *state)
            continue;
        if (bound.widget->currentIndex() != state->listIndex)
            bound.widget->setCurrentIndex(state->listIndex);
        bound.shown = *state;
    }
}

void FormView::renderCaptions()
{
    for (auto& bound : labels_) {
        const LabelControl* state = model_.labelOf(bound.control);
        if (!state || bound.shown == *state)
            continue;
        if (!state->caption.empty() && bound.widget->text() != QString::fromStdString(state->caption)) {
            bound.widget->setText(QString::fromStdString(state->caption));
            namesStale_ = true;
        }
        bound.widget->setEnabled(!state->grey);
        bound.widget->setVisible(state->visible);
        bound.shown = *state;
    }
    for (auto& bound : frames_) {
        const FrameControl* state = model_.frameOf(bound.control);
        if (!state || bound.shown == *state)
            continue;
        if (bound.widget->title() != QString::fromStdString(state->caption)) {
            bound.widget->setTitle(QString::fromStdString(state->caption));
            namesStale_ = true;
        }
        bound.widget->setEnabled(state->enabled);
        if (!bound.shown || bound.shown->bold != state->bold || bound.shown->red != state->red)
            showCaptionStyle(bound.widget, *state);
        bound.shown = *state;
    }
}

void FormView::renderButtons()
{
    for (auto& bound : buttons_) {
        const ButtonControl* state = model_.buttonOf(bound.control);
        if (!state || bound.shown == *state)
            continue;
        QAbstractButton* button = bound.widget;
        if (!state->caption.empty() && button->text() != QString::fromStdString(state->caption)) {
            button->setText(QString::fromStdString(state->caption));
            namesStale_ = true;
        }
        button->setEnabled(state->enabled);
        if (button->isCheckable() && button->isChecked() != state->checked)
            button->setChecked(state->checked);
        button->setFocusPolicy(state->tabStop ? Qt::StrongFocus : Qt::ClickFocus);
        if (!state->toolTip.empty() && button->toolTip() != QString::fromStdString(state->toolTip)) {
            showToolTip(*button, state->toolTip);
            namesStale_ = true; // a button without a word in its caption is named by its tip
        }
        bound.shown = *state;
    }
}

} // namespace kestrova
