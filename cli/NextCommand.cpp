#include "NextCommand.h"

#include "AppBus.h"
#include "Countdown.h"
#include "ISO.h"
#include "JSON.h"
#include "Output.h"
#include "Saved.h"

#include <QCoreApplication>
#include <QDBusServiceWatcher>
#include <QJsonObject>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace quorvane::cli::NextCommand {

namespace {

// A meeting starting within this many minutes is "soon" to a status bar.
constexpr qint64 soonSeconds = 15 * 60;

struct Next {
    QString id; // empty: no meeting ahead
    QString title;
    QString guest;
    Instant start;
    Instant end;
    QString joinLink;
    QString countdown;
    bool signedIn = true;
    bool saved = false;   // saved data, not the running app's fresh view
    bool running = false; // the running app answered
    Instant savedAt;
    Saved::Counts counts;
};

Instant parsed(const QVariant &value)
{
    return ISO::parse(value.toString()).value_or(Instant());
}

Next fromApp(const QVariantMap &status)
{
    Next n;
    n.id = status.value(u"NextId"_s).toString();
    n.title = status.value(u"NextTitle"_s).toString();
    n.guest = status.value(u"NextGuest"_s).toString();
    n.start = parsed(status.value(u"NextStart"_s));
    n.end = parsed(status.value(u"NextEnd"_s));
    n.joinLink = status.value(u"NextJoinLink"_s).toString();
    n.countdown = status.value(u"Countdown"_s).toString();
    n.signedIn = status.value(u"SignedIn"_s).toBool();
    n.saved = status.value(u"Offline"_s).toBool();
    n.running = true;
    n.savedAt = parsed(status.value(u"SavedAt"_s));
    n.counts = {status.value(u"TodayCount"_s).toInt(), status.value(u"UpcomingCount"_s).toInt()};
    return n;
}

// No value: nothing saved either, which is how a copy that never signed in looks.
std::optional<Next> fromSaved(const Instant &now)
{
    const std::optional<Snapshot> snapshot = Saved::load();
    if (!snapshot)
        return std::nullopt;
    Next n;
    n.saved = true;
    n.savedAt = snapshot->savedAt;
    n.counts = Saved::counts(*snapshot, now);
    if (const std::optional<Booking> b = Saved::next(*snapshot, now)) {
        n.id = b->id;
        n.title = Saved::title(*snapshot, *b);
        n.guest = b->name;
        n.start = b->start;
        n.end = b->end;
        n.joinLink = Saved::joinLink(*b);
        n.countdown = Countdown::shortText(b->start, now);
    }
    return n;
}

std::optional<Next> read(const AppBus &bus, const Instant &now)
{
    if (const std::optional<QVariantMap> status = bus.status())
        return fromApp(*status);
    return fromSaved(now);
}

int exitCode(const std::optional<Next> &next)
{
    if (!next || !next->signedIn)
        return notSignedIn;
    return next->saved ? savedData : ok;
}

QString statusClass(const std::optional<Next> &next, const Instant &now)
{
    if (!next || !next->signedIn || next->id.isEmpty())
        return next && next->saved ? u"offline"_s : u"none"_s;
    if (next->saved)
        return u"offline"_s;
    if (next->start <= now)
        return u"now"_s;
    return now.secsTo(next->start) <= soonSeconds ? u"soon"_s : u"later"_s;
}

// "Ann Lee in 25m", "Now: Ann Lee", as the tray titles it.
QString shortText(const Next &n)
{
    const QString who = n.guest.isEmpty() ? n.title : n.guest;
    return n.countdown == "now"_L1 ? u"Now: "_s + who : who + u' ' + n.countdown;
}

QString notSignedInText(const std::optional<Next> &next)
{
    return next ? u"You're not signed in."_s : u"Quorvane has no saved data yet; sign in to Quorvane first."_s;
}

QString plain(const std::optional<Next> &next, const Instant &now)
{
    if (!next || !next->signedIn)
        return notSignedInText(next);
    QString saved;
    if (next->saved) {
        saved = Saved::savedLine(next->savedAt);
        saved = u" ("_s + saved.front().toLower() + saved.mid(1) + u')';
    }
    if (next->id.isEmpty())
        return u"No upcoming meetings"_s + saved;
    return u"%1 \u00b7 %2, %3"_s.arg(shortText(*next), next->title, Saved::when(next->start, next->end, now)) + saved;
}

QJsonObject waybar(const std::optional<Next> &next, const Instant &now)
{
    const QString cls = statusClass(next, now);
    QString text;
    QStringList tooltip;
    if (!next || !next->signedIn) {
        tooltip.append(notSignedInText(next));
    } else if (next->id.isEmpty()) {
        tooltip.append(u"No upcoming meetings"_s);
    } else {
        text = shortText(*next);
        tooltip.append(next->guest.isEmpty() ? next->title : u"%1 with %2"_s.arg(next->title, next->guest));
        tooltip.append(Saved::when(next->start, next->end, now));
        if (!next->joinLink.isEmpty())
            tooltip.append(next->joinLink);
        tooltip.append(u"%1 today \u00b7 %2 upcoming"_s.arg(next->counts.today).arg(next->counts.upcoming));
    }
    if (next && next->saved)
        tooltip.append(Saved::savedLine(next->savedAt));
    return {{u"text"_s, text}, {u"tooltip"_s, tooltip.join(u'\n')}, {u"class"_s, cls}, {u"alt"_s, cls}};
}

QJsonObject json(const std::optional<Next> &next, const Instant &now)
{
    QJsonObject out{{u"signedIn"_s, next && next->signedIn},     {u"saved"_s, !next || next->saved},
                    {u"running"_s, next && next->running},       {u"class"_s, statusClass(next, now)},
                    {u"today"_s, next ? next->counts.today : 0}, {u"upcoming"_s, next ? next->counts.upcoming : 0}};
    if (next && next->savedAt.isValid() && next->savedAt > distantPast())
        out.insert(u"savedAt"_s, ISO::secondsString(next->savedAt));
    if (next && !next->id.isEmpty()) {
        out.insert(u"next"_s, QJsonObject{{u"id"_s, next->id},
                                          {u"title"_s, next->title},
                                          {u"guest"_s, next->guest},
                                          {u"start"_s, ISO::secondsString(next->start)},
                                          {u"end"_s, ISO::secondsString(next->end)},
                                          {u"joinLink"_s, next->joinLink},
                                          {u"countdown"_s, next->countdown}});
    } else {
        out.insert(u"next"_s, QJsonValue::Null);
    }
    return out;
}

enum class Form { plain, json, waybar };

QString render(Form form, const std::optional<Next> &next, const Instant &now)
{
    switch (form) {
    case Form::plain:
        return plain(next, now);
    case Form::json:
        return QString::fromUtf8(JSON::encode(QJsonValue(json(next, now))));
    case Form::waybar:
        return QString::fromUtf8(JSON::encode(QJsonValue(waybar(next, now))));
    }
    return {};
}

// Prints a line whenever what it says changes: the app announces its changes, comes and
// goes on the bus, and the minute turns (which moves a countdown read from saved data).
class Follower : public QObject
{
    Q_OBJECT

public:
    Follower(AppBus &bus, Form form)
        : m_bus(bus)
        , m_form(form)
        , m_watcher(AppBus::service, bus.connection(),
                    QDBusServiceWatcher::WatchForRegistration | QDBusServiceWatcher::WatchForUnregistration)
    {
        QDBusConnection connection = m_bus.connection();
        connection.connect(AppBus::service, AppBus::path, u"org.freedesktop.DBus.Properties"_s, u"PropertiesChanged"_s,
                           this, SLOT(refresh()));
        connect(&m_watcher, &QDBusServiceWatcher::serviceRegistered, this, &Follower::refresh);
        connect(&m_watcher, &QDBusServiceWatcher::serviceUnregistered, this, &Follower::refresh);
        m_minute.setSingleShot(true);
        connect(&m_minute, &QTimer::timeout, this, &Follower::refresh);
        refresh();
    }

public Q_SLOTS:
    void refresh()
    {
        const Instant now = QDateTime::currentDateTimeUtc();
        const QString line = render(m_form, read(m_bus, now), now);
        if (line != m_last)
            Output::line(line);
        m_last = line;
        m_minute.start(int((60 - now.time().second()) * 1000 - now.time().msec() + 50));
    }

private:
    AppBus &m_bus;
    Form m_form;
    QDBusServiceWatcher m_watcher;
    QTimer m_minute;
    QString m_last;
};

QList<QCommandLineOption> options()
{
    return {jsonOption(),
            QCommandLineOption(u"waybar"_s, u"Print the status bar's JSON: text, tooltip, class (now, soon, later, "
                                            "none or offline) and alt."_s),
            QCommandLineOption(u"follow"_s,
                               u"Keep running and print a new line whenever the next meeting, its "
                               "countdown or the count of meetings changes, for a status bar's continuous mode."_s)};
}

int run(const QStringList &arguments)
{
    QCommandLineParser parser;
    if (const std::optional<int> done = parse(parser, command(), arguments))
        return *done;
    if (!parser.positionalArguments().mid(1).isEmpty()) {
        Output::error(u"quorvanectl next: unexpected argument \"%1\""_s.arg(parser.positionalArguments().at(1)));
        return usage;
    }
    const Form form = parser.isSet(u"waybar"_s) ? Form::waybar : parser.isSet(u"json"_s) ? Form::json : Form::plain;
    AppBus bus;
    if (parser.isSet(u"follow"_s)) {
        Follower follower(bus, form);
        return QCoreApplication::exec();
    }
    const Instant now = QDateTime::currentDateTimeUtc();
    const std::optional<Next> next = read(bus, now);
    const int code = exitCode(next);
    if (code == notSignedIn && form == Form::plain)
        Output::error(u"quorvanectl next: "_s + plain(next, now));
    else
        Output::line(render(form, next, now));
    return code;
}

} // namespace

const Command &command()
{
    static const Command c{
        u"next"_s,
        u"Print the next meeting and its countdown."_s,
        {},
        u"Prints the meeting under way or the next one, with its countdown: from the running Quorvane, else "
        "from the data it saved, which is then marked as saved.\n\n"
        "With --follow it keeps running and prints one line per change, as status bars read in their "
        "continuous mode."_s,
        &options,
        &run};
    return c;
}

} // namespace quorvane::cli::NextCommand

#include "NextCommand.moc"
