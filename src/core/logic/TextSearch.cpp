#include "TextSearch.h"

#include <algorithm>

namespace quorvane {

namespace {

// The languages whose lower and upper case pair letters differently from Unicode's default:
// the dotted and dotless i of Turkish and Azerbaijani.
bool hasOwnCaseRules(const QLocale &locale)
{
    return locale.language() == QLocale::Turkish || locale.language() == QLocale::Azerbaijani;
}

} // namespace

TextSearch::TextSearch(const QString &query, const QString &locale)
    : m_query(query)
{
    const QLocale language(locale);
    if (hasOwnCaseRules(language)) {
        m_ownCaseRules = language;
        m_matcher = QStringMatcher(language.toLower(query), Qt::CaseSensitive);
    } else {
        m_matcher = QStringMatcher(query, Qt::CaseInsensitive);
        const bool ascii = std::all_of(query.cbegin(), query.cend(), [](QChar c) { return c.unicode() < 0x80; });
        if (ascii)
            m_asciiLower = query.toLatin1().toLower();
    }
}

std::optional<bool> TextSearch::foundInAscii(const QString &text) const
{
    const auto lower = [](char16_t c) { return c >= u'A' && c <= u'Z' ? char16_t(c + 32) : c; };
    const qsizetype n = m_asciiLower.size();
    const char16_t *h = reinterpret_cast<const char16_t *>(text.utf16());
    const qsizetype size = text.size();
    bool otherCharacters = false;
    for (qsizetype i = 0; i < size; ++i) {
        if (h[i] >= 0x80) {
            otherCharacters = true;
            continue;
        }
        if (i + n > size || lower(h[i]) != char16_t(m_asciiLower.at(0)))
            continue;
        qsizetype k = 1;
        while (k < n && h[i + k] < 0x80 && lower(h[i + k]) == char16_t(m_asciiLower.at(k)))
            ++k;
        if (k == n)
            return true;
    }
    // A letter such as the Kelvin sign folds to an ASCII one: those texts take the full way.
    return otherCharacters ? std::nullopt : std::optional(false);
}

bool TextSearch::foundIn(const QString &text) const
{
    if (m_query.isEmpty())
        return true;
    if (m_ownCaseRules)
        return m_matcher.indexIn(m_ownCaseRules->toLower(text)) >= 0;
    if (!m_asciiLower.isEmpty()) {
        if (const std::optional<bool> found = foundInAscii(text))
            return *found;
    }
    return m_matcher.indexIn(text) >= 0;
}

} // namespace quorvane
