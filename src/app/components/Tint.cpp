#include "components/Tint.h"

#include "components/HexColor.h"

namespace quorvane::Tints {

namespace {
QRgb rgb(Tint tint)
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
} // namespace

QColor color(Tint tint)
{
    return QColor::fromRgb(rgb(tint));
}

QString hex(Tint tint)
{
    return HexColor::string(color(tint));
}

} // namespace quorvane::Tints
