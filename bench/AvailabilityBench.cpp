#include "AvailabilityBench.h"

#include "BenchReport.h"
#include "FixtureApp.h"
#include "availability/DayColumnModel.h"

#include <QCoreApplication>
#include <QSignalSpy>

namespace quorvane::bench {

bool benchAvailability()
{
    int argc = 1;
    char name[] = "quorvane-bench";
    char *argv[] = {name, nullptr};
    const QCoreApplication application(argc, argv);

    // The fixture host's Monday, 9 AM to 5 PM, with a view's worth of listeners on the rows.
    test::FixtureApp app;
    DayColumnModel column;
    column.setApp(&app.model());
    column.setWeekday(2);
    QSignalSpy rows(&column, &QAbstractItemModel::dataChanged);
    QSignalSpy gesture(&column, &DayColumnModel::gestureChanged);
    const int moves = 1000;

    // A block dragged up and down across the day, and a new block drawn the same way; each
    // ends dropped in place, so nothing is committed.
    const auto drag = [&](bool onBlock) {
        const double from = 114; // 9 AM
        if (onBlock)
            column.pressBlock(0, 10, from);
        else
            column.pressBackground(10, from);
        for (int i = 0; i < moves; ++i)
            column.moveTo(10, from + (i % 200) - 100 + (i % 7) * 0.3);
        column.cancel();
    };
    const double block = nanosPerCall(15, 1, [&] { drag(true); });
    bool ok = report("Block drag, 1,000 pointer moves", block / 1e6, "ms", 1);
    const double draw = nanosPerCall(15, 1, [&] { drag(false); });
    ok = report("Drawing a block, 1,000 pointer moves", draw / 1e6, "ms", 1) && ok;
    keep(rows.size() + gesture.size());
    return ok;
}

} // namespace quorvane::bench
