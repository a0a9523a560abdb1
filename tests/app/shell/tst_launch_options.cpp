#include "shell/LaunchOptions.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace quorvane;

// The command line as the user types it, and what the launch makes of it.
class TestLaunchOptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parse_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");    // -1: the app runs
        QTest::addColumn<QString>("outcome"); // running: window, server, "self-test"; else found in the message
        const auto runs = [](const char *name, const QStringList &arguments, const QString &outcome) {
            QTest::newRow(name) << arguments << -1 << outcome;
        };
        const auto stops = [](const char *name, const QStringList &arguments, int code, const QString &message) {
            QTest::newRow(name) << arguments << code << message;
        };
        runs("plain launch opens main", {}, u"main"_s);
        runs("share", {u"--share"_s}, u"share"_s);
        runs("open about", {u"--open"_s, u"about"_s}, u"about"_s);
        runs("share agrees with open share", {u"--share"_s, u"--open=share"_s}, u"share"_s);
        runs("loopback http server", {u"--server"_s, u"http://127.0.0.1:8421"_s}, u"main http://127.0.0.1:8421"_s);
        runs("https server, final slash", {u"--server=https://a.example/"_s}, u"main https://a.example/"_s);
        runs("self-test with a server", {u"--self-test"_s, u"--server=http://127.0.0.1:9"_s},
             u"main http://127.0.0.1:9 self-test"_s);
        runs("hidden in the tray", {u"--hidden"_s}, u"main hidden"_s);
        runs("self-test always shows its window", {u"--self-test"_s, u"--hidden"_s}, u"main self-test"_s);
        runs("test rig: state file and some timings",
             {u"--state-file=/s.json"_s, u"--test-timings=tick=900,timeout=5"_s},
             u"main /s.json tick=900 stale=300000 timeout=5"_s);
        stops("help", {u"--help"_s}, 0, u"--server <URL>"_s);
        stops("version", {u"--version"_s}, 0, u"Quorvane "_s);
        stops("unknown option", {u"--frobnicate"_s}, 2, u"frobnicate"_s);
        stops("stray argument", {u"share"_s}, 2, u"Unexpected argument: share"_s);
        stops("server not a web address", {u"--server=file:///etc/passwd"_s}, 2, u"--server needs"_s);
        stops("server without host", {u"--server=https://"_s}, 2, u"--server needs"_s);
        stops("server with a path", {u"--server=https://example.com/api"_s}, 2, u"--server needs"_s);
        stops("server with credentials", {u"--server=https://me:pw@example.com"_s}, 2, u"--server needs"_s);
        stops("unknown window", {u"--open"_s, u"popover"_s}, 2, u"--open takes one of: main, share"_s);
        stops("two windows", {u"--share"_s, u"--open=about"_s}, 2, u"choose one"_s);
        for (const char *bad : {"tick=0", "tock=5", "tick", "tick=5,", "stale=3600001", "timeout=1s"})
            stops(bad, {u"--test-timings"_s, QString::fromLatin1(bad)}, 2, u"--test-timings takes"_s);
    }
    void parse()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        QFETCH(QString, outcome);
        const LaunchOptions options = LaunchOptions::parse(QStringList{u"quorvane"_s} + arguments);
        QCOMPARE(options.exitCode.value_or(-1), exitCode);
        if (exitCode < 0) {
            QStringList got{options.window, options.server.value_or(QString())};
            got.append(options.selfTest ? u"self-test"_s : QString());
            got.append(options.hidden ? u"hidden"_s : QString());
            got.append(options.stateFile.value_or(QString()));
            if (const auto &t = options.timings) {
                got.append(u"tick=%1 stale=%2 timeout=%3"_s.arg(t->tick.count())
                               .arg(t->stale.count())
                               .arg(t->requestTimeout.count()));
            }
            got.removeAll(QString());
            QCOMPARE(got.join(u' '), outcome);
        } else {
            QVERIFY2(options.message.contains(outcome), qPrintable(options.message));
        }
    }
};

QTEST_GUILESS_MAIN(TestLaunchOptions)
#include "tst_launch_options.moc"
