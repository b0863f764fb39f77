#include "forms/ui/document_form.h"

#include "forms/ui/exception_barrier.h"
#include "units/basLoadUnits.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

namespace kestrova {

DocumentForm::DocumentForm(UserInterface& ui, QWidget* parent, std::function<void()> keyTyped, QSize least)
    : QWidget(parent), ui_(ui), conventions_(ui), keyTyped_(std::move(keyTyped)), least_(least)
{
}

QSize DocumentForm::sizeHint() const
{
    return QWidget::sizeHint().expandedTo(least_);
}

int DocumentForm::indexOf(const QString& name)
{
    const int open = name.indexOf('(');
    return open < 0 ? -1 : name.mid(open + 1, name.size() - open - 2).toInt();
}

void DocumentForm::watchStatus(QWidget* widget, const QString& text)
{
    conventions_.setStatusText(widget, text, this);
}

QLineEdit* DocumentForm::lineEdit(const QString& name, bool readOnly)
{
    auto* edit = new QLineEdit;
    edit->setObjectName(name);
    edit->setReadOnly(readOnly);
    edit->setAlignment(Qt::AlignRight);
    edit->setMinimumWidth(110);
    if (readOnly) {
        edit->setFocusPolicy(Qt::NoFocus);
        QPalette p = edit->palette();
        p.setColor(QPalette::Base, palette().color(QPalette::Window).lighter(104));
        edit->setPalette(p);
    }
    edit->installEventFilter(this);
    return edit;
}

QComboBox* DocumentForm::unitList(const QString& name, const char* tag, const std::function<void(int)>& choose)
{
    auto* units = new QComboBox;
    units->setObjectName(name);
    for (const std::string& unit : kestrova::unitList(tag))
        units->addItem(QString::fromStdString(unit));
    units->setFocusPolicy(Qt::ClickFocus);
    connect(units, &QComboBox::activated, this, guarded("the choice of a unit", ui_, choose));
    return units;
}

void DocumentForm::showText(QLineEdit* edit, const std::string& text)
{
    const QString shown = QString::fromStdString(text);
    if (edit->text() != shown && !(edit->hasFocus() && edit->isModified()))
        edit->setText(shown);
}

bool DocumentForm::eventFilter(QObject* watched, QEvent* event)
{
    bool swallowed = false;
    runGuarded("the last entry in " + windowTitle().toStdString(), [&] { swallowed = filterEvent(watched, event); }, &ui_);
    return swallowed || QWidget::eventFilter(watched, event);
}

bool DocumentForm::filterEvent(QObject* watched, QEvent* event)
{
    auto* field = qobject_cast<QLineEdit*>(watched);
    switch (event->type()) {
    case QEvent::KeyPress: {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            focusNextChild(); // Enter walks through the fields as Tab does
            return true;
        }
        if (field && !field->isReadOnly()) {
            bool minusAllowed = false;
            if (numericField(*field, minusAllowed) && numericKeyRefused(*field, *key, minusAllowed))
                return true;
            keyTyped_();
        }
        break;
    }
    case QEvent::FocusOut:
        if (field && !field->isReadOnly() && !rendering_) {
            commit(field);
            field->setModified(false);
        }
        break;
    default:
        break;
    }
    conventions_.apply(watched, event);
    return false;
}

} // namespace kestrova
