#pragma once
// The common part of the document tools' windows: fields named as the program
// knows them ("txtData(5)", "cboUnits(5)"), Enter walking through the fields
// as Tab does, the numeric key filter, a field committed when it is left, and
// the status texts. Each tool's window builds its own tabs and mirrors its
// model in render().

#include "forms/ui/field_conventions.h"

#include <QWidget>

#include <functional>
#include <string>

class QComboBox;
class QLineEdit;

namespace kestrova {

class UserInterface;

class DocumentForm : public QWidget {
    Q_OBJECT

public:
    // `keyTyped` runs for any key typed in a field (it marks the data
    // changed); `least` is the smallest size the window opens at.
    DocumentForm(UserInterface& ui, QWidget* parent, std::function<void()> keyTyped, QSize least);

    QSize sizeHint() const override;
    virtual void render() = 0; // shows what the model holds

protected:
    // Runs the conventions under the exception barrier.
    bool eventFilter(QObject* watched, QEvent* event) override;

    // The tool's side of the conventions.
    virtual void commit(QLineEdit* field) = 0;
    virtual bool numericField(const QLineEdit& field, bool& minusAllowed) const = 0;

    QLineEdit* lineEdit(const QString& name, bool readOnly);
    QComboBox* unitList(const QString& name, const char* tag, const std::function<void(int)>& choose);
    void watchStatus(QWidget* widget, const QString& text);
    // Shows a model text, except in a field the user is typing in.
    static void showText(QLineEdit* edit, const std::string& text);
    // The index of a control name such as "txtData(12)", -1 without one.
    static int indexOf(const QString& name);

    UserInterface& ui_;
    FieldConventions conventions_;
    bool rendering_ = false; // set while render() runs, so that nothing is committed

private:
    bool filterEvent(QObject* watched, QEvent* event); // true swallows the event
    std::function<void()> keyTyped_;
    QSize least_;
};

} // namespace kestrova
