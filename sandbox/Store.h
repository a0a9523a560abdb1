#pragma once

#include "Records.h"

#include <QString>
#include <QVariantList>

#include <functional>
#include <optional>

class QSqlQuery;

namespace quorvane::sandbox {

// A device sign-in waiting for its approval in the browser.
struct DeviceGrant {
    QString deviceCode;
    QString userCode;
    QString label;
    Instant created;
    bool approved = false;
};

// The server's state in SQLite: documents (account, settings, calendar status) and rows of
// bookings, polls, tokens, device grants and connect nonces. Records are kept in their wire
// form, with the instants the queries need beside them as milliseconds.
class Store
{
public:
    Store();
    ~Store();
    Store(const Store &) = delete;
    Store &operator=(const Store &) = delete;

    // A file path, or ":memory:". Creates the tables on first use.
    bool open(const QString &path, QString *error);
    [[nodiscard]] bool hasAccount();
    // All writes of `work` in one transaction: seeding thousands of rows stays quick.
    void transaction(const std::function<void()> &work);

    [[nodiscard]] Account account();
    void setAccount(const Account &account);
    [[nodiscard]] HostSettings settings();
    void setSettings(const HostSettings &settings);
    [[nodiscard]] GoogleStatus google();
    void setGoogle(const GoogleStatus &status);

    void putBooking(const Booking &booking);
    [[nodiscard]] std::optional<Booking> booking(const QString &id);
    [[nodiscard]] QList<Booking> bookingsEndingAfter(const Instant &moment);
    [[nodiscard]] QList<Booking> bookingsStartedBetween(const Instant &from, const Instant &endedBy);
    [[nodiscard]] QList<Booking> bookingsUpdatedSince(const Instant &since);
    [[nodiscard]] QList<Booking> bookingsOverlapping(const Instant &from, const Instant &to);
    [[nodiscard]] int bookingCount();

    [[nodiscard]] QList<Poll> polls();
    [[nodiscard]] std::optional<Poll> poll(const QString &id);
    void putPoll(const Poll &poll);
    bool removePoll(const QString &id);

    // Tokens are kept as SHA-256 digests only.
    void addToken(const QString &token, const QString &label, const Instant &created);
    [[nodiscard]] bool hasToken(const QString &token);

    void putDeviceGrant(const DeviceGrant &grant);
    [[nodiscard]] std::optional<DeviceGrant> deviceGrant(const QString &deviceCode);
    [[nodiscard]] std::optional<DeviceGrant> deviceGrantByUserCode(const QString &userCode);
    void removeDeviceGrant(const QString &deviceCode);

    void addNonce(const QString &nonce, const Instant &created);
    // Removes the nonce; gives when it was made, or nothing if it was unknown.
    [[nodiscard]] std::optional<Instant> takeNonce(const QString &nonce);

private:
    [[nodiscard]] QSqlQuery prepare(const QString &sql);
    [[nodiscard]] std::optional<QByteArray> document(const QString &key);
    void setDocument(const QString &key, const QByteArray &json);
    // `condition` and `order` are fixed texts of this class; values are always bound.
    [[nodiscard]] QList<Booking> bookingsWhere(const QString &condition, const QVariantList &values,
                                               const QString &order);
    [[nodiscard]] std::optional<DeviceGrant> grant(QSqlQuery &query);

    QString m_connection;
};

} // namespace quorvane::sandbox
