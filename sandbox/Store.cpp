#include "Store.h"

#include "JSON.h"
#include "RequestError.h"

#include <QAtomicInteger>
#include <QCryptographicHash>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace quorvane::sandbox {

namespace {

const char *const schema[] = {
    "CREATE TABLE IF NOT EXISTS documents (key TEXT PRIMARY KEY, json TEXT NOT NULL)",
    "CREATE TABLE IF NOT EXISTS bookings (id TEXT PRIMARY KEY, start_ms INTEGER NOT NULL,"
    " end_ms INTEGER NOT NULL, updated_ms INTEGER NOT NULL, json TEXT NOT NULL)",
    "CREATE INDEX IF NOT EXISTS bookings_end ON bookings (end_ms)",
    "CREATE INDEX IF NOT EXISTS bookings_updated ON bookings (updated_ms)",
    "CREATE TABLE IF NOT EXISTS polls (id TEXT PRIMARY KEY, json TEXT NOT NULL)",
    "CREATE TABLE IF NOT EXISTS tokens (digest TEXT PRIMARY KEY, label TEXT NOT NULL, created_ms INTEGER NOT NULL)",
    "CREATE TABLE IF NOT EXISTS device_grants (device_code TEXT PRIMARY KEY, user_code TEXT UNIQUE NOT NULL,"
    " label TEXT NOT NULL, created_ms INTEGER NOT NULL, approved INTEGER NOT NULL)",
    "CREATE TABLE IF NOT EXISTS connect_nonces (nonce TEXT PRIMARY KEY, created_ms INTEGER NOT NULL)",
};

QString digest(const QString &token)
{
    return QString::fromLatin1(QCryptographicHash::hash(token.toUtf8(), QCryptographicHash::Sha256).toHex());
}

qint64 ms(const Instant &instant)
{
    return instant.toMSecsSinceEpoch();
}

Instant fromMs(qint64 value)
{
    return QDateTime::fromMSecsSinceEpoch(value, Qt::UTC);
}

template <class T>
T decoded(const QByteArray &json, const char *what)
{
    Result<T> result = JSON::decode<T>(json);
    if (!result) {
        std::fprintf(stderr, "stored %s does not decode: %s\n", what, qPrintable(result.error().description()));
        throw RequestError{500, u"Stored data is damaged"_s};
    }
    return std::move(result).value();
}

void run(QSqlQuery &query)
{
    // Values are bound, never spliced into the text, so the error never carries them.
    if (!query.exec()) {
        std::fprintf(stderr, "database: %s\n", qPrintable(query.lastError().text()));
        throw RequestError{500, u"Database error"_s};
    }
}

// Every row's first column, decoded as a record.
template <class T>
QList<T> rows(QSqlQuery &query, const char *what)
{
    run(query);
    QList<T> out;
    while (query.next())
        out.append(decoded<T>(query.value(0).toString().toUtf8(), what));
    return out;
}

} // namespace

Store::Store()
{
    static QAtomicInteger<int> counter;
    m_connection = u"quorvane-sandbox-%1"_s.arg(counter.fetchAndAddRelaxed(1));
}

Store::~Store()
{
    {
        QSqlDatabase db = QSqlDatabase::database(m_connection, false);
        if (db.isValid())
            db.close();
    }
    QSqlDatabase::removeDatabase(m_connection);
}

bool Store::open(const QString &path, QString *error)
{
    QSqlDatabase db = QSqlDatabase::addDatabase(u"QSQLITE"_s, m_connection);
    db.setDatabaseName(path);
    if (!db.open()) {
        *error = db.lastError().text();
        return false;
    }
    for (const char *statement : schema) {
        QSqlQuery query(db);
        if (!query.exec(QString::fromLatin1(statement))) {
            *error = query.lastError().text();
            return false;
        }
    }
    return true;
}

QSqlQuery Store::prepare(const QString &sql)
{
    QSqlQuery query(QSqlDatabase::database(m_connection));
    if (!query.prepare(sql)) {
        std::fprintf(stderr, "database: %s\n", qPrintable(query.lastError().text()));
        throw RequestError{500, u"Database error"_s};
    }
    return query;
}

void Store::transaction(const std::function<void()> &work)
{
    QSqlDatabase db = QSqlDatabase::database(m_connection);
    db.transaction();
    try {
        work();
    } catch (...) {
        db.rollback();
        throw;
    }
    db.commit();
}

std::optional<QByteArray> Store::document(const QString &key)
{
    QSqlQuery q = prepare(u"SELECT json FROM documents WHERE key = ?"_s);
    q.addBindValue(key);
    run(q);
    if (!q.next())
        return std::nullopt;
    return q.value(0).toString().toUtf8();
}

void Store::setDocument(const QString &key, const QByteArray &json)
{
    QSqlQuery q = prepare(u"INSERT INTO documents (key, json) VALUES (?, ?)"
                          " ON CONFLICT(key) DO UPDATE SET json = excluded.json"_s);
    q.addBindValue(key);
    q.addBindValue(QString::fromUtf8(json));
    run(q);
}

bool Store::hasAccount()
{
    return document(u"account"_s).has_value();
}

Account Store::account()
{
    const auto json = document(u"account"_s);
    return json ? decoded<Account>(*json, "account") : Account{};
}

void Store::setAccount(const Account &account)
{
    setDocument(u"account"_s, JSON::encode(account));
}

HostSettings Store::settings()
{
    const auto json = document(u"settings"_s);
    return decoded<HostSettings>(json.value_or(QByteArray("{}")), "settings");
}

void Store::setSettings(const HostSettings &settings)
{
    setDocument(u"settings"_s, JSON::encode(settings));
}

GoogleStatus Store::google()
{
    const auto json = document(u"google"_s);
    return json ? decoded<GoogleStatus>(*json, "calendar status") : GoogleStatus{};
}

void Store::setGoogle(const GoogleStatus &status)
{
    setDocument(u"google"_s, JSON::encode(status));
}

void Store::putBooking(const Booking &b)
{
    QSqlQuery q = prepare(u"INSERT INTO bookings (id, start_ms, end_ms, updated_ms, json) VALUES (?, ?, ?, ?, ?)"
                          " ON CONFLICT(id) DO UPDATE SET start_ms = excluded.start_ms, end_ms = excluded.end_ms,"
                          " updated_ms = excluded.updated_ms, json = excluded.json"_s);
    q.addBindValue(b.id);
    q.addBindValue(ms(b.start));
    q.addBindValue(ms(b.end));
    q.addBindValue(ms(b.updated.value_or(b.created.value_or(b.start))));
    q.addBindValue(QString::fromUtf8(JSON::encode(b)));
    run(q);
}

QList<Booking> Store::bookingsWhere(const QString &condition, const QVariantList &values, const QString &order)
{
    QSqlQuery q = prepare(u"SELECT json FROM bookings WHERE "_s + condition + u" ORDER BY "_s + order);
    for (const QVariant &value : values)
        q.addBindValue(value);
    return rows<Booking>(q, "booking");
}

std::optional<Booking> Store::booking(const QString &id)
{
    const QList<Booking> found = bookingsWhere(u"id = ?"_s, {id}, u"id"_s);
    if (found.isEmpty())
        return std::nullopt;
    return found.first();
}

QList<Booking> Store::bookingsEndingAfter(const Instant &moment)
{
    return bookingsWhere(u"end_ms > ?"_s, {ms(moment)}, u"start_ms, id"_s);
}

QList<Booking> Store::bookingsStartedBetween(const Instant &from, const Instant &endedBy)
{
    return bookingsWhere(u"start_ms >= ? AND end_ms <= ?"_s, {ms(from), ms(endedBy)}, u"start_ms, id"_s);
}

QList<Booking> Store::bookingsUpdatedSince(const Instant &since)
{
    return bookingsWhere(u"updated_ms >= ?"_s, {ms(since)}, u"updated_ms, id"_s);
}

QList<Booking> Store::bookingsOverlapping(const Instant &from, const Instant &to)
{
    return bookingsWhere(u"end_ms > ? AND start_ms < ?"_s, {ms(from), ms(to)}, u"start_ms, id"_s);
}

int Store::bookingCount()
{
    QSqlQuery q = prepare(u"SELECT COUNT(*) FROM bookings"_s);
    run(q);
    return q.next() ? q.value(0).toInt() : 0;
}

QList<Poll> Store::polls()
{
    // rowid keeps the order of creation; updates don't move a poll.
    QSqlQuery q = prepare(u"SELECT json FROM polls ORDER BY rowid"_s);
    return rows<Poll>(q, "poll");
}

std::optional<Poll> Store::poll(const QString &id)
{
    QSqlQuery q = prepare(u"SELECT json FROM polls WHERE id = ?"_s);
    q.addBindValue(id);
    const QList<Poll> found = rows<Poll>(q, "poll");
    if (found.isEmpty())
        return std::nullopt;
    return found.first();
}

void Store::putPoll(const Poll &poll)
{
    QSqlQuery q = prepare(u"INSERT INTO polls (id, json) VALUES (?, ?)"
                          " ON CONFLICT(id) DO UPDATE SET json = excluded.json"_s);
    q.addBindValue(poll.id);
    q.addBindValue(QString::fromUtf8(JSON::encode(poll)));
    run(q);
}

bool Store::removePoll(const QString &id)
{
    QSqlQuery q = prepare(u"DELETE FROM polls WHERE id = ?"_s);
    q.addBindValue(id);
    run(q);
    return q.numRowsAffected() > 0;
}

void Store::addToken(const QString &token, const QString &label, const Instant &created)
{
    QSqlQuery q = prepare(u"INSERT OR REPLACE INTO tokens (digest, label, created_ms) VALUES (?, ?, ?)"_s);
    q.addBindValue(digest(token));
    q.addBindValue(label);
    q.addBindValue(ms(created));
    run(q);
}

bool Store::hasToken(const QString &token)
{
    if (token.isEmpty())
        return false;
    QSqlQuery q = prepare(u"SELECT 1 FROM tokens WHERE digest = ?"_s);
    q.addBindValue(digest(token));
    run(q);
    return q.next();
}

void Store::putDeviceGrant(const DeviceGrant &g)
{
    QSqlQuery q = prepare(u"INSERT OR REPLACE INTO device_grants (device_code, user_code, label, created_ms, approved)"
                          " VALUES (?, ?, ?, ?, ?)"_s);
    q.addBindValue(g.deviceCode);
    q.addBindValue(g.userCode);
    q.addBindValue(g.label);
    q.addBindValue(ms(g.created));
    q.addBindValue(g.approved ? 1 : 0);
    run(q);
}

std::optional<DeviceGrant> Store::grant(QSqlQuery &q)
{
    run(q);
    if (!q.next())
        return std::nullopt;
    return DeviceGrant{q.value(0).toString(), q.value(1).toString(), q.value(2).toString(),
                       fromMs(q.value(3).toLongLong()), q.value(4).toInt() != 0};
}

std::optional<DeviceGrant> Store::deviceGrant(const QString &deviceCode)
{
    QSqlQuery q = prepare(u"SELECT device_code, user_code, label, created_ms, approved FROM device_grants"
                          " WHERE device_code = ?"_s);
    q.addBindValue(deviceCode);
    return grant(q);
}

std::optional<DeviceGrant> Store::deviceGrantByUserCode(const QString &userCode)
{
    QSqlQuery q = prepare(u"SELECT device_code, user_code, label, created_ms, approved FROM device_grants"
                          " WHERE user_code = ?"_s);
    q.addBindValue(userCode);
    return grant(q);
}

void Store::removeDeviceGrant(const QString &deviceCode)
{
    QSqlQuery q = prepare(u"DELETE FROM device_grants WHERE device_code = ?"_s);
    q.addBindValue(deviceCode);
    run(q);
}

void Store::addNonce(const QString &nonce, const Instant &created)
{
    QSqlQuery q = prepare(u"INSERT OR REPLACE INTO connect_nonces (nonce, created_ms) VALUES (?, ?)"_s);
    q.addBindValue(nonce);
    q.addBindValue(ms(created));
    run(q);
}

std::optional<Instant> Store::takeNonce(const QString &nonce)
{
    QSqlQuery q = prepare(u"SELECT created_ms FROM connect_nonces WHERE nonce = ?"_s);
    q.addBindValue(nonce);
    run(q);
    if (!q.next())
        return std::nullopt;
    const Instant created = fromMs(q.value(0).toLongLong());
    QSqlQuery remove = prepare(u"DELETE FROM connect_nonces WHERE nonce = ?"_s);
    remove.addBindValue(nonce);
    run(remove);
    return created;
}

} // namespace quorvane::sandbox
