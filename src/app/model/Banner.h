#pragma once

#include <QString>

namespace quorvane {

// The strip at the top of the main window: an error, the offline notice, or a toast (info).
struct Banner {
    enum class Kind { error, offline, info };

    QString message;
    Kind kind = Kind::error;
    bool retry = false;

    bool operator==(const Banner &) const = default;
};

} // namespace quorvane
