#include "shell/SingleInstance.h"

#include "BuildInfo.h"
#include "linux/MachineInfo.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QPointer>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {
constexpr qsizetype maxRequest = 256;
const QByteArray confirmation = QByteArrayLiteral("ok\n");
} // namespace

SingleInstance::SingleInstance(QString socketPath, QObject *parent)
    : QObject(parent)
    , m_path(std::move(socketPath))
{}

SingleInstance::~SingleInstance() = default;

QString SingleInstance::defaultPath()
{
    return pathFor(qEnvironmentVariable("XDG_RUNTIME_DIR"),
                   QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
}

QString SingleInstance::pathFor(const QString &runtimeDir, const QString &configDir)
{
    QString name = QLatin1StringView(build::appId);
    // Settings of their own make another instance: the demo runs beside the everyday app.
    const QString usual = QDir::home().filePath(u".config"_s);
    if (!configDir.isEmpty() && QDir::cleanPath(configDir) != QDir::cleanPath(usual))
        name += u'-'
                + QString::fromLatin1(
                    QCryptographicHash::hash(QFile::encodeName(QDir::cleanPath(configDir)), QCryptographicHash::Sha1)
                        .toHex()
                        .left(12));
    name += u".instance"_s;
    if (!runtimeDir.isEmpty() && QDir(runtimeDir).exists())
        return QDir(runtimeDir).filePath(name);
    return QDir(QDir::tempPath()).filePath(u"%1-%2"_s.arg(name).arg(MachineInfo::userId()));
}

bool SingleInstance::forward(const QString &request, int timeoutMs) const
{
    QLocalSocket socket;
    socket.connectToServer(m_path);
    if (!socket.waitForConnected(timeoutMs))
        return false;
    socket.write(request.toUtf8().left(maxRequest) + '\n');
    if (!socket.waitForBytesWritten(timeoutMs))
        return false;
    QByteArray answer;
    while (!answer.contains('\n') && socket.waitForReadyRead(timeoutMs))
        answer += socket.readAll();
    return answer == confirmation;
}

bool SingleInstance::handOver(const QString &request)
{
    if (forward(request))
        return true;
    if (listen())
        return false;
    // Another launch started listening between our two tries.
    return forward(request);
}

bool SingleInstance::listen()
{
    if (isListening())
        return true;
    // No socket options: with them Qt moves a fresh socket over the path, which would take
    // it from a live instance. The runtime folder is the user's alone, and the socket keeps
    // the umask's mode, which lets no one else connect.
    auto *server = new QLocalServer(this);
    if (!server->listen(m_path)) {
        // Either someone answers there, or the socket is a leftover of an instance that died.
        if (server->serverError() != QAbstractSocket::AddressInUseError || forward(QString(), 500)) {
            delete server;
            return false;
        }
        QLocalServer::removeServer(m_path);
        if (!server->listen(m_path)) {
            delete server;
            return false;
        }
    }
    m_server = server;
    connect(m_server, &QLocalServer::newConnection, this, &SingleInstance::accept);
    return true;
}

bool SingleInstance::isListening() const
{
    return m_server && m_server->isListening();
}

void SingleInstance::accept()
{
    while (QLocalSocket *socket = m_server->nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] {
            if (!socket->canReadLine()) {
                if (socket->bytesAvailable() > maxRequest * 4)
                    socket->abort();
                return;
            }
            const QString request = QString::fromUtf8(socket->readLine(maxRequest * 4)).trimmed();
            // An empty line only asks whether anyone is listening.
            if (!request.isEmpty())
                Q_EMIT requested(request);
            socket->write(confirmation);
            socket->disconnectFromServer();
        });
    }
}

} // namespace quorvane
