#pragma once
// The program's help: the compressed help file beside the program, a help
// collection of the user's own that registers it (the full-text index is
// written beside the collection), and the help viewer over them. F1 in any
// window opens the topic of that window's context number; the frame's Help
// menu opens the contents or the index. Without the help file every way in
// gives the program's message instead.

#include "frame/ui/help_viewer.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QUrl>

#include <memory>

class QHelpEngine;

namespace kestrova {

class UserInterface;

class HelpSystem : public QObject {
public:
    // `helpFile` is the compressed help (kestrova.qch), `collectionFile` the
    // user's collection that registers it (made where it does not exist).
    HelpSystem(UserInterface& ui, QString helpFile, QString collectionFile, QObject* parent = nullptr);
    ~HelpSystem() override;

    // The help file and the collection of the program's own place.
    static QString defaultHelpFile();
    static QString defaultCollectionFile();

    void showContents();
    void showIndex(); // the keyword index, with an empty key
    void showTopic(int context);
    // The viewer goes with the frame.
    void close();

    // The page of a context number, as the viewer shows it.
    static QUrl topicUrl(int context);
    HelpViewer* viewer() const { return viewer_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override; // F1 anywhere in the program

private:
    HelpViewer* openViewer(); // nullptr, after the message, when there is no help file
    bool setUpEngine();

    UserInterface& ui_;
    QString helpFile_, collectionFile_;
    std::unique_ptr<QHelpEngine> engine_;
    QPointer<HelpViewer> viewer_;
};

} // namespace kestrova
