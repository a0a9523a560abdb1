#include "ShareBench.h"

#include "BenchReport.h"
#include "FixtureApp.h"
#include "palette/CommandPalette.h"
#include "support/XServer.h"

#include <QCoreApplication>
#include <QCoroTask>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QThread>

#include <xcb/xcb.h>

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

namespace quorvane::bench {

namespace {

constexpr int runs = 5;

std::optional<double> medianOf(std::vector<double> values)
{
    if (values.empty())
        return std::nullopt;
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// The Controls+Charts floor window's first frame, from its start, offscreen.
std::optional<double> floorMs(const QString &benchPath)
{
    std::vector<double> frames;
    for (int i = 0; i < runs; ++i) {
        QProcess child;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        child.setProcessEnvironment(env);
        child.start(benchPath, {u"--floor"_s, u"controls"_s});
        if (!child.waitForFinished(60'000) || child.exitCode() != 0)
            return std::nullopt;
        frames.push_back(QString::fromUtf8(child.readAllStandardOutput()).section(u' ', 0, 0).toDouble());
    }
    return medianOf(frames);
}

// Waits for a top-level window titled "Share Times" to be mapped; false after 10 s.
bool waitForShareWindow(xcb_connection_t *x)
{
    QElapsedTimer limit;
    limit.start();
    while (limit.elapsed() < 10'000) {
        xcb_generic_event_t *event = xcb_poll_for_event(x);
        if (!event) {
            if (xcb_connection_has_error(x))
                return false;
            QThread::usleep(200);
            continue;
        }
        bool found = false;
        if ((event->response_type & ~0x80) == XCB_MAP_NOTIFY) {
            const xcb_window_t window = reinterpret_cast<xcb_map_notify_event_t *>(event)->window;
            const xcb_get_property_cookie_t cookie =
                xcb_get_property(x, 0, window, XCB_ATOM_WM_NAME, XCB_GET_PROPERTY_TYPE_ANY, 0, 64);
            if (xcb_get_property_reply_t *reply = xcb_get_property_reply(x, cookie, nullptr)) {
                const QByteArray name(static_cast<const char *>(xcb_get_property_value(reply)),
                                      xcb_get_property_value_length(reply));
                found = name == "Share Times";
                std::free(reply);
            }
        }
        std::free(event);
        if (found)
            return true;
    }
    return false;
}

// One app started afresh, then `quorvane --share` beside it: milliseconds to the window.
std::optional<double> shareOpeningMs(const QString &appPath, const test::XServer &server)
{
    QTemporaryDir home;
    for (const char *folder : {"config/Quorvane", "data", "runtime"})
        QDir(home.path()).mkpath(QString::fromLatin1(folder));
    QFile::setPermissions(home.path() + u"/runtime"_s, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QSettings(home.path() + u"/config/Quorvane/Quorvane.ini"_s, QSettings::IniFormat).setValue(u"onboarded.v2"_s, true);
    QProcessEnvironment env = server.environment();
    env.insert(u"HOME"_s, home.path());
    env.insert(u"XDG_CONFIG_HOME"_s, home.path() + u"/config"_s);
    env.insert(u"XDG_DATA_HOME"_s, home.path() + u"/data"_s);
    env.insert(u"XDG_RUNTIME_DIR"_s, home.path() + u"/runtime"_s);
    env.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, u"unix:path=/nonexistent"_s);

    QProcess app;
    app.setProcessEnvironment(env);
    app.start(appPath, {u"--server"_s, u"http://127.0.0.1:9"_s});
    // Running, with its main window up and settled.
    const bool up = server.xdotool({u"search"_s, u"--sync"_s, u"--onlyvisible"_s, u"--class"_s, u"quorvane"_s});
    QThread::msleep(1000);

    std::optional<double> ms;
    xcb_connection_t *x = xcb_connect(qPrintable(server.display()), nullptr);
    if (up && !xcb_connection_has_error(x)) {
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(x)).data->root;
        const uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(x, root, XCB_CW_EVENT_MASK, &mask);
        xcb_flush(x);
        QElapsedTimer timer;
        timer.start();
        QProcess share;
        share.setProcessEnvironment(env);
        share.start(appPath, {u"--share"_s});
        if (waitForShareWindow(x))
            ms = double(timer.nsecsElapsed()) / 1e6;
        share.waitForFinished(5000);
    }
    xcb_disconnect(x);
    app.terminate();
    if (!app.waitForFinished(5000))
        app.kill();
    return ms;
}

} // namespace

bool benchPalette()
{
    int argc = 1;
    char name[] = "quorvane-bench";
    char *argv[] = {name, nullptr};
    const QCoreApplication application(argc, argv);

    // The fixture's host with 20 active types and well over 200 bookings.
    test::FixtureApp app;
    Snapshot &server = app.transport().data;
    QList<EventType> &types = server.settings->eventTypes;
    for (int i = 0; types.size() < 20; ++i) {
        EventType extra = types.at(i % 3);
        extra.id += QString::number(i);
        extra.slug += QString::number(i);
        extra.title += u" "_s + QString::number(i);
        extra.isActive = true;
        types.append(extra);
    }
    for (int copy = 0; server.history.size() < 300; ++copy) {
        for (Booking b : server.upcoming) {
            b.id += u"-"_s + QString::number(copy);
            server.history.append(b);
        }
    }
    QCoro::waitFor(app.model().refresh());

    // At each keystroke, the list built anew and narrowed by the query.
    const double nanos = nanosPerCall(15, 10, [&] {
        const QList<PaletteCommand> commands = CommandPalette::commands(app.model(), app.commands(), app.model().now());
        keep(CommandPalette::results(commands, u"wenz"_s));
    });
    return report("palette commands + results, per keystroke", nanos / 1e6, "ms", 1);
}

bool benchShareOpening(const QString &benchPath, const QString &appPath)
{
    const std::optional<double> floor = floorMs(benchPath);
    const test::XServer server;
    if (!server.missing().isEmpty() || !floor) {
        std::fprintf(stderr, "share: %s\n",
                     server.missing().isEmpty() ? "the floor window failed" : qPrintable(server.missing()));
        return false;
    }
    std::vector<double> openings;
    for (int i = 0; i < runs; ++i) {
        if (const std::optional<double> ms = shareOpeningMs(appPath, server))
            openings.push_back(*ms);
    }
    const std::optional<double> opening = medianOf(openings);
    if (!opening || openings.size() < runs) {
        std::fprintf(stderr, "share: the window did not open\n");
        return false;
    }
    std::printf("%-44s %7.0f ms\n", "floor: Controls and Charts window", *floor);
    std::printf("%-44s %7.0f ms\n", "Share Times through quorvane --share", *opening);
    return report("Share Times opening / Controls+Charts floor", *opening / *floor, "x", 1.0);
}

} // namespace quorvane::bench
