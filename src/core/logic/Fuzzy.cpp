#include "Fuzzy.h"

#include "Graphemes.h"

#include <QVarLengthArray>

#include <algorithm>

namespace quorvane::Fuzzy {

namespace {

bool isWordStartAfter(const QString &previous)
{
    return previous == u" " || previous == u"-";
}

// Latin letters without combining marks, and the punctuation of titles such as dashes and
// quotes: each such code unit is one user-perceived character whose lower case is one code
// unit too (the capital I with a dot above is not: it lowers to i and a combining dot).
bool isSimple(QChar c)
{
    const char16_t u = c.unicode();
    return (u < 0x300 && u != u'\r' && u != 0x130) || (u >= 0x2010 && u <= 0x2027);
}

bool isSimple(const QString &text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar c) { return isSimple(c); });
}

char16_t simpleLower(QChar c)
{
    return c.unicode() < 0x80 ? (c >= u'A' && c <= u'Z' ? char16_t(c.unicode() + 32) : c.unicode())
                              : c.toLower().unicode();
}

// The same walk as below, without splitting either text into characters first: the palette
// scores every row at each keystroke.
std::optional<int> simpleScore(const QString &query, const QString &text)
{
    QVarLengthArray<char16_t, 32> wanted;
    for (const QChar c : query) {
        if (!c.isSpace())
            wanted.append(simpleLower(c));
    }
    if (wanted.isEmpty())
        return 0;
    qsizetype q = 0;
    qsizetype last = -2;
    int points = 0;
    for (qsizetype t = 0; t < text.size() && q < wanted.size(); ++t) {
        if (simpleLower(text.at(t)) != wanted.at(q))
            continue;
        points += 1;
        if (t == last + 1)
            points += 3;
        if (t == 0 || text.at(t - 1) == u' ' || text.at(t - 1) == u'-')
            points += 5;
        last = t;
        ++q;
    }
    if (q < wanted.size())
        return std::nullopt;
    return points * 10 - int(text.size());
}

} // namespace

std::optional<int> score(const QString &query, const QString &text)
{
    if (isSimple(query) && isSimple(text))
        return simpleScore(query, text);
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
