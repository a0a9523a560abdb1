// Typed weekly hours. Never fails, and what it reads is at most one entry per weekday, each
// with ordered, non-empty hours inside the day.

#include "AvailabilityMath.h"
#include "FuzzInput.h"
#include "NLAvailability.h"

using namespace quorvane;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray input = fuzz::bytes(data, size);
    const QList<DayAvailability> days = NLAvailability::parse(QString::fromUtf8(input));
    int previousDay = 0;
    for (const DayAvailability &day : days) {
        if (day.weekday <= previousDay || day.weekday > 7)
            fuzz::fail("weekdays out of order or out of the week", input);
        previousDay = day.weekday;
        int previousEnd = -1;
        for (const TimeRange &range : day.ranges) {
            if (range.start < 0 || range.start >= range.end || range.end > AvailabilityMath::dayMinutes
                || range.start < previousEnd)
                fuzz::fail("hours out of the day, empty or overlapping", input);
            previousEnd = range.end;
        }
    }
    return 0;
}
