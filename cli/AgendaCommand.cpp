#include "AgendaCommand.h"

#include "AppBus.h"
#include "ISO.h"
#include "JSON.h"
#include "Output.h"
#include "Saved.h"

#include <QJsonArray>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace quorvane::cli::AgendaCommand {

namespace {

constexpr int maxDays = 60;

QJsonObject row(const Snapshot &snapshot, const Booking &b)
{
    return {{u"id"_s, b.id},
            {u"title"_s, Saved::title(snapshot, b)},
            {u"guest"_s, b.name},
            {u"email"_s, b.email},
            {u"start"_s, ISO::secondsString(b.start)},
            {u"end"_s, ISO::secondsString(b.end)},
            {u"joinLink"_s, Saved::joinLink(b)}};
}

void printTable(const Snapshot &snapshot, const QList<Booking> &bookings, int days)
{
    if (bookings.isEmpty()) {
        Output::line(days == 1 ? u"No meetings today"_s : u"No meetings in the next %1 days"_s.arg(days));
        return;
    }
    QString heading;
    for (const Booking &b : bookings) {
        if (const QString day = Saved::day(b.start); day != heading) {
            Output::line(day);
            heading = day;
        }
        QString line = u"  %1 \u2013 %2  %3"_s.arg(Saved::time(b.start), Saved::time(b.end), Saved::title(snapshot, b));
        if (!b.name.isEmpty())
            line += u"  "_s + b.name;
        if (const QString link = Saved::joinLink(b); !link.isEmpty())
            line += u"  "_s + link;
        Output::line(line);
    }
}

QList<QCommandLineOption> options()
{
    return {QCommandLineOption(u"days"_s, u"Show this many days from today (1 to %1; 1 by default)."_s.arg(maxDays),
                               u"N"_s),
            jsonOption()};
}

int run(const QStringList &arguments)
{
    QCommandLineParser parser;
    if (const std::optional<int> done = parse(parser, command(), arguments))
        return *done;
    int days = 1;
    if (parser.isSet(u"days"_s)) {
        bool number = false;
        days = parser.value(u"days"_s).toInt(&number);
        if (!number || days < 1 || days > maxDays) {
            Output::error(u"quorvanectl agenda: --days takes a number from 1 to %1"_s.arg(maxDays));
            return usage;
        }
    }
    const std::optional<Snapshot> snapshot = Saved::load();
    if (!snapshot) {
        Output::error(u"quorvanectl agenda: Quorvane has no saved data yet; sign in to Quorvane first."_s);
        return notSignedIn;
    }
    // The running app keeps the saved data fresh while it reaches the server.
    const std::optional<QVariantMap> status = AppBus().status();
    if (status && !status->value(u"SignedIn"_s).toBool()) {
        Output::error(u"quorvanectl agenda: You're not signed in."_s);
        return notSignedIn;
    }
    const bool saved = !status || status->value(u"Offline"_s).toBool();
    const QList<Booking> bookings = Saved::onDays(*snapshot, QDateTime::currentDateTimeUtc(), days);
    if (parser.isSet(u"json"_s)) {
        QJsonArray rows;
        for (const Booking &b : bookings)
            rows.append(row(*snapshot, b));
        QJsonObject out{{u"days"_s, days}, {u"saved"_s, saved}, {u"bookings"_s, rows}};
        if (snapshot->savedAt > distantPast())
            out.insert(u"savedAt"_s, ISO::secondsString(snapshot->savedAt));
        Output::line(QString::fromUtf8(JSON::encode(QJsonValue(out))));
    } else {
        if (saved)
            Output::line(Saved::savedLine(snapshot->savedAt)
                         + (status ? u" (Quorvane is offline)"_s : u" (Quorvane isn't running)"_s));
        printTable(*snapshot, bookings, days);
    }
    return saved ? savedData : ok;
}

} // namespace

const Command &command()
{
    static const Command c{u"agenda"_s,
                           u"Print today's bookings, or the next N days'."_s,
                           {},
                           u"Prints the bookings of today, or of N days from today, by start, from the data Quorvane "
                           "keeps. While Quorvane runs and reaches the server that data is fresh; otherwise the "
                           "output says it is saved data and from when, and the exit status is 4."_s,
                           &options,
                           &run};
    return c;
}

} // namespace quorvane::cli::AgendaCommand
