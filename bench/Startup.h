#pragma once

#include <QString>

namespace quorvane::bench {

// `quorvane-bench --floor quick|controls`: draws a reference window offscreen (a bare Qt Quick
// window, or one with Controls and a chart), then prints "FRAME_MS RESIDENT_KIB" and exits.
// The figures count from main(), as the app's own self-test does.
int runFloor(const QString &kind, int &argc, char **argv);

// `quorvane-bench --home DIR`: makes DIR the home of the start-up figures' user (2,000 cached
// bookings, welcome guide done) and prints its environment as shell exports, to profile a start
// by hand.
int prepareHome(const QString &root);

// Starts both floors and the app (`quorvane --self-test` on a cached snapshot of 2,000
// bookings, against a server that isn't there) as child processes, then the app once more to
// measure its idle processor use, and reports the ratios to their budgets.
bool benchStartup(const QString &benchPath, const QString &appPath);

} // namespace quorvane::bench
