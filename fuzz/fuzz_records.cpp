// Every record of the wire through the shared decoder. The first byte picks the record; what
// decodes must encode to a text that decodes again to the same encoding.

#include "FuzzInput.h"
#include "JSON.h"
#include "Records.h"

#include <array>

using namespace quorvane;

namespace {

template <class T>
void roundTrip(const QByteArray &json)
{
    const Result<T> first = JSON::decode<T>(json);
    if (!first)
        return;
    const QByteArray once = JSON::encode(*first);
    const Result<T> second = JSON::decode<T>(once);
    if (!second)
        fuzz::fail("an encoded record does not decode", once + '\n' + second.error().description().toUtf8());
    if (JSON::encode(*second) != once)
        fuzz::fail("encoding is not stable", once);
}

using Decoder = void (*)(const QByteArray &);

constexpr std::array<Decoder, 21> decoders{
    roundTrip<Snapshot>,
    roundTrip<Account>,
    roundTrip<Answer>,
    roundTrip<Booking>,
    roundTrip<BookingStatus>,
    roundTrip<CalendarItem>,
    roundTrip<DayAvailability>,
    roundTrip<EventType>,
    roundTrip<FocusBlock>,
    roundTrip<GoogleStatus>,
    roundTrip<HostSettings>,
    roundTrip<MeetingLocation>,
    roundTrip<Poll>,
    roundTrip<ReleaseInfo>,
    roundTrip<Slot>,
    roundTrip<SlotList>,
    roundTrip<TimeRange>,
    roundTrip<QList<Booking>>,
    roundTrip<QList<Poll>>,
    roundTrip<QList<CalendarItem>>,
    roundTrip<Account::Link>,
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
    decoders[data[0] % decoders.size()](fuzz::bytes(data + 1, size - 1));
    return 0;
}
