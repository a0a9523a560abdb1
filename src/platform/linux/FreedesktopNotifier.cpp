#include "FreedesktopNotifier.h"

#include "NotificationPlan.h"

#include <QCoreApplication>
#include <QCoroDBusPendingCall>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusServiceWatcher>
#include <QPointer>

namespace quorvane {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(FreedesktopNotifier)
};

const QString service = QStringLiteral("org.freedesktop.Notifications");
const QString path = QStringLiteral("/org/freedesktop/Notifications");
const QString interface = QStringLiteral("org.freedesktop.Notifications");
const QString appID = QStringLiteral("com.peldrachen.quorvane");

// Each category's actions as key/label pairs. "default" is the click on the notification
// itself, which opens the app like "View".
QStringList actions(NotificationCategory category)
{
    QStringList list{QStringLiteral("default"), Text::tr("View")};
    if (category == NotificationCategory::meeting)
        list << QStringLiteral("JOIN") << Text::tr("Join Meet");
    list << QStringLiteral("OPEN") << Text::tr("View");
    return list;
}

QVariantMap hints()
{
    return {
        {QStringLiteral("desktop-entry"), appID},
        {QStringLiteral("urgency"), QVariant::fromValue(uchar(1))}, // normal
    };
}

QDBusMessage busCall(const QString &method)
{
    return QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
                                          QStringLiteral("/org/freedesktop/DBus"),
                                          QStringLiteral("org.freedesktop.DBus"), method);
}

} // namespace

FreedesktopNotifier::FreedesktopNotifier(const QDBusConnection &bus, const Clock &clock, const QString &locale,
                                         const QString &zone, QObject *parent)
    : Notifier(parent)
    , m_bus(bus)
    , m_clock(clock)
    , m_locale(locale)
    , m_zone(zone)
    , m_scheduler(clock)
{
    connect(&m_scheduler, &NotificationScheduler::due, this, [this](const NotificationRequest &r) { show(r); });
    if (!m_bus.isConnected())
        return;
    m_bus.connect(service, path, interface, QStringLiteral("ActionInvoked"), this,
                  SLOT(onActionInvoked(uint, QString)));
    m_bus.connect(service, path, interface, QStringLiteral("ActivationToken"), this,
                  SLOT(onActivationToken(uint, QString)));
    m_bus.connect(service, path, interface, QStringLiteral("NotificationClosed"), this, SLOT(onClosed(uint, uint)));
    // A new server knows nothing of the old one's ids and may speak another markup.
    m_serverWatcher = new QDBusServiceWatcher(service, m_bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(m_serverWatcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &FreedesktopNotifier::forgetServer);
}

void FreedesktopNotifier::setLocale(const QString &locale, const QString &zone)
{
    m_locale = locale;
    m_zone = zone;
}

void FreedesktopNotifier::announce(const ChangeEvent &event, const QString &typeTitle)
{
    show(NotificationPlan::announcement(event, typeTitle, m_locale, m_zone));
}

void FreedesktopNotifier::scheduleReminders(const QList<Booking> &bookings, int minutesBefore,
                                            const QHash<QString, QString> &titles)
{
    m_scheduler.removeWithPrefix(NotificationPlan::reminderPrefix);
    const auto planned = NotificationPlan::reminders(bookings, m_clock.now(), minutesBefore, titles, m_locale, m_zone);
    for (const NotificationRequest &request : planned)
        m_scheduler.add(request);
}

void FreedesktopNotifier::removeAll()
{
    m_scheduler.removeAll();
}

QCoro::Task<bool> FreedesktopNotifier::authorized()
{
    const QDBusConnection bus = m_bus; // no member is touched after the first wait
    if (!bus.isConnected())
        co_return false;
    const QDBusPendingCall ownerCall = bus.asyncCall(busCall(QStringLiteral("NameHasOwner")) << service);
    const QDBusMessage owner = co_await ownerCall;
    if (owner.type() == QDBusMessage::ReplyMessage && owner.arguments().value(0).toBool())
        co_return true;
    // Some servers (dunst, mako) only start with the first notification sent to them.
    const QDBusPendingCall namesCall = bus.asyncCall(busCall(QStringLiteral("ListActivatableNames")));
    const QDBusMessage names = co_await namesCall;
    co_return names.type() == QDBusMessage::ReplyMessage &&names.arguments().value(0).toStringList().contains(service);
}

QCoro::Task<bool> FreedesktopNotifier::requestAuthorization()
{
    co_return co_await authorized();
}

void FreedesktopNotifier::show(const NotificationRequest &request)
{
    m_outbox.append(request);
    if (!m_sending)
        drain();
}

QCoro::Task<> FreedesktopNotifier::drain()
{
    const QPointer<FreedesktopNotifier> self(this);
    m_sending = true;
    while (self && !m_outbox.isEmpty())
        co_await send(m_outbox.takeFirst());
    if (self)
        m_sending = false;
}

QCoro::Task<> FreedesktopNotifier::send(NotificationRequest request)
{
    const QPointer<FreedesktopNotifier> self(this);
    const bool markup = co_await bodyIsMarkup();
    if (!self)
        co_return;
    // Type titles and names are the server's text: on a markup server they must not become markup.
    const QString body = markup ? request.body.toHtmlEscaped() : request.body;
    QDBusMessage notify = QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Notify"));
    notify << QStringLiteral("Quorvane") << m_idsByIdentifier.value(request.identifier, 0u) << appID << request.title
           << body << actions(request.category) << hints() << int(-1);
    const QDBusPendingCall call = m_bus.asyncCall(notify);
    const QDBusMessage reply = co_await call;
    if (self && reply.type() == QDBusMessage::ReplyMessage && !reply.arguments().isEmpty())
        remember(reply.arguments().constFirst().toUInt(), request);
}

QCoro::Task<bool> FreedesktopNotifier::bodyIsMarkup()
{
    if (m_bodyMarkup)
        co_return *m_bodyMarkup;
    const QPointer<FreedesktopNotifier> self(this);
    const QDBusPendingCall call =
        m_bus.asyncCall(QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("GetCapabilities")));
    const QDBusMessage reply = co_await call;
    if (reply.type() != QDBusMessage::ReplyMessage)
        co_return false;
    const bool markup = reply.arguments().value(0).toStringList().contains(QStringLiteral("body-markup"));
    if (self)
        m_bodyMarkup = markup;
    co_return markup;
}

void FreedesktopNotifier::remember(uint id, const NotificationRequest &request)
{
    const uint previous = m_idsByIdentifier.value(request.identifier, 0u);
    if (previous != 0 && previous != id)
        m_shown.remove(previous);
    m_idsByIdentifier.insert(request.identifier, id);
    m_shown.insert(id, {request.identifier, request.meet});
}

void FreedesktopNotifier::forgetServer()
{
    m_bodyMarkup.reset();
    m_idsByIdentifier.clear();
    m_shown.clear();
    m_activationTokens.clear();
}

void FreedesktopNotifier::onActivationToken(uint id, const QString &token)
{
    if (m_shown.contains(id))
        m_activationTokens.insert(id, token);
}

void FreedesktopNotifier::onActionInvoked(uint id, const QString &action)
{
    // The server tells every client about every notification's actions; only ours count.
    const auto shown = m_shown.constFind(id);
    if (shown == m_shown.constEnd())
        return;
    const QString token = m_activationTokens.take(id);
    if (const auto link = NotificationPlan::joinTarget(action, shown->meet))
        Q_EMIT joinRequested(*link);
    else
        Q_EMIT activateRequested(token);
}

void FreedesktopNotifier::onClosed(uint id, uint /*reason*/)
{
    m_activationTokens.remove(id);
    const auto shown = m_shown.constFind(id);
    if (shown == m_shown.constEnd())
        return;
    if (m_idsByIdentifier.value(shown->identifier) == id)
        m_idsByIdentifier.remove(shown->identifier);
    m_shown.erase(shown);
}

} // namespace quorvane
