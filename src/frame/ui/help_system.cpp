#include "frame/ui/help_system.h"

#include "forms/model/help_contexts.h"
#include "forms/model/user_interface.h"
#include "forms/store/program_files.h"
#include "forms/ui/form_view.h"
#include "frame/ui/help_viewer.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QHelpEngine>
#include <QHelpSearchEngine>
#include <QKeyEvent>
#include <QStandardPaths>

namespace kestrova {

namespace {

// The help file's namespace and folder, as its project names them.
const char* kHelpRoot = "qthelp://org.kestrova.help/doc/";

void showHelpUnavailable(UserInterface& ui)
{
    ui.ask("Kestrova", "Unable to display Help Contents. There is no Help associated with this project.",
           MessageIcon::Warning, MessageButtons::Ok, MessageAnswer::Ok);
}

// The context number of the nearest window, from the widget outward, that names one.
int contextAt(const QWidget* widget)
{
    for (; widget; widget = widget->parentWidget())
        if (const QVariant context = widget->property(kHelpContextProperty); context.isValid())
            return context.toInt();
    return help::Contents;
}

} // namespace

HelpSystem::HelpSystem(UserInterface& ui, QString helpFile, QString collectionFile, QObject* parent)
    : QObject(parent), ui_(ui), helpFile_(std::move(helpFile)), collectionFile_(std::move(collectionFile))
{
    qApp->installEventFilter(this);
}

HelpSystem::~HelpSystem()
{
    close();
    delete viewer_; // before the engine whose widgets it shows
}

QString HelpSystem::defaultHelpFile()
{
    return programFile("kestrova.qch");
}

QString HelpSystem::defaultCollectionFile()
{
    const QString data = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    return QDir(data).filePath("help/kestrova.qhc");
}

QUrl HelpSystem::topicUrl(int context)
{
    return QUrl(QString(kHelpRoot) + QString::fromStdString(help::pageOf(context)));
}

// The user's collection registers the program's help file, again whenever
// that file is another or newer than the one registered, and the full-text
// index follows it.
bool HelpSystem::setUpEngine()
{
    if (engine_)
        return true;
    const QFileInfo file(helpFile_);
    if (!file.isFile())
        return false;
    QDir().mkpath(QFileInfo(collectionFile_).absolutePath());
    auto engine = std::make_unique<QHelpEngine>(collectionFile_);
    engine->setReadOnly(false); // the collection is the user's own, made and kept up to date here
    engine->setUsesFilterEngine(true);
    if (!engine->setupData())
        return false;
    const QString name = QHelpEngineCore::namespaceName(file.absoluteFilePath());
    const QString stamp = file.absoluteFilePath() + " " + file.lastModified().toString(Qt::ISODateWithMs);
    if (!engine->registeredDocumentations().contains(name) ||
        engine->customValue("helpFileStamp").toString() != stamp) {
        engine->unregisterDocumentation(name);
        if (!engine->registerDocumentation(file.absoluteFilePath()))
            return false;
        engine->setCustomValue("helpFileStamp", stamp);
        engine->searchEngine()->reindexDocumentation();
    } else {
        engine->searchEngine()->scheduleIndexDocumentation();
    }
    engine_ = std::move(engine);
    return true;
}

HelpViewer* HelpSystem::openViewer()
{
    if (!viewer_) {
        if (!setUpEngine()) {
            showHelpUnavailable(ui_);
            return nullptr;
        }
        auto* frame = qobject_cast<QWidget*>(parent());
        viewer_ = new HelpViewer(*engine_, topicUrl(help::Contents), frame);
    }
    return viewer_;
}

void HelpSystem::showContents()
{
    if (HelpViewer* viewer = openViewer())
        viewer->showContents();
}

void HelpSystem::showIndex()
{
    if (HelpViewer* viewer = openViewer())
        viewer->showIndex();
}

void HelpSystem::showTopic(int context)
{
    if (HelpViewer* viewer = openViewer())
        viewer->showPage(topicUrl(context));
}

void HelpSystem::close()
{
    if (viewer_)
        viewer_->close();
}

// F1 reaches the widget with the focus: its override claims the key from the
// Help menu's shortcut, and its press opens the topic of the nearest window
// that names one. The same press seen first by the window system's window
// goes on to the widget.
bool HelpSystem::eventFilter(QObject* watched, QEvent* event)
{
    const bool keyEvent = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    auto* widget = qobject_cast<QWidget*>(watched);
    if (!keyEvent || !widget)
        return QObject::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier)
        return QObject::eventFilter(watched, event);
    event->accept();
    if (event->type() == QEvent::KeyPress)
        showTopic(contextAt(widget));
    return true;
}

} // namespace kestrova
