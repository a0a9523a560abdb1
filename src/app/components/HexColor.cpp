#include "components/HexColor.h"

#include "components/Tint.h"

#include <limits>
#include <optional>

namespace quorvane::HexColor {

namespace {
std::optional<quint64> hexNumber(QStringView digits)
{
    if (digits.startsWith(u'+'))
        digits = digits.mid(1);
    if (digits.isEmpty())
        return std::nullopt;
    quint64 value = 0;
    for (const QChar c : digits) {
        const int digit = c.isDigit() && c.unicode() < 128 ? c.unicode() - '0'
                          : (c >= u'a' && c <= u'f')       ? c.unicode() - 'a' + 10
                          : (c >= u'A' && c <= u'F')       ? c.unicode() - 'A' + 10
                                                           : -1;
        if (digit < 0 || value > (std::numeric_limits<quint64>::max() >> 4))
            return std::nullopt; // not a hex digit, or more than 64 bits
        value = (value << 4) | quint64(digit);
    }
    return value;
}
} // namespace

QColor parse(const QString &text)
{
    QStringView rest(text);
    while (rest.startsWith(u'#'))
        rest = rest.mid(1);
    while (rest.endsWith(u'#'))
        rest.chop(1);
    const std::optional<quint64> value = hexNumber(rest);
    if (!value)
        return Tints::color(Tints::unreadableColor);
    return QColor(int((*value >> 16) & 0xFF), int((*value >> 8) & 0xFF), int(*value & 0xFF));
}

QString string(const QColor &color)
{
    const QColor rgb = color.toRgb();
    if (!rgb.isValid())
        return string(Tints::color(Tints::unreadableColor));
    return QStringLiteral("#%1%2%3")
        .arg(qRound(rgb.redF() * 255), 2, 16, QLatin1Char('0'))
        .arg(qRound(rgb.greenF() * 255), 2, 16, QLatin1Char('0'))
        .arg(qRound(rgb.blueF() * 255), 2, 16, QLatin1Char('0'))
        .toUpper();
}

} // namespace quorvane::HexColor
