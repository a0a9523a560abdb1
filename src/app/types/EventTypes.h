#pragma once

#include "EventType.h"
#include "HostSettings.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

// The event types screen's logic: new types and copies, deleting, reordering, the slug
// field, the durations offered, guests' questions, and the editor's one write to the draft.
namespace quorvane::EventTypes {

// At most this many questions for guests.
inline constexpr int maxQuestions = 5;

// A new type after `types`: "New Meeting", 30 minutes with 5 before and after, on Meet, with
// the next colour of the palette (round again after the last) and a slug not yet taken.
[[nodiscard]] EventType added(const QList<EventType> &types);

// A copy of `type` with a new id, " copy" after the title and a slug not yet taken in
// `types`; colour and questions kept.
[[nodiscard]] EventType duplicated(const EventType &type, const QList<EventType> &types);

// The last type stays: a host always offers something.
[[nodiscard]] bool canDelete(const QList<EventType> &types);

// Removes every entry with `id`; false, and nothing changes, when it would leave none.
bool remove(QList<EventType> &types, const QString &id);

// What is selected after deleting `id`: the first type left, if any.
[[nodiscard]] std::optional<QString> selectionAfterDelete(const QList<EventType> &remaining, const QString &id);

// Moves the entry at `from` so that it ends at `to`; false for a position outside the list
// or no move at all.
bool move(QList<EventType> &types, int from, int to);

// Puts `type` in place of the entry with its id; false, and nothing changes, when it is gone.
bool replace(HostSettings &settings, const EventType &type);

// What the slug field holds after `typed`: Slug::make of it, except that a final "-" stays
// while the user types on.
[[nodiscard]] QString slugAfterTyping(const QString &typed);

// The durations offered, in minutes and ascending: the usual ones and `current`.
[[nodiscard]] QList<int> durations(int current);

// Blanks and tabs off both ends; other white space stays.
[[nodiscard]] QString trimmedQuestion(const QString &text);

// Whether `text` can be added to `questions`: something besides blanks, and room left.
[[nodiscard]] bool canAddQuestion(const QString &text, const QStringList &questions);

// "30 min · /consult", under a type's title in the list.
[[nodiscard]] QString subtitle(const EventType &type);

// The field's prompt under the location, or its note; each empty where the other shows.
[[nodiscard]] QString detailPrompt(MeetingLocation location);
[[nodiscard]] QString locationNote(MeetingLocation location);

} // namespace quorvane::EventTypes
