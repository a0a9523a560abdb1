#include "HoursCommand.h"

#include "AvailabilityMath.h"
#include "DataPaths.h"
#include "JSON.h"
#include "NLAvailability.h"
#include "Output.h"
#include "SnapshotCache.h"
#include "WeekSentence.h"

#include <QCommandLineParser>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace quorvane::cli::HoursCommand {

namespace {

QString dayName(int weekday)
{
    static const QStringList names{u"Sun"_s, u"Mon"_s, u"Tue"_s, u"Wed"_s, u"Thu"_s, u"Fri"_s, u"Sat"_s};
    return names.value(weekday - 1, QString::number(weekday));
}

// Sunday (1) goes after Saturday (7).
int mondayFirst(int weekday)
{
    return (weekday + 5) % 7;
}

} // namespace

QStringList readableLines(const QList<DayAvailability> &days)
{
    QList<DayAvailability> ordered = days;
    std::stable_sort(ordered.begin(), ordered.end(), [](const DayAvailability &a, const DayAvailability &b) {
        return mondayFirst(a.weekday) < mondayFirst(b.weekday);
    });
    QStringList lines;
    for (const DayAvailability &day : std::as_const(ordered)) {
        QStringList ranges;
        for (const TimeRange &range : day.ranges)
            ranges.append(AvailabilityMath::label(range.start) + u'\u2013' + AvailabilityMath::label(range.end));
        lines.append(dayName(day.weekday) + u' ' + ranges.join(u", "_s));
    }
    return lines;
}

namespace {

QList<QCommandLineOption> options()
{
    return {QCommandLineOption(u"json"_s, u"Print the days as one line of JSON."_s),
            QCommandLineOption(u"describe"_s, u"Print the weekly hours as a sentence that this command reads back: "
                                              "the hours of TEXT, or without TEXT the hours saved by Quorvane."_s)};
}

int run(const QStringList &arguments)
{
    QCommandLineParser parser;
    if (const std::optional<int> done = parse(parser, command(), arguments))
        return *done;
    const QString json = u"json"_s;
    const QString describe = u"describe"_s;
    const QStringList words = parser.positionalArguments().mid(1);
    if (words.isEmpty() && !parser.isSet(describe)) {
        Output::error(u"quorvanectl hours: missing TEXT (see quorvanectl hours --help)"_s);
        return usage;
    }
    QList<DayAvailability> days;
    if (!words.isEmpty()) {
        days = NLAvailability::parse(words.join(u' '));
    } else {
        const std::optional<Snapshot> saved = SnapshotCache(DataPaths::cacheIn(DataPaths::defaultDirectory())).load();
        if (!saved || !saved->settings) {
            Output::error(u"quorvanectl hours: Quorvane has no saved hours yet; sign in to Quorvane first"_s);
            return notSignedIn;
        }
        days = saved->settings->availability;
    }
    if (parser.isSet(describe)) {
        const QString sentence = WeekSentence::describe(days);
        Output::line(parser.isSet(json)
                         ? QString::fromUtf8(JSON::encode(QJsonValue(QJsonObject{{u"description"_s, sentence}})))
                         : sentence);
        return 0;
    }
    if (parser.isSet(json)) {
        Output::line(QString::fromUtf8(JSON::encode(toJson(days))));
        return 0;
    }
    for (const QString &line : readableLines(days))
        Output::line(line);
    return 0;
}

} // namespace

const Command &command()
{
    static const Command c{u"hours"_s,
                           u"Print the weekly hours a typed sentence would set."_s,
                           u"[TEXT...]"_s,
                           u"Prints the weekly hours that a typed sentence such as \"weekdays 9-5, fri 9am-1pm\" "
                           "would set, one line per day, Monday first. Several words are joined with blanks."_s,
                           &options,
                           &run};
    return c;
}

} // namespace quorvane::cli::HoursCommand
