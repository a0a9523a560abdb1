#pragma once

#include "EventType.h"
#include "Poll.h"

#include <QList>
#include <QString>
#include <QStringList>

// The polls screen's derivations: a poll's public link, its vote bars, the voters line, and
// the type a new poll starts with.
namespace quorvane::Polls {

// The base address, "/poll/" and the id, joined as they are: a base that ends in a slash
// gives a double slash.
[[nodiscard]] QString url(const QString &base, const Poll &poll);

// The most votes of any option, or 1 for a poll without options.
[[nodiscard]] int top(const Poll &poll);

// A bar's share of its row's width, from 0 to 1; the screen draws it at least 4 pixels wide.
// Nobody has voted: 0.
[[nodiscard]] double barShare(int votes, int top);

// A bar in the lead is green: ties for the lead all are, and a poll without votes has none.
[[nodiscard]] bool leads(int votes, int top);

// "No votes yet", or "Voters: Ann, Ben".
[[nodiscard]] QString votersLine(const QStringList &voters);

// The slug a new poll starts with: the first active type of exactly 30 minutes, else the first
// active type, else empty.
[[nodiscard]] QString defaultType(const QList<EventType> &activeTypes);

} // namespace quorvane::Polls
