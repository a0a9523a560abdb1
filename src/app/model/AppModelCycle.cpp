// The refresh cycle: start, the minute tick, full refreshes, change polling and reminders.
#include "model/AppModel.h"

#include "Clock.h"
#include "Notifier.h"
#include "WakeMonitor.h"

#include <QFileDevice>
#include <QPointer>
#include <QSaveFile>
#include <QTimeZone>

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {
constexpr qint64 firstPollLookbackSeconds = 7 * 24 * 3600;
constexpr int historyDays = 180;

// Awaits a task whose result no longer matters, so none outlives the refresh.
template <class T>
QCoro::Task<> settle(QCoro::Task<T> &task)
{
    try {
        co_await task;
    } catch (...) {}
}
} // namespace

void AppModel::start()
{
    run(refresh(false));
    m_timer.start(); // restarting replaces the running timer: one stays
    if (m_env.wake && !m_wakeConnected) {
        connect(m_env.wake, &WakeMonitor::woke, this, [this] { run(refresh(false)); });
        m_wakeConnected = true;
    }
}

QCoro::Task<> AppModel::tick()
{
    QPointer<AppModel> self(this);
    co_await pollChanges(false);
    if (!self)
        co_return;
    const Instant last = m_lastRefresh.value_or(distantPast());
    if (last < now().addMSecs(-m_env.timings.stale.count()))
        co_await refresh(true);
    if (self)
        Q_EMIT ticked();
}

QCoro::Task<> AppModel::refresh(bool silent)
{
    if (!signedInNow()) {
        setNeedsSignIn(true);
        co_return;
    }
    if (m_loading)
        co_return;
    setLoading(true);
    QPointer<AppModel> self(this);

    QuorvaneAPI api = this->api();
    api.cancellation = Cancellation();
    const Instant from = now().toTimeZone(QTimeZone(m_env.zone.toUtf8())).addDays(-historyDays).toUTC();
    // All six start at once; the results are taken in this order.
    QCoro::Task<Account> me = api.me();
    QCoro::Task<HostSettings> settings = api.settings();
    QCoro::Task<QList<Booking>> upcoming = api.upcoming();
    QCoro::Task<QList<Booking>> history = api.history(from);
    QCoro::Task<QList<Poll>> polls = api.polls();
    QCoro::Task<GoogleStatus> google = api.google();

    Snapshot next;
    std::exception_ptr failure;
    try {
        next.account = co_await me;
        next.settings = co_await settings;
        next.upcoming = co_await upcoming;
        next.history = co_await history;
        next.polls = co_await polls;
    } catch (...) {
        failure = std::current_exception();
    }
    if (failure) {
        api.cancellation.cancel();
        co_await settle(me);
        co_await settle(settings);
        co_await settle(upcoming);
        co_await settle(history);
        co_await settle(polls);
        co_await settle(google);
        if (!self)
            co_return;
        handle(failure, silent);
    } else {
        try {
            next.google = co_await google;
        } catch (...) {
            // Without the calendar's status, the account's own summary answers.
        }
        if (!self)
            co_return;
        next.savedAt = now();
        setSnapshot(next);
        if (!m_saveTask)
            setDraftSettings(next.settings);
        m_cache.save(next);
        setNeedsSignIn(false);
        setOffline(false);
        setLastRefresh(now());
        if (m_banner && m_banner->kind != Banner::Kind::info)
            setBanner(std::nullopt);
        if (m_tracker.cursor == distantPast())
            co_await pollChanges(true);
        if (!self)
            co_return;
        scheduleReminders();
    }
    setLoading(false);
    setFirstLoadDone(true);
}

QCoro::Task<> AppModel::pollChanges(bool prime)
{
    if (!signedInNow())
        co_return;
    QPointer<AppModel> self(this);
    const Instant since =
        m_tracker.cursor == distantPast() ? now().addSecs(-firstPollLookbackSeconds) : m_tracker.cursor;
    BookingChanges answer;
    std::exception_ptr failure;
    try {
        answer = co_await api().changes(since);
    } catch (...) {
        failure = std::current_exception();
    }
    if (!self)
        co_return;
    if (failure) {
        handle(failure, true);
        co_return;
    }
    const QList<ChangeEvent> events = m_tracker.ingest(answer.changes, answer.serverTime.value_or(now()), prime);
    saveTracker();
    if (events.isEmpty())
        co_return;
    if (notifyBookings()) {
        for (const ChangeEvent &event : events) {
            m_env.notifier->announce(event, typeTitle(event.booking.type));
            Q_EMIT announced(event.booking.id, event.kind == ChangeEvent::Kind::cancelled);
        }
    }
    co_await refresh(true);
}

void AppModel::saveTracker() const
{
    // Fails quietly until the cache has created the data directory; the copy in memory rules.
    QSaveFile file(trackerPath());
    if (!file.open(QIODevice::WriteOnly))
        return;
    file.write(m_tracker.toFileJson());
    file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    file.commit();
}

void AppModel::scheduleReminders()
{
    if (!notifyReminders()) {
        m_env.notifier->removeAll();
        return;
    }
    QHash<QString, QString> titles;
    for (const EventType &t : eventTypes()) {
        if (!titles.contains(t.slug))
            titles.insert(t.slug, t.title);
    }
    m_env.notifier->scheduleReminders(upcoming(), reminderMinutes(), titles);
}

} // namespace quorvane
