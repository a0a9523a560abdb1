// Runs the real quorvanectl binary, as a user's shell would.
#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// The exit code, then what came out on stdout.
QString quorvanectl(const QStringList &arguments)
{
    QProcess process;
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
};

QTEST_GUILESS_MAIN(TestQuorvanectl)
#include "tst_quorvanectl.moc"
