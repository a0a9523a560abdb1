#pragma once

#include "components/Tint.h"

#include <QString>

namespace quorvane {

// The account footer's status line and the colour of its dot.
struct FooterStatus {
    QString text;
    Tint dot = Tint::secondary;

    bool operator==(const FooterStatus &) const = default;
};

} // namespace quorvane
