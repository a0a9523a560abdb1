#include "Version.h"

#include "Decimal.h"

#include <QList>

namespace quorvane::Version {

namespace {

QList<qint64> pieces(const QString &version)
{
    QList<qint64> numbers;
    const QList<QStringView> parts = QStringView(version).split(u'.', Qt::SkipEmptyParts);
    for (QStringView part : parts)
        numbers.append(Decimal::parse(part).value_or(0));
    return numbers;
}

} // namespace

bool isNewer(const QString &a, const QString &b)
{
    const QList<qint64> left = pieces(a);
    const QList<qint64> right = pieces(b);
    const qsizetype count = std::max(left.size(), right.size());
    for (qsizetype i = 0; i < count; ++i) {
        const qint64 x = left.value(i, 0);
        const qint64 y = right.value(i, 0);
        if (x != y)
            return x > y;
    }
    return false;
}

} // namespace quorvane::Version
