#include "CommandLine.h"
#include "Sandbox.h"

#include <QCoreApplication>

#include <cstdio>

using namespace quorvane::sandbox;

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("quorvane-sandbox"));

    const CommandLine::Parsed parsed = CommandLine::parse(QCoreApplication::arguments());
    if (!parsed.config) {
        std::fprintf(parsed.failed ? stderr : stdout, "%s\n", qPrintable(parsed.message));
        return parsed.failed ? 2 : 0;
    }

    Sandbox sandbox(*parsed.config);
    QString error;
    if (!sandbox.start(&error)) {
        std::fprintf(stderr, "quorvane-sandbox: %s\n", qPrintable(error));
        return 1;
    }
    if (parsed.config->printPort) {
        // Whoever started us reads this line to find the server; it must not wait in a buffer.
        std::printf("%u\n", unsigned(sandbox.port()));
        std::fflush(stdout);
    }
    std::fprintf(stderr, "quorvane-sandbox listening on %s (dashboard: %s/app)\n", qPrintable(sandbox.baseUrl()),
                 qPrintable(sandbox.baseUrl()));
    return QCoreApplication::exec();
}
