// Every record of the wire through the shared decoder. The first byte picks the record; what
// decodes must encode to a text that decodes again to the same encoding, and the one-pass
// reader must read what it takes as QJsonDocument does, to the same record.

#include "FuzzInput.h"
#include "JSON.h"
#include "Records.h"
#include "core/records/JSONScanCompare.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <array>

using namespace quorvane;

namespace {

// The one-pass reader against QJsonDocument and the full decoder.
template <class T>
void scanAgrees(const QByteArray &json)
{
    if (const std::optional<JSONScan> scan = JSONScan::of(json)) {
        const QJsonDocument document = QJsonDocument::fromJson('[' + json + ']');
        if (document.isNull() || !test::sameValue(scan->root(), document.array().first()))
            fuzz::fail("the scan reads what QJsonDocument reads otherwise", json);
    }
    if constexpr (ScanDecodable<T>) {
        // Some decoders make up what is missing (a type's id), so records are compared once
        // written out: the texts this app writes are the ones the scan reads.
        const auto fullDecode = [](const QByteArray &text) {
            const Result<QJsonValue> parsed = JSON::parse(text);
            return parsed ? fromJson<T>(*parsed) : Result<T>(parsed.error());
        };
        const Result<T> full = fullDecode(json);
        const Result<T> either = JSON::decode<T>(json);
        if (bool(full) != bool(either) || (!full && full.error() != either.error()))
            fuzz::fail("the scan decodes otherwise than the full decoder", json);
        if (!full)
            return;
        const QByteArray written = JSON::encode(*full);
        const Result<T> fullAgain = fullDecode(written);
        const Result<T> eitherAgain = JSON::decode<T>(written);
        if (!fullAgain || !eitherAgain || JSON::encode(*fullAgain) != JSON::encode(*eitherAgain))
            fuzz::fail("the scan reads a written record otherwise than the full decoder", written);
    }
}

template <class T>
void roundTrip(const QByteArray &json)
{
    scanAgrees<T>(json);
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
