#include "Palette.h"

namespace quorvane::Palette {

const QStringList &colors()
{
    static const QStringList list{
        QStringLiteral("#0A84FF"), QStringLiteral("#34C759"), QStringLiteral("#BF5AF2"),
        QStringLiteral("#FF9F0A"), QStringLiteral("#FF375F"), QStringLiteral("#64D2FF"),
        QStringLiteral("#FFD60A"), QStringLiteral("#5E5CE6"), QStringLiteral("#AC8E68"),
    };
    return list;
}

} // namespace quorvane::Palette
