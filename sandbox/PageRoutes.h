#pragma once

#include "Backend.h"
#include "DeviceFlow.h"
#include "Router.h"

// The browser pages: dashboard, device approval, booking pages, polls, calendar connection.
namespace quorvane::sandbox::PageRoutes {

void install(Router &router, Backend &backend, DeviceFlow &devices);

} // namespace quorvane::sandbox::PageRoutes
