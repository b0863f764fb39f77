#pragma once
// What a screen reader says for the inputs of a window: each field, list,
// option and button has a name taken from the captions around it, as a
// sighted user reads the form. A name given to a widget by its window stays;
// the names derived here are derived again on each call, so that an input
// whose caption changed is read by its new caption.

#include <QString>

#include <functional>

class QWidget;

namespace kestrova {

// The property that marks a list of units: it is named after the field
// beside it ("Flow Rate units").
inline constexpr const char* kUnitListProperty = "unitList";

// A caption as it is read aloud: without its accelerator mark ("&&" is a
// plain "&") and without the colon that ends it.
QString spokenCaption(const QString& caption);

// Names every input of `window` that has none of its own, in this order of
// preference: the caption whose buddy it is; for a list of units, the name
// of the field to its left and "units"; the caption to its left in its row
// of a grid; for a button whose caption has no word ("..."), its tool tip;
// the title of its group when it is the group's only input; last, the
// status text the window shows for it alone, when it gives one.
using OwnText = std::function<QString(const QWidget&)>;
void nameInputs(QWidget& window, const OwnText& statusText = {});

// True for the widgets that take the user's input and so must be named.
bool isInput(const QWidget& widget);

} // namespace kestrova
