#pragma once

#include "Backend.h"
#include "FaultInjector.h"
#include "Router.h"

// Levers for tests and demos under "/sandbox/", present only with --test-controls:
// guests booking and cancelling on cue, and planted failures.
namespace quorvane::sandbox::ControlRoutes {

void install(Router &router, Backend &backend, FaultInjector &faults);

// The body of POST /sandbox/faults.
[[nodiscard]] Fault faultFrom(const QJsonObject &body);

} // namespace quorvane::sandbox::ControlRoutes
