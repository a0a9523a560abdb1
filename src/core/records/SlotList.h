#pragma once

#include "Slot.h"

namespace quorvane {

// The server's answer of offered times for one event type.
struct SlotList {
    QString type;
    QString mode;
    std::optional<QString> link;
    QList<Slot> slots;
};

QUORVANE_DECLARE_CODEC(SlotList)

} // namespace quorvane
