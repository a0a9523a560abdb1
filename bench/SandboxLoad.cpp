// The sandbox under load: quorvane-sandbox started as a user starts it, on a SQLite file, and
// CLIENTS clients on loopback for SECONDS (50 and 20 by default), each on its own keep-alive
// connection, reading the /sync routes and booking open times through the guest pages. Prints
// requests per second, the latency of the /sync routes, errors, and the guest bookings the
// server acknowledged against those found in its database afterwards. Exit code 1 on any error
// or lost booking; speed has no budget here, it is reported.
//
//   quorvane-sandbox-load [CLIENTS] [SECONDS]

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSet>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr auto token = "load-token";
constexpr auto host = "jordan";
constexpr auto typeSlug = "intro";

struct Request {
    QByteArray method;
    QByteArray path;
    QByteArray body;
    QByteArray contentType;
    QString guestEmail; // set for a booking
};

QByteArray wire(const Request &r, bool close)
{
    QByteArray out =
        r.method + ' ' + r.path + " HTTP/1.1\r\nHost: 127.0.0.1\r\nAuthorization: Bearer " + token + "\r\n";
    if (!r.contentType.isEmpty())
        out += "Content-Type: " + r.contentType + "\r\n";
    out += "Content-Length: " + QByteArray::number(r.body.size()) + "\r\n";
    if (close)
        out += "Connection: close\r\n";
    return out + "\r\n" + r.body;
}

// Reads one answer off the front of `buffer`: its status, or 0 while it is incomplete.
int takeResponse(QByteArray &buffer, QByteArray *body)
{
    const qsizetype headerEnd = buffer.indexOf("\r\n\r\n");
    if (headerEnd < 0 || !buffer.startsWith("HTTP/1.1 "))
        return 0;
    qsizetype length = 0;
    for (const QByteArray &line : buffer.left(headerEnd).split('\n')) {
        if (line.toLower().startsWith("content-length:"))
            length = line.mid(15).trimmed().toLongLong();
    }
    if (buffer.size() < headerEnd + 4 + length)
        return 0;
    const int status = buffer.mid(9, 3).toInt();
    if (body)
        *body = buffer.mid(headerEnd + 4, length);
    buffer.remove(0, headerEnd + 4 + length);
    return status;
}

// One request on its own connection, waiting for the whole answer; for setting up.
int fetch(quint16 port, const Request &r, QByteArray *body)
{
    QTcpSocket socket;
    socket.connectToHost(u"127.0.0.1"_s, port);
    if (!socket.waitForConnected(5000))
        return 0;
    socket.write(wire(r, true));
    QByteArray buffer;
    int status = 0;
    while (status == 0 && socket.waitForReadyRead(30000)) {
        buffer += socket.readAll();
        status = takeResponse(buffer, body);
    }
    return status;
}

struct Tally {
    qint64 requests = 0;
    qint64 errors = 0;
    qint64 refused = 0; // a time taken meanwhile: the server's right answer, not a failure
    std::vector<double> syncMs;
    std::vector<double> bookMs;
    QSet<QString> acknowledged;
};

// One client: a request, its answer, the next, on one connection for the whole run.
class Client : public QObject
{
public:
    Client(quint16 port, int number, QList<QByteArray> bookable, Tally &tally, const bool &stopping)
        : m_port(port)
        , m_number(number)
        , m_bookable(std::move(bookable))
        , m_tally(tally)
        , m_stopping(stopping)
    {
        connect(&m_socket, &QTcpSocket::connected, this, &Client::sendNext);
        connect(&m_socket, &QTcpSocket::readyRead, this, &Client::read);
        connect(&m_socket, &QTcpSocket::disconnected, this, &Client::lost);
        m_socket.connectToHost(u"127.0.0.1"_s, m_port);
    }
    ~Client() override { m_socket.disconnect(this); }

private:
    Request next()
    {
        static const QList<QByteArray> reads{"/sync/me",
                                             "/sync/settings",
                                             "/sync/bookings",
                                             "/sync/history?from=2026-01-01T00:00:00.000Z",
                                             "/sync/changes?since=2026-01-01T00:00:00.000Z",
                                             "/sync/polls",
                                             "/sync/google",
                                             "/sync/slots?type=intro&days=7"};
        ++m_sent;
        if (m_sent % 4 == 0 && !m_bookable.isEmpty()) {
            const QString email = u"guest-%1-%2@load.test"_s.arg(m_number).arg(m_sent);
            const QByteArray form = "start=" + QUrl::toPercentEncoding(QString::fromLatin1(m_bookable.takeFirst()))
                                    + "&name=Load+Guest&email=" + QUrl::toPercentEncoding(email) + "&tz=UTC";
            return {"POST", QByteArray("/") + host + '/' + typeSlug, form, "application/x-www-form-urlencoded", email};
        }
        return {"GET", reads.at((m_sent + m_number) % reads.size()), {}, {}, {}};
    }

    void sendNext()
    {
        if (m_stopping) {
            m_socket.disconnectFromHost();
            return;
        }
        m_current = next();
        m_pending = true;
        m_clock.start();
        m_socket.write(wire(m_current, false));
    }

    void read()
    {
        m_buffer += m_socket.readAll();
        const int status = takeResponse(m_buffer, nullptr);
        if (status == 0)
            return;
        const double ms = double(m_clock.nsecsElapsed()) / 1e6;
        m_pending = false;
        ++m_tally.requests;
        if (!m_current.guestEmail.isEmpty()) {
            m_tally.bookMs.push_back(ms);
            if (status == 200)
                m_tally.acknowledged.insert(m_current.guestEmail);
            else if (status == 409)
                ++m_tally.refused;
            else
                error("a booking answered " + QByteArray::number(status));
        } else {
            m_tally.syncMs.push_back(ms);
            if (status != 200)
                error(m_current.path + " answered " + QByteArray::number(status));
        }
        sendNext();
    }

    // The first few are described, so that a failing run says why.
    void error(const QByteArray &what)
    {
        if (++m_tally.errors <= 5)
            std::fprintf(stderr, "error: %s\n", what.constData());
    }

    void lost()
    {
        if (m_pending) {
            error(m_current.path + ": the connection closed without an answer");
            m_pending = false;
        }
        if (!m_stopping)
            m_socket.connectToHost(u"127.0.0.1"_s, m_port);
    }

    quint16 m_port;
    int m_number;
    QList<QByteArray> m_bookable;
    Tally &m_tally;
    const bool &m_stopping;
    QTcpSocket m_socket;
    QByteArray m_buffer;
    Request m_current;
    bool m_pending = false;
    qint64 m_sent = 0;
    QElapsedTimer m_clock;
};

double percentile(std::vector<double> values, double p)
{
    if (values.empty())
        return 0;
    const auto at = values.begin() + qsizetype(p * double(values.size() - 1));
    std::nth_element(values.begin(), at, values.end());
    return *at;
}

// Opens the host's hours wide, so that there are times enough for every guest, and lists them.
QList<QByteArray> openTimes(quint16 port)
{
    QByteArray body;
    if (fetch(port, {"GET", "/sync/settings", {}, {}, {}}, &body) != 200)
        return {};
    QJsonObject settings = QJsonDocument::fromJson(body).object();
    settings[u"maxMeetingsPerDay"_s] = 1000;
    settings[u"minNoticeMinutes"_s] = 0;
    settings[u"horizonDays"_s] = 30;
    if (fetch(port, {"PUT", "/sync/settings", QJsonDocument(settings).toJson(), "application/json", {}}, &body) != 200)
        return {};
    if (fetch(port, {"GET", "/sync/slots?type=intro&days=30", {}, {}, {}}, &body) != 200)
        return {};
    QList<QByteArray> starts;
    for (const QJsonValue slot : QJsonDocument::fromJson(body).object().value(u"slots"_s).toArray())
        starts.append(slot[u"start"_s].toString().toLatin1());
    return starts;
}

QSet<QString> guestsInDatabase(const QString &path)
{
    QSet<QString> emails;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"load"_s);
        db.setDatabaseName(path);
        if (db.open()) {
            QSqlQuery query(u"SELECT json FROM bookings"_s, db);
            while (query.next()) {
                const QString email =
                    QJsonDocument::fromJson(query.value(0).toByteArray()).object().value(u"email"_s).toString();
                if (email.endsWith(u"@load.test"_s))
                    emails.insert(email);
            }
        }
    }
    QSqlDatabase::removeDatabase(u"load"_s);
    return emails;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    const int clients = argc > 1 ? std::max(1, atoi(argv[1])) : 50;
    const int seconds = argc > 2 ? std::max(1, atoi(argv[2])) : 20;

    QTemporaryDir folder;
    const QString database = folder.filePath(u"load.sqlite"_s);
    QProcess server;
    server.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    server.start(QStringLiteral(QUORVANE_SANDBOX_PATH),
                 {u"--demo"_s, u"--seed"_s, u"1"_s, u"--port"_s, u"0"_s, u"--print-port"_s, u"--quiet"_s, u"--db"_s,
                  database, u"--token"_s, QString::fromLatin1(token)});
    if (!server.waitForReadyRead(30000)) {
        std::fprintf(stderr, "the sandbox didn't start\n");
        return 1;
    }
    const quint16 port = quint16(server.readLine().trimmed().toUInt());
    const QList<QByteArray> times = openTimes(port);
    if (times.isEmpty()) {
        std::fprintf(stderr, "no open times to book\n");
        return 1;
    }

    Tally tally;
    bool stopping = false;
    std::vector<std::unique_ptr<Client>> running;
    for (int i = 0; i < clients; ++i) {
        QList<QByteArray> mine;
        for (qsizetype t = i; t < times.size(); t += clients)
            mine.append(times.at(t));
        running.push_back(std::make_unique<Client>(port, i, mine, tally, stopping));
    }
    QElapsedTimer wall;
    wall.start();
    double elapsed = 0;
    QTimer::singleShot(seconds * 1000, &app, [&] {
        stopping = true;
        elapsed = double(wall.elapsed()) / 1000.0;
        QTimer::singleShot(2000, &app, &QCoreApplication::quit); // answers in flight come in
    });
    app.exec();
    running.clear();

    const bool serverUp = server.state() == QProcess::Running;
    server.terminate();
    server.waitForFinished(10000);
    const QSet<QString> found = guestsInDatabase(database);
    const qsizetype lost = (tally.acknowledged - found).size();
    const qsizetype phantom = (found - tally.acknowledged).size();

    std::printf("%d clients for %d s on loopback, %lld requests\n", clients, seconds,
                static_cast<long long>(tally.requests));
    std::printf("%-44s %10.0f\n", "requests per second", double(tally.requests) / elapsed);
    std::printf("%-44s %10.2f ms\n", "/sync latency p50", percentile(tally.syncMs, 0.50));
    std::printf("%-44s %10.2f ms\n", "/sync latency p99", percentile(tally.syncMs, 0.99));
    std::printf("%-44s %10.2f ms\n", "guest booking latency p99", percentile(tally.bookMs, 0.99));
    std::printf("%-44s %10lld\n", "errors", static_cast<long long>(tally.errors));
    std::printf("%-44s %10lld (%lld times taken meanwhile)\n", "guest bookings acknowledged",
                static_cast<long long>(tally.acknowledged.size()), static_cast<long long>(tally.refused));
    std::printf("%-44s %10lld\n", "guest bookings in the database", static_cast<long long>(found.size()));
    std::printf("%-44s %10lld lost, %lld unacknowledged\n", "difference", static_cast<long long>(lost),
                static_cast<long long>(phantom));
    std::printf("%-44s %10s\n", "server still up at the end", serverUp ? "yes" : "NO");
    return tally.errors == 0 && lost == 0 && phantom == 0 && serverUp && !tally.acknowledged.isEmpty() ? 0 : 1;
}
