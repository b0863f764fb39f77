#include "frame/ui/help_viewer.h"

#include "frame/ui/program_icon.h"

#include <QAction>
#include <QApplication>
#include <QDesktopServices>
#include <QDockWidget>
#include <QHelpContentWidget>
#include <QHelpEngine>
#include <QHelpIndexWidget>
#include <QHelpLink>
#include <QHelpSearchEngine>
#include <QHelpSearchQueryWidget>
#include <QHelpSearchResultWidget>
#include <QLabel>
#include <QLineEdit>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QStyle>
#include <QTabWidget>
#include <QToolBar>
#include <QVBoxLayout>

namespace kestrova {

HelpBrowser::HelpBrowser(QHelpEngine& engine, QWidget* parent) : QTextBrowser(parent), engine_(engine)
{
    setOpenLinks(false); // the viewer decides: a page of the help here, anything else outside
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name)
{
    if (name.scheme() == "qthelp")
        return engine_.fileData(name);
    return QTextBrowser::loadResource(type, name);
}

HelpViewer::HelpViewer(QHelpEngine& engine, QUrl home, QWidget* parent)
    : QMainWindow(parent, Qt::Window), engine_(engine), home_(std::move(home))
{
    setObjectName("frmHelp");
    setWindowTitle("Kestrova Help");
    setWindowIcon(programIcon());
    setAttribute(Qt::WA_DeleteOnClose, false); // it lives with the frame and is shown again

    browser_ = new HelpBrowser(engine_, this);
    browser_->setObjectName("helpBrowser");
    connect(browser_, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) {
        const QUrl target = browser_->source().resolved(link);
        if (target.scheme() == "qthelp")
            showPage(target);
        else
            QDesktopServices::openUrl(target); // a source's web page
    });
    setCentralWidget(browser_);

    navigation_ = new QTabWidget;
    navigation_->setObjectName("helpNavigation");
    QHelpContentWidget* contents = engine_.contentWidget();
    contents->setObjectName("helpContents");
    contents_ = contents;
    connect(contents, &QHelpContentWidget::linkActivated, this, &HelpViewer::showPage);
    // The tree opens at its first level and marks the page shown, also after Back and Forward.
    connect(engine_.contentModel(), &QHelpContentModel::contentsCreated, contents, [this, contents] {
        contents->expandToDepth(0);
        followPage();
    });
    connect(browser_, &QTextBrowser::sourceChanged, this, &HelpViewer::followPage);
    navigation_->addTab(contents, "&Contents");
    navigation_->addTab(indexPane(), "&Index");
    navigation_->addTab(searchPane(), "&Search");
    auto* dock = new QDockWidget("Navigation", this);
    dock->setObjectName("helpNavigationDock");
    dock->setFeatures(QDockWidget::DockWidgetMovable);
    dock->setWidget(navigation_);
    addDockWidget(Qt::LeftDockWidgetArea, dock);
    resizeDocks({dock}, {260}, Qt::Horizontal);

    buildToolbar();
    resize(1000, 700);
}

QWidget* HelpViewer::indexPane()
{
    auto* pane = new QWidget;
    auto* layout = new QVBoxLayout(pane);
    auto* caption = new QLabel("&Look for:");
    indexKey_ = new QLineEdit;
    indexKey_->setObjectName("helpIndexKey");
    caption->setBuddy(indexKey_);
    QHelpIndexWidget* index = engine_.indexWidget();
    index->setObjectName("helpIndex");
    connect(indexKey_, &QLineEdit::textChanged, index, [index](const QString& key) { index->filterIndices(key); });
    connect(indexKey_, &QLineEdit::returnPressed, index, &QHelpIndexWidget::activateCurrentItem);
    connect(index, &QHelpIndexWidget::documentActivated, this,
            [this](const QHelpLink& document, const QString&) { showPage(document.url); });
    connect(index, &QHelpIndexWidget::documentsActivated, this,
            [this](const QList<QHelpLink>& documents, const QString&) {
                if (!documents.isEmpty())
                    showPage(documents.front().url);
            });
    layout->addWidget(caption);
    layout->addWidget(indexKey_);
    layout->addWidget(index);
    return pane;
}

QWidget* HelpViewer::searchPane()
{
    QHelpSearchEngine* search = engine_.searchEngine();
    auto* pane = new QWidget;
    auto* layout = new QVBoxLayout(pane);
    QHelpSearchQueryWidget* query = search->queryWidget();
    query->setObjectName("helpSearchQuery");
    QHelpSearchResultWidget* results = search->resultWidget();
    results->setObjectName("helpSearchResults");
    connect(query, &QHelpSearchQueryWidget::search, search, [search, query] { search->search(query->searchInput()); });
    connect(results, &QHelpSearchResultWidget::requestShowLink, this, &HelpViewer::showPage);
    layout->addWidget(query);
    layout->addWidget(results);
    return pane;
}

void HelpViewer::buildToolbar()
{
    QToolBar* bar = addToolBar("Help");
    bar->setObjectName("helpToolbar");
    bar->setMovable(false);
    const auto add = [this, bar](QStyle::StandardPixmap icon, const QString& text, QKeySequence key, auto slot) {
        QAction* action = bar->addAction(style()->standardIcon(icon), text);
        action->setShortcut(key);
        action->setToolTip(text + " (" + key.toString(QKeySequence::NativeText) + ")");
        connect(action, &QAction::triggered, this, slot);
        return action;
    };
    QAction* back = add(QStyle::SP_ArrowBack, "Back", QKeySequence::Back, [this] { browser_->backward(); });
    QAction* forward = add(QStyle::SP_ArrowForward, "Forward", QKeySequence::Forward, [this] { browser_->forward(); });
    back->setObjectName("helpBack");
    forward->setObjectName("helpForward");
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(browser_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    add(QStyle::SP_DirHomeIcon, "Contents", QKeySequence(Qt::ALT | Qt::Key_Home), [this] { showContents(); });
    add(QStyle::SP_FileIcon, "Print", QKeySequence::Print, [this] { print(); })->setObjectName("helpPrint");
}

void HelpViewer::showPage(const QUrl& url)
{
    browser_->setSource(url);
    present();
}

// Asked from a modal dialog, the viewer stands over that dialog until it is
// closed (a window under a modal dialog takes no input); asked from the
// frame, it stands beside the frame.
void HelpViewer::present()
{
    QWidget* modal = QApplication::activeModalWidget();
    const Qt::WindowModality wanted = modal && modal != this ? Qt::ApplicationModal : Qt::NonModal;
    if (windowModality() != wanted) {
        hide(); // a window's modality changes while it is hidden
        setWindowModality(wanted);
    }
    show();
    raise();
    activateWindow();
}

void HelpViewer::followPage()
{
    setWindowTitle("Kestrova Help - " + browser_->documentTitle());
    const QModelIndex entry = contents_->indexOf(browser_->source());
    if (entry.isValid())
        contents_->setCurrentIndex(entry);
}

void HelpViewer::showContents()
{
    navigation_->setCurrentIndex(0);
    showPage(home_);
}

void HelpViewer::showIndex()
{
    navigation_->setCurrentIndex(1);
    indexKey_->clear();
    if (browser_->source().isEmpty())
        browser_->setSource(home_);
    present();
    indexKey_->setFocus();
}

// The topic on paper, through the same preview as the data sheets.
void HelpViewer::print()
{
    QPrinter printer(QPrinter::HighResolution);
    QPrintPreviewDialog preview(&printer, this);
    preview.setWindowTitle("Print " + browser_->documentTitle());
    connect(&preview, &QPrintPreviewDialog::paintRequested, this,
            [this](QPrinter* target) { browser_->document()->print(target); });
    preview.exec();
}

} // namespace kestrova
