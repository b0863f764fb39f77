#pragma once
// The common frame of the dialog tools' windows: a QDialog over a model that
// re-renders on the model's change signal and closes when the model asks,
// with the field conventions of the program (commit on leaving a field, text
// selected on entering it, the numeric key filter, status texts).

#include "forms/ui/field_conventions.h"
#include "forms/model/form_model.h"

#include <QDialog>

#include <functional>
#include <map>

class QComboBox;
class QLineEdit;
class QPushButton;

namespace kestrova {

class UserInterface;

class ToolDialog : public QDialog {
    Q_OBJECT

public:
    ToolDialog(FormModel& model, UserInterface& ui, const QString& name, const QString& title, QWidget* parent);

    // Shows the dialog modally; the model's entry point calls this.
    void runModal();

protected:
    virtual void render() = 0;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override; // a dialog always opens showing its model
    void reject() override; // Escape and the window's close button cancel through `onCancel`

    // A text field that commits through `commit` when it is left. `numeric`
    // lets only digits, one point, one comma and (when `minus`) one minus pass.
    QLineEdit* field(const QString& name, const std::function<void(const QString&)>& commit, bool numeric = true,
                     bool minus = true);
    QLineEdit* output(const QString& name);
    QComboBox* unitList(const QString& name, const char* tag, const std::function<void(int)>& choose);
    QPushButton* button(const QString& name, const QString& caption, const std::function<void()>& click);
    void status(QWidget* widget, const QString& text);
    static void setText(QLineEdit* edit, const std::string& text);

    UserInterface& ui_;
    std::function<void()> onCancel;
    std::function<void()> onShow; // the model's activation, run before the dialog first shows

private:
    bool filterEvent(QObject* watched, QEvent* event); // true swallows the event
    void update();
    FormModel& model_;
    std::map<QObject*, std::function<void(const QString&)>> commits_;
    FieldConventions conventions_;
    std::map<QObject*, std::pair<bool, bool>> filters_; // numeric, minus
};

} // namespace kestrova
