// Share Times opened from outside the app, as a desktop user does: the app runs on an X server
// of the test's own; Ctrl+Alt+Super+S pressed there, or `quorvane --share` run beside it,
// brings up its "Share Times" window.
#include "support/XServer.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTest>

using namespace quorvane::test;
using namespace Qt::StringLiterals;

namespace {

const QString app = qEnvironmentVariable("QUORVANE_BINARY_DIR") + u"/src/quorvane"_s;

// The app running on the server, its main window up.
struct Running {
    explicit Running(const XServer &x)
        : x(x)
    {
        process.setProcessEnvironment(x.environment());
        process.start(app, {});
    }
    ~Running()
    {
        process.terminate();
        if (!process.waitForFinished(5000))
            process.kill();
    }
    [[nodiscard]] bool up()
    {
        const bool shown = QTest::qWaitFor(
            [this] {
                return x.xdotool({u"search"_s, u"--onlyvisible"_s, u"--class"_s, u"quorvane"_s});
            },
            15'000);
        if (!shown) {
            qWarning() << "the app's window did not come up; app state" << process.state() << "exit"
                       << process.exitStatus() << process.exitCode();
            qWarning().noquote() << process.readAllStandardError();
        }
        return shown;
    }
    const XServer &x;
    QProcess process;
};

} // namespace

class TestE2EShare : public QObject
{
    Q_OBJECT

    XServer x;

private Q_SLOTS:
    void initTestCase()
    {
        if (!x.missing().isEmpty())
            QSKIP(qPrintable(x.missing()));
    }

    void hotKey()
    {
        Running running(x);
        QVERIFY(running.up());
        QVERIFY(!x.shows(u"Share Times"_s));
        QVERIFY(x.press(u"ctrl+alt+super+s"_s));
        QVERIFY(QTest::qWaitFor([this] { return x.shows(u"Share Times"_s); }, 10'000));
    }

    void secondLaunch()
    {
        Running running(x);
        QVERIFY(running.up());
        QProcess second;
        second.setProcessEnvironment(x.environment());
        second.start(app, {u"--share"_s});
        QVERIFY(second.waitForFinished(10'000));
        QCOMPARE(second.exitCode(), 0);
        QVERIFY(QTest::qWaitFor([this] { return x.shows(u"Share Times"_s); }, 10'000));
        QCOMPARE(running.process.state(), QProcess::Running);
    }
};

QTEST_GUILESS_MAIN(TestE2EShare)
#include "tst_e2e_share.moc"
