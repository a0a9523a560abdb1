// Dates as the server writes them. What reads as an instant must come back from both of the
// writers as the same instant (to the second for the shorter one).

#include "FuzzInput.h"
#include "ISO.h"

using namespace quorvane;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = QString::fromUtf8(fuzz::bytes(data, size));
    const std::optional<Instant> instant = ISO::parse(text);
    if (!instant)
        return 0;
    if (!instant->isValid())
        fuzz::fail("a parsed instant is invalid", text.toUtf8());
    const QString precise = ISO::string(*instant);
    const std::optional<Instant> again = ISO::parse(precise);
    if (!again || *again != *instant)
        fuzz::fail("ISO::string does not read back", text.toUtf8() + " -> " + precise.toUtf8());
    const std::optional<Instant> seconds = ISO::parse(ISO::secondsString(*instant));
    if (!seconds || seconds->secsTo(*instant) != 0
        || instant->toMSecsSinceEpoch() - seconds->toMSecsSinceEpoch() >= 1000)
        fuzz::fail("ISO::secondsString does not read back", text.toUtf8());
    return 0;
}
