#include "ISO.h"

#include <QRegularExpression>

namespace quorvane::ISO {

std::optional<Instant> parse(const QString &text)
{
    // Internet date-time: a fraction is optional, a zone is not.
    static const QRegularExpression form(QStringLiteral(
        R"(^(\d{4})-(\d{2})-(\d{2})T(\d{2}):(\d{2}):(\d{2})(?:\.(\d+))?(Z|([+-])(\d{2}):(\d{2}))$)"));
    const QRegularExpressionMatch m = form.match(text);
    if (!m.hasMatch())
        return std::nullopt;

    const QDate date(m.captured(1).toInt(), m.captured(2).toInt(), m.captured(3).toInt());
    int msec = 0;
    if (m.hasCaptured(7))
        msec = m.captured(7).left(3).leftJustified(3, u'0').toInt();
    const QTime time(m.captured(4).toInt(), m.captured(5).toInt(), m.captured(6).toInt(), msec);
    if (!date.isValid() || !time.isValid())
        return std::nullopt;

    int offsetSeconds = 0;
    if (m.captured(8) != u"Z") {
        const int hours = m.captured(10).toInt();
        const int minutes = m.captured(11).toInt();
        if (hours > 23 || minutes > 59)
            return std::nullopt;
        offsetSeconds = (hours * 60 + minutes) * 60 * (m.captured(9) == u"-" ? -1 : 1);
    }
    QDateTime utc(date, time, Qt::UTC);
    return utc.addSecs(-offsetSeconds);
}

QString string(const Instant &instant)
{
    return instant.toUTC().toString(QStringLiteral("yyyy-MM-dd'T'HH:mm:ss.zzz'Z'"));
}

QString secondsString(const Instant &instant)
{
    return instant.toUTC().toString(QStringLiteral("yyyy-MM-dd'T'HH:mm:ss'Z'"));
}

} // namespace quorvane::ISO
