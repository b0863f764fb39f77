#pragma once
// The common frame of the dialog tools' windows: a QDialog over a model,
// bound control by control through a FormView as the document windows are,
// redrawn when the model changes and closed when the model asks.

#include "forms/ui/form_view.h"

#include <QDialog>

#include <functional>

namespace kestrova {

class FormModel;
class UserInterface;

class ToolDialog : public QDialog {
    Q_OBJECT

public:
    ToolDialog(FormModel& model, UserInterface& ui, const QString& name, const QString& title, QWidget* parent);
    ~ToolDialog() override;

    // Shows the dialog modally; the model's entry point calls this.
    void runModal();

protected:
    // Shows what the model holds: the controls that changed, then what the
    // window draws itself.
    void render();
    virtual void renderDrawing() {}
    void showEvent(QShowEvent* event) override; // a dialog always opens showing its model
    void reject() override; // Escape and the window's close button cancel through `onCancel`
    FormView& view() { return *view_; }

    UserInterface& ui_;
    std::function<void()> onCancel;
    std::function<void()> onShow; // the model's activation, run before the dialog first shows

private:
    void update();
    FormModel& model_;
    FormView* view_;
};

} // namespace kestrova
