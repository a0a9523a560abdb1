#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace quorvane::sandbox {

// How one sandbox runs; filled from the command line or by a test.
struct SandboxConfig {
    quint16 port = 8765;    // 0: any free port
    bool printPort = false; // the bound port alone on the first line of stdout
    QString database = QStringLiteral(":memory:");
    bool demo = false; // seed the demo host into an empty database
    std::optional<quint32> seed;
    QStringList tokens; // accepted from the start, beside signed-in devices
    int autoApproveSeconds = -1;
    bool simulate = false;
    int simulateMinSeconds = 20;
    int simulateMaxSeconds = 90;
    bool testControls = false;
    bool logRequests = true;
};

} // namespace quorvane::sandbox
