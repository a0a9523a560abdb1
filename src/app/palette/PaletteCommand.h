#pragma once

#include "Instant.h"

#include <QString>

#include <functional>
#include <optional>

namespace quorvane {

// One row of the command palette. Only the title is searched.
struct PaletteCommand {
    QString title;
    QString subtitle;            // a key or a link…
    std::optional<Instant> date; // …or a booking's start, written out only for the rows shown
    QString symbol;
    std::function<void()> run;
};

} // namespace quorvane
