#include "forms/ui/field_conventions.h"

#include "forms/model/user_interface.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>

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

void FieldConventions::setStatusText(QWidget* control, const QString& text, QObject* form)
{
    statusTexts_[control] = text;
    control->installEventFilter(form);
}

void FieldConventions::apply(QObject* watched, const QEvent* event)
{
    auto* field = qobject_cast<QLineEdit*>(watched);
    if (event->type() == QEvent::FocusIn) {
        if (field && !field->isReadOnly()) {
            QTimer::singleShot(0, field, &QLineEdit::selectAll);
            if (static_cast<const QFocusEvent*>(event)->reason() == Qt::MouseFocusReason)
                selectOnRelease_ = field;
        }
    } else if (event->type() == QEvent::MouseButtonRelease) {
        if (field && field == selectOnRelease_ && !field->hasSelectedText())
            QTimer::singleShot(0, field, &QLineEdit::selectAll); // after the field has taken the release
        selectOnRelease_ = nullptr;
    } else if (event->type() == QEvent::Enter) {
        const auto found = statusTexts_.find(watched);
        if (found != statusTexts_.end())
            ui_.setStatusText(found->second.toStdString());
    }
}

} // namespace kestrova
