#include "components/Tint.h"

#include "components/HexColor.h"
#include "components/SchemePalette.h"

namespace quorvane::Tints {

namespace {
QRgb lightRgb(Tint tint)
{
    switch (tint) {
    case Tint::accent:
        return 0x0A84FF;
    case Tint::red:
        return 0xFF3B30;
    case Tint::orange:
        return 0xFF9500;
    case Tint::yellow:
        return 0xFFCC00;
    case Tint::green:
        return 0x34C759;
    case Tint::blue:
        return 0x007AFF;
    case Tint::purple:
        return 0xAF52DE;
    case Tint::pink:
        return 0xFF2D55;
    case Tint::secondary:
        break;
    }
    return 0x8E8E93;
}

QRgb darkRgb(Tint tint)
{
    switch (tint) {
    case Tint::accent:
        return 0x0A84FF;
    case Tint::red:
        return 0xFF453A;
    case Tint::orange:
        return 0xFF9F0A;
    case Tint::yellow:
        return 0xFFD60A;
    case Tint::green:
        return 0x30D158;
    case Tint::blue:
        return 0x0A84FF;
    case Tint::purple:
        return 0xBF5AF2;
    case Tint::pink:
        return 0xFF375F;
    case Tint::secondary:
        break;
    }
    return 0x98989D;
}
} // namespace

QColor color(Tint tint, bool dark)
{
    return QColor::fromRgb(dark ? darkRgb(tint) : lightRgb(tint));
}

QColor color(Tint tint)
{
    return color(tint, SchemePalette::applicationIsDark());
}

QString hex(Tint tint)
{
    return HexColor::string(color(tint, false));
}

} // namespace quorvane::Tints
