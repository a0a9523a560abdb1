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
    // The common case, an ASCII query in an ASCII text, without Unicode's case folding;
    // no value when the text holds other characters and needs the full comparison.
    [[nodiscard]] std::optional<bool> foundInAscii(const QString &text) const;

    QString m_query;
    QByteArray m_asciiLower; // the query in ASCII lower case, when it is all ASCII
    QStringMatcher m_matcher;
    std::optional<QLocale> m_ownCaseRules; // set where the language's case rules differ from Unicode's
};

} // namespace quorvane
