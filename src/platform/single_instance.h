#pragma once
// The one-instance rule: the first Kestrova of a user listens on a local
// socket; a second start tells it to come forward and ends.

#include <QObject>

class QLocalServer;

namespace kestrova {

class SingleInstance : public QObject {
    Q_OBJECT

public:
    explicit SingleInstance(const QString& name, QObject* parent = nullptr);
    // True when another instance answered and was asked to come forward.
    bool anotherIsRunning() const { return another_; }
    // True when another instance seems to run but did not answer.
    bool anotherIsSilent() const { return silent_; }

signals:
    void raiseRequested();

private:
    QLocalServer* server_ = nullptr;
    bool another_ = false;
    bool silent_ = false;
};

} // namespace kestrova
