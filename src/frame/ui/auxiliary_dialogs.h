#pragma once
// The small forms round the frame: the splash, the about box, the company
// block, the disclaimer that must be agreed to, and the disclaimer text.

#include <QDialog>
#include <QSplashScreen>

class QCheckBox;
class QLineEdit;
class QPlainTextEdit;

namespace kestrova {

class CompanyInfoModel;
class UserInterface;
class SettingsStore;

// The application's own texts, shown alike by the splash and the about box.
struct ApplicationTexts {
    static QString company();
    static QString title();
    static QString version(); // "Version " and major.minor.revision
    static QString description();
    static QString copyright();
    static QString trademarks();
};

// frmSplash: the company, the application's name, version and description,
// its copyright and trademarks lines.
class frmSplash : public QSplashScreen {
public:
    frmSplash();
};

// frmAbout: the application's texts, OK and System Info.
class frmAbout : public QDialog {
public:
    frmAbout(UserInterface& ui, QWidget* parent);

private:
    void StartSysInfo();
    UserInterface& ui_;
};

// frmCompanyInfo: the six texts of the company block; closing asks whether
// to save them.
class frmCompanyInfo : public QDialog {
public:
    frmCompanyInfo(CompanyInfoModel& model, UserInterface& ui, QWidget* parent);

protected:
    void done(int result) override; // every way of closing goes through the question
    bool event(QEvent* event) override;

private:
    CompanyInfoModel& model_;
    UserInterface& ui_;
};

// frmDisclaimer: the text of "disclaimer.txt" beside the program.
class frmDisclaimer : public QDialog {
public:
    frmDisclaimer(UserInterface& ui, QWidget* parent);
    QPlainTextEdit* text() const { return txtText_; }

protected:
    bool event(QEvent* event) override; // at activation the pointer goes to OK

private:
    QPlainTextEdit* txtText_;
    QWidget* cmdOK_;
};

// Moves the mouse pointer to the middle of a window or control.
void basCenterMouseCursor(const QWidget& window);

// frmReadDisclaimer: shown at start while "Disclaimer Show" is set. Agreeing
// goes on; disagreeing ends the program at once.
class frmReadDisclaimer : public QDialog {
public:
    frmReadDisclaimer(UserInterface& ui, SettingsStore& store, bool showFlag, QWidget* parent);
    bool agreed() const { return agreed_; }
    bool showFlag() const { return showFlag_; }

protected:
    bool event(QEvent* event) override; // at activation the pointer goes to "I Agree"

private:
    void cmdAgree_Click();
    UserInterface& ui_;
    SettingsStore& store_;
    QCheckBox* chkDontShow_;
    QWidget* cmdAgree_;
    bool showFlag_;
    bool loaded_ = false;
    bool agreed_ = false;
};

} // namespace kestrova
