#pragma once

#include "SandboxConfig.h"

namespace quorvane::sandbox::CommandLine {

struct Parsed {
    std::optional<SandboxConfig> config; // none: print `message` and stop
    QString message;                     // help text, or what was wrong
    bool failed = false;
};

[[nodiscard]] Parsed parse(const QStringList &arguments);

} // namespace quorvane::sandbox::CommandLine
