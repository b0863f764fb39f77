#pragma once
// The conventions that the fields of every tool share, in one place for the
// document tools and the dialog tools alike: the key filter of the numeric
// fields, the text selected when a field takes the focus, and the status
// text written when the pointer enters a control.

#include <QLineEdit>
#include <QPointer>
#include <QString>

#include <map>

class QEvent;
class QKeyEvent;
class QObject;
class QWidget;

namespace kestrova {

class UserInterface;

// True when the key would put a character into the field that a number
// cannot hold; the caller swallows the key. Digits always pass, and so do
// one decimal point, one comma and, where `minusAllowed`, one minus sign.
// Keys that are not printable (Backspace, the arrows) are not refused.
bool numericKeyRefused(const QLineEdit& field, const QKeyEvent& key, bool minusAllowed);

class FieldConventions {
public:
    explicit FieldConventions(UserInterface& ui) : ui_(ui) {}

    // The text for the status panel while the pointer is over `control`;
    // `form` is the event filter that passes the control's events on.
    void setStatusText(QWidget* control, const QString& text, QObject* form);

    // The shared part of a form's event filter: a writable field selects its
    // text when it takes the focus, and entering a control with a status
    // text shows it.
    void apply(QObject* watched, const QEvent* event);

private:
    UserInterface& ui_;
    std::map<const QObject*, QString> statusTexts_;
    // A field entered by a click: its text is selected when the button is
    // released, since the click itself places the cursor.
    QPointer<QLineEdit> selectOnRelease_;
};

} // namespace kestrova
