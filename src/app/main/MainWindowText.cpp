#include "main/MainWindowText.h"

#include "Formats.h"
#include "Graphemes.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace quorvane::MainWindowText {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(MainWindowText)
};
} // namespace

QString subtitle(bool offline, bool saving, const std::optional<Instant> &lastRefresh, const QString &locale,
                 const QString &zone)
{
    if (offline)
        return Text::tr("Offline");
    if (saving)
        return Text::tr("Saving…");
    if (lastRefresh)
        return Text::tr("Updated %1").arg(Formats::format(*lastRefresh, u"jmm"_s, locale, zone));
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
    return name.value_or(Text::tr("Not signed in"));
}

FooterStatus footerStatus(bool offline, bool googleConnected)
{
    if (offline)
        return {Text::tr("Offline"), Tint::secondary};
    if (googleConnected)
        return {Text::tr("Live on Google Calendar"), Tint::green};
    return {Text::tr("Calendar not connected"), Tint::orange};
}

} // namespace quorvane::MainWindowText
