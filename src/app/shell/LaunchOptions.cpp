#include "shell/LaunchOptions.h"

#include "BuildInfo.h"
#include "ManPage.h"
#include "shell/AppWindow.h"

#include <QCommandLineParser>
#include <QHash>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {

LaunchOptions stop(int code, QString message)
{
    LaunchOptions out;
    out.exitCode = code;
    out.message = std::move(message);
    return out;
}

// A server is an http(s) origin; a path would end up in front of every API path.
bool isServer(const QString &text)
{
    const QUrl url(text, QUrl::StrictMode);
    return url.isValid() && (url.scheme() == "http"_L1 || url.scheme() == "https"_L1) && !url.host().isEmpty()
           && (url.path().isEmpty() || url.path() == "/"_L1) && !url.hasQuery() && !url.hasFragment()
           && url.userInfo().isEmpty();
}

QString manual(const QList<QCommandLineOption> &options)
{
    ManPage::Page page;
    page.name = u"quorvane"_s;
    page.summary = u"desktop client for scheduling links"_s;
    page.description =
        u"Quorvane shows the bookings of a scheduling-links service: the next meeting in the tray with a "
        "countdown, today's timeline and every booking. It edits availability, event types and group polls, "
        "shares a few open times from anywhere, and announces new bookings, cancellations and coming meetings.\n\n"
        "A second launch hands its request to the Quorvane that is already running. Bind a key to quorvane "
        "--share where the desktop has no global shortcut service."_s;
    page.usages = {{{}, {}, {}, options}};
    page.sections = {{u"FILES"_s, u"  ~/.local/share/Quorvane/  The last data seen, kept for offline use.\n"
                                  "  ~/.config/Quorvane/Quorvane.ini  Preferences.\n\n"
                                  "The account's token is kept in the desktop's Secret Service keyring, never in "
                                  "a file."_s},
                     {u"SEE ALSO"_s, u"quorvanectl(1)"_s}};
    return ManPage::roff(page);
}

// "tick=1000,timeout=1500": each named timing in milliseconds, from 1 ms to an hour.
std::optional<AppEnvironment::Timings> timingsFrom(const QString &text)
{
    AppEnvironment::Timings timings;
    const QHash<QString, std::chrono::milliseconds *> named{{u"tick"_s, &timings.tick},
                                                            {u"stale"_s, &timings.stale},
                                                            {u"timeout"_s, &timings.requestTimeout}};
    for (const QString &item : text.split(u',')) {
        bool ok = false;
        const qint64 ms = item.section(u'=', 1).toLongLong(&ok);
        std::chrono::milliseconds *target = named.value(item.section(u'=', 0, 0));
        if (!target || !ok || ms < 1 || ms > 3'600'000)
            return std::nullopt;
        *target = std::chrono::milliseconds(ms);
    }
    return timings;
}

} // namespace

const QStringList &LaunchOptions::windowIds()
{
    static const QStringList ids = [] {
        QStringList names;
        for (const AppWindow::Id window : AppWindow::all())
            names.append(AppWindow::name(window));
        return names;
    }();
    return ids;
}

LaunchOptions LaunchOptions::parse(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Quorvane: your bookings, availability and shared times."_s);
    const QCommandLineOption help({u"h"_s, u"help"_s}, u"Show this help."_s);
    const QCommandLineOption version({u"v"_s, u"version"_s}, u"Show the version."_s);
    const QCommandLineOption server(u"server"_s, u"Talk to the server at URL from now on."_s, u"URL"_s);
    const QCommandLineOption share(u"share"_s, u"Open Share Times (in the running Quorvane, if any)."_s);
    const QCommandLineOption open(u"open"_s, u"Open a window: %1."_s.arg(windowIds().join(u", "_s)), u"ID"_s);
    const QCommandLineOption selfTest(u"self-test"_s, u"Load the interface, draw it once, report and exit."_s);
    const QCommandLineOption selfTestSection(
        u"self-test-section"_s, u"In the self-test, also time the first opening of a section."_s, u"SECTION"_s);
    const QCommandLineOption hidden(u"hidden"_s, u"Start in the tray without opening a window."_s);
    const QCommandLineOption updateKey(
        u"update-key"_s, u"Trust updates signed with this Ed25519 public key (base64), such as a test server's."_s,
        u"KEY"_s);
    const QCommandLineOption man = ManPage::option();
    QCommandLineOption stateFile(u"state-file"_s, u"Keep the app's observable state in this file (for tests)."_s,
                                 u"PATH"_s);
    QCommandLineOption timings(u"test-timings"_s, u"Shorter cycle timings (for tests)."_s, u"tick=MS,…"_s);
    stateFile.setFlags(QCommandLineOption::HiddenFromHelp);
    timings.setFlags(QCommandLineOption::HiddenFromHelp);
    const QList<QCommandLineOption> table{help,   version,   server, share,     open,   selfTest, selfTestSection,
                                          hidden, updateKey, man,    stateFile, timings};
    parser.addOptions(table);

    if (!parser.parse(arguments))
        return stop(2, parser.errorText());
    if (parser.isSet(help))
        return stop(0, parser.helpText());
    if (parser.isSet(man))
        return stop(0, manual(table).trimmed());
    if (parser.isSet(version))
        return stop(0, u"Quorvane %1 (%2)"_s.arg(QLatin1StringView(build::version), QLatin1StringView(build::number)));
    if (!parser.positionalArguments().isEmpty())
        return stop(2, u"Unexpected argument: %1"_s.arg(parser.positionalArguments().first()));

    LaunchOptions out;
    if (parser.isSet(server)) {
        const QString url = parser.value(server);
        if (!isServer(url))
            return stop(2, u"--server needs an http or https address without a path, such as https://example.com"_s);
        out.server = url;
    }
    if (parser.isSet(updateKey)) {
        const QByteArray key =
            QByteArray::fromBase64(parser.value(updateKey).toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
        if (key.size() != 32)
            return stop(2, u"--update-key needs an Ed25519 public key: 32 bytes in base64"_s);
        out.updateKey = parser.value(updateKey);
    }
    if (parser.isSet(timings)) {
        out.timings = timingsFrom(parser.value(timings));
        if (!out.timings)
            return stop(2, u"--test-timings takes tick=MS, stale=MS and timeout=MS, joined by commas"_s);
    }
    if (parser.isSet(stateFile))
        out.stateFile = parser.value(stateFile);
    out.selfTest = parser.isSet(selfTest) || parser.isSet(selfTestSection);
    if (parser.isSet(selfTestSection))
        out.selfTestSection = parser.value(selfTestSection);
    out.hidden = parser.isSet(hidden) && !out.selfTest;
    if (parser.isSet(open)) {
        out.window = parser.value(open);
        if (!windowIds().contains(out.window))
            return stop(2, u"--open takes one of: %1"_s.arg(windowIds().join(u", "_s)));
    }
    if (parser.isSet(share)) {
        if (parser.isSet(open) && out.window != "share"_L1)
            return stop(2, u"--share and --open %1 ask for two windows; choose one"_s.arg(out.window));
        out.window = u"share"_s;
    }
    return out;
}

} // namespace quorvane
