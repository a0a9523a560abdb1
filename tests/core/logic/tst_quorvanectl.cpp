// Runs the real quorvanectl binary, as a user's shell would.
#include "DataPaths.h"
#include "SnapshotCache.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// The exit code, then what came out on stdout.
QString quorvanectl(const QStringList &arguments, const QString &dataHome = {})
{
    QProcess process;
    if (!dataHome.isEmpty()) {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(u"XDG_DATA_HOME"_s, dataHome);
        process.setProcessEnvironment(env);
    }
    process.start(qEnvironmentVariable("QUORVANE_BINARY_DIR") + u"/cli/quorvanectl"_s, arguments);
    if (!process.waitForFinished(10'000) || process.exitStatus() != QProcess::NormalExit)
        return u"did not finish"_s;
    return QString::number(process.exitCode()) + u' ' + QString::fromUtf8(process.readAllStandardOutput());
}

} // namespace

class TestQuorvanectl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hours()
    {
        QStringList days;
        for (int day = 2; day <= 6; ++day)
            days.append(u"{\"ranges\":[{\"end\":1020,\"start\":540}],\"weekday\":%1}"_s.arg(day));
        QCOMPARE(quorvanectl({u"hours"_s, u"--json"_s, u"weekdays 9-5, fri 9am-1pm"_s}),
                 u"0 [%1]\n"_s.arg(days.join(u',')));
        QCOMPARE(quorvanectl({u"hours"_s, u"--json"_s, u"whenever"_s}), u"0 []\n"_s);
        // Readable: the words given as separate arguments, Monday first.
        QCOMPARE(quorvanectl({u"hours"_s, u"sun"_s, u"10-2,"_s, u"mon"_s, u"9:30-12,"_s, u"mon"_s, u"1-5"_s}),
                 u"0 Mon 9:30 AM\u201312 PM, 1 PM\u20135 PM\nSun 10 AM\u20132 PM\n"_s);
        QCOMPARE(quorvanectl({u"hours"_s, u"whenever"_s}), u"0 "_s);
        QCOMPARE(quorvanectl({u"hours"_s}), u"2 "_s);
        QCOMPARE(quorvanectl({u"minutes"_s}), u"2 "_s);
    }

    // The week as a sentence: of a typed text, or of the hours Quorvane saved; none saved yet
    // is the not-signed-in exit.
    void describe()
    {
        QCOMPARE(quorvanectl({u"hours"_s, u"--describe"_s, u"mon-thu 9-5, fri 9-1"_s}),
                 u"0 Mon\u2013Thu 9 AM\u20135 PM, Fri 9 AM\u20131 PM\n"_s);
        QTemporaryDir home;
        QCOMPARE(quorvanectl({u"hours"_s, u"--describe"_s}, home.path()), u"3 "_s);
        quorvane::Snapshot saved;
        saved.settings = quorvane::HostSettings{};
        saved.settings->availability = {{7, {{600, 720}}}, {1, {{600, 720}}}};
        QVERIFY(quorvane::SnapshotCache(quorvane::DataPaths::cacheIn(home.filePath(u"Quorvane"_s))).save(saved));
        QCOMPARE(quorvanectl({u"hours"_s, u"--describe"_s, u"--json"_s}, home.path()),
                 u"0 {\"description\":\"Weekends 10 AM\u201312 PM\"}\n"_s);
    }
};

QTEST_GUILESS_MAIN(TestQuorvanectl)
#include "tst_quorvanectl.moc"
