#include "BookingStatus.h"

using namespace Qt::StringLiterals;

namespace quorvane {

namespace Status {

QString rawValue(BookingStatus status)
{
    switch (status) {
    case BookingStatus::pending:
        return u"pending"_s;
    case BookingStatus::confirmed:
        return u"confirmed"_s;
    case BookingStatus::cancelled:
        return u"cancelled"_s;
    case BookingStatus::rejected:
        return u"rejected"_s;
    case BookingStatus::unknown:
        return u"unknown"_s;
    }
    return {};
}

std::optional<BookingStatus> fromRawValue(const QString &raw)
{
    for (BookingStatus s : {BookingStatus::pending, BookingStatus::confirmed, BookingStatus::cancelled,
                            BookingStatus::rejected, BookingStatus::unknown}) {
        if (rawValue(s) == raw)
            return s;
    }
    return std::nullopt;
}

} // namespace Status

BookingStatus Codec<BookingStatus>::decode(const QJsonValue &value, const CodingPath &)
{
    return Status::fromRawValue(value.isString() ? value.toString() : QString()).value_or(BookingStatus::unknown);
}

QJsonValue Codec<BookingStatus>::encode(const BookingStatus &status)
{
    return Status::rawValue(status);
}

} // namespace quorvane
