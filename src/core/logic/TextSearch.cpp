#include "TextSearch.h"

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
    }
}

bool TextSearch::foundIn(const QString &text) const
{
    if (m_query.isEmpty())
        return true;
    if (m_ownCaseRules)
        return m_matcher.indexIn(m_ownCaseRules->toLower(text)) >= 0;
    return m_matcher.indexIn(text) >= 0;
}

} // namespace quorvane
