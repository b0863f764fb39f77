#pragma once
// The common part of the document tools' windows: a FormView over the tool's
// model, with Enter walking through the fields as Tab does, the window
// redrawn when the model changes, and the close rows of fields that let a
// document window fit an 800 by 600 screen. Each tool's window only lays out
// its controls.

#include "forms/ui/form_view.h"

#include <QWidget>

namespace kestrova {

class FormModel;
class UserInterface;

class DocumentForm : public QWidget {
    Q_OBJECT

public:
    DocumentForm(FormModel& model, UserInterface& ui, QWidget* parent);
    ~DocumentForm() override;

    // Shows what the model holds: the controls that changed, then what the
    // window draws itself.
    void render();

protected:
    virtual void renderDrawing() {}
    FormView& view() { return *view_; }
    void compactLayouts() { view_->compactLayouts(); }

    UserInterface& ui_;

private:
    FormModel& model_;
    FormView* view_;
};

} // namespace kestrova
