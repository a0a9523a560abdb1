#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct Finished {
    int exitCode = -1;
    QString output;
};

Finished quorvanectl(const QStringList &arguments)
{
    QProcess process;
    process.start(qEnvironmentVariable("QUORVANE_BINARY_DIR") + u"/cli/quorvanectl"_s, arguments);
    if (!process.waitForFinished(10'000) || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput())};
}

} // namespace

// Runs the real quorvanectl binary, as a user's shell would.
class TestQuorvanectl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hours_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("output");
        const QString weekdays = u"{\"ranges\":[{\"end\":1020,\"start\":540}],\"weekday\":%1}"_s;
        QStringList days;
        for (int day = 2; day <= 6; ++day)
            days.append(weekdays.arg(day));
        QTest::newRow("json") << QStringList{u"hours"_s, u"--json"_s, u"weekdays 9-5, fri 9am-1pm"_s} << 0
                              << u"[%1]\n"_s.arg(days.join(u','));
        QTest::newRow("json unreadable") << QStringList{u"hours"_s, u"--json"_s, u"whenever"_s} << 0 << u"[]\n"_s;
        QTest::newRow("readable, Monday first")
            << QStringList{u"hours"_s, u"sun"_s, u"10-2,"_s, u"mon"_s, u"9:30-12,"_s, u"mon"_s, u"1-5"_s} << 0
            << u"Mon 9:30 AM\u201312 PM, 1 PM\u20135 PM\nSun 10 AM\u20132 PM\n"_s;
        QTest::newRow("readable unreadable") << QStringList{u"hours"_s, u"whenever"_s} << 0 << QString();
        QTest::newRow("missing text") << QStringList{u"hours"_s} << 2 << QString();
        QTest::newRow("unknown command") << QStringList{u"minutes"_s} << 2 << QString();
    }
    void hours()
    {
        QFETCH(QStringList, arguments);
        const Finished run = quorvanectl(arguments);
        QTEST(run.exitCode, "exitCode");
        QTEST(run.output, "output");
    }
};

QTEST_GUILESS_MAIN(TestQuorvanectl)
#include "tst_quorvanectl.moc"
