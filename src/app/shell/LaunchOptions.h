#pragma once

#include "model/AppEnvironment.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace quorvane {

// What the command line asks of this launch. Every request names a window that the running
// instance opens: a plain launch asks for "main", `--share` for "share", `--open ID` for ID.
struct LaunchOptions {
    std::optional<QString> server;          // becomes the "serverURL" preference before the model starts
    bool selfTest = false;                  // load every QML file, draw the main window once, report, exit
    std::optional<QString> selfTestSection; // also time a section's first opening in the self-test
    bool hidden = false;                    // start in the tray with no window open
    std::optional<QString> updateKey;       // base64: trust updates signed with this key instead
    QString window = QStringLiteral("main");
    // For tests, not in --help: the file where the app keeps its observable state, and the
    // cycle's timings ("tick=MS,stale=MS,timeout=MS"; what is not named keeps its default).
    std::optional<QString> stateFile;
    std::optional<AppEnvironment::Timings> timings;

    // Set when the launch ends here: help or version (exit 0) or a mistake (exit 2).
    std::optional<int> exitCode;
    QString message;

    // `arguments` starts with the program name, as QCoreApplication::arguments() does.
    [[nodiscard]] static LaunchOptions parse(const QStringList &arguments);
    // The window ids a launch may ask for.
    [[nodiscard]] static const QStringList &windowIds();
};

} // namespace quorvane
