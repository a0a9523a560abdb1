#include "main/MainWindowText.h"

#include "Formats.h"
#include "Graphemes.h"

using namespace Qt::StringLiterals;

namespace quorvane::MainWindowText {

QString subtitle(bool offline, bool saving, const std::optional<Instant> &lastRefresh, const QString &locale,
                 const QString &zone)
{
    if (offline)
        return u"Offline"_s;
    if (saving)
        return u"Saving…"_s;
    if (lastRefresh)
        return u"Updated "_s + Formats::format(*lastRefresh, u"jmm"_s, locale, zone);
    return QString();
}

QString initials(const std::optional<QString> &name)
{
    const QStringList words = name.value_or(u"?"_s).split(u' ', Qt::SkipEmptyParts);
    QString out;
    for (const QString &word : words.first(std::min<qsizetype>(words.size(), 2)))
        out += Graphemes::split(word).value(0);
    return out;
}

QString accountName(const std::optional<QString> &name)
{
    return name.value_or(u"Not signed in"_s);
}

FooterStatus footerStatus(bool offline, bool googleConnected)
{
    if (offline)
        return {u"Offline"_s, Tint::secondary};
    if (googleConnected)
        return {u"Live on Google Calendar"_s, Tint::green};
    return {u"Calendar not connected"_s, Tint::orange};
}

} // namespace quorvane::MainWindowText
