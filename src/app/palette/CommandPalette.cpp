#include "palette/CommandPalette.h"

#include "model/AppModel.h"
#include "shell/CommandTable.h"

#include "Countdown.h"
#include "Formats.h"
#include "Fuzzy.h"

#include <QCoreApplication>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace quorvane::CommandPalette {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(CommandPalette)
};

QString shortcutOrLink(const Command &command, const AppModel &app)
{
    const QString name = command.objectName();
    if (name == "shareTimes"_L1)
        return CommandTable::shareHotKeyText();
    if (name == "openDashboard"_L1)
        return app.baseURL().host();
    if (name == "openBookingPage"_L1)
        return app.pageLink();
    return command.shortcutText();
}

} // namespace

QList<PaletteCommand> commands(AppModel &app, const CommandTable &table, const Instant &now)
{
    QList<PaletteCommand> out;
    for (Command *command : table.paletteCommands())
        out.append({command->paletteTitle(), shortcutOrLink(*command, app), {}, command->symbol(), [command] {
                        command->trigger();
                    }});

    AppModel *model = &app;
    if (const std::optional<Booking> next = app.next(); next && next->meetURL()) {
        out.append({Text::tr("Join next meeting"),
                    u"%1 · %2"_s.arg(next->name, Countdown::shortText(next->start, now)),
                    {},
                    u"video.fill"_s,
                    [model, booking = *next] { model->join(booking); }});
    }
    for (const EventType &type : app.activeTypes())
        out.append({Text::tr("Copy link: %1").arg(type.title), app.link(type), {}, u"link"_s, [model, type] {
                        model->copyLink(type);
                    }});

    QHash<QString, QString> titles; // by slug, inactive types too
    for (const EventType &type : app.eventTypes())
        titles.insert(type.slug, type.title);
    const QString unknown = app.typeTitle({}); // what a booking of a type that is gone reads
    const QList<Booking> bookings = app.allBookings();
    for (const Booking &booking : bookings.first(std::min<qsizetype>(bookings.size(), maxBookings))) {
        out.append({u"%1 — %2"_s.arg(booking.name, titles.value(booking.type, unknown)),
                    {},
                    booking.start,
                    u"person"_s,
                    [model, id = booking.id] {
                        model->setSection(AppSection::bookings);
                        model->setSelectedBooking(id);
                    }});
    }
    return out;
}

QString subtitle(const PaletteCommand &command, const QString &locale, const QString &zone)
{
    return command.date ? Formats::format(*command.date, u"MMMdjmm"_s, locale, zone) : command.subtitle;
}

QList<int> results(const QList<PaletteCommand> &commands, const QString &query)
{
    QList<int> out;
    if (query.isEmpty()) {
        for (int i = 0; i < std::min<qsizetype>(commands.size(), maxResults); ++i)
            out.append(i);
        return out;
    }
    QList<std::pair<int, int>> scored; // score, place
    for (int i = 0; i < commands.size(); ++i) {
        if (const std::optional<int> score = Fuzzy::score(query, commands.at(i).title))
            scored.append({*score, i});
    }
    std::stable_sort(scored.begin(), scored.end(), [](const auto &a, const auto &b) { return a.first > b.first; });
    for (const auto &[score, place] : scored.first(std::min<qsizetype>(scored.size(), maxResults)))
        out.append(place);
    return out;
}

} // namespace quorvane::CommandPalette
