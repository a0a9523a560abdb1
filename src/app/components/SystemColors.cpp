#include "components/SystemColors.h"

#include "components/HexColor.h"

namespace quorvane {

QColor SystemColors::fromHex(const QString &hex)
{
    return HexColor::parse(hex);
}

} // namespace quorvane
