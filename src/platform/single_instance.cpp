#include "platform/single_instance.h"

#include <QLocalServer>
#include <QLocalSocket>

namespace kestrova {

SingleInstance::SingleInstance(const QString& name, QObject* parent) : QObject(parent)
{
    QLocalSocket probe;
    probe.connectToServer(name);
    if (probe.waitForConnected(500)) {
        probe.write("raise\n");
        probe.waitForBytesWritten(500);
        probe.disconnectFromServer();
        another_ = true;
        return;
    }
    server_ = new QLocalServer(this);
    server_->setSocketOptions(QLocalServer::UserAccessOption);
    if (!server_->listen(name)) {
        // A socket left by a program that ended without closing it.
        QLocalServer::removeServer(name);
        if (!server_->listen(name))
            silent_ = probe.error() != QLocalSocket::ServerNotFoundError;
    }
    connect(server_, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* peer = server_->nextPendingConnection()) {
            connect(peer, &QLocalSocket::disconnected, peer, &QObject::deleteLater);
            emit raiseRequested();
        }
    });
}

} // namespace kestrova
