#pragma once

#include "model/BookingOrder.h"

#include <QString>

#include <chrono>
#include <future>
#include <memory>
#include <optional>

namespace quorvane {

class Clipboard;
class Clock;
class HTTPTransport;
class Notifier;
class Preferences;
class SecretStore;
class UrlOpener;
class WakeMonitor;

// Everything the model works with, built and owned by main.cpp (or by a test).
// The pointers must outlive the model.
struct AppEnvironment {
    struct Timings {
        std::chrono::milliseconds tick{60'000};
        std::chrono::milliseconds stale{300'000}; // a tick refreshes in full after this long without success
        std::chrono::milliseconds toast{2'200};
        std::chrono::milliseconds saveDebounce{900};
        std::chrono::milliseconds requestTimeout{20'000};
    };

    Clock *clock = nullptr;
    std::shared_ptr<HTTPTransport> transport;
    SecretStore *secrets = nullptr;
    Notifier *notifier = nullptr;
    Preferences *preferences = nullptr;
    UrlOpener *opener = nullptr;
    Clipboard *clipboard = nullptr;
    WakeMonitor *wake = nullptr; // optional: no wake refresh without it
    QString dataDirectory;       // $XDG_DATA_HOME/Quorvane; never created by the model itself
    // The saved data, where the caller started reading it already (main.cpp does, so that
    // decoding it overlaps the rest of the start); without it the model reads the file itself.
    std::shared_future<std::optional<SavedData>> savedData;
    QString locale; // ICU locale name, such as "en_US"
    QString zone;   // IANA zone of the user, such as "Europe/Berlin"
    Timings timings;
};

} // namespace quorvane
