#include "model/AppModel.h"

#include "APIError.h"
#include "Cancelled.h"
#include "Clock.h"
#include "DataPaths.h"
#include "Formats.h"
#include "Notifier.h"
#include "WeekCalendar.h"
#include "components/Tint.h"
#include "model/Preferences.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QTimeZone>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(AppModel)
};

const QString trackerFileName = u"changes-v2.json"_s;

} // namespace

AppModel::AppModel(AppEnvironment environment, QObject *parent)
    : QObject(parent)
    , m_env(std::move(environment))
    , m_keychain(*m_env.secrets)
    , m_cache(cachePath(m_env.dataDirectory))
    , m_tracker(distantPast())
{
    Q_ASSERT(m_env.clock && m_env.transport && m_env.secrets && m_env.notifier && m_env.preferences && m_env.opener
             && m_env.clipboard);
    m_needsSignIn = !signedInNow();
    const std::optional<SavedData> saved =
        m_env.savedData.valid() ? m_env.savedData.get() : SavedData::of(m_cache.load());
    if (saved) {
        m_snapshot = saved->snapshot;
        m_order = saved->order;
    }

    QFile trackerFile(trackerPath());
    if (trackerFile.open(QIODevice::ReadOnly)) {
        if (std::optional<ChangeTracker> stored = ChangeTracker::fromFileJson(trackerFile.readAll()))
            m_tracker = *stored;
    }
    m_draftSettings = m_snapshot.settings;
    m_firstLoadDone = m_snapshot.savedAt > distantPast();
    m_env.preferences->migrate();

    connect(m_env.preferences, &Preferences::changed, this, &AppModel::preferencesChanged);
    connect(this, &AppModel::snapshotChanged, this, &AppModel::nextChanged);
    connect(this, &AppModel::ticked, this, &AppModel::nextChanged);
    m_timer.setInterval(m_env.timings.tick);
    connect(&m_timer, &QTimer::timeout, this, [this] { run(tick()); });
}

QString AppModel::cachePath(const QString &dataDirectory)
{
    return DataPaths::cacheIn(dataDirectory);
}

AppModel::~AppModel()
{
    if (m_saveTask)
        m_saveTask->cancel();
}

void AppModel::run(QCoro::Task<> &&task)
{
    // A QCoro task runs on by itself once its handle is dropped; the model's tasks catch
    // their own failures, so nothing is left to await here.
    QCoro::Task<> detached = std::move(task);
    Q_UNUSED(detached);
}

// --- state setters: each notifies only on a real change ---

void AppModel::setSnapshot(Snapshot snapshot)
{
    m_snapshot = std::move(snapshot);
    m_order = BookingOrder::of(m_snapshot);
    Q_EMIT snapshotChanged();
}

void AppModel::setDraftSettings(std::optional<HostSettings> draft)
{
    if (m_draftSettings == draft)
        return;
    m_draftSettings = std::move(draft);
    Q_EMIT draftSettingsChanged();
}

#define QUORVANE_SETTER(Name, member, signal)                                                                          \
    void AppModel::Name(decltype(member) value)                                                                        \
    {                                                                                                                  \
        if (member == value)                                                                                           \
            return;                                                                                                    \
        member = std::move(value);                                                                                     \
        Q_EMIT signal();                                                                                               \
    }

QUORVANE_SETTER(setLoading, m_loading, loadingChanged)
QUORVANE_SETTER(setFirstLoadDone, m_firstLoadDone, firstLoadDoneChanged)
QUORVANE_SETTER(setBanner, m_banner, bannerChanged)
QUORVANE_SETTER(setOffline, m_offline, offlineChanged)
QUORVANE_SETTER(setNeedsSignIn, m_needsSignIn, needsSignInChanged)
QUORVANE_SETTER(setSaving, m_saving, savingChanged)
QUORVANE_SETTER(setLastRefresh, m_lastRefresh, lastRefreshChanged)
QUORVANE_SETTER(setSection, m_section, sectionChanged)
QUORVANE_SETTER(setSelectedBooking, m_selectedBooking, selectedBookingChanged)
QUORVANE_SETTER(setShowPalette, m_showPalette, showPaletteChanged)
QUORVANE_SETTER(setShowNewPoll, m_showNewPoll, showNewPollChanged)
#undef QUORVANE_SETTER

void AppModel::setSectionId(const QString &id)
{
    if (std::optional<AppSection> section = Section::fromId(id))
        setSection(*section);
}

void AppModel::setSelectedBookingId(const QString &id)
{
    setSelectedBooking(id.isEmpty() ? std::nullopt : std::optional<QString>(id));
}

// --- preferences ---

bool AppModel::menuBarShowsNext() const
{
    return m_env.preferences->menuBarShowsNext();
}
void AppModel::setMenuBarShowsNext(bool value)
{
    m_env.preferences->setMenuBarShowsNext(value);
}
bool AppModel::notifyBookings() const
{
    return m_env.preferences->notifyBookings();
}
void AppModel::setNotifyBookings(bool value)
{
    m_env.preferences->setNotifyBookings(value);
}
bool AppModel::notifyReminders() const
{
    return m_env.preferences->notifyReminders();
}
void AppModel::setNotifyReminders(bool value)
{
    m_env.preferences->setNotifyReminders(value);
}
int AppModel::reminderMinutes() const
{
    return m_env.preferences->reminderMinutes();
}
void AppModel::setReminderMinutes(int value)
{
    m_env.preferences->setReminderMinutes(value);
}
QString AppModel::serverURL() const
{
    return m_env.preferences->serverURL();
}
void AppModel::setServerURL(const QString &value)
{
    m_env.preferences->setServerURL(value);
}
bool AppModel::onboarded() const
{
    return m_env.preferences->onboarded();
}
void AppModel::setOnboarded(bool value)
{
    m_env.preferences->setOnboarded(value);
}

// --- derived ---

Instant AppModel::now() const
{
    return m_env.clock->now();
}

QList<EventType> AppModel::eventTypes() const
{
    return m_snapshot.settings ? m_snapshot.settings->eventTypes : QList<EventType>();
}

QList<EventType> AppModel::activeTypes() const
{
    QList<EventType> out;
    for (const EventType &t : eventTypes()) {
        if (t.isActive)
            out.append(t);
    }
    return out;
}

QList<Booking> AppModel::upcoming() const
{
    const Instant at = now();
    QList<Booking> out;
    for (const Booking &b : m_order.activeByStart) {
        if (b.end > at)
            out.append(b);
    }
    return out;
}

qsizetype AppModel::upcomingCount() const
{
    const Instant at = now();
    return std::count_if(m_order.activeByStart.cbegin(), m_order.activeByStart.cend(),
                         [&at](const Booking &b) { return b.end > at; });
}

QList<Booking> AppModel::today() const
{
    const Instant at = now();
    const QTimeZone tz(m_env.zone.toUtf8());
    const QDate day = at.toTimeZone(tz).date();
    QList<Booking> out;
    // By start: once one starts after today, so do all the rest.
    for (const Booking &b : m_order.activeByStart) {
        if (b.end <= at)
            continue;
        const QDate starts = b.start.toTimeZone(tz).date();
        if (starts > day)
            break;
        if (starts == day)
            out.append(b);
    }
    return out;
}

std::optional<Booking> AppModel::next() const
{
    const Instant at = now();
    for (const Booking &b : m_order.activeByStart) {
        if (b.end > at)
            return b;
    }
    return std::nullopt;
}

QList<Booking> AppModel::allBookings() const
{
    return m_order.all;
}

std::optional<Booking> AppModel::booking(const QString &id) const
{
    // As in allBookings(), the upcoming list has the last word on a booking in both.
    for (const QList<Booking> *list : {&m_snapshot.upcoming, &m_snapshot.history}) {
        const auto found = std::find_if(list->cbegin(), list->cend(), [&](const Booking &b) { return b.id == id; });
        if (found != list->cend())
            return *found;
    }
    return std::nullopt;
}

bool AppModel::googleConnected() const
{
    if (m_snapshot.google)
        return m_snapshot.google->connected;
    if (m_snapshot.account && m_snapshot.account->google)
        return m_snapshot.account->google->connected;
    return false;
}

std::optional<EventType> AppModel::type(const QString &slug) const
{
    for (const EventType &t : eventTypes()) {
        if (t.slug == slug)
            return t;
    }
    return std::nullopt;
}

QString AppModel::typeTitle(const QString &slug) const
{
    const std::optional<EventType> t = type(slug);
    return t ? t->title : Text::tr("Meeting");
}

QString AppModel::typeColorHex(const QString &slug) const
{
    const std::optional<EventType> t = type(slug);
    return t ? t->colorHex : Tints::hex(Tints::unknownType);
}

QUrl AppModel::baseURL() const
{
    return m_env.preferences->baseURL();
}

QString AppModel::link(const EventType &type) const
{
    QString handle;
    if (m_snapshot.account && m_snapshot.account->handle)
        handle = *m_snapshot.account->handle;
    else if (m_snapshot.settings)
        handle = m_snapshot.settings->handle;
    // No trimming: a server URL typed with a final slash gives a double slash, as it stands.
    return baseURL().toString() + u'/' + handle + u'/' + type.slug;
}

QString AppModel::pageLink() const
{
    const QString handle = m_snapshot.account && m_snapshot.account->handle ? *m_snapshot.account->handle : QString();
    return baseURL().toString() + u'/' + handle;
}

Insights AppModel::insights() const
{
    return Insights::compute(allBookings(), now(), 12, WeekCalendar(m_env.locale, m_env.zone));
}

QuorvaneAPI AppModel::api() const
{
    const Keychain keychain = m_keychain;
    QuorvaneAPI api{baseURL(), [keychain] { return keychain.token(); }, m_env.transport};
    api.timeout = m_env.timings.requestTimeout;
    return api;
}

// --- failures ---

QString AppModel::offlineMessage() const
{
    if (m_snapshot.savedAt <= distantPast())
        return Text::tr("You're offline. Showing saved data.");
    return Text::tr("You're offline. Showing saved data from %1.")
        .arg(Formats::format(m_snapshot.savedAt, u"jmm"_s, m_env.locale, m_env.zone));
}

void AppModel::handle(const std::exception_ptr &error, bool silent)
{
    try {
        std::rethrow_exception(error);
    } catch (const Cancelled &) {
        // Whoever cancelled knows why; the user is told nothing.
    } catch (const APIError &e) {
        switch (e.kind()) {
        case APIError::Kind::notSignedIn:
        case APIError::Kind::unauthorized:
            setNeedsSignIn(true);
            setBanner(Banner{e.errorDescription(), Banner::Kind::error, false});
            return;
        case APIError::Kind::offline:
            setOffline(true);
            setBanner(Banner{offlineMessage(), Banner::Kind::offline, true});
            return;
        default:
            if (silent && m_banner)
                return;
            setBanner(Banner{e.errorDescription(), Banner::Kind::error, e.isRetryable()});
        }
    } catch (...) {
        setOffline(true);
        setBanner(Banner{offlineMessage(), Banner::Kind::offline, true});
    }
}

// --- account ---

void AppModel::signedIn()
{
    setNeedsSignIn(false);
    setBanner(std::nullopt);
    // A fresh tracker: the first refresh primes it, so no backlog of another account is announced.
    m_tracker = ChangeTracker(distantPast());
    run(refresh(false));
}

void AppModel::signOut()
{
    m_keychain.signOut();
    m_cache.clear();
    QFile::remove(trackerPath());
    setSnapshot(Snapshot());
    setDraftSettings(std::nullopt);
    setNeedsSignIn(true);
    setBanner(std::nullopt);
    m_env.notifier->removeAll();
}

QString AppModel::trackerPath() const
{
    return QDir(m_env.dataDirectory).filePath(trackerFileName);
}

} // namespace quorvane
