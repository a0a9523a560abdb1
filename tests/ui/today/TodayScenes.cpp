// The Today screen in the main window: a meeting in progress, a meeting still to come, a day
// with nothing booked, and a host without a connected calendar.
#include "SceneTable.h"
#include "Stage.h"

#include <QCoroTask>
#include <QTimeZone>

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::test;

QUORVANE_SCENES(today)
{
    Scene inProgress;
    inProgress.name = u"today-meeting-in-progress"_s;

    // 9:05: the first meeting is 25 minutes away.
    Scene coming;
    coming.name = u"today-meeting-coming"_s;
    coming.prepare = [](Stage &stage) {
        stage.app().clock.set(QDateTime(QDate(2026, 3, 10), QTime(9, 5), QTimeZone("America/New_York")));
        QMetaObject::invokeMethod(&stage.app().model(), "ticked");
    };

    Scene emptyDay;
    emptyDay.name = u"today-empty-day"_s;
    emptyDay.fixture.emptyData = true;

    // A host whose calendar isn't connected gets the card that asks for it, at the end.
    Scene noCalendar;
    noCalendar.name = u"today-no-calendar"_s;
    noCalendar.prepare = [](Stage &stage) {
        Snapshot &data = stage.app().transport().data;
        data.google->connected = false;
        data.account->google->connected = false;
        QCoro::waitFor(stage.app().model().refresh());
    };

    return {inProgress, coming, emptyDay, noCalendar};
}
