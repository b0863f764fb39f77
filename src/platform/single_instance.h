#pragma once
// The one-instance rule: the first Kestrova of a user listens on a local
// socket; a second start hands it the project files it was given, tells it to
// come forward, and ends.

#include <QObject>
#include <QStringList>

class QLocalServer;
class QLocalSocket;

namespace kestrova {

class SingleInstance : public QObject {
    Q_OBJECT

public:
    // `files` are handed to the instance that runs already, if one does.
    SingleInstance(const QString& name, const QStringList& files = {}, QObject* parent = nullptr);
    // True when another instance answered and was handed the files.
    bool anotherIsRunning() const { return another_; }
    // True when another instance seems to run but did not answer.
    bool anotherIsSilent() const { return silent_; }

signals:
    void raiseRequested();
    void filesRequested(const QStringList& files); // absolute paths, in the order given

private:
    void readPeer(QLocalSocket& peer);

    QLocalServer* server_ = nullptr;
    bool another_ = false;
    bool silent_ = false;
};

} // namespace kestrova
