#include "linux/ProcessStats.h"

#include <QTest>

#include <chrono>
#include <semaphore>
#include <thread>

#include <unistd.h>

using namespace quorvane;

class TestProcessStats : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A thread that keeps a processor busy for 50 ms shows at least most of that, under its own
    // id and in the process's total, while one that never existed is no process at all.
    void countsEachThreadsProcessorTime()
    {
        const qint64 cpuBeforeUs = ProcessStats::ownCpuUs();
        std::atomic<pid_t> worker = 0;
        std::binary_semaphore read(0);
        std::thread busy([&] {
            const auto until = std::chrono::steady_clock::now() + std::chrono::milliseconds(50);
            while (std::chrono::steady_clock::now() < until) {}
            worker = ::gettid();
            read.acquire(); // alive until its figure is read
        });
        while (worker == 0)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        const std::optional<QHash<pid_t, qint64>> threads = ProcessStats::threadRunNs();
        read.release();
        busy.join();

        QVERIFY(threads);
        QVERIFY(threads->contains(::gettid()));
        QVERIFY2(threads->value(worker) >= 40'000'000, qPrintable(QString::number(threads->value(worker))));
        QVERIFY(ProcessStats::ownCpuUs() - cpuBeforeUs >= 40'000);
        QVERIFY(!ProcessStats::threadRunNs(0x3fffffff));
    }
};

QTEST_APPLESS_MAIN(TestProcessStats)
#include "tst_process_stats.moc"
