#pragma once

#include <QLocale>
#include <QString>
#include <QStringMatcher>

#include <optional>

namespace quorvane {

// A text a user typed into a search field, found inside other texts whatever their case, by
// the case rules of the user's language: in Turkish "i" finds "İ" and not "I". The query is
// used as typed, blanks included.
class TextSearch
{
public:
    TextSearch(const QString &query, const QString &locale);

    [[nodiscard]] bool isEmpty() const { return m_query.isEmpty(); }
    // True when a match may run across a blank, so that texts joined by blanks must be
    // searched as one and not one by one.
    [[nodiscard]] bool hasBlank() const { return m_query.contains(u' '); }
    [[nodiscard]] bool foundIn(const QString &text) const;

private:
    QString m_query;
    QStringMatcher m_matcher;
    std::optional<QLocale> m_ownCaseRules; // set where the language's case rules differ from Unicode's
};

} // namespace quorvane
