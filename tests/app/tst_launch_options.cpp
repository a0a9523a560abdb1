#include "LaunchOptions.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace quorvane;

// The command line as the user types it, and what the launch makes of it.
class TestLaunchOptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parses_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("window");
        QTest::addColumn<QString>("server"); // empty: no server given
        QTest::addColumn<bool>("selfTest");

        QTest::newRow("plain launch opens main") << QStringList() << u"main"_s << QString() << false;
        QTest::newRow("share") << QStringList{u"--share"_s} << u"share"_s << QString() << false;
        QTest::newRow("open about") << QStringList{u"--open"_s, u"about"_s} << u"about"_s << QString() << false;
        QTest::newRow("open with =") << QStringList{u"--open=settings"_s} << u"settings"_s << QString() << false;
        QTest::newRow("share agrees with open share")
            << QStringList{u"--share"_s, u"--open"_s, u"share"_s} << u"share"_s << QString() << false;
        QTest::newRow("loopback http server") << QStringList{u"--server"_s, u"http://127.0.0.1:8421"_s} << u"main"_s
                                              << u"http://127.0.0.1:8421"_s << false;
        QTest::newRow("https server with a final slash")
            << QStringList{u"--server"_s, u"https://book.example.com/"_s} << u"main"_s
            << u"https://book.example.com/"_s << false;
        QTest::newRow("self-test with a server")
            << QStringList{u"--self-test"_s, u"--server=http://127.0.0.1:9"_s} << u"main"_s
            << u"http://127.0.0.1:9"_s << true;
    }
    void parses()
    {
        QFETCH(QStringList, arguments);
        const LaunchOptions options = LaunchOptions::parse(QStringList{u"quorvane"_s} + arguments);
        QVERIFY2(!options.exitCode, qPrintable(options.message));
        QTEST(options.window, "window");
        QTEST(options.server.value_or(QString()), "server");
        QTEST(options.selfTest, "selfTest");
    }

    void stops_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("messageHas");

        QTest::newRow("help") << QStringList{u"--help"_s} << 0 << u"--server <URL>"_s;
        QTest::newRow("version") << QStringList{u"--version"_s} << 0 << u"Quorvane 2.0 (200)"_s;
        QTest::newRow("unknown option") << QStringList{u"--frobnicate"_s} << 2 << u"frobnicate"_s;
        QTest::newRow("stray argument") << QStringList{u"share"_s} << 2 << u"share"_s;
        QTest::newRow("server without value") << QStringList{u"--server"_s} << 2 << u"server"_s;
        QTest::newRow("server not a web address") << QStringList{u"--server"_s, u"file:///etc/passwd"_s} << 2
                                                  << u"http or https"_s;
        QTest::newRow("server without host") << QStringList{u"--server"_s, u"https://"_s} << 2 << u"http or https"_s;
        QTest::newRow("server with a path") << QStringList{u"--server=https://example.com/api"_s} << 2
                                            << u"without a path"_s;
        QTest::newRow("server with credentials") << QStringList{u"--server=https://me:pw@example.com"_s} << 2
                                                 << u"http or https"_s;
        QTest::newRow("unknown window") << QStringList{u"--open"_s, u"popover"_s} << 2 << u"main, share"_s;
        QTest::newRow("two windows") << QStringList{u"--share"_s, u"--open=about"_s} << 2 << u"choose one"_s;
    }
    void stops()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, messageHas);
        const LaunchOptions options = LaunchOptions::parse(QStringList{u"quorvane"_s} + arguments);
        QVERIFY(options.exitCode.has_value());
        QTEST(*options.exitCode, "exitCode");
        QVERIFY2(options.message.contains(messageHas), qPrintable(options.message));
    }
};

QTEST_GUILESS_MAIN(TestLaunchOptions)
#include "tst_launch_options.moc"
