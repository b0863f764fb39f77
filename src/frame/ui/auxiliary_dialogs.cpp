#include "frame/ui/auxiliary_dialogs.h"

#include "forms/store/program_files.h"
#include "frame/ui/program_icon.h"

#include "frame/model/company_info_model.h"
#include "forms/store/settings_store.h"
#include "forms/model/user_interface.h"
#include "forms/ui/exception_barrier.h"

#include <QCheckBox>
#include <QCursor>
#include <QScreen>
#include <QFormLayout>
#include <QLineEdit>
#include <QProcess>
#include <QStandardPaths>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <cmath>

namespace kestrova {

namespace {

QPixmap splashPicture()
{
    QPixmap picture(480, 300);
    picture.fill(QColor(0x1f, 0x3b, 0x5c));
    QPainter p(&picture);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QColor(0x9f, 0xc5, 0xe8));
    for (int i = 0; i < 6; ++i)
        p.drawLine(0, 206 + 8 * i, 480, 176 + 14 * i); // a hint of flow lines
    p.drawPixmap(24, 24, programPicture(64));
    const auto line = [&p](int top, int height, int points, bool bold, const QString& text) {
        QFont font = p.font();
        font.setPointSize(points);
        font.setBold(bold);
        p.setFont(font);
        p.setPen(Qt::white);
        p.drawText(QRect(0, top, 480, height), Qt::AlignCenter, text);
    };
    line(20, 20, 10, false, ApplicationTexts::company());              // lblCompanyProduct
    line(50, 56, 30, true, ApplicationTexts::title());                 // lblProductName
    line(108, 22, 11, false, ApplicationTexts::description());         // lblDescription
    line(132, 22, 11, false, ApplicationTexts::version());             // lblVersion
    line(258, 16, 8, false, ApplicationTexts::copyright());            // lblCopyright
    line(276, 16, 8, false, ApplicationTexts::trademarks());           // lblWarning
    return picture;
}

} // namespace

QString ApplicationTexts::company()
{
    return QCoreApplication::organizationName();
}

QString ApplicationTexts::copyright()
{
    return QString::fromUtf8("Copyright \u00A9 2026 The Kestrova developers. All rights reserved.");
}

QString ApplicationTexts::title()
{
    return QCoreApplication::applicationName();
}

QString ApplicationTexts::version()
{
    return "Version " + QCoreApplication::applicationVersion();
}

QString ApplicationTexts::description()
{
    return "Hydraulic Calculation Workbench";
}

QString ApplicationTexts::trademarks()
{
    return "Kestrova is a trademark of the Kestrova developers.";
}

frmSplash::frmSplash() : QSplashScreen(splashPicture())
{
    setObjectName("frmSplash");
}

frmAbout::frmAbout(UserInterface& ui, QWidget* parent) : QDialog(parent), ui_(ui)
{
    setObjectName("frmAbout");
    setWindowTitle("About " + ApplicationTexts::title());
    const auto label = [this](const char* name, const QString& text) {
        auto* l = new QLabel(text, this);
        l->setObjectName(name);
        l->setWordWrap(true);
        return l;
    };
    QLabel* title = label("lblTitle", ApplicationTexts::title());
    QFont big = title->font();
    big.setPointSize(big.pointSize() * 2);
    big.setBold(true);
    title->setFont(big);
    auto* ok = new QPushButton("OK", this);
    ok->setObjectName("cmdOK");
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    auto* sysInfo = new QPushButton("&System Info...", this);
    sysInfo->setObjectName("cmdSysInfo");
    connect(sysInfo, &QPushButton::clicked, this, guarded(windowTitle().toStdString(), ui_, [this] { StartSysInfo(); }));
    auto* buttons = new QVBoxLayout;
    buttons->addWidget(ok);
    buttons->addWidget(sysInfo);
    buttons->addStretch();
    auto* texts = new QVBoxLayout;
    texts->addWidget(title);
    texts->addWidget(label("lblVersion", ApplicationTexts::version()));
    texts->addWidget(label("lblDescription", ApplicationTexts::description()));
    texts->addStretch();
    texts->addWidget(label("lblCopyright", ApplicationTexts::copyright()));
    texts->addWidget(label("lblDisclaimer", ApplicationTexts::trademarks()));
    auto* layout = new QHBoxLayout(this);
    layout->addLayout(texts, 1);
    layout->addLayout(buttons);
    resize(460, 220);
}

// Starts the desktop's system information program, where one is installed.
void frmAbout::StartSysInfo()
{
    for (const char* program : {"hardinfo", "kinfocenter", "hardinfo2"}) {
        const QString path = QStandardPaths::findExecutable(program);
        if (!path.isEmpty() && QProcess::startDetached(path, {}))
            return;
    }
    ui_.ask("Kestrova", "System Information Is Unavailable At This Time", MessageIcon::Information, MessageButtons::Ok,
            MessageAnswer::Ok);
}

frmCompanyInfo::frmCompanyInfo(CompanyInfoModel& model, UserInterface& ui, QWidget* parent)
    : QDialog(parent), model_(model), ui_(ui)
{
    setObjectName("frmCompanyInfo");
    setWindowTitle("Company Information");
    setAttribute(Qt::WA_Hover);
    auto* form = new QFormLayout;
    for (size_t i = 0; i < CompanyInfoModel::fields().size(); ++i) {
        const CompanyInfoModel::Field& f = CompanyInfoModel::fields()[i];
        auto* edit = new QLineEdit(QString::fromStdString(model_.text[i]), this);
        edit->setObjectName(f.control);
        edit->setMinimumWidth(280);
        connect(edit, &QLineEdit::textChanged, this, guarded(windowTitle().toStdString(), ui_, [this, i](const QString& text) { model_.text[i] = text.toStdString(); }));
        form->addRow(f.label, edit);
    }
    auto* close = new QPushButton("&Close", this);
    close->setObjectName("cmdClose");
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(close, 0, Qt::AlignRight);
}

void frmCompanyInfo::done(int result)
{
    if (model_.Form_QueryUnload())
        QDialog::done(result);
}

bool frmCompanyInfo::event(QEvent* event)
{
    if (event->type() == QEvent::HoverMove)
        ui_.setStatusText("Enter Company Information");
    return QDialog::event(event);
}

frmDisclaimer::frmDisclaimer(UserInterface& ui, QWidget* parent) : QDialog(parent)
{
    setObjectName("frmDisclaimer");
    setWindowTitle("Disclaimer");
    ui.beep();
    txtText_ = new QPlainTextEdit(this);
    txtText_->setObjectName("txtText");
    txtText_->setReadOnly(true);
    auto* ok = new QPushButton("OK", this);
    ok->setObjectName("cmdOK");
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    cmdOK_ = ok;
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(txtText_);
    layout->addWidget(ok, 0, Qt::AlignRight);
    resize(560, 420);

    QFile file(programFile("disclaimer.txt"));
    if (file.open(QIODevice::ReadOnly))
        txtText_->setPlainText(QString::fromUtf8(file.readAll()));
    else
        ui.ask("Error:  Kestrova", "The file DISCLAIMER.TXT could not be located.\nPlease re-install Kestrova.",
               MessageIcon::Stop, MessageButtons::Ok, MessageAnswer::Ok);
}

frmReadDisclaimer::frmReadDisclaimer(UserInterface& ui, SettingsStore& store, bool showFlag, QWidget* parent)
    : QDialog(parent), ui_(ui), store_(store), showFlag_(showFlag)
{
    setObjectName("frmReadDisclaimer");
    setWindowTitle("Kestrova");
    auto* text = new QLabel("Kestrova is an engineering aid. Its results must be checked by a qualified engineer "
                            "before they are used.\n\nPlease read the disclaimer. You must agree to it in order "
                            "to use Kestrova.",
                            this);
    text->setWordWrap(true);
    chkDontShow_ = new QCheckBox("Don't &show this message again", this);
    chkDontShow_->setObjectName("chkDontShow");
    auto* read = new QPushButton("&Read Disclaimer...", this);
    read->setObjectName("cmdRead");
    auto* agree = new QPushButton("I &Agree", this);
    agree->setObjectName("cmdAgree");
    agree->setDefault(true);
    cmdAgree_ = agree;
    auto* disagree = new QPushButton("I &Disagree", this);
    disagree->setObjectName("cmdDisagree");
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(read);
    buttons->addStretch();
    buttons->addWidget(agree);
    buttons->addWidget(disagree);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(chkDontShow_);
    layout->addLayout(buttons);
    resize(440, 200);

    connect(chkDontShow_, &QCheckBox::toggled, this, guarded(windowTitle().toStdString(), ui_, [this] {
        if (loaded_)
            showFlag_ = !showFlag_;
    }));
    connect(read, &QPushButton::clicked, this, guarded(windowTitle().toStdString(), ui_, [this] {
        frmDisclaimer disclaimer(ui_, this);
        disclaimer.exec();
    }));
    connect(agree, &QPushButton::clicked, this, guarded(windowTitle().toStdString(), ui_, [this] { cmdAgree_Click(); }));
    connect(disagree, &QPushButton::clicked, this, &QDialog::reject);

    ui_.setStatusText("You must agree in order to use Kestrova");
    chkDontShow_->setChecked(!showFlag_);
    loaded_ = true;
}

bool frmDisclaimer::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate)
        basCenterMouseCursor(*cmdOK_);
    return QDialog::event(event);
}

bool frmReadDisclaimer::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate)
        basCenterMouseCursor(*cmdAgree_);
    return QDialog::event(event);
}

// The window's rectangle runs from its left and top edges to just past its
// right and bottom edges; the middle is rounded half to even.
void basCenterMouseCursor(const QWidget& window)
{
    const QPoint topLeft = window.mapToGlobal(QPoint(0, 0));
    const auto middle = [](int from, int extent) { return static_cast<int>(std::nearbyint((2.0 * from + extent) / 2)); };
    QCursor::setPos(window.screen(), middle(topLeft.x(), window.width()), middle(topLeft.y(), window.height()));
}

void frmReadDisclaimer::cmdAgree_Click()
{
    agreed_ = true;
    ui_.setStatusText("Select a menu item"); // the frame's own text, not the disclaimer's any more
    store_.save("Settings", "Disclaimer Show", showFlag_ ? "True" : "False");
    store_.sync();
    accept();
}

} // namespace kestrova
