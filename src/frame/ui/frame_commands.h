#pragma once
// The frame's commands as the user meets them: the menus, the toolbar and
// the status bar, built from one table each. Every menu entry and button is
// named as the program knows it ("mnuFileOpen", key "Open"), and a choice
// of any of them goes to the one `run` the frame gives, by that name.

#include <QObject>
#include <QString>

#include <functional>
#include <map>

class QAction;
class QEvent;
class QLabel;
class QMainWindow;
class QToolBar;

namespace kestrova {

class UserInterface;

class FrameCommands : public QObject {
public:
    using Run = std::function<void(const QString& name)>;

    FrameCommands(QMainWindow& frame, UserInterface& ui, Run run);

    QAction* action(const QString& name) const; // by its name, e.g. "mnuFileSave"
    QAction* toolbarButton(const QString& key) const;
    const std::map<QString, QAction*>& toolbarButtons() const { return toolbarButtons_; }
    QToolBar* toolbar() const { return toolbar_; }
    QAction* recentSeparator() const { return recentSeparator_; }
    // The caption of an entry as a message names it: "Pump Network".
    QString plainCaption(const QString& name) const;

    // The status panel's text, written only when it changes.
    void setStatusText(const QString& text);
    QString statusText() const;

protected:
    // Alt and a menu's letter opens the frame's menu even where a window in
    // the frame has a caption with the same letter: menus win.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildActions();
    void buildMenus();
    void buildToolbar();
    void buildStatusBar();
    QAction* addAction(const QString& name, const QString& caption);

    QMainWindow& frame_;
    UserInterface& ui_;
    Run run_;
    std::map<QString, QAction*> actions_;
    std::map<QString, QAction*> toolbarButtons_;
    QToolBar* toolbar_ = nullptr;
    QAction* recentSeparator_ = nullptr;
    QLabel* statusText_ = nullptr;
};

} // namespace kestrova
