#include "platform/single_instance.h"

#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>

namespace kestrova {

namespace {

// One line per request: "open <absolute path>" for each file, then "raise".
constexpr char kOpen[] = "open ";
constexpr char kRaise[] = "raise";

QByteArray handOver(const QStringList& files)
{
    QByteArray message;
    for (const QString& file : files)
        message += kOpen + QFileInfo(file).absoluteFilePath().toUtf8() + '\n';
    return message + kRaise + '\n';
}

} // namespace

SingleInstance::SingleInstance(const QString& name, const QStringList& files, QObject* parent) : QObject(parent)
{
    QLocalSocket probe;
    probe.connectToServer(name);
    if (probe.waitForConnected(500)) {
        probe.write(handOver(files));
        probe.waitForBytesWritten(1000);
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
            connect(peer, &QLocalSocket::readyRead, this, [this, peer] { readPeer(*peer); });
            readPeer(*peer);
        }
    });
}

// The files of a request go out together when its "raise" arrives; a line
// of anything else is ignored.
void SingleInstance::readPeer(QLocalSocket& peer)
{
    static const char* kPending = "pendingFiles";
    while (peer.canReadLine()) {
        const QByteArray line = peer.readLine().chopped(1);
        if (line.startsWith(kOpen)) {
            QStringList pending = peer.property(kPending).toStringList();
            pending << QString::fromUtf8(line.mid(qsizetype(sizeof kOpen) - 1));
            peer.setProperty(kPending, pending);
        } else if (line == kRaise) {
            const QStringList files = peer.property(kPending).toStringList();
            peer.setProperty(kPending, QStringList());
            emit raiseRequested();
            if (!files.isEmpty())
                emit filesRequested(files);
        }
    }
}

} // namespace kestrova
