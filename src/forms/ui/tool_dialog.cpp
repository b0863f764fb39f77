#include "forms/ui/tool_dialog.h"

#include "forms/model/form_model.h"
#include "forms/ui/exception_barrier.h"

namespace kestrova {

ToolDialog::ToolDialog(FormModel& model, UserInterface& ui, const QString& name, const QString& title, QWidget* parent)
    : QDialog(parent), ui_(ui), model_(model), view_(new FormView(model, ui, *this))
{
    setObjectName(name);
    setWindowTitle(title);
    connect(&model_, &FormModel::changed, this, &ToolDialog::update);
}

ToolDialog::~ToolDialog()
{
    disconnect(&model_, nullptr, this, nullptr);
    view_->detach();
}

void ToolDialog::runModal()
{
    model_.closeRequested = false;
    exec();
}

void ToolDialog::render()
{
    view_->render();
    renderDrawing();
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

} // namespace kestrova
