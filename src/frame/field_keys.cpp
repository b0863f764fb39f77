#include "frame/field_keys.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace kestrova {

bool numericKeyRefused(const QLineEdit& field, const QKeyEvent& key, bool minusAllowed)
{
    if (key.text().isEmpty() || !key.text().at(0).isPrint())
        return false;
    const QChar c = key.text().at(0);
    if (c.isDigit())
        return false;
    // The characters that stay once the typed key replaces the selection.
    QString rest = field.text();
    if (field.hasSelectedText())
        rest.remove(field.selectionStart(), field.selectedText().size());
    if ((c == '.' || c == ',') && !rest.contains(c))
        return false;
    if (c == '-' && minusAllowed && !rest.contains('-'))
        return false;
    return true;
}

} // namespace kestrova
