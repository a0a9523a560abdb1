#include "linux/DBusApplication.h"

#include "BuildInfo.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnectionInterface>
#include <QDBusMessage>

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {

const QString applicationInterface = u"org.freedesktop.Application"_s;

// Wayland's activation token, or X11's startup id: either lets a window be raised.
QString tokenOf(const QVariantMap &platformData)
{
    for (const QString &key : {u"activation-token"_s, u"desktop-startup-id"_s}) {
        const QString token = platformData.value(key).toString();
        if (!token.isEmpty())
            return token;
    }
    return {};
}

// What this process was given to raise a window with, passed on to the app that will.
QVariantMap ownPlatformData()
{
    QVariantMap data;
    if (const QString token = qEnvironmentVariable("XDG_ACTIVATION_TOKEN"); !token.isEmpty())
        data.insert(u"activation-token"_s, token);
    if (const QString id = qEnvironmentVariable("DESKTOP_STARTUP_ID"); !id.isEmpty())
        data.insert(u"desktop-startup-id"_s, id);
    return data;
}

} // namespace

class ApplicationAdaptor : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    ApplicationAdaptor(DBusApplication *app, QDBusConnection bus)
        : QDBusAbstractAdaptor(app)
        , m_app(app)
        , m_bus(std::move(bus))
    {}

public Q_SLOTS:
    void Activate(const QVariantMap &platformData) { Q_EMIT m_app->activateRequested(tokenOf(platformData)); }
    void Open(const QStringList &uris, const QVariantMap &platformData)
    {
        Q_EMIT m_app->openRequested(uris, tokenOf(platformData));
    }
    void ActivateAction(const QString &name, const QVariantList &parameter, const QVariantMap &platformData,
                        const QDBusMessage &message)
    {
        Q_UNUSED(parameter); // no action takes one
        if (!m_app->knows(name)) {
            message.setDelayedReply(true);
            m_bus.send(message.createErrorReply(QDBusError::InvalidArgs, u"No action named \"%1\""_s.arg(name)));
            return;
        }
        Q_EMIT m_app->actionRequested(name, tokenOf(platformData));
    }

private:
    DBusApplication *m_app;
    QDBusConnection m_bus;
};

class StatusAdaptor : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.peldrachen.quorvane.Status")
    Q_PROPERTY(QString NextId READ nextId)
    Q_PROPERTY(QString NextTitle READ nextTitle)
    Q_PROPERTY(QString NextGuest READ nextGuest)
    Q_PROPERTY(QString NextStart READ nextStart)
    Q_PROPERTY(QString NextEnd READ nextEnd)
    Q_PROPERTY(QString NextJoinLink READ nextJoinLink)
    Q_PROPERTY(QString Countdown READ countdown)
    Q_PROPERTY(bool SignedIn READ signedIn)
    Q_PROPERTY(bool Offline READ offline)
    Q_PROPERTY(QString SavedAt READ savedAt)
    Q_PROPERTY(int TodayCount READ todayCount)
    Q_PROPERTY(int UpcomingCount READ upcomingCount)

public:
    explicit StatusAdaptor(DBusApplication *app)
        : QDBusAbstractAdaptor(app)
        , m_app(app)
    {}

    [[nodiscard]] QString nextId() const { return m_app->status().nextId; }
    [[nodiscard]] QString nextTitle() const { return m_app->status().nextTitle; }
    [[nodiscard]] QString nextGuest() const { return m_app->status().nextGuest; }
    [[nodiscard]] QString nextStart() const { return m_app->status().nextStart; }
    [[nodiscard]] QString nextEnd() const { return m_app->status().nextEnd; }
    [[nodiscard]] QString nextJoinLink() const { return m_app->status().nextJoinLink; }
    [[nodiscard]] QString countdown() const { return m_app->status().countdown; }
    [[nodiscard]] bool signedIn() const { return m_app->status().signedIn; }
    [[nodiscard]] bool offline() const { return m_app->status().offline; }
    [[nodiscard]] QString savedAt() const { return m_app->status().savedAt; }
    [[nodiscard]] int todayCount() const { return m_app->status().todayCount; }
    [[nodiscard]] int upcomingCount() const { return m_app->status().upcomingCount; }

private:
    DBusApplication *m_app;
};

QVariantMap DBusApplication::Status::toMap() const
{
    return {{u"NextId"_s, nextId},       {u"NextTitle"_s, nextTitle},   {u"NextGuest"_s, nextGuest},
            {u"NextStart"_s, nextStart}, {u"NextEnd"_s, nextEnd},       {u"NextJoinLink"_s, nextJoinLink},
            {u"Countdown"_s, countdown}, {u"SignedIn"_s, signedIn},     {u"Offline"_s, offline},
            {u"SavedAt"_s, savedAt},     {u"TodayCount"_s, todayCount}, {u"UpcomingCount"_s, upcomingCount}};
}

DBusApplication::DBusApplication(QDBusConnection bus, QStringList actions, QObject *parent)
    : QObject(parent)
    , m_bus(std::move(bus))
    , m_actions(std::move(actions))
{
    new ApplicationAdaptor(this, m_bus);
    new StatusAdaptor(this);
}

DBusApplication::~DBusApplication()
{
    if (m_claimed) {
        m_bus.unregisterService(serviceName());
        m_bus.unregisterObject(QString::fromLatin1(path));
    }
}

QString DBusApplication::serviceName()
{
    return QString::fromLatin1(build::appId);
}

bool DBusApplication::claim()
{
    if (m_claimed)
        return true;
    // The object first: a call that arrives as soon as the name is ours finds it there.
    if (!m_bus.isConnected() || !m_bus.registerObject(QString::fromLatin1(path), this, QDBusConnection::ExportAdaptors))
        return false;
    if (!m_bus.registerService(serviceName())) {
        m_bus.unregisterObject(QString::fromLatin1(path));
        return false;
    }
    m_claimed = true;
    return true;
}

bool DBusApplication::ask(QDBusConnection bus, const QString &action, int timeoutMs)
{
    if (!bus.isConnected())
        return false;
    QDBusMessage call = QDBusMessage::createMethodCall(serviceName(), QString::fromLatin1(path), applicationInterface,
                                                       action.isEmpty() ? u"Activate"_s : u"ActivateAction"_s);
    if (action.isEmpty())
        call << ownPlatformData();
    else
        call << action << QVariant::fromValue(QVariantList()) << ownPlatformData();
    // Where no one runs, the launch becomes the app itself rather than have the bus start one.
    call.setAutoStartService(false);
    return bus.call(call, QDBus::Block, timeoutMs).type() == QDBusMessage::ReplyMessage;
}

void DBusApplication::setStatus(const Status &status)
{
    if (status == m_status)
        return;
    const QVariantMap before = m_status.toMap();
    m_status = status;
    QVariantMap changed = m_status.toMap();
    for (auto it = changed.begin(); it != changed.end();) {
        if (before.value(it.key()) == it.value())
            it = changed.erase(it);
        else
            ++it;
    }
    if (!m_claimed)
        return;
    QDBusMessage signal = QDBusMessage::createSignal(QString::fromLatin1(path), u"org.freedesktop.DBus.Properties"_s,
                                                     u"PropertiesChanged"_s);
    signal << QString::fromLatin1(statusInterface) << changed << QStringList();
    m_bus.send(signal);
}

} // namespace quorvane

#include "DBusApplication.moc"
