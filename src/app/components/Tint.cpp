#include "components/Tint.h"

namespace quorvane::Tints {

QColor color(Tint tint)
{
    switch (tint) {
    case Tint::accent:
        return QColor(0x0A, 0x84, 0xFF);
    case Tint::red:
        return QColor(0xFF, 0x3B, 0x30);
    case Tint::orange:
        return QColor(0xFF, 0x95, 0x00);
    case Tint::yellow:
        return QColor(0xFF, 0xCC, 0x00);
    case Tint::green:
        return QColor(0x34, 0xC7, 0x59);
    case Tint::blue:
        return QColor(0x00, 0x7A, 0xFF);
    case Tint::purple:
        return QColor(0xAF, 0x52, 0xDE);
    case Tint::pink:
        return QColor(0xFF, 0x2D, 0x55);
    case Tint::secondary:
        return QColor(0x8E, 0x8E, 0x93);
    }
    return QColor(0x8E, 0x8E, 0x93);
}

} // namespace quorvane::Tints
