#pragma once
// The key filter of the numeric fields, shared by the document tools and the
// dialog tools: digits always pass, and so do one decimal point, one comma
// and, in a field that takes negative numbers, one minus sign. Keys that are
// not printable (Backspace, the arrows) are not the filter's business.

class QKeyEvent;
class QLineEdit;

namespace kestrova {

// True when the key would put a character into the field that a number
// cannot hold; the caller swallows the key.
bool numericKeyRefused(const QLineEdit& field, const QKeyEvent& key, bool minusAllowed);

} // namespace kestrova
