#include "Fuzzy.h"

#include "Graphemes.h"

namespace quorvane::Fuzzy {

namespace {

bool isWordStartAfter(const QString &previous)
{
    return previous == u" " || previous == u"-";
}

} // namespace

std::optional<int> score(const QString &query, const QString &text)
{
    QStringList wanted = Graphemes::split(query.toLower());
    wanted.removeIf([](const QString &c) { return QChar::isSpace(Graphemes::leadCodePoint(c)); });
    if (wanted.isEmpty())
        return 0;

    const QStringList characters = Graphemes::split(text.toLower());
    qsizetype q = 0;
    qsizetype last = -2;
    int points = 0;
    // Greedy on purpose: each query character takes the earliest place after the last one.
    for (qsizetype t = 0; t < characters.size() && q < wanted.size(); ++t) {
        if (characters.at(t) != wanted.at(q))
            continue;
        points += 1;
        if (t == last + 1)
            points += 3;
        if (t == 0 || isWordStartAfter(characters.at(t - 1)))
            points += 5;
        last = t;
        ++q;
    }
    if (q < wanted.size())
        return std::nullopt;
    return points * 10 - int(characters.size());
}

} // namespace quorvane::Fuzzy
