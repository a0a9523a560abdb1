#include "CommandLine.h"

#include "UpdateFeed.h"

#include "ManPage.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace quorvane::sandbox::CommandLine {

namespace {

struct Options {
    QCommandLineOption port{u"port"_s, u"Port on 127.0.0.1 to listen on; 0 picks a free one (default 8765)."_s, u"N"_s};
    QCommandLineOption printPort{u"print-port"_s, u"Print the bound port alone on the first line of stdout."_s};
    QCommandLineOption db{u"db"_s, u"SQLite database file, or :memory: (the default)."_s, u"PATH"_s};
    QCommandLineOption demo{u"demo"_s, u"Fill an empty database with a believable host and half a year of meetings."_s};
    QCommandLineOption seed{u"seed"_s, u"Make the demo data and the simulation repeatable."_s, u"N"_s};
    QCommandLineOption token{u"token"_s, u"Accept this bearer token (may be repeated). It is never printed."_s, u"T"_s};
    QCommandLineOption autoApprove{u"auto-approve"_s,
                                   u"Approve device sign-ins by themselves after this many seconds."_s, u"SECONDS"_s};
    QCommandLineOption simulate{u"simulate"_s, u"Have guests book and cancel now and then."_s};
    QCommandLineOption testControls{u"test-controls"_s, u"Serve the /sandbox/ endpoints for tests."_s};
    QCommandLineOption quiet{u"quiet"_s, u"Don't log requests."_s};
    QCommandLineOption updateKey{u"print-update-key"_s,
                                 u"Print the public half of the test key that signs the sandbox's update feed "
                                 "(base64), for the app's --update-key, and exit."_s};
    QCommandLineOption man = ManPage::option();

    [[nodiscard]] QList<QCommandLineOption> all() const
    {
        return {port, printPort, db, demo, seed, token, autoApprove, simulate, testControls, quiet, updateKey, man};
    }
};

QString manual(const QList<QCommandLineOption> &options)
{
    ManPage::Page page;
    page.name = u"quorvane-sandbox"_s;
    page.summary = u"a local stand-in for the Quorvane service"_s;
    page.description =
        u"quorvane-sandbox serves the Quorvane API, the booking pages and a device sign-in on 127.0.0.1, from a "
        "SQLite database, for demos, development and tests. Point Quorvane at it with quorvane --server "
        "http://127.0.0.1:8765.\n\n"
        "It logs each request on standard error unless told to be quiet, and never prints a token."_s;
    page.usages = {{{}, {}, {}, options}};
    page.sections = {{u"SEE ALSO"_s, u"quorvane(1), quorvanectl(1)"_s}};
    return ManPage::roff(page);
}

std::optional<long long> number(const QCommandLineParser &parser, const QCommandLineOption &option, long long low,
                                long long high)
{
    bool ok = false;
    const long long value = parser.value(option).toLongLong(&ok);
    if (!ok || value < low || value > high)
        return std::nullopt;
    return value;
}

} // namespace

Parsed parse(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(u"A local stand-in for the Quorvane service, for demos, development and tests."_s);
    const QCommandLineOption help = parser.addHelpOption();
    const Options o;
    parser.addOptions(o.all());
    if (!parser.parse(arguments))
        return {std::nullopt, parser.errorText(), true};
    if (parser.isSet(help))
        return {std::nullopt, parser.helpText(), false};
    if (parser.isSet(o.man))
        return {std::nullopt, manual(QList<QCommandLineOption>{help} + o.all()).trimmed(), false};
    if (parser.isSet(o.updateKey))
        return {std::nullopt, UpdateFeed::publicKeyBase64(), false};

    SandboxConfig c;
    const auto numeric = [&](const QCommandLineOption &option, long long low, long long high, auto apply) {
        if (!parser.isSet(option))
            return true;
        const std::optional<long long> value = number(parser, option, low, high);
        if (value)
            apply(*value);
        return value.has_value();
    };
    if (!numeric(o.port, 0, 65535, [&](long long v) { c.port = quint16(v); }))
        return {std::nullopt, u"--port takes a number from 0 to 65535"_s, true};
    if (!numeric(o.seed, 0, 4294967295LL, [&](long long v) { c.seed = quint32(v); }))
        return {std::nullopt, u"--seed takes a whole number from 0 to 4294967295"_s, true};
    if (!numeric(o.autoApprove, 0, 600, [&](long long v) { c.autoApproveSeconds = int(v); }))
        return {std::nullopt, u"--auto-approve takes seconds from 0 to 600"_s, true};
    if (!parser.positionalArguments().isEmpty())
        return {std::nullopt, u"Unexpected argument: "_s + parser.positionalArguments().first(), true};
    c.printPort = parser.isSet(o.printPort);
    if (parser.isSet(o.db))
        c.database = parser.value(o.db);
    c.demo = parser.isSet(o.demo);
    c.tokens = parser.values(o.token);
    c.simulate = parser.isSet(o.simulate);
    c.testControls = parser.isSet(o.testControls);
    c.logRequests = !parser.isSet(o.quiet);
    return {c, {}, false};
}

} // namespace quorvane::sandbox::CommandLine
