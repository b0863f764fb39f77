#pragma once
// The help viewer: the contents tree, the keyword index and the full-text
// search beside the topic browser, with back, forward, contents and print.
// It shows the pages of one help engine; links to the world outside open in
// the system's browser.

#include <QMainWindow>
#include <QTextBrowser>

class QHelpContentWidget;
class QHelpEngine;
class QLineEdit;
class QTabWidget;

namespace kestrova {

// A text browser that reads its pages and their resources from the help file.
class HelpBrowser : public QTextBrowser {
public:
    HelpBrowser(QHelpEngine& engine, QWidget* parent = nullptr);
    QVariant loadResource(int type, const QUrl& name) override;

private:
    QHelpEngine& engine_;
};

class HelpViewer : public QMainWindow {
public:
    HelpViewer(QHelpEngine& engine, QUrl home, QWidget* parent = nullptr);

    void showPage(const QUrl& url);
    void showContents();
    void showIndex(); // the index in front, its key empty and taking the typing
    HelpBrowser* browser() const { return browser_; }
    QTabWidget* navigation() const { return navigation_; }

private:
    QWidget* indexPane();
    QWidget* searchPane();
    void buildToolbar();
    void print();
    void followPage(); // the caption and the contents entry of the page shown
    void present();    // shown, in front, and usable over a modal dialog

    QHelpEngine& engine_;
    QUrl home_;
    HelpBrowser* browser_;
    QTabWidget* navigation_;
    QLineEdit* indexKey_ = nullptr;
    QHelpContentWidget* contents_ = nullptr;
};

} // namespace kestrova
