#pragma once
// The small forms round the frame: the splash, the disclaimer that must be
// agreed to, and the disclaimer text itself.

#include <QDialog>
#include <QSplashScreen>

class QCheckBox;
class QPlainTextEdit;

namespace kestrova {

class UserInterface;
class SettingsStore;

// frmSplash: the application's name, version and description.
class frmSplash : public QSplashScreen {
public:
    frmSplash();
};

// frmDisclaimer: the text of "disclaimer.txt" beside the program.
class frmDisclaimer : public QDialog {
public:
    frmDisclaimer(UserInterface& ui, QWidget* parent);
    QPlainTextEdit* text() const { return txtText_; }

private:
    QPlainTextEdit* txtText_;
};

// frmReadDisclaimer: shown at start while "Disclaimer Show" is set. Agreeing
// goes on; disagreeing ends the program at once.
class frmReadDisclaimer : public QDialog {
public:
    frmReadDisclaimer(UserInterface& ui, SettingsStore& store, bool showFlag, QWidget* parent);
    bool agreed() const { return agreed_; }
    bool showFlag() const { return showFlag_; }

private:
    void cmdAgree_Click();
    UserInterface& ui_;
    SettingsStore& store_;
    QCheckBox* chkDontShow_;
    bool showFlag_;
    bool loaded_ = false;
    bool agreed_ = false;
};

} // namespace kestrova
