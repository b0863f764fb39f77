#include "forms/ui/tool_dialog.h"

#include "forms/model/user_interface.h"
#include "forms/ui/exception_barrier.h"
#include "units/basLoadUnits.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

namespace kestrova {

ToolDialog::ToolDialog(FormModel& model, UserInterface& ui, const QString& name, const QString& title, QWidget* parent)
    : QDialog(parent), ui_(ui), model_(model), conventions_(ui)
{
    setObjectName(name);
    setWindowTitle(title);
    connect(&model_, &FormModel::changed, this, &ToolDialog::update);
}

void ToolDialog::runModal()
{
    model_.closeRequested = false;
    exec();
}

void ToolDialog::showEvent(QShowEvent* event)
{
    runGuarded("opening " + windowTitle().toStdString(), [this] {
        if (onShow)
            onShow();
        render();
    }, &ui_);
    QDialog::showEvent(event);
}

void ToolDialog::update()
{
    runGuarded("showing " + windowTitle().toStdString(), [this] { render(); }, &ui_);
    if (model_.closeRequested) {
        model_.closeRequested = false;
        accept();
    }
}

void ToolDialog::reject()
{
    if (onCancel)
        runGuarded("closing " + windowTitle().toStdString(), onCancel, &ui_); // the model asks to close; update() accepts
    if (isVisible())
        QDialog::reject();
}

void ToolDialog::setText(QLineEdit* edit, const std::string& text)
{
    const QString shown = QString::fromStdString(text);
    if (edit->text() != shown && !(edit->hasFocus() && edit->isModified()))
        edit->setText(shown);
}

QLineEdit* ToolDialog::field(const QString& name, const std::function<void(const QString&)>& commit, bool numeric,
                             bool minus)
{
    auto* edit = new QLineEdit(this);
    edit->setObjectName(name);
    edit->setAlignment(numeric ? Qt::AlignRight : Qt::AlignLeft);
    edit->setMinimumWidth(100);
    edit->installEventFilter(this);
    commits_[edit] = commit;
    filters_[edit] = {numeric, minus};
    return edit;
}

QLineEdit* ToolDialog::output(const QString& name)
{
    auto* edit = new QLineEdit(this);
    edit->setObjectName(name);
    edit->setAlignment(Qt::AlignRight);
    edit->setReadOnly(true);
    edit->setMinimumWidth(100);
    QPalette p = edit->palette();
    p.setColor(QPalette::Base, QColor(192, 192, 255));
    edit->setPalette(p);
    return edit;
}

QComboBox* ToolDialog::unitList(const QString& name, const char* tag, const std::function<void(int)>& choose)
{
    auto* list = new QComboBox(this);
    list->setObjectName(name);
    for (const std::string& unit : kestrova::unitList(tag))
        list->addItem(QString::fromStdString(unit));
    list->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    connect(list, &QComboBox::activated, this, guarded("the choice of a unit", ui_, choose));
    return list;
}

QPushButton* ToolDialog::button(const QString& name, const QString& caption, const std::function<void()>& click)
{
    auto* b = new QPushButton(caption, this);
    b->setObjectName(name);
    b->setAutoDefault(false);
    connect(b, &QPushButton::clicked, this, guarded("the click on " + QString(caption).remove('&').toStdString(), ui_, click));
    return b;
}

void ToolDialog::status(QWidget* widget, const QString& text)
{
    conventions_.setStatusText(widget, text, this);
}

bool ToolDialog::eventFilter(QObject* watched, QEvent* event)
{
    bool swallowed = false;
    runGuarded("the last entry in " + windowTitle().toStdString(), [&] { swallowed = filterEvent(watched, event); }, &ui_);
    return swallowed || QDialog::eventFilter(watched, event);
}

bool ToolDialog::filterEvent(QObject* watched, QEvent* event)
{
    auto* edit = qobject_cast<QLineEdit*>(watched);
    switch (event->type()) {
    case QEvent::FocusOut:
        if (edit && commits_.count(edit)) {
            edit->setModified(false);
            commits_[edit](edit->text());
        }
        break;
    case QEvent::KeyPress: {
        auto* key = static_cast<QKeyEvent*>(event);
        if (edit && filters_.count(edit) && filters_[edit].first && numericKeyRefused(*edit, *key, filters_[edit].second))
            return true;
        break;
    }
    default:
        break;
    }
    conventions_.apply(watched, event);
    return false;
}

} // namespace kestrova
