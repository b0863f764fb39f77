#include "forms/ui/document_form.h"

#include "forms/model/form_model.h"
#include "forms/ui/exception_barrier.h"

namespace kestrova {

DocumentForm::DocumentForm(FormModel& model, UserInterface& ui, QWidget* parent)
    : QWidget(parent), ui_(ui), model_(model), view_(new FormView(model, ui, *this))
{
    view_->setEnterAsTab(true);
    connect(&model, &FormModel::changed, this, [this] { view_->guard([this] { render(); }); });
}

DocumentForm::~DocumentForm()
{
    disconnect(&model_, nullptr, this, nullptr);
    view_->detach();
}

void DocumentForm::render()
{
    view_->render();
    renderDrawing();
}

} // namespace kestrova
