#pragma once
// What the widget tests share: a frame of its own, the controls of a form by
// their program names, typing as a user types, answering the next message
// box, and the check that every field shows its whole text.

#include "frame/ui/document_tools.h"
#include "frame/ui/frmMain.h"
#include "forms/store/settings_store.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <initializer_list>
#include <utility>

// A frame with settings of its own in a folder of its own.
struct FrameUnderTest {
    QTemporaryDir dir;
    kestrova::SettingsStore store{dir.filePath("Kestrova.ini")};
    kestrova::frmMain frame{store};
};

template <typename T>
T* control(QWidget* form, const QString& name)
{
    T* found = form->findChild<T*>(name);
    if (!found)
        qFatal("no control %s", qPrintable(name));
    return found;
}

// Clicks the button of the next message box once it is shown.
inline void answerNextMessage(QMessageBox::StandardButton answer)
{
    QTimer::singleShot(20, [answer] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            box->button(answer)->click();
        else
            answerNextMessage(answer);
    });
}

// Runs `work` on the modal dialog of that name once it shows, then clicks
// its button of that name.
inline void inNextDialog(const QString& name, std::function<void(QDialog&)> work, const char* closeButton)
{
    QTimer::singleShot(20, [name, work, closeButton] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog || dialog->objectName() != name) {
            inNextDialog(name, work, closeButton);
            return;
        }
        // The fields commit as the focus leaves them: the dialog must hold the focus.
        QApplication::setActiveWindow(dialog);
        if (!QTest::qWaitForWindowActive(dialog))
            qWarning("the dialog %s never became active", qPrintable(name));
        work(*dialog);
        control<QPushButton>(dialog, closeButton)->click();
    });
}

inline QWidget* frontForm(kestrova::frmMain& frame)
{
    return kestrova::OpenDocuments::formOf(*frame.mdiArea()->activeSubWindow());
}

// A frame of its own, shown and in front, as at the start of the program.
inline bool shownAndActive(kestrova::frmMain& frame)
{
    frame.show();
    frame.activateWindow();
    return QTest::qWaitForWindowActive(&frame);
}

// Types a text into a field as a user does, and leaves the field.
inline void type(QLineEdit* field, const QString& text)
{
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, text);
    field->clearFocus(); // leaving the field commits it
}

// Types each text into its field in turn, leaving each.
inline void typeAll(QWidget* form, std::initializer_list<std::pair<const char*, const char*>> texts)
{
    for (const auto& [name, text] : texts)
        type(control<QLineEdit>(form, name), text);
}

// Every field of a window shows its whole text and is no narrower than its
// least width: the numbers are never cut off.
inline void expectWholeTexts(QWidget& window)
{
    for (const QLineEdit* field : window.findChildren<QLineEdit*>()) {
        if (!field->isVisibleTo(&window))
            continue;
        QVERIFY2(field->width() >= field->minimumWidth(), qPrintable(window.objectName() + " " + field->objectName()));
        const int needed = field->fontMetrics().horizontalAdvance(field->text()) + 8;
        QVERIFY2(field->width() >= needed, qPrintable(window.objectName() + " " + field->objectName() + " '" +
                                                       field->text() + "'"));
    }
}
