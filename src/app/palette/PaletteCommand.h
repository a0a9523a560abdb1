#pragma once

#include <QString>

#include <functional>

namespace quorvane {

// One row of the command palette. Only the title is searched.
struct PaletteCommand {
    QString title;
    QString subtitle; // a key, a link or a date
    QString symbol;
    std::function<void()> run;
};

} // namespace quorvane
