// Raw HTTP into the sandbox over loopback: the bytes are sent as they are, the writing side is
// shut, and whatever comes back must be HTTP. Crashes, leaks and hangs are caught by the
// fuzzer itself. One server lives through all inputs, as it would through a day of clients.

#include "FuzzInput.h"
#include "Sandbox.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTcpSocket>
#include <QTimer>

#include <sys/socket.h>

using namespace quorvane;
using namespace quorvane::sandbox;

namespace {

Sandbox *server = nullptr;

QByteArray exchange(const QByteArray &request)
{
    QTcpSocket client;
    QEventLoop loop;
    QByteArray answer;
    QObject::connect(&client, &QTcpSocket::connected, &loop, [&] {
        client.write(request);
        client.flush();
        ::shutdown(int(client.socketDescriptor()), SHUT_WR);
    });
    QObject::connect(&client, &QTcpSocket::readyRead, &loop, [&] { answer += client.readAll(); });
    QObject::connect(&client, &QTcpSocket::disconnected, &loop, &QEventLoop::quit);
    QObject::connect(&client, &QTcpSocket::errorOccurred, &loop, &QEventLoop::quit);
    QTimer::singleShot(5000, &loop, [&] { fuzz::fail("the server neither answered nor closed", request); });
    client.connectToHost(QStringLiteral("127.0.0.1"), server->port());
    loop.exec();
    answer += client.readAll();
    // The server's socket goes by deleteLater: freed within this input, or every input would
    // look like a leak and be checked for one.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return answer;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static QCoreApplication app(*argc, *argv);
    SandboxConfig config;
    config.port = 0;
    config.demo = true;
    config.seed = 7;
    config.tokens = {QStringLiteral("fuzz-token")};
    config.logRequests = false;
    const Instant now(QDate(2026, 3, 9), QTime(13, 0), Qt::UTC);
    server = new Sandbox(config, [now] { return now; });
    QString error;
    if (!server->start(&error))
        fuzz::fail("the sandbox doesn't start", error.toUtf8());
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray request = fuzz::bytes(data, size);
    const QByteArray answer = exchange(request);
    if (!answer.isEmpty() && !answer.startsWith("HTTP/1.1 "))
        fuzz::fail("an answer that isn't HTTP", answer.left(200));
    return 0;
}
