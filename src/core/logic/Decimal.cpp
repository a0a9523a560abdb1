#include "Decimal.h"

#include <limits>

namespace quorvane::Decimal {

std::optional<qint64> parse(QStringView text)
{
    bool negative = false;
    if (!text.isEmpty() && (text.front() == u'+' || text.front() == u'-')) {
        negative = text.front() == u'-';
        text = text.mid(1);
    }
    if (text.isEmpty())
        return std::nullopt;
    constexpr qint64 largest = std::numeric_limits<qint64>::max();
    qint64 value = 0;
    for (const QChar c : text) {
        if (c < u'0' || c > u'9')
            return std::nullopt;
        const int digit = c.unicode() - u'0';
        if (value > (largest - digit) / 10)
            return std::nullopt;
        value = value * 10 + digit;
    }
    return negative ? -value : value;
}

} // namespace quorvane::Decimal
