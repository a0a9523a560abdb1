#pragma once

#include "Backend.h"
#include "DeviceFlow.h"
#include "Router.h"

// The JSON API under "sync/" (bearer token) and the device sign-in under "auth/device/".
namespace quorvane::sandbox::ApiRoutes {

void install(Router &router, Backend &backend, DeviceFlow &devices);

} // namespace quorvane::sandbox::ApiRoutes
