#include "types/EventTypes.h"

#include "Palette.h"
#include "Slug.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace quorvane::EventTypes {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(EventTypes)
};

QSet<QString> slugs(const QList<EventType> &types)
{
    QSet<QString> out;
    for (const EventType &t : types)
        out.insert(t.slug);
    return out;
}

bool isBlankOrTab(QChar c)
{
    return c == u' ' || c == u'\t';
}

} // namespace

EventType added(const QList<EventType> &types)
{
    const QStringList &palette = Palette::colors();
    EventType t;
    t.id = newRecordId();
    t.slug = Slug::unique(u"meeting"_s, slugs(types));
    t.title = Text::tr("New Meeting");
    t.minutes = 30;
    t.bufferBefore = 5;
    t.bufferAfter = 5;
    t.colorHex = palette.at(types.size() % palette.size());
    t.isActive = true;
    t.location = MeetingLocation::meet;
    return t;
}

EventType duplicated(const EventType &type, const QList<EventType> &types)
{
    EventType copy = type;
    copy.id = newRecordId();
    copy.title = Text::tr("%1 copy").arg(type.title);
    copy.slug = Slug::unique(type.slug, slugs(types));
    return copy;
}

bool canDelete(const QList<EventType> &types)
{
    return types.size() >= 2;
}

bool remove(QList<EventType> &types, const QString &id)
{
    if (!canDelete(types))
        return false;
    return types.removeIf([&id](const EventType &t) { return t.id == id; }) > 0;
}

std::optional<QString> selectionAfterDelete(const QList<EventType> &remaining, const QString &id)
{
    for (const EventType &t : remaining) {
        if (t.id != id)
            return t.id;
    }
    return std::nullopt;
}

bool move(QList<EventType> &types, int from, int to)
{
    if (from < 0 || to < 0 || from >= types.size() || to >= types.size() || from == to)
        return false;
    types.move(from, to);
    return true;
}

bool replace(HostSettings &settings, const EventType &type)
{
    for (EventType &t : settings.eventTypes) {
        if (t.id == type.id) {
            t = type;
            return true;
        }
    }
    return false;
}

QString slugAfterTyping(const QString &typed)
{
    const QString made = Slug::make(typed);
    return made == typed || typed.endsWith(u'-') ? typed : made;
}

QList<int> durations(int current)
{
    QList<int> out{10, 15, 20, 25, 30, 45, 50, 60, 75, 90, 120};
    if (!out.contains(current)) {
        out.append(current);
        std::sort(out.begin(), out.end());
    }
    return out;
}

QString trimmedQuestion(const QString &text)
{
    qsizetype first = 0;
    qsizetype last = text.size();
    while (first < last && isBlankOrTab(text.at(first)))
        ++first;
    while (last > first && isBlankOrTab(text.at(last - 1)))
        --last;
    return text.mid(first, last - first);
}

bool canAddQuestion(const QString &text, const QStringList &questions)
{
    return !trimmedQuestion(text).isEmpty() && questions.size() < maxQuestions;
}

QString subtitle(const EventType &type)
{
    return Text::tr("%1 min \u00B7 /%2").arg(type.minutes).arg(type.slug);
}

QString detailPrompt(MeetingLocation location)
{
    switch (location) {
    case MeetingLocation::in_person:
        return Text::tr("Address");
    case MeetingLocation::custom:
        return Text::tr("Details (e.g. Zoom link)");
    case MeetingLocation::meet:
    case MeetingLocation::phone:
        break;
    }
    return {};
}

QString locationNote(MeetingLocation location)
{
    switch (location) {
    case MeetingLocation::meet:
        return Text::tr("A Google Meet link is created for every booking.");
    case MeetingLocation::phone:
        return Text::tr("You'll call the guest. Add a phone question below so they leave a number.");
    case MeetingLocation::in_person:
    case MeetingLocation::custom:
        break;
    }
    return {};
}

} // namespace quorvane::EventTypes
