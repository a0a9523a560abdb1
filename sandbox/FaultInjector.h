#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

#include <optional>

namespace quorvane::sandbox {

// How the next requests to one path go wrong.
struct Fault {
    std::optional<int> status;      // answer with this status…
    std::optional<QByteArray> body; // …and this body (with no status: 200 and this body)
    int delayMs = 0;                // wait first; alone it slows a normal answer down
    bool drop = false;              // close the connection without answering
    int count = 1;                  // how many requests it strikes
    int bodyBytes = 0;              // without a body: answer with this many bytes of JSON instead

    // The body the fault answers with, if it gives one.
    [[nodiscard]] std::optional<QByteArray> answer() const;
};

// Faults planted by tests and demos, keyed by path ("sync/bookings"; a leading slash and
// a query are ignored). A key ending in "*" strikes every path it begins ("sync/*"); a path
// of its own wins over it.
class FaultInjector
{
public:
    void plant(const QString &path, const Fault &fault);
    // The fault for this request, if any; each call spends one of its count.
    [[nodiscard]] std::optional<Fault> take(const QString &path);
    void clear() { m_faults.clear(); }
    [[nodiscard]] bool isEmpty() const { return m_faults.isEmpty(); }

    [[nodiscard]] static QString key(const QString &path);

private:
    QHash<QString, Fault> m_faults;
};

} // namespace quorvane::sandbox
